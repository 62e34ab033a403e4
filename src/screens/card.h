// A picture of screen size, composed once, on one sprite.
#pragma once

#include <span>
#include <string>

class CSprite;

struct CardPart {
	const char* file;
	int x, y; // pixels of the screen
};

// The fixed art of a small screen: what the player saw before, dimmed, and the screen's own
// pictures over it. The screen owns its card; the sprite is shown from construction.
class CCard
{
public:
	// Begins with a copy of the screen; fader draws the dimming picture over it.
	CCard(int depth, bool fader);
	~CCard();
	CCard(const CCard&)            = delete;
	CCard& operator=(const CCard&) = delete;

	void Draw(const std::string& file, int x, int y);
	void Draw(std::span<const CardPart> parts); // in order
	// Writes with the bitmap font; alignment as of DrawText.
	void Write(const std::string& text, int alignment, int x, int y);
	// Puts a number's digits side by side, each advance pixels right of the last, from the
	// pictures that format names by "%i". Returns the x behind the last.
	int DrawNumber(const char* format, int value, int x, int y, int advance);
	int Image() const { return image; }

private:
	int image;       // belongs to the sprite
	CSprite* sprite; // owned
};

// Takes the pointer off the screen's picture. A parent calls it before it deletes its own sprites
// for a child that begins with a copy of the screen.
void PaintWithoutCursor();

int PictureWidth(const std::string& file);  // pixels
int PictureHeight(const std::string& file); // pixels
