// A prize that comes down under balloons and is caught with the paddle.
#include "field/powerup.h"

#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/barrier.h"
#include "field/element_point.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cmath>
#include <string>

static const int HANG_X         = 20; // pixels from the place given to the balloons' corner
static const int HANG_Y         = 35;
static const float START_VX     = -0.93f; // pixels per frame
static const float SWAY_STEP    = 0.04f;
static const float FALL_SPEED   = 2;
static const float GRAVITY      = 0.5f;
static const int LOST_Y         = 600; // pixels
static const float BLOW_PUSH    = 2.5f;
static const int INFLATE_DEPTH  = 70; // nearer than the balloons
static const int ROPE           = 2;  // pixels of the carried thing inside the balloons' picture
static const int ICON_X         = 6;  // pixels on the disc
static const int ICON_Y         = 5;
static const int SPARKLE_X_BAG  = 15;
static const int SPARKLE_X_DISC = 16;
static const int SPARKLE_Y      = 14;
static const int CATCH_TOP      = 525; // pixels; where the lower edge is caught
static const int CATCH_BOTTOM   = 594;
static const int CATCH_WIDTH    = 86; // pixels from the paddle's anchor
static const int BARRIER_X      = 41; // pixels from the paddle's anchor
static const int RAIN_OBJECTS   = 30;
static const int BALLOON_DELAY  = 2; // frames a picture
static const int ICON_DELAY     = 2;

struct PowerupRow {
	int kind;
	const char* icon;    // stem
	int lastFrame;       // -1 for one picture without a number
	const char* sparkle; // stem
};

// clang-format off
static const PowerupRow s_powerups[] = {
	// kind              icon                       last  sparkle
	{POWERUP_MONEY,     nullptr,                      0, "moneybagcollected"},
	{POWERUP_DOUBLE,    "powerup2x",                 -1, "powerupcollectedpurple"},
	{POWERUP_TRIPLE,    "powerup3x",                 -1, "powerupcollectedpurple"},
	{POWERUP_QUADRUPLE, "powerup4x",                 -1, "powerupcollectedpurple"},
	{POWERUP_BARRIER,   "powerupbarrier",             9, "powerupcollectedblue"},
	{POWERUP_BULLDOZER, "powerupbulldozer",          -1, "powerupcollectedred"},
	{POWERUP_DESTRUCTO, "powerupdestructoray",       -1, "powerupcollectedblue"},
	{POWERUP_FAST,      "powerupfastbubble",         -1, "powerupcollectedred"},
	{POWERUP_GRAVITY,   "powerupgravitybubble",      11, "powerupcollectedred"},
	{POWERUP_GROW,      "powerupgrowbubble",         10, "powerupcollectedblue"},
	{POWERUP_WIDE,      "powerupgrowpaddle",          9, "powerupcollectedorange"},
	{POWERUP_LIFE,      "poweruponeup",              -1, "powerupcollectedyellow"},
	{POWERUP_RAIN,      "poweruprainobjects",        -1, "powerupcollectedblue"},
	{POWERUP_SHRINK,    "powerupshrinkpaddle",        9, "powerupcollectedorange"},
	{POWERUP_SLOW,      "powerupslowbubble",         -1, "powerupcollectedred"},
	{POWERUP_STICKY,    "powerupstickypaddle",       -1, "powerupcollectedorange"},
	{POWERUP_FANS,      "powerupfan",                 6, "powerupcollectedblue"},
};
// clang-format on

std::vector<CPowerup*> CPowerup::PowerupList;

CPowerup::CPowerup(int newX, int newY, int newKind, bool, int newZ)
    : kind(newKind == POWERUP_RANDOM ? LevelGameData()->PickPowerup() : newKind)
{
	PowerupList.push_back(this);
	x  = static_cast<float>(newX - HANG_X);
	y  = static_cast<float>(newY - HANG_Y);
	z  = static_cast<float>(newZ);
	vx = START_VX;
	LoadSprites();
	catchSound = new CSound(kind == POWERUP_MONEY ? "collect_moneybag.ogg" : "collect_powerup.ogg");
	balloonSound = new CSound("ballons.ogg");
	// The prizes that a level is built with come up in silence.
	if (g_game && g_game->elapsed > FRAMES_A_SECOND)
		balloonSound->Play();
	Place();
}

