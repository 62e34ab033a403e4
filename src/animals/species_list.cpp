// The species that stand for themselves, a line each.
#include "animals/species.h"

#include "animals/butterfly.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/monkey.h"
#include "animals/sheep.h"
#include "animals/species_numbers.h"

// A function that makes one of a class.
#define MAKE(className)                                                                            \
	[](int centreX, int centreY, bool left) -> CElementAnimal* {                                   \
		return new className(centreX, centreY, left);                                              \
	}

static CElementAnimal* MakeLoneDuckling(int centreX, int centreY, bool)
{
	return new CDuckling(centreX, centreY, nullptr);
}

// clang-format off
static const SpeciesEntry s_species[] = {
	// number               maker              table
	{ SPECIES_SHEEP,        MAKE(CSheep),      &SHEEP_TABLE },
	{ SPECIES_MONKEY,       MAKE(CMonkey),     &MONKEY_TABLE },
	{ SPECIES_DUCK,         MAKE(CDuck),       &DUCK_TABLE },
	{ SPECIES_DUCKLING,     MakeLoneDuckling,  &DUCKLING_TABLE },
	{ SPECIES_BUTTERFLY_A,  MAKE(CButterfly),  &BUTTERFLY_TABLES[0] }, // a colour by chance
	{ SPECIES_BUTTERFLY_B,  MAKE(CButterfly),  &BUTTERFLY_TABLES[1] },
	{ SPECIES_BUTTERFLY_C,  MAKE(CButterfly),  &BUTTERFLY_TABLES[2] },
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
