// Level 15: a spring of coins.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "field/rock.h"
#include "field/tree.h"
#include "frame/random.h"
#include "level/fence_shapes.h"
#include "screens/game.h"

static const int FOUNTAIN_COINS = 20;
static const int FOUNTAIN_X = 620, FOUNTAIN_Y = 375;

// A ring with a strong-room in it: two rows of crates, a barrel for the lid.
static void Basin(int x, int y, PowerupKind prize)
{
	Ring(x, y, 2, 2);
	Stack({CoinCrate(x - 44, y - 12), PrizeCrate(x - 43, y - 12, POWERUP_MONEY, 1)});
	Stack({CoinCrate(x, y - 14), CoinBarrel(x, y - 14, 1)});
	Stack({AppleCrate(x + 44, y - 12), PrizeCrate(x + 43, y - 12, prize, 1)});
	CoinCrate(x - 22, y + 14);
	AppleCrate(x + 22, y + 14);
}

// The coins are thrown up by chance, and rain down round the spring.
static void Fountain()
{
	for (int i = 0; i < FOUNTAIN_COINS; i++) {
		const int x    = RandomWhole(FOUNTAIN_X - 5, FOUNTAIN_X + 5);
		const int y    = RandomWhole(FOUNTAIN_Y - 5, FOUNTAIN_Y + 5);
		const int z    = RandomWhole(5, 7);
		const float vx = RandomRange(-1, 1);
		const float vy = RandomRange(-1, 1);
		const float vz = RandomRange(8, 10);
		new CElementPoint(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z),
		                  POINT_COIN, vx, vy, vz);
	}
}

// Level 15, "Coin fountain" (coin, on the map 12-C). Noon.
// Picture: coins spring up on the right; two ringed basins to the left of it, a strong-room in
//          each; barrels lead from one to the next.
// Asks:    everything must break: one basin at a time, the coins are only the bait.
// Grows:   nothing waits for the ball; eight apples or so lie in the strong-rooms.
void BuildLevel015(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isCoin = true;
	game->SetLevelTimer(60, true);

	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 340;
	look.fenceVariant = 1;
	look.sky          = SKY_DEEP_BLUE;
	look.sunX         = 230;
	look.sunY         = -10;
	Background(look)->ScatterDecor(2);

	new CButterfly(345, 230, RIGHT);
	new CButterfly(640, 440, LEFT);

	// Oaks at the back corners, a pine beside each.
	new CTree(66, 172, TREE_ORANGE, 2, 0);
	new CTree(160, 162, TREE_PINE, 3, 1);
	new CTree(552, 164, TREE_PINE, 2, 0);
	new CTree(636, 176, TREE_ORANGE, 2, 1);

	// Before the field.
	new CTree(-30, 652, TREE_ORANGE, 2, 1);
	new CTree(64, 668, TREE_ORANGE, 1, 0);
	new CTree(626, 668, TREE_ORANGE, 1, 1);
	new CTree(706, 654, TREE_ORANGE, 2, 0);

	// The stones from which the spring comes.
	new CRock(663, 300, 1, 3, false);
	new CRock(674, 326, 2, 1, false);

	Basin(480, 325, POWERUP_GRAVITY);
	Basin(200, 325, POWERUP_STICKY);

	// From the spring to the near basin, and on to the far one.
	Barrel(612, 428);
	CoinBarrel(580, 422);
	Barrel(356, 398);
	CoinBarrel(324, 398);
	Barrel(340, 374);
	Barrel(52, 414);

	Fountain();
}
