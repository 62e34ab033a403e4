// Level 67: an orchard to rattle in.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "field/tree.h"
#include "level/fence_shapes.h"
#include "screens/game.h"

static const int APPLES_IN_CRATE = 5;

struct NestTree {
	int x, y; // from the nest's middle
	int kind, size, variant;
};

// Five trees about 60 apart, and apples in the middle.
static void Nest(int x, int y, int applesX, std::initializer_list<NestTree> trees)
{
	for (const NestTree& tree : trees)
		new CTree(x + tree.x, y + tree.y, tree.kind, tree.size, tree.variant);
	Stack({FruitCrate(applesX, y, POINT_APPLE, APPLES_IN_CRATE),
	       FruitCrate(applesX + 1, y, POINT_APPLE, APPLES_IN_CRATE, 1)});
}

// Level 67, "Pinball orchard" (pinball, on the map 52). Noon after the rain.
// Picture: three nests of five trees, slanting rows of pines low at the sides, one great oak at
//          the top.
// Asks:    get the ball into a nest and it rattles: nests are worth more than rows.
// Grows:   by fruit alone: six crates of five apples, twenty-three trees, the rain.
void BuildLevel067(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isHarvest = true;
	game->SetLevelTimer(70, true);

	BackgroundLook look;
	look.ground       = GROUND_SNOWY_GRASS;
	look.groundX      = 760;
	look.fenceVariant = 0;
	look.hills        = true;
	look.hillsX       = 260;
	look.hillsHeight  = 20;
	look.rainbow      = true;
	look.sky          = SKY_DEEP_BLUE;
	look.sunX         = 560;
	look.sunY         = -20;
	Background(look)->ScatterDecor(5);

	new CButterfly(346, 240, LEFT);
	new CButterfly(60, 350, RIGHT);
	new CButterfly(640, 340, LEFT);
	new CButterfly(240, 430, RIGHT);
	new CButterfly(450, 440, LEFT);

	new CTree(346, 170, TREE_RED, 2, 1);

	Nest(170, 246, 178,
	     {{-34, -50, TREE_ORANGE, 1, 0},
	      {34, -50, TREE_ORANGE, 1, 1},
	      {-56, 8, TREE_PINE, 3, 0},
	      {56, 8, TREE_PINE, 3, 1},
	      {-24, 50, TREE_PINE, 4, 0}});
	Nest(522, 246, 514,
	     {{-34, -50, TREE_ORANGE, 1, 1},
	      {34, -50, TREE_ORANGE, 1, 0},
	      {-56, 8, TREE_PINE, 3, 1},
	      {56, 8, TREE_PINE, 3, 0},
	      {24, 50, TREE_PINE, 4, 1}});
	Nest(346, 340, 354,
	     {{-34, -50, TREE_RED, 1, 0},
	      {34, -50, TREE_RED, 1, 1},
	      {-56, 8, TREE_PINE, 0, 0},
	      {56, 8, TREE_PINE, 0, 1},
	      {-24, 50, TREE_PINE, 4, 0}});

	// The slings: they throw inward what comes down at the sides; behind them a lane leads back.
	new CTree(72, 356, TREE_PINE, 2, 0);
	new CTree(94, 382, TREE_PINE, 3, 1);
	new CTree(116, 408, TREE_PINE, 0, 0);
	new CTree(138, 434, TREE_PINE, 4, 1);
	new CTree(614, 370, TREE_PINE, 2, 1);
	new CTree(590, 398, TREE_PINE, 3, 0);
	new CTree(566, 426, TREE_PINE, 0, 1);

	// Before the field.
	new CTree(-14, 642, TREE_PINE, 2, 0);
	new CTree(32, 658, TREE_PINE, 2, 1);
	new CTree(82, 668, TREE_PINE, 3, 0);
	new CTree(126, 674, TREE_PINE, 4, 1);
	new CTree(572, 674, TREE_PINE, 4, 0);
	new CTree(612, 668, TREE_PINE, 3, 1);
	new CTree(658, 658, TREE_PINE, 2, 0);
	new CTree(700, 642, TREE_PINE, 2, 1);

	// Prizes under the wall, a barrel on each side of the oak.
	PrizeCrate(60, 196, POWERUP_RAIN);
	PrizeCrate(632, 196, POWERUP_STICKY);
	PrizeBarrel(286, 176, POWERUP_GRAVITY);
	PrizeBarrel(408, 176, POWERUP_GRAVITY);
}
