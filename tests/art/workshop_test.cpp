// Tests of the work queue: same bytes on any number of threads, and a cache that follows sources.
#include "art/core/canvas.h"
#include "art/core/files.h"
#include "art/core/renderer.h"
#include "art/core/workshop.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>

static void DrawSolid(Sink& sink)
{
	Model m;
	m.Ellipsoid({0, 0, 0}, {9, 6, 7}, Mat3(), m.Plain(0xc98e4au), 0);
	m.Ball({6, 5, 0}, 4, m.Plain(0x62b03au), 2).bumps = .5f;
	sink.Add("solid.png", RenderModel(m, ViewFrom(32, 32, 16, 16, 24, 16)));
}

static void DrawWords(Sink& sink)
{
	Canvas canvas(60, 24);
	canvas.Caption("Test", 18, 30, 12, {1, 1, 1}, {0, 0, .2f});
	canvas.Relief(Disc(50, 12, 8), Plain({.9f, .7f, .2f}), 2);
	sink.Add("words.tga", canvas.Finish());
}

static Catalogue SmallCatalogue()
{
	Catalogue catalogue;
	for (int i = 0; i < 6; i++) {
		catalogue.Add("solid" + std::to_string(i), __FILE__, DrawSolid);
		catalogue.Add("words" + std::to_string(i), __FILE__, DrawWords);
	}
	return catalogue;
}

TEST(Workshop, BytesDontDependOnThreads)
{
	Catalogue catalogue = SmallCatalogue();
	Workshop alone(QUORBLET_SOURCE_DIR, "", 1), crowd(QUORBLET_SOURCE_DIR, "", 4);
	std::vector<Picture> a = alone.Run(catalogue.groups), b = crowd.Run(catalogue.groups);
	ASSERT_EQ(a.size(), 12u);
	ASSERT_EQ(b.size(), 12u);
	for (size_t i = 0; i < a.size(); i++) {
		EXPECT_EQ(a[i].name, b[i].name);
		EXPECT_TRUE(a[i].bytes == b[i].bytes) << a[i].name;
		EXPECT_TRUE(a[i].bytes == a[i % 2].bytes) << "drawn again it came out otherwise";
	}
}

class SourceTree : public testing::Test
{
public:
	SourceTree() : root(testing::TempDir() + "quorblet_art_test")
	{
		std::filesystem::remove_all(root);
		std::filesystem::create_directories(root + "/art/core");
		Write("art/core/tool.h", "// tool\n");
		Write("art/core/tool.cpp", "#include \"art/core/deep.h\"\n");
		Write("art/core/deep.h", "// deep\n");
		Write("art/families.h", "void A();\n");
		Write("art/one.cpp", "#include \"art/families.h\"\n#include \"art/core/tool.h\"\n");
		Write("art/two.cpp", "#include \"art/families.h\"\n");
	}
	~SourceTree() { std::filesystem::remove_all(root); }

	void Write(const std::string& path, const std::string& text)
	{
		ASSERT_TRUE(WriteIfChanged(root + "/" + path, text));
	}
	// Runs both groups in a fresh workshop; how many were drawn.
	int Drawn()
	{
		Catalogue catalogue;
		catalogue.Add("one", (root + "/art/one.cpp").c_str(), DrawWords);
		catalogue.Add("two", (root + "/art/two.cpp").c_str(), DrawWords);
		Workshop workshop(root, root + "/cache", 2);
		last = workshop.Run(catalogue.groups);
		EXPECT_EQ(workshop.drawn + workshop.reused, 2);
		return workshop.drawn;
	}

	std::string root;
	std::vector<Picture> last;
};

TEST_F(SourceTree, NothingIsDrawnTwiceAndTheCacheGivesTheSamePicture)
{
	EXPECT_EQ(Drawn(), 2);
	std::vector<Picture> first = last;
	EXPECT_EQ(Drawn(), 0);
	ASSERT_EQ(last.size(), first.size());
	EXPECT_EQ(last[0].name, "words.tga");
	EXPECT_TRUE(last[0].bytes == first[0].bytes);
	EXPECT_EQ(last[0].width, 60);
	EXPECT_EQ(last[0].height, 24);
}

TEST_F(SourceTree, OnlyWhatDependsOnAChangeIsDrawnAgain)
{
	Drawn();
	Write("art/core/deep.h", "// deeper\n"); // reached through the .cpp twin of a header
	EXPECT_EQ(Drawn(), 1);
	Write("art/two.cpp", "// changed\n#include \"art/families.h\"\n");
	EXPECT_EQ(Drawn(), 1);
	Write("art/families.h", "void A();\nvoid B();\n"); // a new family changes no picture
	EXPECT_EQ(Drawn(), 0);
}

// An edit between build and run would else leave the old picture under the new key.
TEST_F(SourceTree, SourcesNewerThanTheProgramAreNotKept)
{
	Catalogue catalogue;
	catalogue.Add("one", (root + "/art/one.cpp").c_str(), DrawWords);
	Workshop workshop(root, root + "/cache", 1);
	workshop.built =
	    std::filesystem::last_write_time(root + "/art/one.cpp") - std::chrono::hours(1);
	workshop.Run(catalogue.groups);
	EXPECT_FALSE(std::filesystem::exists(root + "/cache/one.group"));
	workshop.built += std::chrono::hours(2);
	workshop.Run(catalogue.groups);
	EXPECT_TRUE(std::filesystem::exists(root + "/cache/one.group"));
}

TEST_F(SourceTree, ADamagedCacheFileIsDrawnAgain)
{
	Drawn();
	ASSERT_TRUE(WriteIfChanged(root + "/cache/one.group", "rubbish"));
	EXPECT_EQ(Drawn(), 1);
}

TEST(Fonts, AllFacesAreInstalled)
{
	EXPECT_EQ(MissingFont(), "");
}
