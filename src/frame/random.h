// The one source of chance: a seeded generator of 15 bits, so that a run repeats from its seed.
#pragma once

const int RAND_LIMIT = 32767; // the largest value that Rand gives

void SeedRandom(unsigned int seed);

// The next value, 0 to RAND_LIMIT.
int Rand();

// How often Rand has been called since the last seeding: two runs that agree here took the same
// turns.
unsigned long RandomCalls();

// a + (b - a) * Rand() / 32767 in floats; a may be above b.
float RandomRange(float a, float b);

// RandomRange cut toward zero: b itself comes up only when Rand gives its very largest value.
int RandomWhole(float a, float b);

// True for an odd value.
bool Coin();
