// The banner that counts the animals of one flight of the ball.
#pragma once

class CBobber;
class CSprite;

// A number part and a word part, one pair for each count; a new banner takes the earlier one away.
// Owned by the panel.
class CComboBanner
{
public:
	static const int BANNERS = 9; // for combos of 2 to 9 and of more

	CComboBanner() = default;
	~CComboBanner();
	CComboBanner(const CComboBanner&)            = delete;
	CComboBanner& operator=(const CComboBanner&) = delete;

	void Show(int combo); // 2 or more; by the ball
	void Step();          // once a frame

	int current              = -1;      // index of the banner on screen, -1 without one
	CBobber* bobber          = nullptr; // owned; only while a banner shows
	CSprite* number[BANNERS] = {};      // owned, made when first needed
	CSprite* word[BANNERS]   = {};      // owned

private:
	void Load(int i);
	void TakeAway();
};
