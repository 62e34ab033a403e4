// Animation, sizes, fades and dirty marks of sprites.
#include "media/sprite.h"

#include "media/display.h"
#include "media/input.h"
#include "media/media_test.h"
#include "media/render_manager.h"

class SpriteTest : public MediaTest
{
protected:
	// Frames shown by the next steps, as digits.
	static std::string Shown(CSprite& sprite, int steps)
	{
		std::string shown;
		for (int i = 0; i < steps; i++) {
			sprite.Step();
			shown += static_cast<char>('0' + sprite.Frame());
		}
		return shown;
	}
};

TEST_F(SpriteTest, FramesLastTheirDelayAndLoop)
{
	CSprite two(10, 2);
	two.AddSequence("walk", 0, 2, ".png");
	EXPECT_EQ(-1, two.tick);
	EXPECT_EQ("001122001", Shown(two, 9));
	CSprite one(10, 1);
	one.AddSequence("walk", 0, 4, ".png");
	one.SetLoopStart(2);
	EXPECT_EQ("0123423423", Shown(one, 10));
	CSprite still(10, 0);
	still.AddSequence("walk", 0, 2, ".png");
	EXPECT_EQ("000", Shown(still, 3));
}

TEST_F(SpriteTest, StopAtEndStopsAndCanRunAgain)
{
	CSprite sprite(10, 2);
	sprite.AddSequence("walk", 0, 1, ".png");
	sprite.SetStopAtEnd();
	EXPECT_EQ("0011", Shown(sprite, 4));
	EXPECT_FALSE(sprite.IsStopped());
	EXPECT_EQ("111", Shown(sprite, 3));
	EXPECT_TRUE(sprite.IsStopped());
	EXPECT_TRUE(sprite.IsAtLastFrameEnd());
	sprite.Rewind();
	sprite.Forward();
	EXPECT_EQ("0011", Shown(sprite, 4));
}

TEST_F(SpriteTest, BackwardRunsToTheFirstFrame)
{
	CSprite loop(10, 1);
	loop.AddSequence("walk", 0, 2, ".png");
	loop.Backward();
	EXPECT_EQ("02102", Shown(loop, 5));
	CSprite once(10, 1);
	once.AddSequence("walk", 0, 2, ".png");
	once.SetStopAtEnd();
	once.GoToLast();
	once.Backward();
	EXPECT_EQ("21000", Shown(once, 5));
	EXPECT_TRUE(once.IsStopped());
	EXPECT_TRUE(once.IsAtFirstFrameEnd());
}

TEST_F(SpriteTest, SequencesCountDownAndFramesAreHeldToTheList)
{
	CSprite sprite(10);
	EXPECT_EQ(-1, sprite.FirstImage());
	sprite.SetFrame(3);
	EXPECT_EQ(0, sprite.Frame()) << "no frames yet";
	sprite.AddSequence("walk", 3, 1, ".png");
	sprite.AddRepeated("walk0.png", 2);
	ASSERT_EQ(5, sprite.FrameCount());
	EXPECT_EQ(13, display->ImageWidth(sprite.frames[0]));
	EXPECT_EQ(11, display->ImageWidth(sprite.frames[2]));
	EXPECT_EQ(sprite.frames[3], sprite.frames[4]);
	EXPECT_EQ(10, sprite.Width()) << "the size is that of the last frame added";
	sprite.SetFrame(99);
	EXPECT_EQ(4, sprite.Frame());
	sprite.SetFrame(-3);
	EXPECT_EQ(0, sprite.Frame());
	sprite.SetFrameFromEnd(1);
	EXPECT_EQ(3, sprite.Frame());
	EXPECT_EQ(1, sprite.FramesFromEnd());
}

TEST_F(SpriteTest, SizesAreHeldToTheImage)
{
	CSprite sprite(30, 40, 10);
	sprite.AddFile("large.bmp");
	sprite.CropWidth(30);
	sprite.CropHeight(100);
	EXPECT_EQ(70, sprite.Width());
	EXPECT_EQ(0, sprite.Height());
	sprite.SetHeight(500);
	EXPECT_EQ(60, sprite.Height());
	sprite.SetSourceX(500);
	EXPECT_EQ(100, sprite.sourceX);
	sprite.CenterX(200);
	sprite.CenterY(100);
	EXPECT_EQ(165, sprite.X());
	EXPECT_EQ(70, sprite.Y());
}

TEST_F(SpriteTest, DeletingGivesBackEveryReference)
{
	const int before = display->DecodedImages();
	{
		CSprite sprite(10);
		sprite.AddRepeated("walk1.png", 5);
		sprite.AddSequence("walk", 0, 4, ".png");
		EXPECT_EQ(before + 5, display->DecodedImages());
	}
	EXPECT_EQ(before, display->DecodedImages());
}

TEST_F(SpriteTest, OverlapIsStrict)
{
	CSprite* a = NewSprite(0, 0, 10);
	CSprite* b = NewSprite(20, 0, 10);
	EXPECT_FALSE(a->Overlaps(b)) << "touching edges";
	b->x = 19;
	EXPECT_TRUE(a->Overlaps(b));
	EXPECT_TRUE(a->OverlapsRect({19, 19, 5, 5}));
	EXPECT_FALSE(a->OverlapsRect({20, 19, 5, 5}));
	a->Hide();
	EXPECT_TRUE(a->Overlaps(b));
	EXPECT_FALSE(a->OverlapsRect({0, 0, 50, 50}));
}

