// The list of profiles: operations, its file, and lists that have been damaged.
#include "state/state_test.h"

#include <filesystem>

static const size_t HEADER_BYTES = 20, RECORD_BYTES = 36;

static std::vector<std::string> Names(const CGameData& data)
{
	std::vector<std::string> names;
	for (int i = 0; const char* name = data.ProfileNameAt(i); i++)
		names.push_back(name);
	return names;
}

TEST_F(StateTest, FirstRunHasOnePlayer)
{
	EXPECT_EQ(1, data->ProfileCount());
	EXPECT_STREQ("PLAYER 1", data->CurrentProfileName());
	EXPECT_EQ(0, data->GetCurrentProfileNumber());
	data->SaveProfileList();
	EXPECT_TRUE(std::filesystem::exists(SaveFolder() + "PROFILE1v5.DAT"));
	EXPECT_EQ(HEADER_BYTES + RECORD_BYTES, ReadBytes(ListPath()).size());
}

TEST_F(StateTest, ListFileHoldsHeaderAndRecordsByNumber)
{
	data->RenameProfile("PLAYER 1", "ZOE");
	data->listReserved = 0x01020304;
	data->CreateProfile("ABCDEFGHIJKLMNO"); // 15 characters
	data->SetScoreName("ACE");
	data->SaveProfileList();
	std::vector<unsigned char> bytes = ReadBytes(ListPath());
	ASSERT_EQ(HEADER_BYTES + 2 * RECORD_BYTES, bytes.size());
	int header[] = {5, 0x01020304, 1, 1, 2};
	for (size_t i = 0; i < 5; i++)
		EXPECT_EQ(header[i], IntAt(bytes, 4 * i)) << i;
	EXPECT_EQ(0, IntAt(bytes, 20));
	EXPECT_EQ(std::string("ZOE") + std::string(13, '\0'),
	          std::string(bytes.begin() + 24, bytes.begin() + 40));
	EXPECT_EQ(std::string(16, '\0'), std::string(bytes.begin() + 40, bytes.begin() + 56));
	EXPECT_EQ(1, IntAt(bytes, 56));
	EXPECT_EQ(std::string("ABCDEFGHIJKLMNO") + '\0',
	          std::string(bytes.begin() + 60, bytes.begin() + 76));
	EXPECT_EQ(std::string("ACE") + std::string(13, '\0'),
	          std::string(bytes.begin() + 76, bytes.begin() + 92));

	Reopen();
	EXPECT_STREQ("ABCDEFGHIJKLMNO", data->CurrentProfileName());
	EXPECT_STREQ("ACE", data->ScoreNameOf(-1));
	EXPECT_EQ(0x01020304, data->listReserved);
}

TEST_F(StateTest, EachPlayerHasRecordsOfHisOwn)
{
	data->profile.levels[0].score = 700;
	data->SaveProfile();
	data->CreateProfile("B");
	EXPECT_EQ(0, data->TotalScore());
	EXPECT_EQ(0, g_play.levelScore);
	data->SaveProfile();
	data->SwitchProfile("PLAYER 1");
	EXPECT_EQ(700, g_play.levelScore);
}

TEST_F(StateTest, DeletingTheOnlyPlayerMakesANewOne)
{
	data->profile.soundVolume = 1;
	data->DeleteProfile("PLAYER 1");
	EXPECT_STREQ("PLAYER 1", data->CurrentProfileName());
	EXPECT_EQ(1, data->GetCurrentProfileNumber()) << "numbers are not used again";
	EXPECT_EQ(11, data->GetSoundVolume());
	EXPECT_EQ(1, data->ProfileCount());
}

TEST_F(StateTest, AfterADeleteTheFirstNameIsCurrent)
{
	data->CreateProfile("MIA");
	data->CreateProfile("EVA");
	data->CreateProfile("eva");
	EXPECT_EQ(4, data->ProfileCount()) << "case tells names apart";
	data->DeleteProfile("PLAYER 1");
	EXPECT_STREQ("EVA", data->CurrentProfileName());
	EXPECT_EQ(2, data->GetCurrentProfileNumber());
}

TEST_F(StateTest, RenameKeepsNumberAndScoreName)
{
	data->SetScoreName("ACE");
	data->RenameProfile("PLAYER 1", "NEW");
	EXPECT_EQ(0, data->ProfileNumberOfName("NEW"));
	EXPECT_STREQ("NEW", data->ProfileNameOfNumber(0));
	EXPECT_STREQ("ACE", data->ScoreNameOf(0));
	data->RenameProfile("NEW", "NEW");
	EXPECT_EQ(std::vector<std::string>{"NEW"}, Names(*data));
}

TEST_F(StateTest, ScoreNameStandsInOnlyWhenChosen)
{
	EXPECT_FALSE(data->HasScoreName(-1));
	EXPECT_STREQ("PLAYER 1", data->ScoreNameOf(-1));
	EXPECT_EQ(nullptr, data->ScoreNameOf(55));
	EXPECT_FALSE(data->HasScoreName(55));
	data->SetScoreName("ACE");
	EXPECT_TRUE(data->HasScoreName(0));
}

