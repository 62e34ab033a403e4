// The rolling bands of the sea, and the rainbow over it.
#pragma once

class CSprite;

// Three bands of waves that swing from side to side, one behind the other.
class CWaves
{
public:
	static constexpr int BANDS        = 3;
	static constexpr int WAVE_LINE    = 70; // y of the back band's lower edge
	static constexpr int WAVE_GAP     = 15; // pixels from one band down to the next
	static constexpr int FRONT_BOTTOM = WAVE_LINE + (BANDS - 1) * WAVE_GAP;

	CWaves() = default;
	~CWaves();
	CWaves(const CWaves&)            = delete;
	CWaves& operator=(const CWaves&) = delete;

	void Make(int image); // paints the still part into the image, and makes the bands
	void Step();

	CSprite* sprites[BANDS] = {};        // owned; back, middle, front
	float phase[BANDS]      = {0, 2, 4}; // radians
};

// Comes up out of the sea, stays for a while and goes down again.
class CRainbow
{
public:
	CRainbow() = default;
	~CRainbow();
	CRainbow(const CRainbow&)            = delete;
	CRainbow& operator=(const CRainbow&) = delete;

	void Make();
	void Step();

	CSprite* sprite = nullptr; // owned; null on a level without one
	int timer       = 0;       // frames to its next coming or going
};