TEST_F(SpriteTest, MouseOverIncludesTheEdges)
{
	CSprite* sprite = NewSprite(100, 100, 10);
	input->x        = 125;
	input->y        = 120;
	EXPECT_FALSE(sprite->MouseOver(4, 0));
	EXPECT_TRUE(sprite->MouseOver(5, 0));
	input->x = 100;
	EXPECT_TRUE(sprite->MouseOver(0, 0));
	input->y = 121;
	EXPECT_FALSE(sprite->MouseOver(0, 0));
}

// What each kind of change has repainted.
TEST_F(SpriteTest, OnlyChangesAreMarkedDirty)
{
	CSprite* sprite = NewSprite(100, 100, 10);
	Frame();
	ASSERT_EQ(1u, render->dirtyRects.size()) << "a new sprite marks its place";
	EXPECT_TRUE(sprite->Changed());
	Frame();
	EXPECT_TRUE(render->dirtyRects.empty());
	EXPECT_FALSE(sprite->Changed());
	sprite->SetDepth(11);
	Frame();
	EXPECT_EQ(1u, render->dirtyRects.size());
	sprite->Hide();
	Frame();
	EXPECT_EQ(1u, render->dirtyRects.size()) << "what vanishes uncovers its place";
	sprite->x = 300;
	Frame();
	EXPECT_TRUE(render->dirtyRects.empty()) << "a hidden sprite marks nothing";
	sprite->Show();
	Frame();
	ASSERT_EQ(1u, render->dirtyRects.size());
	EXPECT_EQ(300, render->dirtyRects[0].x);
	sprite->x = 310;
	sprite->SnapToState();
	Frame();
	EXPECT_TRUE(render->dirtyRects.empty());
}

TEST_F(SpriteTest, HiddenSpritesDoNotAnimate)
{
	CSprite sprite(10, 1);
	sprite.AddSequence("walk", 0, 2, ".png");
	sprite.Hide();
	EXPECT_EQ("000", Shown(sprite, 3));
}

TEST_F(SpriteTest, FadeInEndsOpaqueAndFadeOutEndsHidden)
{
	CSprite* sprite = NewSprite(100, 100, 10);
	sprite->Hide();
	sprite->FadeIn(500);
	EXPECT_FALSE(sprite->IsHidden());
	Frame();
	EXPECT_PRED2(Near, BLACK, ScreenPixel(110, 110));
	clock.Advance(250);
	ClearScreen();
	Frame();
	EXPECT_PRED2(Near, (Colour{127, 0, 0}), ScreenPixel(110, 110));
	clock.Advance(250);
	Frame();
	EXPECT_FALSE(sprite->IsFading());
	EXPECT_PRED2(Near, RED, ScreenPixel(110, 110));

	sprite->FadeOut(100);
	clock.Advance(25);
	ClearScreen();
	Frame();
	EXPECT_PRED2(Near, (Colour{191, 0, 0}), ScreenPixel(110, 110));
	clock.Advance(75);
	Frame();
	EXPECT_TRUE(sprite->IsHidden());
	EXPECT_FALSE(sprite->IsFading());
}

TEST_F(SpriteTest, HideAllGivesBackOnlyWhatWasVisible)
{
	CSprite* seen   = NewSprite(0, 0, 10);
	CSprite* unseen = NewSprite(0, 0, 10);
	unseen->Hide();
	HideAllSprites(true);
	EXPECT_TRUE(seen->IsHidden());
	HideAllSprites(false);
	EXPECT_FALSE(seen->IsHidden());
	EXPECT_TRUE(unseen->IsHidden());
}

TEST_F(SpriteTest, PartsOfImagesLandAtTheirPlace)
{
	CSprite* sprite = NewSprite(100, 100, 10, "large.bmp");
	sprite->SetWidth(40);
	sprite->SetSourceX(30);
	sprite->DrawInRect({120, 90, 100, 20});
	EXPECT_PRED2(Near, BLACK, ScreenPixel(119, 105));
	EXPECT_PRED2(Near, BLUE, ScreenPixel(120, 105));
	EXPECT_PRED2(Near, BLUE, ScreenPixel(139, 109));
	EXPECT_PRED2(Near, BLACK, ScreenPixel(140, 105));
	EXPECT_PRED2(Near, BLACK, ScreenPixel(130, 110));
}

// A frame smaller than the sprite stays at the sprite's corner, however the rectangles fall.
TEST_F(SpriteTest, SmallFramesDoNotSlideWithTheDirtyRectangle)
{
	CSprite sprite(100, 100, 10);
	sprite.AddFile("red.bmp");
	sprite.AddFile("large.bmp");
	sprite.DrawInRect({110, 110, 50, 50});
	EXPECT_PRED2(Near, RED, ScreenPixel(119, 119));
	EXPECT_PRED2(Near, BLACK, ScreenPixel(121, 121));
	EXPECT_PRED2(Near, BLACK, ScreenPixel(109, 109));
}
