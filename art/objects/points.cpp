// The models of fruit and eggs, the reliefs of coins, and their pictures.
#include "art/objects/points.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/families.h"

static const int FRUIT_WIDTH = 18, FRUIT_HEIGHT = 20;

namespace
{
void AddApple(Model& m, bool green, int variant)
{
	const uint32_t bodies[2][3]  = {{0xe0352a, 0xd42a34, 0xe8482a}, {0x9ad83a, 0xc8dc40, 0x7ccc3c}};
	const uint32_t blushes[2][3] = {{0xf8a23c, 0xf06a4a, 0xffc04a}, {0xe4f47a, 0xf4a84a, 0xd8f078}};
	Colour a = HexColour(bodies[green][variant]), b = HexColour(blushes[green][variant]);
	float slice = variant * 5.f;
	int skin    = m.Painted(
        [=](const SurfacePoint& at) {
            float blush = LayeredNoise(at.position * .22f + Vec3{3, 1 + slice, 2}, 2);
            return Mix(a, b, .85f * Smoothstep(.5f, .7f, blush));
        },
        .85f);
	m.Ellipsoid({-1.9f, 0, 0}, {5.4f, 5.9f, 5.8f}, Mat3(), skin, 0);
	m.Ellipsoid({1.9f, 0, 0}, {5.4f, 5.9f, 5.8f}, Mat3(), skin, 2);
	float aside = variant == 1 ? -1.f : 1.f;
	m.RoundCone({0, 4.4f, 0}, {1.2f * aside, 7.8f, 0}, .65f, .85f, m.Plain(0x6a4424), 0);
	m.Ellipsoid({3.3f * aside, 7.1f, 1}, {2.9f, .8f, 1.7f}, TurnZ(.4f * aside),
	            m.Plain(0x5cae34, .5f), 0);
}

void AddAcorn(Model& m, int variant)
{
	const uint32_t nuts[] = {0xe09a44, 0xb0702f, 0xcf8a50, 0xc8a04a};
	int nut               = m.Plain(nuts[variant], .7f);
	int stem              = m.Plain(0x6a4424);
	int cup               = m.Painted(
        [](const SurfacePoint& at) {
            Vec3 p     = at.position;
            bool scale = std::sin(p.x * 2.6f + p.y * 2.2f) * std::sin(p.z * 2.6f - p.y * 2.2f) > 0;
            return HexColour(0x8a5c34) * (scale ? 1.15f : .82f);
        },
        .1f);
	m.RoundCone({0, 0, 0}, {0, -3.5f, 0}, 4.8f, 2.9f, nut, 0);
	m.RoundCone({0, -4, 0}, {0, -7, 0}, 2, .4f, nut, 1.5f);
	m.Ellipsoid({0, 2.2f, 0}, {5.9f, 3.5f, 5.9f}, Mat3(), cup, .4f);
	m.RoundCone({0, 4.6f, 0}, {.8f, 7.4f, 0}, .95f, .8f, stem, .3f);
}

void AddPinecone(Model& m, int variant)
{
	int light = m.Plain(variant ? 0xb4844c : 0xc08448, .2f);
	int dark  = m.Plain(variant ? 0x8e6236 : 0x965e32, .12f);
	m.RoundCone({0, -2.5f, 0}, {0, 4, 0}, 4.2f, 2.2f, dark, 0);
	for (int row = 0; row < 6; row++)
		for (int k = 0; k < 8; k++) {
			float y = -5.6f + row * 2.1f, r = 5.1f * std::sin(.55f + row * .42f);
			float q = k * PI / 4 + row * .39f;
			m.Ellipsoid({std::cos(q) * r, y, std::sin(q) * r}, {1.8f, 1.1f, 1.6f},
			            TurnZ(-.35f * std::cos(q)), row & 1 ? light : dark, .2f);
		}
	m.RoundCone({0, 5, 0}, {.5f, 7.5f, 0}, .95f, .7f, dark, .2f);
}

void AddCoconut(Model& m)
{
	int husk = m.Painted(
	    [](const SurfacePoint& at) {
		    Vec3 p = at.position;
		    return Mix(HexColour(0x684428), HexColour(0xae7c4a),
		               LayeredNoise({p.x * .9f, p.y * .25f, p.z * .9f}, 3));
	    },
	    .2f);
	int eye = m.Plain(0x2c1a0e, .4f);
	m.Ball({0, 0, 0}, 7, husk, 0);
	for (int i = 0; i < 3; i++) {
		float x = -1.8f + i * 1.8f, drop = i == 1 ? 2.3f : 0;
		m.Ball({x, 2.9f - drop, 5.8f - std::fabs(i - 1.f) * .3f}, 1.1f, eye, 0);
	}
}
} // namespace

