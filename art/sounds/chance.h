// Seeded chance for sounds: the same numbers on every machine.
#pragma once

#include <cstdint>

class Chance
{
public:
	explicit Chance(uint64_t seed);

	double Unit();   // 0 to below 1
	double Signed(); // -1 to below 1
	double Between(double low, double high);
	double Normal(); // nearly normal: mean 0, deviation 1, never beyond 3.5

private:
	uint64_t Next();

	uint64_t state;
};
