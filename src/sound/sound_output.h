// Where the sound goes, chosen once before it starts; and what a test needs to hear it.
#pragma once

#include <string>
#include <vector>

enum SoundOutput {
	SOUND_OUTPUT_DEVICE, // what the machine has
	SOUND_OUTPUT_NONE,   // the sound system stays off, with no message
	SOUND_OUTPUT_CAPTURE // into memory, only as fast as CaptureSound asks
};

const int CAPTURE_RATE = 44100; // frames of two samples a second

void ChooseSoundOutput(SoundOutput output);
SoundOutput ChosenSoundOutput();

// Renders what would be heard next: left and right in turn, 1 is full scale. The same calls give
// the same samples in every run. Silence when no capture runs.
std::vector<float> CaptureSound(int frames);

// What the capture tells of its device: the drivers to be listed, and whether it is plugged in.
// Neither outlives the choice of an output.
void SetCaptureDrivers(const std::vector<std::string>& names);
void SetCapturePlugged(bool plugged);
