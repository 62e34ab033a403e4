// What the pages of perching birds are made of: their numbers, and the rows that they share.
#pragma once

#include "animals/species.h"

// Where a bird lands on a perch, against the middle of its top, in pixels; x by its facing.
struct PerchOffsets {
	int left, right, y;
};

// The numbers of a bird; speed and flight are alike for all.
struct BirdPage {
	int species;
	int bodyRadius, weight, requiredStage;
	const char* calls[2]; // of two, a coin says each frame which would be heard next
	PerchOffsets onCrate, onFence;
	const SpeciesTable* table;
};

extern const BirdPage BLUEBIRD_PAGE;
extern const BirdPage CROW_PAGE;
extern const BirdPage OWL_PAGE;
extern const BirdPage PIGEON_PAGE;
extern const BirdPage SNOWY_OWL_PAGE;
extern const BirdPage VULTURE_PAGE;

// Rows of an action table. Looking and the bump go on on a perch; a walk needs open ground.
constexpr ActionRow BirdLook(const char* name, const char* frames)
{
	return {name, ACTION_LOOK, frames, 1, ROLE_NONE, "", {.perched = true}};
}
constexpr ActionRow BirdBump(const char* name, const char* frames)
{
	return {name, ACTION_BUMP, frames, 1, ROLE_BUMP, "", {.perched = true}};
}
constexpr ActionRow BirdWalk(const char* frames, int ticks = 2)
{
	ActionOptions steps = {.time = UNTIL_END, .repeats = Between(2, 6), .ticks = ticks};
	return {"walk", ACTION_WALK, frames, 2, ROLE_NONE, "", steps};
}
// Beats its wings and glides by turns until it comes down.
constexpr ActionRow BirdFlap(const char* frames, int ticks = 2)
{
	ActionOptions beats = {.time = Between(30, 120), .ticks = ticks};
	return {"flapup", ACTION_FLIGHT, frames, 0, ROLE_FLIGHT, "glideup", beats};
}
constexpr ActionRow BirdGlide(const char* frames)
{
	return {"glideup", ACTION_FLIGHT, frames, 0, ROLE_NONE, "flapup"};
}
