// Saves the screen as a picture.
#pragma once

#include <string>

bool SaveScreen(const std::string& path); // PNG; false when it cannot be written
