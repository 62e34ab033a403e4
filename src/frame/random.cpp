// The one source of chance: a seeded generator of 15 bits, so that a run repeats from its seed.
#include "frame/random.h"

static unsigned int s_state  = 1;
static unsigned long s_calls = 0;

void SeedRandom(unsigned int seed)
{
	s_state = seed;
	s_calls = 0;
}

// A linear congruence; its upper bits are the good ones.
int Rand()
{
	s_calls++;
	s_state = s_state * 214013u + 2531011u;
	return (s_state >> 16) & RAND_LIMIT;
}

unsigned long RandomCalls()
{
	return s_calls;
}

float RandomRange(float a, float b)
{
	return a + (b - a) * Rand() / static_cast<float>(RAND_LIMIT);
}

int RandomWhole(float a, float b)
{
	return static_cast<int>(RandomRange(a, b));
}

bool Coin()
{
	return Rand() & 1;
}
