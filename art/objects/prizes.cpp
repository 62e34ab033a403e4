// Falling prizes: the balloons, what hangs under them, and the sparkle of the catch.
#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/families.h"
#include "art/screens/prize_marks.h"

static const int BALLOONS_WIDTH = 66, BALLOONS_HEIGHT = 74;
static const int FIRST_INFLATE = 40, INFLATE_FRAMES = 18;
static const int FIRST_FLIGHT = 17, FLIGHT_FRAMES = 23;
static const int BURST_FRAMES = 3;
static const int DISC_SIZE = 42, BAG_WIDTH = 34, BAG_HEIGHT = 42;
static const int BAG_FRAMES       = 15;
static const int SPARKLE_FRAMES   = 7;
static const int SPARKLE_MARGIN_X = 16, BAG_MARGIN_X = 15, SPARKLE_MARGIN_Y = 14;

namespace
{
struct Balloon {
	float x, y; // where it hangs when full
	uint32_t colour;
};
const Balloon BALLOONS[3] = {{19.5f, 26, 0x3fa8f0}, {46.5f, 24, 0xf6bc2c}, {33, 18.5f, 0xec443c}};
const float FULL = 15.5f, KNOT_X = BALLOONS_WIDTH * .5f, KNOT_Y = BALLOONS_HEIGHT - 2.f;

void DrawString(Canvas& canvas, float x, float y)
{
	canvas.Stroke(
	    [=](cairo_t* c) {
		    cairo_move_to(c, x, y);
		    cairo_curve_to(c, x, y + 12, KNOT_X, KNOT_Y - 18, KNOT_X, KNOT_Y);
	    },
	    HexColour(0x6a5a4a), 1.1f);
}

void DrawBalloon(Canvas& canvas, Colour c, float x, float y, float r, float lean)
{
	PathFn skin = [=](cairo_t* k) {
		cairo_new_sub_path(k);
		cairo_arc(k, x, y, r, PI, 2 * PI);
		cairo_curve_to(k, x + r, y + r * .8f, x + r * .35f, y + r * 1.12f, x, y + r * 1.22f);
		cairo_curve_to(k, x - r * .35f, y + r * 1.12f, x - r, y + r * .8f, x - r, y);
		cairo_close_path(k);
	};
	float knot   = y + r * 1.15f;
	PathFn whole = Turned(skin, x, y + r, lean);
	PathFn tail  = Polygon({{x, knot}, {x + 2.2f, knot + 3.4f}, {x - 2.2f, knot + 3.4f}});
	canvas.Fill(Joined({whole, tail}), InkOf(c), 1, 1.1f);
	canvas.Fill(tail, Darker(c, .5f));
	canvas.Relief(whole, Downward(Lighter(c, .22f), Darker(c, .5f), y - r, y + r * 1.3f), 5, 2.2f,
	              .2f);
	canvas.Fill(Oval(x - r * .38f, y - r * .42f, r * .26f, r * .15f, -.8f), {1, 1, 1}, .88f);
	canvas.Fill(Oval(x + r * .42f, y + r * .5f, r * .12f, r * .30f, .6f), {1, 1, 1}, .28f);
}

// grow 0..1 while they fill; phase 0..1 sways the bunch in flight.
Image Balloons(float grow, float phase)
{
	Canvas canvas(BALLOONS_WIDTH, BALLOONS_HEIGHT);
	float turn = phase * 2 * PI, r = FULL * (.22f + .78f * grow);
	float x[3], y[3];
	for (int i = 0; i < 3; i++) {
		// each bobs a little after the other
		float sway = std::sin(turn - i * .7f), bob = std::sin(2 * turn - i * 1.1f);
		x[i] = Mix(KNOT_X + (BALLOONS[i].x - KNOT_X) * .5f, BALLOONS[i].x, grow) + 1.1f * sway;
		y[i] = Mix(KNOT_Y - 16, BALLOONS[i].y, .30f + .70f * grow) + .7f * bob;
		DrawString(canvas, x[i], y[i] + r);
	}
	for (int i = 0; i < 3; i++)
		DrawBalloon(canvas, HexColour(BALLOONS[i].colour), x[i], y[i], r,
		            .05f * std::sin(turn - i));
	return canvas.Finish();
}

// The skins tear: a flash and shreds that fly apart.
Image BurstBalloons(int frame)
{
	Canvas canvas(BALLOONS_WIDTH, BALLOONS_HEIGHT);
	float t = (frame + 1.f) / BURST_FRAMES;
	for (int i = 0; i < 3; i++) {
		Colour c = HexColour(BALLOONS[i].colour);
		float x = BALLOONS[i].x, y = BALLOONS[i].y;
		if (frame < 2)
			canvas.Fill(Star(x, y, 15 - 4.f * frame, 7, 8, i + frame * .4f), {1, 1, .9f},
			            .75f - .35f * frame);
		for (int k = 0; k < 7; k++) {
			float a = k * .9f + i, far = 6 + 11 * t + 2 * (k % 3), size = 4.6f * (1.15f - .75f * t);
			float px     = Clamp(x + std::cos(a) * far, 4, BALLOONS_WIDTH - 4.f);
			float py     = Clamp(y + std::sin(a) * far + 6 * t * t, 4, BALLOONS_HEIGHT - 4.f);
			PathFn shred = Oval(px, py, size, size * .48f, a + 2 * t);
			canvas.Fill(shred, InkOf(c), 1 - .3f * t, .9f);
			canvas.Fill(shred, k & 1 ? Lighter(c, .25f) : c);
		}
	}
	return canvas.Finish();
}

// Gold ring around a dark bed; the icon lies on it at (6, 5).
Image PrizeDisc()
{
	Canvas canvas(DISC_SIZE, DISC_SIZE);
	const float x = 21, y = 20;
	canvas.Fill(Disc(x, y + 1.2f, 18.8f), HexColour(0x6a3a10), 1, 1);
	canvas.Body(Disc(x, y, 18.8f), Downward(HexColour(0xffe070), HexColour(0xd8861a), 2, 40),
	            HexColour(0x4a2410), 1, 2.2f, 3, .8f);
	canvas.Fill(Disc(x, y, 15.9f), HexColour(0x4a2410));
	canvas.Relief(Disc(x, y, 15.2f), Plain(HexColour(0x8a5a2a)), 2, 1.4f, .1f);
	for (int i = 0; i < 8; i++) { // rivets
		float a = (i + .5f) * PI / 4;
		canvas.Fill(Disc(x + std::cos(a) * 17.5f, y + std::sin(a) * 17.5f, .9f),
		            HexColour(0xfff4b8), .9f);
	}
	return canvas.Finish();
}

// The mark on its own round enamel plate.
Image PrizeIcon(Prize prize, float phase)
{
	const float half = PRIZE_MARK_SIZE * .5f;
	Canvas canvas(PRIZE_MARK_SIZE, PRIZE_MARK_SIZE);
	Colour c = PrizeColour(prize);
	canvas.Relief(Disc(half, half, half - .2f),
	              Downward(Lighter(c, .24f), Darker(c, .38f), 1, PRIZE_MARK_SIZE - 1), 3, 1.6f,
	              .2f);
	Image icon = canvas.Finish();
	Compose(icon, PrizeMark(prize, phase), 0, 0);
	Canvas gleam(PRIZE_MARK_SIZE, PRIZE_MARK_SIZE);
	gleam.Fill(Oval(half - 6, half - 10.5f, 6.5f, 2.8f, -.5f), {1, 1, 1}, .28f);
	Compose(icon, gleam.Finish(), 0, 0);
	return icon;
}

void AddBag(Model& m, float swell)
{
	float k  = 1 + .06f * swell;
	int sack = m.Painted(
	    [](const SurfacePoint& at) {
		    Vec3 p = at.position;
		    return HexColour(0xe2ba76) *
		           (.84f + .3f * LayeredNoise({p.x * .22f, p.y * .10f, p.z * .2f}, 2));
	    },
	    .15f);
	int rope = m.Plain(0xc8442c, .3f);
	m.Ellipsoid({0, 0, 0}, {12.4f * k, 11.2f / k, 9.5f}, Mat3(), sack, 0);
	m.Ellipsoid({0, -5.5f, 0}, {13 * k, 6.2f, 9.5f}, Mat3(), sack, 4);
	m.RoundCone({0, 7, 0}, {0, 12.4f, 0}, 5.6f, 3.6f, sack, 3.5f);
	for (int i = 0; i < 5; i++) {
		Vec3 tip = {(i - 2) * 3.1f, 17.2f - std::fabs(i - 2.f) * 1.1f + swell * .6f,
		            i & 1 ? 2.f : -1.f};
		m.RoundCone({0, 12.8f, 0}, tip, 2.3f, 2, sack, 1.2f);
	}
	m.Ring({0, 12.2f, 0}, 3.9f, 1.1f, Mat3(), rope, .3f);
	m.RoundCone({2, 12, 3.4f}, {4.2f, 8.4f, 5.2f}, .9f, 1.1f, rope, .3f);
}

// The bag breathes, its mark glints, and it swings a little under the balloons.
Image MoneyBag(int number)
{
	float t = (number - 1.f) / (BAG_FRAMES - 1), swell = Smoothstep(0, 1, t);
	Model m;
	AddBag(m, swell);
	Camera camera   = ViewFrom(BAG_WIDTH, BAG_HEIGHT, 17, 26.5f, 0, 12);
	camera.bodyTurn = TurnZ(.07f * (2 * swell - 1));
	Image bag       = RenderModel(m, camera);
	Canvas mark(BAG_WIDTH, BAG_HEIGHT);
	PathFn sign =
	    Turned(Lettering("$", 17, 17, 26.8f), 17, 26.8f, -.07f * (2 * swell - 1), 1 + .10f * swell);
	mark.Fill(sign, HexColour(0x3a3a10), .9f, 1.1f);
	mark.Fill(sign, Mix(HexColour(0x3fa83a), HexColour(0xc8f060), swell), 1, .3f);
	Compose(bag, mark.Finish(), 0, 0);
	return bag;
}

// Rays, a ring and stars that fly out from what was caught.
Image Sparkle(int w, int h, Colour c, int frame)
{
	Canvas canvas(w, h, 3);
	float t = (frame + .5f) / SPARKLE_FRAMES, go = 1 - (1 - t) * (1 - t),
	      fade = Clamp01((1.05f - t) * 1.8f);
	float x = w * .5f, y = h * .5f, reach = std::min(w, h) * .5f - 5;
	Colour pale = Mix(c, {1, 1, .9f}, .72f);
	for (int i = 0; i < 5 && frame < 5; i++) // a glow in shells, each over the last
		canvas.Fill(Disc(x, y, reach * (.30f + .15f * i) * (.7f + .4f * go)),
		            Mix(c, pale, .9f - .15f * i), .30f * (1 - t) * (1 - t));
	for (int i = 0; i < 8 && frame < 5; i++) {
		float a = i * PI / 4 + .35f, from = reach * .28f * (1 + go),
		      to = reach * (.62f + .36f * go);
		canvas.Stroke(Line({{x + std::cos(a) * from, y + std::sin(a) * from},
		                    {x + std::cos(a) * to, y + std::sin(a) * to}}),
		              pale, 2.4f * (1 - t), .9f * fade);
	}
	PathFn ring = Disc(x, y, reach * (.30f + .66f * go));
	canvas.Stroke(ring, c, 5 * (1 - t) + .8f, .75f * fade);
	canvas.Stroke(ring, pale, 2 * (1 - t) + .4f, fade);
	for (int i = 0; i < 10; i++) {
		float a = i * PI / 5 + .2f, far = reach * (.35f + .62f * go) * (i & 1 ? .80f : 1);
		float size = (i & 1 ? 4.2f : 6.2f) * std::sin(PI * Clamp01(t * .8f + .2f));
		float px = x + std::cos(a) * far, py = y + std::sin(a) * far;
		PathFn star = Star(px, py, size, size * .36f, 4, a + t * 2);
		canvas.Fill(star, InkOf(c), .8f * fade, 1);
		canvas.Fill(star, i & 1 ? Lighter(c, .6f) : c, fade);
		canvas.Fill(Star(px, py, size * .55f, size * .22f, 4, a + t * 2), {1, 1, .94f}, fade);
	}
	return canvas.Finish();
}
} // namespace

