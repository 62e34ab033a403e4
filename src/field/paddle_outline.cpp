// The paddle's bumper: the outlines that aim the ball, and the changes between its shapes.
#include "field/paddle_parts.h"

#include "media/sprite.h"

static const float POINT_SPACING = 5; // pixels

struct OutlineShape {
	float firstX;         // from the anchor
	std::vector<float> y; // below the paddle's top, one each POINT_SPACING
};

// clang-format off
static const OutlineShape s_outlines[3] = {
	// normal
	{-9, {31, 25, 20, 16, 13, 10.5f, 8.5f, 7, 6, 5.9f,
	      6, 7, 8.5f, 10.5f, 13, 16, 20, 25, 31}},
	// wide
	{-25, {33, 28, 23, 18, 14, 11, 8.5f, 6.5f, 5, 4, 3.5f, 3.2f, 2.9f,
	       3, 3.2f, 3.5f, 4, 5, 6.5f, 8.5f, 11, 14, 18, 23, 28, 33}},
	// flat
	{-2, {27, 23, 20, 17, 15, 13.5f, 12.5f, 12, 11.9f,
	      12, 12.5f, 13.5f, 15, 17, 20, 23, 27}},
};

struct CPaddle::ShapeChange {
	ShapeOperation operation;
	PaddleShape from, to;
	Bumper bumper;
	bool forward;
};

// Wide and flat take each other back one step at a time. What is not here does nothing.
const CPaddle::ShapeChange CPaddle::s_shapeChanges[] = {
	{BECOME_WIDE,   SHAPE_NORMAL,        SHAPE_WIDE,          BUMPER_NORMAL_WIDE,   true},
	{BECOME_WIDE,   SHAPE_NORMAL_STICKY, SHAPE_WIDE_STICKY,   BUMPER_STICKY_WIDE,   true},
	{BECOME_WIDE,   SHAPE_FLAT,          SHAPE_NORMAL,        BUMPER_NORMAL_FLAT,   false},
	{BECOME_WIDE,   SHAPE_FLAT_STICKY,   SHAPE_NORMAL_STICKY, BUMPER_STICKY_FLAT,   false},
	{END_WIDE,      SHAPE_WIDE,          SHAPE_NORMAL,        BUMPER_NORMAL_WIDE,   false},
	{END_WIDE,      SHAPE_WIDE_STICKY,   SHAPE_NORMAL_STICKY, BUMPER_STICKY_WIDE,   false},
	{BECOME_FLAT,   SHAPE_NORMAL,        SHAPE_FLAT,          BUMPER_NORMAL_FLAT,   true},
	{BECOME_FLAT,   SHAPE_NORMAL_STICKY, SHAPE_FLAT_STICKY,   BUMPER_STICKY_FLAT,   true},
	{BECOME_FLAT,   SHAPE_WIDE,          SHAPE_NORMAL,        BUMPER_NORMAL_WIDE,   false},
	{BECOME_FLAT,   SHAPE_WIDE_STICKY,   SHAPE_NORMAL_STICKY, BUMPER_STICKY_WIDE,   false},
	{END_FLAT,      SHAPE_FLAT,          SHAPE_NORMAL,        BUMPER_NORMAL_FLAT,   false},
	{END_FLAT,      SHAPE_FLAT_STICKY,   SHAPE_NORMAL_STICKY, BUMPER_STICKY_FLAT,   false},
	{BECOME_STICKY, SHAPE_NORMAL,        SHAPE_NORMAL_STICKY, BUMPER_NORMAL_STICKY, true},
	{BECOME_STICKY, SHAPE_WIDE,          SHAPE_WIDE_STICKY,   BUMPER_WIDE_STICKY,   true},
	{BECOME_STICKY, SHAPE_FLAT,          SHAPE_FLAT_STICKY,   BUMPER_FLAT_STICKY,   true},
	{END_STICKY,    SHAPE_NORMAL_STICKY, SHAPE_NORMAL,        BUMPER_NORMAL_STICKY, false},
	{END_STICKY,    SHAPE_WIDE_STICKY,   SHAPE_WIDE,          BUMPER_WIDE_STICKY,   false},
	{END_STICKY,    SHAPE_FLAT_STICKY,   SHAPE_FLAT,          BUMPER_FLAT_STICKY,   false},
};
// clang-format on

void CPaddle::ChangeShape(ShapeOperation operation)
{
	for (const ShapeChange& change : s_shapeChanges) {
		if (change.operation != operation || change.from != shape)
			continue;
		shape = change.to;
		for (CSprite* bumper : parts->bumpers)
			bumper->Hide();
		CSprite* bumper = parts->bumpers[change.bumper];
		bumper->Show();
		if (change.forward) {
			bumper->Rewind();
			bumper->Forward();
		} else {
			bumper->GoToLast();
			bumper->Backward();
		}
		BuildOutline();
		return;
	}
}

// Sticky shapes have the outline of their plain ones.
void CPaddle::BuildOutline()
{
	RemoveOutline();
	for (size_t i = 0; i < s_outlines[shape / 2].y.size(); i++) {
		ObstaclePoint* point = new ObstaclePoint{x, y, this};
		parts->outline.push_back(point);
		AddObstacleRecord(point);
	}
	MoveOutline();
}

void CPaddle::MoveOutline()
{
	const OutlineShape& form = s_outlines[shape / 2];
	float offset             = form.firstX;
	for (size_t i = 0; i < form.y.size(); i++) {
		MoveObstacle(parts->outline[i], static_cast<float>(anchorX) + offset, TOP + form.y[i]);
		offset += POINT_SPACING;
	}
}

void CPaddle::RemoveOutline()
{
	RemoveObstaclePoints(this);
	for (ObstaclePoint* point : parts->outline)
		delete point;
	parts->outline.clear();
}
