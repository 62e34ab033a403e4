// In which words the tally tells what was done.
#include "level/tally_rules.h"

#include "animals/species_numbers.h"

#define WORD(name) "postlevel_bonus_text_" name ".png"
#define CLOCK(name) "postlevel_bonustime_text" name ".png"

static const TallyWord LINE_END;

static TallyWord Picture(const char* file)
{
	return {file, -1};
}

static TallyWord Number(int number)
{
	return {nullptr, number};
}

// clang-format off
static const struct {
	int under; // seconds
	const char* number;
	const char* unit;
} s_bounds[] = {
	{   5, CLOCK("5"),  CLOCK("seconds") },
	{  10, CLOCK("10"), CLOCK("seconds") },
	{  20, CLOCK("20"), CLOCK("seconds") },
	{  30, CLOCK("30"), CLOCK("seconds") },
	{  40, CLOCK("40"), CLOCK("seconds") },
	{  50, CLOCK("50"), CLOCK("seconds") },
	{  60, CLOCK("1"),  CLOCK("minute") },
	{ 120, CLOCK("2"),  CLOCK("minutes") },
	{ 180, CLOCK("3"),  CLOCK("minutes") },
	{ 240, CLOCK("4"),  CLOCK("minutes") },
	{ 300, CLOCK("5"),  CLOCK("minutes") },
};

static const struct {
	int type;
	const char* managed; // what was done about them
	const char* ofThe;   // "of the birds"
	const char* none;    // when nothing is left
} s_upsets[] = {
	{ TALLY_BIRDS,  WORD("youmanagedbird"),      WORD("ofthebirds"),  WORD("allbirds") },
	{ TALLY_DRUMS,  WORD("youavoidedpollution"), WORD("ofthedrums"),  WORD("alldrums") },
	{ TALLY_DOGS,   WORD("youmanageddogs"),      WORD("ofthedogs"),   WORD("alldogs") },
	{ TALLY_SKUNKS, WORD("youavoidedskunks"),    WORD("oftheskunks"), WORD("allskunks") },
};

static const struct {
	int species;
	const char* word;
} s_herds[] = {
	{ SPECIES_MONKEY,  WORD("monkeys") },
	{ SPECIES_SHEEP,   WORD("sheep") },
	{ SPECIES_TURTLE,  WORD("turtles") },
	{ SPECIES_OSTRICH, WORD("ostriches") },
	{ SPECIES_FROG,    WORD("frogs") },
};
// clang-format on

std::vector<TallyWord> TimeBonusWords(int seconds)
{
	for (const auto& row : s_bounds)
		if (seconds < row.under)
			return {Picture(CLOCK("completed")), Picture(row.number), Picture(row.unit)};
	return {};
}

static const char* HerdWord(int species)
{
	for (const auto& herd : s_herds)
		if (herd.species == species)
			return herd.word;
	return WORD("cats");
}

static std::vector<TallyWord> UpsetWords(const TallyCount& n, TallyGrade grade)
{
	for (const auto& row : s_upsets) {
		if (row.type != n.type)
			continue;
		if (grade == GRADE_NONE && n.a == 0)
			return {Picture(row.none)};
		std::vector<TallyWord> words = {Picture(row.managed), LINE_END};
		if (grade == GRADE_PERFECT)
			words.push_back(Picture(WORD("all")));
		words.push_back(Number(n.a));
		words.push_back(Picture(row.ofThe));
		return words;
	}
	return {};
}

static std::vector<TallyWord> SpeedballWords(const TallyCount& n, TallyGrade grade)
{
	std::vector<TallyWord> words = {Picture(WORD("youkepttheball")), LINE_END};
	if (grade == GRADE_PERFECT)
		words.push_back(Picture(WORD("all")));
	words.push_back(Number(n.b - n.a));
	words.push_back(Picture(WORD("seconds")));
	return words;
}

// Without all of the animals it tells how many there were to find.
static std::vector<TallyWord> TightSpotWords(const TallyCount& n, TallyGrade grade)
{
	const char* animals = n.c < 2 ? WORD("animal") : WORD("animals");
	if (grade == GRADE_PERFECT)
		return {Picture(WORD("yourescuedthe")), Picture(animals), LINE_END,
		        Picture(WORD("with")),          Number(n.a),      Picture(WORD("secondsleft"))};
	return {Picture(WORD("yourescued")), Number(n.c - n.b), Picture(WORD("ofthe")),
	        Picture(animals), Picture(WORD("exclamation"))};
}

static std::vector<TallyWord> OrderWords(TallyGrade grade, std::span<const int> record, int places)
{
	if (grade == GRADE_PERFECT)
		return {Picture(WORD("youbrokeall")), LINE_END, Picture(WORD("perfectorder"))};
	std::vector<TallyWord> words = {Picture(WORD("brokeinthisorder")), LINE_END};
	for (int i = 0; i < places && i < static_cast<int>(record.size()) && record[i] != 0; i++) {
		if (i > 0)
			words.push_back(Picture(WORD("hyphen")));
		words.push_back(Number(record[i]));
	}
	return words;
}

static std::vector<TallyWord> StampedeWords(const TallyCount& n, TallyGrade grade)
{
	std::vector<TallyWord> words = {Picture(WORD("yourescued"))};
	words.push_back(grade == GRADE_PERFECT ? Picture(WORD("all")) : Number(n.b - n.a));
	words.push_back(LINE_END);
	words.push_back(Picture(WORD("ofthe")));
	words.push_back(Picture(HerdWord(n.c)));
	words.push_back(Picture(WORD("exclamation")));
	return words;
}

static std::vector<TallyWord> DemolitionWords(const TallyCount& n, TallyGrade grade)
{
	if (grade == GRADE_PERFECT)
		return {Picture(WORD("youbrokeall")), LINE_END, Picture(WORD("with")), Number(n.c),
		        Picture(WORD("secondsleft"))};
	return {
	    Picture(WORD("youbroke")), Number(n.b - n.a), Picture(WORD("oftheobjects")),    LINE_END,
	    Picture(WORD("bracket")),  Number(n.a),       Picture(WORD("objectsremaining"))};
}

static std::vector<TallyWord> CoinWords(const TallyCount& n, TallyGrade grade)
{
	std::vector<TallyWord> words = {Picture(WORD("youcollectedmoney")), Number(n.a),
	                                Picture(WORD("exclamation")), LINE_END,
	                                Picture(WORD("youbroke"))};
	if (grade == GRADE_PERFECT)
		words.push_back(Picture(WORD("all")));
	words.push_back(Number(n.c - n.b));
	words.push_back(Picture(WORD("objects")));
	return words;
}

std::vector<TallyWord> BonusLevelWords(const TallyCount& n, TallyGrade grade,
                                       std::span<const int> record)
{
	switch (n.type) {
	case TALLY_SPEEDBALL:
		return SpeedballWords(n, grade);
	case TALLY_TIGHT_SPOT:
		return TightSpotWords(n, grade);
	case TALLY_ORDER:
		return OrderWords(grade, record, n.a);
	case TALLY_STAMPEDE:
		return StampedeWords(n, grade);
	case TALLY_DEMOLITION:
		return DemolitionWords(n, grade);
	case TALLY_COIN:
		return CoinWords(n, grade);
	case TALLY_EGG:
		return {Picture(WORD("youcollected")), Number(n.a), Picture(WORD("eggs"))};
	default:
		return UpsetWords(n, grade);
	}
}
