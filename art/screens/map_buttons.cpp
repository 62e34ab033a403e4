// The buttons of the map and its arrows.
#include "art/families.h"
#include "art/screens/kit.h"

static void AddArrow(Sink& sink, const std::string& stem, float turn)
{
	const int W = 70, H = 60;
	PathFn arrow = Arrow(W * .5f, H * .5f, 52, 20, turn);
	for (ButtonLook look : {ButtonLook::Base, ButtonLook::Rollover}) {
		bool warm = look == ButtonLook::Rollover;
		Canvas canvas(W, H);
		canvas.Body(arrow,
		            Downward(HexColour(warm ? 0xfff6b8 : 0xffe070),
		                     HexColour(warm ? 0xffb040 : 0xf08a1c), 8, 52),
		            HexColour(0x5a2410), 1.6f, 3, 3, .5f);
		sink.Add(stem + (warm ? "rollover.png" : "base.png"), canvas.Finish());
	}
	Canvas shadow(W, H);
	shadow.DropShadow(arrow, 2, 0, 0, .55f);
	sink.Add(stem + "shadow.png", shadow.Finish());
}

static void DrawButtons(Sink& sink)
{
	struct Row {
		const char *stem, *text;
		int w, h;
		Colour colour;
		float size;
	};
	static const Row s_rows[] = {{"reset", "Reset map", 122, 40, PAINT_STOP, 18},
	                             {"change", "Change mode", 122, 40, PAINT_NEUTRAL, 17},
	                             {"mainmenu", "Main menu", 122, 40, PAINT_NEUTRAL, 18},
	                             {"achievements", "Rewards", 122, 40, PAINT_NEUTRAL, 18},
	                             {"sanctuary", "Sanctuary", 122, 40, PAINT_NEUTRAL, 18},
	                             {"trophies", "Trophies", 122, 40, PAINT_NEUTRAL, 18},
	                             {"highscores", "High scores", 122, 40, PAINT_NEUTRAL, 18},
	                             {"back", "Back", 122, 40, PAINT_SUNNY, 20},
	                             {"zoom", "Islands", 104, 40, PAINT_SUNNY, 18},
	                             {"play", "Play!", 132, 50, PAINT_GO, 29}};
	for (const Row& row : s_rows)
		AddCapsule(sink, std::string("mapbutton") + row.stem, row.w, row.h, row.text, row.colour,
		           row.size);
	AddArrow(sink, "maparrowA", Radians(40));
	AddArrow(sink, "maparrowB1", Radians(220));
	AddArrow(sink, "maparrowB2", Radians(-40));
	AddArrow(sink, "maparrowC", Radians(140));
}

void AddMapButtons(Catalogue& catalogue)
{
	catalogue.Add("map/buttons", __FILE__, DrawButtons);
}
