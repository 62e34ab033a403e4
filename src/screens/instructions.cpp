// The instructions page.
#include "screens/instructions.h"

#include "media/cursor.h"
#include "media/gui_button.h"
#include "media/sprite.h"
#include "screens/buttons.h"
#include "screens/card.h"

#include <string>

static const int CARD_DEPTH   = 600000;
static const int GLOW_DEPTH   = 600100;
static const int TEXT_DEPTH   = 600200;
static const int DISC_LEFT    = 433; // pixels, as all below
static const int DISC_TOP     = 142;
static const int DISC_ACROSS  = 48; // from one disc to the next
static const int DISC_DOWN    = 40;
static const int DISC_SIZE    = 38;
static const int ICON_INSET   = 4;
static const int GLOW_OUTSET  = 6;
static const int DISC_COLUMNS = 4;

// clang-format off
static const CardPart s_parts[] = {
	{ "instructionsmain.png",       64,  10 },
	{ "instructionsmaininfo1.png",  77, 142 },
	{ "instructionsmaininfo2.png", 635, 142 },
	{ "instructionsmaininfo3.png",  77, 242 },
	{ "instructionsmaininfo4.png",  77, 483 },
	{ "instructionsmaininfo5.png", 425, 428 },
	{ "instructionspartA1.png",     74,  19 },
	{ "instructionspartA2.png",     67,  29 },
	{ "instructionspartB1.png",    435,  19 },
	{ "instructionspartB2.png",    435,  26 },
	{ "instructionspartB3.png",    676,  26 },
};

static const struct {
	const char* word;
	const char* icon; // of the side panel
} s_discs[CControllerInstructions::DISCS] = {
	{ "fast",       "sidebarpowerupfast.png" },
	{ "slow",       "sidebarpowerupslow.png" },
	{ "rain",       "sidebarpoweruprain.png" },
	{ "destructo",  "sidebarpowerupdestructo.png" },
	{ "barrier",    "sidebarpowerupbarrier0.png" },
	{ "grav",       "sidebarpowerupgrav0.png" },
	{ "bulldozer",  "sidebarpowerupbulldozer.png" },
	{ "fans",       "sidebarpowerupfan0.png" },
	{ "bubblegrow", "sidebarpowerupbubblegrow0.png" },
	{ "sticky",     "sidebarpowerupsticky.png" },
	{ "2x",         "sidebarpowerup2x.png" },
	{ "3x",         "sidebarpowerup3x.png" },
	{ "4x",         "sidebarpowerup4x.png" },
	{ "1up",        "sidebarpowerup1up.png" },
	{ "grow",       "sidebarpowerupgrow0.png" },
	{ "shrink",     "sidebarpowerupshrink0.png" },
};
// clang-format on

static int DiscX(int i)
{
	return DISC_LEFT + i % DISC_COLUMNS * DISC_ACROSS;
}

static int DiscY(int i)
{
	return DISC_TOP + i / DISC_COLUMNS * DISC_DOWN;
}

static CSprite* NewHidden(int x, int y, int depth, const std::string& file)
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	sprite->Hide();
	return sprite;
}

CControllerInstructions::CControllerInstructions()
{
	Open();
}

CControllerInstructions::~CControllerInstructions()
{
	Close();
}

void CControllerInstructions::Build()
{
	card = new CCard(CARD_DEPTH, true);
	card->Draw(s_parts);
	BuildDiscs();
	exit = NewButton(this, 0, 626, 516, "instructionsbuttonexit", true);
}

void CControllerInstructions::BuildDiscs()
{
	for (int i = 0; i < DISCS; i++) {
		const int x = DiscX(i), y = DiscY(i);
		const std::string word = s_discs[i].word;
		card->Draw("instructionspowerupdiscbase.png", x, y);
		card->Draw(s_discs[i].icon, x + ICON_INSET, y + ICON_INSET);
		discs[i].glow = NewHidden(x - GLOW_OUTSET, y - GLOW_OUTSET, GLOW_DEPTH,
		                          "instructionspowerupdiscglow.png");
		discs[i].name = NewHidden(562, 303, TEXT_DEPTH, "instructionspowerupname" + word + ".png");
		discs[i].information =
		    NewHidden(534, 333, TEXT_DEPTH, "instructionspowerupinfo" + word + ".png");
	}
}

void CControllerInstructions::TearDown()
{
	delete exit;
	for (Disc& disc : discs) {
		delete disc.glow;
		delete disc.name;
		delete disc.information;
		disc = Disc();
	}
	delete card;
	exit = nullptr;
	card = nullptr;
}

static bool PointerOnDisc(int i)
{
	const int x = CursorX() - DiscX(i), y = CursorY() - DiscY(i);
	return x >= 0 && x < DISC_SIZE && y >= 0 && y < DISC_SIZE;
}

void CControllerInstructions::Step()
{
	bool found = false;
	for (int i = 0; i < DISCS; i++) {
		const bool shown = !found && PointerOnDisc(i);
		found            = found || shown;
		for (CSprite* sprite : {discs[i].glow, discs[i].name, discs[i].information})
			sprite->hidden = !shown;
	}
}

int CControllerInstructions::ShownDisc() const
{
	for (int i = 0; i < DISCS; i++)
		if (discs[i].glow && !discs[i].glow->IsHidden())
			return i;
	return -1;
}

void CControllerInstructions::OnKey(bool released, int)
{
	if (active && released)
		EndByKey();
}

void CControllerInstructions::OnGuiEvent(int, int)
{
	if (active)
		SetResult(RESULT_RETURN);
}
