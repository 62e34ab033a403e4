// Reads and writes whole files; a reader never sees a half-written one.
#include "art/core/files.h"

#include <cstdio>

bool ReadFile(const std::string& path, std::string& bytes)
{
	bytes.clear();
	FILE* file = std::fopen(path.c_str(), "rb");
	if (!file)
		return false;
	long length = std::fseek(file, 0, SEEK_END) == 0 ? std::ftell(file) : -1;
	std::rewind(file);
	if (length > 0)
		bytes.resize(length);
	bool whole = length >= 0 && std::fread(bytes.data(), 1, length, file) == (size_t)length;
	std::fclose(file);
	if (!whole)
		bytes.clear();
	return whole;
}

bool WriteIfChanged(const std::string& path, const std::string& bytes)
{
	std::string old;
	if (ReadFile(path, old) && old == bytes)
		return true;
	std::string beside = path + ".new";
	FILE* file         = std::fopen(beside.c_str(), "wb");
	if (!file)
		return false;
	bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
	whole      = std::fclose(file) == 0 && whole;
	if (!whole) {
		std::remove(beside.c_str());
		return false;
	}
	return std::rename(beside.c_str(), path.c_str()) == 0;
}
