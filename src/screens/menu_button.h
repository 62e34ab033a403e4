// A button of the main menu.
#pragma once

#include <string>

class CSprite;

// A frame that stays, and on small buttons a face in it, which shrinks away and makes room for the
// face of another page. A press is played out before the menu acts on it.
class CMenuButton
{
public:
	// frame is what the names of its pictures begin with.
	CMenuButton(int x, int y, const std::string& frame);
	~CMenuButton();
	CMenuButton(const CMenuButton&)            = delete;
	CMenuButton& operator=(const CMenuButton&) = delete;

	void SetFace(const std::string& name); // at once
	// After delay frames the present face shrinks, if there is one, and the new one grows.
	void ShowFace(const std::string& name, int delay);
	bool IsTurning() const { return turn != TURN_NONE; }
	void Press();
	bool IsPressing() const;
	void SetLit(bool on, bool held); // held: the mouse button is down on it
	bool IsLit() const { return lit; }
	bool MouseOver() const;
	int CentreX() const;
	int CentreY() const;
	void Step(); // once a frame

private:
	enum Turn { TURN_NONE, TURN_WAIT, TURN_SHRINK, TURN_GROW };

	struct Face {
		CSprite* base     = nullptr; // owned, as are all below
		CSprite* rollover = nullptr;
		CSprite* shrink   = nullptr;
		CSprite* grow     = nullptr;
	};

	CSprite* NewPicture(const std::string& file, int depth) const;
	CSprite* NewRun(const std::string& prefix, int frames, int depth) const;
	void MakeFace();
	void DeleteFace();
	void StepTurn();
	void PlacePictures(bool held);

	int x, y;      // pixels
	CSprite* base; // owned, as are all below
	CSprite* rollover;
	CSprite* press;
	Face face;
	std::string nextFace;
	Turn turn = TURN_NONE;
	int wait  = 0; // frames
	bool lit  = false;
};
