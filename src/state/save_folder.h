// The folder in which all stored files lie, and safe writing into it.
#pragma once

#include <string>
#include <vector>

// Resolved anew at each call, created where it is missing, ending in a separator:
// $XDG_DATA_HOME or ~/.local/share, then the two folder names; "Resources/" where neither is known.
std::string SaveFolder();

// For the driver and the tests: this folder instead (ends in a separator or not); empty: none.
void SetSaveFolderRoot(const std::string& root);

// Writes beside the file, flushes to the disk, renames: a crash or a full disk in the middle leaves
// the old file whole. False when it could not be done.
bool WriteFileSafely(const std::string& path, const std::vector<unsigned char>& data);
