// The compact list of all names that the program asks for, and its expansion.
#pragma once

#include <string>
#include <vector>

struct WantedNames {
	std::vector<std::string> pictures; // inside resource.dat
	std::vector<std::string> beside;   // files of their own
};

// All names of one pattern: [0..9] each number, [01..12] with its zeros, [A..D] each letter, [a|b]
// either; brackets multiply. An open bracket without its end is taken word for word.
std::vector<std::string> ExpandPattern(const std::string& pattern);
// Words parted by blanks; # begins a comment; a line that begins with "beside:" lists files that
// lie beside the program.
WantedNames ReadWanted(const std::string& text);
