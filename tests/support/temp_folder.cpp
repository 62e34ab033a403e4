// A folder of its own for a test, gone with it.
#include "support/temp_folder.h"

#include <cstdlib>
#include <filesystem>

CTempFolder::CTempFolder()
{
	std::string pattern = (std::filesystem::temp_directory_path() / "quorbletXXXXXX").string();
	path                = std::string(mkdtemp(pattern.data())) + "/";
}

CTempFolder::~CTempFolder()
{
	std::error_code ignored;
	std::filesystem::remove_all(path, ignored);
}
