// Level 11: a wood by night.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/dog.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/frog.h"
#include "animals/monkey.h"
#include "animals/perching_birds.h"
#include "animals/plain_species.h"
#include "animals/tree_species.h"
#include "animals/two_voiced.h"
#include "field/drum.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 11, "Woods by night" (regular). First snowflakes.
// Picture: a wood on both sides leaves a clearing; in it a ring with a drum like a stove, a rail
//          that leads there from the right, the animals round it.
// Asks:    shake the trees, leave the drum alone.
// Grows:   3 fruit, ducklings (3), frogs, squirrels, birds, duck, dogs, monkeys (9), bot, cows
// (18).
void BuildLevel011(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_SNOWY_GRASS;
	look.groundX      = 1710;
	look.fenceVariant = 1;
	look.sky          = SKY_NIGHT;
	look.sunX         = 400;
	look.sunY         = -320;
	look.snow         = true;
	Background(look)->ScatterDecor(0);

	new CCow(172, 316, RIGHT);
	new CCow(560, 420, LEFT);
	new CFrog(230, 240, RIGHT);
	new CFrog(500, 262, LEFT);
	new CFrog(250, 420, RIGHT);
	new CDog(300, 210, RIGHT);
	new CDog(470, 350, LEFT);
	new CBot(560, 250, LEFT);
	CDuck* duck = new CDuck(200, 390, RIGHT);
	new CDuckling(182, 388, duck);
	new CDuckling(168, 386, duck);
	new CDuckling(154, 384, duck);

	new CButterfly(300, 380, RIGHT);
	new CButterfly(420, 220, LEFT);
	new CButterfly(120, 240, RIGHT);
	new CButterfly(600, 330, LEFT);

	// The wood on the left, then on the right; the oaks stand at the clearing.
	new CTree(30, 175, TREE_PINE, 2, 0);
	new CTree(95, 170, TREE_PINE, 3, 1);
	new CTree(45, 260, TREE_PINE, 3, 0);
	CTree* leftOak = new CTree(160, 180, TREE_ORANGE, 1, 0);
	new CTree(20, 350, TREE_PINE, 2, 1);
	new CTree(600, 170, TREE_PINE, 3, 0);
	new CTree(660, 180, TREE_PINE, 2, 1);
	CTree* rightPine = new CTree(645, 270, TREE_PINE, 3, 0);
	CTree* leftPine  = new CTree(70, 440, TREE_PINE, 3, 1);
	CTree* rightOak  = new CTree(480, 178, TREE_ORANGE, 1, 1);
	new CMonkey(leftOak, RIGHT);
	new CSquirrel(rightPine, LEFT);
	new CSquirrel(leftPine, RIGHT);
	new CSquirrel(rightOak, LEFT);
	new CMonkey(480, 420, LEFT);

	// Before the field.
	new CTree(-20, 646, TREE_PINE, 2, 0);
	new CTree(26, 660, TREE_PINE, 2, 1);
	new CTree(80, 664, TREE_PINE, 3, 0);
	new CTree(126, 674, TREE_PINE, 4, 1);
	new CTree(596, 672, TREE_PINE, 3, 1);
	new CTree(646, 660, TREE_PINE, 2, 0);
	new CTree(694, 646, TREE_PINE, 2, 1);

	new CRock(120, 285, 2, 0, false);
	new CRock(566, 372, 2, 1, false);

	// The stove's ring, and the rail that leads to it.
	FenceSections ring = Ring(346, 300, 2, 2);
	FenceSections rail = Pattern(464, 280, 5, {FALLING_RAILS, LEVEL_RAILS});

	// Firewood.
	CCrate* pile = AppleCrate(346, 190);
	CCrate* top  = Stack({pile, PrizeCrate(347, 190, POWERUP_MONEY, 1), Crate(346, 190, 2)});
	Crate(302, 178);
	CoinCrate(390, 178);
	CCrate* logs  = Crate(130, 430);
	CCrate* perch = Stack({logs, CoinCrate(131, 430, 1)});
	Crate(104, 316);
	CCrate* store = Crate(620, 440);
	Stack({store, PrizeCrate(619, 440, POWERUP_TRIPLE, 1)});
	AppleCrate(606, 300);
	Crate(396, 404);
	CCrate* stump = CoinCrate(352, 408);
	Stack({stump, Crate(353, 408, 1)});
	Crate(664, 404);
	PrizeCrate(200, 200, POWERUP_FAST);

	// Barrels between the trees.
	Barrel(110, 215);
	Barrel(142, 219);
	Barrel(550, 195);
	Barrel(582, 205);
	Barrel(320, 404);
	Barrel(436, 398);
	Barrel(256, 338);
	Barrel(436, 252);

	new CDrum(346, 305, LEFT);

	new CCrow(ring[1], LEFT);
	new CCrow(top, RIGHT);
	new CBlueBird(rail[2], LEFT);
	new CBlueBird(perch, RIGHT);
}
