// Soap bubbles in three skins.
#pragma once

#include "art/core/image.h"

enum class BubbleSkin { Normal, Bulldozer, Gravity };

const int BALL_STAGES   = 19;
const int BUBBLE_FRAMES = 12;

// Width of a stage's picture in pixels, the same for all skins; stage 0..18.
inline int BallWidth(int stage)
{
	return 28 + 4 * stage;
}

// A bubble that fills a square; phase 0..1 runs once round the wobble of the film.
Image Bubble(int width, BubbleSkin skin, float phase = 0);
