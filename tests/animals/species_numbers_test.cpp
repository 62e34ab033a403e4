// Numbers of species and the tables that translate them.
#include "animals/species_numbers.h"

#include <gtest/gtest.h>
#include <set>

TEST(SpeciesNumbers, IndexAndNumberInvertEachOther)
{
	int previous = 0;
	for (int index = 0; index < DENSE_SPECIES; index++) {
		int species = SpeciesOfIndex(index);
		EXPECT_EQ(index, SpeciesIndex(species));
		EXPECT_GT(species, previous) << "ascending";
		previous = species;
	}
	EXPECT_EQ(0, SpeciesOfIndex(-1));
	EXPECT_EQ(0, SpeciesOfIndex(64));
}

TEST(SpeciesNumbers, OnlyTheListedNumbersHaveAnIndex)
{
	int counted = 0;
	for (int species = -5; species < 100; species++)
		counted += SpeciesIndex(species) >= 0;
	EXPECT_EQ(64, counted);
	for (int species : {0, 4, 6, 18, 19, 49, 65, 74, 75, 76})
		EXPECT_EQ(-1, SpeciesIndex(species)) << species;
	EXPECT_EQ(0, SpeciesIndex(SPECIES_SHEEP));
	EXPECT_EQ(12, SpeciesIndex(SPECIES_COYOTE));
	EXPECT_EQ(56, SpeciesIndex(SPECIES_LIZARD));
	EXPECT_EQ(63, SpeciesIndex(SPECIES_UNICORN));
}

TEST(SpeciesNumbers, RareBitsInvert)
{
	for (int bit = 0; bit < RARE_SPECIES; bit++)
		EXPECT_EQ(bit, RareBitOf(SpeciesOfRareBit(bit)));
	EXPECT_EQ(15, RareBitOf(SPECIES_GOOSE));
	EXPECT_EQ(-1, RareBitOf(SPECIES_SHEEP));
	EXPECT_EQ(0, SpeciesOfRareBit(16));
}

TEST(SpeciesNumbers, EverySpeciesHasAWordOfItsOwn)
{
	std::set<std::string> words;
	for (int index = 0; index < DENSE_SPECIES; index++)
		words.insert(SpeciesPrefix(SpeciesOfIndex(index)));
	EXPECT_EQ(64u, words.size());
	EXPECT_EQ(0u, words.count(""));
	EXPECT_STREQ("road", SpeciesPrefix(SPECIES_ROADRUNNER));
	EXPECT_STREQ("roadrunner", SpeciesBubbleWord(SPECIES_ROADRUNNER));
	EXPECT_STREQ("", SpeciesPrefix(6));
}
