// Everything about the player that outlives a level, and the arithmetic of difficulty.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

const int LEVEL_COUNT    = 182;
const int NO_LEVEL       = -2;
const int TROPHY_COUNT   = 38;
const int ISLAND_COUNT   = 7;
const int VOLUME_MAX     = 11;
const int FORMAT_VERSION = 5;

enum ControlKey { KEY_LEFT, KEY_RIGHT, KEY_LEFT_BUTTON, KEY_RIGHT_BUTTON, CONTROL_KEYS };

struct LevelRecord {
	int32_t doneThisRun = 0;
	uint8_t doneEver = 0, topGrade = 0, drumsSafe = 0, cleared = 0;
	int32_t score = 0, rescues = 0, extraLives = 0;
};

// What the profile file holds, in file order. Money, lives and the spare counter live in the side
// panel's counters and are only copied through here.
struct ProfileRecord {
	uint8_t reserved[256]         = {}; // carried as read
	int32_t sanctuaryLastVisit    = 0;  // seconds since 1970
	int32_t sanctuaryFund         = 0;
	int32_t keyCode[CONTROL_KEYS] = {276, 275, 273, 32}; // SDL key symbols
	int32_t soundVolume           = VOLUME_MAX;          // 0 to 11
	int32_t musicVolume           = 5;
	uint8_t hintPagesOn = 1, quizOn = 1, kidsBarrierOn = 1, effectsOn = 1, systemCursorOn = 1;
	float mouseSpeed             = 1;
	uint8_t instructionsSeen     = 0;
	uint8_t fullscreen           = 1;
	uint8_t slowMachineHintShown = 0;
	float skillSum = 0, skillAverage = 5;
	int32_t skillCount = 0;                                                    // never above 20
	uint64_t trophies = 0, speciesOnce = 0, speciesTwice = 0, rareSpecies = 0; // bit sets
	int32_t species13Rescued = 0, species5Rescued = 0, species8Rescued = 0;
	LevelRecord levels[LEVEL_COUNT];
	int32_t speciesRescued[64] = {};
	int32_t kidsMode = 0, runCountsAsKids = 0;
};

// Notes of the level now played, each set by one kind of event on the field and read when the
// level is evaluated. Cleared by OnLevelStart.
struct LevelNotes {
	bool stun = false, fastPaddle = false, sprayed = false, paddleTouch = false, tree = false,
	     missedBag = false, drum = false, drumFired = false, fan = false, bonus = false,
	     alien = false;
};

// One object for the whole run. It always has a current profile; its constructor loads the list of
// profiles and the current one, its destructor saves both.
class CGameData
{
public:
	CGameData();
	~CGameData();

	// Files. A file that cannot be written is fatal; the old one stays whole.
	void SaveProfile();
	void LoadProfile(); // defaults when there is none
	void ResetProfileDefaults();

	// The list of profiles. Lookups that miss are fatal. Text results are null where they say so.
	void SaveProfileList(); // the current profile first
	void LoadProfileList();
	void CreateProfile(const std::string& name); // becomes current
	void RenameProfile(const std::string& oldName, const std::string& newName);
	void DeleteProfile(const std::string& name);
	void SwitchProfile(const std::string& name);
	int ProfileCount() const;
	const char* ProfileNameAt(int index) const; // numbers ascending; null past the end
	const char* ProfileNameOfNumber(int number) const;
	const char* CurrentProfileName() const;
	int ProfileNumberOfName(const std::string& name) const;
	bool HasScoreName(int number); // -1: current
	const char* ScoreNameOf(int number) const;
	void SetScoreName(const std::string& name);
	int GetCurrentProfileNumber() const { return currentProfileNumber; }

	// Options.
	int GetKey(int i) const;
	int GetSoundVolume() const { return profile.soundVolume; }
	int GetMusicVolume() const { return profile.musicVolume; }
	float GetMouseSpeed() const { return profile.mouseSpeed; }
	bool HintPagesOn() const { return profile.hintPagesOn; }
	bool EffectsOn() const { return profile.effectsOn; }
	bool KidsBarrierOn() const { return profile.kidsBarrierOn; }
	bool SystemCursorOn() const { return profile.systemCursorOn; }
	bool GetFullscreen() const { return profile.fullscreen; }
	void SetKey(int i, int code);
	void SetSoundVolume(int v); // 0 to 11; heard at once
	void SetMusicVolume(int v);
	void SetMouseSpeed(float speed); // felt at once
	void SetHintPagesOn(bool on);
	void SetQuizOn(bool on);
	void SetKidsBarrierOn(bool on);
	void SetEffectsOn(bool on);
	void ToggleSystemCursor();
	void SetFullscreen(bool on);

	// Mode.
	bool IsKidsMode() const { return profile.kidsMode != 0; }
	void ToggleKidsMode();
	void MarkRunAsKids();
	int GetRunCountsAsKids() const { return profile.runCountsAsKids; }
	bool QuizActive() const { return profile.kidsMode != 0 && profile.quizOn; }
	bool GetInstructionsSeen() const { return profile.instructionsSeen; }
	void SetInstructionsSeen() { profile.instructionsSeen = 1; }
	bool GetSlowMachineHintShown() const { return profile.slowMachineHintShown; }
	void SetSlowMachineHintShown() { profile.slowMachineHintShown = 1; }

	// Sanctuary.
	int GetSanctuaryFund() const { return profile.sanctuaryFund; }
	void SetSanctuaryFund(int v);
	double SecondsSinceSanctuaryVisit() const;
	void StampSanctuaryVisit();

