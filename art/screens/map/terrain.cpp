// Heights fall with the distance from the nearest dot, and noise frays them.
#include "art/screens/map/terrain.h"

static const float REACH        = 62;    // pixels of the close-up from a dot to the mean shore
static const float OBLIQUE      = 1.22f; // how much more a pixel down counts than one across
static const float EDGE_BAND    = 26; // pixels over which land sinks before it leaves its rectangle
static const float COUNTRY_BLUR = 13;

namespace
{
struct Spot {
	At at; // world
	Land land;
};
// One isle ready to be asked for heights.
struct Grower {
	std::vector<Spot> spots;
	int seed;
	const Placed* placed;
};
struct Sample {
	float level;
	Land first, second;
	float share;
};
} // namespace

bool Terrain::IsLand(float x, float y, float inland) const
{
	return LevelAt(x, y) > inland && lake.Clamped((int)x, (int)y) <= -.1f;
}

static float Rough(float x, float y, int seed)
{
	return (LayeredNoise(x * .020f, y * .024f, 4, seed) - .5f) * 1.15f +
	       (LayeredNoise(x * .075f, y * .085f, 2, seed + 5) - .5f) * .22f;
}

// How much the land sinks near the edges of its rectangle; the bands are uneven, or coasts would be
// drawn with a ruler.
static float Sinking(const MapView& view, float x, float y)
{
	float uneven = 22 * (LayeredNoise(x * .017f, y * .017f, 2, 71) - .5f);
	float inside =
	    std::min(std::min(x - view.west, view.east - x), std::min(y - view.north, view.south - y));
	float band = EDGE_BAND;
	return 2.6f * Smoothstep(band + uneven * view.scale, 1, inside);
}

static Sample Ask(const Grower& grower, float x, float y)
{
	const MapView& view = grower.placed->view;
	At w                = view.ToWorld(x, y);
	float nearest[(int)Land::Count];
	std::fill(nearest, nearest + (int)Land::Count, 1e9f);
	float best = 1e9f;
	for (const Spot& spot : grower.spots) {
		float dx = w.x - spot.at.x, dy = (w.y - spot.at.y) * OBLIQUE, far = dx * dx + dy * dy;
		best       = std::min(best, far);
		float& own = nearest[(int)spot.land];
		own        = std::min(own, far);
	}
	float level = 1 - std::sqrt(best) / REACH;
	if (level < -1.6f) // open sea whatever the noise says
		return {level, Land::Meadow, Land::Meadow, 0};
	int first = 0, second = 0;
	for (int i = 0; i < (int)Land::Count; i++)
		if (nearest[i] < nearest[first])
			first = i;
	for (int i = 0; i < (int)Land::Count; i++)
		if (i != first && (second == first || nearest[i] < nearest[second]))
			second = i;
	float warp  = 26 * (LayeredNoise(w.x * .05f, w.y * .05f, 3, 40) - .5f);
	float lead  = std::sqrt(nearest[second]) - std::sqrt(nearest[first]) + warp;
	float share = .5f * Smoothstep(COUNTRY_BLUR, 0, lead);
	if (lead < 0) { // the warp moves the border itself
		std::swap(first, second);
		share = .5f * Smoothstep(-COUNTRY_BLUR, 0, lead);
	}
	level += Rough(w.x, w.y, grower.seed);
	return {level - Sinking(view, x, y), (Land)first, (Land)second, share};
}

static float LakeAt(const Placed& placed, float x, float y)
{
	At w       = placed.view.ToWorld(x, y);
	float best = -1;
	for (const Pond& pond : placed.group->ponds) {
		float far  = std::hypot((w.x - pond.x) / pond.rx, (w.y - pond.y) / pond.ry);
		float wild = .7f * (LayeredNoise(w.x * .06f, w.y * .07f, 3, 55) - .5f);
		best       = std::max(best, 1 - far + wild);
	}
	return best;
}

static std::vector<Grower> Growers(const std::vector<Placed>& groups)
{
	std::vector<Grower> growers;
	for (const Placed& placed : groups)
		for (const Isle& isle : placed.group->isles) {
			Grower grower = {{}, isle.seed, &placed};
			for (int level = isle.first; level <= isle.last; level++)
				grower.spots.push_back({DotMiddle(level), LandOfLevel(level)});
			growers.push_back(grower);
		}
	return growers;
}

Terrain Grow(const std::vector<Placed>& groups, int width, int height)
{
	const std::vector<Grower> growers = Growers(groups);
	Terrain t                         = {
	                            width, height, Field(width, height), Field(width, height, -1), Field(width, height),
	                            {},    {}};
	t.first.resize((size_t)width * height);
	t.second.resize((size_t)width * height);
	for (int y = 0; y < height; y++)
		for (int x = 0; x < width; x++) {
			Sample best = {-9, Land::Meadow, Land::Meadow, 0};
			for (const Grower& grower : growers) {
				Sample sample = Ask(grower, x, y);
				if (sample.level > best.level)
					best = sample;
			}
			size_t i        = (size_t)y * width + x;
			t.level.data[i] = best.level;
			t.share.data[i] = best.share;
			t.first[i]      = (uint8_t)best.first;
			t.second[i]     = (uint8_t)best.second;
			if (best.level < 0)
				continue;
			for (const Placed& placed : groups)
				t.lake.data[i] = std::max(t.lake.data[i], LakeAt(placed, x, y));
		}
	return t;
}
