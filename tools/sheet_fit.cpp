// Computes the outline of an animal that the ball meets from its standing picture.
#include "tools/sheet_fit.h"

#include <algorithm>
#include <cmath>

static const float SOLID       = .6f;  // alpha: more than any shadow has
static const float UPPER_EDGE  = .36f; // of the torso's height, from its top
static const float LOWEST      = 3;    // pixels of the lower edge above the lowest of the feet
static const float HIGHEST[]   = {.22f, .38f, .5f}; // the same at most, of the torso's height
static const float FLATTEST    = 5;                 // pixels between the edges, at least
static const float LEGS        = .55f; // of the torso's height: legs are measured below it
static const float LEG_FILL    = .25f; // of that part; a column that fills as much is a leg's
static const float BODY_FILL   = .34f; // the same for columns of the body and the head
static const float SHARES[]    = {.75f, .5f, .25f, 0}; // how far beyond the legs to the body's ends
static const float SQUARENESS  = 2.5f;                 // power of the superellipse; 2 is an ellipse
static const int FEWEST_POINTS = 8;
static const float POINT_GAP   = 9.5f; // pixels between neighbours, about
static const float NEAR_ENOUGH = 4;    // pixels from a point to the figure

namespace
{
struct Torso {
	float legLeft = 0, legRight = 0, bodyLeft = 0, bodyRight = 0; // columns
	float top = 0, feet = 0;                                      // rows
};
struct Lens {
	float left, right, upper, lower;
};
} // namespace

static bool Solid(const Image& picture, int x, int y)
{
	return picture.Holds(x, y) && picture.At(x, y)[3] >= SOLID;
}

static int TopOf(const Image& picture, int x)
{
	int y = 0;
	while (y < picture.height && !Solid(picture, x, y))
		y++;
	return y;
}

// Two pixels side by side: a single one may be a claw.
static int FeetOf(const Image& picture)
{
	for (int y = picture.height - 1; y >= 0; y--)
		for (int x = 0; x + 1 < picture.width; x++)
			if (Solid(picture, x, y) && Solid(picture, x + 1, y))
				return y;
	return -1;
}

static int SolidRows(const Image& picture, int x, int from, int to)
{
	int count = 0;
	for (int y = from; y <= to; y++)
		count += Solid(picture, x, y);
	return count;
}

// The outermost columns that are solid over a share of the rows from `from` to the feet.
static void Ends(const Image& picture, int from, int feet, float share, float& left, float& right)
{
	int needs = std::max(2, (int)((feet - from + 1) * share));
	left = (float)picture.width, right = -1;
	for (int x = 0; x < picture.width; x++) {
		if (SolidRows(picture, x, from, feet) < needs)
			continue;
		left  = std::min(left, (float)x);
		right = (float)x;
	}
}

// Necks, antlers and thin tails leave no mark: the middle column's height is taken, and columns
// that are hardly filled do not count.
static Torso Measure(const Image& picture)
{
	Torso torso;
	int feet    = FeetOf(picture);
	Bounds seen = OpaqueBounds(picture, SOLID);
	if (feet < 0)
		return torso;
	std::vector<int> tops;
	for (int x = seen.left; x <= seen.right; x++)
		tops.push_back(TopOf(picture, x));
	std::nth_element(tops.begin(), tops.begin() + tops.size() / 2, tops.end());
	int top    = std::min(tops[tops.size() / 2], feet - 4);
	torso.top  = (float)top;
	torso.feet = (float)feet;
	Ends(picture, top + (int)((feet - top) * LEGS), feet, LEG_FILL, torso.legLeft, torso.legRight);
	Ends(picture, top, feet, BODY_FILL, torso.bodyLeft, torso.bodyRight);
	torso.bodyLeft  = std::min(torso.bodyLeft, torso.legLeft);
	torso.bodyRight = std::max(torso.bodyRight, torso.legRight);
	return torso;
}

float DistanceToFigure(const Image& picture, const BodyPoint& point)
{
	float nearest = 1e6f;
	for (int y = 0; y < picture.height; y++)
		for (int x = 0; x < picture.width; x++)
			if (Solid(picture, x, y))
				nearest = std::min(nearest, std::hypot(x - point.x, y - point.y));
	return nearest;
}

static BodyPoint OnLens(const Lens& lens, float angle)
{
	float middle = (lens.upper + lens.lower) / 2, height = (lens.lower - lens.upper) / 2;
	float centre = (lens.left + lens.right) / 2, width = (lens.right - lens.left) / 2;
	auto bulge = [](float v) { return std::copysign(std::pow(std::fabs(v), 2 / SQUARENESS), v); };
	return {centre - width * bulge(std::cos(angle)), middle + height * bulge(std::sin(angle))};
}

static float Gap(const BodyPoint& a, const BodyPoint& b)
{
	return std::hypot(a.x - b.x, a.y - b.y);
}

// A fine walk round the lens from its left end, downward first, cut into equal lengths.
static std::vector<BodyPoint> Cut(const Lens& lens)
{
	static const int STEPS = 720;
	static const float PI  = 3.14159265f;
	std::vector<BodyPoint> walk;
	float length = 0;
	for (int i = 0; i <= STEPS; i++) {
		walk.push_back(OnLens(lens, 2 * PI * i / STEPS));
		length += i ? Gap(walk[i], walk[i - 1]) : 0;
	}
	int count = std::max(FEWEST_POINTS, (int)std::ceil(length / POINT_GAP));
	std::vector<BodyPoint> ring;
	float gone = 0;
	for (int i = 0; i < STEPS && (int)ring.size() < count; i++) {
		if (gone >= length * ring.size() / count)
			ring.push_back({std::round(walk[i].x), std::round(walk[i].y)});
		gone += Gap(walk[i], walk[i + 1]);
	}
	return ring;
}

static float Farthest(const Image& picture, const std::vector<BodyPoint>& ring)
{
	float farthest = 0;
	for (const BodyPoint& point : ring)
		farthest = std::max(farthest, DistanceToFigure(picture, point));
	return farthest;
}

// The longest and then the lowest lens whose lower edge rises no more than `highest`; what lies
// best so far is kept in best and least. True when it lies close all round.
static bool Search(const Image& standing, const Torso& torso, float highest,
                   std::vector<BodyPoint>& best, float& least)
{
	float height = torso.feet - torso.top;
	for (float share : SHARES) {
		for (float rise = LOWEST; rise <= std::max(LOWEST, height * highest); rise++) {
			float lower                 = torso.feet - rise;
			Lens lens                   = {torso.legLeft + (torso.bodyLeft - torso.legLeft) * share,
			                               torso.legRight + (torso.bodyRight - torso.legRight) * share,
			                               std::min(torso.top + height * UPPER_EDGE, lower - FLATTEST), lower};
			std::vector<BodyPoint> ring = Cut(lens);
			float farthest              = Farthest(standing, ring);
			if (farthest < least) {
				least = farthest;
				best  = ring;
			}
			if (least <= NEAR_ENOUGH)
				return true;
		}
	}
	return false;
}

// Between the legs and below the chin there is air, where the ball should not meet anything.
std::vector<BodyPoint> FitBody(const Image& standing)
{
	std::vector<BodyPoint> best;
	float least = 1e6f;
	Torso torso = Measure(standing);
	if (torso.legRight < 0)
		return best;
	for (float highest : HIGHEST)
		if (Search(standing, torso, highest, best, least))
			break;
	return best;
}
