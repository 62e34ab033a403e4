// A text field of up to 15 letters, fed by key symbols.
#pragma once

#include <string>

class CSprite;

// Holds one short text, digits, letters and blanks, and shows it in the bitmap font. The text lies
// in one buffer for all fields; each new field empties it.
class CGuiTextInput
{
public:
	static const int MAX_LENGTH = 15;

	CGuiTextInput(int newX, int newY);
	~CGuiTextInput();

	void StepField(); // once a frame: the cursor blinks
	void AddCharacter(int c);
	void AddText(const std::string& text);
	void OnFieldKey(int key, bool released);
	std::string Text() const;

	CSprite* field;  // owned
	CSprite* cursor; // owned

private:
	void Redraw();

	int x, y;
	int blink  = 8; // frames; shown from 1 up, starts over below -8
	bool shift = false;
};
