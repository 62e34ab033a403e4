// Driving hail.
#pragma once

class CSprite;

// A hundred and twenty stones come down slantwise and bounce once.
class CHail
{
public:
	static constexpr int STONES = 120;

	CHail() = default;
	~CHail();
	CHail(const CHail&)            = delete;
	CHail& operator=(const CHail&) = delete;

	void Make();
	void Step();
	void Hide();

	struct Stone {
		float x, y, height;  // place on the ground and height above it, pixels
		float dx, dy, speed; // pixels a frame; speed downward
		CSprite* sprite;     // owned
	};
	Stone stones[STONES] = {};
	float wind           = 0; // pixels a frame
	bool made            = false;

private:
	void Land(Stone& stone);
};
