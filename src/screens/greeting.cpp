// The greeting of a level: nine letters that wave, then fly off, one after the other.
#include "screens/greeting.h"

#include "field/bobber.h"
#include "media/sprite.h"

static const int LETTER_DEPTH = 25000;
static const int FIELD_MIDDLE = 346; // pixels
static const int ROW_Y        = 300;
static const int OVERLAP      = 8;  // pixels that a letter reaches into the next
static const int WORD_GAP     = 22; // pixels added after the first word
static const int FIRST_WORD   = 3;  // letters
static const int ROW_SHRINK   = 42; // the row is this much narrower than its letters
static const int LETTER_DELAY = 2;  // frames from one letter's leaving to the next's
static const int RISE_A_FRAME = 4;  // pixels
static const int BOB_PERIOD   = 7;
static const float BOB_POWER  = 1.5f;
static const float BOB_HEIGHT = 8;
static const int BOB_PHASE    = 3; // steps from one letter to the next

static const char* s_letterFiles[GREETING_LETTERS] = {
    "fontBbigG.png",   "fontBsmalle.png", "fontBsmallt.png",
    "fontBbigR.png",   "fontBsmalle.png", "fontBsmalla.png",
    "fontBsmalld.png", "fontBsmally.png", "fontBexclamation.png"};

CGreeting::CGreeting()
{
	for (int i = 0; i < GREETING_LETTERS; i++) {
		letters[i] = new CSprite(LETTER_DEPTH + i, SPRITE_OVERLAY);
		letters[i]->AddFile(s_letterFiles[i]);
		bobbers[i] = nullptr;
	}
	LayOut();
	Begin();
}

CGreeting::~CGreeting()
{
	for (int i = 0; i < GREETING_LETTERS; i++) {
		delete letters[i];
		delete bobbers[i];
	}
}

void CGreeting::LayOut()
{
	int total = -ROW_SHRINK;
	for (CSprite* letter : letters)
		total += letter->Width();

	baseY = ROW_Y - letters[0]->Width() / 2;
	int x = FIELD_MIDDLE - total / 2;
	for (int i = 0; i < GREETING_LETTERS; i++) {
		letters[i]->SetPos(x, baseY);
		x += letters[i]->Width() + (i == FIRST_WORD - 1 ? WORD_GAP : -OVERLAP);
	}
}

void CGreeting::Begin()
{
	running = true;
	count   = 0;
	for (int i = 0; i < GREETING_LETTERS; i++) {
		delete bobbers[i];
		bobbers[i] = new CBobber(baseY, BOB_PERIOD, BOB_POWER, BOB_HEIGHT, BOB_PHASE * i);
		letters[i]->SetPos(letters[i]->X(), baseY);
		letters[i]->Show();
	}
}

void CGreeting::Step()
{
	count++;
	for (int i = 0; i < GREETING_LETTERS; i++)
		StepLetter(i);

	const CSprite* last = letters[GREETING_LETTERS - 1];
	if (count < LEAVE_AT || last->Y() + last->Height() >= 0)
		return;
	for (CSprite* letter : letters)
		letter->Hide();
	running = false;
}

void CGreeting::StepLetter(int i)
{
	int framesGone = count - LETTER_DELAY * i - (LEAVE_AT - 1);
	int wave       = bobbers[i]->StepValue();
	int y          = wave;
	if (framesGone >= 1)
		y = letters[i]->Y() - RISE_A_FRAME * framesGone;
	letters[i]->SetPos(letters[i]->X(), y);
}
