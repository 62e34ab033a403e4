// The title card of a bonus level: frame, boxes, titles and button.
#include "art/families.h"
#include "art/screens/frames.h"

// Places of the game's screen, in pixels.
static const int MIDDLE_X = 400;
static const int MAIN_X = 189, TITLE_BOX_X = 242, TITLE_X = 318, BOX_A_X = 194, BOX_B_X = 254;

// --- frame

// Three toes and a ball, walking along `turn`.
static PathFn Paw(float x, float y, float size, float turn)
{
	PathFn print = Joined({Oval(x, y + size * .35f, size * .55f, size * .45f),
	                       Oval(x - size * .55f, y - size * .35f, size * .22f, size * .3f, -.3f),
	                       Oval(x, y - size * .55f, size * .22f, size * .32f),
	                       Oval(x + size * .55f, y - size * .35f, size * .22f, size * .3f, .3f)});
	return Turned(print, x, y, turn);
}

// Faint tracks fill the lower half of those cards that have no box there; the box hides them.
static void DrawTracks(Canvas& canvas)
{
	const int STEPS = 9;
	for (int i = 0; i < STEPS; i++) {
		float x = 45 + i * 41.f;
		float y = 212 + std::sin(i * .75f) * 9 + (i & 1 ? 10 : -10);
		canvas.Fill(Paw(x, y, 15, 1.5f + std::cos(i * .75f) * .25f), HexColour(0xc09a5c), .26f);
	}
}

static void DrawFrame(Sink& sink)
{
	const int W = 2 * (MIDDLE_X - MAIN_X) + 3, H = 318;
	Image paper = PaperPanel(W, H);
	Canvas tracks(W, H);
	DrawTracks(tracks);
	Compose(paper, tracks.Finish(), 0, 0);
	sink.Add("prelevel_main.png", paper);

	const int BOX_W = 2 * (MIDDLE_X - BOX_A_X), BOX_H = 76, AIR = 19;
	Canvas box(BOX_W, BOX_H);
	DrawWell(box, AIR, 2, BOX_W - 2.f * AIR, BOX_H - 4);
	sink.Add("prelevel_boxA.png", box.Finish());
	sink.Add("prelevel_boxB.png", SteelPanel(2 * (MIDDLE_X - BOX_B_X) + 3, 56, 9, false));

	// Round a portrait whose corner stands 5 px right and down of the frame's.
	const int RIM = 5, PORTRAIT_W = 90, PORTRAIT_H = 72;
	Canvas frame(PORTRAIT_W + 2 * RIM, PORTRAIT_H + 2 * RIM, 3);
	DrawWindow(frame, RIM, RIM, PORTRAIT_W, PORTRAIT_H);
	Image window = frame.Finish();
	DrawRays(window, RIM, RIM, PORTRAIT_W, PORTRAIT_H, HexColour(0x6cc0f0), HexColour(0x9adcff));
	sink.Add("prelevel_portraitframe.png", window);
	AddCapsule(sink, "prelevel_button", 144, 42, "Let's go!", PAINT_GO, 24);
}

static void DrawTitleBox(Sink& sink)
{
	const int W = 2 * (MIDDLE_X - TITLE_BOX_X) + 3, H = 86;
	const float X = MIDDLE_X - TITLE_BOX_X, Y = 22;
	Image box = Plank(W, H);
	Canvas words(W, H);
	words.Caption("Bonus level", 21, X, Y, HexColour(0xfff6c8), HexColour(0x4a2408), 1.7f);
	for (int side = -1; side <= 1; side += 2) {
		PathFn star = Star(X + side * 72, Y - .5f, 8.5f, 3.8f);
		words.Fill(star, HexColour(0x4a2408), 1, 1.5f);
		words.Relief(star, Downward(HexColour(0xfff04a), HexColour(0xff8a1a), Y - 9, Y + 9), 1.4f,
		             3, .4f);
	}
	Compose(box, words.Finish(), 0, 0);
	sink.Add("prelevel_titlebox.png", box);
}

static void DrawTitles(Sink& sink)
{
	static const char* const s_titles[][2] = {
	    {"coin", "Coin rush"},       {"demolition", "Demolition"}, {"dodgeball", "Dodgeball"},
	    {"egg", "Egg hunt"},         {"harvest", "Harvest"},       {"order", "In order"},
	    {"pinball", "Pinball"},      {"speedball", "Speedball"},   {"stampede", "Stampede"},
	    {"tightspot", "Tight spot"},
	};
	const int W = 2 * (MIDDLE_X - TITLE_X), H = 40;
	for (const auto& title : s_titles)
		sink.Add(std::string("prelevel_title") + title[0] + ".png",
		         TitleOn(W, H, W * .5f, 17, title[1], 30, TITLE_YELLOW));
}

// Lies over both drums, so it is cut out where they stand in the light.
static void DrawDrumShadow(Sink& sink)
{
	const int W = 76, H = 76;
	Canvas canvas(W, H);
	Field ground = Blur(canvas.Mask(Joined({Oval(21, 64, 17, 4.5f), Oval(48, 53, 18, 4.5f)})), 3);
	Field drums  = canvas.Mask(Joined({RoundRect(3, 25, 28, 42, 5), RoundRect(29, 15, 28, 41, 5)}));
	canvas.FillMask(Product(ground, Inverse(drums)), PAINT_SHADOW_SAND, .4f);
	sink.Add("prelevel_drumshadow.png", canvas.Finish());
}

void AddBonusCard(Catalogue& catalogue)
{
	catalogue.Add("bonuscard/frame", __FILE__, [](Sink& sink) {
		DrawFrame(sink);
		DrawTitleBox(sink);
		DrawDrumShadow(sink);
	});
	catalogue.Add("bonuscard/titles", __FILE__, DrawTitles);
}
