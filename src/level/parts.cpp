// The words in which level routines speak: thin names over the constructors.
#include "level/parts.h"

#include "animals/stampede.h"
#include "screens/game.h"

static const int VALUE_BY_SKILL = -1;

// The running level learns of its background here; a level without one counts as not there.
CBackground* Background(const BackgroundLook& look)
{
	CBackground* background = new CBackground(look);
	if (g_game)
		g_game->background = background;
	return background;
}

// What a crate is made from, with the constructor's ten arguments named.
struct CrateOrder {
	int contents    = 0;
	int value       = 0;
	bool prize      = false;
	bool barrel     = false;
	bool appleCrate = false;
	int orderNumber = 0;
};

static CCrate* Build(int x, int y, int layer, CCrate* anchor, const CrateOrder& order)
{
	return new CCrate(x, y, layer, order.contents, order.value, order.prize, order.barrel,
	                  order.appleCrate, anchor, order.orderNumber);
}

CCrate* Crate(int x, int y, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor, {});
}

CCrate* CoinCrate(int x, int y, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor, {.contents = POINT_COIN, .value = VALUE_BY_SKILL});
}

CCrate* AppleCrate(int x, int y, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor, {.appleCrate = true});
}

CCrate* FruitCrate(int x, int y, PointKind fruit, int count, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor, {.contents = fruit, .value = count});
}

CCrate* PrizeCrate(int x, int y, PowerupKind prize, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor, {.contents = prize, .prize = true});
}

CCrate* OrderCrate(int x, int y, PowerupKind prize, int number)
{
	return Build(x, y, 0, nullptr, {.contents = prize, .prize = true, .orderNumber = number});
}

CCrate* Barrel(int x, int y, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor, {.barrel = true});
}

CCrate* CoinBarrel(int x, int y, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor,
	             {.contents = POINT_COIN, .value = VALUE_BY_SKILL, .barrel = true});
}

CCrate* PrizeBarrel(int x, int y, PowerupKind prize, int layer, CCrate* anchor)
{
	return Build(x, y, layer, anchor, {.contents = prize, .prize = true, .barrel = true});
}

// A chain from the post; the last section makes an end post only when the chain stays open.
static CFence* LayChain(CFencePost* post, std::initializer_list<FenceStep> steps, bool open)
{
	CFence* section = nullptr;
	for (const FenceStep& step : steps) {
		bool last = &step == steps.end() - 1;
		section   = new CFence(post, step.direction, step.style, open || !last);
		post      = section->FarPost(step.direction);
	}
	return section;
}

CFence* FenceChain(int x, int y, std::initializer_list<FenceStep> steps)
{
	return LayChain(new CFencePost(x, y), steps, true);
}

CFence* FenceRing(int x, int y, std::initializer_list<FenceStep> steps)
{
	CFencePost* first = new CFencePost(x, y);
	CFence* last      = LayChain(first, steps, false);
	if (last)
		CloseFence(last, first);
	return last;
}

void Herd(int species, std::initializer_list<HerdMember> members)
{
	for (const HerdMember& member : members)
		new CElementStampede(species, member.x, member.y, member.speed);
}

CElementPoint* Coin(float x, float y)
{
	return new CElementPoint(x, y, 0, POINT_COIN, 0, 0, 0);
}
