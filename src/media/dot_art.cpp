// The pictures of a dot of the map.
#include "media/dot_art.h"

#include "media/sprite.h"

#include <string>

static const int DOT_DEPTH     = 900100;
static const int FRAME_STEPS   = 2; // of each picture of an animation
static const int SHRINK_FRAMES = 3;
static const int PULSE_FRAMES  = 5;
static const int STAR_LEFT     = 2; // pixels: the star is larger than the other dots
static const int STAR_UP       = 1;

static const char* const s_kindWords[]  = {"regular", "bonus", "alien", "side", "star"};
static const char* const s_stateWords[] = {"locked", "lockedghosted", "completed", "incomplete"};

static CSprite* NewStill(int x, int y, const std::string& file)
{
	CSprite* sprite = new CSprite(x, y, DOT_DEPTH);
	sprite->AddFile(file);
	sprite->Hide();
	return sprite;
}

static CSprite* NewSequence(int x, int y, const std::string& prefix, int first, int last)
{
	CSprite* sprite = new CSprite(x, y, DOT_DEPTH);
	sprite->SetDelay(FRAME_STEPS);
	sprite->AddSequence(prefix, first, last, ".png");
	sprite->SetStopAtEnd();
	sprite->Hide();
	return sprite;
}

static CSprite* NewPulse(int x, int y, const std::string& stem)
{
	CSprite* sprite = NewStill(x, y, stem + "base.png");
	sprite->SetDelay(FRAME_STEPS);
	sprite->AddSequence(stem + "pulse", 1, PULSE_FRAMES, ".png");
	sprite->AddSequence(stem + "pulse", PULSE_FRAMES - 1, 1, ".png");
	return sprite;
}

CDotArt::CDotArt(int x, int y, DotKind kind, DotState state)
{
	if (kind == DOT_STAR) {
		x -= STAR_LEFT;
		y -= STAR_UP;
	}
	const std::string prefix = std::string("mapdot") + s_kindWords[kind];
	const bool ghosted       = kind == DOT_STAR && state == DOT_LOCKED; // its only locked picture
	const std::string stem   = prefix + s_stateWords[ghosted ? DOT_LOCKED_GHOSTED : state];
	plain                    = NewStill(x, y, stem + "base.png");
	rollover                 = NewStill(x, y, stem + "rollover.png");
	shrink                   = NewSequence(x, y, stem + "shrink", 1, SHRINK_FRAMES);
	grow                     = NewSequence(x, y, stem + "shrink", SHRINK_FRAMES, 1);
	if (state < DOT_COMPLETED)
		return;
	selected     = NewPulse(x, y, prefix + "selected");
	selectedGrow = NewSequence(x, y, prefix + "selectedshrink", SHRINK_FRAMES, 1);
}

CDotArt::~CDotArt()
{
	for (CSprite* sprite : {plain, rollover, shrink, grow, selected, selectedGrow})
		delete sprite;
}
