// The choice between the regular game and the one for kids.
#include "screens/game_type.h"

#include "media/gui_button.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "state/game_data.h"

static const int CARD_DEPTH = 750000;

CControllerGameType::CControllerGameType()
{
	Open();
}

CControllerGameType::~CControllerGameType()
{
	Close();
}

void CControllerGameType::Build()
{
	card = new CCard(CARD_DEPTH, true);
	card->Draw("modeselection_mainA.png", 243, 168);
	card->Draw("modeselection_mainB.png", 274, 176);
	regular = NewButton(this, BUTTON_REGULAR, 251, 330, "modeselection_buttonregular");
	kids    = NewButton(this, BUTTON_KIDS, 414, 330, "modeselection_buttonkids");
}

void CControllerGameType::TearDown()
{
	delete regular;
	delete kids;
	delete card;
	regular = kids = nullptr;
	card           = nullptr;
}

// The mode already set is not set again: that would forget that the run has been a kids' run.
void CControllerGameType::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	const bool kidsWanted = id == BUTTON_KIDS;
	if (kidsWanted != g_gameData->IsKidsMode())
		g_gameData->ToggleKidsMode();
	SetResult(RESULT_RETURN);
}
