// Container files: named pieces of data behind a table of offsets.
#pragma once

#include <functional>
#include <string>
#include <vector>

typedef std::vector<unsigned char> Bytes;

// Gets each entry in table order. Wants tells first, by the name, whether the data is to be read.
struct ArchiveVisitor {
	std::function<void(unsigned int count)> onCount; // may be empty; once, before the first entry
	std::function<bool(const std::string& name)> wants; // may be empty: all are wanted
	std::function<void(const std::string& name, Bytes&& data)> onEntry;
};

// Walks a container. Returns false when the file does not open. Damage (a cut-off file, offsets or
// sizes past its end, an absurd count) is reported once in the log; what is whole is delivered.
bool ForEachArchiveEntry(const std::string& path, const ArchiveVisitor& visitor);

// One entry on its own. Reports "Cannot load resource file." or "Unable to find file within
// resource: " through the error channel, both fatal.
Bytes ReadArchiveEntry(const std::string& path, const std::string& name);

// A whole file beside the program; false when it cannot be read.
bool ReadWholeFile(const std::string& path, Bytes& data);
