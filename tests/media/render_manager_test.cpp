// Dirty rectangles, the order of painting, the frozen world.
#include "media/render_manager.h"

#include "media/cursor.h"
#include "media/display.h"
#include "media/media_test.h"
#include "media/sprite.h"

static bool operator==(const Rect& a, const Rect& b)
{
	return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

static std::ostream& operator<<(std::ostream& out, const Rect& rect)
{
	return out << rect.x << "," << rect.y << " " << rect.width << "x" << rect.height;
}

class RenderManagerTest : public MediaTest
{
protected:
	// The rectangles that a painting of the given ones comes down to.
	std::vector<Rect> Cleaned(const std::vector<Rect>& rects)
	{
		render->dirtyRects = rects;
		render->Update(false);
		return render->dirtyRects;
	}

	CSprite* Layer(int depth, const std::string& file) { return NewSprite(100, 100, depth, file); }
	Colour Painted()
	{
		ClearScreen();
		render->AddExtraRect(0, 0, 800, 600);
		Frame();
		return ScreenPixel(110, 110);
	}
};

TEST_F(RenderManagerTest, MoveJoinsOldAndNewPlaceOnlyWhenNear)
{
	CSprite* sprite = NewSprite(100, 100, 10);
	Frame();
	sprite->x = 105;
	Frame();
	EXPECT_EQ((std::vector<Rect>{{100, 100, 25, 20}}), render->dirtyRects);
	sprite->x = 300;
	Frame();
	EXPECT_EQ((std::vector<Rect>{{105, 100, 20, 20}, {300, 100, 20, 20}}), render->dirtyRects);
}

TEST_F(RenderManagerTest, FieldSpritesLeaveTheSidePanelAlone)
{
	CSprite* sprite = NewSprite(690, 100, 14999);
	Frame();
	EXPECT_EQ((std::vector<Rect>{{690, 100, 3, 20}}), render->dirtyRects);
	sprite->SetPos(694, 100);
	sprite->SnapToState();
	sprite->SetFrame(0);
	sprite->SetDepth(14998);
	Frame();
	EXPECT_TRUE(render->dirtyRects.empty());
	sprite->SetDepth(15000);
	Frame();
	EXPECT_EQ((std::vector<Rect>{{694, 100, 20, 20}}), render->dirtyRects);
}

TEST_F(RenderManagerTest, DirtyListIsClippedMergedAndCleaned)
{
	typedef std::vector<Rect> Rects;
	EXPECT_EQ(Rects(), Cleaned({{-30, 10, 20, 20}, {801, 10, 5, 5}, {10, 601, 5, 5}}));
	EXPECT_EQ(Rects(), Cleaned({{800, 10, 5, 5}, {10, 10, 0, 50}})) << "clipped to nothing";
	EXPECT_EQ((Rects{{0, 0, 10, 15}}), Cleaned({{-10, -5, 20, 20}}));
	EXPECT_EQ((Rects{{10, 10, 101, 100}}), Cleaned({{10, 10, 100, 100}, {11, 10, 100, 100}}));
	const Rects corner = {{10, 10, 100, 10}, {105, 15, 10, 100}};
	EXPECT_EQ(corner, Cleaned(corner)) << "the box of both would paint much more";
	EXPECT_EQ((Rects{{0, 0, 30, 10}}), Cleaned({{0, 0, 12, 10}, {8, 0, 14, 10}, {20, 0, 10, 10}}));
}

TEST_F(RenderManagerTest, ExtraRectsAreNotMergedAndLastOneFrame)
{
	render->AddExtraRect(10, 10, 50, 50);
	render->AddExtraRect(10, 10, 50, 50);
	Frame();
	EXPECT_EQ(2u, render->dirtyRects.size());
	Frame();
	EXPECT_TRUE(render->dirtyRects.empty());
}

TEST_F(RenderManagerTest, DepthThenCreationDecideWhoIsInFront)
{
	CSprite* red = Layer(20, "red.bmp");
	Layer(10, "green.bmp");
	EXPECT_PRED2(Near, RED, Painted());
	Layer(20, "blue.bmp");
	EXPECT_PRED2(Near, BLUE, Painted()) << "among equals the later";
	red->overlay = true;
	EXPECT_PRED2(Near, RED, Painted()) << "an overlay stands above all";
	red->Hide();
	EXPECT_PRED2(Near, BLUE, Painted());
}

TEST_F(RenderManagerTest, HeldBackSpritesShowRightBehindTheirFoliage)
{
	CSprite* climber = Layer(5000, "red.bmp");
	CSprite* leaves  = Layer(100, "green.bmp");
	Layer(50, "blue.bmp"); // the trunk
	climber->behindFoliage = true;
	leaves->foliage        = true;
	EXPECT_PRED2(Near, GREEN, Painted());
	leaves->x = 115; // touches the climber, but leaves the pixel open
	EXPECT_PRED2(Near, RED, Painted()) << "in front of the trunk";
	Layer(3000, "white.bmp");
	EXPECT_PRED2(Near, WHITE, Painted())
	    << "drawn with the leaves, so behind what is nearer than they";
	leaves->x = 300;
	EXPECT_PRED2(Near, RED, Painted()) << "without foliage above all that is no overlay";
	climber->depth = -50;
	EXPECT_PRED2(Near, RED, Painted()) << "whatever its depth";
}

TEST_F(RenderManagerTest, LowestHeldBackSpriteIsDrawnFirst)
{
	CSprite* near       = Layer(20, "red.bmp");
	CSprite* far        = Layer(10, "green.bmp");
	near->behindFoliage = far->behindFoliage = true;
	EXPECT_PRED2(Near, RED, Painted());
	far->depth = 20;
	EXPECT_PRED2(Near, GREEN, Painted()) << "among equals the first in the list is drawn first";
}

TEST_F(RenderManagerTest, TrailGroupIsDrawnInTheLowestDepthAndTurns)
{
	Layer(5, "white.bmp");
	CSprite* red   = Layer(50, "red.bmp");
	CSprite* green = Layer(60, "green.bmp");
	red->SetTrail(true);
	green->SetTrail(true);
	const Colour first = Painted();
	EXPECT_TRUE(Near(first, RED) || Near(first, GREEN)) << "above what the pass drew before";
	for (int i = 0; i < 29; i++)
		EXPECT_TRUE(Near(first, Painted())) << i;
	EXPECT_PRED2(Near, Near(first, RED) ? GREEN : RED, Painted()) << "after 30 frames they change";
	Layer(6, "blue.bmp");
	EXPECT_PRED2(Near, BLUE, Painted()) << "below the next depth";
	red->x += 5;
	Frame();
	EXPECT_TRUE(render->dirtyRects.empty()) << "trail sprites mark nothing";
	sprites.clear();
	Painted(); // must not draw what is gone
}

TEST_F(RenderManagerTest, FreezeTwiceGivesBackTheWorldAsItWas)
{
	CSprite* walker = new CSprite(100, 100, 10);
	sprites.emplace_back(walker);
	walker->AddSequence("walk", 0, 4, ".png");
	walker->SetDelay(2);
	NewSprite(300, 300, 20, "green.bmp");
	Painted();
	const auto world = render->sprites;
	const int frame = walker->frame, tick = walker->tick;
	const int images = display->DecodedImages();

	render->Freeze();
	EXPECT_TRUE(render->IsFrozen());
	EXPECT_EQ(3u, render->sprites.size()) << "the picture and the two of the cursor";
	auto dialog = std::make_unique<CSprite>(290, 290, 400000);
	dialog->AddFile("large.bmp");
	for (int i = 0; i < 5; i++)
		Frame();
	EXPECT_PRED2(Near, BLUE, ScreenPixel(305, 305));
	dialog.reset();
	render->Freeze();
	EXPECT_FALSE(render->IsFrozen());
	EXPECT_PRED2(Near, GREEN, ScreenPixel(305, 305)) << "the picture covers what the dialog left";
	EXPECT_EQ(frame, walker->frame);
	EXPECT_EQ(tick, walker->tick);
	EXPECT_EQ(images, display->DecodedImages());
	// The cursor goes to the end, all else stays in order.
	std::vector<CSprite*> wanted(world.begin() + 2, world.end());
	wanted.push_back(cursor->arrow);
	wanted.push_back(cursor->hourglass);
	EXPECT_EQ(wanted, render->sprites);
}

TEST_F(RenderManagerTest, ParkedSpritesMayBeDeletedWhileFrozen)
{
	NewSprite(100, 100, 10);
	render->Freeze();
	sprites.clear();
	render->Freeze();
	EXPECT_EQ(2u, render->sprites.size());
	Frame();
}

TEST_F(RenderManagerTest, NothingMovesWhileDrawingIsOff)
{
	CSprite* sprite = NewSprite(100, 100, 10);
	sprite->AddFile("green.bmp");
	sprite->SetDelay(1);
	display->drawingEnabled = false;
	for (int i = 0; i < 3; i++)
		Frame();
	EXPECT_EQ(0, sprite->frame);
	EXPECT_TRUE(render->dirtyRects.empty());
}
