// The side panel's gauge of the fan's charge.
#pragma once

class CSprite;

// Owned by the panel.
class CFanGauge
{
public:
	CFanGauge();
	~CFanGauge();
	CFanGauge(const CFanGauge&)            = delete;
	CFanGauge& operator=(const CFanGauge&) = delete;

	void ShowGlow(bool on);
	void Step(int charge, bool fansTimerRuns); // once a frame; charge 0 to 1000

	// sprites, owned
	CSprite* frame;
	CSprite* colour;
	CSprite* glow;
};