CPowerup::~CPowerup()
{
	PowerupList.erase(std::find(PowerupList.begin(), PowerupList.end(), this));
	for (CSprite* sprite : {inflate, balloons, burst, bag, disc, icon, sparkle})
		delete sprite;
	delete catchSound;
	delete balloonSound;
}

static CSprite* MakeBag()
{
	CSprite* bag = new CSprite(0, 1);
	bag->AddSequence("moneybag", 1, 15, ".png");
	bag->AddSequence("moneybag", 15, 1, ".png");
	bag->AddFile("moneybag1.png");
	return bag;
}

static CSprite* MakeIcon(const PowerupRow& row)
{
	CSprite* icon    = new CSprite(0, ICON_DELAY);
	std::string stem = row.icon;
	if (row.lastFrame < 0)
		icon->AddFile(stem + ".png");
	else
		icon->AddSequence(stem, 0, row.lastFrame, ".png");
	if (row.kind == POWERUP_BARRIER)
		icon->AddRepeated(stem + "0.png", 5);
	if (row.kind == POWERUP_GROW) {
		icon->AddRepeated(stem + "11.png", 6);
		icon->AddFile(stem + "12.png");
	}
	return icon;
}

static CSprite* MakeOnce(const char* stem, int first, int last, int delay)
{
	CSprite* sprite = new CSprite(0, delay);
	sprite->AddSequence(stem, first, last, ".png");
	sprite->SetStopAtEnd();
	return sprite;
}

void CPowerup::LoadSprites()
{
	const PowerupRow* row = std::begin(s_powerups);
	while (row->kind != kind && row + 1 != std::end(s_powerups))
		row++;

	inflate  = MakeOnce("balloons", 40, 57, 1);
	balloons = new CSprite(0, BALLOON_DELAY);
	balloons->AddSequence("balloonsB", 17, 39, ".png");
	balloons->Hide();
	burst = MakeOnce("balloons_shrink", 0, 2, BALLOON_DELAY);
	burst->Hide();
	sparkle = MakeOnce(row->sparkle, 0, 6, 1);
	sparkle->Hide();

	bag = disc = icon = nullptr;
	if (!row->icon) {
		carried = bag = MakeBag();
		return;
	}
	carried = disc = new CSprite(0);
	disc->AddFile("powerupdisc.png");
	icon = MakeIcon(*row);
}

void CPowerup::Update()
{
	if (gone)
		return;
	if (static_cast<int>(y) > LOST_Y) {
		LeaveField();
		return;
	}
	if (z == 0 && vz == 0) {
		sway += vx > 0 ? -SWAY_STEP : SWAY_STEP;
		vx += sway;
		x += vx;
		y += FALL_SPEED;
	} else if (z + vz <= 0) {
		z = vz = 0;
	} else {
		z += vz;
		vz -= GRAVITY;
	}
	Place();
}

void CPowerup::LeaveField()
{
	gone = true;
	for (CSprite* sprite : {inflate, balloons, burst, carried, icon, sparkle}) {
		if (sprite)
			sprite->Hide();
	}
	if (kind == POWERUP_MONEY && !caught && g_levelGameData)
		g_levelGameData->NoteMissedBag();
}

void CPowerup::Place()
{
	if (inflate->IsStopped() && !inflate->IsHidden()) {
		inflate->Hide();
		balloons->Show();
	}
	int top = static_cast<int>(y - z);
	inflate->SetPos(static_cast<int>(x), top, top + INFLATE_DEPTH);
	x = std::clamp(x, FIELD_WALL_LEFT, FIELD_WALL_RIGHT - static_cast<float>(balloons->Width()));
	PlaceCarried();
	PlaceEffects();
	if (!caught && IsOverPaddle())
		Catch();
}

void CPowerup::PlaceCarried()
{
	int left = static_cast<int>(x), top = static_cast<int>(y - z);
	balloons->SetPos(left, top, top);
	carried->SetPos(left + balloons->Width() / 2 - carried->Width() / 2,
	                top + balloons->Height() - ROPE, top + 1);
	if (icon)
		icon->SetPos(carried->X() + ICON_X, carried->Y() + ICON_Y, top + 2);
}

