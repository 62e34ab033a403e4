// The profile file: its layout, saving, loading, defaults, and what damage may do to it.
#include "state/game_data.h"

#include "field/sidebar.h"
#include "frame/debug.h"
#include "frame/program.h"
#include "media/archive.h"
#include "media/display.h"
#include "state/byte_stream.h"
#include "state/save_folder.h"

#include <algorithm>
#include <SDL.h>

// Limits for what is read: far above what play gives, low enough that sums cannot overflow.
static const int MOST_MONEY   = 99999999;
static const int MOST_SCORE   = 99999999; // of one level
static const int MOST_RESCUES = 9999999;
static const int MOST_LIVES   = 99;

static const float SLOWEST_MOUSE  = 0.15f; // the ends of the options page's slider
static const float FASTEST_MOUSE  = 3.0f;
static const float MOST_SKILL     = 1000.0f;
static const int MOST_SKILL_COUNT = 20;

static void TransferOptions(CByteStream& file, ProfileRecord& profile)
{
	for (int32_t& code : profile.keyCode)
		file.Int(code);
	file.Int(profile.soundVolume);
	file.Int(profile.musicVolume);
	file.Byte(profile.hintPagesOn);
	file.Byte(profile.quizOn);
	file.Byte(profile.kidsBarrierOn);
	file.Byte(profile.effectsOn);
	file.Byte(profile.systemCursorOn);
	file.Float(profile.mouseSpeed);
	file.Byte(profile.instructionsSeen);
	file.Byte(profile.fullscreen);
	file.Byte(profile.slowMachineHintShown);
}

static void TransferLevel(CByteStream& file, LevelRecord& level)
{
	file.Int(level.doneThisRun);
	file.Byte(level.doneEver);
	file.Byte(level.topGrade);
	file.Byte(level.drumsSafe);
	file.Byte(level.cleared);
	file.Int(level.score);
	file.Int(level.rescues);
	file.Int(level.extraLives);
}

// The file from its first byte to its last, for reading and for writing.
static void TransferProfile(CByteStream& file, ProfileRecord& profile, PlayCounters& play)
{
	file.Block(profile.reserved, sizeof profile.reserved);
	file.Int(profile.sanctuaryLastVisit);
	file.Int(profile.sanctuaryFund);
	TransferOptions(file, profile);
	file.Float(profile.skillSum);
	file.Float(profile.skillAverage);
	file.Int(profile.skillCount);
	file.Long(profile.trophies);
	file.Long(profile.speciesOnce);
	file.Long(profile.speciesTwice);
	file.Long(profile.rareSpecies);
	file.Int(profile.species13Rescued);
	file.Int(profile.species5Rescued);
	file.Int(profile.species8Rescued);
	for (LevelRecord& level : profile.levels)
		TransferLevel(file, level);
	for (int32_t& rescued : profile.speciesRescued)
		file.Int(rescued);
	file.Int(profile.kidsMode);
	file.Int(profile.runCountsAsKids);
	file.Int(play.spareCounter);
	file.Int(play.money);
	file.Int(play.lives);
}

// The display is gone at shut-down and not yet there at start-up.
static bool FullscreenNow()
{
	return g_display ? g_display->IsFullscreen() : g_fullscreen;
}

std::string CGameData::ProfilePath() const
{
	return SaveFolder() + "PROFILE" + std::to_string(currentProfileNumber + 1) + "v" +
	       std::to_string(FORMAT_VERSION) + ".DAT";
}

void CGameData::SaveProfile()
{
	std::string path   = ProfilePath();
	profile.fullscreen = FullscreenNow();
	CByteStream file;
	TransferProfile(file, profile, g_play);
	if (!WriteFileSafely(path, file.bytes))
		Error("Cannot save profile: ", path, true, true);
}

