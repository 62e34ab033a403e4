// Level 6: a brook in the last snow.
#include "level/levels.h"

#include "animals/chicken.h"
#include "animals/horse.h"
#include "animals/perching_birds.h"
#include "animals/sheep.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/fence_shapes.h"

// Level 6, "Last snow" (regular). Afternoon in the cold.
// Picture: fences and rocks are the banks of a frozen brook that comes down from the upper right;
//          a bridge of crates crosses it; the horse stands beyond.
// Asks:    few animals, one long shot over the bridge.
// Grows:   6 fruit, bluebirds (6), hens (10), sheep (12), horse (16).
void BuildLevel006(CControllerGame*)
{
	BackgroundLook look;
	look.ground       = GROUND_SNOWY_GRASS;
	look.groundX      = 130;
	look.fenceVariant = 1;
	look.hills        = true;
	look.hillsX       = 620;
	look.hillsHeight  = 30;
	look.sky          = SKY_PURPLE;
	look.sunX         = 560;
	look.sunY         = 0;
	Background(look)->ScatterDecor(4);

	new CHorse(270, 205, RIGHT);
	new CSheep(580, 370, LEFT);
	new CSheep(450, 425, LEFT);
	new CSheep(176, 238, RIGHT);
	new CChicken(600, 330, LEFT);
	new CChicken(220, 440, RIGHT);

	// Pines, and one small oak that has kept its leaves.
	new CTree(50, 175, TREE_PINE, 2, 0);
	new CTree(110, 168, TREE_PINE, 3, 1);
	new CTree(380, 165, TREE_PINE, 4, 0);
	new CTree(600, 175, TREE_PINE, 2, 1);
	new CTree(655, 190, TREE_PINE, 3, 0);
	new CTree(24, 408, TREE_PINE, 3, 0);
	new CTree(180, 172, TREE_ORANGE, 1, 1);

	// Before the field, rising to the sides.
	new CTree(-16, 650, TREE_PINE, 2, 0);
	new CTree(48, 668, TREE_PINE, 3, 1);
	new CTree(104, 672, TREE_PINE, 4, 0);
	new CTree(588, 672, TREE_PINE, 4, 1);
	new CTree(636, 668, TREE_PINE, 3, 0);
	new CTree(688, 650, TREE_PINE, 2, 1);

	// Stones go on where the rails of the banks end.
	new CRock(455, 262, 1, 3, false);
	new CRock(552, 238, 1, 4, false);
	new CRock(290, 398, 2, 0, false);
	new CRock(124, 430, 2, 1, false);

	// The far bank and the near one.
	FenceSections far = Pattern(110, 290, 5, {LEVEL_RAILS, RISING_RAILS});
	Pattern(414, 340, 4, {RISING_RAILS, LEVEL_RAILS});

	// The bridge: three rows of two, the middle one high.
	Crate(336, 286);
	CCrate* farEnd = Crate(380, 280);
	Stack({farEnd, AppleCrate(381, 280, 1)});
	CCrate* arch = CoinCrate(346, 318);
	CCrate* high = Stack({arch, PrizeCrate(347, 318, POWERUP_MONEY, 1), Crate(346, 318, 2)});
	Crate(390, 312);
	Crate(356, 350);
	AppleCrate(400, 344);

	// The horse's store beyond.
	Crate(470, 204);
	CoinCrate(514, 208);
	PrizeCrate(492, 178, POWERUP_FANS);

	// Feed on the left, firewood on the near meadow.
	CCrate* feed = AppleCrate(46, 250);
	Stack({feed, Crate(48, 250, 1)});
	Crate(90, 254);
	CCrate* logs = CoinCrate(646, 420);
	Stack({logs, PrizeCrate(644, 420, POWERUP_DOUBLE, 1)});
	Crate(602, 424);

	// Barrels frozen in, and some at the stores.
	Barrel(160, 338);
	Barrel(192, 332);
	Barrel(224, 324);
	Barrel(474, 300);
	Barrel(506, 292);
	Barrel(538, 284);
	Barrel(430, 214);
	Barrel(568, 424);
	Barrel(536, 430);

	new CBlueBird(far[2], RIGHT);
	new CBlueBird(high, LEFT);
}
