// What a finished level is worth, type by type, at the edges.
#include "level/tally_rules.h"

#include "level/level_kinds.h"
#include "media/display.h"
#include "support/field_test.h"

#include <set>

namespace
{
struct BonusCase {
	const char* claim;
	TallyCount count;
	TallyGrade grade;
	int amount;
};
} // namespace

TEST(TallyRules, BonusLevelsPayByTypeAndGrade)
{
	// clang-format off
	const BonusCase cases[] = {
		{ "no upset to the end of the time is perfect", { TALLY_BIRDS, 6, 6, 0 }, GRADE_PERFECT, 10000 },
		{ "some upsets, time over",                     { TALLY_DRUMS, 1, 4, 0 }, GRADE_PARTIAL, 1250 },
		{ "ended by upsets: nothing",                   { TALLY_DOGS, 0, 4, 20 }, GRADE_NONE, 0 },
		{ "upsets left but time not over: nothing",     { TALLY_SKUNKS, 5, 5, 1 }, GRADE_NONE, 0 },
		{ "ball in play to the end",                    { TALLY_SPEEDBALL, 0, 75 }, GRADE_PERFECT, 10000 },
		{ "nine seconds are no partial success, yet pay", { TALLY_SPEEDBALL, 66, 75 }, GRADE_NONE, 600 },
		{ "ten seconds are",                            { TALLY_SPEEDBALL, 65, 75 }, GRADE_PARTIAL, 666 },
		{ "all animals, twelve seconds left",           { TALLY_TIGHT_SPOT, 12, 0, 2 }, GRADE_PERFECT, 6200 },
		{ "one animal left pays nothing at all",        { TALLY_TIGHT_SPOT, 30, 1, 2 }, GRADE_NONE, 0 },
		{ "no runner caught",                           { TALLY_STAMPEDE, 32, 32, 8 }, GRADE_NONE, 0 },
		{ "half of the herd",                           { TALLY_STAMPEDE, 16, 32, 8 }, GRADE_PARTIAL, 2500 },
		{ "the whole herd",                             { TALLY_STAMPEDE, 0, 32, 8 }, GRADE_PERFECT, 10000 },
		{ "199 fruit: partial, cut toward zero",        { TALLY_HARVEST, 100, 50, 25, 24 }, GRADE_PARTIAL, 4975 },
		{ "200 fruit",                                  { TALLY_HARVEST, 200, 0, 0, 0 }, GRADE_PERFECT, 5000 },
		{ "no fruit is partial still",                  { TALLY_HARVEST, 0, 0, 0, 0 }, GRADE_PARTIAL, 0 },
		{ "all broken with seven seconds left",         { TALLY_DEMOLITION, 0, 95, 7 }, GRADE_PERFECT, 5700 },
		{ "nothing broken",                             { TALLY_DEMOLITION, 95, 95, 0 }, GRADE_NONE, 0 },
		{ "one of ninety-five broken",                  { TALLY_DEMOLITION, 94, 95, 0 }, GRADE_PARTIAL, 52 },
		{ "coins count for nothing by themselves",      { TALLY_COIN, 500, 46, 46 }, GRADE_NONE, 0 },
		{ "everything broken",                          { TALLY_COIN, 3, 0, 46 }, GRADE_PERFECT, 10000 },
		{ "23 eggs",                                    { TALLY_EGG, 23 }, GRADE_PARTIAL, 4791 },
		{ "24 eggs",                                    { TALLY_EGG, 24 }, GRADE_PERFECT, 5000 },
		{ "36 eggs pay more than the full amount",      { TALLY_EGG, 36 }, GRADE_PERFECT, 7500 },
		{ "no egg",                                     { TALLY_EGG, 0 }, GRADE_NONE, 0 },
		{ "nothing to break cannot divide",             { TALLY_DEMOLITION, 0, 0, 5 }, GRADE_PERFECT, 500 },
	};
	// clang-format on
	for (const BonusCase& row : cases) {
		const BonusResult result = ScoreBonusLevel(row.count, {});
		EXPECT_EQ(row.grade, result.grade) << row.claim;
		EXPECT_EQ(row.amount, result.amount) << row.claim;
	}
}

