// A door of the side panel, moved by three slides.
#pragma once

class CSprite;

// Rubber, main part and handle, each a left and a right half that slide apart. A door that is to
// show something else closes and opens again at once, without turning its handle. Owned by the
// panel.
class CPanelDoor
{
public:
	static constexpr float WIDEST = 48; // pixels of slide

	explicit CPanelDoor(int newY); // closed; pixels
	~CPanelDoor();
	CPanelDoor(const CPanelDoor&)            = delete;
	CPanelDoor& operator=(const CPanelDoor&) = delete;

	void AskToOpen();
	void AskToClose(bool thenOpenAgain);
	void Step();       // once a frame
	void PlaceParts(); // sprites to the slides

	// Whether what is behind it may be changed now: it has just shut for that, or stands closed.
	bool MayChange() const { return justShut || (!opening && !closing && !open); }
	bool IsFullyOpen() const { return open && !closing; }

	int y;
	bool opening = false, closing = false, open = false;
	bool opensAgain   = false;                             // once it has closed
	bool justShut     = false;                             // has closed to open again
	float rubberSlide = 0, mainSlide = 0, handleSlide = 0; // 0 to WIDEST

	// sprites, owned: left, right
	CSprite* rubber[2];
	CSprite* mainPart[2];
	CSprite* handle[2];
	CSprite* handleBoth; // both halves as one, turning

private:
	void StepOpening();
	void StepClosing();
};
