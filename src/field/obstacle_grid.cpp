// Finds obstacle points by place, in the order of the list, without walking it.
#include "field/obstacle_grid.h"

#include "field/element.h"

#include <algorithm>
#include <cmath>

CObstacleGrid g_obstacleGrid;

// A point right at the radius may round into the neighbouring cell.
static const float ROUNDING_MARGIN = 1; // pixels

float PointDistance(float x1, float y1, float x2, float y2)
{
	float dx = x1 - x2, dy = y1 - y2;
	return std::sqrt(dx * dx + dy * dy);
}

// Index along one axis, held to the edge cells; a value that is no number falls in the first.
static int CellIndex(float offset, int cellSize, int count)
{
	float index = offset / static_cast<float>(cellSize);
	if (!(index > 0))
		return 0;
	return index < static_cast<float>(count - 1) ? static_cast<int>(index) : count - 1;
}

int CObstacleGrid::Column(float x)
{
	return CellIndex(x - LEFT, CELL_SIZE, COLUMNS);
}

int CObstacleGrid::Row(float y)
{
	return CellIndex(y - TOP, CELL_SIZE, ROWS);
}

CObstacleGrid::Range CObstacleGrid::CellsAround(float x, float y, float radius)
{
	float reach = radius + ROUNDING_MARGIN;
	return {Column(x - reach), Row(y - reach), Column(x + reach), Row(y + reach)};
}

void CObstacleGrid::Insert(ObstaclePoint* point)
{
	point->cell = Row(point->y) * COLUMNS + Column(point->x);
	cells[point->cell].push_back(point);
}

void CObstacleGrid::Remove(ObstaclePoint* point)
{
	std::vector<ObstaclePoint*>& cell           = cells[point->cell];
	std::vector<ObstaclePoint*>::iterator found = std::find(cell.begin(), cell.end(), point);
	*found = cell.back(); // the order inside a cell does not matter: answers are sorted
	cell.pop_back();
	point->cell = -1;
}

void CObstacleGrid::Move(ObstaclePoint* point, float x, float y)
{
	if (point->cell == -1 || Row(y) * COLUMNS + Column(x) == point->cell) {
		point->x = x;
		point->y = y;
		return;
	}
	Remove(point);
	point->x = x;
	point->y = y;
	Insert(point);
}

void CObstacleGrid::Clear()
{
	for (std::vector<ObstaclePoint*>& cell : cells)
		cell.clear();
}

void CObstacleGrid::Near(float x, float y, float radius, std::vector<ObstaclePoint*>& found) const
{
	found.clear();
	Range range = CellsAround(x, y, radius);
	for (int row = range.top; row <= range.bottom; row++) {
		for (int column = range.left; column <= range.right; column++) {
			for (ObstaclePoint* point : cells[row * COLUMNS + column]) {
				if (PointDistance(x, y, point->x, point->y) <= radius)
					found.push_back(point);
			}
		}
	}
	std::sort(found.begin(), found.end(),
	          [](const ObstaclePoint* a, const ObstaclePoint* b) { return a->order < b->order; });
}

bool CObstacleGrid::AnyNear(float x, float y, float radius) const
{
	Range range = CellsAround(x, y, radius);
	for (int row = range.top; row <= range.bottom; row++) {
		for (int column = range.left; column <= range.right; column++) {
			for (const ObstaclePoint* point : cells[row * COLUMNS + column]) {
				if (PointDistance(x, y, point->x, point->y) <= radius)
					return true;
			}
		}
	}
	return false;
}