static void DrawBalloons(Sink& sink)
{
	std::vector<Image> inflate, flight, burst;
	for (int i = 0; i < INFLATE_FRAMES; i++) {
		float t = i / (INFLATE_FRAMES - 1.f);
		// pumped in three puffs, the last a bit over the mark
		float grow = Smoothstep(0, 1, t) + .05f * std::sin(t * 3 * PI) * t;
		inflate.push_back(Balloons(std::min(1.f, grow), 0));
	}
	for (int i = 0; i < FLIGHT_FRAMES; i++)
		flight.push_back(Balloons(1, i / (float)FLIGHT_FRAMES));
	for (int i = 0; i < BURST_FRAMES; i++)
		burst.push_back(BurstBalloons(i));
	sink.AddFrames("balloons", inflate, FIRST_INFLATE);
	sink.AddFrames("balloonsB", flight, FIRST_FLIGHT);
	sink.AddFrames("balloons_shrink", burst);
}

struct IconRow {
	Prize prize;
	const char* stem;
	int frames; // 0: one picture without a number
	bool turns; // the motion ends where it begins
};

// clang-format off
static const IconRow ICONS[] = {
	// prize               stem                      frames  turns
	{Prize::Double,       "powerup2x",                    0, false},
	{Prize::Triple,       "powerup3x",                    0, false},
	{Prize::Quadruple,    "powerup4x",                    0, false},
	{Prize::Barrier,      "powerupbarrier",              10, false},
	{Prize::Bulldozer,    "powerupbulldozer",             0, false},
	{Prize::Destructo,    "powerupdestructoray",          0, false},
	{Prize::Fast,         "powerupfastbubble",            0, false},
	{Prize::Gravity,      "powerupgravitybubble",        12, true},
	{Prize::BubbleGrow,   "powerupgrowbubble",           13, false},
	{Prize::PaddleGrow,   "powerupgrowpaddle",           10, false},
	{Prize::ExtraLife,    "poweruponeup",                 0, false},
	{Prize::Rain,         "poweruprainobjects",           0, false},
	{Prize::PaddleShrink, "powerupshrinkpaddle",         10, false},
	{Prize::Slow,         "powerupslowbubble",            0, false},
	{Prize::Sticky,       "powerupstickypaddle",          0, false},
	{Prize::Fans,         "powerupfan",                   7, true},
};
// clang-format on

