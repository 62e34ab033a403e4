// Clouds that drift over the sea.
#pragma once

class CSprite;

// Twelve clouds wait off the field; now and then one of them, or a big one with a small one under
// it, comes in at the right and drifts out at the left.
class CClouds
{
public:
	static constexpr int BIG = 4, MEDIUM = 3, SMALL = 5;
	static constexpr int CLOUDS = BIG + MEDIUM + SMALL;

	CClouds() = default;
	~CClouds();
	CClouds(const CClouds&)            = delete;
	CClouds& operator=(const CClouds&) = delete;

	void Make(); // the sprites, hidden, and the first clouds
	void Step(); // one frame; faster while the paddle's fan runs
	void Hide();

	// One chance in odds frames, -1 for a sure one; fewer than two active clouds make it sure too.
	// anywhere: not at the right edge only.
	void TrySpawn(int odds, bool anywhere);

	struct Cloud {
		float x = 0, y = 0, speed = 0; // pixels, pixels a frame
		bool active     = false;
		CSprite* sprite = nullptr; // owned
	};
	Cloud clouds[CLOUDS]; // big, medium, small
	int activeCount = 0;
	bool made       = false;

private:
	Cloud* FirstFree(int first, int count);
	void Start(Cloud& cloud, float x, float y, float speed);
};
