// Loading picture, splash and window icon.
#include "art/families.h"
#include "art/objects/ball.h"
#include "art/objects/machine.h"
#include "art/screens/island.h"
#include "art/screens/kit.h"

static const int WIDTH = 800, HEIGHT = 600;

// The bar is uncovered from the left at (360, 527).
static const int BAR_X = 360, BAR_Y = 527, BAR_WIDTH = 428, BAR_HEIGHT = 58;

// The eyes' picture lies at (264, 197) of the splash; the rectangle takes both eyes in.
static const int EYES_X = 264, EYES_Y = 197, EYES_WIDTH = 272, EYES_HEIGHT = 110;
static const int HEAD_SIZE = 300;
static const float HEAD_X = 400, HEAD_Y = 268, HEAD_ZOOM = 5.6f;

static void DrawLogo(Image& image, float x, float y, float size)
{
	ComposeCentred(image, TitleLettering("Quorblet", size, TITLE_YELLOW, 16), x, y);
}

static void DrawScene(Image& image)
{
	DrawShoreTree(image, 0, 92, 402, 1, PAINT_LEAF_GREEN, 4);
	DrawShoreTree(image, 1, 548, 372, 1, PAINT_PINE[0], 15);
	DrawShoreTree(image, 1, 506, 366, .72f, PAINT_PINE[1], 5);
	DrawShoreTree(image, 0, 690, 396, 1.1f, PAINT_LEAF_ORANGE, 9);
	DrawContactShadow(image, 318, 462, 100, 12, .45f);
	DrawMachine(image, 318 - 38 * 2.1f, 462 - 96 * 2.1f, 2.1f);
}

// --- loading

static PathFn BarTube(float grow)
{
	return RoundRect(2 - grow, 2 - grow, BAR_WIDTH - 4 + 2 * grow, BAR_HEIGHT - 4 + 2 * grow,
	                 20 + grow);
}

static void DrawBarCaption(Canvas& canvas, Colour face, Colour edge)
{
	canvas.Caption("Loading", 26, BAR_WIDTH * .5f, BAR_HEIGHT * .5f, face, edge, 2);
}

// The brass tube that the bar fills, drawn around its place.
static void DrawTube(Image& image)
{
	const int ROOM = 14;
	Canvas canvas(BAR_WIDTH + 2 * ROOM, BAR_HEIGHT + 2 * ROOM, 3);
	PathFn rim    = RoundRect(6, 6, BAR_WIDTH + 16.f, BAR_HEIGHT + 16.f, 27);
	PathFn inside = RoundRect(ROOM, ROOM, BAR_WIDTH, BAR_HEIGHT, 21);
	canvas.DropShadow(rim, 3, 1, 4, .5f);
	canvas.Body(rim, Downward(Lighter(PAINT_BRASS, .2f), Darker(PAINT_BRASS, .25f), 4, 80),
	            PAINT_BRASS_INK, 1.3f, 3, 3, .8f);
	canvas.Fill(inside, PAINT_BRASS_INK, 1, 1.4f);
	canvas.FillAt(inside, Downward(HexColour(0x0a2236), HexColour(0x1c4668), 14, 72));
	canvas.InnerShadow(inside, 3, {0, 0, 0}, .6f);
	Compose(image, canvas.Finish(), BAR_X - ROOM, BAR_Y - ROOM);
}

