// A white-rimmed button of a colour for each state; the shape tells the kind.
#include "art/screens/map/dots.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"

static const float ART_RADIUS = 7.6f; // pixels

// By kind: completed, incomplete, locked, ghosted, selected.
static const uint32_t s_colours[][5] = {
    {0x46b43c, 0xffb81e, 0x8a94a8, 0x8a94a8, 0xff9d14}, // Regular
    {0x3a8ae8, 0xff7a2a, 0x8a94a8, 0x8a94a8, 0xff7a2a}, // Bonus
    {0x7a44d0, 0xe05af0, 0x8a94a8, 0x8a94a8, 0xc850e8}, // Alien
    {0x22a49c, 0xf8e05a, 0x8a94a8, 0x8a94a8, 0xf8d02a}, // Side
    {0xffd83a, 0xffd83a, 0xaaa898, 0xaaa898, 0xffd020}, // Star
};

static PathFn Body(DotKind kind, float cx, float cy)
{
	const float HALF = 9.2f;
	switch (kind) {
	case DotKind::Star:
		return Star(cx, cy + .4f, 10.6f, 5.6f);
	case DotKind::Bonus:
		return Polygon({{cx, cy - HALF}, {cx + HALF, cy}, {cx, cy + HALF}, {cx - HALF, cy}});
	case DotKind::Side:
		return Disc(cx, cy, 6.6f);
	default:
		return Disc(cx, cy, ART_RADIUS);
	}
}

static void DrawRing(Canvas& canvas, float cx, float cy, float radius, float lit)
{
	const Colour INK = HexColour(0x3c2408);
	Colour light     = Mix(HexColour(0xffe83a), PAINT_WHITE, lit);
	canvas.Fill(Disc(cx, cy, radius + .4f), HexColour(0xfff6b0), .25f + .45f * lit);
	canvas.Stroke(Disc(cx, cy, radius - .6f), INK, 3.4f);
	canvas.Stroke(Disc(cx, cy, radius - .6f), light, 1.9f + .5f * lit);
}

static void DrawTick(Canvas& canvas, float cx, float cy)
{
	PathFn tick = Line({{cx - 3.4f, cy + .4f}, {cx - .8f, cy + 3}, {cx + 4, cy - 3.2f}});
	canvas.Stroke(tick, HexColour(0x14381c), 3.2f, .45f);
	canvas.Stroke(tick, PAINT_WHITE, 2);
}

// Two slanted eyes; a finished one carries a small green badge.
static void DrawAlien(Canvas& canvas, float cx, float cy, bool done)
{
	for (float side : {-1.f, 1.f}) {
		canvas.Fill(Oval(cx + side * 2.6f, cy - .4f, 1.8f, 2.9f, side * .6f), HexColour(0x140c20));
		canvas.Fill(Disc(cx + side * 2.6f - .5f, cy - 1.4f, .6f), PAINT_WHITE);
	}
	canvas.Stroke(Line({{cx - 1.4f, cy + 4.2f}, {cx + 1.4f, cy + 4.2f}}), HexColour(0x140c20), .9f);
	if (!done)
		return;
	canvas.Fill(Disc(cx + 5.4f, cy + 5.4f, 4.4f), HexColour(0x14381c));
	canvas.Fill(Disc(cx + 5.4f, cy + 5.4f, 3.7f), HexColour(0x46b43c));
	canvas.Stroke(Line({{cx + 3.6f, cy + 5.6f}, {cx + 5, cy + 7}, {cx + 7.4f, cy + 3.8f}}),
	              PAINT_WHITE, 1.3f);
}

Image DrawDot(DotKind kind, DotFace face, float lit)
{
	const bool star = kind == DotKind::Star;
	Canvas canvas(star ? 29 : 25, star ? 27 : 25, 6);
	float cx = canvas.width * .5f, cy = canvas.height * .5f;
	bool locked   = face == DotFace::Locked || face == DotFace::Ghosted;
	bool selected = face == DotFace::Selected;
	Colour c      = HexColour(s_colours[(int)kind][(int)face]);
	c             = ClampColour(c * (1 + .30f * lit) + Colour{.10f, .09f, .03f} * lit);
	PathFn body   = Body(kind, cx, cy);
	if (lit > 0 && !selected)
		canvas.Fill(body, HexColour(0xfff27a), .9f, 2.8f);
	if (selected)
		DrawRing(canvas, cx, cy, star ? 11.5f : 10.9f, lit);
	canvas.Fill(Oval(cx + .8f, cy + 3, 8.4f, 6.4f), HexColour(0x20180c), selected ? 0 : .35f);
	canvas.Fill(body, HexColour(0x2c2010), 1, 1.9f);
	canvas.Fill(body, locked ? HexColour(0xd0d4dc) : PAINT_CREAM, 1, 1.f);
	canvas.Relief(body, Downward(Lighter(c, .22f), Darker(c, .35f), cy - 7, cy + 7), 2.2f, 3, .5f);
	canvas.Fill(Oval(cx - 2, cy - 3.4f, 3, 1.5f, -.5f), PAINT_WHITE, locked ? .45f : .68f);
	if (kind == DotKind::Alien)
		DrawAlien(canvas, cx, cy, face == DotFace::Completed);
	else if (face == DotFace::Completed)
		DrawTick(canvas, cx, cy);
	return canvas.Finish();
}
