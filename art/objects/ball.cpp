// Film colours, rims and lights of the bubbles, worked out pixel by pixel; and the ball's pictures.
#include "art/objects/ball.h"

#include "art/families.h"

static const float WOBBLE       = .012f; // of the radius
static const float CLEAR_CENTRE = .25f;  // the most alpha that the middle may have

namespace
{
// A place on the bubble: u right, v down, r from the middle, 1 at the rim.
struct Spot {
	float u, v, r, angle, facing; // facing: 1 in the middle, 0 at the rim
	float pixel;                  // size of a final pixel in units of the radius
};

struct Glass {
	Colour colour;
	float alpha;
};

void Toward(Glass& g, Colour c, float mix, float alpha)
{
	g.colour = Mix(g.colour, c, mix);
	g.alpha  = std::max(g.alpha, alpha);
}

// Bands of a thin film: thickness grows to the rim and sags downward.
Colour FilmColour(const Spot& s, float turn)
{
	float film = 2.2f * s.r + .35f * std::sin(3 * s.angle + turn) + .6f * s.v +
	             .12f * std::sin(5 * s.angle - 2 * turn);
	float wave = 2 * PI * .55f * film;
	return {.58f + .42f * std::cos(wave + .13f), .70f + .30f * std::cos(wave + 2.26f),
	        .84f + .16f * std::cos(wave + 3.9f)};
}

Glass NormalGlass(const Spot& s, float turn)
{
	Glass g;
	float colourful = .86f * Smoothstep(.30f, .85f, s.r) * Smoothstep(1.02f, .90f, s.r) +
	                  .25f * Smoothstep(.9f, 1, s.r);
	g.colour = Mix(Colour{.86f, .95f, 1}, FilmColour(s, turn), Clamp01(colourful));
	g.alpha  = .09f + .82f * std::pow(1 - s.facing, 1.12f);
	return g;
}

// Amber glass in a ring of black and yellow warning stripes.
Glass BulldozerGlass(const Spot& s)
{
	const int stripes = 12;
	Glass g;
	g.colour =
	    Mix(HexColour(0xffd84a), HexColour(0xe07a10), Clamp01(.5f + .55f * (s.v + .2f * s.u)));
	g.alpha    = .18f + .74f * (1 - s.facing);
	float ring = Smoothstep(.79f, .79f + 1.2f * s.pixel, s.r);
	if (ring > 0) {
		// slanted bands, softened over a pixel
		float slant = s.angle * stripes / (2 * PI) + (s.r - .9f) * 2.6f;
		float band  = std::fabs(slant - std::floor(slant) - .5f) - .25f;
		float soft  = s.pixel * stripes / (2 * PI);
		Colour c    = Mix(HexColour(0xffcc20), HexColour(0x32261c), Smoothstep(-soft, soft, band));
		float round = (s.r - .895f) / .105f; // the ring is a half-round bar
		c           = Mix(c, {1, 1, .9f}, .45f * std::max(0.f, -round * (s.v * .8f + s.u * .5f)));
		c           = Darker(c, .75f * std::max(0.f, s.v * .7f + s.u * .3f));
		g.colour    = Mix(g.colour, c, ring);
		g.alpha     = Mix(g.alpha, .95f, ring);
	}
	return g;
}

// Violet and cyan arms that swirl inward.
Glass GravityGlass(const Spot& s)
{
	Glass g;
	float arms = .5f + .5f * std::sin(3 * (s.angle + s.r * 4.2f));
	arms       = arms * arms * (3 - 2 * arms);
	g.colour   = Mix(HexColour(0x7a3fd8), HexColour(0x36e4ff), arms * Smoothstep(.1f, 1, s.r));
	g.alpha    = .14f + .72f * (1 - s.facing) + .24f * arms * s.r * s.r;
	return g;
}

Colour RimColour(BubbleSkin skin)
{
	return HexColour(skin == BubbleSkin::Normal      ? 0x3a78b8
	                 : skin == BubbleSkin::Bulldozer ? 0x5a2c08
	                                                 : 0x38147a);
}

float SoftDot(const Spot& s, float u, float v, float radius)
{
	float d = ((s.u - u) * (s.u - u) + (s.v - v) * (s.v - v)) / (radius * radius);
	return Smoothstep(1.2f, .5f, d);
}

// The window's light: a tilted oval with a faint cross bar when there is room for one.
float WindowLight(const Spot& s)
{
	const float c = .66f, k = .75f; // tilt
	float x = s.u + .40f, y = s.v + .46f;
	float p = x * c - y * k, q = x * k + y * c;
	float light = Smoothstep(1.1f, .55f, p * p / (.30f * .30f) + q * q / (.15f * .15f));
	if (s.pixel < .05f)
		light *= 1 - .45f * Smoothstep(1.3f * s.pixel, .4f * s.pixel, std::fabs(p - .02f));
	return light;
}

void AddLights(Glass& g, const Spot& s, BubbleSkin skin)
{
	float edge = Smoothstep(1 - 2.3f * s.pixel, 1 - .7f * s.pixel, s.r);
	Toward(g, RimColour(skin), edge * .66f, edge * .82f);
	// bright line just inside the rim, upper left, and the glow of the far wall, lower right
	float inner = Smoothstep(1 - 4.5f * s.pixel, 1 - 3.f * s.pixel, s.r) *
	              Smoothstep(1 - 1.6f * s.pixel, 1 - 2.8f * s.pixel, s.r);
	float lit = Smoothstep(.1f, .8f, -(s.u * .6f + s.v * .8f));
	Toward(g, {1, 1, 1}, inner * lit * .55f, inner * lit * .6f);
	float far     = s.u * .62f + s.v * .78f;
	float cresent = Smoothstep(.55f, .88f, far) * Smoothstep(.98f, .86f, s.r);
	float quiet   = skin == BubbleSkin::Bulldozer ? .4f : 1;
	Toward(g, {1, 1, 1}, cresent * .45f * quiet, cresent * .38f);
	float window = WindowLight(s);
	Toward(g, {1, 1, 1}, window, window * .93f);
	float low = SoftDot(s, .46f, .52f, .075f), left = SoftDot(s, -.66f, -.10f, .06f);
	Toward(g, {1, 1, 1}, low * .9f, low * .75f);
	Toward(g, {1, 1, 1}, left * .9f, left * .7f);
}

Glass GlassAt(const Spot& s, BubbleSkin skin, float turn)
{
	Glass g = skin == BubbleSkin::Normal      ? NormalGlass(s, turn)
	          : skin == BubbleSkin::Bulldozer ? BulldozerGlass(s)
	                                          : GravityGlass(s);
	if (s.r < .5f)
		g.alpha = std::min(g.alpha, CLEAR_CENTRE);
	AddLights(g, s, skin);
	return g;
}
} // namespace

