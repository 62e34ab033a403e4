// The error channel and the profile counters.
#include "frame/debug.h"

#include "frame/clock.h"
#include "media/media_test.h"

#include <ctime>
#include <filesystem>

class DebugTest : public testing::Test
{
protected:
	DebugTest() : clockBefore(g_clock)
	{
		GTEST_FLAG_SET(death_test_style, "fast"); // leaves no folders behind
		std::filesystem::current_path(folder.path);
		g_clock = &clock;
	}
	~DebugTest() override
	{
		g_clock = clockBefore;
		std::filesystem::current_path(before);
	}

	std::string before = std::filesystem::current_path();
	CTempFolder folder;
	CVirtualClock clock;
	CClock* clockBefore;
};

TEST_F(DebugTest, ErrorsAreStampedAndAppended)
{
	testing::internal::CaptureStdout();
	Error("Unable: ", "reason", false, true);
	Error("quiet", false, false);
	EXPECT_EQ("ERROR!  Unable: reason\nERROR!  quiet\n", testing::internal::GetCapturedStdout());
	testing::internal::CaptureStdout();
	LogLine("note");
	EXPECT_EQ("", testing::internal::GetCapturedStdout());

	const time_t now = static_cast<time_t>(clock.Now());
	char stamp[64];
	strftime(stamp, sizeof stamp, "%d/%m/%y %H:%M:%S - ", localtime(&now));
	EXPECT_EQ(std::string(stamp) + "Unable: reason\r\n" + stamp + "note\r\n", ReadText("LOG.TXT"));
}

TEST_F(DebugTest, FatalErrorsAndAMissingLogEndTheProgram)
{
	EXPECT_EXIT(Error("end", true, false), testing::ExitedWithCode(1), "");
	std::filesystem::create_directory("LOG.TXT");
	EXPECT_EXIT(Error("not fatal", "", false, true), testing::ExitedWithCode(1), "");
	EXPECT_EXIT(LogLine("note"), testing::ExitedWithCode(1), "");
}

TEST_F(DebugTest, ProfileCounterPrintsAfterThreeHundredRounds)
{
	testing::internal::CaptureStdout();
	for (int round = 0; round < 301; round++) {
		ProfileStart(9);
		clock.Advance(2);
		ProfileStop(9);
	}
	EXPECT_EQ("profile counter 9: 600\n", testing::internal::GetCapturedStdout());
	testing::internal::CaptureStdout();
	ProfileStart(10);
	ProfileStop(-1);
	const std::string line = "Ran out of profile counters!  Increase the number in debug\n";
	EXPECT_EQ(line + line, testing::internal::GetCapturedStdout());
}
