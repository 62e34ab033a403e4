// Levels as the player knows them.
#include "state/state_test.h"

#include <cstdio>

TEST_F(StateTest, EveryLevelHasItsLabel)
{
	struct {
		int first, last, shift; // of the main line
		const char* lettered;   // of a side branch
	} rows[] = {
	    {1, 12, 0, ""},     {13, 17, 0, "12"},    {18, 29, 5, ""},    {30, 34, 0, "24"},
	    {35, 46, 10, ""},   {47, 51, 0, "36"},    {52, 67, 15, ""},   {68, 74, 0, "52"},
	    {75, 106, 22, ""},  {107, 114, 0, "84"},  {115, 123, 30, ""}, {124, 131, 0, "93"},
	    {132, 152, 38, ""}, {153, 160, 0, "114"}, {161, 182, 46, ""},
	};
	int level = 0;
	for (const auto& row : rows)
		for (level = row.first; level <= row.last; level++) {
			std::string wanted = std::to_string(level - row.shift);
			if (*row.lettered)
				wanted =
				    std::string(row.lettered) + "-" + static_cast<char>('A' + level - row.first);
			EXPECT_EQ(wanted, data->LevelLabel(level)) << level;
		}
	EXPECT_EQ(LEVEL_COUNT + 1, level);
}

TEST_F(StateTest, LabelOfNoLevelIsThatOfTheFirst)
{
	EXPECT_EQ("1", data->LevelLabel(-1)) << "no level has been played yet";
	EXPECT_EQ("1", data->LevelLabel(0));
	EXPECT_EQ("1", data->LevelLabel(NO_LEVEL));
	data->currentLevel = 153;
	EXPECT_EQ("114-A", data->LevelLabel(-1));
}
