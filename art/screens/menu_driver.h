// The machine in the main menu's picture.
#pragma once

#include "art/core/image.h"

// Without its driver, who is a picture of his own.
void DrawMenuMachine(Image& scene);
