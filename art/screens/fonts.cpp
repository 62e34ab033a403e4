// Everything that is set letter by letter: the text font, greeting, timer and flyaway digits.
#include "art/families.h"
#include "art/screens/kit.h"

static const int CELL_WIDTH = 10, CELL_HEIGHT = 20;
static const float BASELINE = 15.2f, GLYPH_SIZE = 15.5f, WIDEST = 9.2f;
static const float CAPITALS = .70f; // height of capitals, as a part of the size

// --- the text font

// clang-format off
static const struct { const char* name; const char* text; } SIGNS[] = {
	{ "apostrophe", "'" }, { "bracketclose", ")" }, { "bracketopen", "(" }, { "colon", ":" },
	{ "comma", "," }, { "dollarsign", "$" }, { "etc", "…" }, { "exclamation", "!" },
	{ "hyphen", "-" }, { "period", "." }, { "question", "?" }, { "quotesclose", "”" },
	{ "quotesopen", "“" }, { "semicolon", ";" },
};
// clang-format on

// One letter in its cell, squeezed when it is too wide.
static Image Glyph(const std::string& text)
{
	Canvas canvas(CELL_WIDTH, CELL_HEIGHT, 6);
	float width   = LetteringWidth(text, GLYPH_SIZE);
	float squeeze = width > WIDEST ? WIDEST / width : 1;
	PathFn letter = Lettering(text, GLYPH_SIZE, 0, -GLYPH_SIZE * CAPITALS * .5f);
	PathFn path   = [=](cairo_t* c) {
        cairo_save(c);
        cairo_translate(c, CELL_WIDTH * .5f, BASELINE);
        cairo_scale(c, squeeze, 1);
        letter(c);
        cairo_restore(c);
	};
	// Squeezed strokes lie closer together: a full edge would close the gaps.
	canvas.Fill(path, HexColour(0x3a2a1c), 1, squeeze < .9f ? .8f : 1.15f);
	canvas.Fill(path, HexColour(0xfff6dc), 1, squeeze < .9f ? 0 : .1f);
	return canvas.Finish();
}

static void DrawTextFont(Sink& sink)
{
	for (char c = 'A'; c <= 'Z'; c++)
		sink.Add(std::string("fontbig") + c + ".png", Glyph(std::string(1, c)));
	for (char c = 'a'; c <= 'z'; c++)
		sink.Add(std::string("fontsmall") + c + ".png", Glyph(std::string(1, c)));
	for (char c = '0'; c <= '9'; c++)
		sink.Add(std::string("fontnumber") + c + ".png", Glyph(std::string(1, c)));
	for (const auto& sign : SIGNS)
		sink.Add(std::string("font") + sign.name + ".png", Glyph(sign.text));
}

// --- the greeting

// A letter as wide as its step plus the 8 px by which neighbours overlap.
static Image GreetingLetter(const std::string& text)
{
	const float SIZE = 74;
	const int RIM = 8, HEIGHT = 108;
	int w = (int)std::lround(LetteringWidth(text, SIZE)) + 2 * RIM;
	return TitleOn(w, HEIGHT, w * .5f, HEIGHT * .46f, text, SIZE, TITLE_YELLOW);
}

static void DrawGreeting(Sink& sink)
{
	sink.Add("fontBbigG.png", GreetingLetter("G"));
	sink.Add("fontBbigR.png", GreetingLetter("R"));
	for (const char* small : {"a", "d", "e", "t", "y"})
		sink.Add(std::string("fontBsmall") + small + ".png", GreetingLetter(small));
	sink.Add("fontBexclamation.png", GreetingLetter("!"));
}

// --- the timer

static const int TIMER_WIDTH = 106, TIMER_HEIGHT = 46;

// Digits stand at 14, 48 and 70 from the left and 7 from the top, the colon at (36, 11).
static Image TimerFrame()
{
	Canvas canvas(TIMER_WIDTH, TIMER_HEIGHT);
	PathFn outer = RoundRect(2, 1.5f, TIMER_WIDTH - 5.f, TIMER_HEIGHT - 6.f, 12);
	canvas.DropShadow(outer, 2, 1, 3, .5f);
	canvas.Body(outer, Downward(Lighter(PAINT_BRASS, .2f), Darker(PAINT_BRASS, .25f), 0, 44),
	            PAINT_BRASS_INK, 1.2f, 2.6f, 3, .8f);
	PathFn glass = RoundRect(7.5f, 6, TIMER_WIDTH - 16.f, TIMER_HEIGHT - 15.f, 8);
	canvas.Fill(glass, PAINT_BRASS_INK, 1, 1.2f);
	canvas.FillAt(glass, Downward(HexColour(0x0c2238), HexColour(0x1f4c74), 6, 38));
	canvas.InnerShadow(glass, 2, {0, 0, 0}, .6f);
	canvas.Gloss(RoundRect(10, 7, TIMER_WIDTH - 21.f, 11, 6), glass, 7, 18, .20f);
	return canvas.Finish();
}

static Image TimerSign(const std::string& text, int w, int h, float middle, float size)
{
	Canvas canvas(w, h, 4);
	PathFn path = Lettering(text, size, w * .5f, middle);
	canvas.FillMask(Blur(canvas.Mask(path, 1), 1.6f * 4), HexColour(0xffb020), .55f);
	canvas.Fill(path, HexColour(0x3c1c04), 1, 1.3f);
	canvas.Relief(path, Downward(HexColour(0xfff6a8), HexColour(0xffb428), 5, 25), 1.2f, 2.4f, .4f);
	return canvas.Finish();
}

static void DrawTimer(Sink& sink)
{
	sink.Add("timermain.png", TimerFrame());
	sink.Add("timercolon.png", TimerSign(":", 12, 22, 10.5f, 26));
	for (int i = 0; i < 10; i++)
		sink.Add("timer" + std::to_string(i) + ".png",
		         TimerSign(std::to_string(i), 22, 29, 14.5f, 31));
}

// --- flyaways

static const int FLYAWAY_FRAMES = 16;

// Pops in over three frames, stands, and thins out over the last five.
static void AddFlyaway(Sink& sink, const std::string& stem, const std::string& text,
                       const TitleInk& ink)
{
	const int W = 18, H = 26;
	const float SIZE             = 20;
	static const float s_scale[] = {.55f, .85f, 1.12f};
	Image whole                  = TitleOn(W, H, W * .5f, H * .48f, text, SIZE, ink);
	for (int i = 0; i < FLYAWAY_FRAMES; i++) {
		float gone    = Clamp01((i - 10) / 6.f);
		float scale   = i < 3 ? s_scale[i] : 1 + .12f * gone;
		float opacity = i == 0 ? .7f : 1 - gone;
		sink.Add(stem + "-" + std::to_string(i) + ".png", Popped(whole, scale, opacity));
	}
}

static void DrawFlyaways(Sink& sink)
{
	for (int i = 0; i < 10; i++)
		AddFlyaway(sink, "flyaway" + std::to_string(i), std::to_string(i), TITLE_YELLOW);
	AddFlyaway(sink, "flyawaydollar", "$", TITLE_GREEN);
}

void AddFonts(Catalogue& catalogue)
{
	catalogue.Add("fonts/text", __FILE__, DrawTextFont);
	catalogue.Add("fonts/greeting", __FILE__, DrawGreeting);
	catalogue.Add("fonts/timer", __FILE__, DrawTimer);
	catalogue.Add("fonts/flyaways", __FILE__, DrawFlyaways);
}
