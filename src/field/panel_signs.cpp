// The three signs over the field: a trophy, an extra life, a lost ball.
#include "field/panel_signs.h"

#include "field/bobber.h"
#include "field/sidebar.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <algorithm>
#include <string>

static const int DEPTH         = 24500;
static const int MIDDLE_X      = 346; // of the field
static const int TROPHY_Y      = 120;
static const int EXTRA_LIFE_Y  = 195;
static const int LOST_BALL_Y   = 300;
static const int LINE_DISTANCE = 20; // pixels from the sign's middle to each of its lines
// The pictures have soft edges of some 17 pixels, which may lie over each other.
static const int ROW_GAP        = -24; // pixels
static const int DIGIT_GAP      = -22; // pixels
static const int GLEAMS         = 4;   // times that a gleam runs over the trophy
static const int GLEAM_FRAMES   = 8;   // for each of its pictures
static const int GLEAM_PICTURES = 3;
static const float SIGN_CURVE   = 3.0f;
static const int SIGN_SWING     = 5;
static const float SIGN_RISE    = 3.8f;
static const int LOST_SWING     = 7;
static const float LOST_RISE    = 4.2f;
static const int MOST_SHOWN     = 99;

static CSprite* NewSign(const std::string& name)
{
	CSprite* sprite = new CSprite(DEPTH, SPRITE_OVERLAY);
	sprite->AddFile(name);
	sprite->CenterX(MIDDLE_X);
	sprite->Hide();
	return sprite;
}

CTrophySign::CTrophySign()
{
	sprite = new CSprite(DEPTH, 1, SPRITE_OVERLAY);
	for (int i = 0; i < GLEAMS * GLEAM_PICTURES; i++)
		sprite->AddRepeated("trophy_unlocked" + std::to_string(i % GLEAM_PICTURES) + ".png",
		                    GLEAM_FRAMES);
	sprite->SetStopAtEnd();
	sprite->CenterX(MIDDLE_X);
	sprite->Hide();
	bobber = new CBobber(TROPHY_Y - sprite->Height() / 2, SIGN_SWING, SIGN_CURVE, SIGN_RISE, 0);
}

CTrophySign::~CTrophySign()
{
	delete sprite;
	delete bobber;
}

void CTrophySign::Restart()
{
	sprite->Rewind();
	sprite->Forward();
	sprite->Show();
}

void CTrophySign::Step()
{
	if (sprite->IsHidden())
		return;
	sprite->SetPos(sprite->X(), bobber->StepValue());
	if (sprite->IsAtLastFrameEnd())
		sprite->Hide();
}

CExtraLifeSign::CExtraLifeSign()
    : sprite(NewSign("extraquorbletawarded.png")), sound(new CSound("extra_quorblet.ogg"))
{
	bobber = new CBobber(EXTRA_LIFE_Y - sprite->Height() / 2, SIGN_SWING, SIGN_CURVE, SIGN_RISE, 0);
}

CExtraLifeSign::~CExtraLifeSign()
{
	delete sprite;
	delete bobber;
	delete sound;
}

void CExtraLifeSign::Step()
{
	if (g_play.extraLifeTimer < 0) {
		sprite->Hide();
		return;
	}
	if (g_play.extraLifeTimer == FRAMES)
		sound->Play();
	g_play.extraLifeTimer--;
	sprite->SetPos(sprite->X(), bobber->StepValue());
	sprite->Show();
}

CLostBallSign::CLostBallSign()
    : upperLine(NewSign("quorbletlost_A.png")), lowerLine(NewSign("quorbletlost_B.png"))
{
	for (int digit = 0; digit < 10; digit++) {
		std::string name = std::to_string(digit) + ".png";
		big[digit]       = NewSign("quorbletlost_big_" + name);
		for (int place = 0; place < PLACES; place++)
			small[place][digit] = NewSign("quorbletlost_" + name);
	}
	bobber = new CBobber(LOST_BALL_Y, LOST_SWING, SIGN_CURVE, LOST_RISE, 0);
}

CLostBallSign::~CLostBallSign()
{
	delete upperLine;
	delete lowerLine;
	for (int digit = 0; digit < 10; digit++) {
		delete big[digit];
		for (int place = 0; place < PLACES; place++)
			delete small[place][digit];
	}
	delete bobber;
}

void CLostBallSign::HideAll()
{
	upperLine->Hide();
	lowerLine->Hide();
	for (int digit = 0; digit < 10; digit++) {
		big[digit]->Hide();
		for (int place = 0; place < PLACES; place++)
			small[place][digit]->Hide();
	}
}

void CLostBallSign::Step()
{
	HideAll();
	if (g_play.readyTimer < 0)
		return;
	g_play.readyTimer--;
	int middle = bobber->StepValue();
	upperLine->CenterY(middle - LINE_DISTANCE);
	upperLine->Show();
	ShowRow(middle + LINE_DISTANCE);
}

// The lower line and the number beside it, as one row in the middle of the field.
void CLostBallSign::ShowRow(int y)
{
	int balls = std::clamp(g_play.lives, 0, MOST_SHOWN);
	CSprite* number[PLACES];
	int places = 0;
	if (balls < 10) {
		number[places++] = big[balls];
	} else {
		number[places++] = small[0][balls / 10];
		number[places++] = small[1][balls % 10];
	}
	int width = lowerLine->Width() + ROW_GAP;
	for (int i = 0; i < places; i++)
		width += number[i]->Width() + (i > 0 ? DIGIT_GAP : 0);

	int x = MIDDLE_X - width / 2;
	lowerLine->SetPos(x, y - lowerLine->Height() / 2);
	lowerLine->Show();
	x += lowerLine->Width() + ROW_GAP;
	for (int i = 0; i < places; i++) {
		number[i]->SetPos(x, y - number[i]->Height() / 2);
		number[i]->Show();
		x += number[i]->Width() + DIGIT_GAP;
	}
}
