// Fuzz target: the bytes are taken as a container, as a profile and as a list of profiles.
#include "tests_fuzz.h"

#include "frame/clock.h"
#include "media/archive.h"
#include "state/game_data.h"
#include "state/save_folder.h"

#include <cstdio>
#include <filesystem>
#include <unistd.h>

static std::string Folder()
{
	static std::string folder;
	if (folder.empty()) {
		folder =
		    std::filesystem::temp_directory_path() / ("quorbletfuzz" + std::to_string(getpid()));
		SetSaveFolderRoot(folder);
		std::filesystem::create_directories(SaveFolder());
		std::filesystem::current_path(folder); // the log goes there
	}
	return folder;
}

static void WriteTo(const std::string& path, const unsigned char* data, size_t size)
{
	if (FILE* file = std::fopen(path.c_str(), "wb")) {
		std::fwrite(data, 1, size, file);
		std::fclose(file);
	}
}

static void AsContainer(const unsigned char* data, size_t size)
{
	WriteTo("container", data, size);
	ArchiveVisitor visitor;
	visitor.wants   = [](const std::string& name) { return name.size() != 3; };
	visitor.onEntry = [](const std::string&, Bytes&&) {};
	ForEachArchiveEntry("container", visitor);
}

static void AsSavedFiles(const unsigned char* data, size_t size)
{
	WriteTo(SaveFolder() + "PROFILE1v5.DAT", data, size);
	WriteTo(SaveFolder() + "QUORBLETv5.DAT", data + size / 2, size - size / 2);
	CGameData game;
	g_gameData = g_levelGameData = &game;
	game.SkillRating();
	game.PercentComplete();
	game.TotalScore();
	for (int i = 0; i < game.ProfileCount(); i++)
		game.ProfileNameAt(i);
}

int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size)
{
	Folder();
	AsContainer(data, size);
	AsSavedFiles(data, size);
	g_gameData = g_levelGameData = nullptr;
	return 0;
}

void CleanUpFuzz()
{
	std::string folder = Folder();
	std::filesystem::current_path("/");
	std::filesystem::remove_all(folder);
}
