// The console dialogue byte by byte, and the stored file.
#include "sound/sound_settings.h"

#include "sound/sound_fixture.h"
#include "sound/sound_manager.h"
#include "sound/sound_output.h"
#include "state/save_folder.h"

#include <unistd.h>

static const std::string SYSTEM_QUESTION =
    "\nQUORBLET - SOUND INITIALIZATION\n"
    "\n"
    "****** PLEASE SELECT DESIRED SOUND SYSTEM ****** \n"
    "1 - PulseAudio\n"
    "2 - ALSA\n"
    "3 - JACK\n"
    "\nInput the number corresponding to the desired sound system and press ENTER: ";
static const std::string DRIVER_QUESTION =
    "\n\n****** PLEASE SELECT DESIRED SOUND DRIVER ****** "
    "1 : Loudspeaker\n"
    "2 : Headphones\n"
    "\nInput the number corresponding to the desired sound driver and press ENTER: ";
static const std::string LOADED_LINE =
    "\nSound settings loaded from file.  To alter settings in the future, run the game with a "
    "command line parameter of 4\n";

class SoundSettings : public SoundTest
{
protected:
	SoundSettings() { SetCaptureDrivers({"Loudspeaker", "Headphones"}); }

	std::string Ask(const std::string& answers)
	{
		FMOD_SYSTEM* system = nullptr;
		FMOD_System_Create(&system);
		FILE* input = tmpfile();
		fputs(answers.c_str(), input);
		rewind(input);
		testing::internal::CaptureStdout();
		AskSoundSettings(system, input);
		std::string printed = testing::internal::GetCapturedStdout();
		fclose(input);
		FMOD_System_Release(system);
		return printed;
	}
	std::string Path() { return SaveFolder() + "SOUNDv5.DAT"; }
	Bytes Stored()
	{
		Bytes data;
		ReadWholeFile(Path(), data);
		return data;
	}
	std::string StartWith(const Bytes& stored)
	{
		WriteBytes(Path(), stored);
		testing::internal::CaptureStdout();
		SoundInit(true);
		return testing::internal::GetCapturedStdout();
	}
};

TEST_F(SoundSettings, DialogueIsExactAndStored)
{
	EXPECT_EQ(SYSTEM_QUESTION + DRIVER_QUESTION, Ask("x\n94\n2 no 3 0 2\n"));
	EXPECT_EQ(Bytes({7, 0, 0, 0, 1, 0, 0, 0}), Stored());
	Ask("1\n1\n");
	EXPECT_EQ(Bytes({6, 0, 0, 0, 0, 0, 0, 0}), Stored());
	Ask("32");
	EXPECT_EQ(Bytes({8, 0, 0, 0, 1, 0, 0, 0}), Stored());
}

TEST_F(SoundSettings, EndOfInputEndsTheDialogueAndStoresNothing)
{
	EXPECT_EQ(SYSTEM_QUESTION, Ask(""));
	EXPECT_EQ(SYSTEM_QUESTION, Ask("0\n4\nnone"));
	EXPECT_EQ(SYSTEM_QUESTION + DRIVER_QUESTION, Ask("1\n7\n"));
	EXPECT_TRUE(Stored().empty());
}

TEST_F(SoundSettings, OnlySingleDigitsChooseADriver)
{
	SetCaptureDrivers(std::vector<std::string>(12, "Card"));
	std::string printed = Ask("2\n:9");
	EXPECT_NE(std::string::npos, printed.find("\n12 : Card\n"));
	EXPECT_EQ(Bytes({7, 0, 0, 0, 8, 0, 0, 0}), Stored());
	SetCaptureDrivers({});
	printed = Ask("1\n1\n1\n");
	EXPECT_NE(std::string::npos, printed.find("DRIVER ****** \nInput the number"));
	EXPECT_EQ(8, Stored()[4]) << "nothing to choose from, nothing stored anew";
}

TEST_F(SoundSettings, StoredChoiceIsToldAndTaken)
{
	EXPECT_EQ(LOADED_LINE, StartWith({8, 0, 0, 0, 1, 0, 0, 0}));
	EXPECT_TRUE(soundEnabled);
	SoundShutdown();
	std::filesystem::remove(Path());
	testing::internal::CaptureStdout();
	SoundInit(true);
	EXPECT_EQ("", testing::internal::GetCapturedStdout());
	EXPECT_TRUE(soundEnabled);
}

TEST_F(SoundSettings, FileOfOddLengthIsReportedAndTheDefaultsStand)
{
	for (size_t length : {0, 1, 7, 9, 4000}) {
		const std::string printed = StartWith(Bytes(length, 6));
		EXPECT_EQ("ERROR!  Damaged sound settings: " + Path() + "\n", printed);
		EXPECT_TRUE(soundEnabled);
		SoundShutdown();
	}
}

// The message goes to standard output; the death test looks at standard error.
static void Fatal(void (*action)())
{
	dup2(STDERR_FILENO, STDOUT_FILENO);
	action();
}

TEST_F(SoundSettings, ChoiceThatTheSystemRefusesIsFatal)
{
	const char* const message =
	    "Sound library error: An invalid parameter was passed to this function.";
	const Bytes refused[] = {{9, 0, 0, 0, 0, 0, 0, 0},
	                         {6, 0, 0, 0x80, 0, 0, 0, 0},
	                         {6, 0, 0, 0, 2, 0, 0, 0},
	                         {6, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF}};
	for (const Bytes& stored : refused) {
		WriteBytes(Path(), stored);
		EXPECT_EXIT(Fatal([] { SoundInit(true); }), testing::ExitedWithCode(1), message);
	}
}

TEST_F(SoundSettings, NoDriverLeavesTheGameSilent)
{
	SetCaptureDrivers({});
	SetCapturePlugged(false);
	const std::string printed = StartWith({6, 0, 0, 0, 3, 0, 0, 0});
	EXPECT_EQ(LOADED_LINE + "ERROR!  Sound library error: Error initializing output device.\n",
	          printed);
	EXPECT_FALSE(soundEnabled);
}
