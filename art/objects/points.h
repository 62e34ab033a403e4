// Small things to gather: fruit, nuts, coins and eggs.
#pragma once

#include "art/core/image.h"

enum class Fruit { RedApple, GreenApple, Acorn, Pinecone, Coconut };
enum class CoinMetal { Gold, Silver, Copper };

// variant 0..3 changes tint and how it lies. 18x20 pixels at zoom 1.
Image FruitImage(Fruit kind, int variant, float zoom = 1);

// spin 0..3: from the full face to the edge.
Image CoinImage(CoinMetal metal, bool large, int spin);

// A hen's egg turned by an angle in radians, 13x15 pixels.
Image EggImage(float turn);
