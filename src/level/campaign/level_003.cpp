// Level 3: two paddocks.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/monkey.h"
#include "animals/plain_species.h"
#include "animals/two_voiced.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 3, "Cats and cowpens" (regular). Midday.
// Picture: two equal paddocks with a cow in each, cats in the lane between, ducks behind.
// Asks:    break one rail only and the cow comes to the gap; the lane is the ball's way back.
// Grows:   3 fruit, ducklings (3), cats, duck and monkeys (10), cows (16).
void BuildLevel003(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 420;
	look.fenceVariant = 1;
	look.hills        = true;
	look.hillsX       = 300;
	look.hillsHeight  = 20;
	look.sky          = SKY_BLUE;
	look.sunX         = 120;
	look.sunY         = -20;
	Background(look)->ScatterDecor(2);

	new CCow(175, 300, RIGHT);
	new CCow(517, 300, LEFT);
	new CCat(346, 290, LEFT);
	new CCat(330, 350, RIGHT);
	new CCat(366, 420, LEFT);
	CDuck* duck = new CDuck(438, 200, LEFT);
	new CDuckling(456, 198, duck);
	new CDuckling(470, 196, duck);
	new CDuckling(484, 194, duck);
	new CDuckling(498, 192, duck);

	new CButterfly(240, 200, RIGHT);
	new CButterfly(600, 240, LEFT);
	new CButterfly(90, 420, RIGHT);
	new CButterfly(470, 420, LEFT);

	// Pairs along the wall and at the sides.
	CTree* home = new CTree(110, 185, TREE_GREEN, 2, 0);
	new CMonkey(home, RIGHT);
	new CTree(190, 172, TREE_ORANGE, 1, 1);
	new CTree(560, 180, TREE_ORANGE, 2, 1);
	new CTree(640, 172, TREE_GREEN, 1, 2);
	new CTree(-48, 410, TREE_RED, 2, 0);
	new CTree(26, 448, TREE_ORANGE, 1, 0);
	new CTree(742, 410, TREE_RED, 2, 1);
	new CTree(666, 448, TREE_GREEN, 1, 0);
	new CMonkey(210, 420, RIGHT);

	// Before the field.
	new CTree(-36, 650, TREE_ORANGE, 2, 0);
	new CTree(52, 664, TREE_PINE, 2, 1);
	new CTree(104, 668, TREE_PINE, 3, 0);
	new CTree(150, 672, TREE_PINE, 4, 1);
	new CTree(566, 672, TREE_PINE, 3, 1);
	new CTree(622, 664, TREE_PINE, 2, 0);
	new CTree(712, 654, TREE_ORANGE, 2, 1);

	Ring(175, 300, 3, 2);
	Ring(517, 300, 3, 2);

	// The store at the head of the lane.
	CCrate* store = CoinCrate(324, 185);
	Stack({store, PrizeCrate(326, 185, POWERUP_MONEY, 1), Crate(324, 185, 2)});
	CCrate* beside = CoinCrate(368, 187);
	Stack({beside, AppleCrate(368, 187, 1)});
	Crate(346, 205);
	Crate(302, 203);
	Crate(390, 205);

	// Feed at the paddocks' outer corners.
	CCrate* leftFeed = AppleCrate(40, 240);
	Stack({leftFeed, Crate(42, 240, 1)});
	Crate(84, 236);
	CCrate* rightFeed = CoinCrate(650, 240);
	Stack({rightFeed, PrizeCrate(648, 240, POWERUP_DOUBLE, 1)});
	Crate(606, 238);

	// Barrels at the foot of the lane, and one prize to reach for.
	Barrel(258, 395);
	Barrel(290, 402);
	Barrel(402, 402);
	Barrel(434, 395);
	PrizeBarrel(346, 220, POWERUP_GROW);
	Barrel(120, 400);
	Barrel(152, 404);
	Barrel(580, 404);
}
