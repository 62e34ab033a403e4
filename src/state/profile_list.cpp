// The list of profiles: its file and the operations on it.
#include "state/game_data.h"

#include "frame/debug.h"
#include "media/archive.h"
#include "state/byte_stream.h"
#include "state/save_folder.h"

#include <algorithm>

static const char* const FIRST_NAME = "PLAYER 1";

static const size_t NAME_BYTES   = 16; // with the zero at the end
static const size_t ENDING_BYTES = 6;  // room for a space and a number
static const size_t HEADER_BYTES = 20;
static const size_t RECORD_BYTES = 4 + 2 * NAME_BYTES;
static const size_t MOST_RECORDS = 10000; // more would be no list of ours
static const int HIGHEST_NUMBER  = 999999999;

std::string CGameData::ListPath() const
{
	return SaveFolder() + "QUORBLETv" + std::to_string(FORMAT_VERSION) + ".DAT";
}

static void WriteName(CByteStream& file, const std::string& name)
{
	uint8_t field[NAME_BYTES] = {};
	std::copy_n(name.begin(), std::min(name.size(), NAME_BYTES - 1), field);
	file.Block(field, NAME_BYTES);
}

// The field need not end in a zero, nor hold letters only, once its file has been damaged.
static std::string ReadName(CByteStream& file)
{
	uint8_t field[NAME_BYTES] = {};
	file.Block(field, NAME_BYTES);
	std::string name;
	for (size_t i = 0; i < NAME_BYTES - 1 && field[i]; i++)
		name += field[i] >= ' ' && field[i] <= '~' ? static_cast<char>(field[i]) : '?';
	return name;
}

void CGameData::SaveProfileList()
{
	SaveProfile();

	CByteStream file;
	int32_t count = ProfileCount();
	file.Int(formatVersion);
	file.Int(listReserved);
	file.Int(lastProfileNumber);
	file.Int(currentProfileNumber);
	file.Int(count);
	for (const auto& [number, name] : profileNameByNumber) {
		int32_t stored = number;
		file.Int(stored);
		WriteName(file, name);
		WriteName(file, scoreNameByNumber[number]);
	}
	std::string path = ListPath();
	if (!WriteFileSafely(path, file.bytes))
		Error("Cannot save profile header: ", path, true, true);
}

void CGameData::LoadProfileList()
{
	formatVersion     = FORMAT_VERSION;
	listReserved      = 0;
	lastProfileNumber = currentProfileNumber = 0;
	profileNumberByName.clear();
	profileNameByNumber.clear();
	scoreNameByNumber.clear();

	Bytes bytes;
	if (ReadWholeFile(ListPath(), bytes))
		ReadListRecords(bytes);
	if (profileNameByNumber.empty()) {
		currentProfileNumber = 0;
		EnterProfile(0, FIRST_NAME, "");
	}
	lastProfileNumber = std::max(lastProfileNumber, profileNameByNumber.rbegin()->first);
	if (!profileNameByNumber.count(currentProfileNumber))
		currentProfileNumber = profileNumberByName.begin()->second;
	LoadProfile();
}

// The number of records is taken from the file's length: a wrong count loses no profile.
void CGameData::ReadListRecords(const std::vector<unsigned char>& bytes)
{
	if (bytes.size() < HEADER_BYTES)
		return;
	CByteStream file(bytes);
	int32_t ignoredVersion = 0, ignoredCount = 0;
	file.Int(ignoredVersion);
	file.Int(listReserved);
	file.Int(lastProfileNumber);
	file.Int(currentProfileNumber);
	file.Int(ignoredCount);
	if (lastProfileNumber < 0 || lastProfileNumber > HIGHEST_NUMBER)
		lastProfileNumber = 0;

	size_t records = std::min((bytes.size() - HEADER_BYTES) / RECORD_BYTES, MOST_RECORDS);
	for (size_t i = 0; i < records; i++) {
		int32_t number = -1;
		file.Int(number);
		std::string name      = ReadName(file);
		std::string scoreName = ReadName(file);
		if (number >= 0 && number <= HIGHEST_NUMBER && !profileNameByNumber.count(number))
			EnterProfile(number, name, scoreName);
	}
}

