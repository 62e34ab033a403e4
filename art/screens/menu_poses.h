// What the animals of the main menu do when they stir.
#pragma once

#include "art/animals/pose.h"

// The first pose is at rest; the last leads back to it.
Poses DeerLooksRound();
Poses DeerFlicks();
Poses CowChews();
Poses CowSwishes();
Poses SheepGrazes();
Poses MouseSitsUp();
Poses MonkeyScratches();
Poses SquirrelPeeps();
Poses BluebirdRuffles();
Poses DuckDips();
Poses DucklingBobs();
Poses DucklingWags();
Poses DucklingPeeps();
