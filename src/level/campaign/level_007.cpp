// Level 7: a pond of frogs.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/frog.h"
#include "animals/horse.h"
#include "animals/perching_birds.h"
#include "animals/plain_species.h"
#include "animals/sheep.h"
#include "animals/two_voiced.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 7, "Frog pond" (regular). Late afternoon.
// Picture: a wide ring is the pond, five frogs and the ducks within; a jetty from the right; neat
//          stores in the four corners.
// Asks:    the frogs empty the pond by themselves once two rails are gone: choose which two.
// Grows:   3 fruit, ducklings (3), frogs, bluebirds and duck (9), the rest (17).
void BuildLevel007(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 1050;
	look.fenceVariant = 0;
	look.sky          = SKY_PURPLE;
	look.sunX         = 130;
	look.sunY         = 5;
	Background(look)->ScatterDecor(5);

	new CFrog(262, 285, RIGHT);
	new CFrog(320, 330, LEFT);
	new CFrog(400, 280, LEFT);
	new CFrog(446, 310, LEFT);
	new CFrog(346, 262, RIGHT);
	CDuck* duck = new CDuck(300, 300, LEFT);
	new CDuckling(318, 298, duck);
	new CDuckling(332, 296, duck);
	new CDuckling(346, 294, duck);
	new CSheep(80, 320, RIGHT);
	new CSheep(140, 372, RIGHT);
	new CCow(560, 372, LEFT);
	new CHorse(282, 196, RIGHT);
	new CHorse(456, 428, LEFT);
	new CBot(420, 202, LEFT);

	new CButterfly(240, 420, RIGHT);
	new CButterfly(600, 330, LEFT);

	// Green oaks, and small pines for reeds.
	new CTree(60, 178, TREE_GREEN, 2, 0);
	new CTree(640, 185, TREE_GREEN, 2, 1);
	new CTree(316, 162, TREE_PINE, 4, 0);
	new CTree(376, 162, TREE_PINE, 4, 1);

	// Before the field.
	new CTree(-30, 652, TREE_GREEN, 2, 1);
	new CTree(64, 668, TREE_GREEN, 1, 0);
	new CTree(628, 668, TREE_GREEN, 1, 1);
	new CTree(706, 652, TREE_GREEN, 2, 2);

	new CRock(148, 296, 2, 0, false);

	// The pond, and the jetty.
	Ring(346, 295, 3, 3);
	FenceSections jetty = Line(482, 240, 4);

	// Upper left and right: stairs up to the pond.
	CCrate* perchLeft =
	    Stack({Crate(194, 190), PrizeCrate(194, 190, POWERUP_MONEY, 1), Crate(195, 190, 2)});
	Stack({Crate(150, 192), CoinCrate(150, 192, 1)});
	Crate(106, 196);
	CCrate* perchRight =
	    Stack({Crate(498, 190), PrizeCrate(499, 190, POWERUP_TRIPLE, 1), Crate(498, 190, 2)});
	Stack({Crate(542, 192), CoinCrate(542, 192, 1)});
	Crate(586, 196);

	// Lower left and right.
	Stack({Crate(44, 425), PrizeCrate(45, 425, POWERUP_TRIPLE, 1), Crate(44, 425, 2)});
	Stack({Crate(88, 429), AppleCrate(88, 429, 1)});
	CoinCrate(132, 433);
	Stack({Crate(650, 425), PrizeCrate(649, 425, POWERUP_GROW, 1), Crate(650, 425, 2)});
	Stack({Crate(606, 429), AppleCrate(606, 429, 1)});
	CoinCrate(562, 433);

	// Where the jetty meets the land, and on the left bank.
	CCrate* landing = CoinCrate(656, 304);
	Stack({landing, Crate(655, 304, 1)});
	Crate(92, 256);

	// Barrels: posts round the pond, a bench below it, and a prize on the way to it.
	Barrel(200, 248);
	Barrel(232, 228);
	Barrel(200, 322);
	Barrel(232, 342);
	Barrel(492, 322);
	Barrel(460, 342);
	Barrel(314, 396);
	Barrel(346, 400);
	Barrel(378, 396);
	Barrel(24, 248);
	Barrel(56, 244);
	Barrel(618, 302);
	Barrel(586, 298);
	PrizeBarrel(346, 196, POWERUP_FANS);

	new CBlueBird(jetty[0], LEFT);
	new CBlueBird(jetty[1], RIGHT);
	new CBlueBird(jetty[2], LEFT);
	new CBlueBird(perchLeft, RIGHT);
	new CBlueBird(perchRight, LEFT);
}