	// Level progress; i is level - 1.
	bool IsLevelDoneEver(int i) const;
	bool IsLevelDoneThisRun(int i) const;
	int PercentComplete() const;
	bool IsIslandOpen(int i) const;
	void OpenIsland(int i);
	static int IslandOpenedBy(int level); // the island that finishing it opens, 0 for none
	int TotalScore() const;
	void ApplyTotalScore();        // hands it to the side panel's score
	int FirstLevelNotDone() const; // this run; 1 when all are done
	// As the map prints it, such as "12-A"; -1 means the current level, what is below 1 level 1.
	std::string LevelLabel(int level) const;

	// Level bookkeeping.
	void OnLevelStart(int level);
	void OnLevelRestart(int level); // takes back what an earlier play gave; OnLevelStart does too
	void SetLevelScore(int score);  // of currentLevel
	void SetLevelRescues(int n);
	void SetLevelExtraLives(int n);
	void OnExtraLife();
	void OnLevelEvaluated(int level, int seconds);
	int ScoreGainedThisLevel() const;
	int RescuesToExtraLife() const; // 50 less the counter

	// Trophies and species.
	bool HasTrophy(int bit) const;
	void AwardTrophy(int bit);
	void ClearTrophies();
	int TrophyDisplayNumber(int bit) const;
	int TrophyBitOfDisplayNumber(int n) const;
	void OnAnimalRescued(int species);
	void OnObstacleBroken(); // after each crate or fence broke
	void OnPerfectBonus();
	int SpeciesFoundCount() const;
	int SpeciesMissingCount() const;
	int RescuedOfSpecies(int species) const;
	int RescuedThisLevel(int species) const;
	bool HasSpecies(int bit) const;
	bool HasSpeciesTwice(int bit) const;
	bool HasRareSpecies(int bit) const;

	// Difficulty.
	int SkillRating() const; // 0 to 20000
	float BallSpeedFactor() const;
	int RandomBySkill(int min, int max) const;
	int SpawnInterval() const; // at least 8
	int PickPowerup() const;   // a kind, 1 to 17
	bool ChanceByRating(int n) const;
	void SkillPenalty();
	void FoldSkill();

	// Run.
	void ResetRun();      // game over
	void ResetProgress(); // starting over

	// Notes of the field.
	void NoteStun() { notes.stun = true; }
	void NoteFastPaddle() { notes.fastPaddle = true; }
	void ClearFastPaddleNote() { notes.fastPaddle = false; }
	void NoteSprayed() { notes.sprayed = true; }
	void NotePaddleTouch() { notes.paddleTouch = true; }
	void NoteTree() { notes.tree = true; }
	void NoteMissedBag() { notes.missedBag = true; }
	void NoteDrum(); // counts the drum
	void NoteDrumFired();
	void NoteFan() { notes.fan = true; }
	void NoteBonusLevel() { notes.bonus = true; }
	void StoreObstaclesAtStart(int n) { obstaclesAtStart = n; }

	ProfileRecord profile;
	LevelNotes notes;

	// profile list
	int32_t formatVersion = FORMAT_VERSION, listReserved = 0;
	int32_t lastProfileNumber = 0, currentProfileNumber = 0;
	std::map<std::string, int> profileNumberByName;
	std::map<int, std::string> profileNameByNumber;
	std::map<int, std::string> scoreNameByNumber;

	// derived at load
	int extraLifeCounter          = 0; // 0 to 49
	bool islandOpen[ISLAND_COUNT] = {};

	// this level
	int currentLevel         = NO_LEVEL;
	int speciesThisLevel[64] = {};
	int levelScoreAtStart    = 0;
	int extraLivesThisLevel = 0, rescuesThisLevel = 0, secondsThisLevel = 0;
	int drumsInLevel = 0, drumsFired = 0;
	bool trophyPending = false;
	std::deque<int> trophyQueue;     // display numbers, not yet shown
	std::deque<int> newSpeciesQueue; // species rescued for the first time

	// streaks, from the game's start to its end
	int fastLast = NO_LEVEL, streakCount = 0, streakLast = NO_LEVEL;
	int obstaclesAtStart = 0, clearStreak = 0, clearLast = NO_LEVEL;

private:
	std::string ProfilePath() const;
	std::string ListPath() const;
	void BringIntoRange(); // what a damaged file may hold
	void HandOutLoaded();
	void ReadListRecords(const std::vector<unsigned char>& bytes);
	void EnterProfile(int number, const std::string& wantedName, const std::string& scoreName);
	std::string FreeName(const std::string& wanted) const;
	LevelRecord* CurrentRecord(); // null outside a level
	void DeriveIslands();
	void DeriveExtraLifeCounter();
	void ClearStreaks();
	void CountButterfly();
	void CountLifetimeTotals(int species);
	void CountSpecies(int species);
	void EvaluateFeats(int level, int seconds);
	void EvaluateObstacles(int level);
	void EvaluateProgress(int level);
	void EvaluateStreak(int level);
	void EvaluateCare(LevelRecord& record);
	void AddLevelSkill(int seconds);
	bool BonusLevelRuns() const;
	int CountLevels(uint8_t LevelRecord::*flag) const;
};

extern CGameData* g_gameData;      // for screens
extern CGameData* g_levelGameData; // for the play field; the same object

// The play field's way to the data: ends the program when there is none.
CGameData* LevelGameData();