static void DrawIcons(Sink& sink)
{
	sink.Add("powerupdisc.png", PrizeDisc());
	for (const IconRow& row : ICONS) {
		if (row.frames == 0)
			sink.Add(std::string(row.stem) + ".png", PrizeIcon(row.prize, 0));
		for (int i = 0; i < row.frames; i++) {
			float phase = i / (float)(row.turns ? row.frames : row.frames - 1);
			sink.Add(row.stem + std::to_string(i) + ".png", PrizeIcon(row.prize, phase));
		}
	}
}

static void DrawSparkles(Sink& sink)
{
	const struct {
		const char* word;
		uint32_t colour;
	} colours[] = {{"red", 0xe8483a},
	               {"purple", 0xa050e8},
	               {"blue", 0x3a88f0},
	               {"orange", 0xf08a28},
	               {"yellow", 0xf4c82c}};
	for (auto& colour : colours)
		for (int i = 0; i < SPARKLE_FRAMES; i++)
			sink.Add("powerupcollected" + std::string(colour.word) + std::to_string(i) + ".png",
			         Sparkle(DISC_SIZE + 2 * SPARKLE_MARGIN_X, DISC_SIZE + 2 * SPARKLE_MARGIN_Y,
			                 HexColour(colour.colour), i));
	for (int i = 0; i < SPARKLE_FRAMES; i++)
		sink.Add("moneybagcollected" + std::to_string(i) + ".png",
		         Sparkle(BAG_WIDTH + 2 * BAG_MARGIN_X, BAG_HEIGHT + 2 * SPARKLE_MARGIN_Y,
		                 HexColour(0x58c040), i));
}

void AddPrizes(Catalogue& catalogue)
{
	catalogue.Add("prize balloons", __FILE__, DrawBalloons);
	catalogue.Add("prize icons", __FILE__, DrawIcons);
	catalogue.Add("prize sparkles", __FILE__, DrawSparkles);
	catalogue.Add("prize money bag", __FILE__, [](Sink& sink) {
		for (int i = 1; i <= BAG_FRAMES; i++)
			sink.Add("moneybag" + std::to_string(i) + ".png", MoneyBag(i));
	});
}
