// The words in which level routines speak: thin names over the constructors.
#pragma once

#include "field/background.h"
#include "field/crate.h"
#include "field/element_point.h"
#include "field/fence.h"
#include "field/fence_post.h"
#include "field/powerup.h"

#include <initializer_list>

const bool LEFT  = true;
const bool RIGHT = false;

CBackground* Background(const BackgroundLook& look);

// Crates stand on the ground unless a layer is given; with an anchor x and y are offsets from it.
CCrate* Crate(int x, int y, int layer = 0, CCrate* anchor = nullptr);
CCrate* CoinCrate(int x, int y, int layer = 0, CCrate* anchor = nullptr); // a number by skill
CCrate* AppleCrate(int x, int y, int layer = 0, CCrate* anchor = nullptr);
// A fixed number of fruit in a plain crate.
CCrate* FruitCrate(int x, int y, PointKind fruit, int count, int layer = 0,
                   CCrate* anchor = nullptr);
CCrate* PrizeCrate(int x, int y, PowerupKind prize, int layer = 0, CCrate* anchor = nullptr);
CCrate* OrderCrate(int x, int y, PowerupKind prize, int number);
CCrate* Barrel(int x, int y, int layer = 0, CCrate* anchor = nullptr);
CCrate* CoinBarrel(int x, int y, int layer = 0, CCrate* anchor = nullptr);
CCrate* PrizeBarrel(int x, int y, PowerupKind prize, int layer = 0, CCrate* anchor = nullptr);

// A section of a fence: where it goes, and the line of its rails.
enum FenceStyle { LEVEL_RAILS = 0, FALLING_RAILS = 1, RISING_RAILS = 2 };
struct FenceStep {
	int direction;
	int style;
};

// A chain of sections from a new post at x, y; each begins at the far post of the one before.
// Returns the last section.
CFence* FenceChain(int x, int y, std::initializer_list<FenceStep> steps);
// The same, with the last section tied to the first post.
CFence* FenceRing(int x, int y, std::initializer_list<FenceStep> steps);

// The animals of a stampede, all of one species: where each starts, and how fast it runs.
struct HerdMember {
	int x, y;
	float speed; // pixels per frame, negative to the left
};
void Herd(int species, std::initializer_list<HerdMember> members);

// A coin that lies still.
CElementPoint* Coin(float x, float y);
