// The marks of the sixteen power-ups: one bold sign each, made for a 30 px square.
#pragma once

#include "art/screens/kit.h"

enum class Prize {
	Double,
	Triple,
	Quadruple,
	Barrier,
	Bulldozer,
	Destructo,
	Fast,
	Gravity,
	BubbleGrow,
	PaddleGrow,
	ExtraLife,
	Rain,
	PaddleShrink,
	Slow,
	Sticky,
	Fans
};

// What belongs to a power-up on the panel. `word` is the stem of its pictures' names.
struct PrizeInfo {
	Prize prize;
	const char* word;
	int frames;        // 0: one picture without a number
	const char* title; // as it reads on the panel
};
extern const PrizeInfo PRIZES[16];

const int PRIZE_MARK_SIZE = 30; // pixels

// The enamel behind a mark tells what it acts on: score, field, bubble, paddle, life.
Colour PrizeColour(Prize prize);
// One picture of the mark; `phase` runs from 0 to 1 over its animation.
Image PrizeMark(Prize prize, float phase = 0);
