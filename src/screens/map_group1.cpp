// The close-up of the western islands.
#include "screens/map_group1.h"

#include "media/sprite.h"

static const int HELP_DEPTH = 900300; // above the dots
static const int ARROW_X    = 673;    // pixels
static const int ARROW_Y    = 478;
static const int SHADOW_Y   = 519;

static const int BOB_HALF_PERIOD = 6; // frames
static const float BOB_POWER     = 3.5f;
static const float BOB_AMPLITUDE = 5.2f; // pixels

CControllerMapGroup1::CControllerMapGroup1()
    : CControllerMapGroup(GROUP_A), helpBob(ARROW_Y, BOB_HALF_PERIOD, BOB_POWER, BOB_AMPLITUDE, 0)
{
	Open();
}

CControllerMapGroup1::~CControllerMapGroup1()
{
	Close();
}

void CControllerMapGroup1::BuildScreen(bool firstTime)
{
	if (!HasPictures()) {
		AddBackground("mapcloseupbackgroundgroupACtop.jpg", 0);     // 800x194
		AddBackground("mapcloseupbackgroundgroupAbottom.jpg", 194); // 800x406
		AddArrow(MAP_ARROW_A, "maparrowA", 722, 446);               // 70x60
		BuildHelp();
	}
	BuildDots(firstTime);
	if (helpArrow)
		HideDotsUnder(helpBox);
}

void CControllerMapGroup1::BuildHelp()
{
	if (g_gameData->IsLevelDoneEver(0))
		return;
	helpBox = AddPicture("mapoverviewboxlockedmain.png", 578, 323, HELP_DEPTH); // 200x104
	AddPicture("maphelptext.png", 598, 330, HELP_DEPTH + 1);                    // 160x90
	AddPicture("maphelparrowshadow.png", ARROW_X, SHADOW_Y, HELP_DEPTH);        // 34x12
	helpArrow = AddPicture("animal_arrow.png", ARROW_X, ARROW_Y, HELP_DEPTH + 1);
}

void CControllerMapGroup1::ClearScreen(bool all)
{
	CControllerMapGroup::ClearScreen(all);
	if (all)
		helpArrow = helpBox = nullptr;
}

void CControllerMapGroup1::StepHelpArrow()
{
	if (helpArrow)
		helpArrow->SetPos(ARROW_X, helpBob.StepValue());
}
