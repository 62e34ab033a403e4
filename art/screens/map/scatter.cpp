// Places the landmarks and the groves, and paints them from the back to the front.
#include "art/screens/map/scatter.h"

#include "art/screens/map/flora.h"
#include "art/screens/map/marks.h"
#include "art/screens/map/trail.h"

#include <map>

static const int VARIANTS    = 3;
static const float TREE_HALF = 9;  // pixels
static const float FROM_DOTS = 17; // pixels of the close-up that stay clear round dots
static const float APART     = 8;
static const float CROWN     = 15; // pixels from a foot to the middle of what it holds up

namespace
{
struct Thing {
	Image picture;
	float x, y;   // foot
	float lift;   // how far the foot stands above the lower edge
	float shadow; // its half width; 0 for none
	bool flat;
};
struct Taken {
	float x, y, radius;
};
// The state of one painting.
struct Scene {
	const Terrain* terrain;
	std::vector<Segment> ways;
	std::vector<At> dots;
	std::vector<Taken> taken;
	std::vector<Thing> things;
	MapView view;
	int top;
};
} // namespace

static void AddMarks(Scene& scene, const Placed& placed)
{
	float size = placed.view.scale;
	for (const MarkAt& mark : MarksOf(*placed.group)) {
		if (IsAfloat(mark.mark) && size < 1) // the overview has its own
			continue;
		At at       = placed.view.ToPicture({mark.x, mark.y});
		bool height = mark.mark <= Mark::Mesa;
		Thing thing = {
		    DrawMark(mark.mark, size, mark.seed), at.x, at.y, 3 * size, 0, IsFlat(mark.mark)};
		float half   = thing.picture.width * .5f;
		thing.lift   = height ? half * (mark.mark == Mark::Mesa ? .42f : .32f) : thing.lift;
		thing.shadow = IsFlat(mark.mark) || IsAfloat(mark.mark) ? 0 : half * .9f;
		scene.taken.push_back({at.x, at.y - half * .4f, half * .85f});
		scene.taken.push_back({at.x, at.y + half * .35f, half * .8f}); // nothing hides its foot
		scene.things.push_back(thing);
	}
}

static bool IsFree(const Scene& scene, float x, float y)
{
	const Terrain& t = *scene.terrain;
	if (!t.IsLand(x, y, .16f) || !t.IsLand(x - 5, y) || !t.IsLand(x + 5, y))
		return false;
	float clear = FROM_DOTS * scene.view.scale + 3, crown = CROWN * (.3f + .7f * scene.view.scale);
	for (At dot : scene.dots)
		for (float up : {5.f, crown})
			if (std::hypot(dot.x - x, (dot.y - y + up) * 1.1f) < clear)
				return false;
	for (const Taken& taken : scene.taken)
		if (std::hypot(taken.x - x, taken.y - y) < taken.radius)
			return false;
	return DistanceTo(scene.ways, x, y - 3) > 6 + 7 * scene.view.scale &&
	       DistanceTo(scene.ways, x, y - crown) > 4 + 6 * scene.view.scale;
}

// On the overview trees are larger than their islands would have them, but not full size.
static Image Smaller(const Image& picture, float scale)
{
	const float SMALL = .72f;
	if (scale >= SMALL)
		return picture;
	return Resized(picture, (int)(picture.width * SMALL), (int)(picture.height * SMALL));
}

static void AddTrees(Scene& scene, int count)
{
	std::map<std::pair<Growth, int>, Image> drawn;
	const Terrain& t = *scene.terrain;
	Random random(19);
	const MapView& view = scene.view;
	float sparse        = view.scale < .8f ? .47f : .54f;
	float west = std::max(6.f, view.west), east = std::min(t.width - 6.f, view.east);
	for (int tries = 0, put = 0; tries < count * 60 && put < count; tries++) {
		float x = random.Range(west, east), y = random.Range(view.north, view.south);
		float chance = random.Next01();
		int kind = random.Below(60), variant = random.Below(VARIANTS);
		if (!t.IsLand(x, y, .16f))
			continue;
		const Flora& flora = FloraOf(t.FirstLand((int)x, (int)y));
		float grove        = LayeredNoise(x * .018f, y * .022f, 2, 30); // groves, no sprinkle
		if (grove < sparse - .14f * flora.density || chance > flora.density || !IsFree(scene, x, y))
			continue;
		Growth growth  = flora.kinds[kind % flora.kinds.size()];
		Image& picture = drawn[{growth, variant}];
		if (picture.width == 0)
			picture = Smaller(DrawGrowth(growth, variant + (int)growth * 3), scene.view.scale);
		if (y - picture.height < scene.top)
			continue;
		put++;
		scene.taken.push_back({x, y, APART * (.4f + .6f * view.scale)});
		scene.things.push_back({picture, x, y, 2, TREE_HALF * .9f, false});
	}
}

static void PaintThings(Image& image, std::vector<Thing>& things)
{
	std::stable_sort(things.begin(), things.end(), [](const Thing& a, const Thing& b) {
		return a.flat != b.flat ? a.flat : a.y < b.y;
	});
	for (const Thing& thing : things) {
		if (thing.shadow > 0)
			DrawContactShadow(image, thing.x + 2, thing.y, thing.shadow, thing.shadow * .36f, .32f);
		Compose(image, thing.picture, (int)(thing.x - thing.picture.width * .5f),
		        (int)(thing.y - thing.picture.height + thing.lift));
	}
}

void PaintStanding(Image& image, const Terrain& terrain, const std::vector<Placed>& groups,
                   int trees, int top)
{
	Scene scene = {&terrain, TrailSegments(groups), {}, {}, {}, groups[0].view, top};
	for (const Placed& placed : groups) {
		for (const Isle& isle : placed.group->isles)
			for (int level = isle.first; level <= isle.last; level++)
				scene.dots.push_back(placed.view.ToPicture(DotMiddle(level)));
		AddMarks(scene, placed);
	}
	AddTrees(scene, trees);
	PaintThings(image, scene.things);
}
