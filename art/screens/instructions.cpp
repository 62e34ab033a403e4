// Boards of the instructions and of the hint page, and the mouse and the keys on both.
#include "art/screens/instructions.h"

#include "art/animals/beasts.h"
#include "art/animals/duck.h"
#include "art/animals/monkey.h"
#include "art/animals/sheep.h"
#include "art/families.h"
#include "art/objects/ball.h"
#include "art/screens/pages.h"

static const int BOARD_X = 64, BOARD_Y = 10; // its corner on the screen
static const int BOARD_WIDTH = 681, FRAME = 6;
static const int READING_X = 433, READING_Y = 304, READING_WIDTH = 297, READING_HEIGHT = 121;

static void PutOnGround(Image& image, const Image& figure, float x, float ground)
{
	DrawContactShadow(image, x + 2, ground - 2, figure.width * .42f, figure.width * .12f, .26f);
	ComposeCentred(image, figure, x, ground - figure.height * .5f);
}

// Four animals side by side; x is the left end of the row.
static void DrawCrowd(Image& image, float x, float ground)
{
	PutOnGround(image, AnimalPicture(Mouse, 1.1f), x + 14, ground);
	PutOnGround(image, AnimalPicture(Sheep, 1), x + 56, ground);
	PutOnGround(image, AnimalPicture(Monkey, 1.15f), x + 102, ground);
	PutOnGround(image, AnimalPicture(Duckling, 1.15f), x + 134, ground);
}

// The machine and a bubble that it has sent off.
static void DrawMachineScene(Image& image, float x, float ground)
{
	Image machine = MachinePicture(.92f);
	PutOnGround(image, machine, x, ground);
	ComposeCentred(image, Bubble(34, BubbleSkin::Normal, .2f), x + 62, ground - 104);
}

static void DrawBoards(Sink& sink)
{
	const int H = 580, SMALL_H = 300;
	// The well in which the prize under the pointer is told of, and a prize beside that text.
	const int left = READING_X - BOARD_X, top = READING_Y - BOARD_Y;
	Image board = PaperPanel(BOARD_WIDTH, H, FRAME);
	Compose(board, Well(READING_WIDTH, READING_HEIGHT, PAINT_WELL_NEW), left, top);
	ComposeCentred(board, FallingPrize(), left + 51, top + READING_HEIGHT * .5f);
	DrawCrowd(board, BOARD_WIDTH - 290, H - 24);
	sink.Add("instructionsmain.png", board);
	Image small = PaperPanel(BOARD_WIDTH, SMALL_H, FRAME);
	DrawMachineScene(small, 106, SMALL_H - 22);
	DrawCrowd(small, 516, SMALL_H - 24);
	sink.Add("instructionssmallermain.png", small);
	AddCapsule(sink, "instructionsbuttonexit", 100, 33, "Back", PAINT_GO, 18);
}

// --- the mouse

static void DrawMousePart(Sink& sink)
{
	const int W = 360, H = 112;
	Canvas well(350, 120);
	DrawWell(well, 4, 4, 345, 114);
	sink.Add("instructionspartA1.png", well.Finish());
	Canvas canvas(W, H);
	const float X = 180, Y = 62;
	DrawMouseDevice(canvas, X, Y, PAINT_GO, PAINT_NEUTRAL);
	canvas.Stroke(Line({{139, 14}, {158, 36}}), PAINT_GO * .8f, 2);
	canvas.Stroke(Line({{221, 14}, {202, 36}}), PAINT_NEUTRAL * .8f, 2);
	for (float side : {-1.f, 1.f})
		canvas.Body(Arrow(X + side * 43, Y + 18, 24, 6, side < 0 ? PI : 0), Plain(PAINT_SUNNY),
		            InkOf(PAINT_SUNNY), 1, 1.4f, 2.4f, .2f);
	canvas.Print("Left button", 16, 134, 14, PAINT_MONEY, Align::Right);
	PrintText(canvas, "launch the bubble,\nfire the ray", 14, 134, 41, 130, Align::Right);
	canvas.Print("Right button", 16, 226, 14, HexColour(0x1c5a9c));
	PrintText(canvas, "hold it down\nto run the fan", 14, 226, 41, 130);
	canvas.Print("Move", 16, 114, Y + 11, PAINT_HEADING, Align::Right);
	PrintText(canvas, "to drive", 14, 114, Y + 29, 130, Align::Right);
	Image machine = MachinePicture(.58f);
	canvas.Place(machine, 246, H - 4 - machine.height);
	sink.Add("instructionspartA2.png", canvas.Finish());
}

// --- the keys

static void DrawKeysPart(Sink& sink)
{
	const float ROW = 34, FIRST = 18, CAP = 27, TEXT_X = 96;
	Canvas well(296, 120);
	DrawWell(well, 1, 4, 293, 114);
	sink.Add("instructionspartB1.png", well.Finish());
	Canvas canvas(240, 106);
	DrawArrowKey(canvas, 16, FIRST - CAP * .5f, CAP, PI);
	DrawArrowKey(canvas, 48, FIRST - CAP * .5f, CAP, 0);
	DrawArrowKey(canvas, 32, FIRST + ROW - CAP * .5f, CAP, -PI / 2);
	DrawKey(canvas, 16, FIRST + 2 * ROW - CAP * .5f, 60, CAP, "Space");
	static const char* const texts[] = {"drive", "launch, fire", "hold: run the fan"};
	for (int i = 0; i < 3; i++)
		PrintText(canvas, texts[i], 15, TEXT_X, FIRST + i * ROW, 150);
	sink.Add("instructionspartB2.png", canvas.Finish());
	Canvas edge(50, 104);
	DrawKey(edge, 3, 20, 42, CAP, "Esc");
	PrintText(edge, "pause", 14, 24, 64, 50, Align::Centre);
	sink.Add("instructionspartB3.png", edge.Finish());
}

// --- what the hint page says besides

static void DrawHint(Sink& sink)
{
	const int W = 300, H = 132;
	Image base = Well(W, H, PAINT_WELL_NEW);
	ComposeCentred(base, RiddenBubble(58, Sheep, .85f), 150, 84);
	PutOnGround(base, AnimalPicture(Duckling, 1.5f), 66, 112);
	PutOnGround(base, AnimalPicture(Monkey, 1.25f), 232, 112);
	sink.Add("instructionspartCbase.png", base);
	Canvas words(244, 80);
	words.Print("Catch all animals with the bubble!", 16.5f, 122, 9, PAINT_HEADING, Align::Centre);
	sink.Add("instructionspartCtext.png", words.Finish());
}

void AddInstructions(Catalogue& catalogue)
{
	catalogue.Add("pages/instructions/boards", __FILE__, DrawBoards);
	catalogue.Add("pages/instructions/mouse", __FILE__, DrawMousePart);
	catalogue.Add("pages/instructions/keys", __FILE__, DrawKeysPart);
	catalogue.Add("pages/instructions/hint", __FILE__, DrawHint);
	AddInstructionsPrizes(catalogue);
	AddInstructionsNotes(catalogue);
}
