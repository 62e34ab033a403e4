// Draws the marks of the power-ups.
#include "art/screens/prize_marks.h"

#include "art/screens/panel_parts.h"

// clang-format off
const PrizeInfo PRIZES[16] = {
	{ Prize::Double,       "2x",         0,  "Double score" },
	{ Prize::Triple,       "3x",         0,  "Triple score" },
	{ Prize::Quadruple,    "4x",         0,  "Quad score"   },
	{ Prize::Barrier,      "barrier",    10, "Barrier"      },
	{ Prize::Bulldozer,    "bulldozer",  0,  "Bulldozer"    },
	{ Prize::Destructo,    "destructo",  0,  "Destructo"    },
	{ Prize::Fast,         "fast",       0,  "Fast"         },
	{ Prize::Gravity,      "grav",       12, "Gravity"      },
	{ Prize::BubbleGrow,   "bubblegrow", 13, "Big bubble"   },
	{ Prize::PaddleGrow,   "grow",       10, "Wide bumper"  },
	{ Prize::ExtraLife,    "1up",        0,  "Extra life"   },
	{ Prize::Rain,         "rain",       0,  "Fruit rain"   },
	{ Prize::PaddleShrink, "shrink",     10, "Flat bumper"  },
	{ Prize::Slow,         "slow",       0,  "Slow"         },
	{ Prize::Sticky,       "sticky",     0,  "Sticky"       },
	{ Prize::Fans,         "fan",        7,  "Super fans"   },
};
// clang-format on

static const float MIDDLE     = PRIZE_MARK_SIZE * .5f;
static const Colour PALE_GOLD = HexColour(0xfff2b0);

Colour PrizeColour(Prize prize)
{
	switch (prize) {
	case Prize::Double:
	case Prize::Triple:
	case Prize::Quadruple:
		return HexColour(0x8a44d0);
	case Prize::Barrier:
	case Prize::Destructo:
	case Prize::Rain:
	case Prize::Fans:
	case Prize::BubbleGrow:
		return HexColour(0x2470d8);
	case Prize::Bulldozer:
	case Prize::Fast:
	case Prize::Gravity:
	case Prize::Slow:
		return HexColour(0xd83a30);
	case Prize::PaddleGrow:
	case Prize::PaddleShrink:
	case Prize::Sticky:
		return HexColour(0xe8801c);
	case Prize::ExtraLife:
		break;
	}
	return HexColour(0xe0b020);
}

static void SmallBubble(Canvas& canvas, float x, float y, float r)
{
	canvas.Fill(Disc(x, y, r), HexColour(0x1c3c7a), .9f, 1);
	canvas.FillAt(Disc(x, y, r), [=](float px, float py) {
		float out = std::hypot(px - x, py - y) / r;
		return Mix(HexColour(0x9ae4ff), HexColour(0xf0fbff), Clamp01(out - .25f));
	});
	canvas.Fill(Oval(x - r * .36f, y - r * .40f, r * .30f, r * .17f, -.8f), PAINT_WHITE);
	canvas.Stroke([=](cairo_t* c) { cairo_arc(c, x, y, r * .74f, .1f, 1.3f); }, PAINT_WHITE, 1.3f,
	              .8f);
}

static void SmallBumper(Canvas& canvas, float y, float half, float tall)
{
	PathFn arc = [=](cairo_t* c) {
		cairo_move_to(c, MIDDLE - half, y + tall);
		cairo_curve_to(c, MIDDLE - half * .6f, y - tall, MIDDLE + half * .6f, y - tall,
		               MIDDLE + half, y + tall);
	};
	float crest = y - tall * .48f;
	canvas.Stroke(arc, HexColour(0x4a1408), 6.6f);
	canvas.Stroke(arc, PAINT_BUMPER_RED, 4.4f);
	canvas.Stroke(Line({{MIDDLE - 2.2f, crest}, {MIDDLE + 2.2f, crest}}), PAINT_BUMPER_CREAM, 4.2f);
}