void CGameData::EnterProfile(int number, const std::string& wantedName,
                             const std::string& scoreName)
{
	std::string name            = FreeName(wantedName);
	profileNumberByName[name]   = number;
	profileNameByNumber[number] = name;
	scoreNameByNumber[number]   = scoreName;
}

// The name itself, or one like it when it is empty, blank or taken: a name that cannot be seen, or
// two profiles under one, would leave a profile out of reach.
std::string CGameData::FreeName(const std::string& wanted) const
{
	std::string base = wanted.substr(0, NAME_BYTES - 1);
	bool blank       = base.find_first_not_of(' ') == std::string::npos;
	if (!blank && !profileNumberByName.count(base))
		return base;
	if (blank)
		base = "PLAYER";
	base.resize(std::min(base.size(), NAME_BYTES - 1 - ENDING_BYTES));
	for (int i = 1;; i++) {
		std::string name = base + ' ' + std::to_string(i);
		if (!profileNumberByName.count(name))
			return name;
	}
}

void CGameData::CreateProfile(const std::string& name)
{
	lastProfileNumber++;
	currentProfileNumber = lastProfileNumber;
	EnterProfile(currentProfileNumber, name, "");
	LoadProfile();
}

void CGameData::RenameProfile(const std::string& oldName, const std::string& newName)
{
	const char* missing = "Unable to find find profile to rename.";
	auto byName         = profileNumberByName.find(oldName);
	if (byName == profileNumberByName.end()) {
		Error(missing, true, true);
		return;
	}
	int number    = byName->second;
	auto byNumber = profileNameByNumber.find(number);
	if (byNumber == profileNameByNumber.end()) {
		Error(missing, true, true);
		return;
	}
	profileNumberByName.erase(byName);
	std::string name          = FreeName(newName);
	profileNumberByName[name] = number;
	byNumber->second          = name;
}

void CGameData::DeleteProfile(const std::string& name)
{
	const char* missing = "Unable to find find profile to delete.";
	auto byName         = profileNumberByName.find(name);
	if (byName == profileNumberByName.end()) {
		Error(missing, true, true);
		return;
	}
	int number = byName->second;
	profileNumberByName.erase(byName);
	if (profileNameByNumber.erase(number) == 0)
		Error(missing, true, true);
	scoreNameByNumber.erase(number);

	if (profileNumberByName.empty()) {
		CreateProfile(FIRST_NAME);
		return;
	}
	currentProfileNumber = profileNumberByName.begin()->second;
	LoadProfile();
}

void CGameData::SwitchProfile(const std::string& name)
{
	currentProfileNumber = ProfileNumberOfName(name);
	LoadProfile();
}

int CGameData::ProfileCount() const
{
	return static_cast<int>(profileNumberByName.size());
}

const char* CGameData::ProfileNameAt(int index) const
{
	if (index < 0 || index >= static_cast<int>(profileNameByNumber.size()))
		return nullptr;
	return std::next(profileNameByNumber.begin(), index)->second.c_str();
}

const char* CGameData::ProfileNameOfNumber(int number) const
{
	auto found = profileNameByNumber.find(number);
	if (found != profileNameByNumber.end())
		return found->second.c_str();
	Error("Unable to find profile name.", true, true);
	return nullptr;
}

const char* CGameData::CurrentProfileName() const
{
	return ProfileNameOfNumber(currentProfileNumber);
}

int CGameData::ProfileNumberOfName(const std::string& name) const
{
	auto found = profileNumberByName.find(name);
	if (found != profileNumberByName.end())
		return found->second;
	Error("Unable to find profile number.", true, true);
	return -1;
}

bool CGameData::HasScoreName(int number)
{
	return !scoreNameByNumber[number == -1 ? currentProfileNumber : number].empty();
}

const char* CGameData::ScoreNameOf(int number) const
{
	int wanted = number == -1 ? currentProfileNumber : number;
	auto found = scoreNameByNumber.find(wanted);
	if (found == scoreNameByNumber.end())
		return nullptr;
	return found->second.empty() ? ProfileNameOfNumber(wanted) : found->second.c_str();
}

void CGameData::SetScoreName(const std::string& name)
{
	scoreNameByNumber[currentProfileNumber] = name.substr(0, NAME_BYTES - 1);
}
