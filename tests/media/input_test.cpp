// Events, the two cursor modes, the pointer's sprites.
#include "media/input.h"

#include "media/cursor.h"
#include "media/display.h"
#include "media/fake_controller.h"
#include "media/media_test.h"
#include "media/sprite.h"
#include "state/game_data.h"

class InputTest : public MediaTest
{
protected:
	std::string Polled()
	{
		input->Poll(&controller);
		return controller.Take();
	}
	static void Key(bool released, SDLKey key, int mod = KMOD_NONE)
	{
		SDL_Event event      = {};
		event.type           = released ? SDL_KEYUP : SDL_KEYDOWN;
		event.key.keysym.sym = key;
		event.key.keysym.mod = static_cast<SDLMod>(mod);
		SDL_PushEvent(&event);
	}
	static void Button(bool released, int button)
	{
		SDL_Event event     = {};
		event.type          = released ? SDL_MOUSEBUTTONUP : SDL_MOUSEBUTTONDOWN;
		event.button.button = static_cast<Uint8>(button);
		SDL_PushEvent(&event);
	}
	static void Motion(int x, int y, int xrel, int yrel)
	{
		SDL_Event event   = {};
		event.type        = SDL_MOUSEMOTION;
		event.motion.x    = static_cast<Uint16>(x);
		event.motion.y    = static_cast<Uint16>(y);
		event.motion.xrel = static_cast<Sint16>(xrel);
		event.motion.yrel = static_cast<Sint16>(yrel);
		SDL_PushEvent(&event);
	}

	CFakeController controller;
};

TEST_F(InputTest, KeysAndTwoButtonsReachTheController)
{
	Key(false, SDLK_a);
	Key(true, SDLK_a);
	EXPECT_EQ("down:97 up:97 ", Polled());
	for (int button = 1; button <= 5; button++) {
		Button(false, button);
		Button(true, button);
	}
	EXPECT_EQ("leftdown leftup rightdown rightup ", Polled());
}

TEST_F(InputTest, AltReturnTogglesTheModeAndReachesNobody)
{
	Key(false, SDLK_RETURN, KMOD_RALT);
	Key(true, SDLK_RETURN, KMOD_RALT);
	EXPECT_EQ("", Polled());
	EXPECT_TRUE(display->IsFullscreen());
	Polled(); // what the new window has to tell
	// The window system can lose the Alt of the release.
	Key(false, SDLK_RETURN, KMOD_LALT);
	Key(true, SDLK_RETURN);
	EXPECT_EQ(std::string::npos, Polled().find("13"));
	EXPECT_FALSE(display->IsFullscreen());
	Polled();
	Key(false, SDLK_RETURN);
	Key(true, SDLK_RETURN);
	EXPECT_EQ("down:13 up:13 ", Polled()) << "the next Return is heard again";
	Key(false, SDLK_SPACE, KMOD_LALT);
	EXPECT_EQ("down:32 ", Polled());
}

TEST_F(InputTest, SystemModeTakesTheEventsPlaceAndIgnoresRepeats)
{
	Motion(300, 200, 5, 5);
	Motion(300, 200, 0, 0);
	EXPECT_EQ("move:300,200 ", Polled());
	EXPECT_EQ(300, CursorX());
	EXPECT_EQ(200, CursorY());
}

TEST_F(InputTest, RelativeModeCountsMotionTimesSpeedWithinTheScreen)
{
	input->systemCursorMode = false;
	input->speed            = 2;
	input->positionX = input->positionY = 100;
	Motion(7, 7, 3, 0);
	Motion(7, 7, 0, 0);
	EXPECT_EQ("move:106,100 ", Polled());
	input->positionX = 799.5f;
	input->speed     = 1;
	Motion(0, 0, 5, -400);
	EXPECT_EQ("move:800,0 ", Polled());
	Motion(0, 0, -900, 700);
	EXPECT_EQ("move:0,600 ", Polled());
	input->speed = 0.5f;
	Motion(0, 0, 3, 0);
	Motion(0, 0, 1, 0);
	EXPECT_EQ("move:1,600 move:2,600 ", Polled()) << "fractions are kept";
}

TEST_F(InputTest, WarpReportsItselfOnce)
{
	WarpCursor(320, 400);
	EXPECT_EQ("move:320,400 ", Polled());
	EXPECT_EQ("", Polled());
	input->systemCursorMode = false;
	WarpCursor(900, 900);
	EXPECT_EQ(800, CursorX());
	EXPECT_EQ(600, CursorY());
	Polled();
	WarpCursor(-5, 50);
	EXPECT_EQ(0, CursorX()) << "the place holds at once";
	EXPECT_EQ("move:1,51 ", Polled()) << "and moves on by one step of speed";
}

// Right after a grab the mouse's absolute place can come in as its motion.
TEST_F(InputTest, JumpRightAfterAGrabIsDropped)
{
	input->systemCursorMode = false;
	input->Grab(true);
	Polled();
	Motion(400, 300, 400, 300);
	Motion(400, 300, 2, 3);
	EXPECT_EQ("move:2,3 ", Polled());
	input->Grab(false);
	input->Grab(true);
	Motion(400, 300, 2, 3);
	Motion(400, 300, 200, 0);
	EXPECT_EQ("move:4,6 move:204,6 ", Polled()) << "only the first one, and only a jump";
	input->Grab(false);
}

TEST_F(InputTest, ClosingTheWindowQuitsAndFocusShowsThePicture)
{
	SDL_Event event = {};
	event.type      = SDL_QUIT;
	controller.SetResult(RESULT_RETURN);
	SDL_PushEvent(&event);
	Polled();
	EXPECT_EQ(RESULT_QUIT, controller.result) << "over a result that was pending";
	const int frames  = display->PresentedFrames();
	event             = {};
	event.type        = SDL_ACTIVEEVENT;
	event.active.gain = 0;
	SDL_PushEvent(&event);
	Polled();
	EXPECT_EQ(frames, display->PresentedFrames());
	event.active.gain = 1;
	SDL_PushEvent(&event);
	Polled();
	EXPECT_EQ(frames + 1, display->PresentedFrames());
}

TEST_F(InputTest, OptionsOfTheProfileAreReadAtStart)
{
	data->profile.systemCursorOn = 0;
	data->profile.mouseSpeed     = 1.5f;
	CInput other;
	EXPECT_FALSE(other.systemCursorMode);
	EXPECT_FLOAT_EQ(1.5f, other.speed);
}

TEST_F(InputTest, HiddenCursorComesBackAfterItsMotions)
{
	HideCursor(-1);
	EXPECT_TRUE(IsCursorHidden());
	CursorActivity();
	EXPECT_FALSE(IsCursorHidden());
	HideCursor(1);
	CursorActivity();
	CursorActivity();
	EXPECT_TRUE(IsCursorHidden()) << "hidden over two motions";
	CursorActivity();
	EXPECT_FALSE(cursor->arrow->IsHidden());
}

TEST_F(InputTest, HourglassTakesTheArrowsPlace)
{
	HideCursor(-1);
	CursorActivity();
	input->x = 100;
	input->y = 50;
	PlaceCursor();
	EXPECT_EQ(100, cursor->arrow->X());
	EXPECT_EQ(96, cursor->hourglass->X());
	EXPECT_EQ(45, cursor->hourglass->Y());
	ShowHourglass(true);
	EXPECT_TRUE(cursor->arrow->IsHidden());
	EXPECT_PRED2(Near, WHITE, ScreenPixel(100, 50));
	CursorActivity();
	EXPECT_TRUE(cursor->hourglass->IsHidden());
}
