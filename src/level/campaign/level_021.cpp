// Level 21: do not wake the birds.
#include "level/levels.h"

#include "animals/butterfly.h"
#include "animals/perching_birds.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/parts.h"
#include "screens/game.h"

static const float RAYS_FROM_X = 346, RAYS_FROM_Y = 500;

// Coins on the straight way from the paddle to a point, over the middle of the way.
static void Ray(float toX, float toY, int coins)
{
	const float nearest = 0.22f, farthest = 0.76f; // parts of the way
	for (int i = 0; i < coins; i++) {
		const float part =
		    nearest + (farthest - nearest) * static_cast<float>(i) / static_cast<float>(coins - 1);
		Coin(RAYS_FROM_X + (toX - RAYS_FROM_X) * part, RAYS_FROM_Y + (toY - RAYS_FROM_Y) * part);
	}
}

// Three stones below a perch keep straight shots off it.
static void Guard(int x, int y)
{
	new CRock(x - 18, y, 2, 0, false);
	new CRock(x + 18, y, 2, 2, false);
	new CRock(x, y + 10, 2, 1, false);
}

// Level 21, "Bird sanctuary" (dodgeball, on the map 16). Noon.
// Picture: six perches of one crate each on an arc under the wall, coins in rays between them
//          toward the player; stones guard two of the perches.
// Asks:    gather the coins and leave the perches be; the decoys at the sides are safe.
// Grows:   a small ball wakes the least.
void BuildLevel021(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isDodgeball = true;
	game->rules.dodgeVariant                           = 1;
	game->rules.dodgeLimit                             = 6;
	game->SetLevelTimer(60, true);

	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 980;
	look.fenceVariant = 0;
	look.sky          = SKY_DEEP_BLUE;
	look.sunX         = 346;
	look.sunY         = -20;
	Background(look)->ScatterDecor(5);

	new CButterfly(60, 320, RIGHT);
	new CButterfly(640, 300, LEFT);

	// Thin trees and pines at the edges, as if to listen.
	new CTree(26, 168, TREE_PINE, 2, 0);
	new CTree(78, 160, TREE_RED, 1, 1);
	new CTree(-6, 290, TREE_PINE, 3, 1);
	new CTree(612, 160, TREE_RED, 1, 0);
	new CTree(664, 170, TREE_PINE, 2, 1);
	new CTree(690, 310, TREE_PINE, 3, 0);

	// Before the field.
	new CTree(-30, 654, TREE_RED, 2, 0);
	new CTree(62, 668, TREE_RED, 1, 1);
	new CTree(634, 668, TREE_RED, 1, 0);
	new CTree(708, 652, TREE_RED, 2, 1);

	Guard(205, 230);
	Guard(487, 230);

	// The perches, from the left.
	CCrate* perches[] = {Crate(120, 226), Crate(205, 196), Crate(300, 178),
	                     Crate(392, 178), Crate(487, 196), Crate(572, 226)};

	// The decoys.
	CoinBarrel(44, 404);
	PrizeBarrel(76, 410, POWERUP_WIDE);
	PrizeBarrel(616, 410, POWERUP_STICKY);
	CoinBarrel(648, 404);

	new CBlueBird(perches[0], RIGHT);
	new CCrow(perches[1], RIGHT);
	new CBlueBird(perches[2], RIGHT);
	new CCrow(perches[3], LEFT);
	new CBlueBird(perches[4], LEFT);
	new CCrow(perches[5], LEFT);

	Ray(162, 211, 8);
	Ray(252, 187, 7);
	Ray(346, 178, 7);
	Ray(440, 187, 7);
	Ray(530, 211, 8);
}
