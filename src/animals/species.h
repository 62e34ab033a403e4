// How every species is written: actions, body outline and picture places as tables.
#pragma once

#include "animals/animal.h"

#include <span>
#include <string>
#include <vector>

// A page of species data. A plain species is a file of one screen: a table of actions, a body
// outline, sometimes a table of picture places, the SpeciesTable that ties them together, and a
// constructor with the numbers. Everything that is not said takes its usual value.

enum ActionRole { ROLE_NONE, ROLE_BUMP, ROLE_FLIGHT };

// The duration that an action's kind usually has:
//   idle            15 to 120 frames
//   blink           2 frames
//   look            pictures to their end, 15 to 120 frames of holding, pictures backward
//   walk, walk both 30 to 90 frames
//   chew            60 to 120 frames
//   flight          30 to 90 frames
//   fall, climb     1 frame, held up until the ground or the crown is reached
//   all others      pictures to their end
constexpr FrameSpan BY_KIND     = {-2, false, 0, 0};
constexpr FrameSpan NO_HOLD     = {-1, false, 0, 0};
constexpr FrameSpan UNTIL_END   = FrameSpan::UntilEnd();
constexpr const char* EXIT_BACK = "back"; // the entry's pictures, backward
constexpr const char* NO_EXIT   = "none";
constexpr const char* ANY       = "any"; // no follow-up: the weighted choice

constexpr FrameSpan Frames(int count)
{
	return FrameSpan::Exactly(count);
}
constexpr FrameSpan Between(int min, int max)
{
	return FrameSpan::Between(min, max);
}

// What only some actions need, named in the last column of a row: { .perched = true }.
struct ActionOptions {
	FrameSpan time         = BY_KIND; // entry phase
	FrameSpan hold         = BY_KIND; // middle phase
	const char* holdFrames = nullptr; // pictures of the middle phase; null keeps the entry's
	const char* exitFrames = nullptr; // null: EXIT_BACK for a look, NO_EXIT for all others
	FrameSpan exitTime     = UNTIL_END;
	FrameSpan repeats      = Frames(1);

	int ticks    = 2;     // frames that a picture stays
	bool once    = false; // stops on its last picture though its time is longer
	int loopFrom = 0;     // the picture that a loop goes back to

	bool inTree  = false; // may be chosen up in a tree
	bool perched = false; // may be chosen on a perch

	const char* sounds[4]  = {nullptr, nullptr, nullptr, nullptr}; // one of them, by chance
	int soundDelay         = 0;                                    // frames from the start
	const char* extraSound = nullptr;                              // a second one, by itself
	int extraDelay         = 0;
};

// A row of a species' action table. The first row is the idle action.
//
// name    The word of the picture files: prefix + word + side + number + ".png". A word that ends
//         in "blink", "eyeswide" or "smile" has that ending after the side. For the two-way kinds
//         a word that ends in "up" names two pairs, its other one ending in "down". A word that
//         stands in several rows is told apart by a tag before a colon, "raise:lowerhead", and
//         follow-ups then name the tag.
// frames  The pictures in order, as groups with a space between: "0-4", "4-0", "7", "." for the
//         picture without a number. A word in front goes behind the side: "blink", "up0-7"; with
//         "=" it stands for word and side, "=climbcommon0-7". "*12" behind a single picture holds
//         it that many times. Empty is ".".
// then    Up to three names with "/" between, equal chances. Empty is the idle action; ANY makes
//         the weighted choice, as the idle action itself always does.
struct ActionRow {
	const char* name;
	int kind;
	const char* frames;
	int weight; // in the random choice; 0: only as a follow-up
	ActionRole role;
	const char* then;
	ActionOptions options = {};
};

// A picture pair of a species with a machine of its own; name and frames as above.
struct PictureRow {
	const char* name;
	const char* frames;
	int ticks               = 2;
	bool loops              = false;
	int loopFrom            = 0;
	const char* rightFrames = nullptr; // where the right side differs
};

// A corner of the outline that the ball meets, in pixels from the upper left of the standing
// picture. Neighbours lie at most CElement::JOIN_DISTANCE apart, the last and the first too.
struct BodyPoint {
	float x, y;
};

// Where a word's pictures stand against the upper left of the standing picture, in pixels. A word
// without a row stands with the middle of its lower edge on that of the standing picture.
struct PicturePlace {
	const char* word;
	int leftX, leftY, rightX, rightY;
};

struct SpeciesTable {
	const char* prefix;                   // of all picture files
	std::span<const ActionRow> actions;   // empty for a species with a machine of its own
	std::span<const PictureRow> pictures; // those that no action names
	std::span<const BodyPoint> body;      // facing left
	std::span<const BodyPoint> bodyRight; // empty: the left one, mirrored
	std::span<const PicturePlace> places;
};

// File names of a word's pictures on one side, in the order of frames.
std::vector<std::string> PictureFiles(const char* prefix, const char* word, bool left,
                                      const char* frames);
