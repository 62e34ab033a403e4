// Numbers of species, the dense index under which the profile keeps them, and their file words.
#include "animals/species_numbers.h"

#include <algorithm>

// Without a gap within a range; the ranges taken one after the other give the dense index.
struct NumberRange {
	int first, last;
};

static const NumberRange DENSE_RANGES[] = {{5, 5}, {7, 17}, {20, 48}, {50, 64}, {66, 73}};

static const int RARE[RARE_SPECIES] = {9,  17, 28, 32, 35, 36, 38, 48,
                                       50, 51, 52, 53, 54, 57, 69, 70};

struct SpeciesWord {
	int species;
	const char* word;
};

// clang-format off
static const SpeciesWord WORDS[] = {
	{SPECIES_SHEEP, "sheep"},           {SPECIES_TURTLE, "turtle"},
	{SPECIES_MONKEY, "monkey"},         {SPECIES_EAGLE, "eagle"},
	{SPECIES_CHIPMUNK, "chipmunk"},     {SPECIES_PIG, "pig"},
	{SPECIES_FROG, "frog"},             {SPECIES_COW, "cow"},
	{SPECIES_HORSE, "horse"},           {SPECIES_DOG, "dog"},
	{SPECIES_SQUIRREL, "squirrel"},     {SPECIES_CHICKEN, "chicken"},
	{SPECIES_COYOTE, "coyote"},         {SPECIES_MOOSE, "moose"},
	{SPECIES_BEAR, "bear"},             {SPECIES_WOLF, "wolf"},
	{SPECIES_POLAR_BEAR, "polarbear"},  {SPECIES_HIPPO, "hippo"},
	{SPECIES_RHINO, "rhino"},           {SPECIES_DEER, "deer"},
	{SPECIES_OSTRICH, "ostrich"},       {SPECIES_CAT, "cat"},
	{SPECIES_SNAKE, "snake"},           {SPECIES_DONKEY, "donkey"},
	{SPECIES_PENGUIN, "penguin"},       {SPECIES_TORTOISE, "tortoise"},
	{SPECIES_CAMEL, "camel"},           {SPECIES_DUCK, "duck"},
	{SPECIES_DUCKLING, "duckling"},     {SPECIES_GOAT, "goat"},
	{SPECIES_FLAMINGO, "flamingo"},     {SPECIES_SKUNK, "skunk"},
	{SPECIES_RABBIT, "rabbit"},         {SPECIES_SEAL, "seal"},
	{SPECIES_FOX, "fox"},               {SPECIES_WARTHOG, "warthog"},
	{SPECIES_KANGAROO, "kangaroo"},     {SPECIES_KANGAROO_JOEY, "kangajoey"},
	{SPECIES_MOUSE, "mouse"},           {SPECIES_RACCOON, "raccoon"},
	{SPECIES_PIGEON, "pigeon"},         {SPECIES_OWL, "owl"},
	{SPECIES_SNOWY_OWL, "snowyowl"},    {SPECIES_CROW, "crow"},
	{SPECIES_VULTURE, "vulture"},       {SPECIES_BLUEBIRD, "bluebird"},
	{SPECIES_HARE, "hare"},             {SPECIES_JACKRABBIT, "jackrabbit"},
	{SPECIES_ROADRUNNER, "road"},       {SPECIES_ZEBRA, "zebra"},
	{SPECIES_WALRUS, "walrus"},         {SPECIES_BIGHORN, "bighorn"},
	{SPECIES_HYENA, "hyena"},           {SPECIES_TIGER, "tiger"},
	{SPECIES_SNOW_TIGER, "snowtiger"},  {SPECIES_LION, "lion"},
	{SPECIES_BOT, "bot"},               {SPECIES_LIZARD, "lizard"},
	{SPECIES_PANDA, "panda"},           {SPECIES_KOALA, "koala"},
	{SPECIES_SWAN, "swan"},             {SPECIES_GOOSE, "goose"},
	{SPECIES_ELEPHANT, "elephant"},     {SPECIES_ALIEN, "alien"},
	{SPECIES_UNICORN, "unicorn"},       {SPECIES_BUTTERFLY_A, "butterflyA"},
	{SPECIES_BUTTERFLY_B, "butterflyB"}, {SPECIES_BUTTERFLY_C, "butterflyC"},
};
// clang-format on

int SpeciesIndex(int species)
{
	int index = 0;
	for (const NumberRange& range : DENSE_RANGES) {
		if (species >= range.first && species <= range.last)
			return index + species - range.first;
		index += range.last - range.first + 1;
	}
	return -1;
}

int SpeciesOfIndex(int index)
{
	if (index < 0)
		return 0;
	for (const NumberRange& range : DENSE_RANGES) {
		int size = range.last - range.first + 1;
		if (index < size)
			return range.first + index;
		index -= size;
	}
	return 0;
}

int RareBitOf(int species)
{
	const int* found = std::find(RARE, RARE + RARE_SPECIES, species);
	return found == RARE + RARE_SPECIES ? -1 : static_cast<int>(found - RARE);
}

int SpeciesOfRareBit(int bit)
{
	return bit >= 0 && bit < RARE_SPECIES ? RARE[bit] : 0;
}

const char* SpeciesPrefix(int species)
{
	for (const SpeciesWord& row : WORDS)
		if (row.species == species)
			return row.word;
	return "";
}

const char* SpeciesBubbleWord(int species)
{
	return species == SPECIES_ROADRUNNER ? "roadrunner" : SpeciesPrefix(species);
}
