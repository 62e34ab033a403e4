// Level 2: the first cow.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/plain_species.h"
#include "animals/sheep.h"
#include "animals/two_voiced.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 2, "Bot by the barn" (regular). Late morning.
// Picture: all weight on the left: a barn of crates, its bot, a rail that runs down to the middle;
//          the cow stands alone and large on the right.
// Asks:    the cow waits until the ball has eaten the rest.
// Grows:   3 fruit, ducklings (3), duck (9), sheep and bot (11), cow (16).
void BuildLevel002(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 240;
	look.fenceVariant = 0;
	look.sky          = SKY_BLUE;
	look.sunX         = 560;
	look.sunY         = -20;
	Background(look)->ScatterDecor(1);

	new CCow(500, 230, LEFT);
	new CBot(150, 258, RIGHT);
	new CSheep(600, 330, LEFT);
	new CSheep(420, 395, RIGHT);
	new CSheep(250, 400, RIGHT);
	CDuck* duck = new CDuck(300, 330, RIGHT);
	new CDuckling(280, 326, duck);
	new CDuckling(266, 324, duck);
	new CDuckling(252, 322, duck);

	new CButterfly(380, 190, LEFT);
	new CButterfly(640, 260, LEFT);
	new CButterfly(90, 330, RIGHT);
	new CButterfly(510, 420, LEFT);

	// The wood behind the barn, thinning out to the right.
	new CTree(36, 170, TREE_GREEN, 2, 0);
	new CTree(122, 160, TREE_ORANGE, 2, 1);
	new CTree(212, 158, TREE_GREEN, 1, 1);
	new CTree(270, 166, TREE_PINE, 3, 0);
	new CTree(340, 160, TREE_GREEN, 0, 0);
	new CTree(-14, 350, TREE_ORANGE, 1, 1);
	new CTree(622, 170, TREE_GREEN, 1, 0);
	new CTree(664, 180, TREE_ORANGE, 1, 1);
	new CTree(672, 446, TREE_PINE, 3, 1);

	// Before the field.
	new CTree(-20, 652, TREE_PINE, 2, 0);
	new CTree(34, 664, TREE_PINE, 2, 1);
	new CTree(98, 668, TREE_PINE, 3, 0);
	new CTree(590, 668, TREE_PINE, 4, 0);
	new CTree(634, 668, TREE_PINE, 3, 1);
	new CTree(716, 672, TREE_GREEN, 2, 1);

	// From the barn's corner to the middle.
	Line(186, 204, 6, FALLING_RAILS);

	// The barn: three feet, three above them, a roof.
	CCrate* left   = CoinCrate(76, 205);
	CCrate* middle = Crate(120, 205);
	CCrate* right  = AppleCrate(164, 205);
	Stack({left, Crate(76, 205, 1)});
	Stack({middle, PrizeCrate(120, 205, POWERUP_MONEY, 1), Crate(121, 205, 2)});
	Stack({right, Crate(164, 205, 1)});

	// Barrels at its wall.
	Barrel(60, 248);
	Barrel(92, 252);
	Barrel(60, 288);

	// The haystack by the duck's way.
	CCrate* hay = Crate(400, 300);
	Stack({hay, PrizeCrate(402, 300, POWERUP_DOUBLE, 1)});
	AppleCrate(444, 300);
	Crate(422, 330);

	// What has been left on the right meadow.
	CCrate* corner = CoinCrate(600, 424);
	Stack({corner, PrizeCrate(602, 424, POWERUP_GROW, 1)});
	Barrel(562, 414);
	Barrel(604, 246);
	Barrel(636, 250);
}
