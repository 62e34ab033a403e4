// The lettering of the two lines under a portrait.
#pragma once

#include "art/core/image.h"

#include <string>

// 15 px high, as wide as the text; yellow for names, white for kinds and little words.
Image PanelName(const std::string& text);
Image PanelWord(const std::string& text);
