// What the side panel's upper door opens on: the portrait of what was taken last, and its names.
#include "field/portrait_window.h"

#include "frame/random.h"
#include "media/sprite.h"

#include <cmath>
#include <cstdlib>
#include <string>

static const int DEPTH_SWIRLS = 18500, DEPTH_PORTRAIT = 18510, DEPTH_EYES = 18520;
static const int DEPTH_TEXT_BASE = 18530, DEPTH_NAME = 18540;
static const int LAST_SWIRL   = 9;
static const int TEXT_BASE_Y  = 359;
static const int MIDDLE_X     = 745;
static const int FIRST_NAME_Y = 362, NAME_Y = 373;
static const int WORD_GAP    = 1; // pixels between "the" and the species' word
static const int BOB_ENDS    = 9;
static const float BOB_SCALE = 10, BOB_CURVE = 3, BOB_AMPLITUDE = 3.1f;
static const int BLINK_SOONEST = 4, BLINK_LATEST = 180, BLINK_FRAMES = 2;

static CSprite* NewHidden(int depth, const std::string& name)
{
	CSprite* sprite = new CSprite(depth, SPRITE_OVERLAY);
	sprite->AddFile(name);
	sprite->Hide();
	return sprite;
}

CPortraitWindow::CPortraitWindow() : blinkCountdown(RandomWhole(BLINK_SOONEST, BLINK_LATEST))
{
	swirls = new CSprite(DEPTH_SWIRLS, 1, SPRITE_OVERLAY);
	swirls->AddSequence("sidebarswirls", 0, LAST_SWIRL, ".png");
	swirls->SetPos(PORTRAIT_WINDOW_X, PORTRAIT_WINDOW_Y);
	textBase = new CSprite(PORTRAIT_WINDOW_X, TEXT_BASE_Y, DEPTH_TEXT_BASE, SPRITE_OVERLAY);
	textBase->AddFile("sidebartextbase.tga");
	nameThe = NewHidden(DEPTH_NAME, "sidebarnamethe.png");
	nameThe->SetPos(PORTRAIT_WINDOW_X, NAME_Y);
}

CPortraitWindow::~CPortraitWindow()
{
	delete swirls;
	delete textBase;
	delete nameThe;
	for (int n = 0; n < PORTRAIT_COUNT; n++) {
		delete portraits[n];
		delete eyes[n];
		delete names[n];
	}
	for (CSprite* name : firstNames)
		delete name;
}

void CPortraitWindow::Load(int n)
{
	if (portraits[n])
		return;
	std::string stem = "sidebarportrait" + std::to_string(n);
	portraits[n]     = NewHidden(DEPTH_PORTRAIT, stem + ".png");
	names[n]         = NewHidden(DEPTH_NAME, stem + "name.png");
	if (n != PORTRAIT_EGG)
		eyes[n] = NewHidden(DEPTH_EYES, stem + "eyes.png");
}

void CPortraitWindow::HideShown()
{
	nameThe->Hide();
	if (firstName >= 0)
		firstNames[firstName]->Hide();
	firstName = -1;
	if (number < 0)
		return;
	portraits[number]->Hide();
	names[number]->Hide();
	if (eyes[number])
		eyes[number]->Hide();
}

void CPortraitWindow::ShowPortrait(int newNumber)
{
	if (newNumber < 0 || newNumber >= PORTRAIT_COUNT)
		return;
	HideShown();
	number = newNumber;
	Load(number);
	portraits[number]->Show();
	names[number]->Show();
	if (number != PORTRAIT_EGG) {
		firstName = Rand() % FIRST_NAMES;
		if (!firstNames[firstName])
			firstNames[firstName] =
			    NewHidden(DEPTH_NAME, "sidebarname" + std::to_string(firstName) + ".png");
		firstNames[firstName]->Show();
		nameThe->Show();
	}
	LayOutNames();
}

// The first name stands alone; below it "the" and the species' word make one line.
void CPortraitWindow::LayOutNames()
{
	CSprite* name = names[number];
	if (number == PORTRAIT_EGG) {
		name->SetPos(MIDDLE_X - name->Width() / 2, NAME_Y);
		return;
	}
	int width = nameThe->Width() + WORD_GAP + name->Width();
	nameThe->SetPos(MIDDLE_X - width / 2, NAME_Y);
	name->SetPos(nameThe->X() + nameThe->Width() + WORD_GAP, NAME_Y);
	CSprite* first = firstNames[firstName];
	first->SetPos(MIDDLE_X - first->Width() / 2, FIRST_NAME_Y);
}

int CPortraitWindow::Bob()
{
	bobStep += bobDirection;
	if (std::abs(bobStep) >= BOB_ENDS)
		bobDirection = bobStep > 0 ? -1 : 1;
	float offset = (1 - std::pow(std::abs(bobStep) / BOB_SCALE, BOB_CURVE)) * BOB_AMPLITUDE;
	return static_cast<int>(bobDirection < 0 ? -offset : offset);
}

void CPortraitWindow::Step()
{
	int bob = Bob();
	blinkCountdown--;
	if (blinkCountdown < -BLINK_FRAMES)
		blinkCountdown = RandomWhole(BLINK_SOONEST, BLINK_LATEST);
	if (number < 0)
		return;

	CSprite* portrait   = portraits[number];
	PortraitPlace place = PlaceOfPortrait(number, portrait->Width(), portrait->Height());
	portrait->SetPos(place.x, place.y + bob);
	if (!eyes[number])
		return;
	eyes[number]->SetPos(place.eyesX, place.eyesY + bob);
	if (blinkCountdown < 0)
		eyes[number]->Show();
	else
		eyes[number]->Hide();
}
