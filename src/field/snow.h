// Soft, swaying snow.
#pragma once

class CSprite;

// A hundred and twenty flakes sink in curves; the paddle's fan pushes them away.
class CSnow
{
public:
	static constexpr int FLAKES = 120;

	CSnow() = default;
	~CSnow();
	CSnow(const CSnow&)            = delete;
	CSnow& operator=(const CSnow&) = delete;

	void Make();
	void Step();
	void Hide();
	void BlowFrom(float fromX, float fromY); // one frame of the fan's push

	struct Flake {
		float x, y, height;          // place on the ground and height above it, pixels
		float sway, swayPull, phase; // of the curve, radians
		float dy, fall;              // pixels a frame
		CSprite* sprite;             // owned
	};
	Flake flakes[FLAKES] = {};
	float drift          = 0; // pixels a frame
	bool made            = false;
};
