// Level 1: the first meadow.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/monkey.h"
#include "animals/sheep.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/parts.h"

// Level 1, "First meadow" (regular). A lone monkey waits in a ring of fourteen sections, the duck
// family walks below the heap under the wall. The ducklings are the first catch; the ring teaches
// that rails break.
void BuildLevel001(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 888;
	look.fenceVariant = 1;
	look.hillsX       = 457;
	look.rainbow      = true;
	look.sky          = SKY_LIGHT_BLUE;
	look.sunX         = 375;
	look.sunY         = -40;
	Background(look)->ScatterDecor(2);

	new CMonkey(244, 187, RIGHT);
	new CMonkey(541, 273, LEFT);
	new CMonkey(120, 403, RIGHT);
	new CSheep(575, 213, RIGHT);
	new CSheep(314, 227, LEFT);
	new CSheep(191, 317, RIGHT);
	new CSheep(458, 326, LEFT);

	CDuck* duck = new CDuck(404, 252, RIGHT);
	new CDuckling(384, 247, duck);
	new CDuckling(370, 249, duck);
	new CDuckling(356, 252, duck);

	new CButterfly(382, 193, LEFT);
	new CButterfly(140, 237, RIGHT);
	new CButterfly(245, 314, LEFT);
	new CButterfly(77, 385, RIGHT);
	new CButterfly(549, 396, LEFT);

	// Trees of the meadow, then those that stand in front of it.
	new CTree(213, 160, TREE_RED, 2, 1);
	new CTree(600, 188, TREE_ORANGE, 2, 0);
	new CTree(-64, 351, TREE_ORANGE, 2, 0);
	new CTree(488, 217, TREE_GREEN, 3, 2);
	new CTree(75, 196, TREE_ORANGE, 1, 0);
	new CTree(607, 381, TREE_RED, 1, 1);
	new CTree(-40, 693, TREE_RED, 2, 0);
	new CTree(160, 740, TREE_GREEN, 2, 0);
	new CTree(607, 672, TREE_RED, 1, 0);
	new CTree(725, 691, TREE_ORANGE, 2, 0);
	new CTree(71, 681, TREE_PINE, 3, 1);
	new CTree(538, 645, TREE_PINE, 4, 1);

	new CRock(31, 181, 1, 4, false);
	new CRock(677, 355, 1, 5, false);

	FenceRing(166, 345,
	          {{FENCE_RIGHT, LEVEL_RAILS},
	           {FENCE_RIGHT, FALLING_RAILS},
	           {FENCE_RIGHT, FALLING_RAILS},
	           {FENCE_LEFT, RISING_RAILS},
	           {FENCE_LEFT, LEVEL_RAILS},
	           {FENCE_LEFT, RISING_RAILS},
	           {FENCE_LEFT, LEVEL_RAILS},
	           {FENCE_LEFT, LEVEL_RAILS},
	           {FENCE_LEFT, FALLING_RAILS},
	           {FENCE_LEFT, FALLING_RAILS},
	           {FENCE_RIGHT, RISING_RAILS},
	           {FENCE_RIGHT, LEVEL_RAILS},
	           {FENCE_RIGHT, RISING_RAILS},
	           {FENCE_RIGHT, LEVEL_RAILS}});

	// The heap under the wall: a tower of three.
	CCrate* towerFoot   = Crate(370, 157);
	CCrate* towerMiddle = PrizeCrate(367, 158, POWERUP_FAST, 1);
	CCrate* towerTop    = PrizeCrate(370, 157, POWERUP_MONEY, 2);
	StackCrate(towerFoot, towerMiddle);
	StackCrate(towerMiddle, towerTop);
	Crate(406, 163);

	// Left of it, below the orange tree.
	CCrate* coins  = CoinCrate(145, 201);
	CCrate* apples = AppleCrate(142, 203, 1);
	StackCrate(coins, apples);
	Crate(182, 205);
	Crate(83, 227);
	PrizeCrate(41, 223, POWERUP_GRAVITY);

	// The right side.
	Crate(657, 208);
	AppleCrate(520, 230);

	// The tower at the left edge.
	CCrate* edgeFoot   = Crate(23, 385);
	CCrate* edgeMiddle = PrizeCrate(16, 384, POWERUP_BARRIER, 1);
	CCrate* edgeTop    = AppleCrate(28, 384, 2);
	StackCrate(edgeFoot, edgeMiddle);
	StackCrate(edgeMiddle, edgeTop);

	// The lower meadow.
	Crate(287, 389);
	CoinCrate(478, 396);
	PrizeCrate(575, 368, POWERUP_MONEY);

	// Barrels: under the wall, by the trees, and before the ring.
	CCrate* barrelFoot = Barrel(326, 152);
	CCrate* barrelTop  = PrizeBarrel(326, 152, POWERUP_TRIPLE, 1);
	StackCrate(barrelFoot, barrelTop);
	Barrel(167, 161);
	Barrel(114, 207);
	Barrel(296, 153);
	CoinBarrel(340, 163);
	CoinBarrel(626, 191);
	Barrel(266, 358);
	PrizeBarrel(250, 372, POWERUP_MONEY);
	PrizeBarrel(303, 366, POWERUP_WIDE);
	Barrel(382, 350);
	CoinBarrel(628, 386);
}