void CPowerup::PlaceEffects()
{
	int depth = balloons->Depth();
	burst->SetPos(balloons->X(), balloons->Y(), depth);
	sparkle->SetPos(carried->X() - (disc ? SPARKLE_X_DISC : SPARKLE_X_BAG),
	                carried->Y() - SPARKLE_Y, depth + 3);
	if (sparkle->IsStopped())
		sparkle->Hide();
	if (burst->IsStopped())
		burst->Hide();
}

bool CPowerup::IsOverPaddle() const
{
	if (!g_paddle)
		return false;
	int bottom = carried->Y() + carried->Height();
	return bottom >= CATCH_TOP && bottom <= CATCH_BOTTOM &&
	       carried->X() < g_paddle->GetX() + CATCH_WIDTH &&
	       carried->X() + carried->Width() > g_paddle->GetX();
}

void CPowerup::Catch()
{
	caught = true;
	catchSound->Play();
	for (CSprite* sprite : {inflate, balloons, carried, icon}) {
		if (sprite)
			sprite->Hide();
	}
	sparkle->Show();
	burst->Show();
	ApplyEffect();
	if (g_sidebar)
		g_sidebar->OnPowerupCaught(kind);
}

// Money, lives, the score's multipliers and the fan's supply are the side panel's.
void CPowerup::ApplyEffect()
{
	if (g_ball)
		ApplyToBall();
	if (g_paddle)
		ApplyToPaddle();
	if (kind == POWERUP_BARRIER && g_barrier && g_paddle)
		g_barrier->Raise(g_paddle->GetX() + BARRIER_X);
	if (kind == POWERUP_RAIN)
		RainObjects();
}

// A second fast or slow one while the first runs only starts its clock anew.
void CPowerup::ApplyToBall()
{
	switch (kind) {
	case POWERUP_BULLDOZER:
		g_ball->SetSkinBulldozer();
		break;
	case POWERUP_GRAVITY:
		g_ball->SetSkinGravity();
		break;
	case POWERUP_FAST:
		if (!g_sidebar || !g_sidebar->IsFastRunning())
			g_ball->SpeedUp();
		break;
	case POWERUP_SLOW:
		if (!g_sidebar || !g_sidebar->IsSlowRunning())
			g_ball->SlowDown();
		break;
	case POWERUP_GROW:
		g_ball->Grow();
		g_ball->Grow();
		break;
	}
}

void CPowerup::ApplyToPaddle()
{
	switch (kind) {
	case POWERUP_DESTRUCTO:
		g_paddle->LoadDestructo();
		break;
	case POWERUP_WIDE:
		g_paddle->BecomeWide();
		break;
	case POWERUP_SHRINK:
		g_paddle->BecomeFlat();
		break;
	case POWERUP_STICKY:
		g_paddle->BecomeSticky();
		break;
	}
}

void CPowerup::RainObjects()
{
	static const int fruit[3] = {POINT_APPLE, POINT_ACORN, POINT_PINECONE};
	float wind                = RandomRange(-6, 6);
	for (int i = 0; i < RAIN_OBJECTS; i++) {
		int pointKind = fruit[Rand() % 3];
		float atX     = RandomRange(-200, 893);
		float atY     = RandomRange(200, 500);
		float atZ     = RandomRange(500, 700);
		float startVz = RandomRange(-15, -7);
		new CElementPoint(atX, atY, atZ, pointKind, wind, 0, startVz);
	}
}

void CPowerup::Blow(float fromX, float fromY)
{
	float dx       = x + static_cast<float>(balloons->Width()) / 2 - fromX;
	float dy       = y - z + static_cast<float>(balloons->Height()) / 2 - fromY;
	float distance = std::sqrt(dx * dx + dy * dy);
	if (distance == 0)
		return;
	x += BLOW_PUSH * dx / distance;
	y += BLOW_PUSH * dy / distance;
}

void CPowerup::BlowAll(float fromX, float fromY)
{
	for (CPowerup* powerup : PowerupList) {
		if (!powerup->gone)
			powerup->Blow(fromX, fromY);
	}
}
