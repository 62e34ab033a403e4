// A rectangle of whole pixels.
#pragma once

struct Rect {
	int x = 0, y = 0, width = 0, height = 0;
};
