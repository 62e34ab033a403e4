// Level 10: a farm at dusk.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/horse.h"
#include "animals/perching_birds.h"
#include "animals/turtle.h"
#include "animals/two_voiced.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 10, "Paddocks at dusk" (regular).
// Picture: a farm's plan: three paddocks in a triangle round the yard, the sty at the lower left;
//          turtles have the yard.
// Asks:    break the rails in a sweep, and the bluebirds fly over an empty field.
// Grows:   5 fruit, turtles (5), bluebirds (11), pigs, horse and cow (15).
void BuildLevel010(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 1500;
	look.fenceVariant = 0;
	look.sky          = SKY_DUSK;
	look.sunX         = 300;
	look.sunY         = -320;
	Background(look)->ScatterDecor(2);

	new CPig(150, 385, RIGHT);
	new CPig(200, 380, RIGHT);
	new CPig(245, 390, LEFT);
	new CHorse(190, 240, RIGHT);
	new CCow(510, 240, LEFT);
	new CTurtle(346, 270, LEFT);
	new CTurtle(390, 310, LEFT);
	new CTurtle(330, 330, RIGHT);
	new CTurtle(360, 400, RIGHT);

	new CButterfly(100, 250, RIGHT);
	new CButterfly(346, 210, LEFT);
	new CButterfly(620, 300, LEFT);
	new CButterfly(500, 420, LEFT);
	new CButterfly(300, 440, RIGHT);
	new CButterfly(60, 330, RIGHT);

	// Dark crowns against the sky.
	new CTree(40, 178, TREE_GREEN, 2, 0);
	new CTree(330, 168, TREE_GREEN, 1, 1);
	new CTree(400, 165, TREE_GREEN, 0, 0);
	new CTree(655, 180, TREE_GREEN, 2, 1);
	new CTree(688, 350, TREE_GREEN, 1, 0);

	// Before the field.
	new CTree(-22, 648, TREE_GREEN, 2, 2);
	new CTree(76, 668, TREE_PINE, 3, 0);
	new CTree(576, 672, TREE_PINE, 4, 1);
	new CTree(622, 668, TREE_PINE, 3, 0);
	new CTree(700, 648, TREE_GREEN, 2, 0);

	// Three paddocks, twelve sections each, and the sty with its mouth to the yard.
	FenceSections left  = Ring(190, 240, 2, 2);
	FenceSections right = Ring(510, 240, 2, 2);
	FenceSections front = Ring(520, 390, 2, 2);
	Shoe(195, 385, 3, 2, 3, 1);

	// Stores between the paddocks.
	CCrate* hay = Crate(346, 190);
	Stack({hay, PrizeCrate(347, 190, POWERUP_MONEY, 1), Crate(346, 190, 2)});
	CCrate* beside = CoinCrate(302, 194);
	Stack({beside, Crate(303, 194, 1)});
	Crate(390, 194);
	CCrate* bale = Crate(40, 300);
	Stack({bale, Crate(42, 300, 1)});
	Crate(60, 440);
	CCrate* load = CoinCrate(656, 262);
	Stack({load, PrizeCrate(655, 262, POWERUP_TRIPLE, 1)});
	AppleCrate(646, 434);
	CoinCrate(384, 436);
	AppleCrate(346, 300);

	// What stands inside the front paddock.
	Crate(500, 400);
	PrizeCrate(544, 400, POWERUP_SHRINK);

	// Barrels in the yard.
	Barrel(320, 240);
	Barrel(352, 236);
	Barrel(384, 240);
	Barrel(330, 370);
	Barrel(362, 366);
	Barrel(50, 240);
	Barrel(656, 366);
	Barrel(38, 352);

	new CBlueBird(left[0], RIGHT);
	new CBlueBird(left[5], RIGHT);
	new CBlueBird(right[1], LEFT);
	new CBlueBird(right[9], LEFT);
	new CBlueBird(front[0], LEFT);
}
