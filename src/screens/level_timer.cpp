// The clock of a level with a time limit, and the sign that shows when the time is up.
#include "screens/level_timer.h"

#include "field/bobber.h"
#include "field/element.h"
#include "media/sprite.h"

#include <string>

static const int FRAME_DEPTH     = 27000;
static const int DIGIT_DEPTHS[3] = {27050, 27052, 27053}; // minutes, tens, ones
static const int COLON_DEPTH     = 27051;
static const int TIME_UP_DEPTH   = 25000;

static const int FRAME_X    = 7; // pixels
static const int REST_Y     = 6;
static const int PARKED_Y   = -500;
static const int COLON_X    = 36; // from the frame
static const int COLON_Y    = 11;
static const int DIGIT_X[3] = {14, 48, 70};
static const int DIGIT_Y    = 7;

static const float SLIDE_SPEED = 18;    // pixels per frame at the start
static const float SLIDE_BRAKE = 1.67f; // lost each frame
static const int TIME_UP_HOLD  = 120;   // frames

static const int FIELD_MIDDLE_X = 346; // pixels
static const int FIELD_MIDDLE_Y = 300;
static const int WAVE_PERIOD    = 4;
static const float WAVE_POWER   = 3;
static const float WAVE_HEIGHT  = 2.2f;

CLevelTimer::CLevelTimer()
{
	frame = new CSprite(FRAME_DEPTH, SPRITE_OVERLAY);
	frame->AddFile("timermain.png");
	colon = new CSprite(COLON_DEPTH, SPRITE_OVERLAY);
	colon->AddFile("timercolon.png");
	for (int place = 0; place < 3; place++) {
		for (int value = 0; value < 10; value++) {
			digits[place][value] = new CSprite(DIGIT_DEPTHS[place], SPRITE_OVERLAY);
			digits[place][value]->AddFile("timer" + std::to_string(value) + ".png");
		}
	}
	timeUp = new CSprite(TIME_UP_DEPTH, 1, SPRITE_OVERLAY);
	timeUp->AddRepeated("timesup0.png", TIME_UP_HOLD);
	timeUp->AddSequence("timesup", 0, 2, ".png");
	timeUp->SetStopAtEnd();
	timeUp->CenterX(FIELD_MIDDLE_X);
	timeUp->CenterY(FIELD_MIDDLE_Y);
	timeUpWave = new CBobber(timeUp->Y(), WAVE_PERIOD, WAVE_POWER, WAVE_HEIGHT, 0);
	Reset();
}

CLevelTimer::~CLevelTimer()
{
	delete frame;
	delete colon;
	for (auto& row : digits)
		for (CSprite* digit : row)
			delete digit;
	delete timeUp;
	delete timeUpWave;
}

void CLevelTimer::Reset()
{
	held = sliding = running = false;
	timeLeft                 = 0;
	slideSpeed               = SLIDE_SPEED;
	y                        = frame->Height() * -1.5f;
	frame->SetPos(0, PARKED_Y);
	colon->SetPos(0, PARKED_Y);
	frame->Hide();
	colon->Hide();
	timeUp->Hide();
	for (auto& row : digits)
		for (CSprite* digit : row)
			digit->Hide();
}

void CLevelTimer::Set(int seconds, bool newHeld)
{
	sliding  = true;
	held     = newHeld;
	timeLeft = seconds * FRAMES_A_SECOND;
	frame->Show();
	colon->Show();
}

bool CLevelTimer::IsVisible() const
{
	return !frame->IsHidden();
}

int CLevelTimer::SecondsLeft() const
{
	return timeLeft / FRAMES_A_SECOND;
}

void CLevelTimer::Step(bool levelOver)
{
	if (IsVisible()) {
		if (running && !held && !levelOver)
			CountDown();
		if (sliding)
			SlideIn();
		ShowDigits();
	}
	StepTimeUp();
}

// The last second is not played out: the display would stand at 0:00 with the game still on.
void CLevelTimer::CountDown()
{
	timeLeft--;
	if (timeLeft >= FRAMES_A_SECOND)
		return;
	running  = false;
	timeLeft = 0;
	timeUp->Rewind();
	timeUp->Forward();
	timeUp->Show();
}

void CLevelTimer::SlideIn()
{
	slideSpeed -= SLIDE_BRAKE;
	y += slideSpeed;
	if (slideSpeed < 0 && y <= REST_Y) {
		y       = REST_Y;
		sliding = false;
	}
}

void CLevelTimer::ShowDigits()
{
	int seconds   = SecondsLeft();
	int values[3] = {seconds / 60 % 10, seconds / 10 % 6, seconds % 10};
	int top       = static_cast<int>(y);

	frame->SetPos(FRAME_X, top);
	colon->SetPos(FRAME_X + COLON_X, top + COLON_Y);
	for (int place = 0; place < 3; place++) {
		for (int value = 0; value < 10; value++) {
			CSprite* digit = digits[place][value];
			digit->SetPos(FRAME_X + DIGIT_X[place], top + DIGIT_Y);
			if (value == values[place])
				digit->Show();
			else
				digit->Hide();
		}
	}
}

void CLevelTimer::StepTimeUp()
{
	if (timeUp->IsHidden())
		return;
	if (timeUp->IsAtLastFrameEnd())
		timeUp->Hide();
	else
		timeUp->SetPos(timeUp->X(), timeUpWave->StepValue());
}