TEST(TallyRules, AnOrderCountsTheRunFromTheFirstCrateOn)
{
	struct {
		std::vector<int> record;
		TallyGrade grade;
		int amount, broken;
	} cases[] = {
	    {{1, 2, 3, 4, 0}, GRADE_PERFECT, 10000, 4}, {{1, 2, 4, 3, 0}, GRADE_PARTIAL, 2500, 4},
	    {{2, 1, 3, 4, 0}, GRADE_NONE, 0, 4},        {{1, 0, 0, 0, 0}, GRADE_PARTIAL, 1250, 1},
	    {{0, 0, 0, 0, 0}, GRADE_NONE, 0, 0},
	};
	for (const auto& row : cases) {
		const BonusResult result = ScoreBonusLevel({TALLY_ORDER, 4}, row.record);
		EXPECT_EQ(row.grade, result.grade);
		EXPECT_EQ(row.amount, result.amount);
		EXPECT_EQ(row.broken, CratesBroken(row.record, 4));
	}
}

TEST(TallyRules, TheTimeBonusFallsAtItsBounds)
{
	const int bounds[][2] = {{0, 25000},  {9, 25000}, {10, 15000}, {19, 15000},
	                         {20, 10000}, {30, 5000}, {40, 3000},  {50, 2000},
	                         {59, 2000},  {60, 1000}, {119, 1000}, {120, 500},
	                         {180, 250},  {240, 100}, {299, 100},  {300, 0}};
	for (const auto& row : bounds) {
		RegularFacts facts;
		facts.seconds = row[0];
		EXPECT_EQ(row[1], ScoreRegularLevel(facts).time) << row[0] << " seconds";
		EXPECT_EQ(row[1] == 0, TimeBonusWords(row[0]).empty()) << row[0] << " seconds";
	}
	EXPECT_STREQ("postlevel_bonustime_text5.png", TimeBonusWords(4)[1].file);
	EXPECT_STREQ("postlevel_bonustime_text10.png", TimeBonusWords(5)[1].file);
	EXPECT_STREQ("postlevel_bonustime_textminute.png", TimeBonusWords(59)[2].file);
}

TEST(TallyRules, CareIsWorthNothingOnceItFailed)
{
	RegularFacts facts;
	facts.seconds = 400;
	facts.skunks  = 2;
	facts.drums   = 3;
	facts.alien   = true;
	EXPECT_EQ(2000 + 3000 + 5000, ScoreRegularLevel(facts).Total());
	facts.sprayed = facts.drumFired = true;
	EXPECT_EQ(5000, ScoreRegularLevel(facts).Total());
	EXPECT_EQ(1, ScoreRegularLevel(facts).Lines());
}

TEST(TallyRules, ThePanelIsAsHighAsWhatItShows)
{
	EXPECT_EQ(570, TallyHeight(TALLY_REGULAR, 4, true));
	EXPECT_EQ(570 - 3 * 23 - 75, TallyHeight(TALLY_REGULAR, 1, false));
	EXPECT_EQ(570 - 4 * 23 + 27, TallyHeight(TALLY_REGULAR, 0, true));
	EXPECT_EQ(457, TallyHeight(TALLY_HARVEST, 0, false));
	EXPECT_EQ(390, TallyHeight(TALLY_EGG, 0, false));
}

class TallyWordsTest : public FieldTest
{
};

TEST_F(TallyWordsTest, EveryWordOfEveryTypeAndGradeIsAPicture)
{
	const int record[] = {2, 1, 0, 0};
	std::set<std::string> wanted;
	for (int type = TALLY_BIRDS; type <= TALLY_EGG; type++)
		for (int grade = GRADE_NONE; grade <= GRADE_PERFECT; grade++)
			for (int a : {0, 3}) {
				const TallyCount count = {type, a, 5, 8, 1};
				for (const TallyWord& word :
				     BonusLevelWords(count, static_cast<TallyGrade>(grade), record))
					if (word.file)
						wanted.insert(word.file);
			}
	for (int seconds : {1, 6, 15, 25, 35, 45, 55, 90, 150, 200, 250})
		for (const TallyWord& word : TimeBonusWords(seconds))
			wanted.insert(word.file);
	EXPECT_GT(wanted.size(), 40u);
	for (const std::string& name : wanted)
		EXPECT_TRUE(g_display->HasImage(name)) << name;
}

TEST(LevelKinds, FiftyOneLevelsAreNotPlain)
{
	int bonus = 0, alien = 0;
	for (int level = 1; level <= 182; level++) {
		bonus += IsBonusKind(KindOfLevel(level));
		alien += KindOfLevel(level) == KIND_ALIEN;
	}
	EXPECT_EQ(44, bonus);
	EXPECT_EQ(7, alien);
	EXPECT_EQ(KIND_REGULAR, KindOfLevel(0));
	EXPECT_EQ(KIND_REGULAR, KindOfLevel(183));
}
