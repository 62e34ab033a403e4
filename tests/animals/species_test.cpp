// The tables of all species, and every species on a field.
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/obstacle_grid.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"

#include <cmath>
#include <set>

class SpeciesTest : public AnimalTest
{
protected:
	// An animal cannot be made before the container has all its pictures.
	static bool HasPictures(const SpeciesEntry& entry)
	{
		for (const std::string& file : AllPictureFiles(*entry.table)) {
			if (!g_display->HasImage(file))
				return false;
		}
		return true;
	}
};

static bool Walks(const SpeciesTable& table)
{
	for (const ActionRow& row : table.actions) {
		if (row.weight > 0 &&
		    (row.kind == ACTION_WALK || row.kind == ACTION_WALK_BOTH || row.kind == ACTION_FLUTTER))
			return true;
	}
	return table.actions.empty() && &table != &EAGLE_TABLE; // a machine of its own does, or flies
}

TEST(SpeciesTables, PictureNamesFollowTheRules)
{
	auto files = [](const char* prefix, const char* word, bool left, const char* frames) {
		std::string joined;
		for (const std::string& file : PictureFiles(prefix, word, left, frames))
			joined += (joined.empty() ? "" : " ") + file;
		return joined;
	};
	EXPECT_EQ("bearlookleft0.png bearlookleft1.png", files("bear", "look", true, "0-1"));
	EXPECT_EQ("bearlookright2.png bearlookright1.png", files("bear", "look", false, "2-1"));
	EXPECT_EQ("bearstandleft.png", files("bear", "stand", true, "."));
	EXPECT_EQ("bearstandleft.png", files("bear", "stand", true, ""));
	EXPECT_EQ("bearstandleftblink.png", files("bear", "standblink", true, "."));
	EXPECT_EQ("sheepstandrighteyeswide.png", files("sheep", "standeyeswide", false, "."));
	EXPECT_EQ("seallookleftsmile.png", files("seal", "looksmile", true, "."));
	EXPECT_EQ("sealsmileleft0.png", files("seal", "smile", true, "0"));
	EXPECT_EQ("sealsmileleftblink.png", files("seal", "smileblink", true, "."));
	EXPECT_EQ("bearrearupleft8.png bearrearupleft8.png bearrearupleftblink.png",
	          files("bear", "rearup", true, "8*2 blink"));
	EXPECT_EQ("monkey_climbright2.png monkey_climbcommon0.png monkey_climbcommon1.png",
	          files("monkey", "_climb", false, "2 =_climbcommon0-1"));
	EXPECT_EQ("chipmunkrunleftup0.png chipmunkrunleftup1.png",
	          files("chipmunk", "run", true, "up0-1"));
	EXPECT_EQ("duckblink.png", files("duck", "look", true, "=blink"));
	EXPECT_EQ("walkdown", DownWord("walkup"));
	EXPECT_EQ("down", DownWord("up"));
	EXPECT_EQ("", DownWord("look"));
}

// A mistyped follow-up would freeze the animal in its last picture.
TEST(SpeciesTables, EveryTableCloses)
{
	for (const SpeciesEntry& entry : AllSpecies()) {
		const SpeciesTable& table = *entry.table;
		SCOPED_TRACE(table.prefix);
		std::set<std::string> keys;
		for (const ActionRow& row : table.actions) {
			EXPECT_TRUE(keys.insert(KeyOf(row)).second) << KeyOf(row) << " stands twice";
			EXPECT_GE(3u, FollowUps(row).size()) << row.name;
			for (const std::string& key : FollowUps(row))
				EXPECT_NE(nullptr, FindRow(table, key)) << row.name << " > " << key;
		}
		if (!table.actions.empty()) {
			EXPECT_EQ(ACTION_IDLE, table.actions[0].kind);
			EXPECT_TRUE(table.pictures.empty() || table.pictures[0].name != nullptr);
		}
		EXPECT_FALSE(AllPictureFiles(table).empty());
	}
}

// Wider gaps would let the ball through.
TEST(SpeciesTables, EveryOutlineIsClosed)
{
	for (const SpeciesEntry& entry : AllSpecies()) {
		SCOPED_TRACE(entry.table->prefix);
		for (std::span<const BodyPoint> outline : {entry.table->body, entry.table->bodyRight}) {
			for (size_t i = 0; i < outline.size(); i++) {
				const BodyPoint& next = outline[(i + 1) % outline.size()];
				EXPECT_LE(PointDistance(outline[i].x, outline[i].y, next.x, next.y),
				          int(CElement::JOIN_DISTANCE))
				    << "after point " << i;
			}
		}
		EXPECT_FALSE(entry.table->body.empty());
	}
}

