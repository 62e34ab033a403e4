// What holds for every species, whatever its table says: it lives, is caught, bumped and pulled.
#include "animals/animal_test_support.h"

#include "field/ball.h"
#include "field/obstacle_grid.h"
#include "frame/random.h"
#include "media/archive.h"
#include "media/display.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "field/sidebar.h"

#include <cmath>
#include <set>

static const int LIFE         = 5000;  // frames
static const int LONGEST_LIFE = 40000; // until every action must have come up
static const int BUMP_EVERY   = 400;
static const float WALL_TOP   = 60;
static const int POST_COLUMNS = 4, POST_ROWS = 4;
static const float POST_LEFT = 80, POST_TOP = 130, POST_GAP_X = 170, POST_GAP_Y = 100;
static const int HOME_X = 335, HOME_Y = 280; // between the posts

// One test for each species, under the name of its pictures.
class EverySpecies : public AnimalTest, public testing::WithParamInterface<const SpeciesEntry*>
{
protected:
	void SetUp() override
	{
		AnimalTest::SetUp();
		SeedRandom(GetParam()->species * 7 + 1);
		for (const std::string& file : AllPictureFiles(*GetParam()->table))
			ASSERT_TRUE(g_display->HasImage(file)) << file; // without it none could be made
	}
	CElementAnimal* Make(int x = HOME_X, int y = HOME_Y, bool left = true)
	{
		CElementAnimal* animal = GetParam()->make(x, y, left);
		table                  = animal->table; // a butterfly takes its colour by chance
		return animal;
	}
	void SetPosts()
	{
		WallIn(WALL_TOP);
		CElement* scenery = new CTestScenery;
		for (int i = 0; i < POST_COLUMNS * POST_ROWS; i++)
			posts.push_back(AddObstaclePoint(scenery, POST_LEFT + POST_GAP_X * (i % POST_COLUMNS),
			                                 POST_TOP + POST_GAP_Y * (i / POST_COLUMNS)));
	}
	// Points all round it that a step of any direction would come too close to.
	void FenceIn(const CElementAnimal* animal)
	{
		static const int COUNT = 24;
		CElement* scenery      = new CTestScenery;
		float r                = static_cast<float>(animal->bodyRadius) + 0.15f;
		for (int i = 0; i < COUNT; i++) {
			float angle = 6.2831853f * static_cast<float>(i) / COUNT;
			AddObstaclePoint(scenery, animal->CentreX() + r * std::cos(angle),
			                 animal->CentreY() + r * std::sin(angle));
		}
	}
	void ExpectInField(const CElementAnimal* animal) const
	{
		float r  = static_cast<float>(animal->bodyRadius);
		float cx = animal->CentreX(), cy = animal->CentreY();
		ASSERT_TRUE(std::isfinite(cx) && std::isfinite(cy) && std::isfinite(animal->z));
		ASSERT_TRUE(cx > r && cx < 693 - r && cy > WALL_TOP && cy < CElementAnimal::LOWEST_Y - r)
		    << cx << ", " << cy;
		for (const ObstaclePoint* post : posts)
			ASSERT_GT(PointDistance(post->x, post->y, cx, cy), r - 0.01f) << "through an obstacle";
		ASSERT_FALSE(animal->currentSprite->IsHidden());
	}
	std::set<std::string> WeightedRows() const
	{
		std::set<std::string> names;
		for (const ActionRow& row : table->actions)
			if (row.weight > 0)
				names.insert(row.name);
		return names;
	}

	const SpeciesTable* table = nullptr;
	std::vector<ObstaclePoint*> posts;
};

TEST_P(EverySpecies, LivesAmongObstaclesAndComesToAllItsActions)
{
	SetPosts();
	CElementAnimal* animal        = Make();
	std::set<std::string> waiting = WeightedRows();
	std::set<CSprite*> shown;
	for (int i = 0; i < LONGEST_LIFE && (i < LIFE || !waiting.empty()); i++) {
		Run();
		if (i % BUMP_EVERY == BUMP_EVERY - 1)
			animal->OnBump(); // some sleep until they are disturbed
		shown.insert(animal->currentSprite);
		if (animal->currentAction)
			waiting.erase(animal->currentAction->name);
		ASSERT_NO_FATAL_FAILURE(ExpectInField(animal)) << "frame " << i;
	}
	EXPECT_TRUE(waiting.empty()) << *waiting.begin() << " is never chosen";
	EXPECT_GT(shown.size(), 3u);
}

