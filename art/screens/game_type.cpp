// The choice of the kind of game and that between going on and starting anew.
#include "art/animals/duck.h"
#include "art/animals/sheep.h"
#include "art/families.h"
#include "art/screens/pages.h"

// A part of the playing field in a brass frame, with the machine on it.
static void DrawGameScene(Canvas& canvas, int x, int y, int w, int h, bool kids)
{
	DrawWindow(canvas, x, y, w, h, PAINT_GRASS_MID, 6);
	PathFn inside = RoundRect(x, y, w, h, 6);
	canvas.FillAt(inside, Downward(PAINT_GRASS_FAR, PAINT_GRASS_DARK, y, y + h));
	canvas.InnerShadow(inside, 2, {0, .08f, 0}, .55f);
	Image machine = MachinePicture(.62f);
	canvas.Place(machine, x + 5, y + h - machine.height - 5);
	Image bubble = RiddenBubble(38, kids ? Duckling : Sheep, kids ? .95f : .66f);
	canvas.Place(bubble, x + w - 42, y + 4);
	if (!kids)
		return;
	PathFn beam = RoundRect(x + 2, y + h - 6, w - 4.f, 3, 1.5f); // the shield
	canvas.Fill(beam, HexColour(0x4ad8ff), .75f, 2.4f);
	canvas.Fill(beam, PAINT_WHITE, .95f);
}

static void DrawGameType(Sink& sink)
{
	const int WIDTH = 252, HEIGHT = 145, HALF = 120;
	sink.Add("modeselection_mainA.png", SillPanel(316, 220, 54));
	Canvas canvas(WIDTH, HEIGHT);
	canvas.Place(TitlePlank(WIDTH, 44, "Choose your game", 25), 1, 0);
	for (int kids = 0; kids < 2; kids++) {
		int x = kids ? WIDTH - HALF + 5 : 3;
		DrawGameScene(canvas, x, 46, HALF - 8, 60, kids);
		PrintText(canvas,
		          kids ? "A shield below you\nand a quiz" : "Full speed, and no\nshield to help",
		          14, x + HALF * .5f - 4, 127, HALF + 8, Align::Centre);
	}
	sink.Add("modeselection_mainB.png", canvas.Finish());
	AddCapsule(sink, "modeselection_buttonregular", 134, 34, "Regular", PAINT_GO);
	AddCapsule(sink, "modeselection_buttonkids", 134, 34, "Kids", PAINT_NEUTRAL);
}

static void DrawGameContinue(Sink& sink)
{
	sink.Add("continuegame_mainA.png", PaperPanel(358, 180));
	sink.Add("continuegame_mainB.png", TitlePlank(315, 46, "Welcome back!", 25));
	sink.Add("continuegame_mainC.png", TextBlock("Your last game is still here.\nGo on with it?",
	                                             18, 278, 50, PAINT_TEXT, 23));
	AddCapsule(sink, "continuegame_buttoncontinue", 134, 34, "Continue", PAINT_GO);
	AddCapsule(sink, "continuegame_buttonnewgame", 134, 34, "New game", PAINT_NEUTRAL);
}

void AddGameChoice(Catalogue& catalogue)
{
	catalogue.Add("pages/gametype", __FILE__, DrawGameType);
	catalogue.Add("pages/gamecontinue", __FILE__, DrawGameContinue);
}
