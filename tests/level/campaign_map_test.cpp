// What the map makes of a player's progress: which dots stand there, of what kind, in what state.
#include "level/campaign_map.h"

#include "state/state_test.h"

#include <cstdlib>

class CampaignMapTest : public StateTest
{
protected:
	void Finish(int first, int last)
	{
		for (int level = first; level <= last; level++)
			data->profile.levels[level - 1].doneEver = data->profile.levels[level - 1].doneThisRun =
			    1;
	}
	DotState State(int level) const { return StateOfDot(*data, level); }
	DotKind Kind(int level) const { return KindOfDot(*data, level); }
};

TEST_F(CampaignMapTest, GroupsPartTheLevelsAndOpenOneByOne)
{
	EXPECT_EQ(1, FirstLevel(GROUP_A));
	for (int level = 1; level <= LEVEL_COUNT; level++) {
		const IslandGroup group = GroupOfLevel(level);
		EXPECT_EQ(level <= 61 ? GROUP_A : level <= 117 ? GROUP_B : GROUP_C, group) << level;
		EXPECT_TRUE(FirstLevel(group) <= level && level <= LastLevel(group)) << level;
	}
	EXPECT_TRUE(IsGroupOpen(*data, GROUP_A));
	EXPECT_FALSE(IsGroupOpen(*data, GROUP_B) || IsGroupOpen(*data, GROUP_C));
	data->OpenIsland(3);
	EXPECT_TRUE(IsGroupOpen(*data, GROUP_B));
	EXPECT_FALSE(IsGroupOpen(*data, GROUP_C));
	data->OpenIsland(5);
	EXPECT_TRUE(IsGroupOpen(*data, GROUP_C));
}

TEST_F(CampaignMapTest, GateShowsItsBranchAndOpensTheWayPastIt)
{
	const struct {
		int gate, last;
	} branches[] = {{12, 17}, {29, 34}, {46, 51}, {67, 74}, {106, 114}, {123, 131}, {152, 160}};
	for (const auto& branch : branches) {
		SCOPED_TRACE(branch.gate);
		const int side = branch.gate + 1, behind = branch.last + 1;
		EXPECT_TRUE(HasDot(*data, branch.gate) && HasDot(*data, behind));
		EXPECT_FALSE(HasDot(*data, side) || HasDot(*data, branch.last));
		Finish(1, branch.gate - 1);
		EXPECT_EQ(DOT_INCOMPLETE, State(branch.gate));
		EXPECT_FALSE(HasDot(*data, side));
		EXPECT_EQ(DOT_LOCKED, State(behind));

		Finish(branch.gate, branch.gate);
		EXPECT_TRUE(HasDot(*data, side) && HasDot(*data, branch.last));
		EXPECT_TRUE(IsBranchNew(*data, *BranchOfLevel(side)));
		EXPECT_EQ(DOT_INCOMPLETE, State(side));
		EXPECT_EQ(DOT_LOCKED, State(side + 1));
		EXPECT_EQ(DOT_INCOMPLETE, State(behind));
		EXPECT_EQ(DOT_LOCKED, State(behind + 1));
		Finish(side, side);
		EXPECT_FALSE(IsBranchNew(*data, *BranchOfLevel(side)));
	}
}

TEST_F(CampaignMapTest, StateFollowsThisRunAndTheOnesBefore)
{
	EXPECT_EQ(DOT_INCOMPLETE, State(1));
	EXPECT_EQ(DOT_LOCKED, State(2));
	Finish(1, 4);
	EXPECT_EQ(DOT_COMPLETED, State(4));
	EXPECT_EQ(DOT_INCOMPLETE, State(5));
	EXPECT_EQ(DOT_LOCKED, State(6));
	data->ResetRun();
	for (int level = 1; level <= 5; level++)
		EXPECT_EQ(DOT_INCOMPLETE, State(level)) << "after a game over the way is walked again";
	EXPECT_EQ(DOT_LOCKED, State(6));
	data->ResetProgress();
	EXPECT_EQ(DOT_LOCKED, State(2));
}

