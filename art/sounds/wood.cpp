// Crates and barrels: blows on boards, and boards that burst.
#include "art/families.h"

#include "art/sounds/chance.h"
#include "art/sounds/effect.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

#include <cmath>

static const double BOARDS[] = {300, 345, 395}; // Hz

static Wave DamagedBoard(int i)
{
	Wave board = Plank(BOARDS[i], .16, 11 + i);
	MixAt(board, Thud(130 + 15 * i, .10, .25, 3 + i), 0, .28);
	MixAt(board, NoiseBand(.035, 2600 + 300 * i, .8, {{0, 0}, {.08, 1}, {1, 0}}, 30 + i), 0, .8);
	return board;
}

// The crack, then splinters that fall at random, ever fewer and softer.
static Wave BurstBoard(int i)
{
	const int SPLINTERS = 16;
	Wave board          = Plank(BOARDS[i] * .8, .22, 21 + i, 5000);
	MixAt(board, Thud(85 + 10 * i, .28, .5, 4 + i), 0, .45);
	MixAt(board,
	      NoiseBand(.09, {{0, 3800}, {1, 1500}}, .5, {{0, 0}, {.03, 1}, {.3, .35}, {1, 0}}, 33 + i),
	      0, 1.5);
	Chance chance(70 + i);
	double at = .03, gain = .62;
	for (int k = 0; k < SPLINTERS; k++) {
		at -= .03 * std::log(1 - chance.Unit() * .95) * (1 + .06 * k);
		double hz = chance.Between(420, 1500), decay = chance.Between(.04, .1);
		MixAt(board, Plank(hz, decay, 500 + 31 * i + k, 7000), at, gain * chance.Between(.6, 1.1));
		gain *= .87;
	}
	return board;
}

static void MakeWood(Sink& sink)
{
	for (int i = 0; i < 3; i++) {
		std::string number = std::to_string(i + 1);
		AddHit(sink, "damage_object_wood" + number, DamagedBoard(i), -21);
		AddHit(sink, "destroy_object_wood" + number, BurstBoard(i), -19, {-16, .3, 1});
	}
}

void AddWoodSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/wood", __FILE__, MakeWood);
}
