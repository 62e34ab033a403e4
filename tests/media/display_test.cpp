// The image store, drawing, the frame clock, the shake.
#include "media/display.h"

#include "media/media_test.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "media/cursor.h"
#include "state/game_data.h"

#include <filesystem>

class DisplayTest : public MediaTest
{
};

TEST_F(DisplayTest, ImagesAreSharedUntilTheirLastRelease)
{
	const int before = display->DecodedImages();
	const int first  = display->LoadImage("red.bmp");
	EXPECT_EQ(first, display->LoadImage("red.bmp"));
	EXPECT_EQ(before + 1, display->DecodedImages());
	display->ReleaseImage(first);
	EXPECT_EQ(20, display->ImageWidth(first)) << "one reference is left";
	display->ReleaseImage(first);
	EXPECT_EQ(before, display->DecodedImages());
	display->ReleaseImage(first);
	EXPECT_EQ(before, display->DecodedImages()) << "a free slot is left alone";
	EXPECT_EQ(first, display->LoadImage("green.bmp")) << "the first free slot is taken";
	display->ReleaseImage(first);
}

TEST_F(DisplayTest, PrivateCopiesAreAlwaysNewAndLeaveTheOriginal)
{
	const int before = display->DecodedImages();
	const int lone   = display->LoadImage("red.bmp", true);
	EXPECT_EQ(before + 1, display->DecodedImages()) << "no unshared original is left behind";
	const int shared = display->LoadImage("red.bmp");
	const int copy   = display->LoadImage("red.bmp", true);
	EXPECT_NE(lone, copy);
	EXPECT_NE(shared, copy);
	display->FillImage(copy, {0, 0, 20, 20}, 0, 255, 0);
	EXPECT_PRED2(Near, RED, ImagePixel(shared, 5, 5));
	EXPECT_PRED2(Near, GREEN, ImagePixel(copy, 5, 5));
	for (int image : {lone, copy, shared})
		display->ReleaseImage(image);
	EXPECT_EQ(before, display->DecodedImages());
}

// A picture is decoded when it is first drawn; until then its header tells the size.
TEST_F(DisplayTest, APictureTornBehindItsHeaderIsFatalWhenItIsDrawn)
{
	Bytes torn = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R',
	              0,    0,   0,   30,  0,    0,    0,    20,   8, 6, 0, 0,  0,   1,   2,   3};
	torn.resize(60, 9);
	CTinyData damaged({{"torn.png", torn}});
	display->Preload();
	const int before = display->DecodedImages();
	const int image  = display->LoadImage("torn.png");
	EXPECT_EQ(30, display->ImageWidth(image));
	EXPECT_EQ(20, display->ImageHeight(image));
	EXPECT_EQ(before, display->DecodedImages());
	EXPECT_EXIT(display->BlitImage(image, 0, 0), testing::ExitedWithCode(1), "");
	display->ReleaseImage(image);
	EXPECT_NE(-1, display->LoadImage("torn.png")) << "its slot can be taken again";
}

TEST_F(DisplayTest, UnknownAndUndecodableImagesAreFatal)
{
	EXPECT_EXIT(display->LoadImage("nothing.png"), testing::ExitedWithCode(1), "");
	EXPECT_FALSE(display->HasImage("nothing.png"));
	CTinyData damaged({{"torn.png", Bytes(40, 9)}, {"hollow.jpg", {}}});
	display->Preload();
	EXPECT_EXIT(display->LoadImage("torn.png"), testing::ExitedWithCode(1), "");
	EXPECT_EXIT(display->LoadImage("hollow.jpg"), testing::ExitedWithCode(1), "");
}

