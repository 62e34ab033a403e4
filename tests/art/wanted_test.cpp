// Tests of the list of wanted names.
#include "art/core/files.h"
#include "art/wanted.h"

#include <gtest/gtest.h>
#include <set>

using Names = std::vector<std::string>;

TEST(Wanted, PlainNameStandsForItself)
{
	EXPECT_EQ(ExpandPattern("sidebarmain.png"), Names({"sidebarmain.png"}));
	EXPECT_EQ(ExpandPattern("broken[0..3.png"), Names({"broken[0..3.png"}));
}

TEST(Wanted, RangesCountAndKeepTheirZeros)
{
	EXPECT_EQ(ExpandPattern("a[9..11].png"), Names({"a9.png", "a10.png", "a11.png"}));
	EXPECT_EQ(ExpandPattern("b[09..10]"), Names({"b09", "b10"}));
	EXPECT_EQ(ExpandPattern("c[B..D]"), Names({"cB", "cC", "cD"}));
}

TEST(Wanted, BracketsMultiplyAndAlternativesMix)
{
	EXPECT_EQ(ExpandPattern("x[left|right][0..1]"),
	          Names({"xleft0", "xleft1", "xright0", "xright1"}));
	EXPECT_EQ(ExpandPattern("f[0|2..3]"), Names({"f0", "f2", "f3"}));
}

TEST(Wanted, CommentsAreSkippedAndBesideFilesKeptApart)
{
	WantedNames names = ReadWanted("# all\na.png b[0..1].tga # tail\n\nbeside: icon.dat\nc.jpg\n");
	EXPECT_EQ(names.pictures, Names({"a.png", "b0.tga", "b1.tga", "c.jpg"}));
	EXPECT_EQ(names.beside, Names({"icon.dat"}));
}

// A slip in one bracket would ask for pictures that nobody can draw, or for none at all.
TEST(Wanted, TheGamesListNamesEveryPictureOnce)
{
	std::string text;
	ASSERT_TRUE(ReadFile(std::string(QUORBLET_SOURCE_DIR) + "/art/wanted.txt", text));
	WantedNames names = ReadWanted(text);
	std::set<std::string> unique(names.pictures.begin(), names.pictures.end());
	EXPECT_EQ(unique.size(), names.pictures.size());
	EXPECT_GT(names.pictures.size(), 4500u);
	for (const std::string& name : names.pictures) {
		std::string end = name.size() > 4 ? name.substr(name.size() - 4) : "";
		EXPECT_TRUE(end == ".png" || end == ".tga" || end == ".jpg") << name;
		EXPECT_EQ(name.find_first_of("[]|"), std::string::npos) << name;
	}
}
