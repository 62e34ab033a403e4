// Each marking as a function of the place on the face.
#include "art/animals/face_mark.h"

static const Colour DARK = HexColour(0x2a2630);
static const Colour BROW = HexColour(0xf4efe6);
static const Colour ROSY = HexColour(0xf29a8c);

static Colour BanditMask(Vec3 p, Colour base)
{
	float inside = Smoothstep(.02f, .08f, p.y + .22f) * (1 - Smoothstep(.44f, .50f, p.y)) *
	               Smoothstep(.05f, .15f, p.x);
	float brow =
	    Smoothstep(.50f, .56f, p.y) * (1 - Smoothstep(.72f, .78f, p.y)) * Smoothstep(.1f, .2f, p.x);
	return Mix(Mix(base, DARK, inside), BROW, brow * .9f);
}

static Colour Spot(Vec3 p, Colour base, Colour mark, float up, float aside, float flat, float from,
                   float to)
{
	if (p.x <= .2f)
		return base;
	float dy = p.y - up, dz = std::fabs(p.z) - aside;
	return Mix(mark, base, Smoothstep(from, to, std::sqrt(dy * dy * flat + dz * dz)));
}

static Colour Bars(Vec3 p, Colour base, Colour mark)
{
	float z    = std::fabs(p.z);
	bool cheek = std::sin(p.y * 8.5f + 1.2f) > .35f && z > .62f && p.y < .4f;
	bool brow  = p.y > .55f && std::sin(p.z * 9.f + 1.57f) > .45f;
	return cheek || brow ? mark : base;
}

static Colour MarkedColour(const Head& head, Vec3 p, Colour base)
{
	Colour mark = HexColour(head.markColour);
	float z     = std::fabs(p.z);
	switch (head.mark) {
	case FaceMark::None:
		break;
	case FaceMark::Blaze:
		return Mix(mark, base, p.x < 0 ? 1.f : Smoothstep(.16f, .26f, z));
	case FaceMark::SkunkStripe:
		return Mix(mark, base, p.y < .15f ? 1.f : Smoothstep(.15f, .24f, z));
	case FaceMark::PandaEyes:
		return Spot(p, base, DARK, .16f, .50f, .75f, .36f, .44f);
	case FaceMark::Bandit:
		return BanditMask(p, base);
	case FaceMark::PaleCheeks:
		return Mix(base, mark,
		           Smoothstep(.05f, -.12f, p.y - z * .35f) * Smoothstep(-.1f, .1f, p.x));
	case FaceMark::EyeRings:
		return Spot(p, base, mark, .28f, .48f, 1, .34f, .42f);
	case FaceMark::Bars:
		return Bars(p, base, mark);
	case FaceMark::CheekStripe: {
		float band = std::fabs(std::fabs(p.y - .05f - .12f * p.x) - .20f);
		return z > .3f && p.x > -.6f ? Mix(mark, base, Smoothstep(.10f, .16f, band)) : base;
	}
	case FaceMark::DarkMask:
		return Mix(base, mark, Smoothstep(.25f, .45f, p.x));
	}
	return base;
}

Colour FaceColour(const Head& head, Vec3 p, Colour base)
{
	Colour c = MarkedColour(head, p, base);
	if (head.blush <= 0)
		return c;
	float dy = p.y + .22f, dz = std::fabs(p.z) - .70f;
	float near = Smoothstep(.34f, .10f, std::sqrt(dy * dy + dz * dz)) * Smoothstep(.1f, .4f, p.x);
	return Mix(c, ROSY, near * head.blush);
}
