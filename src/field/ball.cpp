// The ball: a soap bubble with a load.
#include "field/ball.h"

#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cmath>

static const float START_X         = -200; // pixels, off the field: the paddle takes it at once
static const float START_Y         = 504;
static const float START_VX        = 0.1f; // pixels per frame, at a speed factor of 1
static const float START_VY        = -7;
static const int APPEAR_FRAMES     = 3;
static const int REBOUND_FRAMES    = 3; // between two rebound sounds
static const int WOBBLE_DELAY      = 2; // frames a picture
static const float SPEED_UP        = 1.3f;
static const float SLOW_DOWN       = 0.7692308f; // takes one SPEED_UP back
static const float FLATTEST_VY     = 1.2f;       // pixels per frame
static const float STEEPEN         = 0.05f;      // pixels per frame, each frame
static const float EASING_GAIN     = 0.5f;       // pixels per frame, each frame
static const float EASING_DONE     = 0.0001f;
static const float FAN_LIMIT       = 1.25f; // times the remembered speed
static const float PULL_REACH      = 100;   // pixels
static const float PULL_STRENGTH   = 10;
static const float PULL_PER_STAGE  = 2.5f;
static const int FIRST_LARGE_STAGE = 12;

CBall* g_ball = nullptr;

CBall::CBall()
{
	g_ball       = this;
	x            = START_X;
	y            = START_Y;
	float factor = LevelGameData()->BallSpeedFactor();
	vx           = START_VX * factor;
	vy           = START_VY * factor;

	for (int i = 0; i < 4; i++)
		reboundSounds[i] = new CSound("ball_rebound" + std::to_string(i + 1) + ".ogg");
	growSound = new CSound("ball_grow.ogg");
	skinSound = new CSound("change_ball_type.ogg");
	LoadSprites();
	LoadTrail();
	RefreshSprites();
	appearDelay = APPEAR_FRAMES;
}

CBall::~CBall()
{
	for (int i = 0; i < STAGES; i++) {
		for (CSprite* sprite : stageSprites[i])
			delete sprite;
		delete shadowSprites[i];
	}
	for (TrailBubble& bubble : trail) {
		for (auto& ofSize : bubble.sprites) {
			for (CSprite* sprite : ofSize)
				delete sprite;
		}
	}
	for (BallContent* content : contents) {
		delete content->sprite;
		delete content;
	}
	for (CSound* sound : reboundSounds)
		delete sound;
	delete growSound;
	delete skinSound;
	if (g_ball == this)
		g_ball = nullptr;
}

// Letters run backward with the size: Q for stage 0, A for 16, then AA and AAA.
static std::string StageLetters(int stage)
{
	const int lastSingle = 'Q' - 'A';
	if (stage > lastSingle)
		return std::string(stage - lastSingle + 1, 'A');
	return std::string(1, static_cast<char>('Q' - stage));
}

static CSprite* HiddenSprite(const std::string& name)
{
	CSprite* sprite = new CSprite();
	sprite->AddFile(name);
	sprite->Hide();
	return sprite;
}

// The shadow comes first: among sprites of one depth the earlier is drawn below.
void CBall::LoadSprites()
{
	for (int i = 0; i < STAGES; i++) {
		std::string letters = StageLetters(i);
		shadowSprites[i]    = HiddenSprite("bubble" + letters + "shadow.tga");

		CSprite* normal    = new CSprite(static_cast<int>(y), WOBBLE_DELAY);
		std::string wobble = "bubble" + letters + (i == 0 ? "_b" : "");
		for (int number = 1; number <= 12; number++)
			normal->AddFile(wobble + (number < 10 ? "0" : "") + std::to_string(number) + ".png");
		normal->Hide();
		stageSprites[i][SKIN_NORMAL]    = normal;
		stageSprites[i][SKIN_BULLDOZER] = HiddenSprite("bubble" + letters + "bulldozer.png");
		stageSprites[i][SKIN_GRAVITY]   = HiddenSprite("bubble" + letters + "grav.png");
	}
}

// Runs one Update, so that the new sprite is in its place at once.
void CBall::RefreshSprites()
{
	for (int i = 0; i < STAGES; i++) {
		for (CSprite* sprite : stageSprites[i])
			sprite->Hide();
		shadowSprites[i]->Hide();
	}
	currentSprite = collisionSprite = stageSprites[stage][skin];
	currentSprite->Show();
	shadowSprites[stage]->Show();
	Update();
}

void CBall::Update()
{
	KeepOffTheFlat();
	PlaceSprites();
	MoveContents();
	RunTrail();
	if (reboundCooldown > 0)
		reboundCooldown--;
}

// A ball cannot fly flat for long; its speed stays.
void CBall::KeepOffTheFlat()
{
	if (std::fabs(vy) >= FLATTEST_VY)
		return;
	float speed = Speed();
	vy += vy >= 0 ? STEEPEN : -STEEPEN;
	ScaleSpeed(speed / Speed());
}

