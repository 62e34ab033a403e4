// Seeded noise and the generator of random numbers.
#include "art/core/vec.h"

static float Ease(float f)
{
	return f * f * (3 - 2 * f);
}

float Noise(Vec3 p)
{
	float baseX = std::floor(p.x), baseY = std::floor(p.y), baseZ = std::floor(p.z);
	int x = (int)baseX, y = (int)baseY, z = (int)baseZ;
	float fx = Ease(p.x - baseX), fy = Ease(p.y - baseY), fz = Ease(p.z - baseZ);
	float near = Mix(Mix(Hash01(x, y, z), Hash01(x + 1, y, z), fx),
	                 Mix(Hash01(x, y + 1, z), Hash01(x + 1, y + 1, z), fx), fy);
	float far  = Mix(Mix(Hash01(x, y, z + 1), Hash01(x + 1, y, z + 1), fx),
	                 Mix(Hash01(x, y + 1, z + 1), Hash01(x + 1, y + 1, z + 1), fx), fy);
	return Mix(near, far, fz);
}

float LayeredNoise(Vec3 p, int layers)
{
	float sum = 0, weight = .5f, total = 0;
	for (int i = 0; i < layers; i++) {
		sum += weight * Noise(p);
		total += weight;
		weight *= .5f;
		p = p * 2.03f + Vec3{7.1f, 3.7f, 1.3f}; // off the lattice, or the layers show through
	}
	return sum / total;
}

float Random::Next01()
{
	state = state * 1664525u + 1013904223u;
	return (Scramble(state) & 0xffffff) / 16777216.f;
}
