// The painted map: dots on land, ways between them, pictures of the sizes that the game counts on.
#include "art/core/encode.h"
#include "art/families.h"
#include "art/screens/map/dots.h"
#include "art/screens/map/marks.h"
#include "art/screens/map/terrain.h"
#include "art/screens/map/trail.h"

#include <gtest/gtest.h>
#include <map>

namespace
{
const int WIDTH = 800, HEIGHT = 600;
const int LEVELS = 182;

std::vector<const Archipelago*> Groups()
{
	return {&WesternIsles(), &SouthernIsles(), &EasternIsles()};
}

Terrain CloseUpOf(const Archipelago& group)
{
	return Grow({{&group, CloseUpView(group)}}, WIDTH, HEIGHT);
}

std::map<std::string, Picture> Drawn(void (*add)(Catalogue&), const std::string& start)
{
	Catalogue catalogue;
	add(catalogue);
	std::map<std::string, Picture> pictures;
	for (const Group& group : catalogue.groups) {
		if (group.name.compare(0, start.size(), start) != 0)
			continue;
		Sink sink;
		group.draw(sink);
		for (Picture& picture : sink.pictures)
			pictures[picture.name] = picture;
	}
	return pictures;
}
} // namespace

TEST(MapIsles, HoldEachLevelOnce)
{
	std::map<int, int> count;
	for (const Archipelago* group : Groups())
		for (const Isle& isle : group->isles)
			for (int level = isle.first; level <= isle.last; level++)
				count[level]++;
	EXPECT_EQ(count.size(), (size_t)LEVELS);
	for (const auto& [level, times] : count)
		EXPECT_EQ(times, 1) << level;
}

TEST(MapIsles, WaysLeadThroughEachLevel)
{
	std::map<int, int> passed;
	for (const Archipelago* group : Groups())
		for (const Isle& isle : group->isles)
			for (const Way& way : WaysOn(isle))
				for (size_t i = way.side; i < way.levels.size();
				     i++) // a side way begins on the main one
					passed[way.levels[i]]++;
	EXPECT_EQ(passed.size(), (size_t)LEVELS);
	for (const auto& [level, times] : passed)
		EXPECT_EQ(times, 1) << level;
}

TEST(MapTerrain, CarriesEachDotOnDryLand)
{
	const int DOT_RADIUS = 9;
	for (const Archipelago* group : Groups()) {
		Terrain terrain = CloseUpOf(*group);
		for (const Isle& isle : group->isles)
			for (int level = isle.first; level <= isle.last; level++) {
				At dot = DotMiddle(level);
				for (int side : {-DOT_RADIUS, 0, DOT_RADIUS}) {
					EXPECT_TRUE(terrain.IsLand(dot.x + side, dot.y)) << level;
					EXPECT_TRUE(terrain.IsLand(dot.x, dot.y + side)) << level;
				}
			}
	}
}

TEST(MapTerrain, LeavesOpenSeaAboveTheSeam)
{
	const float SHALLOW = -1.05f; // from here on the sea is coloured by what lies near
	for (const Archipelago* group : {&WesternIsles(), &EasternIsles()}) {
		Terrain terrain = CloseUpOf(*group);
		for (int y = 0; y < MAP_SEAM; y++)
			for (int x = 0; x < WIDTH; x++)
				ASSERT_LT(terrain.level.At(x, y), SHALLOW) << x << ", " << y;
	}
}

TEST(MapTerrain, KeepsWithinItsRectangle)
{
	MapView view = {.5f, 20, 100, 60, 150, 300, 320};
	Terrain t    = Grow({{&WesternIsles(), view}}, 400, 400);
	int land     = 0;
	for (int y = 0; y < t.height; y++)
		for (int x = 0; x < t.width; x++) {
			bool inside = x >= view.west && x < view.east && y >= view.north && y < view.south;
			land += inside && t.IsLand(x, y);
			ASSERT_TRUE(inside || !t.IsLand(x, y)) << x << ", " << y;
		}
	EXPECT_GT(land, 5000);
}

TEST(MapMarks, StandOnLandOrSwim)
{
	for (const Archipelago* group : Groups()) {
		Terrain terrain = CloseUpOf(*group);
		for (const MarkAt& mark : MarksOf(*group)) {
			bool land = terrain.LevelAt(mark.x, mark.y - 4) > -.02f;
			EXPECT_EQ(land, !IsAfloat(mark.mark)) << mark.x << ", " << mark.y;
		}
	}
}

TEST(MapDots, HaveOneSizeForAllPicturesOfAKind)
{
	std::map<std::string, Picture> pictures = Drawn(AddMapDots, "map/dots");
	EXPECT_EQ(pictures.size(), (size_t)(15 * 5 + 5 * 9));
	for (const auto& [name, picture] : pictures) {
		bool star = name.compare(0, 10, "mapdotstar") == 0;
		EXPECT_EQ(picture.width, star ? 29 : 25) << name;
		EXPECT_EQ(picture.height, star ? 27 : 25) << name;
	}
}

TEST(MapDots, FitTheirPictures)
{
	for (int kind = 0; kind < 5; kind++)
		for (DotFace face : {DotFace::Completed, DotFace::Selected})
			for (float lit : {0.f, 1.f}) {
				Image dot  = DrawDot((DotKind)kind, face, lit);
				Bounds ink = OpaqueBounds(dot, .5f);
				EXPECT_GE(ink.Width(), 13);
				for (int x = 0; x < dot.width; x++) {
					EXPECT_LT(dot.At(x, 0)[3], .7f) << kind;
					EXPECT_LT(dot.At(x, dot.height - 1)[3], .7f) << kind;
				}
			}
}

TEST(MapBoxes, HaveTheSizesThatTheScreenIsLaidOutFor)
{
	static const struct {
		const char* name;
		int width, height;
	} s_sizes[]                             = {{"mapmodebox.png", 178, 112},
	                                           {"mappercentage7.png", 11, 16},
	                                           {"maplegendboxA.png", 132, 114},
	                                           {"maplegendboxC.png", 132, 202},
	                                           {"maplegendtextA.png", 108, 66},
	                                           {"mapshelf.png", 800, 76},
	                                           {"mapoverviewboxlockedmain.png", 200, 104},
	                                           {"mapoverviewlabelsouth.png", 178, 52},
	                                           {"mapoverviewlock.png", 40, 44},
	                                           {"mapbuttonplaybase.png", 132, 50},
	                                           {"mapbuttonzoomshadow.png", 104, 40},
	                                           {"maparrowB2rollover.png", 70, 60}};
	std::map<std::string, Picture> pictures = Drawn(AddMapBoxes, "map/");
	pictures.merge(Drawn(AddMapButtons, "map/"));
	for (const auto& size : s_sizes) {
		ASSERT_TRUE(pictures.count(size.name)) << size.name;
		EXPECT_EQ(pictures[size.name].width, size.width) << size.name;
		EXPECT_EQ(pictures[size.name].height, size.height) << size.name;
	}
}

TEST(MapGlows, HaveTheSizesOfTheirClickAreas)
{
	std::map<std::string, Picture> pictures = Drawn(AddMapIslands, "map/mapoverviewglow");
	ASSERT_EQ(pictures.size(), 3u);
	EXPECT_EQ(pictures["mapoverviewglowwest.png"].width, 370);
	EXPECT_EQ(pictures["mapoverviewgloweast.png"].width, 384);
	EXPECT_EQ(pictures["mapoverviewglowsouth.png"].height, 172);
}
