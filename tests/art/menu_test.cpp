// The main menu's pictures: whole sequences of one size that come back to rest, planes without
// gaps, buttons that fit their rings.
#include "art/core/encode.h"
#include "art/families.h"

#include <gtest/gtest.h>
#include <map>

namespace
{
using Files  = std::map<std::string, Picture>;
using Frames = std::vector<Image>;

const Files& Drawn()
{
	static const Files files = [] {
		Catalogue catalogue;
		for (auto* entry : {AddMenuPicture, AddMenuBoard, AddMenuAnimals, AddMenuDriver,
		                    AddMenuFish, AddMenuButtons})
			entry(catalogue);
		Files drawn;
		for (const Group& group : catalogue.groups) {
			Sink sink;
			group.draw(sink);
			for (const Picture& picture : sink.pictures)
				drawn[picture.name] = picture;
		}
		return drawn;
	}();
	return files;
}

Image Named(const std::string& name)
{
	auto found = Drawn().find(name);
	EXPECT_NE(found, Drawn().end()) << name;
	if (found == Drawn().end())
		return Image(1, 1);
	bool jpeg = name.find(".jpg") != std::string::npos;
	return jpeg ? DecodeJpeg(found->second.bytes) : DecodePng(found->second.bytes);
}

Frames Sequence(const std::string& stem, int count)
{
	Frames frames;
	for (int i = 0; i < count; i++)
		frames.push_back(Named(stem + std::to_string(i) + ".png"));
	return frames;
}

float Difference(const Image& a, const Image& b)
{
	float sum = 0;
	for (size_t i = 0; i < a.data.size() && i < b.data.size(); i++)
		sum += std::fabs(a.data[i] - b.data[i]);
	return sum;
}

float Covered(const Image& image)
{
	float sum = 0;
	for (size_t i = 3; i < image.data.size(); i += 4)
		sum += image.data[i];
	return sum;
}

// Most alpha in a column or row of the picture.
float MostInColumn(const Image& image, int x)
{
	float most = 0;
	for (int y = 0; y < image.height; y++)
		most = std::max(most, image.At(x, y)[3]);
	return most;
}

float MostInRow(const Image& image, int y)
{
	float most = 0;
	for (int x = 0; x < image.width; x++)
		most = std::max(most, image.At(x, y)[3]);
	return most;
}

struct MenuRun {
	const char* word;
	int frames;
	bool cutLeft, cutRight; // it goes on in the painted body there
};
const MenuRun RUNS[] = {
    {"profA", 12, false, false},    {"profB", 16, false, false},    {"deerhead", 10, true, false},
    {"deertail", 6, false, true},   {"cowhead", 10, true, false},   {"cowtail", 8, false, true},
    {"sheep", 12, false, false},    {"mouse", 8, false, false},     {"monkey", 12, false, false},
    {"squirrel", 10, false, false}, {"bluebird", 10, false, false}, {"duck", 8, false, false},
    {"ducklingA", 8, false, false}, {"ducklingB", 8, false, false}, {"ducklingC", 8, false, false},
    {"fishleft", 14, false, false}, {"fishright", 14, false, false}};
} // namespace

TEST(MenuSequences, HaveOneSizeAndComeBackToRest)
{
	for (const MenuRun& run : RUNS) {
		Frames frames  = Sequence(std::string("mainmenu") + run.word, run.frames);
		float farthest = 0;
		for (const Image& frame : frames) {
			ASSERT_EQ(frame.width, frames[0].width) << run.word;
			ASSERT_EQ(frame.height, frames[0].height) << run.word;
			farthest = std::max(farthest, Difference(frame, frames[0]));
		}
		EXPECT_GT(farthest, 5) << run.word;
		EXPECT_LT(Difference(frames.back(), frames[0]), farthest * .8f) << run.word;
	}
}

TEST(MenuSequences, AreNotCutByTheirPictures)
{
	const float FAINT = .3f;
	for (const MenuRun& run : RUNS) {
		float top = 0, left = 0, right = 0;
		for (const Image& frame : Sequence(std::string("mainmenu") + run.word, run.frames)) {
			top   = std::max(top, MostInRow(frame, 0));
			left  = std::max(left, MostInColumn(frame, 0));
			right = std::max(right, MostInColumn(frame, frame.width - 1));
		}
		EXPECT_LT(top, FAINT) << run.word;
		EXPECT_TRUE(run.cutLeft || left < FAINT) << run.word << " " << left;
		EXPECT_TRUE(run.cutRight || right < FAINT) << run.word << " " << right;
	}
}

