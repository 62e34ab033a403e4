// Which portrait belongs to which kind, and where in the panel's window it hangs.
#pragma once

const int PORTRAIT_COUNT = 66;
const int PORTRAIT_EGG   = 2; // has no eyes to close and no first name

// The window, in pixels.
const int PORTRAIT_WINDOW_X = 700, PORTRAIT_WINDOW_Y = 298;
const int PORTRAIT_WINDOW_WIDTH = 90, PORTRAIT_WINDOW_HEIGHT = 62;

// Upper left corners of a portrait and of its closed eyes.
struct PortraitPlace {
	int x, y, eyesX, eyesY;
};

// A portrait of that size: in the middle of the window with its eyes on it, unless the picture
// asks for a place of its own.
PortraitPlace PlaceOfPortrait(int number, int width, int height);
