// A sliding door of the side panel.
#pragma once

class CSprite;

// Two rubbers, two panels and two handles that slide apart and back. Requests wait until the door
// can follow them. Whoever made it deletes it.
class CGuiDoor
{
public:
	CGuiDoor(int newX, int newY); // closed
	~CGuiDoor();

	void RequestOpen();
	void RequestClose();
	bool IsOpen() const { return open; }
	bool IsClosed() const { return closed; }
	bool IsOpening() const { return opening; }
	bool IsClosing() const { return closing; }
	void StepDoor(); // once a frame

	CSprite* leftRubber; // owned, as are all below
	CSprite* rightRubber;
	CSprite* leftPanel;
	CSprite* rightPanel;
	CSprite* leftHandle;
	CSprite* rightHandle;
	CSprite* bothHandles;
	int x, y;

private:
	void StepOpening();
	void StepClosing();

	bool opening = false, closing = false, open = false, closed = true;
	bool openWanted = false, closeWanted = false;
};
