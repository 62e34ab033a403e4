// Containers, whole and damaged.
#include "media/archive.h"

#include "media/media_test.h"

#include <algorithm>
#include <filesystem>
#include <functional>

class ArchiveTest : public testing::Test
{
protected:
	ArchiveTest()
	{
		GTEST_FLAG_SET(death_test_style, "fast"); // leaves no folders behind
		std::filesystem::current_path(folder.path);
	}
	~ArchiveTest() override { std::filesystem::current_path(before); }

	std::string Names(const Bytes& bytes); // of what is delivered, joined by blanks

	std::string before = std::filesystem::current_path();
	CTempFolder folder;
	unsigned int count = 0;
	size_t total       = 0; // bytes of data delivered
};

std::string ArchiveTest::Names(const Bytes& bytes)
{
	WriteBytes("test.dat", bytes);
	std::string names;
	total = 0;
	ArchiveVisitor visitor;
	visitor.onCount = [&](unsigned int n) { count = n; };
	visitor.onEntry = [&](const std::string& name, Bytes&& data) {
		names += (names.empty() ? "" : " ") + name;
		total += data.size();
	};
	EXPECT_TRUE(ForEachArchiveEntry("test.dat", visitor));
	return names;
}

static Bytes Good()
{
	return ContainerBytes({{"one.png", Bytes(10, 1)}, {"two.jpg", Bytes(20, 2)}, {"three", {}}});
}

TEST_F(ArchiveTest, EntriesComeInTableOrderWhereverTheyLie)
{
	Bytes bytes = Good();
	EXPECT_EQ("one.png two.jpg three", Names(bytes));
	EXPECT_EQ(3u, count);
	EXPECT_EQ(30u, total);
	std::swap_ranges(bytes.begin() + 4, bytes.begin() + 8, bytes.begin() + 8);
	EXPECT_EQ("two.jpg one.png three", Names(bytes));
	EXPECT_EQ("", Names(ContainerBytes({})));
	EXPECT_EQ(0u, count);
	EXPECT_FALSE(std::filesystem::exists("LOG.TXT")) << "nothing of this is damage";
}

// Each damage: what it does to a good container, and what is still delivered.
TEST_F(ArchiveTest, DamageIsLoggedOnceAndWhatIsWholeIsDelivered)
{
	const size_t firstEntry = 4 + 3 * 4;
	struct Damage {
		const char* what;
		std::function<void(Bytes&)> apply;
		const char* left;
	};
	const Damage damages[] = {
	    {"empty", [](Bytes& b) { b.clear(); }, ""},
	    {"count cut off", [](Bytes& b) { b.resize(3); }, ""},
	    {"table cut off", [](Bytes& b) { b.resize(9); }, ""},
	    {"data cut off", [](Bytes& b) { b.resize(b.size() - 20); }, "one.png"},
	    {"count of four billion", [](Bytes& b) { PutWord(b, 0, 0xffffffff); },
	     "one.png two.jpg three"},
	    {"offset past the end", [](Bytes& b) { PutWord(b, 8, 100000); }, "one.png three"},
	    {"offset of four billion", [](Bytes& b) { PutWord(b, 4, 0xfffffffc); }, "two.jpg three"},
	    {"size past the end", [&](Bytes& b) { PutWord(b, firstEntry, 5000); }, "two.jpg three"},
	    {"size of four billion", [&](Bytes& b) { PutWord(b, firstEntry, 0xffffffff); },
	     "two.jpg three"},
	    {"name past the end", [&](Bytes& b) { PutWord(b, firstEntry + 4, 0xffffffff); },
	     "two.jpg three"},
	};
	for (const Damage& damage : damages) {
		SCOPED_TRACE(damage.what);
		std::filesystem::remove("LOG.TXT");
		Bytes bytes = Good();
		damage.apply(bytes);
		testing::internal::CaptureStdout();
		EXPECT_EQ(damage.left, Names(bytes));
		testing::internal::GetCapturedStdout();
		const std::string log = ReadText("LOG.TXT");
		EXPECT_EQ(1, std::count(log.begin(), log.end(), '\n')) << log;
		EXPECT_NE(std::string::npos, log.find("test.dat"));
	}
}

// A small file must not be able to fill the memory by naming one large entry many times.
TEST_F(ArchiveTest, RepeatedOffsetsDeliverNoMoreThanTheFileHolds)
{
	Bytes bytes = ContainerBytes(Container(100, {"big.png", Bytes(1000, 7)}));
	for (size_t i = 0; i < 100; i++)
		PutWord(bytes, 4 + 4 * i, 404);
	testing::internal::CaptureStdout();
	Names(bytes);
	testing::internal::GetCapturedStdout();
	EXPECT_LE(total, bytes.size());
	bytes.resize(404 + 8 + 7 + 1000);
	testing::internal::CaptureStdout();
	EXPECT_EQ("big.png", Names(bytes));
	testing::internal::GetCapturedStdout();
}

TEST_F(ArchiveTest, UnwantedEntriesAreNotDelivered)
{
	WriteBytes("test.dat", Good());
	int delivered = 0;
	ArchiveVisitor visitor;
	visitor.wants   = [](const std::string& name) { return name == "two.jpg"; };
	visitor.onEntry = [&](const std::string& name, Bytes&&) {
		EXPECT_EQ("two.jpg", name);
		delivered++;
	};
	EXPECT_TRUE(ForEachArchiveEntry("test.dat", visitor));
	EXPECT_EQ(1, delivered);
}

TEST_F(ArchiveTest, FilesThatDoNotOpenAreToldApartFromEmptyOnes)
{
	Bytes bytes(5);
	EXPECT_FALSE(ReadWholeFile("missing.dat", bytes));
	EXPECT_TRUE(bytes.empty());
	EXPECT_FALSE(ReadWholeFile(folder.path, bytes)) << "a folder is no file";
	WriteBytes("empty.dat", {});
	EXPECT_TRUE(ReadWholeFile("empty.dat", bytes));
	ArchiveVisitor visitor;
	EXPECT_FALSE(ForEachArchiveEntry("missing.dat", visitor));
}

TEST_F(ArchiveTest, OneEntryIsFoundByItsExactName)
{
	WriteBytes("test.dat", Good());
	EXPECT_EQ(Bytes(20, 2), ReadArchiveEntry("test.dat", "two.jpg"));
	EXPECT_EXIT(ReadArchiveEntry("test.dat", "TWO.jpg"), testing::ExitedWithCode(1), "");
	EXPECT_EXIT(ReadArchiveEntry("missing.dat", "two.jpg"), testing::ExitedWithCode(1), "");
}