Image FruitImage(Fruit kind, int variant, float zoom)
{
	Model m;
	bool apple = kind == Fruit::RedApple || kind == Fruit::GreenApple;
	if (apple)
		AddApple(m, kind == Fruit::GreenApple, variant);
	else if (kind == Fruit::Acorn)
		AddAcorn(m, variant);
	else if (kind == Fruit::Pinecone)
		AddPinecone(m, variant);
	else
		AddCoconut(m);
	static const float TURNS[] = {0, .45f, -.40f, .75f};
	float middle               = apple ? 11.5f : 10;
	Camera camera              = ViewFrom((int)(FRUIT_WIDTH * zoom), (int)(FRUIT_HEIGHT * zoom),
	                                      FRUIT_WIDTH * zoom * .5f, middle * zoom, 12, 14);
	camera.scale               = zoom;
	camera.bodyTurn = TurnZ(TURNS[variant] * (apple ? .3f : kind == Fruit::Coconut ? 1.8f : 1));
	ShadeStyle style;
	style.outline = zoom > 1.5f ? 1.4f : 1;
	return RenderModel(m, camera, style);
}

Image EggImage(float turn)
{
	Model m;
	int shell = m.Painted(
	    [](const SurfacePoint& at) {
		    float speck = Noise(at.position * .9f + Vec3{3, 8, 1});
		    return Mix(HexColour(0xfff0d8), HexColour(0xd8a878),
		               Smoothstep(.80f, .86f, speck) * .8f);
	    },
	    .6f);
	m.RoundCone({0, -1.f, 0}, {0, 1.9f, 0}, 4.6f, 3.2f, shell, 0);
	Camera camera   = ViewFrom(13, 15, 6.5f, 7.7f, 0, 10);
	camera.bodyTurn = TurnZ(turn);
	return RenderModel(m, camera);
}

// --- coins

static PathFn CoinMark(CoinMetal metal)
{
	if (metal == CoinMetal::Gold)
		return Lettering("$", 11.5f, 0, 0);
	if (metal == CoinMetal::Silver)
		return Star(0, 0, 4.6f, 2.6f, 8);
	return Star(0, 0, 4.5f, 2.0f);
}

Image CoinImage(CoinMetal metal, bool large, int spin)
{
	static const uint32_t METALS[] = {0xf8c430, 0xcdd6e2, 0xd8843e};
	static const float SQUEEZES[]  = {1, .78f, .46f, .16f};
	const int size                 = large ? 20 : 15;
	Canvas canvas(size, size + 2);
	Colour c = HexColour(METALS[(int)metal]), ink = InkOf(c);
	float squeeze = SQUEEZES[spin], x = size * .5f, y = size * .5f, r = size * .5f - 1.9f,
	      k     = r / 8.4f;
	float thick = 1.7f * (1 - squeeze);
	auto face   = [=](float radius, float dx) { return Oval(x + dx, y, radius * squeeze, radius); };
	canvas.Fill(Oval(x + 1, size - .2f, r * .8f, 1.6f), PAINT_SHADOW, .28f);
	canvas.Fill(face(r, thick), ink, 1, 1.1f);
	canvas.Fill(face(r, 0), ink, 1, 1.1f);
	canvas.Fill(face(r, thick), Darker(c, .7f));
	canvas.Relief(face(r, 0), Downward(Lighter(c, .45f), Darker(c, .3f), 1, size), 1.7f, 3, 1);
	if (spin < 3) {
		canvas.Fill(face(r - 2.1f * k, 0), Darker(c, .40f));
		canvas.Relief(face(r - 2.7f * k, 0), Plain(c), 1, 2, .4f);
		PathFn mark   = CoinMark(metal);
		PathFn placed = [=](cairo_t* cairo) {
			cairo_save(cairo);
			cairo_translate(cairo, x, y);
			cairo_scale(cairo, squeeze * k, k);
			mark(cairo);
			cairo_restore(cairo);
		};
		canvas.Fill(placed, ink, .85f, .5f);
		canvas.Fill(placed, Lighter(c, .65f));
	}
	return canvas.Finish();
}

