// Horns and antlers.
#pragma once

#include "art/animals/head.h"

void AddHorns(Model& model, const Head& head, const HeadFrame& frame, const Pose& pose, int horn);
