// Which story page belongs to which level.
#include "level/story_pages.h"

static const int STORY_TOLL_FIRST = 20;
static const int STORY_TOLL       = 22;

struct StoryRow {
	int level;
	int kind;
};

// clang-format off
static const StoryRow s_atStart[] = {
	{   1,  1 }, {   2,  2 }, {   5,  3 }, {   7,  5 }, {   9,  4 }, {  11,  6 }, {  19, 20 },
	{  20, 30 }, {  23, 31 }, {  27,  7 }, {  41, 22 }, {  60, 33 }, {  62, 22 }, {  83, 33 },
	{  91, 22 }, { 100, 33 }, { 118, 22 }, { 140, 33 }, { 147, 22 }, { 170, 33 }, { 182, 36 },
};
static const StoryRow s_ofSidePath[] = {
	{  17, 40 }, {  34, 41 }, {  51, 42 }, {  74, 43 }, { 114, 44 }, { 131, 45 }, { 160, 46 },
};
static const StoryRow s_atEnd[] = {
	{  12, 10 }, {  29, 11 }, {  46, 12 }, {  67, 13 }, { 106, 14 }, { 123, 15 }, { 152, 16 },
};
static const StoryRow s_ofAlien[] = {
	{  23, 32 }, {  60, 34 }, {  83, 34 }, { 100, 34 }, { 140, 34 }, { 170, 35 },
	{ 182, STORY_FINAL },
};
static const StoryRow s_tolls[] = { // level, price
	{  19, 100 }, {  41, 200 }, {  62, 300 }, {  91, 400 }, { 118, 500 }, { 147, 600 },
};
// clang-format on

static int Find(const StoryRow* rows, int count, int level, int otherwise)
{
	for (int i = 0; i < count; i++)
		if (rows[i].level == level)
			return rows[i].kind;
	return otherwise;
}

int StoryAtStart(int level)
{
	return Find(s_atStart, sizeof s_atStart / sizeof *s_atStart, level, NO_STORY);
}

int StoryOfSidePath(int level)
{
	return Find(s_ofSidePath, sizeof s_ofSidePath / sizeof *s_ofSidePath, level, NO_STORY);
}

int StoryAtEnd(int level)
{
	return Find(s_atEnd, sizeof s_atEnd / sizeof *s_atEnd, level, NO_STORY);
}

int StoryOfAlien(int level)
{
	return Find(s_ofAlien, sizeof s_ofAlien / sizeof *s_ofAlien, level, NO_STORY);
}

int StoryValue(int kind, int level, int value)
{
	if (!IsTollStory(kind))
		return value;
	return Find(s_tolls, sizeof s_tolls / sizeof *s_tolls, level, value);
}

bool IsTollStory(int kind)
{
	return kind == STORY_TOLL_FIRST || kind == STORY_TOLL;
}
