// Level 4: a theatre of barrels.
#include "level/levels.h"

#include "field/rock.h"
#include "field/tree.h"
#include "level/fence_shapes.h"
#include "screens/game.h"

static const int ROWS = 5, BARRELS_IN_WING = 7;
static const int ROW_PITCH = 37, BARREL_PITCH = 32; // pixels
static const int MIDDLE = 346, FIRST_ROW = 220;
static const int FIRST_SEAT = 71; // from the middle: half an aisle and half a barrel

// Rows hang like those of a theatre round the wall's middle.
static int RowY(int row, int x)
{
	return FIRST_ROW + row * ROW_PITCH - (x - MIDDLE) * (x - MIDDLE) / 1300;
}

// What crowns every third barrel, row by row.
static CCrate* Crown(int number, int x, int y)
{
	switch (number) {
	case 2:
		return PrizeCrate(x, y, POWERUP_MONEY, 1);
	case 7:
	case 17:
		return AppleCrate(x, y, 1);
	case 12:
		return PrizeCrate(x, y, POWERUP_DOUBLE, 1);
	case 21:
		return PrizeCrate(x, y, POWERUP_BULLDOZER, 1);
	case 23:
		return PrizeCrate(x, y, POWERUP_DESTRUCTO, 1);
	}
	return number % 3 == 2 || number > 19 ? Crate(x, y, 1) : CoinCrate(x, y, 1);
}

// Five to a row: two in one wing, three in the other, by turns.
static bool CarriesCrown(int row, int seat, int side)
{
	const bool threes = (row % 2 == 0) == (side < 0);
	return seat % 3 == (threes ? 0 : 1);
}

// Level 4, "Barrel yard" (demolition). Afternoon.
// Picture: five bowed rows of barrels in two wings, a crate on every third; an aisle leads
//          to the red tree on the stage, two rocks are the side posts.
// Asks:    the bulldozer ball mows whole rows: aim along the rows, not at them.
// Grows:   nothing waits for the ball.
void BuildLevel004(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isDemolition = true;
	game->rules.startBulldozer                          = true;
	game->SetLevelTimer(60, true);

	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 770;
	look.fenceVariant = 1;
	look.sky          = SKY_DEEP_BLUE;
	look.sunX         = 500;
	look.sunY         = -10;
	Background(look)->ScatterDecor(3);

	new CTree(50, 175, TREE_RED, 2, 0);
	new CTree(645, 175, TREE_RED, 2, 1);
	new CTree(346, 160, TREE_RED, 0, 0);

	// Before the field.
	new CTree(-30, 650, TREE_RED, 2, 1);
	new CTree(56, 668, TREE_PINE, 2, 0);
	new CTree(630, 668, TREE_PINE, 3, 1);
	new CTree(704, 652, TREE_RED, 2, 0);

	new CRock(31, 372, 1, 3, false);
	new CRock(661, 372, 1, 4, false);

	// The wings, from the aisle outward; the crowns lie a seat farther out in every second row.
	int crowns = 0;
	for (int row = 0; row < ROWS; row++)
		for (int seat = 0; seat < BARRELS_IN_WING; seat++)
			for (int side = -1; side <= 1; side += 2) {
				const int x    = MIDDLE + side * (FIRST_SEAT + seat * BARREL_PITCH);
				const int y    = RowY(row, x);
				CCrate* barrel = Barrel(x, y);
				if (CarriesCrown(row, seat, side))
					StackCrate(barrel, Crown(crowns++, x, y));
			}
}
