// Lays the frames of a film on one sheet, so that a motion can be looked at.
#pragma once

// sheet --film DIR OUT.png [--columns N] [--crop X Y W H] [--every N] [--from N] [--zoom N]
// DIR holds the frames as the driver's film command saves them. Gives the exit status.
int DrawFilmSheet(int count, char** words);
