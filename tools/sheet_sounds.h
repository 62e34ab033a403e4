// Draws waveform and spectrogram of each effect, for eyes.
#pragma once

// Reads resource2.dat and lays its sounds out with name, length and level:
// sheet --sounds OUT.png [PREFIX] [--data DIR]. Gives the program's exit status.
int DrawSoundSheet(int count, char** words);
