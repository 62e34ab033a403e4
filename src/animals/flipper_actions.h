// The actions of seal and walrus, alike but for the voice.
#pragma once

#include "animals/species.h"

#include <array>

// clang-format off
constexpr std::array<ActionRow, 10> FlipperActions(const char* voice)
{
	return {{
		// name         kind           frames  weight role       then              options
		{ "stand",      ACTION_IDLE,   ".",        0, ROLE_NONE, "" },
		{ "standblink", ACTION_BLINK,  ".",        2, ROLE_NONE, "" },
		{ "back:look",  ACTION_LOOK,   "4-0",      0, ROLE_NONE, "",
		  { .hold = NO_HOLD, .exitFrames = NO_EXIT } },
		{ "lookblink",  ACTION_EXTRA2, ".",        0, ROLE_NONE, "back/looksmile",
		  { .time = Frames(4) } },
		{ "looksmile",  ACTION_EXTRA3, ".",        0, ROLE_NONE, "back/lookblink",
		  { .time = Between(15, 60) } },
		{ "look",       ACTION_LOOK,   "0-4",      1, ROLE_NONE, "looksmile",
		  { .hold = Between(15, 60), .exitFrames = NO_EXIT } },
		{ "bark",       ACTION_BUMP,   "0-5",      0, ROLE_BUMP, "",
		  { .sounds = {voice}, .soundDelay = 2 } },
		{ "move",       ACTION_WALK,   "0-11",     2, ROLE_NONE, "" },
		{ "smile",      ACTION_EXTRA,  "0-3",      1, ROLE_NONE, "smileblink",
		  { .hold = Between(20, 60) } },
		{ "smileblink", ACTION_EXTRA,  ".",        0, ROLE_NONE, "",
		  { .time = Frames(4) } },
	}};
}
// clang-format on