void CBall::PlaceSprites()
{
	CSprite* shadow = shadowSprites[stage];
	int atX = static_cast<int>(x), atY = static_cast<int>(y);
	currentSprite->SetPos(atX - currentSprite->Width() / 2, atY - currentSprite->Height() / 2, atY);
	int width = shadow->Width(), height = shadow->Height();
	shadow->SetPos(atX - width / 2 + width / 5, atY + height / 2 - height / 6, atY);

	if (appearDelay <= 0) {
		currentSprite->Show();
		shadow->Show();
	} else {
		appearDelay--;
		currentSprite->Hide();
		shadow->Hide();
	}
}

float CBall::Speed() const
{
	return std::sqrt(vx * vx + vy * vy);
}

void CBall::ScaleSpeed(float factor)
{
	vx *= factor;
	vy *= factor;
}

void CBall::SpeedUp()
{
	ScaleSpeed(SPEED_UP);
}

void CBall::SlowDown()
{
	ScaleSpeed(SLOW_DOWN);
}

void CBall::ResetSpeed()
{
	float factor = LevelGameData()->BallSpeedFactor();
	vx           = START_VX * factor;
	vy           = START_VY * factor;
}

// The pictures have a rim; a grown ball's glass is thicker.
float CBall::Radius() const
{
	float half = static_cast<float>(currentSprite->Width()) / 2;
	if (big)
		return half - 5;
	return stage == 0 ? half + 1 : half - 1;
}

void CBall::SetHeld(bool on)
{
	if (held && !on)
		reboundSounds[Rand() % 4]->Play();
	if (held || on)
		reboundCooldown = REBOUND_FRAMES;
	held = on;
}

void CBall::PlayRebound()
{
	if (reboundCooldown > 0)
		return;
	reboundSounds[Rand() % 4]->Play();
	reboundCooldown = REBOUND_FRAMES;
}

void CBall::PlayGrowSound()
{
	if (!IsSilent())
		growSound->Play();
}

void CBall::SetStage(int n)
{
	if (n > stage && stage < STAGES - 1)
		PlayGrowSound();
	stage = std::clamp(n, 0, STAGES - 1);
	RefreshSprites();
}

void CBall::Grow()
{
	stage = std::min(stage + 1, STAGES - 1);
	PlayGrowSound();
	RefreshSprites();
	if (stage >= FIRST_LARGE_STAGE)
		big = true;
}

void CBall::Shrink()
{
	stage = std::max(stage - 1, 0);
	RefreshSprites();
	if (stage < FIRST_LARGE_STAGE)
		big = false;
}

void CBall::ChangeSkin(BallSkin newSkin)
{
	if (skin != newSkin && !IsSilent())
		skinSound->Play();
	skin = newSkin;
	RefreshSprites();
}

void CBall::SetSkinBulldozer()
{
	ChangeSkin(SKIN_BULLDOZER);
}

void CBall::SetSkinGravity()
{
	ChangeSkin(SKIN_GRAVITY);
}

void CBall::SetSkinNormal()
{
	ChangeSkin(SKIN_NORMAL);
}

void CBall::StartEasing(float factor)
{
	if (easing)
		return;
	rememberedSpeed = Speed();
	ScaleSpeed(factor);
	easing = true;
}

void CBall::EaseBack()
{
	if (!easing)
		return;
	if (Speed() < rememberedSpeed) {
		vx += EASING_GAIN * vx / rememberedSpeed;
		vy += EASING_GAIN * vy / rememberedSpeed;
	}
	if (Speed() > rememberedSpeed)
		ScaleSpeed(rememberedSpeed / Speed());
	if (std::fabs(Speed() - rememberedSpeed) < EASING_DONE)
		easing = false;
}

void CBall::BlowFrom(float fromX, float fromY)
{
	if (held) {
		EaseBack();
		return;
	}
	if (!easing) {
		rememberedSpeed = Speed();
		easing          = true;
	}
	float dx = x - fromX, dy = y - fromY;
	float distance = std::sqrt(dx * dx + dy * dy);
	if (distance > 0) {
		vx += dx / distance;
		vy += dy / distance;
	}
	if (Speed() > FAN_LIMIT * rememberedSpeed)
		ScaleSpeed(rememberedSpeed / Speed());
}

void CBall::PullToward(float& thingX, float& thingY, int weight) const
{
	float dx = thingX - x, dy = thingY - y;
	float squared = dx * dx + dy * dy;
	if (std::sqrt(squared) > PULL_REACH)
		return;
	float strength = PULL_STRENGTH / (squared + 1) / static_cast<float>(weight) *
	                 (static_cast<float>(stage + 1) * PULL_PER_STAGE);
	if (strength > 1)
		return; // it would fly past the centre
	thingX -= dx * strength;
	thingY -= dy * strength;
}
