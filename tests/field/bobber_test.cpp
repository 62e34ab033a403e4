// The oscillator: its four start phases and one whole swing.
#include "field/bobber.h"

#include <gtest/gtest.h>

TEST(Bobber, StartPicksQuarterOfTheSwing)
{
	struct {
		int start, phase, direction;
	} cases[] = {{0, 0, 1},    {3, 3, 1},    {10, 10, -1}, {13, 7, -1}, {20, 0, -1},
	             {23, -3, -1}, {30, -10, 1}, {33, -7, 1},  {40, 0, 1}};
	for (const auto& each : cases) {
		CBobber bobber(100, 10, 3, 8, each.start);
		EXPECT_EQ(each.phase, bobber.phase) << each.start;
		EXPECT_EQ(each.direction, bobber.direction) << each.start;
		EXPECT_FLOAT_EQ(0, bobber.offset) << "no offset before the first step";
		EXPECT_EQ(100, bobber.Value());
	}
}

TEST(Bobber, SwingsUpAndDownAndTurnsAtTheEnds)
{
	CBobber bobber(100, 4, 1, 8, 0);
	int expected[] = {106, 104, 102, 100, 98, 96, 94, 92, 94, 96, 98, 100};
	// From phase 0 forward: the offset falls to 0 at the end of the swing, changes sign there.
	int seen[12];
	for (int& value : seen)
		value = bobber.StepValue();
	for (int i = 0; i < 12; i++)
		EXPECT_EQ(expected[i], seen[i]) << "step " << i + 1;
}

TEST(Bobber, ValueIsCutTowardZero)
{
	CBobber bobber(-0.5f, 4, 1, 1, 8); // direction -1: the offset is negative
	bobber.Step();
	EXPECT_FLOAT_EQ(-0.75f, bobber.offset);
	EXPECT_EQ(-1, bobber.Value()) << "-1.25";
}

TEST(Bobber, HighCurveStaysLongerAwayFromTheCentre)
{
	CBobber flat(0, 10, 1, 100, 0), round(0, 10, 3, 100, 0);
	for (int i = 0; i < 5; i++) {
		flat.Step();
		round.Step();
	}
	EXPECT_NEAR(50, flat.offset, 0.01f);
	EXPECT_NEAR(87.5f, round.offset, 0.01f);
}
