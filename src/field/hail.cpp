// Driving hail.
#include "field/hail.h"

#include "frame/random.h"
#include "media/sprite.h"

static const int HAIL_DEPTH     = 9500;
static const float GRAVITY      = 1.0f / 3; // pixels a frame, a frame
static const float MOST_HEIGHT  = 900;      // pixels, at the start
static const float FULL_SPEED   = 15;       // pixels a frame, of a stone that has fallen all of it
static const float BOUNCE_SPEED = 12;       // a slower stone does not bounce
static const float BOUNCE_LOSS  = -12;      // divides the speed

CHail::~CHail()
{
	for (Stone& stone : stones)
		delete stone.sprite;
}

void CHail::Make()
{
	made       = true;
	bool right = Coin();
	wind       = right ? RandomRange(2, 4) : RandomRange(-4, -2);
	for (Stone& stone : stones) {
		stone.sprite = new CSprite(HAIL_DEPTH);
		stone.sprite->AddFile("background_snow.png");
		stone.x      = RandomRange(-200, 880);
		stone.dx     = wind;
		stone.y      = RandomRange(160, 600);
		stone.height = RandomRange(0, MOST_HEIGHT);
		stone.speed  = (MOST_HEIGHT - stone.height) / MOST_HEIGHT * FULL_SPEED;
	}
}

void CHail::Step()
{
	if (!made)
		return;
	for (Stone& stone : stones) {
		stone.y += stone.dy;
		stone.x += stone.dx;
		stone.speed += GRAVITY;
		stone.height -= stone.speed;
		stone.sprite->SetPos(static_cast<int>(stone.x), static_cast<int>(stone.y - stone.height),
		                     static_cast<int>(stone.y));
		if (stone.height <= 0)
			Land(stone);
	}
}

void CHail::Land(Stone& stone)
{
	if (stone.speed > BOUNCE_SPEED) {
		stone.speed  = stone.speed / BOUNCE_LOSS * RandomRange(0.5f, 1.5f);
		stone.dx     = stone.dx * 0.5f * RandomRange(0.5f, 1.5f);
		stone.height = 0.1f;
		return;
	}
	stone.dx     = wind;
	stone.x      = RandomRange(-200, 880);
	stone.y      = RandomRange(160, 680);
	stone.height = RandomRange(680, 780);
	stone.speed  = RandomRange(2, 5);
}

void CHail::Hide()
{
	if (!made)
		return;
	for (Stone& stone : stones)
		stone.sprite->Hide();
}
