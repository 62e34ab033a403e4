// Signs, banners and prompts that appear over the field.
#include "art/families.h"
#include "art/screens/kit.h"

// --- go, time up

static void DrawGo(Sink& sink)
{
	// Frames 0 to 4 spring in, 5 stands, 6 to 8 swell and fade.
	static const float s_scale[]   = {.25f, .6f, .9f, 1.08f, 1.03f, 1, 1.06f, 1.12f, 1.18f};
	static const float s_opacity[] = {.5f, .8f, 1, 1, 1, 1, .75f, .45f, .2f};
	const int W = 250, H = 170;
	Image whole = TitleOn(W, H, W * .5f, H * .46f, "Go!", 92, TITLE_GREEN, 6);
	for (int i = 0; i < 9; i++)
		sink.Add("go" + std::to_string(i) + ".png", Popped(whole, s_scale[i], s_opacity[i]));
}

static void DrawTimesUp(Sink& sink)
{
	const int W = 430, H = 140;
	Image whole = TitleOn(W, H, W * .5f, H * .46f, "Time's up!", 78, TITLE_RED, 10);
	for (int i = 0; i < 3; i++)
		sink.Add("timesup" + std::to_string(i) + ".png", Popped(whole, 1 + .03f * i,
		                                                        i == 0   ? 1
		                                                        : i == 1 ? .6f
		                                                                 : .25f));
}

// --- combos

// Four frames: it springs in, overshoots and settles. All frames of a word have one width, which
// is what centres the banner.
static void AddBanner(Sink& sink, const std::string& stem, const std::string& text, float size,
                      const TitleInk& ink)
{
	static const float s_scale[] = {.82f, 1.06f, 1, 1};
	const int H                  = 58;
	int w                        = (int)LetteringWidth(text, size) + 16;
	Image whole                  = TitleOn(w, H, w * .5f, H * .46f, text, size, ink);
	for (int i = 0; i < 4; i++)
		sink.Add(stem + std::to_string(i) + ".png", Popped(whole, s_scale[i], i == 0 ? .8f : 1));
}

static void DrawCombos(Sink& sink)
{
	// The higher the combo, the hotter and larger its number.
	for (int n = 2; n <= 9; n++) {
		float heat   = (n - 2) / 7.f;
		TitleInk ink = {Mix(TITLE_YELLOW.top, TITLE_RED.top, heat),
		                Mix(TITLE_YELLOW.bottom, TITLE_RED.bottom, heat), TITLE_YELLOW.ink};
		AddBanner(sink, "combo" + std::to_string(n) + "x", std::to_string(n) + "x", 31 + heat * 7,
		          ink);
	}
	AddBanner(sink, "combomax", "Max", 38, TITLE_VIOLET);
	AddBanner(sink, "combocombo", "combo!", 32, TITLE_BLUE);
}

// --- lives

static void DrawLostSigns(Sink& sink)
{
	sink.Add("quorbletlost_A.png", TitleLettering("Quorblet lost!", 46, TITLE_RED));
	sink.Add("quorbletlost_B.png", TitleLettering("left:", 34, TITLE_BLUE));
	for (int i = 0; i < 10; i++) {
		std::string digit = std::to_string(i);
		sink.Add("quorbletlost_" + digit + ".png", TitleLettering(digit, 34, TITLE_YELLOW));
		sink.Add("quorbletlost_big_" + digit + ".png", TitleLettering(digit, 44, TITLE_YELLOW));
	}
}

static void DrawExtraLife(Sink& sink)
{
	Image words = TitleLettering("Extra Quorblet!", 42, TITLE_GREEN);
	Image sign(words.width + 62, words.height + 8);
	Compose(sign, words, 58, 4);
	Compose(sign, GlassBall(58, 0), 4, (sign.height - 58) / 2 - 2);
	Image plus = TitleLettering("+1", 31, TITLE_YELLOW);
	ComposeCentred(sign, plus, 34, sign.height * .5f);
	sink.Add("extraquorbletawarded.png", sign);
}

// --- trophies

static void DrawCup(Canvas& canvas, float x, float y)
{
	const Colour INK = HexColour(0x4a2c08), GOLD = HexColour(0xffd43a);
	for (int side = -1; side <= 1; side += 2) {
		canvas.Stroke(Oval(x + side * 15, y - 9, 6, 7), INK, 5.4f);
		canvas.Stroke(Oval(x + side * 15, y - 9, 6, 7), GOLD, 2.8f);
	}
	PathFn cup = [=](cairo_t* c) {
		cairo_move_to(c, x - 15, y - 20);
		cairo_line_to(c, x + 15, y - 20);
		cairo_curve_to(c, x + 15, y - 2, x + 8, y + 4, x + 3, y + 6);
		cairo_line_to(c, x + 3, y + 11);
		cairo_line_to(c, x + 10, y + 16);
		cairo_line_to(c, x - 10, y + 16);
		cairo_line_to(c, x - 3, y + 11);
		cairo_line_to(c, x - 3, y + 6);
		cairo_curve_to(c, x - 8, y + 4, x - 15, y - 2, x - 15, y - 20);
		cairo_close_path(c);
	};
	canvas.Body(cup, Downward(HexColour(0xfff0a0), HexColour(0xe8981c), y - 20, y + 16), INK, 1.4f,
	            2, 3, .8f);
	canvas.Fill(Star(x, y - 9, 6.4f, 2.8f), HexColour(0xfffbe0), .95f);
}

