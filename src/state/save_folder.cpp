// The folder in which all stored files lie, and safe writing into it.
#include "state/save_folder.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

static const char* const FALLBACK_FOLDER = "Resources/";
static const char* const MAKER_FOLDER    = "Ondrel/";
static const char* const GAME_FOLDER     = "Quorblet Data/";

// Set from outside; empty: ask the environment. Never destroyed: after a fatal error objects may
// still save themselves while the program takes itself down.
static std::string& s_root = *new std::string;

void SetSaveFolderRoot(const std::string& root)
{
	s_root = root;
	if (!s_root.empty() && s_root.back() != '/')
		s_root += '/';
}

// The user's folder for application data, ending in a separator; empty when it is not known. A
// relative XDG_DATA_HOME is to be ignored.
static std::string UserDataFolder()
{
	if (!s_root.empty())
		return s_root;
	const char* chosen = std::getenv("XDG_DATA_HOME");
	if (chosen && chosen[0] == '/')
		return std::string(chosen) + "/";
	const char* home = std::getenv("HOME");
	if (home && home[0] == '/')
		return std::string(home) + "/.local/share/";
	return "";
}

std::string SaveFolder()
{
	std::string folder = UserDataFolder();
	folder             = folder.empty() ? FALLBACK_FOLDER : folder + MAKER_FOLDER + GAME_FOLDER;
	std::error_code ignored; // a folder that cannot be made shows when a file is written
	std::filesystem::create_directories(folder, ignored);
	return folder;
}

static bool WriteAndFlush(const std::string& path, const std::vector<unsigned char>& data)
{
	FILE* file = std::fopen(path.c_str(), "wb");
	if (!file)
		return false;
	bool whole = std::fwrite(data.data(), 1, data.size(), file) == data.size();
	whole      = std::fflush(file) == 0 && whole;
	whole      = fsync(fileno(file)) == 0 && whole;
	return std::fclose(file) == 0 && whole;
}

// Without this a power cut could undo the rename.
static void FlushFolderOf(const std::string& path)
{
	std::string folder = std::filesystem::path(path).parent_path().string();
	int handle         = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
	if (handle < 0)
		return;
	fsync(handle);
	close(handle);
}

bool WriteFileSafely(const std::string& path, const std::vector<unsigned char>& data)
{
	std::string beside = path + ".new";
	if (!WriteAndFlush(beside, data) || std::rename(beside.c_str(), path.c_str()) != 0) {
		std::remove(beside.c_str());
		return false;
	}
	FlushFolderOf(path);
	return true;
}