static void MarkShield(Canvas& canvas, Colour ink, float phase)
{
	const float x = MIDDLE, y = MIDDLE;
	PathFn shield = [=](cairo_t* c) {
		cairo_move_to(c, x, y - 12);
		cairo_curve_to(c, x + 5, y - 9, x + 8, y - 8.5f, x + 10.5f, y - 8.5f);
		cairo_curve_to(c, x + 11, y + 3, x + 5, y + 9, x, y + 12.5f);
		cairo_curve_to(c, x - 5, y + 9, x - 11, y + 3, x - 10.5f, y - 8.5f);
		cairo_curve_to(c, x - 8, y - 8.5f, x - 5, y - 9, x, y - 12);
	};
	DrawMarked(canvas, shield, HexColour(0xbfefff), ink);
	canvas.Fill(Star(x, y - .5f, 6.4f, 2.9f), HexColour(0x2a78e0));
	if (phase <= 0)
		return;
	float at     = Mix(-16, 18, phase); // a gleam crosses the shield
	PathFn gleam = Polygon({{x + at, 0}, {x + at + 6, 0}, {x + at - 6, 30}, {x + at - 12, 30}});
	canvas.FillMask(Product(canvas.Mask(gleam), canvas.Mask(shield)), PAINT_WHITE, .75f);
}

static void MarkBulldozer(Canvas& canvas, Colour ink)
{
	canvas.Fill(Disc(MIDDLE, MIDDLE, 12), ink, 1, 1.2f);
	canvas.FillAt(Disc(MIDDLE, MIDDLE, 12), [](float x, float y) {
		return std::sin((x + y) * 1.05f) > 0 ? HexColour(0x2c2018) : HexColour(0xffcc20);
	});
	canvas.Relief(Disc(MIDDLE, MIDDLE, 7.8f),
	              Downward(HexColour(0xffe884), HexColour(0xf0901c), 7, 23), 2, 2.4f, .5f);
	canvas.Fill(Oval(MIDDLE - 2.6f, MIDDLE - 3, 2.2f, 1.2f, -.8f), PAINT_WHITE, .9f);
}

static void MarkBolt(Canvas& canvas, Colour ink)
{
	const float x = MIDDLE, y = MIDDLE;
	DrawMarked(canvas,
	           Polygon({{x + 3, y - 13},
	                    {x - 8, y + 2},
	                    {x - 1.5f, y + 2},
	                    {x - 4, y + 13},
	                    {x + 8.5f, y - 3.5f},
	                    {x + 1.6f, y - 3.5f},
	                    {x + 8, y - 13}}),
	           HexColour(0xffec5a), ink, 1.6f);
}

static void MarkFast(Canvas& canvas)
{
	for (int i = -1; i <= 1; i++) {
		float y = MIDDLE + i * 6, end = MIDDLE - (i ? 6 : 3);
		canvas.Stroke(Line({{MIDDLE - 13, y}, {end, y}}), PALE_GOLD, 2.2f);
	}
	SmallBubble(canvas, MIDDLE + 4, MIDDLE, 9.4f);
}

// A snail: green foot, cream shell with one bold spiral.
static void MarkSnail(Canvas& canvas, Colour ink)
{
	const float x = MIDDLE, y = MIDDLE;
	const Colour GREEN = HexColour(0xa8e858);
	PathFn foot        = [=](cairo_t* c) {
        cairo_move_to(c, x + 11, y + 9.5f);
        cairo_line_to(c, x - 6, y + 9.5f);
        cairo_curve_to(c, x - 11, y + 9, x - 10, y + 2, x - 10, y - 3);
	};
	canvas.Stroke(foot, ink, 8.2f);
	canvas.Stroke(foot, GREEN, 5.4f);
	for (float dx : {-13.f, -8.f}) {
		PathFn horn = Line({{x - 10, y - 3}, {x + dx, y - 9.5f}});
		canvas.Stroke(horn, ink, 3.6f);
		canvas.Stroke(horn, GREEN, 1.8f);
	}
	DrawMarked(canvas, Disc(x + 3, y + .5f, 8.4f), HexColour(0xffe8b0), ink, 1.4f);
	std::vector<At> spiral;
	for (int i = 0; i < 30; i++) {
		float a = i * .33f, r = 6.4f - i * .2f;
		spiral.push_back({x + 3 + std::cos(a) * r, y + .5f + std::sin(a) * r});
	}
	canvas.Stroke(Line(spiral), HexColour(0xb8582c), 2);
}