TEST_F(CampaignMapTest, KindsTellBonusesBranchesStarsAndAliens)
{
	const struct {
		int level;
		DotKind before, after;
	} rows[] = {
	    {1, DOT_REGULAR, DOT_REGULAR},  {4, DOT_BONUS, DOT_BONUS},  {12, DOT_STAR, DOT_BONUS},
	    {13, DOT_SIDE, DOT_SIDE},       {15, DOT_BONUS, DOT_BONUS}, {23, DOT_STAR, DOT_ALIEN},
	    {29, DOT_STAR, DOT_BONUS},      {59, DOT_BONUS, DOT_BONUS}, {60, DOT_STAR, DOT_ALIEN},
	    {61, DOT_REGULAR, DOT_REGULAR}, {67, DOT_STAR, DOT_BONUS},  {68, DOT_SIDE, DOT_SIDE},
	    {83, DOT_STAR, DOT_ALIEN},      {106, DOT_STAR, DOT_BONUS}, {117, DOT_BONUS, DOT_BONUS},
	    {123, DOT_STAR, DOT_BONUS},     {140, DOT_STAR, DOT_ALIEN}, {152, DOT_STAR, DOT_BONUS},
	    {160, DOT_SIDE, DOT_SIDE},      {170, DOT_STAR, DOT_ALIEN}, {182, DOT_STAR, DOT_ALIEN},
	};
	for (const auto& row : rows)
		EXPECT_EQ(row.before, Kind(row.level)) << row.level;
	Finish(1, LEVEL_COUNT);
	for (const auto& row : rows)
		EXPECT_EQ(row.after, Kind(row.level)) << row.level;
}

// Only these pairs have pictures.
TEST_F(CampaignMapTest, NoProgressAsksForADotThatIsNotDrawn)
{
	for (int done = 0; done <= LEVEL_COUNT; done++) {
		data->ResetProgress();
		Finish(1, done);
		for (bool runLost : {false, true}) {
			if (runLost)
				data->ResetRun();
			for (int level = 1; level <= LEVEL_COUNT; level++) {
				const DotState state = State(level);
				EXPECT_FALSE(Kind(level) == DOT_ALIEN && state < DOT_COMPLETED) << level;
				EXPECT_FALSE(Kind(level) == DOT_STAR && state == DOT_COMPLETED) << level;
			}
		}
	}
}

TEST_F(CampaignMapTest, NextLevelLiesBehindTheLastUnbrokenStretch)
{
	EXPECT_EQ(1, NextLevelOfRun(*data));
	Finish(1, 12);
	EXPECT_EQ(13, NextLevelOfRun(*data));
	Finish(18, 20);
	EXPECT_EQ(21, NextLevelOfRun(*data)) << "a branch passed by";
	EXPECT_EQ(21, LevelToPlay(*data, GROUP_A));
	Finish(13, 61);
	EXPECT_EQ(GROUP_B, GroupOfLevel(NextLevelOfRun(*data)));
	EXPECT_EQ(62, LevelToPlay(*data, GROUP_B));
	EXPECT_EQ(1, LevelToPlay(*data, GROUP_A)) << "all done: from the start";
	Finish(62, 117);
	EXPECT_EQ(GROUP_C, GroupOfLevel(NextLevelOfRun(*data)));
	Finish(118, LEVEL_COUNT);
	EXPECT_EQ(GROUP_C, GroupOfLevel(NextLevelOfRun(*data)));
	EXPECT_EQ(118, LevelToPlay(*data, GROUP_C));
	data->ResetRun();
	EXPECT_EQ(GROUP_A, GroupOfLevel(NextLevelOfRun(*data)));
	EXPECT_EQ(62, LevelToPlay(*data, GROUP_B));
}

TEST_F(CampaignMapTest, SixLevelsOpenAnIslandEach)
{
	const int opening[] = {18, 40, 61, 90, 117, 146};
	int opened          = 0;
	for (int level = 1; level <= LEVEL_COUNT; level++)
		if (level == opening[opened % 6]) {
			EXPECT_EQ(++opened, CGameData::IslandOpenedBy(level)) << level;
		} else {
			EXPECT_EQ(0, CGameData::IslandOpenedBy(level)) << level;
		}
	EXPECT_EQ(6, opened);
}

// The middle of a dot must not lie in the area of another one of its group, which reaches 9 pixels
// to the sides and 8 up and down: keys and pointer would choose the wrong one.
TEST_F(CampaignMapTest, DotsKeepApartAndOnTheScreen)
{
	for (int a = 1; a <= LEVEL_COUNT; a++) {
		const DotPlace place = PlaceOfDot(a);
		EXPECT_TRUE(place.x >= 30 && place.x <= 625 && place.y >= 215 && place.y <= 470) << a;
		for (int b = a + 1; b <= LastLevel(GroupOfLevel(a)); b++) {
			const DotPlace other = PlaceOfDot(b);
			EXPECT_TRUE(std::abs(other.x - place.x) > 9 || std::abs(other.y - place.y) > 8)
			    << a << " and " << b;
		}
	}
}
