// A slider of twelve positions.
#pragma once

class CSprite;

// Shows a value of 0 to 11 by the visible width of its bar. The screen that made it deletes it.
class CGuiSlider
{
public:
	CGuiSlider(int x, int y);
	~CGuiSlider();

	void Lower(); // by 1, held to 0; nothing while disabled
	void Raise();
	void SetValue(int newValue); // held to 0..11
	int Value() const { return value; }
	void SetDisabled(bool on);
	bool IsDisabled() const { return disabled; }
	bool MouseOver() const;

	CSprite* shadow;  // owned
	CSprite* bar;     // owned
	CSprite* frame;   // owned
	CSprite* greyOut; // owned

private:
	int value     = 11;
	bool disabled = false;
};
