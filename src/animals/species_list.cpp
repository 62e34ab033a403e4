// The species that stand for themselves, a line each.
#include "animals/species.h"

#include "animals/alien.h"
#include "animals/bears.h"
#include "animals/butterfly.h"
#include "animals/camel.h"
#include "animals/chicken.h"
#include "animals/chipmunk.h"
#include "animals/dog.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/eagle.h"
#include "animals/flamingo.h"
#include "animals/frog.h"
#include "animals/hoppers.h"
#include "animals/horse.h"
#include "animals/kangaroo.h"
#include "animals/monkey.h"
#include "animals/panda.h"
#include "animals/perching_birds.h"
#include "animals/plain_species.h"
#include "animals/sheep.h"
#include "animals/skunk.h"
#include "animals/snake.h"
#include "animals/species_numbers.h"
#include "animals/tree_species.h"
#include "animals/turtle.h"
#include "animals/two_voiced.h"

// A function that makes one of a class.
#define MAKE(className)                                                                            \
	[](int centreX, int centreY, bool left) -> CElementAnimal* {                                   \
		return new className(centreX, centreY, left);                                              \
	}

static CElementAnimal* MakeLoneDuckling(int centreX, int centreY, bool)
{
	return new CDuckling(centreX, centreY, nullptr);
}

// Without its saucer it starts on its feet.
static CElementAnimal* MakeLoneAlien(int centreX, int centreY, bool)
{
	CAlien* alien = new CAlien(centreX, centreY, false);
	alien->StandAtOnce();
	return alien;
}

