// Fireflies of a clear night.
#include "field/fireflies.h"

#include "frame/random.h"
#include "media/sprite.h"

#include <algorithm>

static const int FLY_DEPTH = 9500;
static const int DARKEST   = 8; // number of the picture that shows next to nothing
static const int LIT_FIRST = 5; // glow from the start
static const float LEFT = 0, RIGHT = 670, TOP = 150, BOTTOM = 500; // pixels
static const float MOST_SPEED = 1, MOST_PULL = 0.05f;

CFireflies::~CFireflies()
{
	for (Fly& fly : flies)
		delete fly.sprite;
}

static CSprite* GlowSprite()
{
	CSprite* sprite = new CSprite(FLY_DEPTH, 1);
	sprite->AddSequence("firefly", DARKEST, 0, ".png");
	sprite->AddRepeated("firefly0.png", RandomWhole(10, 40));
	sprite->AddSequence("firefly", 1, DARKEST, ".png");
	sprite->SetStopAtEnd();
	sprite->Hide();
	return sprite;
}

static void DrawMotion(CFireflies::Fly& fly)
{
	fly.vx = RandomRange(-MOST_SPEED, MOST_SPEED);
	fly.vy = RandomRange(-MOST_SPEED, MOST_SPEED);
	fly.ax = RandomRange(-MOST_PULL, MOST_PULL);
	fly.ay = RandomRange(-MOST_PULL, MOST_PULL);
}

static void Glow(CFireflies::Fly& fly)
{
	fly.sprite->Rewind();
	fly.sprite->Forward();
	fly.sprite->Show();
	fly.wait = -1;
}

void CFireflies::Make()
{
	made = true;
	for (int i = 0; i < FLIES; i++) {
		Fly& fly   = flies[i];
		fly.sprite = GlowSprite();
		fly.x      = RandomRange(LEFT, RIGHT);
		fly.y      = RandomRange(TOP, BOTTOM);
		DrawMotion(fly);
		fly.wait = RandomWhole(0, 60);
		if (i < LIT_FIRST)
			Glow(fly);
	}
}

// Held at a limit and turned round; true when it was past it.
static bool Reflect(float& place, float& velocity, float low, float high)
{
	if (place >= low && place <= high)
		return false;
	place    = std::clamp(place, low, high);
	velocity = -velocity;
	return true;
}

static void StepFly(CFireflies::Fly& fly)
{
	if (fly.wait > 0) {
		fly.wait--;
	} else if (fly.wait == 0) {
		DrawMotion(fly);
		Glow(fly);
	} else {
		fly.vx = std::clamp(fly.vx + fly.ax, -MOST_SPEED, MOST_SPEED);
		fly.vy = std::clamp(fly.vy + fly.ay, -MOST_SPEED, MOST_SPEED);
		if (fly.sprite->IsAtLastFrameEnd()) {
			fly.sprite->Hide();
			fly.wait = RandomWhole(30, 90);
		}
	}
	fly.x += fly.vx;
	fly.y += fly.vy;
	if (!Reflect(fly.x, fly.vx, LEFT, RIGHT))
		Reflect(fly.y, fly.vy, TOP, BOTTOM);
	int y = static_cast<int>(fly.y);
	fly.sprite->SetPos(static_cast<int>(fly.x), y, y);
}

void CFireflies::Step()
{
	if (!made)
		return;
	for (Fly& fly : flies)
		StepFly(fly);
}

void CFireflies::Hide()
{
	if (!made)
		return;
	for (Fly& fly : flies)
		fly.sprite->Hide();
}
