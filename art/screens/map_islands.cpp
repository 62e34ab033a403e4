// The islands of the campaign: three close-ups, the overview and its lit groups.
#include "art/core/canvas.h"
#include "art/families.h"
#include "art/screens/map/ground.h"
#include "art/screens/map/marks.h"
#include "art/screens/map/scatter.h"
#include "art/screens/map/trail.h"

static const int WIDTH = 800, HEIGHT = 600;

// --- close-ups

static Image CloseUp(const Archipelago& group)
{
	MapView view               = CloseUpView(group);
	std::vector<Placed> groups = {{&group, view}};
	Terrain terrain            = Grow(groups, WIDTH, HEIGHT);
	Image image(WIDTH, HEIGHT);
	PaintSea(image, terrain, 1);
	PaintLand(image, terrain, 1);
	PaintTrails(image, terrain, groups, 8);
	PaintStanding(image, terrain, groups, 260, (int)view.north);
	return image;
}

static void DrawWest(Sink& sink)
{
	Image image = CloseUp(WesternIsles());
	sink.Add("mapcloseupbackgroundgroupACtop.jpg", Cropped(image, 0, 0, WIDTH, MAP_SEAM));
	sink.Add("mapcloseupbackgroundgroupAbottom.jpg",
	         Cropped(image, 0, MAP_SEAM, WIDTH, HEIGHT - MAP_SEAM));
}

static void DrawEast(Sink& sink)
{
	Image image = CloseUp(EasternIsles());
	sink.Add("mapcloseupbackgroundgroupCbottom.jpg",
	         Cropped(image, 0, MAP_SEAM, WIDTH, HEIGHT - MAP_SEAM));
}

static void DrawSouth(Sink& sink)
{
	sink.Add("mapcloseupbackgroundgroupBwhole.jpg", CloseUp(SouthernIsles()));
}

// --- overview

namespace
{
struct Region {
	const char* glow;
	const Archipelago& (*isles)();
	int left, top, width, height; // pixels of the overview, as the game places the glow
	float scale;
	At middle; // world place that lies in the middle of the rectangle
};
} // namespace

// clang-format off
static const Region s_regions[] = {
	{ "mapoverviewglowwest.png",  WesternIsles,  15,  222, 370, 194, .48f, { 355, 342 } },
	{ "mapoverviewgloweast.png",  EasternIsles,  408, 187, 384, 196, .55f, { 364, 342 } },
	{ "mapoverviewglowsouth.png", SouthernIsles, 262, 396, 340, 172, .47f, { 380, 362 } },
};
// clang-format on

static const int SHALLOWS = 16; // pixels

static MapView ViewOf(const Region& region)
{
	MapView view;
	view.scale = region.scale;
	view.left  = region.left + region.width * .5f - region.middle.x * view.scale;
	view.top   = region.top + region.height * .5f - region.middle.y * view.scale;
	// The sea floor may rise a little outside of the rectangle, or the shallows would end in a
	// line.
	view.west  = region.left - SHALLOWS;
	view.east  = region.left + region.width + SHALLOWS;
	view.north = region.top - SHALLOWS + 4;
	view.south = region.top + region.height + SHALLOWS;
	return view;
}

// Land and all that stands on it, over whatever water is there.
static void PaintRegion(Image& image, const Region& region)
{
	std::vector<Placed> groups = {{&region.isles(), ViewOf(region)}};
	Terrain terrain            = Grow(groups, WIDTH, HEIGHT);
	PaintLand(image, terrain, region.scale);
	PaintTrails(image, terrain, groups, 5);
	PaintStanding(image, terrain, groups, 150, region.top);
}

static Image Overview()
{
	std::vector<Placed> groups;
	for (const Region& region : s_regions)
		groups.push_back({&region.isles(), ViewOf(region)});
	Image image(WIDTH, HEIGHT);
	PaintSea(image, Grow(groups, WIDTH, HEIGHT), .6f);
	for (const Region& region : s_regions)
		PaintRegion(image, region);
	for (const MarkAt& mark : MarksOfOverview()) {
		Image picture = DrawMark(mark.mark, mark.mark == Mark::Compass ? 1 : .8f, mark.seed);
		Compose(image, picture, (int)(mark.x - picture.width * .5f), (int)mark.y - picture.height);
	}
	return image;
}

static void DrawOverview(Sink& sink)
{
	sink.Add("mapoverviewbackground.jpg", Overview());
}

// What stands or lies on land, as a mask: the islands painted on nothing.
static Image LitIslands(const Region& region)
{
	const float RIM = 3.4f;
	Image islands(WIDTH, HEIGHT);
	PaintRegion(islands, region);
	islands    = Cropped(islands, region.left, region.top, region.width, region.height);
	Field mask = AlphaOf(islands);
	for (float& a : mask.data)
		a = a > .5f ? 1 : 0;
	Field rim = Blur(Dilated(mask, RIM), .8f), halo = Blur(Dilated(mask, RIM + 2), 3);
	Image lit(region.width, region.height);
	for (int y = 0; y < lit.height; y++)
		for (int x = 0; x < lit.width; x++) {
			float edge = std::min(std::min(x, lit.width - 1 - x), std::min(y, lit.height - 1 - y));
			Blend(lit, x, y, HexColour(0xfff2a0), .7f * halo.At(x, y) * Clamp01(edge / 4));
			Blend(lit, x, y, HexColour(0xfffbe0), rim.At(x, y));
		}
	Tint(islands, HexColour(0xfffbe0), .20f);
	Compose(lit, islands, 0, 0);
	return lit;
}

void AddMapIslands(Catalogue& catalogue)
{
	catalogue.Add("map/west", __FILE__, DrawWest);
	catalogue.Add("map/south", __FILE__, DrawSouth);
	catalogue.Add("map/east", __FILE__, DrawEast);
	catalogue.Add("map/overview", __FILE__, DrawOverview);
	for (const Region& region : s_regions)
		catalogue.Add(std::string("map/") + region.glow, __FILE__,
		              [&region](Sink& sink) { sink.Add(region.glow, LitIslands(region)); });
}
