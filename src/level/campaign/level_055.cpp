// Level 55: two wells of stone.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/sheep.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/fence_shapes.h"
#include "screens/game.h"

static const int BIG = 0, MEDIUM = 1;

// Nine stones: a back of five, a lid and a floor, and two lips that leave 96 pixels. The mouth
// lies toward side: 1 to the right of x, -1 to the left.
static void Well(int x, int side)
{
	static const int BACK_Y[] = {192, 218, 245, 272, 299};
	static const int INWARD[] = {14, 4, 0, 4, 14};
	new CRock(x + side * 12, 166, BIG, 1, false);
	for (int i = 0; i < 5; i++)
		new CRock(x - side * (63 - INWARD[i]), BACK_Y[i], MEDIUM, i, false);
	new CRock(x + side * 67, 186, MEDIUM, 2, false);
	new CRock(x + side * 12, 322, BIG, 2, false);
	new CRock(x + side * 67, 297, MEDIUM, 5, false);
}

// A heap of crates and three barrels beside the way to the wells: side as above, outward.
static void Heap(int side, PowerupKind prize)
{
	const auto at = [side](int out) { return 346 + side * out; };
	Stack({CoinCrate(at(96), 394), PrizeCrate(at(97), 394, prize, 1)});
	Stack({AppleCrate(at(140), 398), CoinCrate(at(140), 398, 1), AppleCrate(at(141), 398, 2)});
	AppleCrate(at(74), 424);
	Stack({AppleCrate(at(118), 428), AppleCrate(at(119), 428, 1)});
	Barrel(at(196), 402);
	Barrel(at(228), 408);
	Barrel(at(212), 424);
}

// Level 55, "Between the stones" (tight spot, on the map 40). Late morning.
// Picture: two wells of nine stones each under the wall, a sheep in each, their mouths turned to
//          each other; heaps of apples low in the middle.
// Asks:    stage 11 to take a sheep, 96 pixels to get in: hold the ball over the mouth with the
//          fans.
// Grows:   19 fruit, then the sheep (11).
void BuildLevel055(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isTightSpot = true;
	game->rules.unlimitedFans                          = true;
	game->SetLevelTimer(60, true);

	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 1180;
	look.fenceVariant = 1;
	look.hills        = true;
	look.hillsX       = 540;
	look.hillsHeight  = 20;
	look.sky          = SKY_BLUE;
	look.sunX         = 330;
	look.sunY         = -10;
	Background(look)->ScatterDecor(1);

	new CSheep(208, 250, RIGHT);
	new CSheep(492, 250, LEFT);
	new CButterfly(346, 300, LEFT);
	new CButterfly(50, 300, RIGHT);
	new CButterfly(650, 420, LEFT);

	// Oaks and pines outside the stones.
	new CTree(24, 176, TREE_ORANGE, 2, 0);
	new CTree(84, 164, TREE_PINE, 3, 1);
	new CTree(4, 300, TREE_ORANGE, 1, 0);
	new CTree(10, 420, TREE_PINE, 2, 0);
	new CTree(318, 160, TREE_PINE, 0, 0);
	new CTree(350, 166, TREE_PINE, 3, 1);
	new CTree(382, 160, TREE_PINE, 0, 1);
	new CTree(616, 164, TREE_PINE, 3, 0);
	new CTree(672, 176, TREE_ORANGE, 2, 1);
	new CTree(684, 330, TREE_ORANGE, 1, 1);

	// Before the field.
	new CTree(-30, 648, TREE_ORANGE, 2, 1);
	new CTree(40, 662, TREE_PINE, 2, 0);
	new CTree(92, 668, TREE_PINE, 3, 1);
	new CTree(134, 674, TREE_PINE, 4, 0);
	new CTree(572, 674, TREE_PINE, 4, 1);
	new CTree(614, 668, TREE_PINE, 3, 0);
	new CTree(660, 660, TREE_PINE, 2, 1);
	new CTree(716, 650, TREE_ORANGE, 2, 0);

	Well(203, 1);
	Well(497, -1);

	Heap(-1, POWERUP_SLOW);
	PrizeCrate(184, 432, POWERUP_GROW);
	Heap(1, POWERUP_FANS);
	CoinCrate(508, 432);

	// Something to begin with, on the straight way.
	PrizeCrate(346, 376, POWERUP_GROW);
}
