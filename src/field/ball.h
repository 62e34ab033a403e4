// The ball: a soap bubble with a load.
#pragma once

#include "field/element.h"

#include <string>

class CSound;

enum BallSkin { SKIN_NORMAL, SKIN_BULLDOZER, SKIN_GRAVITY };

// What is shown inside the bubble.
struct BallContent {
	float x, y; // offset from the ball's centre
	float radius;
	float vx, vy;
	bool sliding; // along the inner wall, down to the bottom
	float angle;
	CSprite* sprite; // owned by the ball
};

// A small bubble behind the ball. Sprites by size (S, R, Q) and skin.
struct TrailBubble {
	float x, y, vx, vy;
	int age; // frames
	bool active;
	int size;
	CSprite* sprites[3][3]; // size, skin; owned by the ball
	CSprite* current;
};

// Holds the ball's state, draws it and answers the elements' questions; BallPhysics moves it and
// the paddle owns its place while it is held. One a level, made by the level runner. x and y are
// its centre.
class CBall : public CElementMove
{
public:
	static constexpr int STAGES              = 19;
	static constexpr int TRAIL_BUBBLES       = 20;
	static constexpr int MOST_SMALL_CONTENTS = 60; // fruit and eggs beyond are not shown

	CBall();
	~CBall() override;

	void Place() override {}
	void Update() override;
	const char* ClassName() const override { return "CBall"; }

	float Speed() const; // pixels per frame
	void ScaleSpeed(float factor);
	void SpeedUp();
	void SlowDown();
	void ResetSpeed();
	float Radius() const; // pixels
	void SetHeld(bool on);
	bool IsHeld() const { return held; }
	bool IsBulldozer() const { return skin == SKIN_BULLDOZER; }
	bool IsGravity() const { return skin == SKIN_GRAVITY; }
	bool IsSmall() const { return stage < 6; }
	bool IsMedium() const { return stage >= 6 && stage <= 11; }
	bool IsLarge() const { return stage > 11; }
	int GetStage() const { return stage; }
	void SetStage(int n); // held to 0..18
	void Grow();
	void Shrink();
	void SetSkinBulldozer();
	void SetSkinGravity();
	void SetSkinNormal();
	void StartEasing(float factor);          // slows down by factor, to return by EaseBack
	void EaseBack();                         // one frame of it
	void BlowFrom(float fromX, float fromY); // one frame of the fan's push
	void PlayRebound();                      // at most every third frame
	// Takes a thing of the shared table of kinds in; kinds that never reach the ball do nothing.
	void AddContent(int kind);
	// Moves a place within 100 pixels toward the ball; a heavier thing moves less. weight above 0.
	void PullToward(float& thingX, float& thingY, int weight) const;
	int EggCount() const { return eggs; }
	int AppleCount() const { return apples; }
	int PineconeCount() const { return pinecones; }
	int AcornCount() const { return acorns; }
	int CoconutCount() const { return coconuts; }

	int load = 0;                       // sum of the weights put in
	std::vector<BallContent*> contents; // owned
	bool easing           = false;      // returning to the remembered speed
	float rememberedSpeed = 0;
	bool held             = true; // sits on the paddle
	bool big              = false;
	int stage             = 0; // 0 to 18
	BallSkin skin         = SKIN_NORMAL;
	int appearDelay       = -1; // frames in which it stays hidden and silent
	int reboundCooldown   = 0;  // frames
	int eggs = 0, apples = 0, pinecones = 0, acorns = 0, coconuts = 0;

	// sprites
	CSprite* stageSprites[STAGES][3]; // owned: normal, bulldozer, gravity
	CSprite* shadowSprites[STAGES];   // owned
	TrailBubble trail[TRAIL_BUBBLES];
	int liveTrailBubbles = 0;

	// sounds, owned
	CSound* reboundSounds[4];
	CSound* growSound;
	CSound* skinSound;

private:
	void LoadSprites();
	void RefreshSprites();
	void ChangeSkin(BallSkin newSkin);
	void KeepOffTheFlat();
	void PlaceSprites();
	void MoveContents();
	void MoveContent(BallContent& content, float wall);
	BallContent* MakeContent(int kind);
	void TakeLoad(int kind);
	void GrowToLoad();
	bool IsSilent() const { return appearDelay != 0; }
	void PlayGrowSound();
	void LoadTrail();
	void RunTrail();
	void StartTrailBubble(TrailBubble& bubble);
	void MoveTrailBubble(TrailBubble& bubble);
	void ShowTrailBubble(TrailBubble& bubble);
};

extern CBall* g_ball; // null outside a level

// Weight that a kind adds to the load and the pictures it can show inside the ball; by the shared
// table of kinds. Weight 0 and no pictures for kinds that never reach the ball.
int ContentWeight(int kind);
std::vector<std::string> ContentImages(int kind);
