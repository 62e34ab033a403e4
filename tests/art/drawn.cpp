// The pictures of some families, drawn for a test.
#include "tests/art/drawn.h"

#include "art/core/encode.h"

#include <algorithm>
#include <gtest/gtest.h>

Pictures DrawFamilies(std::initializer_list<Family> families,
                      std::initializer_list<const char*> words)
{
	Catalogue catalogue;
	for (Family add : families)
		add(catalogue);
	Sink sink;
	for (const Group& group : catalogue.groups) {
		const auto holds = [&group](const char* word) {
			return group.name.find(word) != std::string::npos;
		};
		if (words.size() == 0 || std::any_of(words.begin(), words.end(), holds))
			group.draw(sink);
	}
	Pictures all;
	for (const Picture& picture : sink.pictures)
		if (picture.name.ends_with(".png"))
			all[picture.name] = DecodePng(picture.bytes);
	return all;
}

const Image& PictureNamed(const Pictures& pictures, const std::string& name)
{
	static const Image NONE;
	auto found = pictures.find(name);
	if (found != pictures.end())
		return found->second;
	ADD_FAILURE() << name << " isn't drawn";
	return NONE;
}
