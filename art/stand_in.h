// The plainly marked picture that goes out under the name of one not drawn yet.
#pragma once

#include "art/core/catalogue.h"

// A checker with a question mark: 800x600 for .jpg, 32x32 for all else.
Image DrawStandIn(const std::string& extension);

// One entry for each name; all of one extension share their bytes.
std::vector<Picture> MakeStandIns(const std::vector<std::string>& names);
