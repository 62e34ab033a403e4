// The entry of the program: finds its data and runs.
#include "frame/clock.h"
#include "frame/program.h"

#include <filesystem>

// The data lies in a folder beside the executable; without one the present folder must do.
static void EnterDataFolder()
{
	std::error_code failure;
	const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", failure);
	if (failure)
		return;
	const std::filesystem::path data = self.parent_path() / "data";
	if (std::filesystem::is_directory(data, failure))
		std::filesystem::current_path(data, failure);
}

int main(int argc, char** argv)
{
	EnterDataFolder();
	return RunProgram(ParseMode(argc, argv), static_cast<unsigned int>(g_clock->Now()), nullptr);
}
