// Which portrait belongs to which kind, and where in the panel's window it hangs.
#include "field/portraits.h"

#include "animals/species_numbers.h"
#include "field/element_point.h"
#include "field/sidebar.h"

#include <iterator>
#include <vector>

// clang-format off
// By portrait number.
static const int s_kinds[PORTRAIT_COUNT] = {
	SPECIES_ALIEN,        SPECIES_BEAR,       POINT_EGG_LEFT,         SPECIES_BIGHORN,
	SPECIES_BLUEBIRD,     SPECIES_BOT,        SPECIES_CAMEL,          SPECIES_CAT,
	SPECIES_CHICKEN,      SPECIES_CHIPMUNK,   SPECIES_COW,            SPECIES_COYOTE,
	SPECIES_CROW,         SPECIES_DEER,       SPECIES_DOG,            SPECIES_DONKEY,
	SPECIES_DUCK,         SPECIES_DUCKLING,   SPECIES_EAGLE,          SPECIES_ELEPHANT,
	SPECIES_FLAMINGO,     SPECIES_FOX,        SPECIES_FROG,           SPECIES_GOAT,
	SPECIES_GOOSE,        SPECIES_HARE,       SPECIES_HIPPO,          SPECIES_HORSE,
	SPECIES_HYENA,        SPECIES_JACKRABBIT, SPECIES_KANGAROO_JOEY,  SPECIES_KANGAROO,
	SPECIES_KOALA,        SPECIES_LION,       SPECIES_LIZARD,         SPECIES_MONKEY,
	SPECIES_MOOSE,        SPECIES_MOUSE,      SPECIES_OSTRICH,        SPECIES_OWL,
	SPECIES_PANDA,        SPECIES_PENGUIN,    SPECIES_PIG,            SPECIES_PIGEON,
	SPECIES_POLAR_BEAR,   SPECIES_RABBIT,     SPECIES_RACCOON,        SPECIES_RHINO,
	SPECIES_ROADRUNNER,   SPECIES_SEAL,       SPECIES_SHEEP,          SPECIES_SKUNK,
	SPECIES_SNAKE,        SPECIES_SNOW_TIGER, SPECIES_SNOWY_OWL,      SPECIES_SQUIRREL,
	SPECIES_SWAN,         SPECIES_TIGER,      SPECIES_TORTOISE,       SPECIES_TURTLE,
	SPECIES_VULTURE,      SPECIES_WALRUS,     SPECIES_WARTHOG,        SPECIES_WOLF,
	SPECIES_ZEBRA,        SPECIES_UNICORN,
};
// clang-format on

int PortraitOfKind(int kind)
{
	if (kind == POINT_EGG_RIGHT)
		kind = POINT_EGG_LEFT;
	for (int number = 0; number < PORTRAIT_COUNT; number++) {
		if (s_kinds[number] == kind)
			return number;
	}
	return -1;
}

// Portraits whose picture is not meant for the middle of the window: none so far.
struct PlaceException {
	int number;
	PortraitPlace place;
};
static const std::vector<PlaceException> s_exceptions = {};

PortraitPlace PlaceOfPortrait(int number, int width, int height)
{
	for (const PlaceException& exception : s_exceptions) {
		if (exception.number == number)
			return exception.place;
	}
	int x = PORTRAIT_WINDOW_X + (PORTRAIT_WINDOW_WIDTH - width) / 2;
	int y = PORTRAIT_WINDOW_Y + (PORTRAIT_WINDOW_HEIGHT - height) / 2;
	return {x, y, x, y};
}