static void DrawLoading(Sink& sink)
{
	Image image = SunnyShore(318, 470);
	DrawScene(image);
	DrawSeaBands(image, 484);
	DrawBubbles(image, 16, 12, 120, 150, 760, 330);
	DrawLogo(image, 400, 118, 128);
	DrawTube(image);
	Canvas dark(BAR_WIDTH, BAR_HEIGHT);
	DrawBarCaption(dark, HexColour(0x8cb8d8), HexColour(0x0a2236));
	Compose(image, dark.Finish(), BAR_X, BAR_Y);
	sink.AddAs("loading.dat", image, Encoding::Jpeg);

	Canvas bar(BAR_WIDTH, BAR_HEIGHT);
	bar.Fill(BarTube(0), HexColour(0x0c3c74), 1, 1);
	bar.Relief(BarTube(0), Downward(HexColour(0x8ae8ff), HexColour(0x1c78d8), 2, BAR_HEIGHT), 4,
	           2.6f, .5f);
	Random random(3);
	for (int i = 0; i < 34; i++) { // bubbles rise in the tube
		float x = random.Range(14, BAR_WIDTH - 14), y = random.Range(12, BAR_HEIGHT - 10);
		float r = random.Range(1.4f, 4.2f);
		bar.Stroke(Disc(x, y, r), PAINT_WHITE, .9f, .5f);
		bar.Fill(Disc(x - r * .35f, y - r * .35f, r * .28f), PAINT_WHITE, .8f);
	}
	bar.Gloss(RoundRect(12, 5, BAR_WIDTH - 24.f, BAR_HEIGHT * .34f, 9), BarTube(0), 5, 26, .5f);
	DrawBarCaption(bar, PAINT_WHITE, HexColour(0x0c3c74));
	sink.AddAs("loadingtext.dat", bar.Finish(), Encoding::Png);
}

// --- splash

static Image SplashGround()
{
	Image image(WIDTH, HEIGHT);
	for (int y = 0; y < HEIGHT; y++)
		for (int x = 0; x < WIDTH; x++) {
			float q   = std::hypot((x - 400) / 430.f, (y - 270) / 330.f);
			float ray = Smoothstep(-.1f, .1f, std::sin(std::atan2(y - 270.f, x - 400.f) * 14));
			Colour c  = Mix(HexColour(0xfff6c0), HexColour(0xffc94a), ray * .35f + .2f);
			Blend(image, x, y, Mix(c, HexColour(0xe8741c), Smoothstep(.35f, 1.35f, q)));
		}
	return image;
}

// Everything of the splash; with the eyes shut only the eyes differ.
static Image Splash(float lid)
{
	Image image = SplashGround();
	Image head  = SheepHead(HEAD_SIZE, HEAD_SIZE, HEAD_ZOOM, lid);
	ComposeCentred(image, head, HEAD_X, HEAD_Y);
	ComposeCentred(image, Bubble(340, BubbleSkin::Normal, .2f), HEAD_X, HEAD_Y - 4);
	DrawBubbles(image, 9, 21, 40, 60, 210, 420);
	DrawBubbles(image, 9, 33, 590, 60, 770, 420);
	ComposeCentred(image, SignedPlank("The Quorblet Workshop", 40, TITLE_BLUE, 110), 402, 510);
	return image;
}

static void DrawSplash(Sink& sink)
{
	Image open = Splash(0), shut = Splash(1);
	sink.AddAs("splash.dat", open, Encoding::Jpeg);
	Image eyes = Cropped(shut, EYES_X, EYES_Y, EYES_WIDTH, EYES_HEIGHT);
	for (int y = 0; y < EYES_HEIGHT; y++)
		for (int x = 0; x < EYES_WIDTH; x++) {
			const float* a = open.At(EYES_X + x, EYES_Y + y);
			float* b       = eyes.At(x, y);
			float change = std::fabs(a[0] - b[0]) + std::fabs(a[1] - b[1]) + std::fabs(a[2] - b[2]);
			if (change < .004f)
				b[0] = b[1] = b[2] = b[3] = 0;
		}
	sink.Add("logozq-eyes.png", eyes);
}

// --- icon

static void DrawIcon(Sink& sink)
{
	const int SIZE = 32;
	Image icon(SIZE, SIZE);
	Image head = SheepHead(96, 96, 2.05f, 0);
	Canvas back(SIZE, SIZE);
	back.Body(Disc(16, 16, 14.6f), Downward(HexColour(0x9ae4ff), HexColour(0x2f86d8), 2, 30),
	          HexColour(0x14386a), 1, 2, 2.4f, .4f);
	Compose(icon, back.Finish(), 0, 0);
	ComposeCentred(icon, Resized(head, SIZE, SIZE), 16, 17);
	sink.AddAs("icon.dat", icon, Encoding::Bmp);
}

void AddOpening(Catalogue& catalogue)
{
	catalogue.Add("opening/loading", __FILE__, DrawLoading);
	catalogue.Add("opening/splash", __FILE__, DrawSplash);
	catalogue.Add("opening/icon", __FILE__, DrawIcon);
}
