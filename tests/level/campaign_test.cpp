// The levels of the campaign: what stands in each, and that it stands well.
#include "level/level_catalogue.h"

#include "animals/animal.h"
#include "animals/stampede.h"
#include "animals/ufo.h"
#include "field/background.h"
#include "field/crate.h"
#include "field/drum.h"
#include "field/element_point.h"
#include "field/fence.h"
#include "field/fence_post.h"
#include "field/rock.h"
#include "field/tree.h"
#include "frame/controller.h"
#include "level/level_kinds.h"
#include "screens/game.h"
#include "state/game_data.h"
#include "support/field_test.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace
{
struct LevelRow {
	int number, seconds;
	int crates, fences, trees, frontTrees, rocks, drums, coins;
	int fruitCrates, coinCrates, barrels, prizes;
	const char* animals;
};
} // namespace

static const int FIELD_WIDTH = 693, FRONT_TREES_FROM = 600, LOWEST_ANIMAL = 480;
static const int CRATES_FROM_X = 24, CRATES_TO_X = 670, CRATES_TO_Y = 450;
static const int WALL_FOOT   = 157; // y from which footprints are laid, with the usual horizon
static const int TIMER_RIGHT = 110, TIMER_BOTTOM = 50; // pixels, at the upper left

// clang-format off
static const LevelRow s_rows[] = {
	// number, seconds, crates, fences, trees, of which in front, rocks, drums, coins;
	// crates with fruit, with coins, barrels, prizes; animals by class
	{ 1,   0,  29, 14, 12,  6,  2, 0,  0,   3,  5, 12,  8, "Butterfly 5, Duck 1, Duckling 3, Monkey 3, Sheep 4" },
	{ 2,   0,  19,  6, 15,  6,  0, 0,  0,   2,  2,  6,  3, "Bot 1, Butterfly 4, Cow 1, Duck 1, Duckling 3, Sheep 3" },
	{ 3,   0,  22, 28, 15,  7,  0, 0,  0,   2,  3,  8,  3, "Butterfly 4, Cat 3, Cow 2, Duck 1, Duckling 4, Monkey 2" },
	{ 4,  60,  95,  0,  7,  4,  2, 0,  0,   2, 12, 70,  4, "" },
	{ 5,   0,  26, 23, 13,  6,  0, 0,  0,   2,  3,  9,  3, "BlueBird 5, Bot 1, Butterfly 2, Chicken 3, Cow 2, Duck 1, Duckling 3, Monkey 5" },
	{ 6,   0,  27,  9, 13,  6,  4, 0,  0,   3,  3,  9,  3, "BlueBird 2, Chicken 2, Horse 1, Sheep 3" },
	{ 7,   0,  41, 22,  8,  4,  1, 0,  0,   2,  5, 14,  5, "BlueBird 5, Bot 1, Butterfly 2, Cow 1, Duck 1, Duckling 3, Frog 5, Horse 2, Sheep 2" },
	{ 8,   0,   8,  0,  9,  0,  1, 0,  0,   0,  0,  8,  2, "ElementStampede 32" },
	{ 9,   0,  52, 13, 13,  7,  0, 0, 10,   2,  6, 18,  6, "BlueBird 3, Butterfly 2, Cat 1, Chicken 2, Dog 2, Frog 3, Horse 1, Sheep 2, Turtle 3" },
	{ 10,  0,  24, 49, 10,  5,  0, 0,  0,   2,  3,  8,  3, "BlueBird 5, Butterfly 6, Cow 1, Horse 1, Pig 3, Turtle 4" },
	{ 11,  0,  24, 17, 17,  7,  2, 1,  0,   2,  3,  8,  3, "BlueBird 2, Bot 1, Butterfly 4, Cow 2, Crow 2, Dog 2, Duck 1, Duckling 3, Frog 3, Monkey 2, Squirrel 3" },
	{ 12, 75, 178,  0, 25, 10,  0, 0,  0,   2, 12, 60, 10, "" },
	{ 15, 60,  22, 24,  8,  4,  2, 0, 20,   4, 10,  8,  4, "Butterfly 2" },
	{ 21, 60,  10,  0, 10,  4,  6, 0, 37,   0,  2,  4,  2, "BlueBird 3, Butterfly 2, Crow 3" },
	{ 23,  0,  28, 23, 15,  6,  0, 1,  0,   2,  4, 10,  5, "BlueBird 2, Bot 1, Cow 2, Crow 2, Monkey 3, Sheep 3, Squirrel 2, UFO 1" },
	{ 26,  0,  21, 30,  9,  4,  2, 0,  0,   3,  4, 14,  6, "Butterfly 3" },
	{ 43, 75,  41,  0, 19,  5,  0, 0,  0,  37,  0,  0,  4, "Butterfly 6" },
	{ 55, 60,  25,  0, 18,  8, 18, 0,  0,  10,  5,  6,  4, "Butterfly 3, Sheep 2" },
	{ 67, 70,  10,  0, 31,  8,  0, 0,  0,   6,  0,  2,  4, "Butterfly 5" },
	{ 73,  0,  10, 14, 15,  5,  0, 1, 20,   0,  3,  4,  3, "Bighorn 1, Chicken 5, Cow 1, Goose 2, PolarBear 1" },
};
// clang-format on

