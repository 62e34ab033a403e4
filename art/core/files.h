// Whole files in and out.
#pragma once

#include <string>

// False when the file can't be read; `bytes` is empty then.
bool ReadFile(const std::string& path, std::string& bytes);
// Writes beside and renames, and only when the file's bytes are others. False on failure; creates
// no folders.
bool WriteIfChanged(const std::string& path, const std::string& bytes);
