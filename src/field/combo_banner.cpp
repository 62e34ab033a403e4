// The banner that counts the animals of one flight of the ball.
#include "field/combo_banner.h"

#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/bobber.h"
#include "media/sprite.h"

#include <algorithm>
#include <string>

static const int DEPTH        = 20;
static const int FRAME_DELAY  = 2; // frames of play for each picture
static const int LAST_PICTURE = 3;
static const int LAST_STANDS  = 18; // pictures that the banner stands when it has sprung in
static const int GAP          = 4;  // pixels between number and word
static const int BELOW_BALL   = 10; // pixels
static const int LOST_X = 346, LOST_Y = 300; // where it stands without a ball
static const int BOB_HALF_SWING  = 4;
static const float BOB_CURVE     = 3.0f;
static const float BOB_AMPLITUDE = 2.2f;

CComboBanner::~CComboBanner()
{
	for (int i = 0; i < BANNERS; i++) {
		delete number[i];
		delete word[i];
	}
	delete bobber;
}

static CSprite* NewPart(const std::string& stem)
{
	CSprite* sprite = new CSprite(DEPTH, FRAME_DELAY);
	sprite->AddSequence(stem, 0, LAST_PICTURE, ".png");
	sprite->AddRepeated(stem + std::to_string(LAST_PICTURE) + ".png", LAST_STANDS);
	sprite->SetStopAtEnd();
	sprite->Hide();
	return sprite;
}

void CComboBanner::Load(int i)
{
	if (number[i])
		return;
	std::string stem = i == BANNERS - 1 ? "combomax" : "combo" + std::to_string(i + 2) + "x";
	number[i]        = NewPart(stem);
	word[i]          = NewPart("combocombo");
}

void CComboBanner::TakeAway()
{
	if (current < 0)
		return;
	number[current]->Hide();
	word[current]->Hide();
	current = -1;
	delete bobber;
	bobber = nullptr;
}

void CComboBanner::Show(int combo)
{
	TakeAway();
	current = std::clamp(combo - 2, 0, BANNERS - 1);
	Load(current);
	CSprite* first  = number[current];
	CSprite* second = word[current];

	int middle = g_ball ? static_cast<int>(g_ball->x) : LOST_X;
	int top    = g_ball ? static_cast<int>(g_ball->y) + BELOW_BALL : LOST_Y;
	int width  = first->Width() + GAP + second->Width();
	int most   = std::max(static_cast<int>(FIELD_WALL_RIGHT) - width, 0);
	int left   = std::clamp(middle - width / 2, 0, most);
	first->SetPos(left, top);
	second->SetPos(left + first->Width() + GAP, top);
	for (CSprite* part : {first, second}) {
		part->Rewind();
		part->Forward();
		part->Show();
	}
	bobber = new CBobber(top, BOB_HALF_SWING, BOB_CURVE, BOB_AMPLITUDE, 0);
}

void CComboBanner::Step()
{
	if (current < 0)
		return;
	if (number[current]->IsAtLastFrameEnd()) {
		TakeAway();
		return;
	}
	int top = bobber->StepValue();
	number[current]->SetPos(number[current]->X(), top);
	word[current]->SetPos(word[current]->X(), top);
}
