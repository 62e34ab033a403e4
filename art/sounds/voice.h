// Voices by source and filter: what the folds or a whistle give, shaped by throat and lips.
#pragma once

#include "art/sounds/curve.h"
#include "art/sounds/wave.h"

#include <cstdint>
#include <vector>

// One breath of an animal. Curves run over 0..1 of its length. Frequencies in Hz, shares 0..1.
struct Syllable {
	double at = 0, seconds = 1; // start in the call, and length
	double gain = 1;            // peak
	Curve pitch = 200;
	Curve loud  = 1;

	// the throat: moving formants; more follow above at the same spacing up to `fillTo`
	std::vector<Curve> formants = {};
	double pressed              = 1;  // the folds: 0.35 harsh, 0.6 bleat, 1 soft moo
	std::vector<double> tone    = {}; // weights of harmonics: a whistle or hoot in place of folds

	// breath that the open folds let through; 1 is breath alone
	Curve breath    = .04;
	double breathHz = 5000; // its colour

	// roughness
	Curve rough   = 0; // cycles of uneven length and size: 0.3 hoarse, 0.8 a roar
	Curve sub     = 0; // every second cycle weaker: a growl an octave below
	double jitter = .008, shimmer = .05;

	double tremolo = 0, tremoloLoud = 0, tremoloPitch = 0; // Hz; bleat, whinny, rolled coo
	double growl = 0, growlDepth = 0;                      // Hz; slow uneven beats of loudness

	Curve mouth      = 18000;                    // the lips let through what lies below
	Curve nose       = 0;                        // 1: a hum through the nose, mouth shut
	double bandwidth = 60, bandwidthShare = .07; // of a formant: Hz, and share of its own frequency
	double fillTo = 8000;
};

using Call = std::vector<Syllable>;

// The same syllable at another place, with factors on pitch, gain and length.
Syllable Again(Syllable s, double at, double pitch = 1, double gain = 1, double stretch = 1);
// All formants (the size of the animal) by a factor.
Syllable Sized(Syllable s, double factor);

Wave RenderSyllable(const Syllable& s, uint64_t seed);
// All syllables of a call, dry.
Wave RenderCall(const Call& call, uint64_t seed);