static void MarkGravity(Canvas& canvas, float phase)
{
	const float R = 12;
	canvas.Fill(Disc(MIDDLE, MIDDLE, R), HexColour(0x2c0c5a), 1, 1.2f);
	canvas.FillAt(Disc(MIDDLE, MIDDLE, R), [=](float px, float py) {
		float u = px - MIDDLE, v = py - MIDDLE, r = std::hypot(u, v) / R;
		float arms = std::sin(3 * (std::atan2(v, u) + r * 3.6f) - phase * 2 * PI);
		float lit  = Smoothstep(.35f, .65f, .5f + .5f * arms) * Smoothstep(.05f, .5f, r);
		return Mix(HexColour(0x5a28b8), HexColour(0x5af0ff), lit);
	});
	canvas.Fill(Disc(MIDDLE, MIDDLE, 3), PAINT_WHITE, .9f);
}

static void MarkBubbleGrow(Canvas& canvas, float phase)
{
	float r = Mix(5, 10.5f, Smoothstep(0, 1, phase));
	SmallBubble(canvas, MIDDLE, MIDDLE, r);
	for (int i = 0; i < 4; i++) {
		float a = PI / 4 + i * PI / 2, far = 9.4f + 3 * phase;
		float x = MIDDLE + std::cos(a) * far * 1.08f, y = MIDDLE + std::sin(a) * far * 1.08f;
		canvas.Fill(Arrow(x, y, 7, 2.8f, a), HexColour(0x4a2c08), .8f, .9f);
		canvas.Fill(Arrow(x, y, 7, 2.8f, a), PALE_GOLD, 1, .1f);
	}
}

static void MarkBumper(Canvas& canvas, Colour ink, bool wide, float phase)
{
	float t    = wide ? phase : 1 - phase;
	float half = Mix(5.5f, 11, t), tall = wide ? 4 : Mix(1.6f, 4, t);
	SmallBumper(canvas, MIDDLE - 4, half, tall);
	for (int side = -1; side <= 1; side += 2)
		DrawMarked(
		    canvas,
		    Arrow(MIDDLE + side * 7.2f, MIDDLE + 8, 11.5f, 3.6f, (side > 0) == wide ? 0 : PI),
		    PALE_GOLD, ink, 1.1f);
}

// Apple, acorn and cone fall with short trails.
static void MarkRain(Canvas& canvas, Colour ink)
{
	for (float dx : {-8.f, 4.f, 10.f})
		canvas.Stroke(Line({{MIDDLE + dx, 3}, {MIDDLE + dx, 7}}), HexColour(0xd8f0ff), 1.7f);
	DrawMarked(canvas, Disc(9, 14, 5.2f), HexColour(0xe83a30), ink, 1.2f);
	canvas.Stroke(Line({{9, 9.4f}, {10.4f, 6.6f}}), HexColour(0x5a3a1c), 1.6f);
	canvas.Fill(Oval(12, 8, 2.2f, 1.1f, -.5f), HexColour(0x6cc83c));
	canvas.Fill(Oval(7.4f, 12.2f, 1.6f, 1, -.8f), PAINT_WHITE, .85f);
	DrawMarked(canvas, Oval(21.5f, 14.4f, 4.2f, 5), HexColour(0xd8923c), ink, 1.2f);
	DrawMarked(canvas, Oval(21.5f, 11, 5, 2.8f), HexColour(0x8a5428), ink, 1);
	DrawMarked(canvas, Oval(15, 23, 4.4f, 5.2f), HexColour(0x9a6a40), ink, 1.2f);
	for (int i = 0; i < 3; i++)
		canvas.Stroke(
		    Line({{11.6f, 20.4f + i * 2.6f}, {15, 22.4f + i * 2.6f}, {18.4f, 20.4f + i * 2.6f}}),
		    HexColour(0xd8a870), 1);
}

