// Level 9: two dogs asleep.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/chicken.h"
#include "animals/dog.h"
#include "animals/frog.h"
#include "animals/horse.h"
#include "animals/perching_birds.h"
#include "animals/plain_species.h"
#include "animals/sheep.h"
#include "animals/turtle.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 9, "Sleepers at sunset" (regular).
// Picture: a horseshoe, open upward, round two dogs; behind them a broad pyramid of crates rises to
//          a heap of coins; turtles cross the foreground.
// Asks:    dogs wake when touched and run: take them last, while the horseshoe is whole.
// Grows:   4 fruit, frogs (4), turtles, birds, cat, hens, dogs, sheep (11), horse (18).
void BuildLevel009(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 1320;
	look.fenceVariant = 1;
	look.sky          = SKY_SUNSET;
	look.sunX         = 560;
	look.sunY         = 20;
	Background(look)->ScatterDecor(1);

	new CDog(320, 345, RIGHT);
	new CDog(375, 360, LEFT);
	new CTurtle(60, 430, RIGHT);
	new CTurtle(120, 440, RIGHT);
	new CTurtle(180, 432, RIGHT);
	new CFrog(560, 330, LEFT);
	new CFrog(610, 390, LEFT);
	new CFrog(520, 430, LEFT);
	new CSheep(110, 260, RIGHT);
	new CSheep(150, 340, RIGHT);
	new CHorse(590, 230, LEFT);
	new CCat(80, 370, RIGHT);
	new CChicken(526, 236, LEFT);
	new CChicken(210, 300, RIGHT);

	new CButterfly(250, 230, RIGHT);
	new CButterfly(640, 300, LEFT);

	// Oaks aglow on both sides of the pyramid.
	new CTree(40, 185, TREE_ORANGE, 2, 0);
	new CTree(130, 172, TREE_RED, 1, 1);
	new CTree(600, 172, TREE_RED, 1, 0);
	new CTree(660, 190, TREE_ORANGE, 2, 1);
	new CTree(-20, 330, TREE_RED, 1, 0);
	new CTree(684, 356, TREE_ORANGE, 1, 1);

	// Dark pines frame the low sun.
	new CTree(-14, 648, TREE_PINE, 2, 0);
	new CTree(36, 660, TREE_PINE, 2, 1);
	new CTree(88, 668, TREE_PINE, 3, 0);
	new CTree(138, 674, TREE_PINE, 4, 1);
	new CTree(590, 674, TREE_PINE, 4, 0);
	new CTree(634, 664, TREE_PINE, 3, 1);
	new CTree(686, 650, TREE_PINE, 2, 0);

	// Four level sections are the upper side: three of them are the mouth.
	FenceSections shoe = Shoe(346, 352, 4, 2, 0, 3);

	// The pyramid: rows of seven, six and five, the middle ones higher.
	for (int i = 0; i < 7; i++) {
		const int x  = 346 + (i - 3) * 44;
		CCrate* foot = i % 3 == 0 ? CoinCrate(x, 226) : Crate(x, 226);
		if (i >= 1 && i <= 5)
			StackCrate(foot, Crate(x, 226, 1));
	}
	for (int i = 0; i < 6; i++) {
		const int x  = 346 + i * 44 - 110;
		CCrate* foot = i == 1 || i == 4 ? AppleCrate(x, 202) : Crate(x, 202);
		if (i == 1 || i == 4)
			StackCrate(foot, Crate(x, 202, 1));
		if (i == 2)
			StackCrate(foot, PrizeCrate(x, 202, POWERUP_MONEY, 1));
		if (i == 3)
			StackCrate(foot, PrizeCrate(x, 202, POWERUP_TRIPLE, 1));
	}
	CCrate* summit = nullptr;
	for (int i = 0; i < 5; i++) {
		const int x  = 346 + (i - 2) * 44;
		CCrate* foot = i % 2 == 0 ? CoinCrate(x, 178) : Crate(x, 178);
		if (i == 2)
			summit = Stack({foot, PrizeCrate(x, 178, POWERUP_FAST, 1), Crate(x + 1, 178, 2)});
		if (i == 1)
			StackCrate(foot, PrizeCrate(x, 178, POWERUP_GRAVITY, 1));
		if (i == 3)
			StackCrate(foot, PrizeCrate(x, 178, POWERUP_SLOW, 1));
	}

	// The heap of gold at its foot.
	for (int i = 0; i < 10; i++)
		Coin(static_cast<float>(312 + i % 5 * 17), static_cast<float>(256 + i / 5 * 14));

	// A palisade of barrels on each side, one row to look over.
	for (int i = 0; i < 5; i++) {
		Barrel(40 + i * 32, 290 + i % 2 * 6);
		Barrel(492 + i * 32, 280 + i % 2 * 6);
	}
	Barrel(252, 396);
	Barrel(284, 398);
	Barrel(408, 398);
	Barrel(440, 396);
	PrizeBarrel(640, 440, POWERUP_STICKY);
	Barrel(600, 440);
	Barrel(30, 400);
	Barrel(660, 405);

	// Crates that have rolled down.
	Crate(250, 260);
	Crate(442, 262);
	Crate(560, 380);

	new CBlueBird(shoe[3], RIGHT);
	new CBlueBird(shoe[6], LEFT);
	new CBlueBird(summit, LEFT);
}