// The outline moves with its owner, whatever it does.
TEST_P(EverySpecies, CarriesItsOutlineAlong)
{
	SetPosts();
	CElementAnimal* animal = Make();
	for (int i = 0; i < 1000; i++) {
		Run();
		for (size_t k = 0; k < animal->bodyPoints.size(); k++) {
			ASSERT_FLOAT_EQ(animal->x + animal->bodyOffsetX[k], animal->bodyPoints[k]->x) << i;
			ASSERT_FLOAT_EQ(animal->y + animal->bodyOffsetY[k], animal->bodyPoints[k]->y) << i;
		}
		ASSERT_EQ(animal->bodyPoints.empty(), animal->z > 0 || animal->flying) << "frame " << i;
	}
}

TEST_P(EverySpecies, StaysIdleWhereNoStepIsLeft)
{
	CElementAnimal* animal = Make();
	FenceIn(animal);
	Run(60); // what it began before the fence stood
	for (int i = 0; i < 2000; i++) {
		Run();
		const AnimalAction* action = animal->currentAction;
		bool flutters              = action && action->kind == ACTION_FLUTTER;
		ASSERT_TRUE(!action || !action->IsTwoWay() || flutters) << "a refused walk is idle instead";
		ASSERT_TRUE(!action || action->kind != ACTION_WALK) << "a refused walk is idle instead";
		ASSERT_NEAR(HOME_X, animal->CentreX(), 0.5f) << "frame " << i;
		ASSERT_NEAR(HOME_Y, animal->CentreY(), 0.5f) << "frame " << i;
	}
}

TEST_P(EverySpecies, IsTakenByABallOfItsStage)
{
	MakeBallAndPaddle();
	CElementAnimal* animal = Make();
	if (table == &ALIEN_TABLE)
		GTEST_SKIP() << "it has to be stunned first";
	Run(40);
	SetBallStage(animal->requiredStage);
	ASSERT_EQ(animal->requiredStage, ball->GetStage()) << "no ball reaches it";
	g_play.levelScore = 0;
	int load          = ball->load;
	EXPECT_TRUE(animal->OnBallHit());
	EXPECT_TRUE(animal->dead);
	EXPECT_EQ(nullptr, animal->firstPoint);
	EXPECT_TRUE(animal->currentSprite->IsHidden());
	EXPECT_GT(ball->load, load);
	EXPECT_GT(g_play.levelScore, 0);
	Run(40);
	EXPECT_TRUE(animal->currentSprite->IsHidden());
}

// It shows that it was touched, and after a while goes on with its life.
TEST_P(EverySpecies, IsBumpedByABallOneStageSmaller)
{
	MakeBallAndPaddle();
	CElementAnimal* animal = Make();
	if (animal->requiredStage == 0)
		GTEST_SKIP() << "every ball takes it";
	Run(40);
	SetBallStage(animal->requiredStage - 1);
	const CSprite* before         = animal->currentSprite;
	const AnimalAction* didBefore = animal->currentAction;
	EXPECT_FALSE(animal->OnBallHit());
	Run();
	EXPECT_FALSE(animal->dead);
	EXPECT_EQ(0, g_play.levelScore);
	EXPECT_NE(before, animal->currentSprite);
	if (animal->currentAction) {
		EXPECT_NE(didBefore, animal->currentAction);
		const AnimalAction* reaction = animal->currentAction;
		int frames                   = 0;
		for (; frames < 2000 && animal->currentAction != animal->idleAction; frames++)
			Run();
		EXPECT_LT(frames, 2000) << reaction->name << " never ends";
	}
}

