// Shows the outlines that the ball meets over the animals' pictures, and fits new ones.
#pragma once

// sheet --bodies OUT.png [SPECIES...] [--fitted] [--data DIR]: every species' standing picture,
// both facings, under the outline of its table or a fitted one. sheet --fit [SPECIES...] [--data
// DIR]: rows for the tables. Gives the exit status.
int DrawBodySheet(int count, char** words);
