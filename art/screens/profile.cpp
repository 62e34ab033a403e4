// The list of players and the box that asks for a name.
#include "art/families.h"
#include "art/screens/pages.h"

// The board's corner; the list's place on the screen is that of the game.
static const int BOARD_X = 313, BOARD_Y = 150;
static const int LIST_X = 317, LIST_Y = 209, LIST_WIDTH = 157, LIST_HEIGHT = 82;
static const int ROW_HEIGHT = 20;

// A sheet of paper with a plate of steel across it, wider than the sheet: the list needs the room.
static Image PlayersBoard()
{
	const int W = 222, H = 270, PLATE_TOP = 200 - BOARD_Y, PLATE_HEIGHT = 108;
	Canvas canvas(W, H);
	canvas.Place(PaperPanel(199, H, 10), 13, 0);
	canvas.Place(SteelPanel(W, PLATE_HEIGHT, 7, false), -1, PLATE_TOP);
	DrawWindow(canvas, LIST_X - BOARD_X - .6f, LIST_Y - BOARD_Y, LIST_WIDTH + .6f, LIST_HEIGHT,
	           HexColour(0x143048), 3);
	return canvas.Finish();
}

static Image Selector()
{
	Canvas canvas(LIST_WIDTH, ROW_HEIGHT + 2);
	PathFn bar = RoundRect(1, 1.4f, LIST_WIDTH - 2.f, ROW_HEIGHT - .8f, 4);
	canvas.Body(bar, Downward(HexColour(0xf0a838), HexColour(0xc0701a), 0, ROW_HEIGHT),
	            HexColour(0x5a2c08), .9f, 1.6f, 2.6f, .3f);
	return canvas.Finish();
}

static Image ScrollButton(bool up, ButtonLook look)
{
	const int W = 32, H = 38;
	Image button = Capsule(W, H, "", PAINT_NEUTRAL, look);
	if (look == ButtonLook::Shadow)
		return button;
	Canvas canvas(W, H);
	canvas.Place(button, 0, 0);
	float to = up ? -1.f : 1.f;
	PathFn arrow =
	    Polygon({{W * .5f, H * .5f + to * 8}, {8, H * .5f - to * 5}, {24, H * .5f - to * 5}});
	canvas.Fill(arrow, InkOf(PAINT_NEUTRAL), 1, 1.5f);
	canvas.Fill(arrow, look == ButtonLook::Rollover ? HexColour(0xffffcc) : PAINT_WHITE);
	return canvas.Finish();
}

static void DrawProfilePage(Sink& sink)
{
	sink.Add("profileselectionmain.png", PlayersBoard());
	sink.Add("profileselectiontext.png", TitlePlank(181, 44, "Players", 25));
	sink.Add("profileselectionselector.png", Selector());
	for (bool up : {true, false}) {
		std::string stem = up ? "profilebuttonarrowup" : "profilebuttonarrowdown";
		sink.Add(stem + "base.png", ScrollButton(up, ButtonLook::Base));
		sink.Add(stem + "rollover.png", ScrollButton(up, ButtonLook::Rollover));
		sink.Add(stem + "shadow.png", ScrollButton(up, ButtonLook::Shadow));
	}
	AddCapsule(sink, "profilebuttonselect", 65, 27, "Select", PAINT_GO, 16);
	AddCapsule(sink, "profilebuttondelete", 65, 27, "Delete", PAINT_STOP, 16);
	AddCapsule(sink, "profilebuttonrename", 132, 25, "Rename", PAINT_NEUTRAL, 15);
	AddCapsule(sink, "profilebuttonaddnew", 132, 25, "New player", PAINT_NEUTRAL, 15);
}

static void DrawNameBox(Sink& sink)
{
	const int W = 356, H = 158;
	Canvas canvas(W, H);
	canvas.Place(PaperPanel(W, H, 10), 0, 0);
	PrintText(canvas, "Up to 15 letters and digits.\nReturn takes the name.", 13.5f, 137, 116, 220,
	          Align::Centre, PAINT_TEXT_BROWN);
	sink.Add("endgame_namebox.png", canvas.Finish());
	sink.Add("endgame_nameconfirmtext.png", TitlePlank(319, 46, "Enter your name", 25));
	AddCapsule(sink, "endgame_button_okay", 101, 33, "Okay", PAINT_GO);
	AddCapsule(sink, "endgame_button_cancel", 101, 33, "Cancel", PAINT_STOP);
}

void AddProfilePages(Catalogue& catalogue)
{
	catalogue.Add("pages/profile", __FILE__, DrawProfilePage);
	catalogue.Add("pages/namebox", __FILE__, DrawNameBox);
}
