// A player's name as it can be written on the screen.
#pragma once

#include <string>

// The name with a question mark for each character that the bitmap font lacks: a damaged list of
// profiles can hold any.
std::string ShownName(const std::string& name);
