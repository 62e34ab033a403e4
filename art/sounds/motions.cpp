// What animals are heard doing: feet, falls, sprays, rattles.
#include "art/families.h"

#include "art/sounds/chance.h"
#include "art/sounds/effect.h"
#include "art/sounds/ring.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

static const Curve PUFF = {{0, 0}, {.3, 1}, {1, 0}};

static void MakeFeet(Sink& sink)
{
	AddHit(sink, "subtle_thud", Thud(95, .13, .3, 4), -27);
	AddHit(sink, "animal_jump_landing", Thud(110, .14, .45, 5), -25);

	Wave jump = Tone(.22, {{0, 230}, {1, 520}}, {{0, 0}, {.2, 1}, {1, 0}}, {1, .2});
	MixAt(jump, NoiseBand(.2, {{0, 900}, {1, 2600}}, .9, {{0, 0}, {.4, 1}, {1, 0}}, 4), 0, .5);
	AddHit(sink, "animal_jump", jump, -25);

	Wave clops;
	for (int i = 0; i < 2; i++) {
		Wave hoof = Struck({{620 - 60.0 * i, .06, 1}, {1180, .04, .6}, {1990, .03, .4}},
		                   {4000, .002, .4}, 3 + i);
		MixAt(clops, hoof, .14 * i);
		MixAt(clops, Thud(140, .07, .4, 6 + i), .14 * i, .22);
	}
	AddHit(sink, "horse_feet", clops, -22);

	Wave springs;
	for (int i = 0; i < 2; i++)
		MixAt(springs,
		      Tone(.4, {{0, 130 + 20.0 * i}, {.15, 260}, {1, 210}},
		           {{0, 0}, {.04, 1}, {.4, .4}, {1, 0}}, {1, .5, .3, .2, .1}, {22 - 3.0 * i, .12}),
		      .3 * i, 1 - .3 * i);
	MixAt(springs, Thud(90, .12, .4, 4), 0, .8);
	AddHit(sink, "kangaroo_bounce", springs, -23);
}

static void MakeFalls(Sink& sink)
{
	Wave camel = Thud(62, .45, .7, 4);
	MixAt(camel, NoiseBand(.6, {{0, 900}, {1, 350}}, .5, {{0, 0}, {.05, 1}, {1, 0}}, 3), .02, .7);
	AddHit(sink, "camel_fall", camel, -21);

	const int LEAVES = 9;
	Wave fall;
	Chance chance(5);
	for (int i = 0; i < LEAVES; i++) {
		double seconds = chance.Between(.05, .12), hz = chance.Between(2500, 5200);
		double at = .03 * i * chance.Between(.7, 1.3), gain = .15 + .4 * chance.Unit();
		MixAt(fall, NoiseBand(seconds, hz, .7, {{0, 0}, {.2, 1}, {1, 0}}, 50 + i), at, gain);
	}
	MixAt(fall, Thud(105, .15, .45, 5), .24);
	AddHit(sink, "animal_land_from_tree", fall, -23);
}

static void MakeShakes(Sink& sink)
{
	AddHit(sink, "skunk_spray",
	       NoiseBand(.75, {{0, 2500}, {.1, 5200}, {1, 3800}}, .6,
	                 {{0, 0}, {.04, 1}, {.5, .6}, {1, 0}}, 8),
	       -27);

	Wave head = NoiseBand(.28, {{0, 700}, {.3, 1500}, {1, 500}}, .6, {{0, 0}, {.1, 1}, {1, 0}}, 6);
	MixAt(head, Thud(120, .14, .3, 4), .03, .8);
	MixAt(head, Bubble(250, -.4, .1), .06, .7);
	AddHit(sink, "ostrich_head", head, -23);

	const int FLAPS = 12, DROPS = 6;
	Wave shake;
	Chance chance(6);
	for (int i = 0; i < FLAPS; i++)
		MixAt(shake, NoiseBand(.045, chance.Between(1500, 2600), .8, PUFF, 80 + i), .052 * i,
		      .9 - .05 * i);
	for (int i = 0; i < DROPS; i++) {
		double hz = chance.Between(700, 1600), at = chance.Between(.05, .6);
		MixAt(shake, Bubble(hz, .5, .03), at, .25);
	}
	AddHit(sink, "penguin_shake", shake, -26);

	Wave turtle = Bubble(300, 1.2, .1);
	MixAt(turtle, Struck({{700, .05, 1}, {1450, .03, .5}}, {3500, .002}, 3), .05, .7);
	AddHit(sink, "turtle_appear", turtle, -24);
}

// The beads of the tail: clicks at the rate of a snake in earnest, in slow waves of loudness.
static void MakeRattle(Sink& sink)
{
	const double SECONDS = 1.5;
	const int CLICKS = 108, WAVES = 2; // 72 clicks a second
	Ring ring(SECONDS);
	Chance chance(9);
	for (int i = 0; i < CLICKS; i++) {
		double share = (double)i / CLICKS;
		Wave click   = Struck({{chance.Between(5200, 6400), .012, 1},
		                       {chance.Between(8200, 9800), .010, .9},
		                       {chance.Between(11500, 13500), .008, .6},
		                       {chance.Between(2600, 3200), .008, .4}},
		                      {14000, .0005, .4}, 300 + i);
		double loud  = .55 + .45 * chance.Unit() * (.7 + .3 * std::sin(TAU * WAVES * share));
		ring.Add(click, share * SECONDS + chance.Between(0, .003), loud, 0);
	}
	AddLoop(sink, "snake_rattle", {ring.sound.left, {}}, -26);
}

void AddMotionSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/feet", __FILE__, MakeFeet);
	catalogue.Add("sounds/falls", __FILE__, MakeFalls);
	catalogue.Add("sounds/shakes", __FILE__, MakeShakes);
	catalogue.Add("sounds/rattle", __FILE__, MakeRattle);
}
