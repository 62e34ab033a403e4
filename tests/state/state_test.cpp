// A player's data in a folder of its own, without pictures or a field.
#include "state/state_test.h"

#include <fstream>
#include <iterator>

void StateTest::SetUp()
{
	clockBefore = g_clock;
	g_clock     = &clock;
	SeedRandom(1);
	SetSaveFolderRoot(home.path);
	g_fullscreen = true;
	g_play       = PlayCounters();
	data         = std::make_unique<CGameData>();
}

void StateTest::TearDown()
{
	data.reset();
	SetSaveFolderRoot("");
	g_clock = clockBefore;
}

void StateTest::Reopen()
{
	data.reset();
	g_play = PlayCounters();
	data   = std::make_unique<CGameData>();
}

std::vector<unsigned char> ReadBytes(const std::string& path)
{
	std::ifstream file(path, std::ios::binary);
	return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteSavedBytes(const std::string& path, const std::vector<unsigned char>& bytes)
{
	std::ofstream file(path, std::ios::binary);
	file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
}

int IntAt(const std::vector<unsigned char>& bytes, size_t offset)
{
	unsigned value = 0;
	for (size_t i = 0; i < 4; i++)
		value |= static_cast<unsigned>(bytes.at(offset + i)) << (8 * i);
	return static_cast<int>(value);
}
