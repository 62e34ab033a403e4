// What the modes of the sheet tool share: pictures of the data folder, and grounds to lay them on.
#pragma once

#include "art/core/catalogue.h"
#include "art/core/image.h"

#include <map>
#include <string>
#include <vector>

// The entries of resource.dat; says what is wrong and gives false when there are none.
bool LoadPictures(const std::string& dataFolder, std::vector<Picture>& pictures);
// The same by name.
bool LoadPicturesByName(const std::string& dataFolder, std::map<std::string, Picture>& pictures);
Image Decode(const Picture& picture); // by the first bytes; empty when it can't be read

// A sheet of ground: grass, sand, snow, night or checker. Other words are grass.
Image Ground(const std::string& ground, int width, int height);
