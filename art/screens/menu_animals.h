// The animals of the main menu, as far as they are painted on the land.
#pragma once

#include "art/core/image.h"

// Shadows of all animals, and the bodies of those whose head and tail are pictures of their own.
void DrawMenuBodies(Image& scene);
