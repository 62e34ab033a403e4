// Cacti: tall ones that sway when the ball strikes them, and round ones that stand still.
#include "art/families.h"

#include "art/core/palette.h"
#include "art/core/renderer.h"

static const int SWAY_FRAMES = 7; // 0 at rest, then two each to the left, to the right, to the left
static const float SWAY[SWAY_FRAMES] = {0, -.5f, -1.f, .42f, .8f, -.25f, -.45f};

static const Colour CACTUS_GREENS[3] = {HexColour(0x4f9a48), HexColour(0x6aa844),
                                        HexColour(0x3f8a5c)};
static const Colour FLOWERS[4] = {HexColour(0xf2609c), HexColour(0xffc83a), HexColour(0xfff2e0),
                                  HexColour(0xf0563a)};

// Ribs run along a stem round its axis, with rows of pale spines on their crests.
static Colour RibColour(float around, float along, int ribs, Colour green)
{
	float rib    = std::cos(around * ribs);
	Colour c     = green * (1 + .10f * rib);
	c            = Mix(c, ShadowOf(green), .55f * Smoothstep(-.35f, -.95f, rib));
	float row    = along / 4.2f - std::floor(along / 4.2f);
	float spines = Smoothstep(.72f, .95f, rib) * Smoothstep(.34f, .20f, std::fabs(row - .5f));
	return Mix(c, HexColour(0xf4eec0), .72f * spines);
}

namespace
{
// One cactus with its foot at the origin; `bend` pixels sideways at the height `tall`.
struct Cactus {
	Model model;
	float tall, bend = 0;
	Colour green;

	Cactus(float tall, Colour green) : tall(tall), green(green) {}
	Vec3 Bent(Vec3 p) const
	{
		return {p.x + bend * std::pow(std::max(0.f, p.y) / tall, 1.6f), p.y, p.z};
	}
	int Ribbed(Vec3 centre, bool upright, int ribs);
	void Stem(float x, float low, float high, float radius);
	void Arm(float rootX, float rootY, float outX, float topY, float radius);
	void Pad(Vec3 centre, float rx, float ry, float turn);
	void Bloom(Vec3 p, float size, Colour colour);
};
} // namespace

int Cactus::Ribbed(Vec3 centre, bool upright, int ribs)
{
	Colour g = green;
	return model.Painted(
	    [=](const SurfacePoint& at) {
		    Vec3 p = at.position - centre;
		    return upright ? RibColour(std::atan2(p.x, p.z), p.y, ribs, g)
		                   : RibColour(std::atan2(p.y, p.z), p.x, ribs, g);
	    },
	    .12f);
}

void Cactus::Stem(float x, float low, float high, float radius)
{
	const int PIECES = 5;
	for (int i = 0; i < PIECES; i++) {
		float from = Mix(low, high, i / (float)PIECES), to = Mix(low, high, (i + 1.f) / PIECES);
		Vec3 a = Bent({x, from, 0}), b = Bent({x, to, 0});
		float ra = radius * (i ? 1 : .86f), rb = radius * (i == PIECES - 1 ? .90f : 1);
		model.RoundCone(a, b, ra, rb, Ribbed(Mix(a, b, .5f), true, 10), i ? .5f : 0);
	}
}

// Out from the stem, then up.
void Cactus::Arm(float rootX, float rootY, float outX, float topY, float radius)
{
	Vec3 root = Bent({rootX, rootY, 0}), elbow = Bent({outX, rootY + 2.5f, 1}),
	     tip = Bent({outX, topY, 1});
	model.RoundCone(root, elbow, radius * .86f, radius, Ribbed(Mix(root, elbow, .5f), false, 8),
	                1.6f);
	model.RoundCone(elbow, tip, radius, radius * .86f, Ribbed(Mix(elbow, tip, .5f), true, 8), 1.0f);
}

// A flat pad of a prickly pear, dotted with spines.
void Cactus::Pad(Vec3 centre, float rx, float ry, float turn)
{
	Colour g = green;
	Vec3 c   = Bent(centre);
	int pad  = model.Painted(
        [=](const SurfacePoint& at) {
            Vec3 p  = at.position - c;
            float u = p.x / 3.6f, v = p.y / 3.6f + .5f * (float)((int)std::floor(u) & 1);
            float dot = std::hypot(u - std::floor(u) - .5f, v - std::floor(v) - .5f);
            return Mix(g, HexColour(0xf4eec0), .75f * Smoothstep(.26f, .13f, dot));
        },
        .14f);
	model.Ellipsoid(c, {rx, ry, rx * .34f}, TurnZ(turn) * TurnY(.25f), pad, .7f);
}

