// The side panel's gauge of the fan's charge.
#include "field/fan_gauge.h"

#include "media/sprite.h"

static const int DEPTH_COLOUR = 18200, DEPTH_FRAME = 18210, DEPTH_GLOW = 18220;
static const int FRAME_X = 703, FRAME_Y = 234;
static const int COLOUR_X = 703, COLOUR_Y = 235;
static const int GLOW_X = 691, GLOW_Y = 222;
static const int LAST_COLOUR = 5, LAST_GLOW = 8;
static const float FULL_HEIGHT = 83; // pixels
static const float FULL_CHARGE = 1000.0f;

CFanGauge::CFanGauge()
{
	frame = new CSprite(FRAME_X, FRAME_Y, DEPTH_FRAME, SPRITE_OVERLAY);
	frame->AddFile("sidebarfanframe.png");

	colour = new CSprite(DEPTH_COLOUR, 1, SPRITE_OVERLAY);
	colour->AddSequence("sidebarfancolour", 0, LAST_COLOUR, ".png");
	colour->SetPos(COLOUR_X, COLOUR_Y);
	colour->SetStopAtEnd();
	colour->Stop();

	glow = new CSprite(DEPTH_GLOW, 1, SPRITE_OVERLAY);
	glow->AddSequence("sidebarfanglow", 0, LAST_GLOW, ".png");
	glow->AddSequence("sidebarfanglow", LAST_GLOW - 1, 1, ".png");
	glow->SetPos(GLOW_X, GLOW_Y);
	glow->Hide();
}

CFanGauge::~CFanGauge()
{
	delete frame;
	delete colour;
	delete glow;
}

void CFanGauge::ShowGlow(bool on)
{
	if (on)
		glow->Show();
	else
		glow->Hide();
}

void CFanGauge::Step(int charge, bool fansTimerRuns)
{
	colour->SetHeight(static_cast<int>(charge / FULL_CHARGE * FULL_HEIGHT));
	if (fansTimerRuns)
		colour->Forward();
	else
		colour->Backward();
}
