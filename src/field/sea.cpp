// The rolling bands of the sea, and the rainbow over it.
#include "field/sea.h"

#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"

#include <cmath>

static const float TURN = 6.28318f; // radians

static const int RAINBOW_X       = 20; // pixels
static const int RAINBOW_DEPTH   = -85;
static const int RAINBOW_FRAMES  = 10;
static const int RAINBOW_MINIMUM = 600; // frames
static const int RAINBOW_MAXIMUM = 18000;

namespace
{
struct Band {
	const char* crest;
	const char* base;
	int depth;
	float x, swing; // pixels
	float step;     // radians a frame
};
} // namespace

// clang-format off
static const Band BANDS_LOOK[CWaves::BANDS] = {
	{"background_wavesback.png",   "background_wavesbaseback.png",   -70, -40,  6, 0.085f},
	{"background_wavesmiddle.png", "background_wavesbasemiddle.png", -71, -50,  8, 0.07f},
	{"background_wavesfront.png",  "background_wavesbasefront.png",  -72, -70, 10, 0.05f},
};
// clang-format on

CWaves::~CWaves()
{
	for (CSprite* sprite : sprites)
		delete sprite;
}

void CWaves::Make(int image)
{
	for (int i = 0; i < BANDS; i++) {
		const Band& band = BANDS_LOOK[i];
		int line         = WAVE_LINE + i * WAVE_GAP;
		g_display->DrawFile(band.base, image, 0, line, false);
		sprites[i] = new CSprite(band.depth);
		sprites[i]->AddFile(band.crest);
		sprites[i]->SetPos(static_cast<int>(band.x), line - sprites[i]->Height());
	}
}

void CWaves::Step()
{
	for (int i = 0; i < BANDS; i++) {
		const Band& band = BANDS_LOOK[i];
		phase[i] += band.step;
		if (phase[i] > TURN)
			phase[i] -= TURN;
		int x = static_cast<int>(band.x + std::sin(phase[i]) * band.swing);
		sprites[i]->SetPos(x, WAVE_LINE + i * WAVE_GAP - sprites[i]->Height());
	}
}

CRainbow::~CRainbow()
{
	delete sprite;
}

void CRainbow::Make()
{
	sprite = new CSprite(RAINBOW_DEPTH, 2);
	sprite->AddSequence("background_rainbow", 0, RAINBOW_FRAMES - 1, ".png");
	sprite->SetPos(RAINBOW_X, CWaves::WAVE_LINE - sprite->Height());
	sprite->SetStopAtEnd();
	sprite->Hide();
	timer = RandomWhole(RAINBOW_MINIMUM, RAINBOW_MAXIMUM);
}

void CRainbow::Step()
{
	if (!sprite)
		return;
	if (--timer <= 0) {
		timer = RandomWhole(RAINBOW_MINIMUM, RAINBOW_MAXIMUM);
		if (sprite->IsHidden()) {
			sprite->Rewind();
			sprite->Forward();
			sprite->Show();
		} else {
			sprite->Backward();
		}
	}
	if (!sprite->IsHidden() && sprite->IsStopped() && sprite->Frame() == 0)
		sprite->Hide();
}
