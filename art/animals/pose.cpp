// How headings become angles of the camera.
#include "art/animals/pose.h"

static const float DOWN_TURN = 40, UP_TURN = -30, BACK_TURN = -90; // degrees to the viewer

Vec3 View::Gaze() const
{
	Vec3 out = {left ? -.25f : .25f, std::sin(elevation) * .6f, std::cos(elevation)};
	return Normalize(Transpose(TurnY(yaw)) * out);
}

static float TurnOf(Heading heading, float sideTurn)
{
	switch (heading) {
	case Heading::Down:
		return DOWN_TURN;
	case Heading::Up:
		return UP_TURN;
	case Heading::Back:
		return BACK_TURN;
	case Heading::Side:
		break;
	}
	return sideTurn;
}

View ViewOf(const Pose& pose, float sideTurn, float elevation)
{
	float turn = TurnOf(pose.heading, sideTurn) - pose.turnAway;
	return {pose.left, Radians(pose.left ? 180 + turn : -turn),
	        Radians(elevation + pose.seenAbove)};
}
