// Runs all tests of the game on SDL's dummy video driver.
#include "sound/sound_output.h"

#include <cstdlib>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
	setenv("SDL_VIDEODRIVER", "dummy", 1);
	ChooseSoundOutput(SOUND_OUTPUT_NONE);
	testing::InitGoogleTest(&argc, argv);
	testing::GTEST_FLAG(death_test_style) = "threadsafe";
	return RUN_ALL_TESTS();
}
