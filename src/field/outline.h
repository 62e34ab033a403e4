// Closed outlines of what stands on the field.
#pragma once

class CElement;

struct OutlinePoint {
	int x, y; // pixels, relative to the place the outline is laid at
};

// Lays obstacle points along the corners in their order and back to the first.
void LayOutline(CElement* owner, float x, float y, const OutlinePoint* corners, int count);
