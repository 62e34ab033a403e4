// A button of the main menu.
#include "screens/menu_button.h"

#include "media/sprite.h"

static const int FRAME_DEPTH   = 900100;
static const int LIT_DEPTH     = 900110;
static const int FACE_DEPTH    = 900200;
static const int PRESS_DEPTH   = 900300;
static const int RUN_DELAY     = 2; // frames a picture
static const int PRESS_FRAMES  = 5; // pictures
static const int TURN_FRAMES   = 5;
static const int PRESSED_SHIFT = 2; // pixels right and down

CMenuButton::CMenuButton(int newX, int newY, const std::string& frame) : x(newX), y(newY)
{
	base     = NewPicture(frame + "base.png", FRAME_DEPTH);
	rollover = NewPicture(frame + "rollover.png", LIT_DEPTH);
	press    = NewRun(frame + "press", PRESS_FRAMES, PRESS_DEPTH);
	rollover->Hide();
}

CMenuButton::~CMenuButton()
{
	DeleteFace();
	delete base;
	delete rollover;
	delete press;
}

CSprite* CMenuButton::NewPicture(const std::string& file, int depth) const
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	return sprite;
}

// Hidden and at rest until it is started.
CSprite* CMenuButton::NewRun(const std::string& prefix, int frames, int depth) const
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddSequence(prefix, 0, frames - 1, ".png");
	sprite->SetDelay(RUN_DELAY);
	sprite->SetStopAtEnd();
	sprite->Stop();
	sprite->Hide();
	return sprite;
}

static void Start(CSprite* run)
{
	run->Rewind();
	run->Forward();
	run->Show();
}

void CMenuButton::SetFace(const std::string& name)
{
	DeleteFace();
	nextFace = name;
	turn     = TURN_NONE;
	MakeFace();
	face.base->Show();
}

void CMenuButton::ShowFace(const std::string& name, int delay)
{
	nextFace = name;
	wait     = delay;
	turn     = TURN_WAIT;
}

void CMenuButton::MakeFace()
{
	face.base     = NewPicture(nextFace + "base.png", FACE_DEPTH);
	face.rollover = NewPicture(nextFace + "rollover.png", FACE_DEPTH);
	face.shrink   = NewRun(nextFace + "shrink", TURN_FRAMES, FACE_DEPTH);
	face.grow     = NewRun(nextFace + "grow", TURN_FRAMES, FACE_DEPTH);
	face.base->Hide();
	face.rollover->Hide();
}

void CMenuButton::DeleteFace()
{
	for (CSprite* sprite : {face.base, face.rollover, face.shrink, face.grow})
		delete sprite;
	face = Face();
}

void CMenuButton::Press()
{
	Start(press);
}

bool CMenuButton::IsPressing() const
{
	return !press->IsHidden();
}

bool CMenuButton::MouseOver() const
{
	return base->MouseOver(0, 0);
}

int CMenuButton::CentreX() const
{
	return x + base->Width() / 2;
}

int CMenuButton::CentreY() const
{
	return y + base->Height() / 2;
}

void CMenuButton::SetLit(bool on, bool held)
{
	lit = on;
	PlacePictures(on && held);
}

void CMenuButton::PlacePictures(bool held)
{
	const int shift  = held ? PRESSED_SHIFT : 0;
	rollover->hidden = !lit;
	rollover->SetPos(x + shift, y + shift);
	if (!face.base || turn == TURN_SHRINK || turn == TURN_GROW)
		return;
	face.base->hidden     = lit;
	face.rollover->hidden = !lit;
	face.rollover->SetPos(x + shift, y + shift);
}

void CMenuButton::Step()
{
	if (press->IsStopped())
		press->Hide();
	StepTurn();
}

void CMenuButton::StepTurn()
{
	if (turn == TURN_WAIT && wait-- <= 0) {
		turn = TURN_SHRINK;
		if (face.base) {
			face.base->Hide();
			face.rollover->Hide();
			Start(face.shrink);
		}
	}
	if (turn == TURN_SHRINK && (!face.shrink || face.shrink->IsStopped())) {
		DeleteFace();
		MakeFace();
		Start(face.grow);
		turn = TURN_GROW;
	} else if (turn == TURN_GROW && face.grow->IsStopped()) {
		face.grow->Hide();
		face.base->Show();
		turn = TURN_NONE;
	}
}
