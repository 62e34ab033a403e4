// Moves the ball through the field and decides what it hits.
#include "field/ball_physics.h"

#include "field/ball.h"
#include "field/obstacle_grid.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "state/game_data.h"

#include <cmath>

static const float WALL_BOTTOM     = 600;   // pixels; the walls reach from 0 to here
static const float WALL_GAP        = 0.01f; // pixels that a repair leaves between ball and wall
static const float LEAST_EMBEDDING = 0.01f; // pixels; a shallower point is only touched
// A contact nearer than WALL_GAP is what the ball is just leaving. Rounding near x = 693 is up to
// 0.0002: without the allowance a ball put back from a wall could miss it for good.
static const float LEAST_DISTANCE    = 0.0095f; // pixels
static const float LEAST_PART        = 0.01f;   // of the motion, spent by each bounce
static const float MOTION_DONE       = 0.01f;   // pixels
static const float REACH_ALLOWANCE   = 0.1f;    // pixels; far above any rounding
static const int MOST_CIRCLE_TOUCHES = 1000; // a frame; ends the walk if a circle is never removed

float Wrap(float angle)
{
	while (angle >= TWO_PI_SHORT)
		angle -= TWO_PI_SHORT;
	while (angle < 0)
		angle += TWO_PI_SHORT;
	return angle;
}

float HeadingOf(float dx, float dy)
{
	return Wrap(PI_SHORT - std::atan2(dx, dy));
}

static bool Between(float value, float a, float b)
{
	return a < b ? value >= a && value <= b : value >= b && value <= a;
}

int LineCircleHits(float x1, float y1, float x2, float y2, float cx, float cy, float r, Vec2& p1,
                   Vec2& p2)
{
	float dx = x2 - x1, dy = y2 - y1;
	float a            = dx * dx + dy * dy;
	float b            = 2 * (dx * (x1 - cx) + dy * (y1 - cy));
	float c            = (x1 - cx) * (x1 - cx) + (y1 - cy) * (y1 - cy) - r * r;
	float discriminant = b * b - 4 * a * c;
	if (a == 0 || !(discriminant >= 0))
		return 0;

	float root = std::sqrt(discriminant);
	int hits   = 0;
	for (float sign : {1.0f, -1.0f}) {
		float u  = (-b + sign * root) / (2 * a);
		Vec2 hit = {x1 + u * dx, y1 + u * dy};
		if (!Between(hit.x, x1, x2) || !Between(hit.y, y1, y2))
			continue;
		(hits == 0 ? p1 : p2) = hit;
		hits++;
		if (discriminant == 0)
			break;
	}
	return hits;
}

BallPhysics::BallPhysics(CBall* newBall, CPaddle* newPaddle) : ball(newBall), paddle(newPaddle) {}

void BallPhysics::Step()
{
	previousHitA = previousHitB = nullptr;
	remainingDx                 = ball->vx;
	remainingDy                 = ball->vy;
	bool more                   = true;
	while (more) {
		currentHitA = currentHitB = nullptr;
		more                      = MovePass();
		if (!paddle)
			continue;
		if (currentHitA == paddle || currentHitB == paddle) {
			if (g_levelGameData)
				g_levelGameData->NotePaddleTouch();
			if (g_sidebar)
				g_sidebar->ClearCombo();
		} else if (currentHitA || currentHitB) {
			paddle->grabGuard = 0;
		}
	}
}

bool BallPhysics::MovePass()
{
	float r = ball->Radius();
	TouchCircles(r);
	if (FreeEmbedded(r) || ball->IsHeld())
		return false;
	if (RepairWalls(r))
		return true;

	float remaining = std::sqrt(remainingDx * remainingDx + remainingDy * remainingDy);
	CollectSegments(remaining + r);
	Contact contact = NearestContact(r, remaining);
	if (contact.segment)
		return Bounce(contact, remaining);
	MoveBall(remainingDx, remainingDy);
	remainingDx = remainingDy = 0;
	return false;
}

void BallPhysics::MoveBall(float dx, float dy)
{
	ball->x += dx;
	ball->y += dy;
}

// Each touch may change the list, so the walk starts anew after it.
void BallPhysics::TouchCircles(float r)
{
	const std::vector<TouchCircle*>& circles = CElement::TouchCircleList;
	int touches                              = 0;
	for (size_t i = 0; i < circles.size() && touches < MOST_CIRCLE_TOUCHES;) {
		const TouchCircle* circle = circles[i];
		if (PointDistance(ball->x, ball->y, circle->x, circle->y) <= r + circle->radius) {
			circle->owner->OnBallHit();
			touches++;
			i = 0;
		} else {
			i++;
		}
	}
}

