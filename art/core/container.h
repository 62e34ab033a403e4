// The container that holds many named files: count, offsets, then each entry.
#pragma once

#include "art/core/catalogue.h"

// All numbers are 32 bits, low byte first: the count; the offset of each entry from the start of
// the file; then each entry as size of its data, length of its name, name, data.
std::string PackContainer(const std::vector<Picture>& pictures);
// False when the bytes are no container; width and height stay 0.
bool UnpackContainer(const std::string& bytes, std::vector<Picture>& pictures);
