// The hint page before a level.
#include "screens/instructions_small.h"

#include "media/gui_button.h"
#include "screens/buttons.h"
#include "screens/card.h"

static const int CARD_DEPTH = 600000;

// clang-format off
static const CardPart s_parts[] = {
	{ "instructionssmallermain.png",  64, 146 },
	{ "instructionspartA1.png",       74, 168 },
	{ "instructionspartA2.png",       67, 178 },
	{ "instructionspartB1.png",      435, 168 },
	{ "instructionspartB2.png",      435, 175 },
	{ "instructionspartB3.png",      676, 175 },
	{ "instructionspartCbase.png",   270, 290 },
	{ "instructionspartCtext.png",   299, 318 },
};
// clang-format on

CControllerInstructionsSmall::CControllerInstructionsSmall()
{
	Open();
}

CControllerInstructionsSmall::~CControllerInstructionsSmall()
{
	Close();
}

void CControllerInstructionsSmall::Build()
{
	card = new CCard(CARD_DEPTH, true);
	card->Draw(s_parts);
	okay = NewButton(this, 0, 583, 314, "prelevel_button", true);
}

void CControllerInstructionsSmall::TearDown()
{
	delete okay;
	delete card;
	okay = nullptr;
	card = nullptr;
}

void CControllerInstructionsSmall::OnKey(bool released, int)
{
	if (active && released)
		EndByKey();
}

void CControllerInstructionsSmall::OnGuiEvent(int, int)
{
	if (active)
		SetResult(RESULT_RETURN);
}
