// A door of the side panel, moved by three slides.
#include "field/sidebar_door.h"

#include "media/sprite.h"

#include <algorithm>
#include <string>

static const float SLIDE_STEP     = 5;  // pixels per frame
static const float MAIN_FOLLOWS   = 25; // the main part follows the handle at this distance
static const float RUBBER_FOLLOWS = 18; // and the rubber the main part

static const int DEPTH_RUBBER = 19100, DEPTH_MAIN = 19150, DEPTH_HANDLE = 19200;
static const int RUBBER_X[2]  = {729, 745};
static const int MAIN_X[2]    = {698, 745};
static const int HANDLE_X[2]  = {717, 745};
static const int HANDLE_BELOW = 19, BOTH_BELOW = 16; // pixels below the door's top
static const int LAST_TURN = 23;
static const int LEFT_EDGE = 693, RIGHT_EDGE = 797; // nothing of a door shows beyond

static CSprite* NewHalf(int depth, const char* part, int side)
{
	CSprite* sprite = new CSprite(depth, SPRITE_OVERLAY);
	sprite->AddFile(std::string("sidebardoor") + part + (side ? "right.png" : "left.png"));
	return sprite;
}

CPanelDoor::CPanelDoor(int newY) : y(newY)
{
	for (int side = 0; side < 2; side++) {
		rubber[side]   = NewHalf(DEPTH_RUBBER, "rubber", side);
		mainPart[side] = NewHalf(DEPTH_MAIN, "main", side);
		handle[side]   = NewHalf(DEPTH_HANDLE, "handle", side);
		handle[side]->Hide();
	}
	handleBoth = new CSprite(DEPTH_HANDLE, 1, SPRITE_OVERLAY);
	handleBoth->AddSequence("sidebardoorhandleboth", 0, LAST_TURN, ".png");
	handleBoth->SetPos(HANDLE_X[0], y + BOTH_BELOW);
	handleBoth->SetStopAtEnd();
	handleBoth->Stop();
	PlaceParts();
}

CPanelDoor::~CPanelDoor()
{
	for (int side = 0; side < 2; side++) {
		delete rubber[side];
		delete mainPart[side];
		delete handle[side];
	}
	delete handleBoth;
}

void CPanelDoor::AskToOpen()
{
	justShut = false;
	opening  = true;
	if (!handleBoth->IsHidden())
		handleBoth->Forward();
}

void CPanelDoor::AskToClose(bool thenOpenAgain)
{
	opensAgain = thenOpenAgain;
	closing    = true;
}

void CPanelDoor::Step()
{
	if (opening && !open)
		StepOpening();
	else if (closing)
		StepClosing();
}

static void Grow(float& slide)
{
	slide = std::min(slide + SLIDE_STEP, CPanelDoor::WIDEST);
}

static void ShrinkSlide(float& slide)
{
	slide = std::max(slide - SLIDE_STEP, 0.0f);
}

void CPanelDoor::StepOpening()
{
	if (!handleBoth->IsHidden()) {
		if (!handleBoth->IsAtLastFrameEnd())
			return;
		handleBoth->Hide();
		handle[0]->Show();
		handle[1]->Show();
	}
	Grow(handleSlide);
	if (handleSlide > MAIN_FOLLOWS)
		Grow(mainSlide);
	if (mainSlide > RUBBER_FOLLOWS)
		Grow(rubberSlide);
	if (rubberSlide >= WIDEST) {
		opening = false;
		open    = true;
	}
}

void CPanelDoor::StepClosing()
{
	if (!handleBoth->IsHidden()) {
		if (handleBoth->IsAtFirstFrameEnd())
			closing = open = false;
		return;
	}
	ShrinkSlide(rubberSlide);
	if (rubberSlide + RUBBER_FOLLOWS < WIDEST)
		ShrinkSlide(mainSlide);
	if (mainSlide + MAIN_FOLLOWS < WIDEST)
		ShrinkSlide(handleSlide);
	if (handleSlide > 0)
		return;
	if (opensAgain) {
		closing = open = opensAgain = false;
		justShut                    = true;
		return;
	}
	handle[0]->Hide();
	handle[1]->Hide();
	handleBoth->Show();
	handleBoth->GoToLast();
	handleBoth->Backward();
}

// The left half is cut where it passes the panel's edge, the right half where the mirror image is.
static void PlacePair(CSprite* const* pair, const int* atX, int y, float slide)
{
	int leftX = atX[0] - static_cast<int>(slide);
	int cut   = std::max(LEFT_EDGE - leftX, 0);
	pair[0]->SetSourceX(cut);
	pair[0]->SetWidth(pair[0]->FullWidth() - cut);
	pair[0]->SetPos(leftX + cut, y);

	int rightX = atX[1] + static_cast<int>(slide);
	pair[1]->SetWidth(std::min(pair[1]->FullWidth(), RIGHT_EDGE - rightX));
	pair[1]->SetPos(rightX, y);
}

void CPanelDoor::PlaceParts()
{
	PlacePair(rubber, RUBBER_X, y, rubberSlide);
	PlacePair(mainPart, MAIN_X, y, mainSlide);
	PlacePair(handle, HANDLE_X, y + HANDLE_BELOW, handleSlide);
}