// Each level in turn, built by the level runner as a player would find it.
class CampaignTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		g_gameData->SetInstructionsSeen();
		g_gameData->SetHintPagesOn(false);
	}
	void TearDown() override
	{
		Leave();
		FieldTest::TearDown();
	}
	void Enter(int number)
	{
		Leave();
		game = std::make_unique<CControllerGame>(number);
		game->Activate(nullptr, true);
		ASSERT_EQ(number, game->levelNumber);
	}
	void Leave()
	{
		game.reset();
		g_currentController = nullptr;
	}

	std::unique_ptr<CControllerGame> game;
};

static std::string AnimalsText()
{
	std::map<std::string, int> counts;
	for (const CElementAnimal* animal : CElementAnimal::AnimalList)
		counts[animal->ClassName() + 1]++;
	if (!CElementStampede::StampedeList.empty())
		counts["ElementStampede"] = static_cast<int>(CElementStampede::StampedeList.size());
	std::string text;
	for (const auto& [name, count] : counts)
		text += (text.empty() ? "" : ", ") + name + " " + std::to_string(count);
	return text;
}

static void ExpectCrates(const LevelRow& row)
{
	int fruit = 0, coins = 0, barrels = 0, prizes = 0;
	for (const CCrate* crate : CCrate::CrateList) {
		barrels += crate->barrel;
		prizes += crate->containsPowerup;
		coins += !crate->containsPowerup && crate->contents == POINT_COIN;
		fruit += !crate->containsPowerup && crate->contents >= POINT_APPLE &&
		         crate->contents <= POINT_PINECONE;
	}
	EXPECT_EQ(row.crates, static_cast<int>(CCrate::CrateList.size()));
	EXPECT_EQ(row.fruitCrates, fruit);
	EXPECT_EQ(row.coinCrates, coins);
	EXPECT_EQ(row.barrels, barrels);
	EXPECT_EQ(row.prizes, prizes);
}

TEST_F(CampaignTest, EachLevelHoldsWhatItsRowCounts)
{
	const LevelRow* row = s_rows;
	for (int number = FIRST_LEVEL; number <= LAST_LEVEL; number++) {
		if (!HasLevel(number))
			continue;
		SCOPED_TRACE("level " + std::to_string(number));
		ASSERT_TRUE(row != std::end(s_rows) && row->number == number) << "it needs a row";
		Enter(number);
		const auto front =
		    std::count_if(CTree::TreeList.begin(), CTree::TreeList.end(),
		                  [](CTree* tree) { return tree->baseY >= FRONT_TREES_FROM; });
		const auto coins =
		    std::count_if(CElementPoint::PointList.begin(), CElementPoint::PointList.end(),
		                  [](CElementPoint* point) { return point->kind == POINT_COIN; });
		ExpectCrates(*row);
		EXPECT_EQ(row->seconds * FRAMES_A_SECOND, game->TimeLeft());
		EXPECT_EQ(row->fences, static_cast<int>(CFence::FenceList.size()));
		EXPECT_EQ(row->trees, static_cast<int>(CTree::TreeList.size()));
		EXPECT_EQ(row->frontTrees, front);
		EXPECT_EQ(row->rocks, static_cast<int>(CRock::RockList.size()));
		EXPECT_EQ(row->drums, static_cast<int>(CDrum::DrumList.size()));
		EXPECT_EQ(row->coins, coins);
		EXPECT_EQ(row->animals, AnimalsText());
		row++;
	}
	EXPECT_EQ(std::end(s_rows), row) << "a row without a level";
}

