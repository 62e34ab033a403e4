// What is gathered: animals, coins, the money bag, power-ups. Notes from C D E G A only.
#include "art/families.h"

#include "art/sounds/chance.h"
#include "art/sounds/effect.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

static const Strike CLINK_BLOW = {13000, .0004, .1};

// A bubble, a grace note one step below, and a bell: one step of the scale higher for each animal.
// The tenth is a run up.
static void MakeCollecting(Sink& sink)
{
	const int ANIMALS = 10, OCTAVE = 5;
	for (int i = 0; i < ANIMALS; i++) {
		bool last  = i == ANIMALS - 1;
		double hz  = last ? NoteHz("c7") : CommonNoteHz(OCTAVE, i);
		double low = i ? CommonNoteHz(OCTAVE, i - 1) : NoteHz("g4");
		Wave bell  = Bubble(hz / 2, .9, .12);
		Scale(bell, .5);
		MixAt(bell, Mallet(low, .3, .1, 3), 0, .45);
		MixAt(bell, Mallet(hz, .6, .3 - .015 * i, 7 + i), .07);
		double at = .05;
		if (last)
			for (const char* note : {"c6", "e6", "g6", "c7", "e7"}) {
				MixAt(bell, Mallet(NoteHz(note), .8, .6, 40), at, .8);
				at += .06;
			}
		AddHit(sink, "collect_animal" + std::to_string(i + 1), bell, -20, {-14, .5, 1.1});
	}
}

static void MakeCoins(Sink& sink)
{
	const char* const PAIRS[][2] = {{"e6", "a6"}, {"g6", "c7"}, {"d6", "g6"}, {"a6", "d7"}};
	for (int i = 0; i < 4; i++) {
		Wave coin = Mallet(NoteHz(PAIRS[i][0]), .25, .4, i);
		MixAt(coin, Mallet(NoteHz(PAIRS[i][1]), .6, .5, i + 9), .065);
		MixAt(coin,
		      Struck({{4210, .3, .6}, {5630, .25, .5}, {7905, .2, .4}, {10340, .12, .3}},
		             {14000, .0004, .1}, i),
		      0, .22);
		AddHit(sink, "coin_collection" + std::to_string(i + 1), coin, -23, {-16, .35});
	}
}

static void MakeBag(Sink& sink)
{
	const int CLINKS = 12;
	Wave bag         = Thud(140, .12, .3, 8);
	Chance chance(4);
	double gain = .5;
	for (int i = 0; i < CLINKS; i++) {
		Wave clink = Struck({{chance.Between(3800, 4500), .25, .7},
		                     {chance.Between(5200, 6000), .2, .5},
		                     {chance.Between(7400, 8300), .15, .4}},
		                    CLINK_BLOW, 60 + i);
		MixAt(bag, clink, .01 + .035 * i * chance.Between(.7, 1.2), gain);
		gain *= .92;
	}
	MixAt(bag, Mallet(NoteHz("g6"), .6, .5, 3), .12, .6);
	AddHit(sink, "collect_moneybag", bag, -22, {-16, .35});
}

static void MakePowerup(Sink& sink)
{
	Wave run;
	double at = 0;
	for (const char* note : {"c5", "e5", "g5", "c6"}) {
		MixAt(run, Mallet(NoteHz(note), .5, .4, 20), at, .8);
		at += .055;
	}
	AddHit(sink, "collect_powerup", run, -21, {-14, .5});
}

void AddPrizeSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/collecting", __FILE__, MakeCollecting);
	catalogue.Add("sounds/coins", __FILE__, MakeCoins);
	catalogue.Add("sounds/bag", __FILE__, MakeBag);
	catalogue.Add("sounds/powerup", __FILE__, MakePowerup);
}
