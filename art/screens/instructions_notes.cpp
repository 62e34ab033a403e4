// What the instructions tell of the field: bubble, animals, crates, fruit, money, lives and tools.
#include "art/animals/beasts.h"
#include "art/animals/butterfly.h"
#include "art/animals/duck.h"
#include "art/animals/sheep.h"
#include "art/objects/ball.h"
#include "art/objects/crates.h"
#include "art/objects/machine.h"
#include "art/objects/points.h"
#include "art/screens/instructions.h"
#include "art/screens/pages.h"

static void DrawBubbleNote(Sink& sink)
{
	const int W = 346, H = 94;
	Image image   = Well(W, H);
	Image machine = MachinePicture(.72f);
	ComposeCentred(image, machine, 62, H - 6 - machine.height * .5f);
	ComposeCentred(image, Bubble(28, BubbleSkin::Normal, .2f), 104, 18);
	Canvas canvas(W, H);
	canvas.Place(image, 0, 0);
	for (int i = 0; i < 4; i++) // the way it came
		canvas.Fill(Disc(72 + i * 5.5f, 42 - i * 4.5f, 1.5f), PAINT_NEUTRAL, .7f);
	PrintNote(canvas, "Keep the bubble in play",
	          "It bounces off the bumper: the place where it lands tells the way it goes. "
	          "Miss it, and a life is lost.",
	          124, H * .5f, 212);
	sink.Add("instructionsmaininfo1.png", canvas.Finish());
}

static void DrawPointNote(Sink& sink)
{
	const int W = 98, H = 154;
	Canvas canvas(W, H);
	DrawWell(canvas, 1, 1, W - 4.f, H - 2.f, PAINT_WELL_NEW);
	PrintText(canvas, "Prizes fall\non balloons.\nDrive under\nthem!", 14, W * .5f - 1, 42, 90,
	          Align::Centre);
	PrintText(canvas, "Point at one\nto read what\nit does.", 14, W * .5f - 1, 116, 90,
	          Align::Centre, PAINT_HEADING);
	sink.Add("instructionsmaininfo2.png", canvas.Finish());
}

// --- animals, growing, crates, fruit: four rows

static const int ROWS_WIDTH = 346, ROWS_HEIGHT = 234, ROW = 57, PICTURE_X = 54;

static void DrawRowPictures(Image& image)
{
	auto put = [&](const Image& picture, float x, int row) {
		ComposeCentred(image, picture, x, ROW * (row + .5f) + 3);
	};
	put(RiddenBubble(46, Sheep, .74f), 34, 0);
	put(AnimalPicture(Duckling, 1.1f), 76, 0);
	put(Bubble(22, BubbleSkin::Normal, .2f), 20, 1);
	put(RiddenBubble(54, Cow, .66f), 72, 1);
	put(CrateImage(CrateLook::Light), 30, 2);
	put(CrateImage(CrateLook::Light, 2), 78, 2);
	put(FruitImage(Fruit::RedApple, 0, 1.2f), 22, 3);
	put(FruitImage(Fruit::Acorn, 1, 1.2f), 44, 3);
	put(CoinImage(CoinMetal::Gold, true, 0), 66, 3);
	put(EggImage(.3f), 88, 3);
}

static void DrawFieldNote(Sink& sink)
{
	static const struct {
		const char *heading, *text;
	} notes[] = {
	    {"Catch the animals", "Touch them, and they ride in the bubble. All in? The level is won."},
	    {"Watch it grow", "Each catch makes the bubble grow. Big animals need a big one."},
	    {"Break crates and fences", "A small bubble needs three hits, a big one does it at once."},
	    {"Gather what lies about", "Fruit, nuts and eggs score and make it grow. A coin is money."},
	};
	Image image = Well(ROWS_WIDTH, ROWS_HEIGHT);
	DrawRowPictures(image);
	Canvas canvas(ROWS_WIDTH, ROWS_HEIGHT);
	canvas.Place(image, 0, 0);
	canvas.Fill(Arrow(38, ROW * 1.5f + 3, 12, 3.4f, 0), PAINT_HEADING);
	for (int i = 0; i < 4; i++) {
		float y = ROW * (i + .5f) + 3;
		if (i)
			canvas.Fill(RoundRect(10, y - ROW * .5f, ROWS_WIDTH - 20.f, 1, .5f),
			            HexColour(0xc9aa6a), .45f);
		PrintNote(canvas, notes[i].heading, notes[i].text, 2 * PICTURE_X, y, 228);
	}
	sink.Add("instructionsmaininfo3.png", canvas.Finish());
}

// --- money, lives, butterflies: three columns

static Species PaintedLady()
{
	Species species;
	species.build = [](Model& model, const View&, const Pose& pose) {
		AddButterfly(model, Butterfly(), pose);
	};
	species.width        = 30;
	species.elevation    = 62;
	species.shadow       = 0;
	species.rest.flying  = true;
	species.rest.heading = Heading::Up;
	return species;
}

static Image ButterflyPicture()
{
	Pose pose = PaintedLady().rest;
	pose.flap = .3f;
	return AnimalPicture(PaintedLady, 1, pose);
}

static void DrawPurseNote(Sink& sink)
{
	const int W = 346, H = 92;
	const float COLUMN = W / 3.f;
	static const struct {
		const char *heading, *text;
	} notes[] = {
	    {"Money", "feeds the animals\nin the sanctuary"},
	    {"Lives", "lose the last, and\nthe game is over"},
	    {"Butterflies", "catch 50 for\nan extra life"},
	};
	Image image = Well(W, H);
	ComposeCentred(image, CoinImage(CoinMetal::Gold, true, 0), COLUMN * .5f - 10, 20);
	ComposeCentred(image, CoinImage(CoinMetal::Silver, true, 0), COLUMN * .5f + 10, 20);
	ComposeCentred(image, Bubble(26, BubbleSkin::Normal, .2f), COLUMN * 1.5f, 20);
	ComposeCentred(image, ButterflyPicture(), COLUMN * 2.5f, 20);
	Canvas canvas(W, H);
	canvas.Place(image, 0, 0);
	for (int i = 0; i < 3; i++) {
		float x = COLUMN * (i + .5f);
		canvas.Print(notes[i].heading, 16, x, 44, PAINT_HEADING, Align::Centre);
		PrintText(canvas, notes[i].text, 13.5f, x, 69, COLUMN, Align::Centre);
	}
	sink.Add("instructionsmaininfo4.png", canvas.Finish());
}

static void DrawToolNote(Sink& sink)
{
	const int W = 305, H = 82, LEFT = 8; // flush with the discs
	Image image(W, H);
	Compose(image, Well(W - LEFT, H), LEFT, 0);
	ComposeCentred(image, MachineFan(0, 2.4f), LEFT + 32, H * .5f);
	Canvas canvas(W, H);
	canvas.Place(image, 0, 0);
	PrintNote(canvas, "The fan",
	          "It blows the bubble and falling prizes upward. Its dial empties fast "
	          "and fills again slowly.",
	          LEFT + 62, H * .5f, 230);
	sink.Add("instructionsmaininfo5.png", canvas.Finish());
}

void AddInstructionsNotes(Catalogue& catalogue)
{
	catalogue.Add("pages/instructions/notes", __FILE__, [](Sink& sink) {
		DrawBubbleNote(sink);
		DrawPointNote(sink);
		DrawPurseNote(sink);
		DrawToolNote(sink);
	});
	catalogue.Add("pages/instructions/field", __FILE__, DrawFieldNote);
}
