// The sound of an action that is not to be had.
#pragma once

// The action-failed sound, and nothing else.
void Refuse();

// For a button whose screen the game does not have: it stays in its place and refuses.
void RefuseMissing();
