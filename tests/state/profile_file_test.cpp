// The profile file: where each value lies, what comes back, and what damage does.
#include "state/state_test.h"

#include <cmath>
#include <cstring>
#include <filesystem>

static const size_t PROFILE_BYTES = 4272;
static const size_t LEVEL_BYTES   = 20;

static float FloatAt(const std::vector<unsigned char>& bytes, size_t offset)
{
	int bits = IntAt(bytes, offset);
	float value;
	std::memcpy(&value, &bits, sizeof value);
	return value;
}

TEST_F(StateTest, FreshFolderGivesDefaults)
{
	EXPECT_EQ(11, data->GetSoundVolume());
	EXPECT_EQ(5, data->GetMusicVolume());
	int keys[] = {276, 275, 273, 32};
	for (int i = 0; i < CONTROL_KEYS; i++)
		EXPECT_EQ(keys[i], data->GetKey(i));
	EXPECT_EQ(4, g_play.lives);
	EXPECT_EQ(0, g_play.money);
	EXPECT_FLOAT_EQ(5, data->profile.skillAverage);
	for (int i = 0; i < ISLAND_COUNT; i++)
		EXPECT_EQ(i == 0, data->IsIslandOpen(i)) << i;
	EXPECT_TRUE(data->EffectsOn() && data->HintPagesOn() && data->KidsBarrierOn() &&
	            data->SystemCursorOn());
	EXPECT_EQ(0, data->SecondsSinceSanctuaryVisit());
}

// The table of offsets is a contract with files that lie on players' disks.
TEST_F(StateTest, EveryValueLiesAtItsOffset)
{
	ProfileRecord& profile     = data->profile;
	profile.reserved[255]      = 77;
	profile.sanctuaryLastVisit = 1000;
	profile.sanctuaryFund      = 1001;
	for (int i = 0; i < CONTROL_KEYS; i++)
		profile.keyCode[i] = 100 + i;
	profile.soundVolume = 3;
	profile.musicVolume = 4;
	profile.hintPagesOn = profile.kidsBarrierOn = profile.systemCursorOn = 0;
	profile.mouseSpeed                                                   = 1.4f;
	profile.instructionsSeen = profile.slowMachineHintShown = 1;
	profile.skillSum                                        = 2.25f;
	profile.skillAverage                                    = 4.5f;
	profile.skillCount                                      = 7;
	profile.trophies                                        = 0x2122232425262728;
	profile.speciesOnce                                     = 0x3132333435363738;
	profile.speciesTwice                                    = 0x4142434445464748;
	profile.rareSpecies                                     = 0x5152535455565758;
	profile.species13Rescued                                = 13;
	profile.species5Rescued                                 = 5;
	profile.species8Rescued                                 = 8;
	profile.levels[181]                                     = {1, 1, 0, 1, 1, 9001, 9002, 3};
	profile.speciesRescued[0]                               = 61;
	profile.speciesRescued[63]                              = 62;
	profile.kidsMode                                        = 0;
	profile.runCountsAsKids                                 = 1;
	g_play.spareCounter                                     = 71;
	g_play.money                                            = 72;
	g_play.lives                                            = 6;
	g_fullscreen                                            = false;
	data->SaveProfile();

	std::vector<unsigned char> bytes = ReadBytes(ProfilePath(0));
	ASSERT_EQ(PROFILE_BYTES, bytes.size());
	const size_t lastLevel = 356 + 181 * LEVEL_BYTES;
	struct {
		size_t offset;
		int value;
	} ints[] = {{256, 1000},
	            {260, 1001},
	            {264, 100},
	            {276, 103},
	            {280, 3},
	            {284, 4},
	            {308, 7},
	            {312, 0x25262728},
	            {316, 0x21222324},
	            {320, 0x35363738},
	            {328, 0x45464748},
	            {336, 0x55565758},
	            {340, 0x51525354},
	            {344, 13},
	            {348, 5},
	            {352, 8},
	            {lastLevel, 1},
	            {lastLevel + 8, 9001},
	            {lastLevel + 12, 9002},
	            {lastLevel + 16, 3},
	            {3996, 61},
	            {4248, 62},
	            {4252, 0},
	            {4256, 1},
	            {4260, 71},
	            {4264, 72},
	            {4268, 6}};
	for (const auto& row : ints)
		EXPECT_EQ(row.value, IntAt(bytes, row.offset)) << "offset " << row.offset;
	struct {
		size_t offset;
		int value;
	} flags[] = {{255, 77},         {288, 0},           {289, 1},           {290, 0},
	             {291, 1},          {292, 0},           {297, 1},           {298, 0},
	             {299, 1},          {lastLevel + 4, 1}, {lastLevel + 5, 0}, {lastLevel + 6, 1},
	             {lastLevel + 7, 1}};
	for (const auto& row : flags)
		EXPECT_EQ(row.value, bytes[row.offset]) << "offset " << row.offset;
	EXPECT_FLOAT_EQ(1.4f, FloatAt(bytes, 293));
	EXPECT_FLOAT_EQ(2.25f, FloatAt(bytes, 300));
	EXPECT_FLOAT_EQ(4.5f, FloatAt(bytes, 304));
}