TEST_F(DisplayTest, SoundsInTheImageContainerArePassedOver)
{
	CTinyData plain;
	display->Preload();
	const int countBefore = display->ImageLoadingCount();
	CTinyData mixed({{"a.ogg", Bytes(9)}, {"bwav", Bytes(9)}, {"c.OGG", Bytes(9)}});
	display->Preload();
	EXPECT_FALSE(display->HasImage("a.ogg"));
	EXPECT_FALSE(display->HasImage("bwav"));
	EXPECT_TRUE(display->HasImage("c.OGG")) << "capitals do not count";
	EXPECT_EQ(countBefore + 3, display->ImageLoadingCount()) << "all count, stored or not";
}

TEST_F(DisplayTest, LoadingBarUncoversItsShare)
{
	display->Preload();
	EXPECT_PRED2(Near, WHITE, ScreenPixel(360, 527));
	EXPECT_PRED2(Near, WHITE, ScreenPixel(759, 586));
	EXPECT_PRED2(Near, BLACK, ScreenPixel(760, 540));
	display->FreeLoadingText();
}

TEST_F(DisplayTest, MissingContainerEndsTheProgram)
{
	std::filesystem::remove("resource.dat");
	EXPECT_EXIT(display->Preload(), testing::ExitedWithCode(1), "");
}

TEST_F(DisplayTest, RegionsOutsideTheImageShowTheWholeImage)
{
	const int image = display->LoadImage("large.bmp");
	display->BlitRegion(image, 200, 100, 10, 10, 30, 20);
	EXPECT_PRED2(Near, BLUE, ScreenPixel(229, 119));
	EXPECT_PRED2(Near, BLACK, ScreenPixel(230, 119));
	display->BlitRegion(image, 200, 100, 90, 10, 30, 20);
	EXPECT_PRED2(Near, BLUE, ScreenPixel(299, 159));
	display->BlitImage(image, 100000, 100000); // would wrap in 16 bits
	display->BlitImage(image, -100, 0);
	EXPECT_PRED2(Near, BLACK, ScreenPixel(0, 0));
	display->ReleaseImage(image);
}

// A text on a clear picture would otherwise never show.
TEST_F(DisplayTest, DrawingOnSeeThroughImagesBringsItsAlpha)
{
	const int board = display->LoadImage("clearalpha.tga", true);
	EXPECT_EQ(25, display->DrawFile("redalpha.tga", board, 5, 5, false));
	EXPECT_PRED2(Near, RED, ImagePixel(board, 10, 10));
	EXPECT_PRED2(Near, CLEAR, ImagePixel(board, 4, 4));
	display->DrawFile("halfalpha.tga", board, 0, -15, false);
	EXPECT_PRED2(Near, HALF, ImagePixel(board, 4, 4));
	display->DrawFile("clearalpha.tga", board, 0, 0, false);
	EXPECT_PRED2(Near, RED, ImagePixel(board, 10, 10)) << "see-through parts punch no holes";
	display->ReleaseImage(board);

	const int plain = display->LoadImage("blue.bmp", true);
	display->DrawFilePart("halfalpha.tga", plain, 0, 0, 0, 0, 500, 10);
	EXPECT_PRED2(Near, (Colour{128, 0, 127}), ImagePixel(plain, 19, 9));
	EXPECT_PRED2(Near, BLUE, ImagePixel(plain, 0, 10));
	display->DrawFilePart("red.bmp", plain, 0, 0, 0, 0, -5, 10);
	EXPECT_PRED2(Near, (Colour{128, 0, 127}), ImagePixel(plain, 0, 0))
	    << "a negative width is none";
	display->ReleaseImage(plain);
}

TEST_F(DisplayTest, ImageAlphaBlendsAndGoesBackToPlain)
{
	const int image = display->LoadImage("red.bmp");
	display->SetImageAlpha(image, 128);
	display->BlitImage(image, 0, 0);
	EXPECT_PRED2(Near, (Colour{128, 0, 0}), ScreenPixel(5, 5));
	display->SetImageAlpha(image, 255);
	display->BlitImage(image, 0, 0);
	EXPECT_PRED2(Near, RED, ScreenPixel(5, 5));
	display->ReleaseImage(image);
}