// clang-format off
static const SpeciesEntry s_species[] = {
	// number                maker                table
	{ SPECIES_SHEEP,          MAKE(CSheep),        &SHEEP_TABLE },
	{ SPECIES_TURTLE,         MAKE(CTurtle),       &TURTLE_TABLE },
	{ SPECIES_MONKEY,         MAKE(CMonkey),       &MONKEY_TABLE },
	{ SPECIES_EAGLE,          MAKE(CEagle),        &EAGLE_TABLE },
	{ SPECIES_CHIPMUNK,       MAKE(CChipmunk),     &CHIPMUNK_TABLE },
	{ SPECIES_PIG,            MAKE(CPig),          &PIG_TABLE },
	{ SPECIES_FROG,           MAKE(CFrog),         &FROG_TABLE },
	{ SPECIES_COW,            MAKE(CCow),          &COW_TABLE },
	{ SPECIES_HORSE,          MAKE(CHorse),        &HORSE_TABLE },
	{ SPECIES_DOG,            MAKE(CDog),          &DOG_TABLE },
	{ SPECIES_SQUIRREL,       MAKE(CSquirrel),     &SQUIRREL_TABLE },
	{ SPECIES_CHICKEN,        MAKE(CChicken),      &CHICKEN_TABLE },
	{ SPECIES_COYOTE,         MAKE(CCoyote),       &COYOTE_TABLE },
	{ SPECIES_MOOSE,          MAKE(CMoose),        &MOOSE_TABLE },
	{ SPECIES_BEAR,           MAKE(CBear),         &BEAR_TABLE },
	{ SPECIES_WOLF,           MAKE(CWolf),         &WOLF_TABLE },
	{ SPECIES_POLAR_BEAR,     MAKE(CPolarBear),    &POLAR_BEAR_TABLE },
	{ SPECIES_HIPPO,          MAKE(CHippo),        &HIPPO_TABLE },
	{ SPECIES_RHINO,          MAKE(CRhino),        &RHINO_TABLE },
	{ SPECIES_DEER,           MAKE(CDeer),         &DEER_TABLE },
	{ SPECIES_OSTRICH,        MAKE(COstrich),      &OSTRICH_TABLE },
	{ SPECIES_CAT,            MAKE(CCat),          &CAT_TABLE },
	{ SPECIES_SNAKE,          MAKE(CSnake),        &SNAKE_TABLE },
	{ SPECIES_DONKEY,         MAKE(CDonkey),       &DONKEY_TABLE },
	{ SPECIES_PENGUIN,        MAKE(CPenguin),      &PENGUIN_TABLE },
	{ SPECIES_TORTOISE,       MAKE(CTortoise),     &TORTOISE_TABLE },
	{ SPECIES_CAMEL,          MAKE(CCamel),        &CAMEL_TABLE },
	{ SPECIES_DUCK,           MAKE(CDuck),         &DUCK_TABLE },
	{ SPECIES_DUCKLING,       MakeLoneDuckling,    &DUCKLING_TABLE },
	{ SPECIES_GOAT,           MAKE(CGoat),         &GOAT_TABLE },
	{ SPECIES_FLAMINGO,       MAKE(CFlamingo),     &FLAMINGO_TABLE },
	{ SPECIES_SKUNK,          MAKE(CSkunk),        &SKUNK_TABLE },
	{ SPECIES_RABBIT,         MAKE(CRabbit),       &RABBIT_TABLE },
	{ SPECIES_SEAL,           MAKE(CSeal),         &SEAL_TABLE },
	{ SPECIES_FOX,            MAKE(CFox),          &FOX_TABLE },
	{ SPECIES_WARTHOG,        MAKE(CWarthog),      &WARTHOG_TABLE },
	{ SPECIES_KANGAROO,       MAKE(CKangaroo),     &KANGAROO_TABLE },
	{ SPECIES_KANGAROO_JOEY,  MAKE(CKangarooJoey), &KANGAROO_JOEY_TABLE },
	{ SPECIES_MOUSE,          MAKE(CMouse),        &MOUSE_TABLE },
	{ SPECIES_RACCOON,        MAKE(CRaccoon),      &RACCOON_TABLE },
	{ SPECIES_PIGEON,         MAKE(CPigeon),       &PIGEON_TABLE },
	{ SPECIES_OWL,            MAKE(COwl),          &OWL_TABLE },
	{ SPECIES_SNOWY_OWL,      MAKE(CSnowyOwl),     &SNOWY_OWL_TABLE },
	{ SPECIES_CROW,           MAKE(CCrow),         &CROW_TABLE },
	{ SPECIES_VULTURE,        MAKE(CVulture),      &VULTURE_TABLE },
	{ SPECIES_BLUEBIRD,       MAKE(CBlueBird),     &BLUEBIRD_TABLE },
	{ SPECIES_HARE,           MAKE(CSnowshoeHare), &HARE_TABLE },
	{ SPECIES_JACKRABBIT,     MAKE(CJackrabbit),   &JACKRABBIT_TABLE },
	{ SPECIES_ROADRUNNER,     MAKE(CRoadrunner),   &ROADRUNNER_TABLE },
	{ SPECIES_ZEBRA,          MAKE(CZebra),        &ZEBRA_TABLE },
	{ SPECIES_WALRUS,         MAKE(CWalrus),       &WALRUS_TABLE },
	{ SPECIES_BIGHORN,        MAKE(CBighorn),      &BIGHORN_TABLE },
	{ SPECIES_HYENA,          MAKE(CHyena),        &HYENA_TABLE },
	{ SPECIES_TIGER,          MAKE(CTiger),        &TIGER_TABLE },
	{ SPECIES_SNOW_TIGER,     MAKE(CSnowTiger),    &SNOW_TIGER_TABLE },
	{ SPECIES_LION,           MAKE(CLion),         &LION_TABLE },
	{ SPECIES_BOT,            MAKE(CBot),          &BOT_TABLE },
	{ SPECIES_LIZARD,         MAKE(CLizard),       &LIZARD_TABLE },
	{ SPECIES_PANDA,          MAKE(CPanda),        &PANDA_TABLE },
	{ SPECIES_KOALA,          MAKE(CKoala),        &KOALA_TABLE },
	{ SPECIES_SWAN,           MAKE(CSwan),         &SWAN_TABLE },
	{ SPECIES_GOOSE,          MAKE(CGoose),        &GOOSE_TABLE },
	{ SPECIES_ELEPHANT,       MAKE(CElephant),     &ELEPHANT_TABLE },
	{ SPECIES_ALIEN,          MakeLoneAlien,       &ALIEN_TABLE },
	{ SPECIES_UNICORN,        MAKE(CUnicorn),      &UNICORN_TABLE },
	{ SPECIES_BUTTERFLY_A,    MAKE(CButterfly),    &BUTTERFLY_TABLES[0] }, // a colour by chance
	{ SPECIES_BUTTERFLY_B,    MAKE(CButterfly),    &BUTTERFLY_TABLES[1] },
	{ SPECIES_BUTTERFLY_C,    MAKE(CButterfly),    &BUTTERFLY_TABLES[2] },
};
// clang-format on

std::span<const SpeciesEntry> AllSpecies()
{
	return s_species;
}

CElementAnimal* NewAnimal(int species, int centreX, int centreY, bool left)
{
	for (const SpeciesEntry& entry : s_species) {
		if (entry.species == species)
			return entry.make(centreX, centreY, left);
	}
	return nullptr;
}
