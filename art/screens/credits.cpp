// Who and what the game stands on.
#include "art/animals/beasts.h"
#include "art/animals/duck.h"
#include "art/animals/monkey.h"
#include "art/animals/sheep.h"
#include "art/families.h"
#include "art/objects/machine.h"
#include "art/screens/island.h"
#include "art/screens/pages.h"

static const int BOARD_WIDTH = 424, BOARD_HEIGHT = 412;
static const int PHOTO_WIDTH = 200, PHOTO_HEIGHT = 160;

// The machine at the shore and its passengers, painted twice as large as it is shown.
static Image Photo()
{
	const float ZOOM = 1.7f;
	const int X = 200, Y = 180;
	Image image = SunnyShore(318, 470);
	DrawShoreTree(image, 0, 232, 402, 1, PAINT_LEAF_GREEN, 4);
	DrawShoreTree(image, 1, 560, 380, .9f, PAINT_PINE[0], 15);
	DrawContactShadow(image, 400, 446, 80, 10, .45f);
	DrawMachine(image, 400 - 38 * ZOOM, 446 - 96 * ZOOM, ZOOM);
	ComposeCentred(image, AnimalPicture(Cow, 1.3f), 276, 424);
	ComposeCentred(image, AnimalPicture(Monkey, 1.6f), 514, 432);
	ComposeCentred(image, RiddenBubble(96, Sheep, 1.5f), 318, 262);
	ComposeCentred(image, RiddenBubble(70, Duckling, 2), 488, 274);
	DrawSeaBands(image, 478);
	return Resized(Cropped(image, X, Y, 2 * PHOTO_WIDTH, 2 * PHOTO_HEIGHT), PHOTO_WIDTH,
	               PHOTO_HEIGHT);
}

static void DrawBoard(Sink& sink)
{
	static const struct {
		const char *names, *what;
	} libraries[] = {
	    {"SDL, SDL_image", "window and input"},
	    {"OpenAL Soft, libsndfile", "sound"},
	    {"libcurl", "high scores"},
	    {"Cairo, Pango, libpng, libjpeg", "pictures"},
	    {"FluidSynth, Vorbis", "music"},
	    {"Dosis, Comic Neue, Cabin", "typefaces"},
	};
	const float X = 20, TOP = 171, STEP = 26.5f;
	Canvas canvas(BOARD_WIDTH, BOARD_HEIGHT, 3);
	canvas.Place(PaperPanel(BOARD_WIDTH, BOARD_HEIGHT, 8), 0, 0);
	canvas.Print("Built upon", 15.5f, X, TOP, PAINT_HEADING);
	for (int i = 0; i < 6; i++) {
		PrintText(canvas, libraries[i].what, 12, X, TOP + 17 + i * STEP, 170, Align::Left,
		          PAINT_HEADING);
		PrintText(canvas, libraries[i].names, 12.5f, X, TOP + 29 + i * STEP, 175);
	}
	DrawWindow(canvas, 332 - 188, 443 - 95, 136, 20, HexColour(0x28587e)); // under the version
	DrawWindow(canvas, 387 - 188, 262 - 95, PHOTO_WIDTH, PHOTO_HEIGHT);    // round the photo
	sink.Add("creditsA.png", canvas.Finish());
}

static void DrawWords(Sink& sink)
{
	Canvas canvas(400, 132);
	Image logo = TitleLettering("Quorblet", 44, TITLE_YELLOW, 5);
	canvas.Place(logo, 200 - logo.width / 2, 14);
	PrintText(canvas,
	          "Made with care at The Quorblet Workshop,\nfor everyone who ever let a mouse "
	          "out of a crate.\nThank you for playing, from all the animals!",
	          14.5f, 200, 104, 390, Align::Centre);
	sink.Add("creditsB.png", canvas.Finish());
	sink.Add("creditsC.png", TitlePlank(156, 44, "Credits", 24));
}

void AddCredits(Catalogue& catalogue)
{
	catalogue.Add("pages/credits/board", __FILE__, DrawBoard);
	catalogue.Add("pages/credits/words", __FILE__, DrawWords);
	catalogue.Add("pages/credits/photo", __FILE__,
	              [](Sink& sink) { sink.Add("credits_nourl.jpg", Photo()); });
}
