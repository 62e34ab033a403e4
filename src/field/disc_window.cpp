// What the side panel's lower door opens on: the disc of the power-up caught last, and its name.
#include "field/disc_window.h"

#include "field/bobber.h"
#include "media/sprite.h"

#include <string>

static const int DEPTH_BACK = 18500, DEPTH_DISC = 18510, DEPTH_NAME = 18540;
static const int BACK_X = 715, BACK_Y = 500;
static const int DISC_X = 730, DISC_BELOW = 12; // pixels below the back's top
static const int NAME_MIDDLE_X = 745, NAME_Y = 563;
static const int BOB_HALF_SWING  = 8;
static const float BOB_CURVE     = 3.0f;
static const float BOB_AMPLITUDE = 2.2f;

// Pictures of a disc: one, or frames 0 to last, the last of them held.
struct DiscPictures {
	const char* word;
	int last; // -1 for a single picture
	int holdLast;
};

// clang-format off
// By timer index.
static const DiscPictures s_discs[POWERUP_TIMERS] = {
	{ "2x",         -1, 1 },
	{ "3x",         -1, 1 },
	{ "4x",         -1, 1 },
	{ "barrier",     9, 1 },
	{ "bulldozer",  -1, 1 },
	{ "destructo",  -1, 1 },
	{ "fast",       -1, 1 },
	{ "grav",       11, 1 },
	{ "bubblegrow", 12, 5 },
	{ "grow",        9, 1 },
	{ "1up",        -1, 1 },
	{ "rain",       -1, 1 },
	{ "shrink",      9, 1 },
	{ "slow",       -1, 1 },
	{ "sticky",     -1, 1 },
	{ "fan",         6, 1 },
};
// clang-format on

static CSprite* NewDisc(const DiscPictures& pictures)
{
	CSprite* sprite  = new CSprite(DEPTH_DISC, pictures.last < 0 ? 0 : 1, SPRITE_OVERLAY);
	std::string stem = std::string("sidebarpowerup") + pictures.word;
	if (pictures.last < 0) {
		sprite->AddFile(stem + ".png");
	} else {
		sprite->AddSequence(stem, 0, pictures.last - 1, ".png");
		sprite->AddRepeated(stem + std::to_string(pictures.last) + ".png", pictures.holdLast);
	}
	sprite->SetPos(DISC_X, BACK_Y + DISC_BELOW);
	sprite->Hide();
	return sprite;
}

static CSprite* NewName(int timer)
{
	std::string word = timer == TIMER_FANS ? "fans" : s_discs[timer].word;
	CSprite* sprite  = new CSprite(DEPTH_NAME, SPRITE_OVERLAY);
	sprite->AddFile("sidebarpowerupname" + word + ".png");
	sprite->SetPos(NAME_MIDDLE_X - sprite->Width() / 2, NAME_Y);
	sprite->Hide();
	return sprite;
}

CDiscWindow::CDiscWindow()
{
	back = new CSprite(BACK_X, BACK_Y, DEPTH_BACK, SPRITE_OVERLAY);
	back->AddFile("sidebarpowerupdisc.png");
	for (int timer = 0; timer < POWERUP_TIMERS; timer++) {
		discs[timer] = NewDisc(s_discs[timer]);
		names[timer] = NewName(timer);
	}
	bobber = new CBobber(BACK_Y, BOB_HALF_SWING, BOB_CURVE, BOB_AMPLITUDE, 0);
}

CDiscWindow::~CDiscWindow()
{
	delete back;
	for (int timer = 0; timer < POWERUP_TIMERS; timer++) {
		delete discs[timer];
		delete names[timer];
	}
	delete bobber;
}

void CDiscWindow::ShowDisc(int newIndex)
{
	HideDisc();
	index = newIndex;
	discs[index]->Rewind();
	discs[index]->Show();
	names[index]->Show();
}

void CDiscWindow::HideDisc()
{
	if (index < 0)
		return;
	discs[index]->Hide();
	names[index]->Hide();
	index = -1;
}

void CDiscWindow::Step()
{
	int top = bobber->StepValue();
	back->SetPos(BACK_X, top);
	if (index >= 0)
		discs[index]->SetPos(DISC_X, top + DISC_BELOW);
}
