// Level 23: the first saucer.
#include "level/levels.h"

#include "animals/monkey.h"
#include "animals/perching_birds.h"
#include "animals/plain_species.h"
#include "animals/sheep.h"
#include "animals/tree_species.h"
#include "animals/two_voiced.h"
#include "animals/ufo.h"
#include "field/drum.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 23, "First saucer" (alien, on the map 18). Magenta evening.
// Picture: a wide ring, open toward the player, is the landing place; crates and barrels lie
//          thrown outward in rays; the cattle huddle in the upper corners.
// Asks:    grow to stage 10 on the flock, then beat at the hull; the rails take its shots.
// Grows:   6 fruit, squirrels, bluebirds and crows (6), monkeys, sheep, bot and alien (13),
//          cows (18).
void BuildLevel023(CControllerGame*)
{
	BackgroundLook look;
	look.ground        = GROUND_GRASS;
	look.groundX       = 1420;
	look.fenceVariant  = 1;
	look.horizonOffset = -20;
	look.sky           = SKY_MAGENTA;
	look.sunX          = 130;
	look.sunY          = 0;
	Background(look)->ScatterDecor(2);

	new CCow(52, 236, RIGHT);
	new CCow(640, 240, LEFT);
	new CSheep(112, 218, RIGHT);
	new CSheep(584, 206, LEFT);
	new CSheep(140, 396, RIGHT);
	new CBot(560, 392, LEFT);

	// Oaks blown to the sides; the sky between them is free.
	CTree* farLeft   = new CTree(34, 166, TREE_ORANGE, 2, 0);
	CTree* nearLeft  = new CTree(112, 152, TREE_RED, 1, 1);
	CTree* nearRight = new CTree(580, 152, TREE_RED, 1, 0);
	CTree* farRight  = new CTree(652, 166, TREE_ORANGE, 2, 1);
	new CTree(-10, 360, TREE_RED, 1, 0);
	new CTree(-44, 446, TREE_ORANGE, 2, 1);
	new CTree(692, 380, TREE_RED, 1, 1);
	new CTree(176, 150, TREE_PINE, 4, 0);
	new CTree(516, 150, TREE_PINE, 4, 1);
	new CMonkey(farLeft, RIGHT);
	new CSquirrel(nearLeft, RIGHT);
	new CSquirrel(nearRight, LEFT);
	new CMonkey(farRight, LEFT);
	new CMonkey(250, 420, RIGHT);

	// Low pines before the field.
	new CTree(6, 664, TREE_PINE, 3, 0);
	new CTree(50, 670, TREE_PINE, 0, 1);
	new CTree(94, 674, TREE_PINE, 4, 0);
	new CTree(600, 674, TREE_PINE, 4, 1);
	new CTree(642, 670, TREE_PINE, 0, 0);
	new CTree(684, 664, TREE_PINE, 3, 1);

	// The landing ring, with its gate in the lower side.
	FenceSections ring = Shoe(346, 270, 4, 4, 13, 1);

	// Thrown to the left: one ray level, one slanting down.
	Stack({CoinCrate(84, 290), PrizeCrate(85, 290, POWERUP_MONEY, 1)});
	Crate(40, 296);
	AppleCrate(150, 342);
	CCrate* leftPerch = Stack({Crate(110, 366), CoinCrate(111, 366, 1)});
	Crate(66, 390);
	Barrel(178, 318);
	Barrel(36, 412);

	// Thrown to the right.
	Stack({CoinCrate(606, 290), PrizeCrate(605, 290, POWERUP_QUADRUPLE, 1)});
	Crate(650, 296);
	AppleCrate(542, 342);
	Stack({Crate(582, 344), PrizeCrate(581, 344, POWERUP_GROW, 1)});
	Crate(626, 352);
	Barrel(514, 326);
	Barrel(610, 434);

	// Thrown toward the player, left and right of the gate.
	Stack({CoinCrate(230, 380), PrizeCrate(231, 380, POWERUP_FAST, 1)});
	Barrel(206, 404);
	Barrel(182, 428);
	Barrel(440, 374);
	Barrel(466, 394);
	Stack({Crate(492, 424), PrizeCrate(493, 424, POWERUP_MONEY, 1)});

	// Against the wall.
	Barrel(300, 150);
	Barrel(392, 150);

	new CDrum(664, 408, LEFT);

	new CBlueBird(ring[3], RIGHT);
	new CBlueBird(ring[6], LEFT);
	new CCrow(ring[12], RIGHT);
	new CCrow(leftPerch, RIGHT);

	new CUFO(346, 240, false);
}