TEST_F(StateTest, LookupsThatMissEndTheProgram)
{
	EXPECT_EXIT(data->ProfileNameOfNumber(9), testing::ExitedWithCode(1), "");
	EXPECT_EXIT(data->ProfileNumberOfName("NOBODY"), testing::ExitedWithCode(1), "");
	EXPECT_EXIT(data->RenameProfile("NOBODY", "X"), testing::ExitedWithCode(1), "");
	EXPECT_EXIT(data->DeleteProfile("NOBODY"), testing::ExitedWithCode(1), "");
	EXPECT_EQ(nullptr, data->ProfileNameAt(-1));
	EXPECT_EQ(nullptr, data->ProfileNameAt(1));
}

static void PutInt(std::vector<unsigned char>& bytes, size_t offset, unsigned value)
{
	for (size_t i = 0; i < 4; i++)
		bytes[offset + i] = static_cast<unsigned char>(value >> (8 * i));
}

// A count beyond the file, or none at all, must not cost a player his records.
TEST_F(StateTest, WrongCountLosesNobody)
{
	data->CreateProfile("B");
	data->SaveProfileList();
	std::vector<unsigned char> whole = ReadBytes(ListPath());
	for (unsigned count : {4000000000u, 300u, 0u, 1u}) {
		std::vector<unsigned char> bytes = whole;
		PutInt(bytes, 16, count);
		WriteSavedBytes(ListPath(), bytes);
		data->LoadProfileList();
		EXPECT_EQ((std::vector<std::string>{"PLAYER 1", "B"}), Names(*data)) << count;
		EXPECT_STREQ("B", data->CurrentProfileName());
	}
	whole.resize(HEADER_BYTES + RECORD_BYTES + 10); // cut in the second record
	WriteSavedBytes(ListPath(), whole);
	data->LoadProfileList();
	EXPECT_EQ(std::vector<std::string>{"PLAYER 1"}, Names(*data));
	EXPECT_STREQ("PLAYER 1", data->CurrentProfileName()) << "the current one was not in the list";
	EXPECT_EQ(1, data->lastProfileNumber);
}

TEST_F(StateTest, ThreeHundredPlayersAreKept)
{
	std::vector<unsigned char> bytes(HEADER_BYTES + 300 * RECORD_BYTES);
	PutInt(bytes, 8, 299);
	PutInt(bytes, 16, 300);
	for (unsigned i = 0; i < 300; i++) {
		PutInt(bytes, HEADER_BYTES + i * RECORD_BYTES, i);
		bytes[HEADER_BYTES + i * RECORD_BYTES + 4] = static_cast<unsigned char>('A' + i % 26);
	}
	WriteSavedBytes(ListPath(), bytes);
	data->LoadProfileList();
	EXPECT_EQ(300, data->ProfileCount()) << "names that stand twice are told apart";
	EXPECT_EQ(300u, data->profileNameByNumber.size());
}

TEST_F(StateTest, DamagedNamesAndNumbersAreHandled)
{
	std::vector<unsigned char> bytes(HEADER_BYTES + 4 * RECORD_BYTES, 0xff);
	PutInt(bytes, HEADER_BYTES, 3);                    // name without an end
	PutInt(bytes, HEADER_BYTES + RECORD_BYTES, 3);     // the same number again
	PutInt(bytes, HEADER_BYTES + 2 * RECORD_BYTES, 4); // an empty name
	bytes[HEADER_BYTES + 2 * RECORD_BYTES + 4] = 0;
	WriteSavedBytes(ListPath(), bytes);
	data->LoadProfileList();
	EXPECT_EQ((std::vector<std::string>{std::string(15, '?'), "PLAYER 1"}), Names(*data));
	EXPECT_EQ(4, data->lastProfileNumber);

	for (size_t length = 0; length < 60; length += 7) {
		WriteSavedBytes(ListPath(), std::vector<unsigned char>(length, 0xff));
		data->LoadProfileList();
		EXPECT_EQ(1, data->ProfileCount()) << length;
		EXPECT_NE(nullptr, data->CurrentProfileName());
	}
}

// It would be a row that nobody can see.
TEST_F(StateTest, NameOfBlanksIsReplaced)
{
	std::vector<unsigned char> bytes(HEADER_BYTES + 2 * RECORD_BYTES);
	for (unsigned i = 0; i < 2; i++) {
		const size_t record = HEADER_BYTES + i * RECORD_BYTES;
		PutInt(bytes, record, i);
		std::fill_n(bytes.begin() + static_cast<long>(record) + 4, 3 + i, ' ');
	}
	WriteSavedBytes(ListPath(), bytes);
	data->LoadProfileList();
	EXPECT_EQ((std::vector<std::string>{"PLAYER 1", "PLAYER 2"}), Names(*data));
}

TEST_F(StateTest, TakenNameIsNotTakenTwice)
{
	data->CreateProfile("PLAYER 1");
	EXPECT_EQ(2, data->ProfileCount());
	EXPECT_STRNE("PLAYER 1", data->CurrentProfileName());
	data->CreateProfile("ABCDEFGHIJKLMNOPQRST");
	EXPECT_STREQ("ABCDEFGHIJKLMNO", data->CurrentProfileName());
}
