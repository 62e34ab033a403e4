// Level 43: an orchard by night.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "field/tree.h"
#include "level/fence_shapes.h"
#include "screens/game.h"

static const int APPLES_IN_CRATE = 5;

static CCrate* Apples(int x, int y, int layer = 0)
{
	return FruitCrate(x, y, POINT_APPLE, APPLES_IN_CRATE, layer);
}

// Flat at its ends, heaped in the middle: four crates wide, with a prize on the second heap.
static void Basket(int x, int y, PowerupKind prize)
{
	Apples(x - 66, y);
	Stack({Apples(x - 22, y), Apples(x - 21, y, 1), PrizeCrate(x - 22, y, prize, 2)});
	Stack({Apples(x + 22, y), Apples(x + 23, y, 1), Apples(x + 22, y, 2)});
	Apples(x + 66, y);
}

// Level 43, "Night harvest" (harvest, on the map 33). A clear night.
// Picture: an orchard in three bowed rows of trees, between them beds of apple crates, heaped like
//          baskets.
// Asks:    two hundred fruit in 75 seconds: crates first for the rush, then the trees in passing.
// Grows:   by fruit alone: 37 crates of five apples, fourteen trees, the rain.
void BuildLevel043(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isHarvest = true;
	game->SetLevelTimer(75, true);

	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 520;
	look.fenceVariant = 0;
	look.sky          = SKY_NIGHT;
	look.sunX         = 420;
	look.sunY         = -320;
	Background(look)->ScatterDecor(3);

	new CButterfly(110, 300, RIGHT);
	new CButterfly(230, 330, RIGHT);
	new CButterfly(346, 230, LEFT);
	new CButterfly(470, 330, LEFT);
	new CButterfly(590, 300, LEFT);
	new CButterfly(346, 420, RIGHT);

	// The far row, of grown oaks and pines.
	new CTree(50, 176, TREE_ORANGE, 2, 0);
	new CTree(204, 166, TREE_PINE, 2, 1);
	new CTree(346, 162, TREE_ORANGE, 2, 1);
	new CTree(488, 166, TREE_PINE, 2, 0);
	new CTree(640, 176, TREE_ORANGE, 2, 2);

	// The middle row, between the beds.
	new CTree(28, 290, TREE_PINE, 3, 0);
	new CTree(300, 266, TREE_ORANGE, 1, 1);
	new CTree(392, 266, TREE_ORANGE, 1, 0);
	new CTree(664, 290, TREE_PINE, 3, 1);

	// The near row, young pines and oaks.
	new CTree(14, 436, TREE_ORANGE, 1, 0);
	new CTree(226, 424, TREE_PINE, 3, 0);
	new CTree(346, 440, TREE_PINE, 4, 1);
	new CTree(466, 424, TREE_PINE, 3, 1);
	new CTree(678, 436, TREE_ORANGE, 1, 1);

	// Before the field.
	new CTree(-30, 650, TREE_GREEN, 2, 0);
	new CTree(60, 668, TREE_GREEN, 1, 1);
	new CTree(560, 672, TREE_GREEN, 0, 0);
	new CTree(628, 668, TREE_GREEN, 1, 0);
	new CTree(706, 652, TREE_GREEN, 2, 1);

	Basket(170, 226, POWERUP_GRAVITY);
	Basket(522, 226, POWERUP_GRAVITY);
	Basket(122, 346, POWERUP_WIDE);
	Basket(570, 346, POWERUP_RAIN);

	// The great basket in the middle: five wide.
	Apples(258, 340);
	Stack({Apples(302, 340), Apples(303, 340, 1)});
	Stack({Apples(346, 340), Apples(345, 340, 1), Apples(346, 340, 2)});
	Stack({Apples(390, 340), Apples(389, 340, 1)});
	Apples(434, 340);
}
