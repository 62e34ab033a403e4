// The small bubbles that the ball leaves behind.
#include "field/ball.h"

#include "frame/random.h"
#include "media/sprite.h"

enum TrailSize { TRAIL_S, TRAIL_R, TRAIL_Q };

static const int TRAIL_LIFE        = 20; // frames
static const int TRAIL_AT_START    = 3;  // bubbles behind the two smallest stages
static const int TRAIL_LEAST       = 5;
static const int TRAIL_PIXELS      = 5;     // of the ball's width for each further bubble
static const float TRAIL_BACKWARD  = 0.75f; // of the ball's radius
static const float TRAIL_SPEED_LOW = 0.2f;  // parts of the ball's speed
static const float TRAIL_SPEED_TOP = 0.4f;
// ages in frames after which a bubble is smaller
static const int SMALL_BALL_TO_S = 10;
static const int BIG_BALL_TO_R   = 6;
static const int BIG_BALL_TO_S   = 13;

// clang-format off
static const char* const s_trailImages[3][3] = {
	// normal          bulldozer               gravity
	{"bubbleS.tga",   "bubbleSbulldozer.tga", "bubbleSgrav.tga"},
	{"bubbleR.png",   "bubbleRbulldozer.png", "bubbleRgrav.png"},
	{"bubbleQ01.png", "bubbleQbulldozer.png", "bubbleQgrav.png"},
};
// clang-format on

void CBall::LoadTrail()
{
	for (TrailBubble& bubble : trail) {
		for (int size = 0; size < 3; size++) {
			for (int kind = 0; kind < 3; kind++) {
				CSprite* sprite = new CSprite();
				sprite->AddFile(s_trailImages[size][kind]);
				sprite->Hide();
				bubble.sprites[size][kind] = sprite;
			}
		}
		bubble.active  = false;
		bubble.current = nullptr;
	}
}

void CBall::RunTrail()
{
	int wanted = stage < 2 ? TRAIL_AT_START : currentSprite->Width() / TRAIL_PIXELS + TRAIL_LEAST;
	for (TrailBubble& bubble : trail) {
		if (!bubble.active && liveTrailBubbles < wanted)
			StartTrailBubble(bubble);
	}
	for (TrailBubble& bubble : trail) {
		if (bubble.active)
			MoveTrailBubble(bubble);
	}
}

void CBall::StartTrailBubble(TrailBubble& bubble)
{
	int width = currentSprite->Width(), height = currentSprite->Height();
	bubble.x  = x + RandomRange(-1, 1) * static_cast<float>(width / 2);
	bubble.y  = y + RandomRange(-1, 1) * static_cast<float>(height / 2);
	bubble.vx = RandomRange(TRAIL_SPEED_LOW, TRAIL_SPEED_TOP) * vx;
	bubble.vy = RandomRange(TRAIL_SPEED_LOW, TRAIL_SPEED_TOP) * vy;
	if (Speed() > 0) {
		bubble.x -= TRAIL_BACKWARD * (vx / Speed() * static_cast<float>(width) * 0.5f);
		bubble.y -= TRAIL_BACKWARD * (vy / Speed() * static_cast<float>(height) * 0.5f);
	}
	bubble.age    = RandomWhole(0, 10);
	bubble.size   = big ? TRAIL_Q : TRAIL_R;
	bubble.active = true;
	liveTrailBubbles++;
}

void CBall::MoveTrailBubble(TrailBubble& bubble)
{
	bubble.age++;
	if (bubble.current)
		bubble.current->Hide();
	if (bubble.age > TRAIL_LIFE) {
		bubble.active  = false;
		bubble.current = nullptr;
		liveTrailBubbles--;
		return;
	}
	if (bubble.age > (big ? BIG_BALL_TO_S : SMALL_BALL_TO_S))
		bubble.size = TRAIL_S;
	else if (big && bubble.age > BIG_BALL_TO_R)
		bubble.size = TRAIL_R;
	ShowTrailBubble(bubble);
}

void CBall::ShowTrailBubble(TrailBubble& bubble)
{
	bubble.x += bubble.vx;
	bubble.y += bubble.vy;
	bubble.current = bubble.sprites[bubble.size][skin];
	bubble.current->SetPos(static_cast<int>(bubble.x) - bubble.current->Width() / 2,
	                       static_cast<int>(bubble.y) - bubble.current->Height() / 2,
	                       static_cast<int>(bubble.y));
	bubble.current->Show();
}
