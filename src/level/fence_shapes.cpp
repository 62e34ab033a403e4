// The shapes that fences take in levels.
#include "level/fence_shapes.h"

#include <algorithm>

namespace
{
struct Place {
	int x, y;
};
} // namespace

static std::vector<FenceStep> RingPath(int level, int slant)
{
	std::vector<FenceStep> path;
	path.insert(path.end(), level, {FENCE_RIGHT, LEVEL_RAILS});
	path.insert(path.end(), slant, {FENCE_RIGHT, FALLING_RAILS});
	path.insert(path.end(), slant, {FENCE_LEFT, RISING_RAILS});
	path.insert(path.end(), level, {FENCE_LEFT, LEVEL_RAILS});
	path.insert(path.end(), slant, {FENCE_LEFT, FALLING_RAILS});
	path.insert(path.end(), slant, {FENCE_RIGHT, RISING_RAILS});
	return path;
}

static Place RingStart(int middleX, int middleY, int level, int slant)
{
	return {middleX - SECTION_LEVEL * level / 2, middleY - SECTION_DROP * slant - RAILS_BELOW_POST};
}

// Where a step leads: a falling rail to the right goes down, to the left up.
static Place After(Place place, const FenceStep& step)
{
	const int side = step.direction == FENCE_RIGHT ? 1 : -1;
	if (step.style == LEVEL_RAILS)
		return {place.x + side * SECTION_LEVEL, place.y};
	const int fall = step.style == FALLING_RAILS ? side : -side;
	return {place.x + side * SECTION_SLANT, place.y + fall * SECTION_DROP};
}

// The last section makes an end post unless the chain comes back to its first.
static FenceSections Lay(Place start, const std::vector<FenceStep>& path, bool closed)
{
	FenceSections sections;
	CFencePost* first = new CFencePost(start.x, start.y);
	CFencePost* post  = first;
	for (size_t i = 0; i < path.size(); i++) {
		const bool endPost = !closed || i + 1 < path.size();
		sections.push_back(new CFence(post, path[i].direction, path[i].style, endPost));
		post = sections.back()->FarPost(path[i].direction);
	}
	if (closed && !sections.empty())
		CloseFence(sections.back(), first);
	return sections;
}

FenceSections Ring(int middleX, int middleY, int level, int slant)
{
	return Lay(RingStart(middleX, middleY, level, slant), RingPath(level, slant), true);
}

FenceSections Shoe(int middleX, int middleY, int level, int slant, int from, int missing)
{
	std::vector<FenceStep> path = RingPath(level, slant);
	Place start                 = RingStart(middleX, middleY, level, slant);
	const int first             = (from + missing) % static_cast<int>(path.size());
	for (int i = 0; i < first; i++)
		start = After(start, path[i]);
	std::rotate(path.begin(), path.begin() + first, path.end());
	path.resize(path.size() - missing);
	return Lay(start, path, false);
}

FenceSections Line(int postX, int postY, int sections, int style)
{
	return Pattern(postX, postY, sections, {style});
}

FenceSections Pattern(int postX, int postY, int sections, std::initializer_list<int> styles)
{
	std::vector<FenceStep> path;
	for (int i = 0; i < sections; i++)
		path.push_back({FENCE_RIGHT, styles.begin()[i % static_cast<int>(styles.size())]});
	return Lay({postX, postY}, path, false);
}

CCrate* Stack(std::initializer_list<CCrate*> crates)
{
	CCrate* below = nullptr;
	for (CCrate* crate : crates) {
		if (below)
			StackCrate(below, crate);
		below = crate;
	}
	return below;
}
