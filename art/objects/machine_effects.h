// Light around the machine: exhaust flames, stun, destructo ray and its sign.
#pragma once

#include "art/core/image.h"

// Exhaust flame; power 0..1 is its length, phase 0..1 runs once round the loop. The nozzle is at
// the right edge, or at the left edge when `toRight`.
Image Flame(bool fast, bool toRight, float power, float phase);

Image StunGlow(float power);      // 0..1
Image StunCrackle(int frame);     // 0..59
Image DestructoRay(int height);   // pixels
Image DestructoSign(float power); // 0..1: how far its pulse has swelled
