// Level 5: the first birds.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/chicken.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/monkey.h"
#include "animals/perching_birds.h"
#include "animals/plain_species.h"
#include "animals/two_voiced.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 5, "Bluebird rails" (regular). Early afternoon.
// Picture: a long rail under the wall with four bluebirds on it, a hen run at the lower left, one
//          tower on the right where the fifth bird sits.
// Asks:    hit the perch, wait for the landing, catch on the ground.
// Grows:   3 fruit, ducklings (3), birds, duck, hens and monkeys (9), bot and cows (18).
void BuildLevel005(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 610;
	look.fenceVariant = 0;
	look.sky          = SKY_DEEP_BLUE;
	look.sunX         = 600;
	look.sunY         = 0;
	Background(look)->ScatterDecor(2);

	new CChicken(180, 338, RIGHT);
	new CChicken(222, 350, LEFT);
	new CChicken(262, 336, LEFT);
	new CCow(506, 332, LEFT);
	new CCow(600, 340, LEFT);
	new CBot(340, 250, RIGHT);
	CDuck* duck = new CDuck(440, 396, RIGHT);
	new CDuckling(422, 394, duck);
	new CDuckling(408, 392, duck);
	new CDuckling(394, 390, duck);

	new CButterfly(250, 250, LEFT);
	new CButterfly(80, 400, RIGHT);

	// Orange oaks at both ends of the rail.
	CTree* farLeft = new CTree(60, 180, TREE_ORANGE, 2, 0);
	CTree* left    = new CTree(20, 300, TREE_ORANGE, 1, 1);
	CTree* right   = new CTree(660, 200, TREE_ORANGE, 2, 1);
	new CMonkey(farLeft, RIGHT);
	new CMonkey(left, RIGHT);
	new CMonkey(right, LEFT);
	new CTree(120, 168, TREE_ORANGE, 1, 1);
	new CTree(676, 352, TREE_ORANGE, 1, 0);
	new CTree(-40, 440, TREE_ORANGE, 2, 1);
	new CTree(380, 164, TREE_ORANGE, 0, 0);
	new CMonkey(90, 250, RIGHT);
	new CMonkey(500, 420, LEFT);

	// Before the field.
	new CTree(-34, 656, TREE_GREEN, 2, 0);
	new CTree(52, 668, TREE_PINE, 2, 0);
	new CTree(112, 672, TREE_PINE, 4, 1);
	new CTree(592, 672, TREE_PINE, 4, 0);
	new CTree(636, 668, TREE_PINE, 3, 1);
	new CTree(706, 656, TREE_GREEN, 2, 1);

	// The hen run, and the singing rail.
	Ring(220, 345, 3, 2);
	FenceSections rail = Line(150, 180, 9);

	// The tower.
	CCrate* tower = CoinCrate(560, 240);
	CCrate* top   = Stack({tower, PrizeCrate(562, 240, POWERUP_MONEY, 1), Crate(560, 240, 2)});

	// What belongs to the tower: a store beside it, two crates before it.
	CCrate* pile = Crate(604, 246);
	Stack({pile, CoinCrate(606, 246, 1), Crate(604, 246, 2)});
	Crate(538, 264);
	Crate(582, 270);

	// Feed round the hen run.
	CCrate* bale = AppleCrate(394, 312);
	Stack({bale, Crate(396, 312, 1)});
	Crate(438, 318);
	AppleCrate(50, 318);
	CCrate* straw = Crate(50, 350);
	Stack({straw, Crate(51, 350, 1)});
	CCrate* last = CoinCrate(650, 400);
	Stack({last, PrizeCrate(648, 400, POWERUP_DOUBLE, 1)});
	Crate(606, 404);

	// Barrels: two rows at the run's lower rail, two by the tower, some to reach for.
	Barrel(130, 412);
	Barrel(162, 416);
	Barrel(194, 418);
	Barrel(260, 418);
	Barrel(292, 416);
	Barrel(500, 260);
	Barrel(468, 264);
	PrizeBarrel(420, 232, POWERUP_GROW);
	Barrel(560, 404);

	new CBlueBird(rail[1], RIGHT);
	new CBlueBird(rail[3], RIGHT);
	new CBlueBird(rail[4], LEFT);
	new CBlueBird(rail[7], LEFT);
	new CBlueBird(top, LEFT);
}
