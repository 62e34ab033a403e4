// Rain, and the lightning that goes with it.
#pragma once

class CSound;
class CSprite;

// Eighty drops fall, each with a splash where it meets the ground. With lightning the overlay that
// darkens the field drops out for one frame, and a little later comes the thunder.
class CRain
{
public:
	static constexpr int DROPS = 80;

	CRain() = default;
	~CRain();
	CRain(const CRain&)            = delete;
	CRain& operator=(const CRain&) = delete;

	void LoadThunder();
	void Make();
	void Step(CSprite* overlay); // overlay may be null
	void Hide();

	struct Drop {
		float x, y;      // place on the ground, pixels
		float height;    // above it
		float dx, dy;    // pixels a frame
		float speed;     // downward, pixels a frame
		CSprite* streak; // owned
		CSprite* splash; // owned
	};
	Drop drops[DROPS]  = {};
	int lightningTimer = -100, thunderTimer = -1; // frames
	CSound* thunderSounds[2] = {};                // owned; null with the effects off
	bool made                = false;

private:
	void StepDrop(Drop& drop);
	void Land(Drop& drop);
	void StepLightning(CSprite* overlay);
};
