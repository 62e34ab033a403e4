// The sliding doors of the side panel: steel halves, rubber lips, the two-handed latch.
#include "art/screens/kit.h"
#include "art/screens/panel_parts.h"

static const int DOOR_HEIGHT = 92, HALF_WIDTH = 47;
static const int RUBBER_WIDTH = 15, HANDLE_WIDTH = 28, HANDLE_HEIGHT = 54;
static const int LATCH_WIDTH = 56, LATCH_HEIGHT = 60; // both handles, 3 px taller above and below
static const int LATCH_FRAMES = 24;
static const int SWIRL_WIDTH = 90, SWIRL_HEIGHT = 62, SWIRL_FRAMES = 10;

// The whole closed door, cut in two by the caller: what is engraved runs across the seam.
static Image DoorFace()
{
	const int W = HALF_WIDTH * 2;
	Canvas canvas(W, DOOR_HEIGHT);
	PathFn full = [=](cairo_t* c) { cairo_rectangle(c, -6, 0, W + 12, DOOR_HEIGHT); };
	canvas.FillAt(full, [](float x, float y) {
		float brushed = LayeredNoise(x * .02f, y * .9f, 3, 7);
		return Mix(HexColour(0x6db4dc), HexColour(0x2f78ac), y / DOOR_HEIGHT) *
		       (.90f + .18f * brushed);
	});
	PathFn frame = RoundRect(4, 4, W - 8.f, DOOR_HEIGHT - 8.f, 7);
	canvas.Stroke(frame, HexColour(0x1c5580), 2.2f, .8f);
	canvas.Stroke(RoundRect(4.8f, 5, W - 8.f, DOOR_HEIGHT - 8.f, 7), HexColour(0xbfe8fa), .9f, .7f);
	for (int i = 0; i < 3; i++) { // hazard stripes on the lower rail, as on the machine's bumper
		float y = DOOR_HEIGHT - 15.f;
		for (int side = -1; side <= 1; side += 2) {
			float x = HALF_WIDTH + side * (20.f + i * 8.f) - 3;
			canvas.Fill(Polygon({{x + 3, y}, {x + 8, y}, {x + 5, y + 6}, {x, y + 6}}),
			            HexColour(0xffd040), .95f);
		}
	}
	for (int i = 0; i < 4; i++)
		DrawRivet(canvas, i & 1 ? W - 10.f : 10.f, i & 2 ? DOOR_HEIGHT - 22.f : 10.f, 2);
	PathFn seam = [=](cairo_t* c) { cairo_rectangle(c, HALF_WIDTH - .6f, 0, 1.2f, DOOR_HEIGHT); };
	canvas.Fill(seam, HexColour(0x123048), .8f);
	canvas.Stroke([=](cairo_t* c) { cairo_rectangle(c, .5f, .5f, W - 1, DOOR_HEIGHT - 1); },
	              HexColour(0x123048), 1.2f, .7f);
	return canvas.Finish();
}

// Black rubber lip behind the steel, with a row of teeth toward the seam.
static Image Rubber(bool left)
{
	Canvas canvas(RUBBER_WIDTH, DOOR_HEIGHT);
	PathFn lip = [=](cairo_t* c) {
		float flat = left ? 0.f : RUBBER_WIDTH, soft = left ? RUBBER_WIDTH - 1.5f : 1.5f;
		float out = left ? 1.4f : -1.4f;
		cairo_move_to(c, flat, 0);
		cairo_line_to(c, soft, 0);
		for (int y = 0; y < DOOR_HEIGHT; y += 8)
			cairo_curve_to(c, soft + out, y + 2, soft + out, y + 6, soft, y + 8);
		cairo_line_to(c, soft, DOOR_HEIGHT);
		cairo_line_to(c, flat, DOOR_HEIGHT);
		cairo_close_path(c);
	};
	canvas.Relief(lip, Plain(HexColour(0x3c424e)), 3, 2.6f, .3f);
	for (int i = 0; i < 3; i++) {
		float x = left ? 3.f + i * 4 : 4.f + i * 4;
		canvas.Fill([=](cairo_t* c) { cairo_rectangle(c, x, 0, 1.1f, DOOR_HEIGHT); },
		            HexColour(0x20242e), .7f);
	}
	return canvas.Finish();
}

