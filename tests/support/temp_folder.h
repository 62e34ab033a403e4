// A folder of its own for a test, gone with it.
#pragma once

#include <string>

class CTempFolder
{
public:
	CTempFolder();
	~CTempFolder();

	std::string path; // ends in "/"
};