TEST(MenuSequences, OfTheProfessorStartAlike)
{
	EXPECT_EQ(Named("mainmenuprofA0.png").data, Named("mainmenuprofB0.png").data);
	EXPECT_EQ(Named("mainmenuprofA0.png").data, Named("mainmenuprofB15.png").data);
}

TEST(MenuSequences, OfFishBeginAndEndUnderWater)
{
	for (const char* word : {"mainmenufishleft", "mainmenufishright"}) {
		Frames frames = Sequence(word, 14);
		EXPECT_LT(Covered(frames[0]), 10) << word;
		EXPECT_LT(Covered(frames[13]), 60) << word;
		EXPECT_GT(Covered(frames[6]), 250) << word;
	}
}

TEST(MenuPicture, HasNoGapBetweenItsPlanes)
{
	Image top = Named("mainmenubackgroundtop.png"), bottom = Named("mainmenubackgroundbottom.jpg");
	ASSERT_EQ(top.width, 800);
	ASSERT_EQ(top.height, 160);
	ASSERT_EQ(bottom.height, 170);
	float seam = 0, usual = 0; // change from row to row
	for (int x = 0; x < 800; x++) {
		EXPECT_FLOAT_EQ(top.At(x, 159)[3], 1) << x;
		for (int k = 0; k < 3; k++) {
			seam += std::fabs(top.At(x, 159)[k] - bottom.At(x, 0)[k]);
			usual += std::fabs(bottom.At(x, 0)[k] - bottom.At(x, 1)[k]);
		}
	}
	EXPECT_LT(seam, usual * 1.5f);
	for (const char* row : {"back", "middle", "front"}) {
		Image base = Named(std::string("mainmenuwaves") + row + "base.png");
		EXPECT_FLOAT_EQ(Covered(base), 800.f * base.height) << row;
	}
}

TEST(MenuPicture, HasCrestsThatReachBeyondTheScreenAtFullSwing)
{
	EXPECT_GE(Named("mainmenuwavesbacktop.png").width, 800 + 2 * 6 + 2);
	EXPECT_GE(Named("mainmenuwavesmiddletop.png").width, 800 + 2 * 8 + 2);
	EXPECT_GE(Named("mainmenuwavesfronttop.png").width, 800 + 2 * 10 + 2);
}

TEST(MenuButtons, HaveFacesThatFitTheirRingAndTurnFromNothing)
{
	Image ring = Named("buttonsmallbase.png");
	EXPECT_LE(ring.height, 81); // the next one stands that far below
	int faces = 0;
	for (const auto& [name, file] : Drawn()) {
		size_t end = name.find("base.png");
		if (name.find("button") != 0 || name[6] < '0' || name[6] > '9' || end == std::string::npos)
			continue;
		faces++;
		std::string stem = name.substr(0, end);
		Image base       = Named(name);
		EXPECT_EQ(file.width, ring.width) << name;
		EXPECT_EQ(file.height, ring.height) << name;
		EXPECT_GT(Difference(base, Named(stem + "rollover.png")), 100) << name;
		Frames shrink = Sequence(stem + "shrink", 5), grow = Sequence(stem + "grow", 5);
		EXPECT_LT(Covered(shrink[4]), Covered(base) * .01f) << name;
		EXPECT_LT(Covered(grow[0]), Covered(base) * .1f) << name;
		EXPECT_GT(Covered(grow[3]), Covered(base)) << name;
	}
	EXPECT_EQ(faces, 11);
}

TEST(MenuButtons, FlashAndFadeWhenPressed)
{
	for (const char* stem : {"buttonlarge", "buttonsmall"}) {
		Frames flash = Sequence(std::string(stem) + "press", 5);
		Image base   = Named(std::string(stem) + "base.png");
		EXPECT_EQ(flash[0].width, base.width);
		EXPECT_EQ(flash[0].height, base.height);
		EXPECT_LT(Covered(flash[4]), Covered(flash[2]) * .3f) << stem;
	}
}
