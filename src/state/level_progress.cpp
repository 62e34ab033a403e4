// What the profile keeps of the levels, and the book-keeping at their start and end.
#include "state/game_data.h"

#include "field/sidebar.h"

#include <algorithm>

static const int RESCUES_A_LIFE = 50;
static const int MOST_TOTAL     = 999999999;

// The level that opens each island when it has been finished.
static const int OPENING_LEVEL[ISLAND_COUNT] = {0, 18, 40, 61, 90, 117, 146};

bool CGameData::IsLevelDoneEver(int i) const
{
	return i >= 0 && i < LEVEL_COUNT && profile.levels[i].doneEver;
}

bool CGameData::IsLevelDoneThisRun(int i) const
{
	return i >= 0 && i < LEVEL_COUNT && profile.levels[i].doneThisRun;
}

int CGameData::FirstLevelNotDone() const
{
	for (int i = 0; i < LEVEL_COUNT; i++)
		if (!profile.levels[i].doneThisRun)
			return i + 1;
	return 1;
}

int CGameData::CountLevels(uint8_t LevelRecord::*flag) const
{
	int count = 0;
	for (const LevelRecord& level : profile.levels)
		count += level.*flag == 1;
	return count;
}

// The first finished level shows at once, and the last one open keeps it below a hundred.
int CGameData::PercentComplete() const
{
	int done = CountLevels(&LevelRecord::doneEver);
	if (done == 1)
		return 1;
	if (done == LEVEL_COUNT - 1)
		return 99;
	return done * 100 / LEVEL_COUNT;
}

bool CGameData::IsIslandOpen(int i) const
{
	return i >= 0 && i < ISLAND_COUNT && islandOpen[i];
}

void CGameData::OpenIsland(int i)
{
	if (i >= 0 && i < ISLAND_COUNT)
		islandOpen[i] = true;
}

int CGameData::IslandOpenedBy(int level)
{
	for (int island = 1; island < ISLAND_COUNT; island++)
		if (OPENING_LEVEL[island] == level)
			return island;
	return 0;
}

void CGameData::DeriveIslands()
{
	islandOpen[0] = true;
	for (int i = 1; i < ISLAND_COUNT; i++)
		islandOpen[i] = IsLevelDoneEver(OPENING_LEVEL[i] - 1);
}

int CGameData::TotalScore() const
{
	long long total = 0;
	for (const LevelRecord& level : profile.levels)
		total += level.score;
	return static_cast<int>(std::min<long long>(total, MOST_TOTAL));
}

void CGameData::ApplyTotalScore()
{
	SetPlayScore(TotalScore());
}

void CGameData::DeriveExtraLifeCounter()
{
	long long sum = 0;
	for (const LevelRecord& level : profile.levels)
		sum += level.rescues;
	extraLifeCounter = static_cast<int>(std::max(sum, 0LL) % RESCUES_A_LIFE);
}

int CGameData::RescuesToExtraLife() const
{
	return RESCUES_A_LIFE - extraLifeCounter;
}

LevelRecord* CGameData::CurrentRecord()
{
	if (currentLevel < 1 || currentLevel > LEVEL_COUNT)
		return nullptr;
	return &profile.levels[currentLevel - 1];
}

void CGameData::SetLevelScore(int score)
{
	if (LevelRecord* record = CurrentRecord())
		record->score = score;
}

void CGameData::SetLevelRescues(int n)
{
	if (LevelRecord* record = CurrentRecord())
		record->rescues = n;
}

void CGameData::SetLevelExtraLives(int n)
{
	if (LevelRecord* record = CurrentRecord())
		record->extraLives = n;
}

void CGameData::OnExtraLife()
{
	extraLivesThisLevel++;
}

int CGameData::ScoreGainedThisLevel() const
{
	return g_play.levelScore - levelScoreAtStart;
}

void CGameData::OnLevelStart(int level)
{
	OnLevelRestart(level);

	currentLevel  = level;
	notes         = LevelNotes();
	trophyPending = false;
	trophyQueue.clear();
	std::fill(std::begin(speciesThisLevel), std::end(speciesThisLevel), 0);
	levelScoreAtStart   = g_play.levelScore;
	extraLivesThisLevel = rescuesThisLevel = secondsThisLevel = 0;
	drumsInLevel = drumsFired = obstaclesAtStart = 0;
}

// The stored score stays in the record until the level is finished again: a replay that is given
// up costs nothing of it. The lives are struck from it, or a second replay would take them again.
void CGameData::OnLevelRestart(int level)
{
	if (level < 1 || level > LEVEL_COUNT)
		return;
	LevelRecord& record = profile.levels[level - 1];
	SetPlayScore(TotalScore() - record.score);
	g_play.lives      = std::max(g_play.lives - record.extraLives, 0);
	record.rescues    = 0;
	record.extraLives = 0;
	rescuesThisLevel  = 0;
	DeriveExtraLifeCounter();
}

// A life that comes when all is lost already counts for no level.
void CGameData::CountButterfly()
{
	rescuesThisLevel++;
	extraLifeCounter++;
	if (extraLifeCounter < RESCUES_A_LIFE)
		return;
	extraLifeCounter -= RESCUES_A_LIFE;
	if (!g_play.gameOver)
		OnExtraLife();
	if (g_sidebar)
		g_sidebar->GiveExtraLife();
}

void CGameData::ClearStreaks()
{
	streakCount = clearStreak = 0;
	fastLast = streakLast = clearLast = NO_LEVEL;
}

void CGameData::ResetRun()
{
	for (LevelRecord& level : profile.levels)
		level.doneThisRun = level.score = level.rescues = level.extraLives = 0;
	ApplyTotalScore();
	g_play.money     = 0;
	g_play.lives     = LIVES_AT_START;
	extraLifeCounter = 0;
	ClearStreaks();
	profile.runCountsAsKids = profile.kidsMode;
	profile.skillSum        = 0;
	profile.skillAverage    = 5;
	profile.skillCount      = 0;
}

void CGameData::ResetProgress()
{
	ResetRun();
	for (LevelRecord& level : profile.levels)
		level.doneEver = level.topGrade = level.drumsSafe = level.cleared = 0;
	DeriveIslands();
}
