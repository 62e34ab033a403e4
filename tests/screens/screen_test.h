// A chain of controllers over the real services, driven by events as a player would.
#pragma once

#include "media/fake_controller.h"
#include "support/field_test.h"

// The fake controller at the root stands for whatever opened the screen under test; result codes
// end there. The list of profiles is a fresh one in each test.
class ScreenTest : public FieldTest
{
protected:
	void SetUp() override;
	void TearDown() override;

	void Start(CController* screen); // pushed by the root; the test owns it
	void Frame(int count = 1);
	void Key(int key); // down and up, then a frame
	void Click(int x, int y);
	void Point(int x, int y);
	void CloseWindow();
	std::string Screen() const; // name of the current controller
	bool IsBack() const;        // the root has control again
	void WriteProfiles(const std::vector<std::string>& names, int current);

	CFakeController root;
};