void CGameData::LoadProfile()
{
	Bytes bytes;
	if (!ReadWholeFile(ProfilePath(), bytes)) {
		ResetProfileDefaults();
		return;
	}
	// A file that ends early leaves the rest as in a new profile.
	ResetProfileDefaults();
	CByteStream file(bytes);
	TransferProfile(file, profile, g_play);
	BringIntoRange();
	HandOutLoaded();
}

void CGameData::HandOutLoaded()
{
	ApplyTotalScore();
	DeriveExtraLifeCounter();
	SetSoundVolume(profile.soundVolume);
	SetMusicVolume(profile.musicVolume);
	ClearStreaks();
	DeriveIslands();
}

void CGameData::ResetProfileDefaults()
{
	profile = ProfileRecord();
	StampSanctuaryVisit();
	profile.fullscreen  = FullscreenNow();
	g_play.spareCounter = 0;
	g_play.money        = 0;
	g_play.lives        = LIVES_AT_START;
	HandOutLoaded();
}

static void ToFlag(uint8_t& flag)
{
	flag = flag != 0;
}

static void ToFlag(int32_t& flag)
{
	flag = flag != 0;
}

static void BringFloat(float& value, float lowest, float highest, float otherwise)
{
	if (!(value >= lowest && value <= highest)) // no number fails both
		value = otherwise;
}

static void BringOptionsIntoRange(ProfileRecord& profile)
{
	const ProfileRecord fresh;
	for (int i = 0; i < CONTROL_KEYS; i++)
		if (profile.keyCode[i] <= SDLK_UNKNOWN || profile.keyCode[i] >= SDLK_LAST)
			profile.keyCode[i] = fresh.keyCode[i];
	profile.soundVolume = std::clamp(profile.soundVolume, 0, VOLUME_MAX);
	profile.musicVolume = std::clamp(profile.musicVolume, 0, VOLUME_MAX);
	for (uint8_t* flag : {&profile.hintPagesOn, &profile.quizOn, &profile.kidsBarrierOn,
	                      &profile.effectsOn, &profile.systemCursorOn, &profile.instructionsSeen,
	                      &profile.fullscreen, &profile.slowMachineHintShown})
		ToFlag(*flag);
	BringFloat(profile.mouseSpeed, SLOWEST_MOUSE, FASTEST_MOUSE, fresh.mouseSpeed);
	BringFloat(profile.skillSum, -MOST_SKILL, MOST_SKILL, fresh.skillSum);
	BringFloat(profile.skillAverage, -MOST_SKILL, MOST_SKILL, fresh.skillAverage);
	profile.skillCount = std::clamp(profile.skillCount, 0, MOST_SKILL_COUNT);
	ToFlag(profile.kidsMode);
	ToFlag(profile.runCountsAsKids);
}

static void BringLevelIntoRange(LevelRecord& level)
{
	ToFlag(level.doneThisRun);
	ToFlag(level.doneEver);
	ToFlag(level.topGrade);
	ToFlag(level.drumsSafe);
	ToFlag(level.cleared);
	level.score      = std::clamp(level.score, 0, MOST_SCORE);
	level.rescues    = std::clamp(level.rescues, 0, MOST_RESCUES);
	level.extraLives = std::clamp(level.extraLives, 0, MOST_LIVES);
}

// A file of random bytes must neither index past an array nor make the ball's speed no number.
void CGameData::BringIntoRange()
{
	BringOptionsIntoRange(profile);
	profile.sanctuaryFund = std::clamp(profile.sanctuaryFund, 0, MOST_MONEY);
	for (int32_t* total :
	     {&profile.species13Rescued, &profile.species5Rescued, &profile.species8Rescued})
		*total = std::clamp(*total, 0, MOST_RESCUES);
	for (LevelRecord& level : profile.levels)
		BringLevelIntoRange(level);
	for (int32_t& rescued : profile.speciesRescued)
		rescued = std::clamp(rescued, 0, MOST_RESCUES);
	g_play.money = std::clamp(g_play.money, 0, MOST_MONEY);
	g_play.lives = std::clamp(g_play.lives, 0, MOST_LIVES);
}
