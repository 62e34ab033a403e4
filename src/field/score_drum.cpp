// A counter of the side panel: rows of digits that roll to their value.
#include "field/score_drum.h"

#include "media/sprite.h"

#include <algorithm>

static const int DEPTH        = 18100;
static const int PITCH        = 13;  // pixels from digit to digit
static const int STRIP_PERIOD = 200; // ten digits

CScoreDrum::CScoreDrum(const char* strip, int newDigits, int x, int y)
    : digits(std::min(newDigits, MOST_DIGITS))
{
	for (int i = 0; i < digits; i++) {
		sprites[i] = new CSprite(x + i * PITCH, y, DEPTH, SPRITE_OVERLAY);
		sprites[i]->AddFile(strip);
		sprites[i]->SetHeight(TWENTIETHS);
	}
	SetShown(0);
}

CScoreDrum::~CScoreDrum()
{
	for (int i = 0; i < digits; i++)
		delete sprites[i];
}

// The strip begins with a blank row, which stands for a leading zero: there the remainder is
// negative.
int CScoreDrum::StripRow(int shown, int place)
{
	int rolled = shown;
	for (int i = 0; i < place; i++)
		rolled /= 10;
	if (place > 0)
		rolled = rolled / TWENTIETHS * TWENTIETHS;
	return TWENTIETHS + (rolled - TWENTIETHS) % STRIP_PERIOD;
}

void CScoreDrum::SetShown(int newShown)
{
	shown = newShown;
	for (int i = 0; i < digits; i++)
		sprites[i]->SetSourceY(StripRow(shown, digits - 1 - i));
}

void CScoreDrum::Run(int value)
{
	int target = value * TWENTIETHS;
	if (target == shown)
		return;
	speed = (target - shown) / TWENTIETHS;
	if (speed == 0)
		speed = target > shown ? 1 : -1;
	SetShown(shown + speed);
}
