// The pause menu: a steel panel with the professor leaning over it.
#include "art/families.h"
#include "art/objects/professor.h"
#include "art/screens/frames.h"

static const int PANEL_X = 279, MIDDLE_X = 400;
static const int RESUME_W = 162, RESUME_H = 40;
static const int BUTTON_W = 122, BUTTON_H = 31;

// As much of him as looks over the panel's edge, which cuts him off at the elbows.
static void DrawProfessor(Sink& sink)
{
	const float ZOOM = 2.4f;
	ProfessorPose pose;
	pose.lean  = 1;
	pose.tilt  = .06f;
	Image bust = Professor(pose, PROFESSOR_WINDOW, ZOOM);
	sink.Add("ingamemenuprof.png", bust);
}

static void DrawPanel(Sink& sink)
{
	sink.Add("ingamemenumain.png", SteelPanel(2 * (MIDDLE_X - PANEL_X) + 3, 326, 14));
}

// The game puts shadows at the places of the buttons, so they fall within their own pictures.
static Image Shadow(int w, int h)
{
	const int RIGHT = 3, DOWN = 5;
	Image out(w + RIGHT, h + DOWN);
	Compose(out, Capsule(w, h, "", PAINT_NEUTRAL, ButtonLook::Shadow), RIGHT, DOWN);
	return out;
}

static const char* EndOf(ButtonLook look)
{
	return look == ButtonLook::Base ? "base.png" : "rollover.png";
}

static void DrawButtons(Sink& sink)
{
	static const struct {
		const char* name;
		const char* text;
		bool leaves;
	} s_buttons[] = {
	    {"instructions", "How to play", false}, {"settings", "Options", false},
	    {"sanctuary", "Sanctuary", false},      {"trophies", "Trophies", false},
	    {"high", "High scores", false},         {"map", "Back to map", true},
	    {"mainmenu", "Main menu", true},
	};
	for (ButtonLook look : {ButtonLook::Base, ButtonLook::Rollover})
		sink.Add(std::string("ingamemenubuttonresume") + EndOf(look),
		         Capsule(RESUME_W, RESUME_H, "Resume", PAINT_GO, look, 24));
	sink.Add("ingamemenubuttonresumeshadow.png", Shadow(RESUME_W, RESUME_H));
	for (const auto& button : s_buttons) {
		std::string stem = std::string("ingamemenubutton") + button.name;
		Colour base      = button.leaves ? PAINT_STOP : PAINT_NEUTRAL;
		for (ButtonLook look : {ButtonLook::Base, ButtonLook::Rollover})
			sink.Add(stem + EndOf(look), Capsule(BUTTON_W, BUTTON_H, button.text, base, look, 18));
	}
	sink.Add("ingamemenubuttonshadow.png", Shadow(BUTTON_W, BUTTON_H));
}

void AddPause(Catalogue& catalogue)
{
	catalogue.Add("pause/panel", __FILE__, DrawPanel);
	catalogue.Add("pause/professor", __FILE__, DrawProfessor);
	catalogue.Add("pause/buttons", __FILE__, DrawButtons);
}