static void MarkGoo(Canvas& canvas, Colour ink)
{
	const float x = MIDDLE, y = MIDDLE;
	PathFn goo = [=](cairo_t* c) {
		cairo_move_to(c, x - 12, y - 3);
		cairo_curve_to(c, x - 8, y - 12, x + 8, y - 12, x + 12, y - 3);
		for (int i = 0; i < 4; i++) {
			float right = x + 12 - i * 6, drop = y + (i & 1 ? 11.f : 6.f);
			cairo_curve_to(c, right, drop, right - 5, drop, right - (i == 3 ? 6 : 4.4f), y);
			if (i < 3)
				cairo_line_to(c, right - 6, y);
		}
		cairo_close_path(c);
	};
	DrawMarked(canvas, goo, HexColour(0x7ae03c), ink, 1.4f);
	canvas.Fill(Oval(x - 5, y - 6, 2.8f, 1.2f, -.4f), PAINT_WHITE, .85f);
}

static void MarkFan(Canvas& canvas, Colour ink, float phase)
{
	for (int i = 0; i < 3; i++) {
		float a = -PI / 2 + i * 2 * PI / 3 + phase * 2 * PI / 3;
		DrawMarked(
		    canvas,
		    Oval(MIDDLE + std::cos(a) * 6.6f, MIDDLE + std::sin(a) * 6.6f, 6.6f, 4, a + .35f),
		    HexColour(0xfffff4), ink, 1.2f);
	}
	DrawMarked(canvas, Disc(MIDDLE, MIDDLE, 3), PAINT_BRASS, ink, 1);
}

static void MarkLife(Canvas& canvas, Colour ink)
{
	SmallBubble(canvas, MIDDLE - 2, MIDDLE - 1, 10);
	canvas.Caption("+1", 15, MIDDLE + 5, MIDDLE + 6, HexColour(0xffe84a), ink, 1.9f);
}

Image PrizeMark(Prize prize, float phase)
{
	Canvas canvas(PRIZE_MARK_SIZE, PRIZE_MARK_SIZE);
	Colour ink = InkOf(PrizeColour(prize)) * .8f;
	switch (prize) {
	case Prize::Double:
	case Prize::Triple:
	case Prize::Quadruple: {
		const char* words[] = {"x2", "x3", "x4"};
		canvas.Caption(words[(int)prize], 22, MIDDLE, MIDDLE, PALE_GOLD, ink, 2);
		break;
	}
	case Prize::Barrier:
		MarkShield(canvas, ink, phase);
		break;
	case Prize::Bulldozer:
		MarkBulldozer(canvas, ink);
		break;
	case Prize::Destructo:
		MarkBolt(canvas, ink);
		break;
	case Prize::Fast:
		MarkFast(canvas);
		break;
	case Prize::Gravity:
		MarkGravity(canvas, phase);
		break;
	case Prize::BubbleGrow:
		MarkBubbleGrow(canvas, phase);
		break;
	case Prize::PaddleGrow:
	case Prize::PaddleShrink:
		MarkBumper(canvas, ink, prize == Prize::PaddleGrow, phase);
		break;
	case Prize::ExtraLife:
		MarkLife(canvas, ink);
		break;
	case Prize::Rain:
		MarkRain(canvas, ink);
		break;
	case Prize::Slow:
		MarkSnail(canvas, ink);
		break;
	case Prize::Sticky:
		MarkGoo(canvas, ink);
		break;
	case Prize::Fans:
		MarkFan(canvas, ink, phase);
		break;
	}
	return canvas.Finish();
}
