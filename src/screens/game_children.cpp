// The screens that interrupt a level: the one place that knows which of them exist.
#include "screens/game_children.h"

#include "screens/bonus_intro.h"
#include "screens/dialog.h"
#include "screens/game.h"
#include "screens/in_game.h"
#include "screens/instructions_small.h"
#include "screens/level_tally.h"

// How a kind of screen is made and read.
struct ChildClass {
	CController* (*make)(const ChildRequest& request);
	ChildAnswer (*read)(const CController* child);
};

static CController* MakePause(const ChildRequest&)
{
	return new CControllerInGame();
}

static CController* MakeTally(const ChildRequest& request)
{
	const int* n = request.tallyValues;
	return new CControllerLevelTally({request.tallyType, n[0], n[1], n[2], n[3]},
	                                 g_game->rules.orderRecord);
}

static ChildAnswer ReadTally(const CController* child)
{
	ChildAnswer answer;
	answer.replay = static_cast<const CControllerLevelTally*>(child)->replay;
	return answer;
}

static CController* MakeBonusCard(const ChildRequest& request)
{
	return new CControllerBonusIntro(request.level);
}

static CController* MakeDialog(const ChildRequest& request)
{
	return new CControllerDialog(request.value, true);
}

static ChildAnswer ReadDialog(const CController* child)
{
	ChildAnswer answer;
	answer.answer = static_cast<const CControllerDialog*>(child)->answer;
	return answer;
}

static CController* MakeHint(const ChildRequest&)
{
	return new CControllerInstructionsSmall();
}

// clang-format off
static const ChildClass s_classes[CHILD_KINDS] = {
	{ nullptr,       nullptr },    // none
	{ MakePause,     nullptr },    // pause menu
	{ nullptr,       nullptr },    // trophy tally
	{ MakeTally,     ReadTally },  // tally
	{ nullptr,       nullptr },    // end of game
	{ MakeBonusCard, nullptr },    // bonus card
	{ MakeDialog,    ReadDialog }, // dialog
	{ MakeHint,      nullptr },    // hint page
	{ nullptr,       nullptr },    // story
	{ nullptr,       nullptr },    // quiz
};
// clang-format on

CController* NewGameChild(const ChildRequest& request)
{
	return HasGameChild(request.kind) ? s_classes[request.kind].make(request) : nullptr;
}

bool HasGameChild(GameChild kind)
{
	return s_classes[kind].make != nullptr;
}

ChildAnswer ReadGameChild(GameChild kind, const CController* child)
{
	return s_classes[kind].read ? s_classes[kind].read(child) : ChildAnswer();
}
