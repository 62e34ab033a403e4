// Where flowers and tufts of grass stand on a meadow.
#pragma once

#include <vector>

struct DecorStamp {
	int number; // of the picture: flowers 0 to 7, tufts 0 to 2
	int x, y;   // upper left corner, pixels
};

// Presets 0 to 5 have both; 6 to 10 the tufts of 1 to 5. Empty for any other number.
const std::vector<DecorStamp>& FlowerStamps(int preset);
const std::vector<DecorStamp>& TuftStamps(int preset);
