// Level 73: a hen house on the hill.
#include "level/levels.h"

#include "animals/bears.h"
#include "animals/chicken.h"
#include "animals/plain_species.h"
#include "animals/two_voiced.h"
#include "field/drum.h"
#include "field/tree.h"
#include "level/fence_shapes.h"
#include "screens/game.h"

static const int COINS_IN_BOW = 10, COIN_PITCH = 28;

// Coins on an arc that hangs below the run.
static void CoinBow(int middleY)
{
	for (int i = 0; i < COINS_IN_BOW; i++) {
		const int out = (2 * i - COINS_IN_BOW + 1) * COIN_PITCH / 2;
		Coin(static_cast<float>(346 + out), static_cast<float>(middleY - out * out / 450));
	}
}

// Level 73, "Hill hen house" (egg, on the map 52-F). A clear night.
// Picture: a ring under the wall is the hen run, coins hang below it in two bows; cow, bighorn and
//          polar bear stand at the back corners.
// Asks:    stay under stage 8 and rattle in the run till two dozen eggs lie there, then gather.
// Grows:   by eggs: hens, geese and bighorn (12), cow and polar bear (18).
void BuildLevel073(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isEgg = true;

	BackgroundLook look;
	look.ground       = GROUND_SNOWY_GRASS;
	look.groundX      = 1560;
	look.fenceVariant = 1;
	look.hills        = true;
	look.hillsX       = 820;
	look.hillsHeight  = 30;
	look.sky          = SKY_NIGHT;
	look.sunX         = 120;
	look.sunY         = -320;
	Background(look)->ScatterDecor(5);

	new CCow(92, 236, RIGHT);
	new CBighorn(560, 216, LEFT);
	new CPolarBear(606, 272, LEFT);
	new CGoose(150, 400, RIGHT);
	new CGoose(530, 408, LEFT);
	new CChicken(280, 226, RIGHT);
	new CChicken(322, 210, LEFT);
	new CChicken(346, 240, RIGHT);
	new CChicken(380, 214, RIGHT);
	new CChicken(420, 230, LEFT);

	// Snow oaks at the back corners, pines between them and the run.
	new CTree(36, 176, TREE_ORANGE, 2, 0);
	new CTree(112, 164, TREE_PINE, 2, 1);
	new CTree(164, 158, TREE_PINE, 3, 0);
	new CTree(346, 158, TREE_PINE, 0, 0);
	new CTree(520, 158, TREE_PINE, 3, 1);
	new CTree(584, 162, TREE_PINE, 2, 0);
	new CTree(660, 176, TREE_ORANGE, 2, 1);
	new CTree(-6, 330, TREE_PINE, 2, 1);
	new CTree(688, 446, TREE_PINE, 2, 0);
	new CTree(28, 420, TREE_PINE, 3, 0);

	// Before the field.
	new CTree(4, 646, TREE_PINE, 2, 0);
	new CTree(52, 664, TREE_PINE, 3, 1);
	new CTree(94, 672, TREE_PINE, 4, 0);
	new CTree(634, 666, TREE_PINE, 3, 0);
	new CTree(684, 648, TREE_PINE, 2, 1);

	// The hen run.
	Ring(346, 230, 3, 2);

	// The crown: stores under the wall at both shoulders of the run.
	Stack({CoinCrate(214, 176), PrizeCrate(215, 176, POWERUP_BARRIER, 1)});
	Barrel(180, 174);
	Stack({CoinCrate(476, 176), PrizeCrate(475, 176, POWERUP_SLOW, 1)});
	Barrel(510, 174);

	// Low at the sides.
	Stack({CoinCrate(634, 430), PrizeCrate(633, 430, POWERUP_STICKY, 1)});
	Barrel(598, 424);
	Barrel(86, 428);

	new CDrum(204, 272, RIGHT);

	CoinBow(352);
	CoinBow(392);
}
