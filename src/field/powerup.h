// A prize that comes down under balloons and is caught with the paddle.
#pragma once

#include "field/element.h"

class CSound;

enum PowerupKind {
	POWERUP_RANDOM = -1, // the game data picks
	POWERUP_MONEY  = 1,
	POWERUP_DOUBLE,
	POWERUP_TRIPLE,
	POWERUP_QUADRUPLE,
	POWERUP_BARRIER,
	POWERUP_BULLDOZER,
	POWERUP_DESTRUCTO,
	POWERUP_FAST,
	POWERUP_GRAVITY,
	POWERUP_GROW,
	POWERUP_WIDE,
	POWERUP_LIFE,
	POWERUP_RAIN,
	POWERUP_SHRINK,
	POWERUP_SLOW,
	POWERUP_STICKY,
	POWERUP_FANS,
};

// Its kind decides picture and effect; what the effect does while it lasts is the side panel's.
// It stays in the lists until ClearField.
class CPowerup : public CElementMove
{
public:
	// Hangs 20 left of and 35 above the place given; newZ is its height. The flag has no effect.
	CPowerup(int newX, int newY, int newKind, bool flag, int newZ);
	~CPowerup() override;

	void Place() override;
	void Update() override;
	const char* ClassName() const override { return "CPowerup"; }

	void Blow(float fromX, float fromY); // one frame of the fan's push
	static void BlowAll(float fromX, float fromY);

	static std::vector<CPowerup*> PowerupList; // live instances

	bool caught = false;
	bool gone   = false; // has left the field
	float sway  = 0.3f;  // change of vx per frame
	int kind;

	// sprites, owned
	CSprite* inflate;
	CSprite* balloons;
	CSprite* burst;
	CSprite* bag;     // money only
	CSprite* disc;    // all others
	CSprite* carried; // bag or disc
	CSprite* icon;    // null for money
	CSprite* sparkle;
	// sounds, owned
	CSound* catchSound;
	CSound* balloonSound;

private:
	void LoadSprites();
	void LeaveField();
	void PlaceCarried();
	void PlaceEffects();
	bool IsOverPaddle() const;
	void Catch();
	void ApplyEffect();
	void ApplyToBall();
	void ApplyToPaddle();
	void RainObjects();
};
