// The profile's mouse options, carried out.
#pragma once

// Hands the mouse's mode and speed of the current profile to the input, and grabs or frees the
// pointer with it. The pointer stays where it is, whoever moves it from now on.
void ApplyMouseMode();
