// The medallions of the main menu: Play, the brass rings, and the faces that turn in them.
#include "art/families.h"
#include "art/screens/kit.h"
#include "art/screens/menu_emblems.h"

static const int LARGE_WIDTH = 192, LARGE_HEIGHT = 108;
static const int SMALL_WIDTH = 132, SMALL_HEIGHT = 80;
static const int PRESS_FRAMES = 5;

namespace
{
// The ovals of a medallion; its shadow takes the room at the right and below.
struct Medallion {
	float cx, cy, rx, ry;
	Medallion(int w, int h) : cx(w * .5f - 1), cy(h * .5f - 1.5f), rx(cx - 1.5f), ry(cy - 1.5f) {}
	PathFn Inside(float inset) const { return Oval(cx, cy, rx - inset, ry - inset); }
};

struct Face {
	const char* stem;
	const char* caption;
	float size; // of the caption
	Colour colour;
	Emblem emblem;
};
} // namespace

static void DrawRing(Canvas& canvas, const Medallion& m, bool lit)
{
	Colour brass = lit ? HexColour(0xffd45c) : PAINT_BRASS;
	canvas.DropShadow(m.Inside(1), 1.8f, 1, 2.6f, .55f);
	canvas.Body(m.Inside(0), Downward(Lighter(brass, .25f), Darker(brass, .3f), 0, m.cy * 2),
	            PAINT_BRASS_INK, 1.1f, 3, 3, .8f);
	canvas.Fill(m.Inside(6.5f), PAINT_BRASS_INK);
	if (lit)
		canvas.Stroke(m.Inside(3.2f), HexColour(0xfffbd0), 2.4f, .9f);
}

static void DrawEnamel(Canvas& canvas, const Medallion& m, Colour base)
{
	PathFn face = m.Inside(8);
	canvas.Relief(face, Downward(Lighter(base, .2f), Darker(base, .42f), 6, m.cy * 2 - 6), 5, 2.4f,
	              .3f);
}

static void DrawGloss(Canvas& canvas, const Medallion& m)
{
	canvas.Gloss(Oval(m.cx, m.cy * .62f, m.rx * .72f, m.ry * .52f), m.Inside(8), m.cy * .2f, m.cy,
	             .34f);
}

static Colour Lit(Colour c, bool lit)
{
	return lit ? ClampColour(Saturated(Lighter(c, .22f), 1.35f)) : c;
}

static Image PlayButton(bool lit)
{
	Canvas canvas(LARGE_WIDTH, LARGE_HEIGHT, 3);
	Medallion m(LARGE_WIDTH, LARGE_HEIGHT);
	DrawRing(canvas, m, lit);
	DrawEnamel(canvas, m, Lit(PAINT_GO, lit));
	DrawGloss(canvas, m);
	canvas.Caption("Play", 46, m.cx, m.cy, lit ? HexColour(0xffffcc) : PAINT_WHITE,
	               InkOf(PAINT_GO) * .8f, 2.4f);
	return canvas.Finish();
}

static Image Ring(bool lit)
{
	Canvas canvas(SMALL_WIDTH, SMALL_HEIGHT);
	Medallion m(SMALL_WIDTH, SMALL_HEIGHT);
	DrawRing(canvas, m, lit);
	canvas.FillAt(m.Inside(8), Downward(HexColour(0x140e0a), HexColour(0x4a3a2c), 8, 72));
	canvas.InnerShadow(m.Inside(8), 4, {0, 0, 0}, .7f);
	return canvas.Finish();
}

static Image FaceImage(const Face& face, bool lit)
{
	const float CAPTION_Y = .71f; // part of the height
	Canvas canvas(SMALL_WIDTH, SMALL_HEIGHT);
	Medallion m(SMALL_WIDTH, SMALL_HEIGHT);
	DrawEnamel(canvas, m, Lit(face.colour, lit));
	DrawGloss(canvas, m);
	face.emblem(canvas);
	canvas.Caption(face.caption, face.size, m.cx, SMALL_HEIGHT * CAPTION_Y,
	               lit ? HexColour(0xffffcc) : PAINT_WHITE, InkOf(face.colour) * .8f, 1.9f);
	return canvas.Finish();
}

