// Turtle and chipmunk, which live by a small machine of their own.
#include "animals/chipmunk.h"
#include "animals/turtle.h"
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <cmath>
#include <set>

typedef AnimalTest TurtleTest;
typedef AnimalTest ChipmunkTest;

TEST_F(TurtleTest, ItStandsAndCreepsAlongOneLine)
{
	WallIn(60);
	CTurtle* turtle = new CTurtle(300, 250, true);
	float y         = turtle->y;
	std::set<int> states;
	std::set<bool> sides;
	for (int i = 0; i < 6000; i++) {
		float before = turtle->x;
		bool walks   = turtle->state == CTurtle::WALK;
		Run();
		float step = std::fabs(turtle->x - before);
		ASSERT_LT(step, 0.41f);
		ASSERT_TRUE(walks || step == 0) << "only a walk moves it";
		ASSERT_EQ(y, turtle->y);
		states.insert(turtle->state);
		sides.insert(turtle->facingLeft);
	}
	EXPECT_EQ((std::set<int>{CTurtle::STAND, CTurtle::WALK}), states);
	EXPECT_EQ(2u, sides.size());
}

TEST_F(TurtleTest, ATooSmallBallSendsItIntoItsShellUntilItDaresToComeOut)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	SetBallStage(4);
	CTurtle* turtle = new CTurtle(300, 250, true);
	EXPECT_FALSE(turtle->OnBallHit());
	ASSERT_EQ(CTurtle::SHELL, turtle->state);
	Run(10);
	int frame = turtle->currentSprite->Frame();
	EXPECT_GT(frame, 0);
	EXPECT_FALSE(turtle->OnBallHit());
	EXPECT_EQ(frame, turtle->currentSprite->Frame()) << "it is in there already";
	int hidden = 10;
	for (; hidden < 1000 && turtle->state == CTurtle::SHELL; hidden++)
		Run();
	EXPECT_TRUE(hidden >= 60 && hidden < 400) << hidden;
	EXPECT_EQ(CTurtle::EMERGE, turtle->state);
	Run(30);
	EXPECT_EQ(CTurtle::STAND, turtle->state);
}

TEST_F(TurtleTest, ItIsTakenInItsShellToo)
{
	MakeBallAndPaddle();
	CTurtle* turtle = new CTurtle(300, 250, true);
	EXPECT_EQ(SPECIES_TURTLE, turtle->OnBump());
	SetBallStage(5);
	EXPECT_TRUE(turtle->OnBallHit());
	EXPECT_TRUE(turtle->dead);
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(SPECIES_TURTLE));
}

// The ball would lose a solid point under it if they were laid anew at each turn.
TEST_F(TurtleTest, NeitherRebuildsItsOutlineWhenItTurns)
{
	CElementAnimal* both[] = {new CTurtle(200, 250, true), new CChipmunk(450, 250, true)};
	for (CElementAnimal* animal : both) {
		std::vector<float> offsets          = animal->bodyOffsetX;
		std::vector<ObstaclePoint*> outline = animal->bodyPoints;
		bool turned                         = false;
		for (int i = 0; i < 4000; i++) {
			Run();
			turned |= !animal->facingLeft;
			ASSERT_EQ(outline, animal->bodyPoints);
			ASSERT_EQ(offsets, animal->bodyOffsetX);
		}
		EXPECT_TRUE(turned);
	}
}

TEST_F(ChipmunkTest, ItRunsBothWaysAtOnceAndNowAndThenLooksAbout)
{
	WallIn(60);
	CChipmunk* chipmunk = new CChipmunk(300, 250, true);
	int runs = 0, looks = 0;
	std::set<std::pair<bool, bool>> ways;
	CChipmunk::State last = chipmunk->state;
	for (int i = 0; i < 12000; i++) {
		float x = chipmunk->x, y = chipmunk->y;
		Run();
		float dx = chipmunk->x - x, dy = chipmunk->y - y;
		if (dx != 0) {
			ASSERT_FLOAT_EQ(chipmunk->facingLeft ? -2 : 2, dx);
			ASSERT_FLOAT_EQ(chipmunk->facingUp ? -1 : 1, dy);
			ways.insert({chipmunk->facingLeft, chipmunk->facingUp});
		}
		if (chipmunk->state != last) {
			runs += chipmunk->state == CChipmunk::RUN;
			looks += chipmunk->state == CChipmunk::LOOK;
			ASSERT_TRUE(chipmunk->state != CChipmunk::LOOK_BACK || last == CChipmunk::LOOK);
		}
		last = chipmunk->state;
	}
	EXPECT_EQ(4u, ways.size());
	EXPECT_GT(looks, 5);
	EXPECT_GT(runs, looks) << "three times in four";
}

TEST_F(ChipmunkTest, ABumpStartsOverOnlyOnceItsFirstTwelvePicturesArePast)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	SetBallStage(4);
	CChipmunk* chipmunk = new CChipmunk(300, 250, true);
	EXPECT_FALSE(chipmunk->OnBallHit());
	ASSERT_EQ(CChipmunk::BUMPED, chipmunk->state);
	while (chipmunk->currentSprite->Frame() < 11)
		Run();
	EXPECT_FALSE(chipmunk->OnBallHit());
	EXPECT_EQ(11, chipmunk->currentSprite->Frame());
	while (chipmunk->currentSprite->Frame() < 12)
		Run();
	EXPECT_FALSE(chipmunk->OnBallHit());
	EXPECT_EQ(0, chipmunk->currentSprite->Frame());
	Run(40);
	EXPECT_NE(CChipmunk::BUMPED, chipmunk->state);

	SetBallStage(5);
	EXPECT_TRUE(chipmunk->OnBallHit());
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(SPECIES_CHIPMUNK));
}
