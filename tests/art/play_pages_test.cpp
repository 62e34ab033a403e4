// The pages over a level: buttons of one size, no letter cut off, pieces that fit together.
#include "art/core/encode.h"
#include "art/families.h"

#include <gtest/gtest.h>
#include <map>

namespace
{
using Images = std::map<std::string, Image>;

bool EndsWith(const std::string& text, const std::string& end)
{
	return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool StartsWith(const std::string& text, const std::string& start)
{
	return text.compare(0, start.size(), start) == 0;
}

Images DrawAll()
{
	Catalogue catalogue;
	for (auto* entry : {AddDialog, AddPause, AddBonusCard, AddBonusCardWords, AddTally,
	                    AddTallyWords, AddTallyAnimals})
		entry(catalogue);
	Images images;
	for (const Group& group : catalogue.groups) {
		Sink sink;
		group.draw(sink);
		for (const Picture& picture : sink.pictures)
			images[picture.name] = EndsWith(picture.name, ".tga") ? DecodeTga(picture.bytes)
			                                                      : DecodePng(picture.bytes);
	}
	return images;
}

const Images& All()
{
	static const Images images = DrawAll();
	return images;
}

const Image& Named(const std::string& name)
{
	static const Image none;
	auto found = All().find(name);
	EXPECT_NE(found, All().end()) << name;
	return found == All().end() ? none : found->second;
}

// Alpha of the strongest pixel in a column.
float ColumnAlpha(const Image& image, int x)
{
	float most = 0;
	for (int y = 0; y < image.height; y++)
		most = std::max(most, image.At(x, y)[3]);
	return most;
}

float RowAlpha(const Image& image, int y)
{
	float most = 0;
	for (int x = 0; x < image.width; x++)
		most = std::max(most, image.At(x, y)[3]);
	return most;
}
} // namespace

TEST(PlayPages, AButtonAndItsRolloverAreOfOneSize)
{
	int buttons = 0;
	for (const auto& [name, image] : All()) {
		if (!EndsWith(name, "rollover.png"))
			continue;
		const Image& base = Named(name.substr(0, name.size() - 12) + "base.png");
		EXPECT_EQ(base.width, image.width) << name;
		EXPECT_EQ(base.height, image.height) << name;
		buttons++;
	}
	EXPECT_EQ(15, buttons);
}

TEST(PlayPages, NoTextIsCutOff)
{
	const float SOLID = .5f;
	for (const auto& [name, image] : All()) {
		bool block = StartsWith(name, "confirmation_B") || StartsWith(name, "confirmation_C") ||
		             StartsWith(name, "confirmation_A") || StartsWith(name, "prelevel_t");
		if (!block && !StartsWith(name, "postlevel_bonus_title_"))
			continue;
		EXPECT_LT(RowAlpha(image, 0), SOLID) << name;
		EXPECT_LT(RowAlpha(image, image.height - 1), SOLID) << name;
		bool piece = image.width < 130; // these end with their last letter
		if (!piece) {
			EXPECT_LT(ColumnAlpha(image, 0), SOLID) << name;
			EXPECT_LT(ColumnAlpha(image, image.width - 1), SOLID) << name;
		}
	}
}

// The longest row of the harvest's card starts at x 245 and must end on the paper.
TEST(PlayPages, TheRowOfFruitEndsOnThePaper)
{
	int x = 245;
	for (const char* word : {"apples", "comma", "acorns", "comma", "coconuts", "comma", "and",
	                         "pinecones", "winbyrescuing3"})
		x += Named(std::string("prelevel_text_") + word + ".png").width;
	EXPECT_LT(x, 580);
}

TEST(PlayPages, ThePanelOfTheTallyHasNoSeams)
{
	const Image& top    = Named("postlevel_main_top.png");
	const Image& middle = Named("postlevel_main_middle.tga");
	const Image& bottom = Named("postlevel_main_bottom.png");
	ASSERT_EQ(middle.width, top.width);
	ASSERT_EQ(middle.width, bottom.width);
	const float NEAR = 2.5f / 255;
	for (int x = 0; x < middle.width; x++)
		for (int c = 0; c < 4; c++) {
			EXPECT_NEAR(top.At(x, top.height - 1)[c], middle.At(x, 0)[c], NEAR) << x;
			EXPECT_NEAR(bottom.At(x, 0)[c], middle.At(x, middle.height - 1)[c], NEAR) << x;
		}
}

TEST(PlayPages, EverySpeciesFitsTheTally)
{
	int species = 0;
	for (const auto& [name, image] : All()) {
		if (!StartsWith(name, "postlevel_animal_"))
			continue;
		EXPECT_LE(image.width, 52) << name;
		EXPECT_LE(image.height, 44) << name;
		EXPECT_GT(image.height, 10) << name;
		species++;
	}
	EXPECT_EQ(64, species) << "all but the robot";
}
