// The modal box with which the game asks before it acts, or says why it does not.
#include "screens/dialog.h"

#include "frame/debug.h"
#include "media/cursor.h"
#include "media/font.h"
#include "media/gui_button.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"

static const int CARD_DEPTH = 750000;
static const int OKAY = 0, CANCEL = 1; // widget ids
static const char* const NO_SERVER = "Unable to connect.\nCheck internet settings.";

static const char* const ARE_YOU_SURE = "confirmation_C_areyousure.png";
static const char* const CLICK_OKAY   = "confirmation_C_clickokay.png";

namespace
{
struct DialogText {
	int kind;
	const char* title;
	const char* question;
	CardPart words; // no file: the caller's text
	bool refusal;   // one button, with the sound of a refusal
};
} // namespace

// clang-format off
static const DialogText s_texts[] = {
	{ DIALOG_MORE_GAMES,        "confirmation_A_moregames.png",       "confirmation_C_proceed.png",
	  { "confirmation_B_moregames.png", 264, 229 }, false },
	{ DIALOG_CHANGE_MODE,       "confirmation_A_changemode.png",      ARE_YOU_SURE,
	  { "confirmation_B_changemode.png", 258, 221 }, false },
	{ DIALOG_RESET_MAP,         "confirmation_A_resetmap.png",        ARE_YOU_SURE,
	  { "confirmation_B_resetmap.png", 265, 217 }, false },
	{ DIALOG_LEVEL_LOCKED,      "confirmation_A_levellocked.png",     CLICK_OKAY,
	  { "confirmation_B_levellocked.png", 259, 226 }, true },
	{ DIALOG_LEVEL_PLAYED,      "confirmation_A_levelplayed.png",     "confirmation_C_playagain.png",
	  { "confirmation_B_levelplayed.png", 271, 210 }, false },
	{ DIALOG_ISLANDS_LOCKED,    "confirmation_A_islandslocked.png",   CLICK_OKAY,
	  { "confirmation_B_islandslocked.png", 279, 211 }, true },
	{ DIALOG_RESET_TROPHIES,    "confirmation_A_resettrophies.png",   ARE_YOU_SURE,
	  { "confirmation_B_resettrophies.png", 300, 230 }, false },
	{ DIALOG_DISABLE_SHIELD,    "confirmation_A_disableshield.png",   ARE_YOU_SURE,
	  { "confirmation_B_disableshield.png", 239, 218 }, false },
	{ DIALOG_DELETE_USER,       "confirmation_A_deleteuser.png",      ARE_YOU_SURE,
	  { "confirmation_B_deleteuser.png", 327, 238 }, false },
	{ DIALOG_RESET_HIGH_SCORES, "confirmation_A_resethighscores.png", ARE_YOU_SURE,
	  { "confirmation_B_resethighscores.png", 296, 230 }, false },
	{ DIALOG_NAME_IN_USE,       "confirmation_A_nameinuse.png",       CLICK_OKAY,
	  { "confirmation_B_namealreadyexists.png", 258, 223 }, true },
	{ DIALOG_SCORE_NAME_IN_USE, "confirmation_A_nameinuse.png",       CLICK_OKAY,
	  { "confirmation_B_namealreadyexistshiscores.png", 278, 208 }, true },
	{ DIALOG_SLOW_MACHINE,      "confirmation_A_poorperformance.png", "confirmation_C_disableweather.png",
	  { "confirmation_B_poorperformance.png", 278, 208 }, false },
	{ DIALOG_SERVER_ERROR,      "confirmation_A_serverrerror.png",    CLICK_OKAY,
	  { nullptr, 296, 218 }, false },
};
// clang-format on

static const DialogText& TextOf(int kind)
{
	for (const DialogText& row : s_texts)
		if (row.kind == kind)
			return row;
	Error("There is no dialog of this kind.", true, true);
	return s_texts[0];
}

CControllerDialog::CControllerDialog(int newKind, bool newFader, const std::string& newText)
    : kind(newKind), fader(newFader), text(newText.empty() ? NO_SERVER : newText)
{
	if (TextOf(kind).refusal)
		g_actionFailedSound->Play();
	Open();
}

CControllerDialog::~CControllerDialog()
{
	Close();
}

void CControllerDialog::Build()
{
	const DialogText& row = TextOf(kind);
	card                  = new CCard(CARD_DEPTH, fader);
	card->Draw("confirmation_main.png", 213, 158);
	card->Draw(row.title, kind == DIALOG_SLOW_MACHINE ? 272 : 278, 177);
	card->Draw(row.question, 286, 298);
	if (row.words.file)
		card->Draw(row.words.file, row.words.x, row.words.y);
	else
		card->Write(text, TEXT_LEFT, row.words.x, row.words.y);

	const bool single = row.refusal || kind == DIALOG_SERVER_ERROR;
	okay = NewButton(this, OKAY, single ? 331 : 249, 329, "confirmation_buttonokay", single);
	if (!single)
		cancelled = NewButton(this, CANCEL, 411, 329, "confirmation_buttoncancel");
}

void CControllerDialog::TearDown()
{
	delete okay;
	delete cancelled;
	delete card;
	okay      = nullptr;
	cancelled = nullptr;
	card      = nullptr;
}

void CControllerDialog::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	ShowHourglass(false);
	answer = id == OKAY ? 0 : 1;
	SetResult(RESULT_RETURN);
}
