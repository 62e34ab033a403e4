// A player's data in a folder of its own, without pictures or a field.
#pragma once

#include "field/sidebar.h"
#include "frame/clock.h"
#include "frame/program.h"
#include "frame/random.h"
#include "state/game_data.h"
#include "state/save_folder.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <memory>

class StateTest : public testing::Test
{
protected:
	void SetUp() override;
	void TearDown() override;

	void Reopen(); // shut down and start again
	std::string ListPath() const { return SaveFolder() + "QUORBLETv5.DAT"; }
	std::string ProfilePath(int number) const
	{
		return SaveFolder() + "PROFILE" + std::to_string(number + 1) + "v5.DAT";
	}

	CTempFolder home;
	CVirtualClock clock;
	CClock* clockBefore = nullptr;
	std::unique_ptr<CGameData> data;
};

std::vector<unsigned char> ReadBytes(const std::string& path);
void WriteSavedBytes(const std::string& path, const std::vector<unsigned char>& bytes);
int IntAt(const std::vector<unsigned char>& bytes, size_t offset); // little-endian
