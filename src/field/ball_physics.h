// Moves the ball through the field and decides what it hits.
#pragma once

#include <vector>

class CBall;
class CElement;
class CPaddle;
struct ObstaclePoint;

const float FIELD_WALL_LEFT  = 0;   // pixels
const float FIELD_WALL_RIGHT = 693; // pixels

// The short decimals in use for pi, everywhere in the field.
const float PI_SHORT        = 3.14159f;
const float HALF_PI_SHORT   = 1.570795f;
const float THREE_HALVES_PI = 4.712385f;
const float TWO_PI_SHORT    = 6.28318f;

// Brings an angle into 0..2 pi.
float Wrap(float angle);
// Heading of a direction: 0 is up the screen, pi/2 is right.
float HeadingOf(float dx, float dy);

struct Vec2 {
	float x, y;
};

// Where the segment crosses the circle: 0, 1 or 2 points, the larger root first.
int LineCircleHits(float x1, float y1, float x2, float y2, float cx, float cy, float r, Vec2& p1,
                   Vec2& p2);

// The sweep of one frame: the motion vector is met with the segments between obstacle points and
// spent piece by piece, so that the ball tunnels through nothing. Made and deleted by the level
// runner; owns neither ball nor paddle.
class BallPhysics
{
public:
	BallPhysics(CBall* newBall, CPaddle* newPaddle); // paddle may be null

	void Step();     // the whole motion of one frame
	bool MovePass(); // true when another pass is due

	CElement* previousHitA = nullptr; // reported by the last pass; not asked again
	CElement* previousHitB = nullptr;
	CElement* currentHitA  = nullptr;
	CElement* currentHitB  = nullptr;
	float remainingDx = 0, remainingDy = 0; // of this frame's motion

	// One pair of points, or a wall (owners null).
	struct Segment {
		float x1, y1;
		CElement* owner1;
		float x2, y2;
		CElement* owner2;
	};
	// A place where the motion of a pass meets a segment.
	struct Contact {
		const Segment* segment = nullptr; // null: the way is free
		float distance         = 0;       // pixels along the motion
		bool corner            = false;   // met by an end point, not by its face
		float hitX = 0, hitY = 0;         // on the ball's edge at its present place, corners only
	};

	// The candidates of a pass at the ball's present place: the wall within reach, then each point
	// near the ball with each partner, in list order. The same as a walk over the whole list gives.
	void CollectSegments(float reach);
	// Where one segment is met by the remaining motion; false when it is not.
	bool MeetsSegment(const Segment& segment, float r, float remaining, Contact& contact) const;
	// The first of the segments that is met.
	Contact NearestContact(float r, float remaining) const;

	std::vector<Segment> segments; // scratch, kept between passes

private:
	void TouchCircles(float r);
	bool FreeEmbedded(float r); // true when that used up the frame
	bool RepairWalls(float r);
	void AskOwners(const Segment& segment, bool& bounce);
	bool Bounce(const Contact& contact, float remaining);
	float NewHeading(const Contact& contact) const;
	bool MeetsFace(const Segment& segment, float r, Contact& contact) const;
	bool MeetsEnd(const Segment& segment, float r, float remaining, Contact& contact) const;
	void MoveBall(float dx, float dy);

	CBall* ball;                                      // not owned
	CPaddle* paddle;                                  // not owned
	std::vector<ObstaclePoint*> nearPoints, partners; // scratch
};
