// Ears of mammals.
#pragma once

#include "art/animals/head.h"

// side: -1 or 1. coat and inner: materials of the model.
void AddEar(Model& model, const Head& head, const HeadFrame& frame, const Pose& pose, int side,
            int coat, int inner);
