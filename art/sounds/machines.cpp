// The professor's machine: ray, shield, fan.
#include "art/families.h"

#include "art/sounds/effect.h"
#include "art/sounds/ring.h"
#include "art/sounds/tones.h"

#include <cmath>

static void MakeRay(Sink& sink)
{
	Wave ray = Glide(.7, {{0, 1500}, {.2, 900}, {1, 180}}, {{0, 0}, {.02, 1}, {.5, .6}, {1, 0}}, 66,
	                 {31, .03});
	MixAt(ray, NoiseBand(.6, {{0, 5000}, {1, 700}}, .7, {{0, 0}, {.02, 1}, {1, 0}}, 4), 0, .8);
	MixAt(ray, Thud(70, .3, .3, 4), 0, .8);
	AddHit(sink, "destructoray", ray, -19);
}

// A chord of five that rises from half its pitch, or sinks back to it.
static Wave Shield(bool appears)
{
	const Curve RISING  = {{0, .5}, {.6, 1}, {1, 1}};
	const Curve SINKING = {{0, 1}, {.3, 1}, {1, .45}};
	const Curve SWELL   = {{0, 0}, {.5, .8}, {.7, 1}, {1, 0}};
	const Curve EBB     = {{0, 0}, {.05, 1}, {.4, .6}, {1, 0}};
	Wave chord;
	int voice = 0;
	for (const char* note : {"c4", "g4", "c5", "d5", "g5"}) {
		Curve pitch = (appears ? RISING : SINKING) * NoteHz(note);
		MixAt(chord, Glide(.75, pitch, appears ? SWELL : EBB, 7 + voice, {31, .002}),
		      appears ? .03 * voice : 0, .5);
		voice++;
	}
	const Curve opening = {{0, 800}, {1, 6000}}, closing = {{0, 6000}, {1, 600}};
	MixAt(chord, NoiseBand(.75, appears ? opening : closing, 1.2, {{0, 0}, {.5, 1}, {1, 0}}, 4), 0,
	      .35);
	return chord;
}

static void MakeShield(Sink& sink)
{
	const Room HALL = {-14, .6, 1.3};
	AddHit(sink, "energy_shield_appear", Shield(true), -22, HALL);
	AddHit(sink, "energy_shield_disappear", Shield(false), -22, HALL);
}

// The wash of the blades and the hum of the motor, in whole cycles of the loop.
static void MakeFan(Sink& sink)
{
	const double SECONDS = 2, BLADES = 27, MOTOR = 108; // Hz
	Wave wash = NoiseLoop(SECONDS, 900, .35, 4);
	MixAt(wash, NoiseLoop(SECONDS, 2600, .5, 5), 0, .35);
	for (size_t i = 0; i < wash.size(); i++) {
		double time = (double)i / SAMPLE_RATE;
		wash[i] *= .7 + .3 * std::sin(TAU * BLADES * time);
		wash[i] += .12 * std::sin(TAU * MOTOR * time) + .07 * std::sin(TAU * 2 * MOTOR * time) +
		           .03 * std::sin(TAU * 3 * MOTOR * time);
	}
	AddLoop(sink, "fan_loop", {wash, {}}, -30);
}

void AddMachineSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/ray", __FILE__, MakeRay);
	catalogue.Add("sounds/shield", __FILE__, MakeShield);
	catalogue.Add("sounds/fan", __FILE__, MakeFan);
}
