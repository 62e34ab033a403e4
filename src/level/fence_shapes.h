// The shapes that fences take in levels: rings, horseshoes, lines and zigzags.
#pragma once

#include "level/parts.h"

#include <vector>

typedef std::vector<CFence*> FenceSections; // in order of creation; the field owns them

// The three ways of a section, in pixels: a level one goes 51 to the side, a slanted one 33 to the
// side and 21 up or down. The rails lie 22 below their posts.
const int SECTION_LEVEL = 51, SECTION_SLANT = 33, SECTION_DROP = 21, RAILS_BELOW_POST = 22;

// A closed ring about the middle of its rails: sides of `level` level sections above and below, and
// `slant` slanted ones at each of the four corners. 51 * level + 66 * slant wide, 42 * slant high.
// Numbered clockwise from the left end of the upper side. Level 0 is a diamond.
FenceSections Ring(int middleX, int middleY, int level, int slant);
// The same with a mouth: `missing` neighbouring sections are left out from number `from` on.
FenceSections Shoe(int middleX, int middleY, int level, int slant, int from, int missing);
// A chain of sections of one style to the right, from a post.
FenceSections Line(int postX, int postY, int sections, int style = LEVEL_RAILS);
// A chain to the right in which styles follow each other by turns: {FALLING_RAILS, RISING_RAILS}
// is a zigzag, {FALLING_RAILS, LEVEL_RAILS, RISING_RAILS, LEVEL_RAILS} a wave.
FenceSections Pattern(int postX, int postY, int sections, std::initializer_list<int> styles);

// Ties a tower: each crate carries the one after it, from the foot up. Returns the top.
CCrate* Stack(std::initializer_list<CCrate*> crates);
