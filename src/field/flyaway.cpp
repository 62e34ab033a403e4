// The rising number that shows a score or a sum of money.
#include "field/flyaway.h"

#include "field/ball.h"
#include "field/bobber.h"
#include "field/paddle.h"
#include "frame/random.h"
#include "media/sprite.h"

#include <algorithm>

static const int DEPTH         = 24000;
static const int DEPTH_SIDEBAR = 900300;
static const int LAST_FRAME    = 15;
static const int DIGIT_FRAMES  = 2;  // between one digit and the next
static const int PITCH         = 10; // pixels from digit to digit
static const int PITCH_SIDEBAR = 13;
static const int RISE          = 2;  // pixels per frame
static const int PADDLE_MIDDLE = 36; // pixels from the paddle's x to where a number starts

static const int BOB_HALF_SWING  = 4;
static const float BOB_CURVE     = 3.0f;
static const float BOB_AMPLITUDE = 2.2f;
static const int BOB_PHASES      = 15;

CFlyaway::CFlyaway(int value, bool dollar, bool onPaddle, int atX, int atY, bool newOverSidebar)
    : number(value), overSidebar(newOverSidebar)
{
	LoadDigits(dollar);

	if (onPaddle) {
		atX = g_paddle ? g_paddle->GetX() + PADDLE_MIDDLE : 0;
		atY = CPaddle::TOP;
	} else if (atX == AT_BALL && atY == AT_BALL) {
		atX = g_ball ? static_cast<int>(g_ball->x) : 0;
		atY = g_ball ? static_cast<int>(g_ball->y) : 0;
	}
	x      = atX;
	y      = atY;
	startX = atX - (digits - 1) * PITCH / 2 - sprites[0]->Width() / 2;
	for (int i = 0; i < digits; i++)
		sprites[i]->SetPos(startX, atY - sprites[i]->Height() / 2);

	int phase = RandomWhole(0, BOB_PHASES);
	bobber    = new CBobber(startX, BOB_HALF_SWING, BOB_CURVE, BOB_AMPLITUDE, phase);
}

CFlyaway::~CFlyaway()
{
	for (int i = 0; i < digits; i++)
		delete sprites[i];
	delete bobber;
}

void CFlyaway::AddSprite(const std::string& stem)
{
	CSprite* sprite =
	    overSidebar ? new CSprite(DEPTH_SIDEBAR, 1, SPRITE_OVERLAY) : new CSprite(DEPTH, 1);
	sprite->AddSequence(stem + "-", 0, LAST_FRAME, ".png");
	sprite->SetStopAtEnd();
	sprite->Hide();
	sprites[digits++] = sprite;
}

void CFlyaway::LoadDigits(bool dollar)
{
	if (dollar)
		AddSprite("flyawaydollar");
	std::string text = std::to_string(std::max(number, 0));
	if (text.size() > MOST_DIGITS)
		text.assign(MOST_DIGITS, '9');
	for (char digit : text)
		AddSprite(std::string("flyaway") + digit);
}

void CFlyaway::Update()
{
	if (dead)
		return;
	age++;
	int bobX = bobber->StepValue();
	bool any = false;
	for (int i = 0; i < digits; i++) {
		int appears = 1 + i * DIGIT_FRAMES;
		if (age == appears)
			sprites[i]->Show();
		MoveDigit(i, bobX);
		any = any || age < appears || !sprites[i]->IsHidden();
	}
	dead = !any;
}

void CFlyaway::MoveDigit(int i, int bobX)
{
	CSprite* digit = sprites[i];
	if (digit->IsHidden())
		return;
	if (digit->IsAtLastFrameEnd()) {
		digit->Hide();
		return;
	}
	int digitX = overSidebar ? startX + i * PITCH_SIDEBAR : bobX + i * PITCH;
	digit->SetPos(digitX, digit->Y() - RISE);
}