// A point inside the ball: an animal has walked into it, or it was put there. It is pushed out
// along the line through the point, and flies on that way.
bool BallPhysics::FreeEmbedded(float r)
{
	g_obstacleGrid.Near(ball->x, ball->y, r, nearPoints);
	const ObstaclePoint* nearest = nullptr;
	float d                      = 0;
	for (const ObstaclePoint* point : nearPoints) {
		float distance = PointDistance(ball->x, ball->y, point->x, point->y);
		if (point->owner != paddle && (!nearest || distance < d)) {
			nearest = point;
			d       = distance;
		}
	}
	if (!nearest || r - d <= LEAST_EMBEDDING)
		return false;

	CElement* owner = nearest->owner;
	float ux = ball->x - nearest->x, uy = ball->y - nearest->y;
	bool bounce = true;
	if (owner != previousHitA && owner != previousHitB)
		bounce = !owner->OnBallHit(); // may take the point away
	previousHitA = owner;
	if (!bounce)
		return false;

	if (d > 0) {
		ux /= d;
		uy /= d;
	} else {
		uy = -1; // right on the centre: any way out will do
	}
	float push = r - d;
	MoveBall(ux * push, uy * push);
	ball->PlayRebound();
	if (push <= std::sqrt(remainingDx * remainingDx + remainingDy * remainingDy)) {
		float speed = ball->Speed();
		ball->vx    = ux * speed;
		ball->vy    = uy * speed;
		MoveBall(ball->vx, ball->vy);
	}
	remainingDx = remainingDy = 0;
	if (paddle)
		paddle->grabGuard = 0;
	return true;
}

bool BallPhysics::RepairWalls(float r)
{
	if (ball->x - r < FIELD_WALL_LEFT)
		ball->x = FIELD_WALL_LEFT + r + WALL_GAP;
	else if (ball->x + r > FIELD_WALL_RIGHT)
		ball->x = FIELD_WALL_RIGHT - r - WALL_GAP;
	else
		return false;
	return true;
}

void BallPhysics::CollectSegments(float reach)
{
	segments.clear();
	if (ball->x - reach <= FIELD_WALL_LEFT)
		segments.push_back({FIELD_WALL_LEFT, 0, nullptr, FIELD_WALL_LEFT, WALL_BOTTOM, nullptr});
	else if (ball->x + reach >= FIELD_WALL_RIGHT)
		segments.push_back({FIELD_WALL_RIGHT, 0, nullptr, FIELD_WALL_RIGHT, WALL_BOTTOM, nullptr});

	g_obstacleGrid.Near(ball->x, ball->y, reach + CElement::JOIN_DISTANCE, nearPoints);
	for (const ObstaclePoint* p : nearPoints) {
		g_obstacleGrid.Near(p->x, p->y, CElement::JOIN_DISTANCE, partners);
		for (const ObstaclePoint* q : partners) {
			if (q->x != p->x || q->y != p->y)
				segments.push_back({p->x, p->y, p->owner, q->x, q->y, q->owner});
		}
	}
}

bool BallPhysics::MeetsFace(const Segment& segment, float r, Contact& contact) const
{
	float normal =
	    PI_SHORT - std::atan2(segment.x1 - segment.x2, segment.y1 - segment.y2) - HALF_PI_SHORT;
	float cx = ball->x + std::sin(normal) * r, cy = ball->y - std::cos(normal) * r;
	float opposite = normal + PI_SHORT;
	float ox = ball->x + std::sin(opposite) * r, oy = ball->y - std::cos(opposite) * r;
	if (PointDistance(ox, oy, segment.x1, segment.y1) <
	    PointDistance(cx, cy, segment.x1, segment.y1)) {
		cx = ox;
		cy = oy;
	}

	float sx = segment.x2 - segment.x1, sy = segment.y2 - segment.y1;
	float determinant = sy * remainingDx - sx * remainingDy;
	if (determinant == 0)
		return false;
	float t = (sx * (cy - segment.y1) - sy * (cx - segment.x1)) / determinant;
	float u = ((cy - segment.y1) * remainingDx - (cx - segment.x1) * remainingDy) / determinant;
	if (!Between(t, 0, 1) || !Between(u, 0, 1))
		return false;
	contact.corner   = false;
	contact.distance = PointDistance(cx, cy, cx + t * remainingDx, cy + t * remainingDy);
	return true;
}

bool BallPhysics::MeetsEnd(const Segment& segment, float r, float remaining, Contact& contact) const
{
	const Vec2 ends[2] = {{segment.x1, segment.y1}, {segment.x2, segment.y2}};
	bool met           = false;
	for (const Vec2& end : ends) {
		Vec2 hits[2];
		int count = LineCircleHits(end.x, end.y, end.x - remainingDx, end.y - remainingDy, ball->x,
		                           ball->y, r, hits[0], hits[1]);
		for (int i = 0; i < count; i++) {
			float distance = PointDistance(end.x, end.y, hits[i].x, hits[i].y);
			if (distance > remaining || (met && distance >= contact.distance))
				continue;
			met              = true;
			contact.corner   = true;
			contact.distance = distance;
			contact.hitX     = hits[i].x;
			contact.hitY     = hits[i].y;
		}
	}
	return met;
}

