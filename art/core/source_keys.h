// Tells by a number whether the sources behind a picture have changed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

uint64_t HashBytes(const std::string& bytes, uint64_t start = 14695981039346656037ull);

// Works out the closure of a source file: the file itself, every "art/..." header that it names,
// the .cpp twin of each, and what those name. `families.h` counts by what it includes only, since
// a new family there changes no picture.
class SourceKeys
{
public:
	explicit SourceKeys(const std::string& root) : root(root) {} // the folder that holds art/

	// One number for the contents of the closure; the same for the same bytes on any machine.
	uint64_t KeyOf(const std::string& source);
	// When the closure was last written to.
	std::filesystem::file_time_type TimeOf(const std::string& source);
	// Paths of the closure in order; those inside the root are relative to it.
	std::set<std::string> ClosureOf(const std::string& source);

private:
	struct File {
		uint64_t hash                        = 0;
		std::filesystem::file_time_type time = std::filesystem::file_time_type::min();
		std::vector<std::string> includes; // relative to the root
	};
	const File& Look(const std::string& path);
	std::string Full(const std::string& path) const;
	std::string Relative(const std::string& path) const;

	std::string root;
	std::map<std::string, File> known;
};
