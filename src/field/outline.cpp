// Closed outlines of what stands on the field.
#include "field/outline.h"

#include "field/element.h"

void LayOutline(CElement* owner, float x, float y, const OutlinePoint* corners, int count)
{
	for (int i = 0; i < count; i++) {
		const OutlinePoint& from = corners[i];
		const OutlinePoint& to   = corners[(i + 1) % count];
		AddObstacleLine(owner, x + from.x, y + from.y, x + to.x, y + to.y);
	}
}