// --- pictures

static void DrawFruit(Sink& sink)
{
	const struct {
		Fruit kind;
		const char* stem;
		int count;
	} kinds[] = {{Fruit::RedApple, "apple", 3},
	             {Fruit::GreenApple, "apple2", 3},
	             {Fruit::Acorn, "acorn", 4},
	             {Fruit::Pinecone, "pinecone", 2},
	             {Fruit::Coconut, "coconut", 3}};
	for (auto& kind : kinds)
		for (int i = 0; i < kind.count; i++) {
			std::string name = kind.stem + std::string(1, (char)('A' + i));
			sink.Add(name + (name == "acornC" ? ".tga" : ".png"), FruitImage(kind.kind, i));
		}
}

static void DrawCoins(Sink& sink)
{
	const struct {
		CoinMetal metal;
		bool large;
		const char* stem;
	} coins[] = {{CoinMetal::Gold, true, "coingoldlarge"},
	             {CoinMetal::Gold, false, "coingoldsmall"},
	             {CoinMetal::Silver, true, "coinsilverlarge"},
	             {CoinMetal::Silver, false, "coinsilversmall"},
	             {CoinMetal::Copper, false, "coincoppersmall"}};
	for (auto& coin : coins)
		for (int i = 0; i < 4; i++)
			sink.Add(coin.stem + std::to_string(i) + ".tga", CoinImage(coin.metal, coin.large, i));
}

// The laid egg drops from the hen, hops once and rolls to where the game puts the lying egg: at
// (27, 9) of the picture to the right, at (2, 9) to the left. The last two frames play backward, so
// it rests in frame 9.
static const int EGG_FRAMES = 12, EGG_REST_FRAME = 9;
static const float EGG_LEAN       = .12f; // radians, at rest
static const int EGG_CANVAS_WIDTH = 44, EGG_CANVAS_HEIGHT = 27;

static Image LaidEgg(int frame, bool toRight)
{
	float t     = frame / (float)EGG_REST_FRAME;
	float start = toRight ? 8 : 25, rest = toRight ? 27 : 2;
	float way  = t <= 1 ? 1 - (1 - t) * (1 - t) : 1,
	      rock = frame > EGG_REST_FRAME ? (frame - EGG_REST_FRAME) * .12f : 0;
	float hop  = t < .3f ? 0 : t < .75f ? std::sin(PI * (t - .3f) / .45f) * 5 : 0;
	float y    = t < .3f ? Mix(1, 9, (t / .3f) * (t / .3f)) : 9 - hop;
	float side = toRight ? 1 : -1;
	float turn = ((1 - way) * 2 * PI + EGG_LEAN - rock) * side;
	Image out(EGG_CANVAS_WIDTH, EGG_CANVAS_HEIGHT);
	float x = Mix(start, rest, way) + side * rock * 8;
	DrawFootShadow(out, x + 7.5f, 9 + 13.5f, 4.4f, PAINT_SHADOW, .30f);
	Compose(out, EggImage(turn), (int)std::lround(x), (int)std::lround(y));
	return out;
}

static void DrawEggs(Sink& sink)
{
	for (bool toRight : {true, false}) {
		std::string stem =
		    toRight ? "chickeneggleft" : "chickeneggright"; // by the way the hen looks
		for (int i = 0; i < EGG_FRAMES; i++)
			sink.Add(stem + std::to_string(i) + ".tga", LaidEgg(i, toRight));
		sink.Add(stem + "bubble.tga", EggImage(toRight ? EGG_LEAN : -EGG_LEAN));
	}
}

void AddPoints(Catalogue& catalogue)
{
	catalogue.Add("points fruit", __FILE__, DrawFruit);
	catalogue.Add("points coins", __FILE__, DrawCoins);
	catalogue.Add("points eggs", __FILE__, DrawEggs);
}