TEST_P(EverySpecies, FollowsThePullOfTheGravityBubble)
{
	MakeBallAndPaddle();
	CElementAnimal* animal = Make();
	SetBallStage(animal->requiredStage);
	ball->SetSkinGravity();
	PutBall(animal->CentreX() + 60, animal->CentreY() + 10, 0, 0);
	float before = animal->x;
	animal->PullTowardBall();
	EXPECT_GT(animal->x, before);
	EXPECT_FLOAT_EQ(animal->x + animal->bodyOffsetX[0], animal->bodyPoints[0]->x);

	PutBall(animal->CentreX() + 101, animal->CentreY(), 0, 0);
	before = animal->x;
	animal->PullTowardBall();
	EXPECT_EQ(before, animal->x) << "too far off";
}

TEST_P(EverySpecies, GetsAnArrowWhenItIsTheLastLeft)
{
	CElementAnimal* animal        = Make();
	CElementAnimal::hintBaseCount = CElementAnimal::CountToRescue();
	CElementAnimal::hintTimer     = 0;
	if (table == &ALIEN_TABLE)
		GTEST_SKIP() << "an arrow points at it only while it is stunned";
	CElementAnimal::RescueHintTick();
	EXPECT_EQ(animal->optional, animal->hintArrow->IsHidden());
	EXPECT_EQ(animal->optional, animal->hintText->IsHidden());
	if (animal->optional)
		return;
	int middle = animal->hintArrow->X() + animal->hintArrow->Width() / 2;
	EXPECT_NEAR(animal->CentreX(), middle, 1.5f);
	EXPECT_LE(animal->hintArrow->Y() + animal->hintArrow->Height(), animal->CentreY());
}

static bool HasSound(const CSound* sound)
{
	static std::set<std::string> s_names;
	ArchiveVisitor visitor;
	visitor.wants = [](const std::string& name) { return !s_names.insert(name).second; };
	if (s_names.empty())
		ForEachArchiveEntry("resource2.dat", visitor);
	return s_names.count(sound->name) > 0;
}

TEST_P(EverySpecies, HasAllItsSounds)
{
	const CElementAnimal* animal = Make();
	if (animal->callSound) {
		EXPECT_TRUE(HasSound(animal->callSound)) << animal->callSound->name;
	}
	for (const AnimalAction* action : animal->actions) {
		for (const CSound* sound : action->sounds)
			EXPECT_TRUE(!sound || HasSound(sound)) << action->name << ": " << sound->name;
		if (action->extraSound) {
			EXPECT_TRUE(HasSound(action->extraSound)) << action->extraSound->name;
		}
	}
}

static bool HasKind(const SpeciesTable& table, int kind)
{
	for (const ActionRow& row : table.actions)
		if (row.kind == kind)
			return true;
	return false;
}

enum Family { MACHINES, CLIMBERS, FLIERS, ROVERS, WALKERS };

static Family FamilyOf(const SpeciesTable& table)
{
	if (table.actions.empty())
		return MACHINES;
	if (HasKind(table, ACTION_CLIMB))
		return CLIMBERS;
	if (HasKind(table, ACTION_FLIGHT) || HasKind(table, ACTION_FLUTTER))
		return FLIERS;
	return HasKind(table, ACTION_WALK_BOTH) ? ROVERS : WALKERS;
}

static std::vector<const SpeciesEntry*> Members(Family family)
{
	std::vector<const SpeciesEntry*> members;
	for (const SpeciesEntry& entry : AllSpecies())
		if (FamilyOf(*entry.table) == family)
			members.push_back(&entry);
	return members;
}

static std::string PrefixOf(const testing::TestParamInfo<const SpeciesEntry*>& info)
{
	return info.param->table->prefix;
}

INSTANTIATE_TEST_SUITE_P(Machines, EverySpecies, testing::ValuesIn(Members(MACHINES)), PrefixOf);
INSTANTIATE_TEST_SUITE_P(Climbers, EverySpecies, testing::ValuesIn(Members(CLIMBERS)), PrefixOf);
INSTANTIATE_TEST_SUITE_P(Fliers, EverySpecies, testing::ValuesIn(Members(FLIERS)), PrefixOf);
INSTANTIATE_TEST_SUITE_P(Rovers, EverySpecies, testing::ValuesIn(Members(ROVERS)), PrefixOf);
INSTANTIATE_TEST_SUITE_P(Walkers, EverySpecies, testing::ValuesIn(Members(WALKERS)), PrefixOf);