// The latch: a brass wheel halved by the seam on a round plate. `turn` in radians, `open` 0..1 lets
// the bolts slide in.
static Image Latch(float turn, float open)
{
	Canvas canvas(LATCH_WIDTH, LATCH_HEIGHT);
	float cx = LATCH_WIDTH * .5f, cy = LATCH_HEIGHT * .5f;
	Colour brass = PAINT_BRASS;
	for (int i = 0; i < 2; i++) { // bolts above and below
		float y = i ? cy + 17 - 5 * open : cy - 27 + 5 * open;
		canvas.Body(RoundRect(cx - 3.4f, y, 6.8f, 10, 2), Plain(PAINT_MACHINE_STEEL),
		            InkOf(PAINT_MACHINE_STEEL), .9f, 1.4f, 3, .7f);
	}
	canvas.Body(Disc(cx, cy, 25), Downward(HexColour(0x5aa4d0), HexColour(0x2a6c9c), 4, 56),
	            HexColour(0x12304a), 1.2f, 2.6f, 2.6f, .3f);
	std::vector<PathFn> spokes;
	for (int i = 0; i < 4; i++) {
		float a = turn + i * PI / 2;
		spokes.push_back(Polygon({{cx + std::cos(a + .22f) * 3, cy + std::sin(a + .22f) * 3},
		                          {cx + std::cos(a + .13f) * 17, cy + std::sin(a + .13f) * 17},
		                          {cx + std::cos(a - .13f) * 17, cy + std::sin(a - .13f) * 17},
		                          {cx + std::cos(a - .22f) * 3, cy + std::sin(a - .22f) * 3}}));
	}
	PathFn ring = [=](cairo_t* c) {
		cairo_new_sub_path(c);
		cairo_arc(c, cx, cy, 20.5f, 0, 2 * PI);
		cairo_close_path(c);
		cairo_new_sub_path(c);
		cairo_arc_negative(c, cx, cy, 15, 2 * PI, 0);
		cairo_close_path(c);
	};
	canvas.DropShadow(ring, 1.4f, 1, 2, .5f);
	canvas.Fill(Joined(spokes), PAINT_BRASS_INK, 1, 1);
	canvas.Fill(ring, PAINT_BRASS_INK, 1, 1);
	canvas.Relief(Joined(spokes), Plain(Darker(brass, .2f)), 1.2f, 3, .6f);
	canvas.Relief(ring, Downward(Lighter(brass, .2f), Darker(brass, .2f), 9, 51), 1.9f, 3, .8f);
	for (int i = 0; i < 4; i++) {
		float a = turn + i * PI / 2, x = cx + std::cos(a) * 17.8f, y = cy + std::sin(a) * 17.8f;
		canvas.Body(Disc(x, y, 3.1f), Plain(HexColour(0xe8482c)), HexColour(0x4a0c08), .9f, 1.2f, 3,
		            .7f);
	}
	canvas.Body(Disc(cx, cy, 5.2f), Plain(Lighter(brass, .15f)), PAINT_BRASS_INK, 1, 1.6f, 3, .8f);
	return canvas.Finish();
}

static void DrawDoors(Sink& sink)
{
	Image face = DoorFace();
	sink.Add("sidebardoormainleft.png", Cropped(face, 0, 0, HALF_WIDTH, DOOR_HEIGHT));
	sink.Add("sidebardoormainright.png", Cropped(face, HALF_WIDTH, 0, HALF_WIDTH, DOOR_HEIGHT));
	sink.Add("sidebardoorrubberleft.png", Rubber(true));
	sink.Add("sidebardoorrubberright.png", Rubber(false));
}

// A quarter turn with a little recoil first: the last frame is what the halves continue.
static void DrawLatch(Sink& sink)
{
	std::vector<Image> frames;
	for (int i = 0; i < LATCH_FRAMES; i++) {
		float t      = i / (float)(LATCH_FRAMES - 1);
		float recoil = -.16f * std::sin(Clamp01(t / .25f) * PI) * (1 - t);
		frames.push_back(Latch(recoil + Smoothstep(.15f, 1, t) * PI * 1.5f, Smoothstep(.5f, 1, t)));
	}
	sink.AddFrames("sidebardoorhandleboth", frames);
	Image open = frames.back();
	int top    = (LATCH_HEIGHT - HANDLE_HEIGHT) / 2;
	sink.Add("sidebardoorhandleleft.png", Cropped(open, 0, top, HANDLE_WIDTH, HANDLE_HEIGHT));
	sink.Add("sidebardoorhandleright.png",
	         Cropped(open, HANDLE_WIDTH, top, HANDLE_WIDTH, HANDLE_HEIGHT));
}

// The turning rays behind a portrait; ten frames make one ray's width.
static void DrawSwirls(Sink& sink)
{
	std::vector<Image> frames;
	for (int i = 0; i < SWIRL_FRAMES; i++) {
		Image frame(SWIRL_WIDTH, SWIRL_HEIGHT);
		DrawRays(frame, 0, 0, SWIRL_WIDTH, SWIRL_HEIGHT, HexColour(0x6cc8f4), HexColour(0xb4e8ff),
		         -i * 2 * PI / SWIRL_FRAMES);
		frames.push_back(frame);
	}
	sink.AddFrames("sidebarswirls", frames);
}

// Under the name lines: dark blue glass that lets the portrait's lower edge through.
static void DrawTextBase(Sink& sink)
{
	const int W = 90, H = 30;
	Canvas canvas(W, H);
	PathFn plate = [=](cairo_t* c) { cairo_rectangle(c, 0, 1.6f, W, H); };
	canvas.FillAt(plate, Downward(HexColour(0x24608c), HexColour(0x0e2a44), 0, H), .94f);
	canvas.Fill([=](cairo_t* c) { cairo_rectangle(c, 0, 0, W, 1.8f); }, PAINT_BRASS);
	canvas.Fill([=](cairo_t* c) { cairo_rectangle(c, 0, 0, W, .7f); }, HexColour(0xfff0b0));
	canvas.Fill([=](cairo_t* c) { cairo_rectangle(c, 0, 1.8f, W, 1); }, PAINT_BRASS_INK, .8f);
	sink.Add("sidebartextbase.tga", canvas.Finish());
}

void AddPanelDoors(Catalogue& catalogue)
{
	catalogue.Add("panel/doors", __FILE__, DrawDoors);
	catalogue.Add("panel/latch", __FILE__, DrawLatch);
	catalogue.Add("panel/swirls", __FILE__, [](Sink& sink) {
		DrawSwirls(sink);
		DrawTextBase(sink);
	});
}
