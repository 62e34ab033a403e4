// A 64-bit xorshift generator with a multiplied output.
#include "art/sounds/chance.h"

static const int WARM_UP = 8; // near seeds give near first numbers

Chance::Chance(uint64_t seed) : state(seed * 2654435769u + 88172645463325252ull)
{
	for (int i = 0; i < WARM_UP; i++)
		Next();
}

uint64_t Chance::Next()
{
	state ^= state >> 12;
	state ^= state << 25;
	state ^= state >> 27;
	return state * 2685821657736338717ull;
}

double Chance::Unit()
{
	return (double)(Next() >> 11) / 9007199254740992.0;
}

double Chance::Signed()
{
	return Unit() * 2 - 1;
}

double Chance::Between(double low, double high)
{
	return low + (high - low) * Unit();
}

double Chance::Normal()
{
	double sum = Unit();
	for (int i = 0; i < 3; i++)
		sum += Unit();
	return (sum - 2) * 1.7320508;
}
