// Finds obstacle points by place, in the order of the list, without walking it.
#pragma once

#include <vector>

struct ObstaclePoint;

// Square cells over the field and a margin around it; a point farther out counts to the nearest
// edge cell. Answers are the same, in the same order, as those of a walk over the list.
class CObstacleGrid
{
public:
	void Insert(ObstaclePoint* point);
	void Remove(ObstaclePoint* point);
	void Move(ObstaclePoint* point, float x, float y); // also writes the place
	void Clear();

	// All points whose distance from (x, y) is at most radius, in list order. found is emptied
	// first; it is the caller's, so that its memory is used again.
	void Near(float x, float y, float radius, std::vector<ObstaclePoint*>& found) const;
	bool AnyNear(float x, float y, float radius) const;

private:
	static constexpr int CELL_SIZE = 16; // pixels
	static constexpr int LEFT      = -160;
	static constexpr int TOP       = -160;
	static constexpr int COLUMNS   = 64;
	static constexpr int ROWS      = 60;

	// The cells that a circle can touch.
	struct Range {
		int left, top, right, bottom; // inclusive
	};
	static int Column(float x);
	static int Row(float y);
	static Range CellsAround(float x, float y, float radius);

	std::vector<ObstaclePoint*> cells[COLUMNS * ROWS];
};

// The distance that every search over obstacle points compares: one rounding everywhere.
float PointDistance(float x1, float y1, float x2, float y2);

extern CObstacleGrid g_obstacleGrid;