// Light that runs out over the button and fades.
static Image Flash(int w, int h, int step)
{
	Canvas canvas(w, h, 3);
	Medallion m(w, h);
	float t = step / (PRESS_FRAMES - 1.f), out = Mix(.25f, 1, std::sqrt(t));
	float fade  = 1 - t * .85f;
	Field light = canvas.Mask(Oval(m.cx, m.cy, m.rx * out, m.ry * out));
	Field hole  = canvas.Mask(Oval(m.cx, m.cy, m.rx * out * t, m.ry * out * t));
	light       = Product(light, Inverse(Blur(hole, 3.f * canvas.supersample)));
	light       = Product(Blur(light, 3.f * canvas.supersample), canvas.Mask(m.Inside(0)));
	canvas.FillMask(light, HexColour(0xfffbd8), .85f * fade);
	canvas.Stroke(Oval(m.cx, m.cy, m.rx * out - 2, m.ry * out - 2), PAINT_WHITE, 3.2f * (1.2f - t),
	              fade);
	for (int i = 0; i < 12; i++) { // sparks along the ring
		float a = i * PI / 6 + .2f, at = out * .92f;
		canvas.Fill(Star(m.cx + std::cos(a) * m.rx * at, m.cy + std::sin(a) * m.ry * at,
		                 5 * (1 - t) + 1.5f, 1.2f, 4, a),
		            HexColour(0xfff6a0), fade);
	}
	return canvas.Finish();
}

static void AddFlash(Sink& sink, const char* stem, int w, int h)
{
	std::vector<Image> frames;
	for (int i = 0; i < PRESS_FRAMES; i++)
		frames.push_back(Flash(w, h, i));
	sink.AddFrames(stem, frames);
}

// --- faces

static const Colour VIOLET = HexColour(0x8a44d0), ORANGE = HexColour(0xe8801c);
static const Colour TEAL = HexColour(0x1f9aa8), LEAF = HexColour(0x4a9a34);
static const Colour ROSE = HexColour(0xd84a8c);

// clang-format off
static const Face s_faces[] = {
	{ "button0root",         "Rewards",      18, VIOLET,        DrawCupEmblem },
	{ "button1root",         "Options",      18, PAINT_NEUTRAL, DrawGearEmblem },
	{ "button2root",         "More games",   17, ORANGE,        DrawGiftEmblem },
	{ "button3root",         "Quit",         18, PAINT_STOP,    DrawDoorEmblem },
	{ "button0achievements", "Sanctuary",    18, LEAF,          DrawPawEmblem },
	{ "button1achievements", "Trophies",     18, VIOLET,        DrawMedalEmblem },
	{ "button2achievements", "High scores",  17, PAINT_NEUTRAL, DrawPodiumEmblem },
	{ "button3achievements", "Back",         18, ORANGE,        DrawBackEmblem },
	{ "button0options",      "Instructions", 16, TEAL,          DrawQuestionEmblem },
	{ "button1options",      "Settings",     18, PAINT_NEUTRAL, DrawSlidersEmblem },
	{ "button2options",      "Credits",      18, ROSE,          DrawScrollEmblem },
};
// clang-format on

static void DrawFace(Sink& sink, const Face& face)
{
	const float SHRINK[PRESS_FRAMES] = {.88f, .66f, .42f, .18f, .02f};
	const float GROW[PRESS_FRAMES]   = {.16f, .52f, .86f, 1.06f, 1.02f};
	std::string stem                 = face.stem;
	Image base                       = FaceImage(face, false);
	sink.Add(stem + "base.png", base);
	sink.Add(stem + "rollover.png", FaceImage(face, true));
	for (int i = 0; i < PRESS_FRAMES; i++) {
		std::string end = std::to_string(i) + ".png";
		sink.Add(stem + "shrink" + end, Popped(base, SHRINK[i]));
		sink.Add(stem + "grow" + end, Popped(base, GROW[i]));
	}
}

void AddMenuButtons(Catalogue& catalogue)
{
	catalogue.Add("menu/play", __FILE__, [](Sink& sink) {
		sink.Add("buttonlargebase.png", PlayButton(false));
		sink.Add("buttonlargerollover.png", PlayButton(true));
		AddFlash(sink, "buttonlargepress", LARGE_WIDTH, LARGE_HEIGHT);
	});
	catalogue.Add("menu/ring", __FILE__, [](Sink& sink) {
		sink.Add("buttonsmallbase.png", Ring(false));
		sink.Add("buttonsmallrollover.png", Ring(true));
		AddFlash(sink, "buttonsmallpress", SMALL_WIDTH, SMALL_HEIGHT);
	});
	for (const Face& face : s_faces)
		catalogue.Add(std::string("menu/") + face.stem, __FILE__,
		              [&face](Sink& sink) { DrawFace(sink, face); });
}