TEST_F(DisplayTest, FramesAreThirtyThreeMillisecondsApart)
{
	display->Present(true);
	const unsigned int start = clock.Ticks();
	clock.Advance(5);
	display->Present(true);
	EXPECT_EQ(start + 33, clock.Ticks()) << "the rest is waited";
	clock.Advance(40);
	display->Present(true);
	EXPECT_EQ(start + 73, clock.Ticks()) << "a late frame is not held up further";
	const int frames = display->PresentedFrames();
	display->SetPresentAllowed(false);
	display->Present(true);
	display->SetPresentAllowed(true);
	display->drawingEnabled = false;
	display->Present(true);
	EXPECT_EQ(start + 73, clock.Ticks()) << "a blocked frame neither waits nor shows";
	EXPECT_EQ(frames, display->PresentedFrames());
}

TEST_F(DisplayTest, FramesPerSecondCountsTheLastSecond)
{
	for (int i = 0; i < 100; i++)
		display->Present(true);
	EXPECT_NEAR(30, display->FramesPerSecond(), 1);
}

TEST_F(DisplayTest, SecondShakeKeepsTheBacking)
{
	const int image = display->LoadImage("red.bmp");
	display->StartShake();
	ASSERT_TRUE(display->IsShaking());
	display->BlitImage(image, 400, 300);
	EXPECT_PRED2(Near, BLACK, ScreenPixel(405, 305)) << "drawn on the backing, not on the screen";
	for (int i = 0; i < 4; i++)
		display->Present(true);
	display->StartShake();
	int frames = 0;
	for (; display->IsShaking() && frames < 100; frames++)
		display->Present(true);
	EXPECT_EQ(12, frames) << "5 * 0.87^n falls below 1 at the twelfth";
	EXPECT_PRED2(Near, RED, ScreenPixel(400, 300));
	EXPECT_PRED2(Near, RED, ScreenPixel(419, 319));
	EXPECT_PRED2(Near, BLACK, ScreenPixel(420, 320));
	display->ReleaseImage(image);
}

TEST_F(DisplayTest, ShakeStaysNearAndEndsAtOnceByForce)
{
	SDL_FillRect(display->screen, nullptr, SDL_MapRGB(display->screen->format, 255, 255, 255));
	display->StartShake();
	for (int i = 0; i < 8; i++) {
		display->Present(true);
		EXPECT_PRED2(Near, WHITE, ScreenPixel(400, 300));
		EXPECT_PRED2(Near, WHITE, ScreenPixel(20, 20));
	}
	display->EndShake(false);
	EXPECT_TRUE(display->IsShaking());
	display->EndShake(true);
	EXPECT_FALSE(display->IsShaking());
	EXPECT_PRED2(Near, WHITE, ScreenPixel(0, 0));
	EXPECT_PRED2(Near, WHITE, ScreenPixel(799, 599));
	data->SetEffectsOn(false);
	display->StartShake();
	EXPECT_FALSE(display->IsShaking());
}

TEST_F(DisplayTest, ModeToggleKeepsPictureAndPointer)
{
	const int image = display->LoadImage("green.bmp");
	display->BlitImage(image, 50, 60);
	display->ReleaseImage(image);
	display->ToggleFullscreen();
	EXPECT_TRUE(display->IsFullscreen());
	EXPECT_PRED2(Near, GREEN, ScreenPixel(55, 65));
	display->ToggleFullscreen();
	EXPECT_FALSE(display->IsFullscreen());
	EXPECT_PRED2(Near, GREEN, ScreenPixel(55, 65));
}

TEST_F(DisplayTest, ImagesThatAreLeftAreReported)
{
	display->LoadImage("red.bmp");
	testing::internal::CaptureStdout();
	cursor.reset();
	render.reset();
	g_cursor = nullptr;
	g_render = nullptr;
	display.reset();
	EXPECT_EQ("IMAGE REMAINING: red.bmp\n", testing::internal::GetCapturedStdout());
}
