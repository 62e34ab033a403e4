// The loading bar's share of the sounds.
#include "media/display.h"
#include "media/media_test.h"
#include "sound/sound.h"
#include "sound/sound_fixture.h"
#include "sound/sound_manager.h"
#include "sound/sound_output.h"

const int BAR_X     = 360; // where the loading text is uncovered
const int BAR_Y     = 527;
const int BAR_WIDTH = 400; // of the test's own text

class SoundLoading : public MediaTest
{
protected:
	SoundLoading()
	{
		ChooseSoundOutput(SOUND_OUTPUT_CAPTURE);
		SoundInit(true);
	}
	~SoundLoading() override
	{
		SoundShutdown();
		ChooseSoundOutput(SOUND_OUTPUT_NONE);
	}

	int Uncovered()
	{
		int width = 0;
		while (width <= BAR_WIDTH && Near(WHITE, ScreenPixel(BAR_X + width, BAR_Y)))
			width++;
		return width;
	}
	void LoadSounds(int count)
	{
		Container entries;
		for (int i = 0; i < count; i++)
			entries.push_back({std::to_string(i) + ".ogg", Wav(Level(50 + i))});
		WriteBytes("resource2.dat", ContainerBytes(entries));
		LoadSoundResources(display.get());
	}
};

TEST_F(SoundLoading, EachSoundMovesTheBarBy100)
{
	ASSERT_TRUE(soundEnabled);
	ClearScreen();
	display->Preload();
	const int images = display->ImageLoadingCount();
	const int total  = images + SOUND_LOADING_TOTAL;
	EXPECT_EQ(images * BAR_WIDTH / total, Uncovered());
	LoadSounds(70);
	EXPECT_EQ((images + 7000) * BAR_WIDTH / total, Uncovered());
	LoadSounds(SOUND_COUNT);
	EXPECT_EQ(BAR_WIDTH, Uncovered());
	display->FreeLoadingText();
	CSound last("140.ogg");
	EXPECT_NE(-1, last.handleIndex);
}
