// The sliding door of the side panel.
#include "media/gui_door.h"

#include "media/sprite.h"

static const int RUBBER_DEPTH  = 19100;
static const int PANEL_DEPTH   = 19150;
static const int HANDLE_DEPTH  = 19200;
static const int HANDLE_FRAMES = 24;
static const int SLIDE_STEP    = 5; // pixels a frame
// All below are pixels from the door's left edge or top.
static const int DOOR_WIDTH     = 94;
static const int LEFT_RUBBER_X  = 32;
static const int RIGHT_RUBBER_X = 48;
static const int LEFT_PANEL_X   = 0;
static const int RIGHT_PANEL_X  = 47;
static const int LEFT_HANDLE_X  = 19;
static const int RIGHT_HANDLE_X = 47;
static const int HANDLE_Y       = 19;
static const int BOTH_HANDLES_Y = 16;
static const int PANELS_FOLLOW  = 74; // the right handle is here: the panels open
static const int RUBBERS_FOLLOW = 64; // the right panel is here: the rubbers open
static const int PANELS_RETURN  = 79; // the right rubber is here: the panels close
static const int HANDLES_RETURN = 64; // the right panel is here: the handles close

static CSprite* NewPart(int x, int y, int depth, const char* file)
{
	CSprite* sprite = new CSprite(x, y, depth, SPRITE_OVERLAY);
	sprite->AddFile(file);
	return sprite;
}

CGuiDoor::CGuiDoor(int newX, int newY) : x(newX), y(newY)
{
	leftRubber  = NewPart(x + LEFT_RUBBER_X, y, RUBBER_DEPTH, "sidebardoorrubberleft.png");
	rightRubber = NewPart(x + RIGHT_RUBBER_X, y, RUBBER_DEPTH, "sidebardoorrubberright.png");
	leftPanel   = NewPart(x + LEFT_PANEL_X, y, PANEL_DEPTH, "sidebardoormainleft.png");
	rightPanel  = NewPart(x + RIGHT_PANEL_X, y, PANEL_DEPTH, "sidebardoormainright.png");
	leftHandle =
	    NewPart(x + LEFT_HANDLE_X, y + HANDLE_Y, HANDLE_DEPTH, "sidebardoorhandleleft.png");
	rightHandle =
	    NewPart(x + RIGHT_HANDLE_X, y + HANDLE_Y, HANDLE_DEPTH, "sidebardoorhandleright.png");
	leftHandle->Hide();
	rightHandle->Hide();
	bothHandles = new CSprite(HANDLE_DEPTH, 1, SPRITE_OVERLAY);
	bothHandles->SetPos(x + LEFT_HANDLE_X, y + BOTH_HANDLES_Y);
	bothHandles->AddSequence("sidebardoorhandleboth", 0, HANDLE_FRAMES - 1, ".png");
	bothHandles->SetStopAtEnd();
	bothHandles->Stop();
}

CGuiDoor::~CGuiDoor()
{
	for (CSprite* part :
	     {leftRubber, rightRubber, leftPanel, rightPanel, leftHandle, rightHandle, bothHandles})
		delete part;
}

// The later wish counts.
void CGuiDoor::RequestOpen()
{
	openWanted  = true;
	closeWanted = false;
}

void CGuiDoor::RequestClose()
{
	closeWanted = true;
	openWanted  = false;
}

void CGuiDoor::StepDoor()
{
	if (openWanted && closed) {
		openWanted = closeWanted = closed = false;
		opening                           = true;
		bothHandles->Forward();
	}
	if (closeWanted && open) {
		openWanted = closeWanted = open = false;
		closing                         = true;
	}
	if (opening)
		StepOpening();
	else if (closing)
		StepClosing();
}

// To the wall first, then into it.
static void SlideLeftOut(CSprite* part, int wall)
{
	if (part->x > wall)
		part->x = part->x - SLIDE_STEP > wall ? part->x - SLIDE_STEP : wall;
	else
		part->SetWidth(part->width - SLIDE_STEP);
}

static void SlideLeftBack(CSprite* part, int home)
{
	if (part->width < part->fullWidth)
		part->SetWidth(part->width + SLIDE_STEP);
	else if (part->x < home)
		part->x = part->x + SLIDE_STEP < home ? part->x + SLIDE_STEP : home;
}

// A right part never reaches beyond the wall.
static void PlaceRight(CSprite* part, int newX, int wall)
{
	part->x = newX;
	part->SetWidth(wall - newX);
}

static void SlideRightOut(CSprite* part, int wall)
{
	PlaceRight(part, part->x + SLIDE_STEP < wall ? part->x + SLIDE_STEP : wall, wall);
}

static void SlideRightBack(CSprite* part, int home, int wall)
{
	PlaceRight(part, part->x - SLIDE_STEP > home ? part->x - SLIDE_STEP : home, wall);
}

void CGuiDoor::StepOpening()
{
	if (!bothHandles->IsHidden()) {
		if (!bothHandles->IsAtLastFrameEnd())
			return;
		bothHandles->Hide();
		leftHandle->Show();
		rightHandle->Show();
	}
	const int wall = x + DOOR_WIDTH;
	SlideLeftOut(leftHandle, x);
	SlideRightOut(rightHandle, wall);
	if (rightHandle->x < x + PANELS_FOLLOW)
		return;
	SlideLeftOut(leftPanel, x);
	SlideRightOut(rightPanel, wall);
	if (rightPanel->x < x + RUBBERS_FOLLOW)
		return;
	SlideLeftOut(leftRubber, x);
	SlideRightOut(rightRubber, wall);
	if (rightRubber->width == 0) {
		opening = false;
		open    = true;
	}
}

void CGuiDoor::StepClosing()
{
	if (!bothHandles->IsHidden()) {
		if (openWanted || bothHandles->IsAtFirstFrameEnd()) {
			closing = false;
			closed  = true;
		}
		return;
	}
	const int wall = x + DOOR_WIDTH;
	SlideLeftBack(leftRubber, x + LEFT_RUBBER_X);
	SlideRightBack(rightRubber, x + RIGHT_RUBBER_X, wall);
	if (rightRubber->x > x + PANELS_RETURN)
		return;
	SlideLeftBack(leftPanel, x + LEFT_PANEL_X);
	SlideRightBack(rightPanel, x + RIGHT_PANEL_X, wall);
	if (rightPanel->x > x + HANDLES_RETURN)
		return;
	SlideLeftBack(leftHandle, x + LEFT_HANDLE_X);
	SlideRightBack(rightHandle, x + RIGHT_HANDLE_X, wall);
	if (rightHandle->x <= x + RIGHT_HANDLE_X) {
		leftHandle->Hide();
		rightHandle->Hide();
		bothHandles->Show();
		bothHandles->Backward();
	}
}