// Three frames: a gleam stands at the left, in the middle and at the right of the cup.
static void DrawTrophySign(Sink& sink)
{
	const int W = 268, H = 66;
	for (int i = 0; i < 3; i++) {
		Image sign = Plank(W, H);
		Canvas canvas(W, H, 3);
		DrawCup(canvas, 46, 31);
		float x = 36 + i * 11.f, y = 16 + i * 3.f;
		canvas.Fill(Star(x, y, 8, 1.6f, 4), PAINT_WHITE, .95f);
		canvas.Fill(Disc(x, y, 2), PAINT_WHITE);
		canvas.Caption("Trophy unlocked!", 23, 158, H * .5f - 3, HexColour(0xfff6c8),
		               HexColour(0x4a2408), 1.8f);
		Compose(sign, canvas.Finish(), 0, 0);
		sink.Add("trophy_unlocked" + std::to_string(i) + ".png", sign);
	}
}

// --- prompts

// A mouse with its left button lit.
static void DrawMouse(Canvas& canvas, float x, float y)
{
	PathFn body = RoundRect(x - 8, y - 11, 16, 22, 8);
	canvas.Body(body, Plain(HexColour(0xf4f6fc)), PAINT_TEXT_BLUE, 1.2f, 1.8f, 3, .4f);
	PathFn left = [=](cairo_t* c) { cairo_rectangle(c, x - 8, y - 11, 8, 10); };
	canvas.FillMask(Product(canvas.Mask(left), canvas.Mask(body)), HexColour(0xff9a28), .95f);
	canvas.Stroke(Line({{x - 8, y - 1}, {x + 8, y - 1}}), PAINT_TEXT_BLUE, 1);
	canvas.Stroke(Line({{x, y - 11}, {x, y - 1}}), PAINT_TEXT_BLUE, 1);
}

static Image Prompt(const std::string& text, int w, float size)
{
	const int H = 38;
	Canvas canvas(w, H);
	PathFn pill = RoundRect(2, 2, w - 5.f, H - 7.f, 15);
	canvas.DropShadow(pill, 1.8f, 1, 2, .45f);
	canvas.Body(pill, Downward(HexColour(0x3f8fd0), HexColour(0x1c5490), 0, H), PAINT_TEXT_BLUE,
	            1.1f, 2.2f, 2.6f, .3f);
	DrawMouse(canvas, 20, H * .5f - 1.6f);
	canvas.Caption(text, size, 33 + (w - 42) * .5f, H * .5f - 1.4f, HexColour(0xfffbdb),
	               PAINT_TEXT_BLUE, 1.5f);
	return canvas.Finish();
}

static void DrawPrompts(Sink& sink)
{
	sink.Add("clickto_quorblet.png", Prompt("Click to launch!", 169, 19));
	sink.Add("clickto_destructoray.png", Prompt("Click to fire the Destructo!", 251, 18));
}

static void DrawHints(Sink& sink)
{
	const int W = 34, H = 40;
	Canvas canvas(W, H);
	PathFn arrow = Arrow(W * .5f - .5f, H * .5f - 2, 33, 13, PI / 2);
	canvas.DropShadow(arrow, 1.6f, 1, 2.4f, .5f);
	canvas.Fill(arrow, HexColour(0x4a2408), 1, 2.4f);
	canvas.Fill(arrow, PAINT_CREAM, 1, 1.3f);
	canvas.Relief(arrow, Downward(HexColour(0xfff04a), HexColour(0xff8a1a), 2, 36), 2, 3, .5f);
	sink.Add("animal_arrow.png", canvas.Finish());
	sink.Add("animal_arrowtext.png", TitleLettering("Rescue me!", 30, TITLE_YELLOW));
	sink.Add("arrowcapturenowtext.png", TitleLettering("Catch it now!", 30, TITLE_RED));
}

void AddSigns(Catalogue& catalogue)
{
	catalogue.Add("signs/go", __FILE__, DrawGo);
	catalogue.Add("signs/timesup", __FILE__, DrawTimesUp);
	catalogue.Add("signs/combos", __FILE__, DrawCombos);
	catalogue.Add("signs/lives", __FILE__, DrawLostSigns);
	catalogue.Add("signs/extralife", __FILE__, DrawExtraLife);
	catalogue.Add("signs/trophy", __FILE__, DrawTrophySign);
	catalogue.Add("signs/prompts", __FILE__, DrawPrompts);
	catalogue.Add("signs/hints", __FILE__, DrawHints);
}
