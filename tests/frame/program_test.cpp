// The mode argument, start-up and shut-down, the splash pictures.
#include "frame/program.h"

#include "frame/controller.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/input.h"
#include "media/media_test.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/intro.h"
#include "state/game_data.h"
#include "state/save_folder.h"

#include <filesystem>
#include <functional>

static ProgramMode Parsed(std::vector<std::string> words)
{
	std::vector<char*> arguments;
	words.insert(words.begin(), "quorblet");
	for (std::string& word : words)
		arguments.push_back(word.data());
	return ParseMode(static_cast<int>(arguments.size()), arguments.data());
}

TEST(ProgramMode, OneNumberFromOneToSevenCounts)
{
	for (int mode = 0; mode < 8; mode++) {
		const ProgramMode parsed = Parsed({std::to_string(mode)});
		EXPECT_EQ(mode % 2 == 1, parsed.windowed) << mode;
		EXPECT_EQ(mode == 2 || mode == 3 || mode == 6 || mode == 7, parsed.soundOff) << mode;
		EXPECT_EQ(mode >= 4, parsed.askDevice) << mode;
	}
	EXPECT_TRUE(Parsed({"0x3"}).windowed);
	EXPECT_TRUE(Parsed({"0x3"}).soundOff);
	EXPECT_TRUE(Parsed({"05"}).askDevice);
	for (const char* word : {"8", "-1", "9", "window", "", "99999999999999999999"}) {
		EXPECT_FALSE(Parsed({word}).windowed) << word;
		EXPECT_FALSE(Parsed({word}).soundOff) << word;
		EXPECT_FALSE(Parsed({word}).askDevice) << word;
	}
	EXPECT_FALSE(Parsed({"3", "3"}).windowed) << "two arguments are none";
	EXPECT_FALSE(Parsed({}).windowed);
}

// A run of the whole program on the tiny data, with the virtual clock.
class ProgramTest : public testing::Test, public CFrameHook
{
protected:
	ProgramTest() : clockBefore(g_clock)
	{
		GTEST_FLAG_SET(death_test_style, "fast"); // leaves no folders behind
		g_clock = &clock;
		SetSaveFolderRoot(home.path);
	}
	~ProgramTest() override
	{
		g_clock = clockBefore;
		SetSaveFolderRoot("");
	}
	void BeforeFrame() override
	{
		frames++;
		if (inFrame)
			inFrame();
		if (frames < lastFrame)
			return;
		SDL_Event event = {};
		event.type      = SDL_QUIT;
		SDL_PushEvent(&event);
	}
	void AfterFrame() override { framesShown = g_display ? g_display->PresentedFrames() : 0; }
	int Run(const std::string& mode = "1") { return RunProgram(Parsed({mode}), 1, this); }

	CTinyData files;
	CTempFolder home;
	CVirtualClock clock;
	CClock* clockBefore;
	std::function<void()> inFrame;
	int frames = 0, lastFrame = 5, framesShown = 0;
};

TEST_F(ProgramTest, ClosingTheWindowTakesAllDownInOrder)
{
	testing::internal::CaptureStdout();
	EXPECT_EQ(0, Run());
	EXPECT_EQ("", testing::internal::GetCapturedStdout()) << "every image was given back";
	EXPECT_EQ(5, frames);
	EXPECT_EQ(4, framesShown) << "the frame that quits is not shown";
	EXPECT_FALSE(g_display || g_render || g_input || g_cursor || g_gameData);
	EXPECT_FALSE(g_levelGameData || g_currentController || g_splashOnTop);
	EXPECT_FALSE(std::filesystem::is_empty(SaveFolder())) << "the profile list is saved";
	EXPECT_EQ(0, Run()) << "and it can run again";
}

// The profile holds the mode of the last run.
TEST_F(ProgramTest, ProfileCanOnlyTurnFullscreenOff)
{
	bool wanted = false;
	inFrame     = [&] { wanted = g_fullscreen; };
	Run("0");
	EXPECT_TRUE(wanted);
	Run("1");
	EXPECT_FALSE(wanted) << "mode 1 beats the profile";
	Run("0");
	EXPECT_FALSE(wanted) << "the last run was in a window";
}

TEST_F(ProgramTest, MoreGamesAddressIsOneShortLine)
{
	Run();
	EXPECT_EQ("", g_moreGamesAddress);
	WriteBytes("data1.dat", Bytes(70000, 'x'));
	Run();
	EXPECT_EQ(std::string(255, 'x'), g_moreGamesAddress);
	const std::string line = "http://example.org/\r\nmore";
	WriteBytes("data1.dat", Bytes(line.begin(), line.end()));
	Run();
	EXPECT_EQ("http://example.org/", g_moreGamesAddress);
}

TEST_F(ProgramTest, MissingFilesEndStartUp)
{
	WriteBytes("loading.dat", Bytes(30, 7));
	EXPECT_EXIT(Run(), testing::ExitedWithCode(1), "");
	WriteBytes("loading.dat", PlainBmp(800, 600, BLACK));
	std::filesystem::remove("loadingtext.dat");
	EXPECT_EXIT(Run(), testing::ExitedWithCode(1), "");
	WriteBytes("loadingtext.dat", PlainBmp(400, 60, BLACK));
	WriteBytes("resource.dat", {});
	EXPECT_EXIT(Run(), testing::ExitedWithCode(1), "") << "no marker pictures";
}

// The pictures fade in one after the other; the eyes blink by the clock.
TEST_F(ProgramTest, SplashesFollowTheClock)
{
	WriteBytes("splash.dat", PlainBmp(800, 600, RED));
	WriteBytes("splash2.jpg", PlainBmp(800, 600, GREEN));
	const auto spriteAt = [](int depth) -> CSprite* {
		for (CSprite* sprite : g_render->sprites)
			if (sprite->depth == depth)
				return sprite;
		return nullptr;
	};
	std::string eyes; // shown in the frames of the first three seconds, told by tenths
	unsigned int fadeInEnd = 0;
	inFrame                = [&] {
        const CSprite* first = spriteAt(150002);
        if (!first->IsHidden() && !first->IsFading() && !fadeInEnd)
            fadeInEnd = clock.Ticks();
        if (!spriteAt(150003)->IsHidden() && fadeInEnd)
            eyes += std::to_string((clock.Ticks() - fadeInEnd) / 100) + " ";
        if (frames == 130) {
            EXPECT_PRED2(Near, GREEN, ScreenPixel(100, 100));
            EXPECT_EQ(spriteAt(150004), g_splashOnTop);
        }
        if (frames == 60) {
            EXPECT_PRED2(Near, RED, ScreenPixel(100, 100));
            EXPECT_EQ(first, g_splashOnTop);
            EXPECT_TRUE(spriteAt(150004)->IsHidden());
        }
	};
	lastFrame = 135;
	testing::internal::CaptureStdout();
	EXPECT_EQ(0, Run());
	EXPECT_EQ("", testing::internal::GetCapturedStdout());
	EXPECT_EQ(0u, eyes.find("8")) << eyes;
	EXPECT_NE(std::string::npos, eyes.find("11 ")) << eyes;
	EXPECT_NE(std::string::npos, eyes.find("19 ")) << eyes;
	EXPECT_EQ(std::string::npos, eyes.find("15 ")) << eyes;
}
