// The side panel's bubbles in their sockets: the balls left.
#include "field/lives_row.h"

#include "media/sprite.h"

static const int DEPTH    = 18300;
static const int A_ROW    = 5;
static const int MIDDLE_X = 709, MIDDLE_Y = 195; // of the first socket, pixels
static const int PITCH_X = 18, PITCH_Y = 16;
static const int DELAY = 2; // frames of play for each picture

CLivesRow::CLivesRow()
{
	for (int i = 0; i < BUBBLES; i++) {
		bool small       = i == BUBBLES - 1;
		const char* stem = small ? "sidebarbubblesmall" : "sidebarbubble";
		bubbles[i]       = new CSprite(DEPTH, DELAY, SPRITE_OVERLAY);
		bubbles[i]->AddSequence(stem, 3, 4, ".png");
		bubbles[i]->AddSequence(stem, 3, 0, ".png");
		bubbles[i]->SetStopAtEnd();
		bubbles[i]->CenterX(MIDDLE_X + i % A_ROW * PITCH_X);
		bubbles[i]->CenterY(MIDDLE_Y + i / A_ROW * PITCH_Y);
		bubbles[i]->Hide();
	}
}

CLivesRow::~CLivesRow()
{
	for (CSprite* bubble : bubbles)
		delete bubble;
}

void CLivesRow::Step(int lives)
{
	for (int i = 0; i < BUBBLES; i++) {
		bool wanted = lives > i;
		if (wanted && !there[i]) {
			bubbles[i]->GoToLast();
			bubbles[i]->Backward();
			bubbles[i]->Show();
		} else if (!wanted && there[i]) {
			bubbles[i]->Forward();
		} else if (!wanted && !bubbles[i]->IsHidden() && bubbles[i]->IsAtLastFrameEnd()) {
			bubbles[i]->Hide();
		}
		there[i] = wanted;
	}
}
