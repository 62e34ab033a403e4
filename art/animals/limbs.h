// Joints of two bones.
#pragma once

#include "art/core/vec.h"

// Where the middle joint of two equal bones lies, `reach` long together, bent toward `bend`.
Vec3 KneeOf(Vec3 joint, Vec3 end, float reach, Vec3 bend);
