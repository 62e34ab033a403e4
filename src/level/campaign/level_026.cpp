// Level 26: four crates in their order.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/parts.h"
#include "screens/game.h"

// A rosette of seven barrels: a prize in the middle, six round it, coins above left and below
// right.
static void Rosette(int x, int y, PowerupKind prize)
{
	CCrate* middle = PrizeBarrel(x, y, prize);
	Barrel(-32, 0, 0, middle);
	Barrel(32, 0, 0, middle);
	CoinBarrel(-16, -25, 0, middle);
	Barrel(16, -25, 0, middle);
	Barrel(-16, 25, 0, middle);
	CoinBarrel(16, 25, 0, middle);
}

// Level 26, "Fourfold lock" (order). A clear night.
// Picture: four numbered crates on the corners of a square, a tree and apples in its middle.
// Asks:    break them 1, 2, 3, 4; each by a straight shot.
// Grows:   the apples bring the ball up, which nothing here needs.
void BuildLevel026(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isOrder = true;
	game->rules.orderCount                         = 4;
	game->rules.orderNext                          = 1;

	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 86;
	look.fenceVariant = 0;
	look.hillsX       = 962;
	look.sky          = SKY_NIGHT;
	look.sunX         = 311;
	look.sunY         = -318;
	Background(look)->ScatterDecor(3);

	AppleCrate(346, 415);
	AppleCrate(209, 312);
	AppleCrate(483, 312);
	OrderCrate(249, 385, POWERUP_MONEY, 1);
	OrderCrate(249, 250, POWERUP_MONEY, 2);
	OrderCrate(443, 250, POWERUP_MONEY, 3);
	OrderCrate(443, 385, POWERUP_MONEY, 4);
	Rosette(130, 205, POWERUP_STICKY);
	Rosette(563, 205, POWERUP_BULLDOZER);

	new CTree(346, 330, TREE_RED, 2, 1);
	new CTree(80, 320, TREE_ORANGE, 3, 0);
	new CTree(613, 320, TREE_ORANGE, 3, 1);
	new CTree(35, 360, TREE_RED, 1, 1);
	new CTree(658, 360, TREE_RED, 1, 0);
	new CTree(36, 699, TREE_ORANGE, 2, 1);
	new CTree(640, 668, TREE_RED, 1, 0);
	new CTree(691, 675, TREE_PINE, 2, 1);
	new CTree(577, 685, TREE_PINE, 3, 1);

	new CButterfly(315, 175, LEFT);
	new CButterfly(85, 440, RIGHT);
	new CButterfly(455, 350, RIGHT);

	// Rails that come in from the upper left; those at the lower corners lie outside the picture.
	FenceChain(212, 145,
	           {{FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_LEFT, FALLING_RAILS},
	            {FENCE_LEFT, FALLING_RAILS},
	            {FENCE_LEFT, FALLING_RAILS},
	            {FENCE_LEFT, FALLING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS}});
	FenceChain(678, 410,
	           {{FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS}});
	FenceChain(-2, 410,
	           {{FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_LEFT, RISING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS},
	            {FENCE_RIGHT, FALLING_RAILS}});

	new CRock(271, 310, 2, 0, false);
	new CRock(421, 310, 2, 1, false);
}
