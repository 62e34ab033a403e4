// Markings of the face.
#pragma once

#include "art/animals/head.h"

// p: point in head space divided by the radius. base: what the face has without the mark.
Colour FaceColour(const Head& head, Vec3 p, Colour base);