void Cactus::Bloom(Vec3 p, float size, Colour colour)
{
	int petal = model.Plain(colour, .15f), heart = model.Plain(0xffe27a, .2f);
	Vec3 at = Bent(p);
	for (int i = 0; i < 5; i++) {
		float a = i * 2 * PI / 5 + .4f;
		model.Ball(at + Vec3{std::cos(a) * size * .62f, std::sin(a) * size * .25f,
		                     std::sin(a) * size * .55f},
		           size * .52f, petal, .2f);
	}
	model.Ball(at + Vec3{0, size * .4f, size * .2f}, size * .34f, heart, 0);
}

static void BuildTall(Cactus& c, int variant)
{
	switch (variant) {
	case 0: // two arms
		c.Stem(0, 2, 49, 6.2f);
		c.Arm(-4, 20, -15, 38, 4.2f);
		c.Arm(4, 27, 14.5f, 43, 4.0f);
		c.Bloom({0, 55.5f, 1}, 3.4f, FLOWERS[0]);
		break;
	case 1: // one arm, and a bud of a second
		c.Stem(0, 2, 51, 6.6f);
		c.Arm(4, 19, 15.5f, 38, 4.4f);
		c.Arm(-5, 33, -10.5f, 37, 3.6f);
		break;
	case 2: // a row of pipes
		c.Stem(-11, 2, 34, 5.0f);
		c.Stem(11, 2, 39, 5.0f);
		c.Stem(0, 2, 52, 5.8f);
		c.Bloom({-11, 39, 1}, 2.8f, FLOWERS[1]);
		c.Bloom({11, 44, 1}, 2.8f, FLOWERS[1]);
		break;
	case 3: // prickly pear
		c.Pad({0, 11, 0}, 10, 12, 0);
		c.Pad({-10, 27, -1}, 8.6f, 11, .38f);
		c.Pad({9, 28, 1}, 8.8f, 11.5f, -.34f);
		c.Pad({-13, 44, -1}, 6.6f, 8.6f, .15f);
		c.Pad({3, 45, 0}, 6.8f, 9, -.12f);
		c.Bloom({-13, 53, 1}, 3, FLOWERS[3]);
		c.Bloom({13, 40, 2}, 3, FLOWERS[3]);
		c.Bloom({4, 54, 1}, 3, FLOWERS[3]);
		break;
	default: // old candelabrum
		c.Stem(0, 2, 44, 6.8f);
		c.Arm(-4, 18, -16, 49, 4.0f);
		c.Arm(4, 22, 16, 50, 4.0f);
		c.Bloom({0, 51, 1}, 3.2f, FLOWERS[2]);
		c.Bloom({-16, 53.5f, 1}, 2.6f, FLOWERS[2]);
		c.Bloom({16, 54.5f, 1}, 2.6f, FLOWERS[2]);
	}
}

static void BuildSmall(Cactus& c, int variant)
{
	switch (variant) {
	case 0:
		c.Stem(0, 2, 34, 5.4f);
		c.Arm(-3, 14, -11, 26, 3.4f);
		c.Arm(3, 18, 10.5f, 29, 3.2f);
		break;
	case 1:
		c.Stem(0, 2, 31, 6.0f);
		c.Arm(4, 12, 12.5f, 22, 3.6f);
		c.Bloom({0, 37.5f, 1}, 3, FLOWERS[1]);
		break;
	default:
		c.Pad({0, 9, 0}, 8.4f, 10, 0);
		c.Pad({-7.5f, 23, -1}, 7, 9, .34f);
		c.Pad({7.5f, 24, 1}, 7, 9, -.30f);
		c.Bloom({-11, 31, 1}, 2.6f, FLOWERS[0]);
		c.Bloom({10, 33, 1}, 2.6f, FLOWERS[0]);
	}
}