// The duck's table keeps every row: a row that nothing leads to was written in vain.
TEST(SpeciesTables, EveryActionWithoutWeightIsLedToOrHasARole)
{
	for (const SpeciesEntry& entry : AllSpecies()) {
		const SpeciesTable& table = *entry.table;
		SCOPED_TRACE(table.prefix);
		std::set<std::string> reached;
		for (const ActionRow& row : table.actions) {
			for (const std::string& key : FollowUps(row))
				reached.insert(key);
		}
		for (size_t i = 1; i < table.actions.size(); i++) {
			const ActionRow& row = table.actions[i];
			bool assigned        = row.role != ROLE_NONE || row.kind == ACTION_FALL ||
			                row.kind == ACTION_CLIMB || &table == &ALIEN_TABLE; // it hides, laughs
			EXPECT_TRUE(row.weight > 0 || assigned || reached.count(KeyOf(row))) << row.name;
		}
	}
}

TEST_F(SpeciesTest, EverySpeciesIsMadeAtItsPlace)
{
	for (const SpeciesEntry& entry : AllSpecies()) {
		SCOPED_TRACE(entry.table->prefix);
		if (!HasPictures(entry))
			continue;
		CElementAnimal* animal = NewAnimal(entry.species, 300, 250, true);
		ASSERT_NE(nullptr, animal);
		EXPECT_NEAR(300, animal->CentreX(), 0.5);
		EXPECT_NEAR(250, animal->CentreY(), 0.5);
		EXPECT_TRUE(animal->lastFacingLeft);
		EXPECT_GT(animal->bodyRadius, 0);
		EXPECT_GT(animal->weight, 0);
		EXPECT_TRUE(animal->shotProof);
		EXPECT_EQ(entry.table->body.size(), animal->bodyPoints.size());
		EXPECT_FALSE(animal->currentSprite->IsHidden());
		if (!animal->optional) {
			EXPECT_EQ(entry.species, animal->species);
			EXPECT_STREQ(SpeciesPrefix(entry.species), entry.table->prefix);
		}
		ClearField();
	}
	EXPECT_EQ(nullptr, NewAnimal(-1, 300, 250, true));
}

// Three thousand frames among obstacles: nobody leaves the field, enters a thing or stops living.
TEST_F(SpeciesTest, EverySpeciesLivesInASmallField)
{
	for (const SpeciesEntry& entry : AllSpecies()) {
		SCOPED_TRACE(entry.table->prefix);
		if (!HasPictures(entry))
			continue;
		WallIn(60);
		std::vector<ObstaclePoint*> posts;
		CElement* scenery = new CTestScenery;
		for (int i = 0; i < 16; i++)
			posts.push_back(
			    AddObstaclePoint(scenery, 80.0f + 170 * (i % 4), 130.0f + 100 * (i / 4)));
		CElementAnimal* animal = NewAnimal(entry.species, 165, 180, false);
		CElementAnimal* other  = NewAnimal(entry.species, 335, 280, true);
		float r                = static_cast<float>(animal->bodyRadius);
		std::set<CSprite*> shown;
		float farthest = 0;
		for (int i = 0; i < 3000 && !HasFailure(); i++) {
			Run();
			shown.insert(animal->currentSprite);
			float cx = animal->CentreX(), cy = animal->CentreY();
			farthest = std::max(farthest, std::fabs(cx - 165));
			ASSERT_TRUE(cx > r && cx < 693 - r && cy > 60 && cy < 480 - r) << "frame " << i;
			for (const ObstaclePoint* post : posts)
				ASSERT_GT(PointDistance(post->x, post->y, cx, cy), r - 0.01f) << "frame " << i;
			ASSERT_GT(PointDistance(other->CentreX(), other->CentreY(), cx, cy), r);
			ASSERT_FALSE(animal->currentSprite->IsHidden()) << "frame " << i;
		}
		EXPECT_GT(shown.size(), 3u);
		if (Walks(*entry.table))
			EXPECT_GT(farthest, 10) << "it walks about";
		else
			EXPECT_EQ(0, farthest) << "it stays where it is";
		ClearField();
	}
}

// What a table names has to be in the container; sizes of one word are alike on both sides.
TEST_F(SpeciesTest, EveryPictureLoads)
{
	for (const SpeciesEntry& entry : AllSpecies()) {
		for (const std::string& file : AllPictureFiles(*entry.table)) {
			ASSERT_TRUE(g_display->HasImage(file)) << file;
			int image = g_display->LoadImage(file);
			EXPECT_GT(g_display->ImageWidth(image), 0) << file;
			g_display->ReleaseImage(image);
		}
	}
}
