// The screens that interrupt a level: the one place that knows which of them exist.
#include "screens/game_children.h"

// How a kind of screen is made and read.
struct ChildClass {
	CController* (*make)(const ChildRequest& request);
	ChildAnswer (*read)(const CController* child);
};

// clang-format off
static const ChildClass s_classes[CHILD_KINDS] = {
	{ nullptr, nullptr }, // none
	{ nullptr, nullptr }, // pause menu
	{ nullptr, nullptr }, // trophy tally
	{ nullptr, nullptr }, // tally
	{ nullptr, nullptr }, // end of game
	{ nullptr, nullptr }, // bonus card
	{ nullptr, nullptr }, // dialog
	{ nullptr, nullptr }, // hint page
	{ nullptr, nullptr }, // story
	{ nullptr, nullptr }, // quiz
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