TEST_F(StateTest, LoadThenSaveReproducesTheFile)
{
	data->profile.levels[3]   = {1, 1, 1, 1, 0, 12345, 17, 2};
	data->profile.skillSum    = -0.15f;
	data->profile.mouseSpeed  = 0.15f;
	data->profile.reserved[9] = 200;
	data->profile.trophies    = 1ULL << 37;
	g_play.money              = 4321;
	g_play.spareCounter       = -5;
	data->SaveProfile();
	std::vector<unsigned char> before = ReadBytes(ProfilePath(0));
	g_play                            = PlayCounters();
	data->profile                     = ProfileRecord();
	data->LoadProfile();
	data->SaveProfile();
	EXPECT_EQ(before, ReadBytes(ProfilePath(0)));
	EXPECT_EQ(12345, data->TotalScore());
	EXPECT_EQ(4321, g_play.money);
}

TEST_F(StateTest, IslandsAndCounterAreDerivedAtLoad)
{
	data->profile.levels[17].doneEver    = 1; // level 18
	data->profile.levels[17].doneThisRun = 0;
	data->profile.levels[0].rescues      = 100;
	data->profile.levels[1].rescues      = 49;
	data->SaveProfile();
	data->LoadProfile();
	EXPECT_TRUE(data->IsIslandOpen(1));
	EXPECT_FALSE(data->IsIslandOpen(2));
	EXPECT_EQ(49, data->extraLifeCounter);
	EXPECT_EQ(1, data->RescuesToExtraLife());

	data->profile.levels[1].rescues = 50;
	data->SaveProfile();
	data->LoadProfile();
	EXPECT_EQ(0, data->extraLifeCounter);
}

TEST_F(StateTest, ShortFileKeepsDefaultsForWhatIsMissing)
{
	data->profile.soundVolume     = 2;
	g_play.lives                  = 9;
	data->profile.levels[0].score = 500;
	data->SaveProfile();
	std::vector<unsigned char> bytes = ReadBytes(ProfilePath(0));
	for (size_t length : {size_t(0), size_t(10), size_t(282), size_t(286), size_t(4271)}) {
		SCOPED_TRACE(length);
		WriteSavedBytes(ProfilePath(0), {bytes.begin(), bytes.begin() + static_cast<long>(length)});
		data->LoadProfile();
		EXPECT_EQ(length >= 284 ? 2 : 11, data->GetSoundVolume());
		EXPECT_EQ(5, data->GetMusicVolume());
		EXPECT_EQ(4, g_play.lives);
		EXPECT_EQ(length > 364 ? 500 : 0, data->TotalScore());
	}
}

