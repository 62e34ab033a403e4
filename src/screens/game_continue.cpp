// The choice between going on with a run and a new one.
#include "screens/game_continue.h"

#include "media/cursor.h"
#include "media/gui_button.h"
#include "screens/buttons.h"
#include "screens/card.h"

static const int CARD_DEPTH = 750000;

CControllerGameContinue::CControllerGameContinue()
{
	Open();
}

CControllerGameContinue::~CControllerGameContinue()
{
	Close();
}

void CControllerGameContinue::Build()
{
	card = new CCard(CARD_DEPTH, true);
	card->Draw("continuegame_mainA.png", 221, 217);
	card->Draw("continuegame_mainB.png", 244, 233);
	card->Draw("continuegame_mainC.png", 261, 271);
	goOn      = NewButton(this, BUTTON_CONTINUE, 260, 330, "continuegame_buttoncontinue");
	startOver = NewButton(this, BUTTON_NEW_GAME, 405, 330, "continuegame_buttonnewgame");
}

void CControllerGameContinue::TearDown()
{
	delete goOn;
	delete startOver;
	delete card;
	goOn = startOver = nullptr;
	card             = nullptr;
}

void CControllerGameContinue::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	ShowHourglass(false);
	newGame = id != BUTTON_CONTINUE;
	SetResult(RESULT_RETURN);
}
