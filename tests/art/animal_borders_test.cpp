// No picture of an animal is cut off by the edge of its canvas.
#include "art/core/container.h"
#include "art/core/encode.h"
#include "art/core/files.h"
#include "art/families.h"

#include <gtest/gtest.h>
#include <set>

namespace
{
const float SOLID = .6f; // alpha; shadows and soft edges are fainter

// These end where something stands before them: the hull, leaves, a mother.
const char* const PARTLY_HIDDEN[] = {"alienufo", "monkey_popup", "kangajoeyemerge"};

bool StartsWith(const std::string& text, const std::string& start)
{
	return text.compare(0, start.size(), start) == 0;
}

// What the files of each species begin with: the second word of "animals duck walk".
std::set<std::string> Prefixes()
{
	const std::string FAMILY = "animals ";
	Catalogue catalogue;
	AddEverything(catalogue);
	std::set<std::string> prefixes;
	for (const Group& group : catalogue.groups)
		if (StartsWith(group.name, FAMILY)) {
			std::string rest = group.name.substr(FAMILY.size());
			prefixes.insert(rest.substr(0, rest.find(' ')));
		}
	return prefixes;
}

bool IsWholeAnimal(const std::string& name, const std::set<std::string>& prefixes)
{
	for (const char* hidden : PARTLY_HIDDEN)
		if (StartsWith(name, hidden))
			return false;
	auto named = [&name](const std::string& prefix) { return StartsWith(name, prefix); };
	return std::any_of(prefixes.begin(), prefixes.end(), named);
}

int SolidOnBorder(const Image& image)
{
	int solid = 0;
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++) {
			bool border = x == 0 || y == 0 || x == image.width - 1 || y == image.height - 1;
			solid += border && image.At(x, y)[3] > SOLID;
		}
	return solid;
}
} // namespace

TEST(Animals, AreNeverCutOffByTheirCanvas)
{
	const size_t LEAST = 3000; // pictures of animals
	std::string bytes;
	std::vector<Picture> pictures;
	ASSERT_TRUE(ReadFile(std::string(QUORBLET_DATA) + "/resource.dat", bytes));
	ASSERT_TRUE(UnpackContainer(bytes, pictures));
	std::set<std::string> prefixes = Prefixes();
	size_t looked                  = 0;
	for (const Picture& picture : pictures) {
		if (!IsWholeAnimal(picture.name, prefixes))
			continue;
		looked++;
		EXPECT_EQ(SolidOnBorder(DecodePng(picture.bytes)), 0) << picture.name;
	}
	EXPECT_GT(looked, LEAST);
}