Image Bubble(int width, BubbleSkin skin, float phase)
{
	const int fine = 4;
	float radius = width * .5f * fine - fine * .5f, turn = phase * 2 * PI;
	Image out(width * fine, width * fine);
	for (int y = 0; y < out.height; y++)
		for (int x = 0; x < out.width; x++) {
			Spot s;
			s.u     = (x + .5f - out.width * .5f) / radius;
			s.v     = (y + .5f - out.height * .5f) / radius;
			s.angle = std::atan2(s.v, s.u);
			// The wobble only draws the skin in, so that the width stays the ball's.
			s.r = std::hypot(s.u, s.v) / (1 - WOBBLE + WOBBLE * std::sin(2 * s.angle + turn));
			if (s.r >= 1)
				continue;
			s.facing = std::sqrt(1 - s.r * s.r);
			s.pixel  = fine / radius;
			Glass g  = GlassAt(s, skin, turn);
			Colour c = ClampColour(g.colour);
			float a  = Clamp01(g.alpha) * Smoothstep(1, 1 - 1.4f * s.pixel, s.r);
			float* p = out.At(x, y);
			p[0]     = c.x * a;
			p[1]     = c.y * a;
			p[2]     = c.z * a;
			p[3]     = a;
		}
	return BoxDownsample(out, fine);
}

// A bubble's shadow is darkest at its edge and lets light through the middle.
static Image BubbleShadow(int width)
{
	int w = width * 23 / 20, h = width * 4 / 5;
	Image out(w, h);
	for (int y = 0; y < h; y++)
		for (int x = 0; x < w; x++) {
			float u = (x + .5f - w * .5f) / (w * .46f), v = (y + .5f - h * .5f) / (w * .15f);
			float r = std::hypot(u, v),
			      a = .31f * Smoothstep(1.05f, .62f, r) * Mix(.72f, 1, Smoothstep(.1f, .8f, r));
			Blend(out, x, y, {.05f, .08f, .07f}, a);
		}
	return out;
}

// The letters of a stage's names.
static std::string StageWord(int stage)
{
	if (stage == 18)
		return "AAA";
	if (stage == 17)
		return "AA";
	return std::string(1, (char)('Q' - stage));
}

static void DrawStage(Sink& sink, int stage)
{
	int width        = BallWidth(stage);
	std::string stem = "bubble" + StageWord(stage);
	for (int i = 0; i < BUBBLE_FRAMES; i++) {
		std::string number = (i < 9 ? "0" : "") + std::to_string(i + 1);
		sink.Add(stem + (stage == 0 ? "_b" : "") + number + ".png",
		         Bubble(width, BubbleSkin::Normal, i / (float)BUBBLE_FRAMES));
	}
	sink.Add(stem + "bulldozer.png", Bubble(width, BubbleSkin::Bulldozer));
	sink.Add(stem + "grav.png", Bubble(width, BubbleSkin::Gravity));
	sink.Add(stem + "shadow.tga", BubbleShadow(width));
}

// The largest bubble of the trail is the smallest of the ball.
static void DrawTrail(Sink& sink)
{
	const struct {
		BubbleSkin skin;
		const char* word;
	} skins[] = {{BubbleSkin::Normal, ""},
	             {BubbleSkin::Bulldozer, "bulldozer"},
	             {BubbleSkin::Gravity, "grav"}};
	for (auto& skin : skins) {
		sink.Add(std::string("bubbleS") + skin.word + ".tga", Bubble(8, skin.skin));
		sink.Add(std::string("bubbleR") + skin.word + ".png", Bubble(14, skin.skin));
	}
	sink.Add("bubbleQ01.png", Bubble(BallWidth(0), BubbleSkin::Normal));
}

void AddBall(Catalogue& catalogue)
{
	for (int stage = 0; stage < BALL_STAGES; stage++)
		catalogue.Add("ball stage " + std::to_string(stage), __FILE__,
		              [stage](Sink& sink) { DrawStage(sink, stage); });
	catalogue.Add("ball trail", __FILE__, DrawTrail);
}