TEST_F(CampaignTest, FlagsFitTheKindOfTheLevel)
{
	for (const LevelRow& row : s_rows) {
		SCOPED_TRACE("level " + std::to_string(row.number));
		Enter(row.number);
		const LevelKind kind    = KindOfLevel(row.number);
		const LevelRules& rules = game->rules;
		EXPECT_EQ(IsBonusKind(kind), rules.isBonusLevel);
		EXPECT_EQ(kind == KIND_ALIEN, !CUFO::UfoList.empty());
		EXPECT_EQ(kind == KIND_DEMOLITION, rules.isDemolition);
		EXPECT_EQ(kind == KIND_STAMPEDE, rules.isStampede);
		EXPECT_EQ(kind == KIND_SPEEDBALL, rules.isSpeedball);
		EXPECT_EQ(kind == KIND_COIN, rules.isCoin);
		EXPECT_EQ(kind == KIND_DODGEBALL, rules.isDodgeball);
		EXPECT_EQ(kind == KIND_DODGEBALL, rules.dodgeLimit > 0 && rules.dodgeVariant > 0);
		EXPECT_EQ(kind == KIND_ORDER, rules.isOrder);
		EXPECT_EQ(kind == KIND_ORDER, rules.orderCount > 0 && rules.orderNext == 1);
		EXPECT_EQ(kind == KIND_HARVEST || kind == KIND_PINBALL, rules.isHarvest);
		EXPECT_EQ(kind == KIND_TIGHT_SPOT, rules.isTightSpot);
		EXPECT_EQ(kind == KIND_EGG, rules.isEgg);
	}
}

static long PlaceInList(const CElement* element)
{
	return std::find(CElement::ElementList.begin(), CElement::ElementList.end(), element) -
	       CElement::ElementList.begin();
}

TEST_F(CampaignTest, PerchesAndTreesStandBeforeTheirGuests)
{
	for (const LevelRow& row : s_rows) {
		SCOPED_TRACE("level " + std::to_string(row.number));
		Enter(row.number);
		std::vector<const CElementAnimal*> guests;
		for (const CCrate* crate : CCrate::CrateList)
			if (crate->occupant) {
				EXPECT_LT(PlaceInList(crate), PlaceInList(crate->occupant));
				EXPECT_EQ(nullptr, crate->upper) << "a bird sits on the top";
				guests.push_back(crate->occupant);
			}
		for (const CFence* fence : CFence::FenceList)
			if (fence->occupant) {
				EXPECT_LT(PlaceInList(fence), PlaceInList(fence->occupant));
				guests.push_back(fence->occupant);
			}
		for (const CTree* tree : CTree::TreeList)
			if (tree->climber) {
				EXPECT_LT(PlaceInList(tree), PlaceInList(tree->climber));
			}
		for (const CElementAnimal* animal : CElementAnimal::AnimalList)
			EXPECT_EQ(animal->perched, std::count(guests.begin(), guests.end(), animal) == 1)
			    << animal->ClassName();
	}
}

TEST_F(CampaignTest, EveryFenceSectionHangsBetweenTwoPosts)
{
	for (const LevelRow& row : s_rows) {
		SCOPED_TRACE("level " + std::to_string(row.number));
		Enter(row.number);
		for (const CFence* fence : CFence::FenceList) {
			ASSERT_NE(nullptr, fence->leftPost);
			ASSERT_NE(nullptr, fence->rightPost);
			EXPECT_LT(fence->leftPost->x, fence->rightPost->x);
			const int width = static_cast<int>(fence->rightPost->x - fence->leftPost->x);
			EXPECT_EQ(fence->style == 0 ? 51 : 33, width);
		}
	}
}

static float MiddleX(const CCrate* crate)
{
	return crate->x + (crate->barrel ? 17 : 26);
}

