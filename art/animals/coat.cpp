// The patterns of coats.
#include "art/animals/coat.h"

static float Stripes(const Coat& coat, Vec3 p, Vec3 folded)
{
	float warp      = Noise(folded * .23f) * 2.2f;
	float wave      = std::sin(p.x * coat.frequency + warp + p.y * .12f);
	float threshold = coat.threshold + .6f * Smoothstep(2, -6, p.y - coat.bellyLine);
	return Smoothstep(threshold, threshold + .28f, wave);
}

// How much of the mark's colour lies at a point, 0..1.
static float MarkAt(const Coat& coat, const SurfacePoint& at)
{
	Vec3 p      = at.position;
	Vec3 folded = {p.x, p.y, std::fabs(p.z)};
	float from  = coat.threshold;
	switch (coat.kind) {
	case CoatKind::Plain:
		break;
	case CoatKind::Stripes:
		return Stripes(coat, p, folded);
	case CoatKind::Patches: {
		Vec3 place = folded * coat.frequency + Vec3{coat.seed, 3.3f, 1.7f};
		return Smoothstep(from, from + .05f, LayeredNoise(place, 2));
	}
	case CoatKind::Bands:
		return Smoothstep(from, from + .6f, p.x);
	case CoatKind::BackStripe:
		return Smoothstep(from, from + .08f, at.normal.y);
	case CoatKind::Saddle: {
		float ragged = .25f * (Noise(folded * .6f) - .5f);
		return Smoothstep(from, from + .25f, at.normal.y + ragged);
	}
	}
	return 0;
}

Colour CoatColour(const Coat& coat, const SurfacePoint& at)
{
	float above = Smoothstep(-.65f, -.15f, at.normal.y);
	Colour c    = Mix(HexColour(coat.belly), HexColour(coat.base), above);
	c           = Mix(c, HexColour(coat.mark), MarkAt(coat, at));
	if (coat.rump)
		c = Mix(HexColour(coat.rump), c,
		        Smoothstep(coat.rumpX - .3f, coat.rumpX + .3f, at.position.x));
	return c;
}

int AddCoat(Model& model, const Coat& coat, float lean)
{
	return model.Painted(
	    [coat, upright = TurnZ(-lean)](const SurfacePoint& at) {
		    SurfacePoint level = at;
		    level.normal       = upright * at.normal;
		    return CoatColour(coat, level);
	    },
	    coat.gloss);
}
