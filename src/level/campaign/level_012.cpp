// Level 12: a storm of crates.
#include "level/levels.h"

#include "field/tree.h"
#include "level/fence_shapes.h"
#include "screens/game.h"

static const int MIDDLE      = 346;
static const int CRATE_PITCH = 44, CRATES_IN_WALL = 15;
static const int BARREL_PITCH = 32, BARRELS_IN_WALL = 20;
static const int FAR_WALL = 186, MIDDLE_WALL = 253, NEAR_WALL = 318; // y
static const int EYE_LEFT = 2, EYE_RIGHT = 12;      // columns of the far wall's windows
static const int NARROW_LEFT = 5, NARROW_RIGHT = 9; // and of the middle wall's
static const int LENS_FROM = 5, LENS_TO = 14;       // barrels that stand double

static int CrateX(int column)
{
	return MIDDLE + (column - CRATES_IN_WALL / 2) * CRATE_PITCH;
}

static int FromNearest(int column, int left, int right)
{
	const int fromLeft  = column < left ? left - column : column - left;
	const int fromRight = column < right ? right - column : column - right;
	return fromLeft < fromRight ? fromLeft : fromRight;
}

// Two layers; the upper one is given.
static void Pile(int x, int y, CCrate* upper)
{
	StackCrate(Crate(x, y), upper);
}

// The far wall parts round a pine on each side.
static void FarWall()
{
	for (int column = 0; column < CRATES_IN_WALL; column++) {
		const int x    = CrateX(column);
		const int away = FromNearest(column, EYE_LEFT, EYE_RIGHT);
		if (away > 2) {
			Pile(x, FAR_WALL, column % 2 ? Crate(x, FAR_WALL, 1) : CoinCrate(x, FAR_WALL, 1));
			continue;
		}
		const int parted = 18 - away * 5;
		const int back = FAR_WALL - parted, front = FAR_WALL + parted;
		Pile(x, back, away == 0 ? CoinCrate(x, back, 1) : Crate(x, back, 1));
		Pile(x, front, away == 1 ? CoinCrate(x, front, 1) : Crate(x, front, 1));
	}
}

// What lies in the upper layer of the middle wall's two rows, by column.
static CCrate* MiddlePrize(int row, int column, int x, int y)
{
	switch (row * CRATES_IN_WALL + column) {
	case 1:
		return PrizeCrate(x, y, POWERUP_MONEY, 1);
	case 7:
		return PrizeCrate(x, y, POWERUP_QUADRUPLE, 1);
	case 13:
		return PrizeCrate(x, y, POWERUP_DOUBLE, 1);
	case CRATES_IN_WALL:
	case CRATES_IN_WALL + 14:
		return PrizeCrate(x, y, POWERUP_BARRIER, 1);
	case CRATES_IN_WALL + 3:
		return PrizeCrate(x, y, POWERUP_SLOW, 1);
	case CRATES_IN_WALL + 11:
		return PrizeCrate(x, y, POWERUP_STICKY, 1);
	case CRATES_IN_WALL + 7:
		return PrizeCrate(x, y, POWERUP_TRIPLE, 1);
	case CRATES_IN_WALL + 2:
	case CRATES_IN_WALL + 12:
		return AppleCrate(x, y, 1);
	}
	return column == 4 || column == 10 ? CoinCrate(x, y, 1) : Crate(x, y, 1);
}

// The middle wall is double, and opens into two narrow eyes with a pine between two crates.
static void MiddleWall()
{
	for (int row = 0; row < 2; row++)
		for (int column = 0; column < CRATES_IN_WALL; column++) {
			const int away = FromNearest(column, NARROW_LEFT, NARROW_RIGHT);
			const int half = away == 0 ? 23 : away == 1 ? 20 : 15;
			const int y    = row ? MIDDLE_WALL + half : MIDDLE_WALL - half;
			Pile(CrateX(column), y, MiddlePrize(row, column, CrateX(column), y));
			if (row == 0 && away == 1)
				Pile(CrateX(column), MIDDLE_WALL, Crate(CrateX(column), MIDDLE_WALL, 1));
		}
}

// The near wall is of barrels, and double where the ball would come down the middle.
static void NearWall()
{
	for (int i = 0; i < BARRELS_IN_WALL; i++) {
		const int x     = MIDDLE + (2 * i - BARRELS_IN_WALL + 1) * BARREL_PITCH / 2;
		const bool lens = i >= LENS_FROM && i <= LENS_TO;
		const int bow   = lens ? 3 + (i - LENS_FROM + 1) * (LENS_TO + 1 - i) / 8 : 0; // 4 to 6
		const int back = NEAR_WALL - 4 - bow * 2, front = NEAR_WALL + 4 + bow;
		if (lens)
			StackCrate(Barrel(x, back), Barrel(x, back, 1));
		CCrate* foot = Barrel(x, lens ? front : NEAR_WALL);
		if (i == 1 || i == BARRELS_IN_WALL - 2)
			StackCrate(foot, PrizeBarrel(x, NEAR_WALL, POWERUP_WIDE, 1));
		else
			StackCrate(foot, Barrel(x, lens ? front : NEAR_WALL, 1));
	}
}

// Level 12, "Crate storm" (speedball). A night of snow.
// Picture: three walls across the whole field; the far one parts round two great pines, the
//          double one in the middle round two more, the near one is a lens of barrels.
// Asks:    use the walls to keep the ball high; the first holes should be at the sides.
// Grows:   nothing waits for the ball.
void BuildLevel012(CControllerGame* game)
{
	game->rules.isBonusLevel = game->rules.isSpeedball = true;
	game->SetLevelTimer(75, true);

	BackgroundLook look;
	look.ground       = GROUND_SNOWY_GRASS;
	look.groundX      = 1930;
	look.fenceVariant = 0;
	look.sky          = SKY_NIGHT;
	look.sunX         = 560;
	look.sunY         = -320;
	look.snow         = true;
	Background(look)->ScatterDecor(2);

	// A hedge of saplings along the wall, left and right.
	static const int HEDGE[] = {12, 38, 190, 230, 270, 424, 464, 504, 654, 682};
	for (int x : HEDGE)
		new CTree(x, 157, TREE_PINE, x % 4 ? 4 : 0, x % 3 ? 0 : 1);
	new CTree(346, 158, TREE_PINE, 2, 0);

	// The pines in the windows.
	new CTree(CrateX(EYE_LEFT), FAR_WALL, TREE_PINE, 2, 1);
	new CTree(CrateX(EYE_RIGHT), FAR_WALL, TREE_PINE, 2, 0);
	new CTree(CrateX(NARROW_LEFT), MIDDLE_WALL, TREE_PINE, 3, 0);
	new CTree(CrateX(NARROW_RIGHT), MIDDLE_WALL, TREE_PINE, 3, 1);

	// The wood before the field.
	new CTree(-14, 640, TREE_PINE, 2, 0);
	new CTree(30, 654, TREE_PINE, 2, 1);
	new CTree(78, 662, TREE_PINE, 3, 0);
	new CTree(120, 668, TREE_PINE, 3, 1);
	new CTree(160, 676, TREE_PINE, 4, 0);
	new CTree(540, 676, TREE_PINE, 4, 1);
	new CTree(578, 668, TREE_PINE, 3, 0);
	new CTree(620, 662, TREE_PINE, 3, 1);
	new CTree(662, 652, TREE_PINE, 2, 0);
	new CTree(702, 640, TREE_PINE, 2, 1);

	FarWall();
	MiddleWall();
	NearWall();
}