TEST_F(CampaignTest, NothingFloatsAndNoCrateStandsInAnother)
{
	for (const LevelRow& row : s_rows) {
		SCOPED_TRACE("level " + std::to_string(row.number));
		Enter(row.number);
		std::map<const CCrate*, const CCrate*> carriers;
		for (const CCrate* crate : CCrate::CrateList)
			if (crate->upper)
				carriers[crate->upper] = crate;
		for (const CCrate* crate : CCrate::CrateList) {
			if (crate->layer > 0) {
				ASSERT_TRUE(carriers.count(crate)) << crate->x << ", " << crate->y;
				EXPECT_EQ(carriers[crate]->layer + 1, crate->layer);
				EXPECT_NEAR(MiddleX(carriers[crate]), MiddleX(crate), 13);
				continue;
			}
			for (const CCrate* other : CCrate::CrateList)
				EXPECT_TRUE(other == crate || other->layer > 0 ||
				            std::hypot(other->x - crate->x, other->y - crate->y) > 14)
				    << crate->x << ", " << crate->y;
		}
	}
}

// Levels whose places were laid down before the rules for new ones.
static bool IsLaidDown(int number)
{
	return number == 1 || number == 8 || number == 26;
}

TEST_F(CampaignTest, CratesKeepToTheFieldAndOffTheTimer)
{
	for (const LevelRow& row : s_rows) {
		if (IsLaidDown(row.number))
			continue;
		SCOPED_TRACE("level " + std::to_string(row.number));
		Enter(row.number);
		const int foot = WALL_FOOT + game->background->look.horizonOffset + 10;
		for (const CCrate* crate : CCrate::CrateList) {
			const float left = MiddleX(crate);
			const float y    = crate->y + (crate->barrel ? 29 : 13);
			EXPECT_GE(left, CRATES_FROM_X);
			EXPECT_LE(left, CRATES_TO_X);
			EXPECT_GE(y, foot) << left;
			EXPECT_LE(y, CRATES_TO_Y);
			const bool underTimer = left < TIMER_RIGHT && crate->y - crate->z < TIMER_BOTTOM;
			EXPECT_FALSE(row.seconds && underTimer) << left;
		}
	}
}

// The nearest point of what stands still.
static float RoomRound(const CElementAnimal* animal)
{
	float nearest = FIELD_WIDTH;
	for (const ObstaclePoint* point : CElement::ObstaclePointList)
		if (!point->owner->isAnimal)
			nearest = std::min(
			    nearest, std::hypot(point->x - animal->CentreX(), point->y - animal->CentreY()));
	return nearest;
}

TEST_F(CampaignTest, AnimalsStartInsideTheWallsAndFreeToMove)
{
	for (const LevelRow& row : s_rows) {
		SCOPED_TRACE("level " + std::to_string(row.number));
		Enter(row.number);
		for (const CElementAnimal* animal : CElementAnimal::AnimalList) {
			if (animal->perched || animal->inTree || animal->optional)
				continue;
			const float radius = static_cast<float>(animal->bodyRadius);
			EXPECT_GT(RoomRound(animal), radius)
			    << animal->ClassName() << " at " << animal->CentreX() << ", " << animal->CentreY();
			if (dynamic_cast<const CElementStampede*>(animal))
				continue;
			EXPECT_GT(animal->CentreX(), radius);
			EXPECT_LT(animal->CentreX(), FIELD_WIDTH - radius);
			EXPECT_LT(animal->CentreY(), LOWEST_ANIMAL - radius) << animal->ClassName();
		}
	}
}

TEST_F(CampaignTest, EachLevelOpensForPlayAndKeepsItsAnimals)
{
	for (const LevelRow& row : s_rows) {
		SCOPED_TRACE("level " + std::to_string(row.number));
		Enter(row.number);
		const int waiting = CElementAnimal::CountToRescue();
		bool playOpened   = false;
		for (int frame = 0; frame < 300; frame++) {
			ControllerChainTick();
			if (g_currentController != game.get())
				g_currentController->SetResult(RESULT_RETURN); // the card of a bonus level
			playOpened |= std::string(game->StateName()) == "play";
		}
		EXPECT_TRUE(playOpened);
		EXPECT_FALSE(game->levelOver);
		if (!game->rules.isStampede) {
			EXPECT_EQ(waiting, CElementAnimal::CountToRescue());
		}
		for (const CElementAnimal* animal : CElementAnimal::AnimalList)
			if (!animal->optional && !dynamic_cast<const CElementStampede*>(animal)) {
				EXPECT_GT(animal->CentreX(), 0) << animal->ClassName();
				EXPECT_LT(animal->CentreX(), FIELD_WIDTH) << animal->ClassName();
			}
	}
}
