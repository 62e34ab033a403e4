// Level 8: the first herd.
#include "level/levels.h"

#include "animals/species_numbers.h"
#include "animals/stampede.h"
#include "field/rock.h"
#include "field/tree.h"
#include "level/parts.h"
#include "screens/game.h"

// Level 8, "Monkey run" (stampede). Magenta evening.
// Picture: a row of pines under the wall, a step of four barrels at each lower side.
// Asks:    hold the great ball in the stream with the fans.
// Grows:   starts at stage 17; every runner can be taken at once.
void BuildLevel008(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isStampede = true;
	game->rules.startBigBall = game->rules.unlimitedFans = true;

	BackgroundLook look;
	look.ground       = GROUND_GRASS;
	look.groundX      = 2462;
	look.fenceVariant = 1;
	look.hills        = true;
	look.hillsX       = 1170;
	look.sky          = SKY_MAGENTA;
	look.sunX         = 80;
	look.sunY         = -15;
	Background(look)->ScatterDecor(3);

	new CTree(150, 200, TREE_PINE, 2, 0);
	new CTree(450, 190, TREE_PINE, 2, 1);
	new CTree(300, 180, TREE_PINE, 3, 0);
	new CTree(50, 190, TREE_PINE, 3, 0);
	new CTree(200, 180, TREE_PINE, 0, 1);
	new CTree(350, 190, TREE_PINE, 0, 1);
	new CTree(525, 200, TREE_PINE, 0, 0);
	new CTree(600, 190, TREE_PINE, 2, 0);
	new CTree(650, 200, TREE_PINE, 4, 1);
	new CRock(250, 190, 1, 3, false);

	// The steps, each with its prize on the second barrel from the outside.
	CCrate* outerLeft = Barrel(50, 425);
	CCrate* stepLeft  = Barrel(25, -7, 0, outerLeft);
	StackCrate(stepLeft, PrizeBarrel(0, 0, POWERUP_FAST, 1, stepLeft));
	Barrel(25, -7, 0, stepLeft);
	CCrate* outerRight = Barrel(643, 425);
	CCrate* stepRight  = Barrel(-25, -7, 0, outerRight);
	StackCrate(stepRight, PrizeBarrel(0, 0, POWERUP_DOUBLE, 1, stepRight));
	Barrel(-25, -7, 0, stepRight);

	// The herd, in the order in which it comes.
	static const struct {
		int x, y;
		float speed;
	} RUNNERS[] = {
	    {690, 300, -2.8f},  {720, 250, -2.4f},  {730, 370, -2.3f},  {750, 280, -2.6f},
	    {760, 330, -2.3f},  {810, 300, -2.5f},  {850, 240, -2.5f},  {860, 340, -2.4f},
	    {900, 280, -2.6f},  {910, 390, -2.6f},  {940, 220, -2.3f},  {970, 300, -2.6f},
	    {980, 370, -2.6f},  {1000, 250, -2.4f}, {1040, 320, -2.5f}, {1070, 250, -2.4f},
	    {1080, 370, -2.3f}, {1100, 280, -2.6f}, {1110, 330, -2.3f}, {1170, 300, -2.5f},
	    {1200, 240, -2.5f}, {1210, 340, -2.4f}, {1250, 280, -2.6f}, {1260, 390, -2.6f},
	    {1290, 220, -2.3f}, {1320, 300, -2.6f}, {1330, 370, -2.6f}, {1350, 250, -2.4f},
	    {1390, 320, -2.5f}, {1430, 370, -2.4f}, {1450, 220, -2.5f}, {1490, 300, -2.3f},
	};
	for (const auto& runner : RUNNERS)
		new CElementStampede(SPECIES_MONKEY, runner.x, runner.y, runner.speed);
}