// The picture's foot lies 12 pixels above its lower edge.
static Image DrawSwaying(bool big, int variant, int frame)
{
	const int W = big ? 50 : 39, H = big ? 73 : 54, FOOT = 12;
	const float REACH = big ? 5.5f : 4;
	Cactus cactus(big ? 58.f : 36.f, CACTUS_GREENS[variant % 3]);
	cactus.bend = SWAY[frame] * REACH;
	if (big)
		BuildTall(cactus, variant);
	else
		BuildSmall(cactus, variant);
	Image out(W, H);
	float x = W * .5f;
	DrawFootShadow(out, x + 2, H - FOOT + 1.f, W * .27f, PAINT_SHADOW_SAND, .42f);
	Compose(out, RenderModel(cactus.model, ViewFrom(W, H, x, H - FOOT - .5f, 0, 8)), 0, 0);
	return out;
}

// Balls, buttons and little families, with and without flowers.
static void BuildRound(Cactus& c, int variant, float r)
{
	auto ball = [&](float x, float z, float size, float high) {
		Vec3 centre{x, size * high * .86f, z};
		c.model.Ellipsoid(centre, {size, size * high, size}, {},
		                  c.Ribbed(centre, true, size > 5 ? 11 : 8), .2f);
	};
	Colour flower = FLOWERS[variant % 4];
	switch (variant % 6) {
	case 0:
		ball(0, 0, r, .92f);
		break;
	case 1:
		ball(0, 0, r, .90f);
		c.Bloom({0, r * 1.68f, .5f}, r * .34f, flower);
		break;
	case 2:
		ball(-r * .34f, -1, r * .70f, 1.15f);
		ball(r * .50f, 1, r * .52f, .95f);
		break;
	case 3:
		ball(0, -1, r * .72f, 1.18f);
		ball(-r * .62f, 1, r * .42f, .95f);
		ball(r * .62f, 1.5f, r * .40f, .95f);
		c.Bloom({0, r * 1.56f, .5f}, r * .26f, flower);
		break;
	case 4:
		ball(0, 0, r * .96f, .74f);
		for (int i = -1; i <= 1; i++)
			c.Bloom({i * r * .42f, r * (i ? 1.18f : 1.32f), i ? 2.f : 0.f}, r * .24f, flower);
		break;
	default:
		ball(0, 0, r * .76f, 1.25f);
		c.Bloom({0, r * 1.76f, .5f}, r * .28f, flower);
	}
}

static Image DrawRound(bool big, int variant)
{
	const int W = big ? 24 : 18, H = big ? 29 : 19, FOOT = big ? 22 : 13;
	float r = big ? 9 : 6.6f;
	Cactus cactus(r * 2, CACTUS_GREENS[(variant + variant / 6) % 3]);
	BuildRound(cactus, variant, r * (big ? 1.f : .92f));
	Image out(W, H);
	DrawFootShadow(out, W * .5f + 1, FOOT + .5f, W * .32f, PAINT_SHADOW_SAND, .42f);
	Compose(out, RenderModel(cactus.model, ViewFrom(W, H, W * .5f, FOOT, 0, 14)), 0, 0);
	return out;
}

static void AddSwaying(Catalogue& catalogue, const char* word, bool big, int variants)
{
	for (int variant = 0; variant < variants; variant++) {
		std::string stem = std::string(word) + (char)('A' + variant);
		catalogue.Add(stem, __FILE__, [stem, big, variant](Sink& sink) {
			for (int frame = 0; frame < SWAY_FRAMES; frame++)
				sink.Add(stem + std::to_string(frame) + ".png", DrawSwaying(big, variant, frame));
		});
	}
}

void AddCacti(Catalogue& catalogue)
{
	const int ROUND_VARIANTS = 11;
	AddSwaying(catalogue, "cactusbig", true, 5);
	AddSwaying(catalogue, "cactussmall", false, 3);
	catalogue.Add("cactusround", __FILE__, [](Sink& sink) {
		for (int i = 0; i < ROUND_VARIANTS; i++) {
			sink.Add(std::string("cactusroundbig") + (char)('A' + i) + ".png", DrawRound(true, i));
			sink.Add(std::string("cactusroundsmall") + (char)('A' + i) + ".png",
			         DrawRound(false, i));
		}
	});
}