// What a damaged file may hold must neither index past an array nor stop the ball.
TEST_F(StateTest, RandomBytesComeIntoRange)
{
	for (unsigned seed = 1; seed <= 60; seed++) {
		SCOPED_TRACE(seed);
		SeedRandom(seed);
		std::vector<unsigned char> bytes(PROFILE_BYTES);
		for (unsigned char& byte : bytes)
			byte = seed == 1 ? 0xff : static_cast<unsigned char>(Rand());
		WriteSavedBytes(ProfilePath(0), bytes);
		data->LoadProfile();
		for (int i = 0; i < CONTROL_KEYS; i++)
			EXPECT_TRUE(data->GetKey(i) > 0 && data->GetKey(i) < SDLK_LAST);
		EXPECT_TRUE(data->GetSoundVolume() >= 0 && data->GetSoundVolume() <= 11);
		EXPECT_TRUE(data->GetMusicVolume() >= 0 && data->GetMusicVolume() <= 11);
		EXPECT_TRUE(data->GetMouseSpeed() >= 0.15f && data->GetMouseSpeed() <= 3);
		EXPECT_TRUE(g_play.lives >= 0 && g_play.lives <= 99);
		EXPECT_GE(g_play.money, 0);
		EXPECT_GE(data->TotalScore(), 0);
		EXPECT_TRUE(data->SkillRating() >= 0 && data->SkillRating() <= 20000);
		EXPECT_TRUE(data->BallSpeedFactor() > 0.5f && data->BallSpeedFactor() <= 1.4f);
		EXPECT_TRUE(data->PercentComplete() >= 0 && data->PercentComplete() <= 100);
		EXPECT_GE(data->SecondsSinceSanctuaryVisit(), 0);
		for (int i = 0; i < 300; i++) // sums must not run over
			data->OnAnimalRescued(5);
	}
}

TEST_F(StateTest, ClockSetBackGivesNoNegativeTime)
{
	data->StampSanctuaryVisit();
	clock.startSeconds -= 5000;
	EXPECT_EQ(0, data->SecondsSinceSanctuaryVisit());
	clock.startSeconds += 5090;
	EXPECT_EQ(90, data->SecondsSinceSanctuaryVisit());
}

TEST_F(StateTest, FundAgesFromTheMomentItExists)
{
	clock.startSeconds += 100;
	data->SetSanctuaryFund(50);
	EXPECT_EQ(0, data->SecondsSinceSanctuaryVisit()) << "an empty fund is stamped";
	clock.startSeconds += 100;
	data->SetSanctuaryFund(80);
	EXPECT_EQ(100, data->SecondsSinceSanctuaryVisit()) << "one that exists is not";
	EXPECT_EQ(80, data->GetSanctuaryFund());
}

TEST_F(StateTest, LeavesNoSecondFileBehind)
{
	data->SaveProfileList();
	int files = 0;
	for (const auto& entry : std::filesystem::directory_iterator(SaveFolder()))
		files += entry.is_regular_file();
	EXPECT_EQ(2, files);
	EXPECT_EQ(home.path + "Ondrel/Quorblet Data/", SaveFolder());
}

// A file stands where the folder should be.
TEST_F(StateTest, FolderThatCannotBeWrittenIsFatal)
{
	CTempFolder other;
	WriteSavedBytes(other.path + "Ondrel", {1});
	SetSaveFolderRoot(other.path);
	EXPECT_EXIT(data->SaveProfile(), testing::ExitedWithCode(1), "");
	SetSaveFolderRoot(home.path);
}

TEST_F(StateTest, FailedWriteLeavesTheOldFileWhole)
{
	data->SaveProfile();
	std::vector<unsigned char> before = ReadBytes(ProfilePath(0));
	std::filesystem::create_directory(ProfilePath(0) + ".new");
	EXPECT_FALSE(WriteFileSafely(ProfilePath(0), {1, 2, 3}));
	std::filesystem::remove(ProfilePath(0) + ".new");
	EXPECT_EQ(before, ReadBytes(ProfilePath(0)));
	EXPECT_TRUE(WriteFileSafely(ProfilePath(0), {1, 2, 3}));
	EXPECT_EQ(3u, ReadBytes(ProfilePath(0)).size());
}
