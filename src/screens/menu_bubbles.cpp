// The bubbles that rise before the main menu's picture.
#include "screens/menu_bubbles.h"

#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"

#include <cstdio>
#include <string>

static const int DEPTH            = 104000;
static const int CHANCE           = 50; // one in so many frames
static const int TRIES            = 1000;
static const int PICTURES         = 12;
static const int PICTURE_DELAY    = 2;     // frames
static const float SLOWEST        = 0.9f;  // pixels a frame, of the largest
static const float SPEED_PER_SIZE = 0.06f; // what each smaller size is faster by
static const int SWAY_STEPS       = 24;    // from the middle to an end
static const int SWAY_PHASES      = 4 * SWAY_STEPS;
static const float SWAY_CURVE     = 2;
static const float SWAY_WIDTH     = 7; // pixels to either side

// clang-format off
static const char* const s_letters[CMenuBubbles::BUBBLES] = {
	"Q_b", "P", "O", "N", "M", "L", "K", "J", "I", "H", "G", "F", "E", "D", "C", "B", "A", "AA",
	"AAA",
};
// clang-format on

CMenuBubbles::CMenuBubbles()
{
	for (int i = 0; i < BUBBLES; i++) {
		sprites[i] = new CSprite(DEPTH + i, PICTURE_DELAY);
		for (int number = 1; number <= PICTURES; number++) {
			char name[40];
			std::snprintf(name, sizeof name, "bubble%s%02i.png", s_letters[i], number);
			sprites[i]->AddFile(name);
		}
		sprites[i]->Hide();
	}
}

CMenuBubbles::~CMenuBubbles()
{
	for (CSprite* sprite : sprites)
		delete sprite;
}

void CMenuBubbles::Step()
{
	if (Rand() % CHANCE == 0)
		SetOneOut();
	for (int i = 0; i < BUBBLES; i++)
		if (!sprites[i]->IsHidden())
			Rise(i);
}

// Drawn until one is found that waits.
void CMenuBubbles::SetOneOut()
{
	for (int tries = 0; tries < TRIES; tries++) {
		const int i = Rand() % BUBBLES;
		if (!sprites[i]->IsHidden())
			continue;
		const float rightmost = static_cast<float>(SCREEN_WIDTH - sprites[i]->Width());
		const float x         = RandomRange(0, rightmost);
		const int phase       = Rand() % SWAY_PHASES;
		sway[i]   = std::make_unique<CBobber>(x, SWAY_STEPS, SWAY_CURVE, SWAY_WIDTH, phase);
		height[i] = SCREEN_HEIGHT;
		sprites[i]->Show();
		return;
	}
}

void CMenuBubbles::Rise(int i)
{
	height[i] -= SLOWEST + static_cast<float>(BUBBLES - 1 - i) * SPEED_PER_SIZE;
	sprites[i]->SetPos(sway[i]->StepValue(), static_cast<int>(height[i]));
	if (height[i] < static_cast<float>(-sprites[i]->Height()))
		sprites[i]->Hide();
}