bool BallPhysics::MeetsSegment(const Segment& segment, float r, float remaining,
                               Contact& contact) const
{
	contact.segment = &segment;
	return MeetsFace(segment, r, contact) || MeetsEnd(segment, r, remaining, contact);
}

// Most candidates lie beside or behind the ball. What the motion can meet lies within r of its
// line; a segment wholly on one side of that strip, or of its ends, needs no closer look. Nor does
// one that even the ball's foremost point reaches later than the best so far.
BallPhysics::Contact BallPhysics::NearestContact(float r, float remaining) const
{
	Contact best;
	if (!(remaining > 0))
		return best;
	float ux = remainingDx / remaining, uy = remainingDy / remaining;
	float side = r + REACH_ALLOWANCE, ahead = remaining + side;
	for (const Segment& segment : segments) {
		float x1 = segment.x1 - ball->x, y1 = segment.y1 - ball->y;
		float x2 = segment.x2 - ball->x, y2 = segment.y2 - ball->y;
		float across1 = x1 * uy - y1 * ux, across2 = x2 * uy - y2 * ux;
		float along1 = x1 * ux + y1 * uy, along2 = x2 * ux + y2 * uy;
		if ((across1 > side && across2 > side) || (across1 < -side && across2 < -side) ||
		    (along1 > ahead && along2 > ahead) || (along1 < -side && along2 < -side) ||
		    (best.segment && std::fmin(along1, along2) - side > best.distance))
			continue;

		Contact contact;
		if (!MeetsSegment(segment, r, remaining, contact) || contact.distance < LEAST_DISTANCE)
			continue;
		if (!best.segment || contact.distance < best.distance)
			best = contact;
	}
	return best;
}

// An owner that the last pass has reported already is not asked again.
void BallPhysics::AskOwners(const Segment& segment, bool& bounce)
{
	currentHitA = segment.owner1;
	currentHitB = segment.owner2 == segment.owner1 ? nullptr : segment.owner2;
	if (currentHitA == previousHitA || currentHitA == previousHitB)
		currentHitA = nullptr;
	if (currentHitB == previousHitA || currentHitB == previousHitB)
		currentHitB = nullptr;

	bounce = true;
	if (currentHitA)
		bounce = !currentHitA->OnBallHit();
	if (currentHitB) {
		bool reflects = !currentHitB->OnBallHit();
		bounce        = bounce && reflects;
	}
	previousHitA = currentHitA;
	previousHitB = currentHitB;
}

// True when the frame's motion is not used up. A ball that is let through has not moved: the next
// pass meets the world as OnBallHit has left it.
bool BallPhysics::Bounce(const Contact& contact, float remaining)
{
	bool bounce;
	AskOwners(*contact.segment, bounce);
	if (!bounce)
		return true;

	float part    = std::fmax(contact.distance / remaining, LEAST_PART);
	float heading = NewHeading(contact);
	MoveBall(part * remainingDx, part * remainingDy);

	float speed = ball->Speed();
	float dirX = std::sin(heading), dirY = -std::cos(heading);
	ball->vx    = dirX * speed;
	ball->vy    = dirY * speed;
	remainingDx = dirX * remaining * (1 - part);
	remainingDy = dirY * remaining * (1 - part);
	ball->PlayRebound();
	if (std::fabs(remainingDx) < MOTION_DONE && std::fabs(remainingDy) < MOTION_DONE) {
		remainingDx = remainingDy = 0;
		return false;
	}
	return true;
}

// The paddle sends the ball off along the normal of what it touched, always upward; anything else
// mirrors it, at the segment or at the ball's own tangent where it meets a corner.
float BallPhysics::NewHeading(const Contact& contact) const
{
	const Segment& segment = *contact.segment;
	float incoming         = HeadingOf(ball->vx, ball->vy);
	if (paddle && (segment.owner1 == paddle || segment.owner2 == paddle)) {
		float along = HeadingOf(segment.x1 - segment.x2, segment.y1 - segment.y2);
		return along - (along <= PI_SHORT ? HALF_PI_SHORT : THREE_HALVES_PI);
	}
	if (contact.corner) {
		float outward = HeadingOf(contact.hitX - ball->x, contact.hitY - ball->y);
		float tangent = Wrap(outward + HALF_PI_SHORT);
		return Wrap(tangent - (incoming - tangent));
	}
	float along = HeadingOf(segment.x1 - segment.x2, segment.y1 - segment.y2);
	return along - (incoming - along);
}
