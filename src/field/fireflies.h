// Fireflies of a clear night.
#pragma once

class CSprite;

// Twelve lights wander over the field, glow up and go out again.
class CFireflies
{
public:
	static constexpr int FLIES = 12;

	CFireflies() = default;
	~CFireflies();
	CFireflies(const CFireflies&)            = delete;
	CFireflies& operator=(const CFireflies&) = delete;

	void Make();
	void Step();
	void Hide();

	struct Fly {
		float x, y;      // pixels
		float vx, vy;    // pixels a frame, -1 to 1
		float ax, ay;    // change of them a frame
		int wait;        // frames until it glows, -1 while it does
		CSprite* sprite; // owned
	};
	Fly flies[FLIES] = {};
	bool made        = false;
};
