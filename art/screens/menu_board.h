// The sign board of the main menu.
#pragma once

#include "art/core/image.h"

// Ivy on the board and its post, over a picture whose corner lies at (left, top) of the screen.
void DrawMenuIvy(Image& target, int left, int top);
