// Follows the includes of a source file and hashes what it finds.
#include "art/core/source_keys.h"

#include "art/core/files.h"

#include <algorithm>

uint64_t HashBytes(const std::string& bytes, uint64_t start)
{
	uint64_t hash = start;
	for (unsigned char c : bytes)
		hash = (hash ^ c) * 1099511628211ull;
	return hash;
}

std::string SourceKeys::Full(const std::string& path) const
{
	return path[0] == '/' ? path : root + "/" + path;
}

std::string SourceKeys::Relative(const std::string& path) const
{
	bool inside = path.compare(0, root.size() + 1, root + "/") == 0;
	return inside ? path.substr(root.size() + 1) : path;
}

const SourceKeys::File& SourceKeys::Look(const std::string& path)
{
	auto found = known.find(path);
	if (found != known.end())
		return found->second;
	File file;
	std::string text;
	ReadFile(Full(path), text);
	bool isList = path == "art/families.h";
	file.hash   = isList ? 0 : HashBytes(text);
	std::error_code missing;
	if (!isList)
		file.time = std::filesystem::last_write_time(Full(path), missing);
	const std::string mark = "#include \"";
	for (size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
		size_t from = at + mark.size(), to = text.find('"', from);
		if (to != std::string::npos)
			file.includes.push_back(text.substr(from, to - from));
	}
	return known[path] = file;
}

std::set<std::string> SourceKeys::ClosureOf(const std::string& source)
{
	std::set<std::string> closure;
	std::vector<std::string> open = {Relative(source)};
	while (!open.empty()) {
		std::string path = open.back();
		open.pop_back();
		if (!closure.insert(path).second)
			continue;
		for (const std::string& include : Look(path).includes)
			if (include.compare(0, 4, "art/") == 0)
				open.push_back(include);
		bool isHeader = path.size() > 2 && path.compare(path.size() - 2, 2, ".h") == 0;
		if (!isHeader || path == "art/families.h")
			continue;
		std::string twin = path.substr(0, path.size() - 2) + ".cpp";
		if (std::filesystem::exists(Full(twin)))
			open.push_back(twin);
	}
	return closure;
}

uint64_t SourceKeys::KeyOf(const std::string& source)
{
	uint64_t key = HashBytes("");
	for (const std::string& path : ClosureOf(source))
		key = HashBytes(path + ":" + std::to_string(Look(path).hash) + ";", key);
	return key;
}

std::filesystem::file_time_type SourceKeys::TimeOf(const std::string& source)
{
	std::filesystem::file_time_type newest = std::filesystem::file_time_type::min();
	for (const std::string& path : ClosureOf(source))
		newest = std::max(newest, Look(path).time);
	return newest;
}