// Every picture file that a table asks for, each once.
std::vector<std::string> AllPictureFiles(const SpeciesTable& table);

std::string WordOf(const ActionRow& row);        // the name without its tag
std::string KeyOf(const ActionRow& row);         // the tag, or the word when there is none
std::string DownWord(const std::string& upWord); // empty when the word has no other pair
const ActionRow* FindRow(const SpeciesTable& table, const std::string& key); // null without one
std::vector<std::string> FollowUps(const ActionRow& row);

// The species that stand for themselves, one row each, in order of their numbers: by number for
// the sanctuary, by table for tests and tools.
struct SpeciesEntry {
	int species;
	CElementAnimal* (*make)(int centreX, int centreY, bool left); // the caller's field owns it
	const SpeciesTable* table;
};
std::span<const SpeciesEntry> AllSpecies();
// Null for a number without a row.
CElementAnimal* NewAnimal(int species, int centreX, int centreY, bool left);

// Action tables of which two species make use, each in the file of the first.
extern const ActionRow BEAR_ACTIONS[8];  // and polar bear
extern const ActionRow OWL_ACTIONS[6];   // and snowy owl
extern const ActionRow GOOSE_ACTIONS[8]; // and swan
extern const ActionRow LION_ACTIONS[7];  // and tiger

extern const SpeciesTable SHEEP_TABLE;
extern const SpeciesTable TURTLE_TABLE;
extern const SpeciesTable MONKEY_TABLE;
extern const SpeciesTable EAGLE_TABLE;
extern const SpeciesTable CHIPMUNK_TABLE;
extern const SpeciesTable PIG_TABLE;
extern const SpeciesTable FROG_TABLE;
extern const SpeciesTable COW_TABLE;
extern const SpeciesTable HORSE_TABLE;
extern const SpeciesTable DOG_TABLE;
extern const SpeciesTable SQUIRREL_TABLE;
extern const SpeciesTable CHICKEN_TABLE;
extern const SpeciesTable COYOTE_TABLE;
extern const SpeciesTable MOOSE_TABLE;
extern const SpeciesTable BEAR_TABLE;
extern const SpeciesTable WOLF_TABLE;
extern const SpeciesTable POLAR_BEAR_TABLE;
extern const SpeciesTable HIPPO_TABLE;
extern const SpeciesTable RHINO_TABLE;
extern const SpeciesTable DEER_TABLE;
extern const SpeciesTable OSTRICH_TABLE;
extern const SpeciesTable CAT_TABLE;
extern const SpeciesTable SNAKE_TABLE;
extern const SpeciesTable DONKEY_TABLE;
extern const SpeciesTable PENGUIN_TABLE;
extern const SpeciesTable TORTOISE_TABLE;
extern const SpeciesTable CAMEL_TABLE;
extern const SpeciesTable DUCK_TABLE;
extern const SpeciesTable DUCKLING_TABLE;
extern const SpeciesTable GOAT_TABLE;
extern const SpeciesTable FLAMINGO_TABLE;
extern const SpeciesTable SKUNK_TABLE;
extern const SpeciesTable RABBIT_TABLE;
extern const SpeciesTable SEAL_TABLE;
extern const SpeciesTable FOX_TABLE;
extern const SpeciesTable WARTHOG_TABLE;
extern const SpeciesTable KANGAROO_TABLE;
extern const SpeciesTable KANGAROO_JOEY_TABLE;
extern const SpeciesTable MOUSE_TABLE;
extern const SpeciesTable RACCOON_TABLE;
extern const SpeciesTable PIGEON_TABLE;
extern const SpeciesTable OWL_TABLE;
extern const SpeciesTable SNOWY_OWL_TABLE;
extern const SpeciesTable CROW_TABLE;
extern const SpeciesTable VULTURE_TABLE;
extern const SpeciesTable BLUEBIRD_TABLE;
extern const SpeciesTable HARE_TABLE;
extern const SpeciesTable JACKRABBIT_TABLE;
extern const SpeciesTable ROADRUNNER_TABLE;
extern const SpeciesTable ZEBRA_TABLE;
extern const SpeciesTable WALRUS_TABLE;
extern const SpeciesTable BIGHORN_TABLE;
extern const SpeciesTable HYENA_TABLE;
extern const SpeciesTable TIGER_TABLE;
extern const SpeciesTable SNOW_TIGER_TABLE;
extern const SpeciesTable LION_TABLE;
extern const SpeciesTable BOT_TABLE;
extern const SpeciesTable LIZARD_TABLE;
extern const SpeciesTable PANDA_TABLE;
extern const SpeciesTable KOALA_TABLE;
extern const SpeciesTable SWAN_TABLE;
extern const SpeciesTable GOOSE_TABLE;
extern const SpeciesTable ELEPHANT_TABLE;
extern const SpeciesTable ALIEN_TABLE;
extern const SpeciesTable UNICORN_TABLE;
extern const SpeciesTable BUTTERFLY_TABLES[3]; // colours A, B, C
