// The splash pictures.
#include "screens/intro.h"

#include "frame/clock.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/sprite.h"
#include "screens/main_menu.h"

static const int BACKDROP_DEPTH        = 150000;
static const int SPLASH_DEPTH          = 150002;
static const int EYES_DEPTH            = 150003;
static const int SECOND_DEPTH          = 150004;
static const int THIRD_DEPTH           = 150005;
static const int EYES_X                = 264; // pixels
static const int EYES_Y                = 197;
static const int FADE_TICKS            = 500;  // milliseconds, as all below
static const unsigned int SECOND_TICKS = 3000; // each splash is over when its time has passed
static const unsigned int THIRD_TICKS  = 6000;
static const unsigned int END_TICKS    = 9000;

struct Blink {
	unsigned int from, to; // milliseconds, ends included
};

static const Blink s_blinks[] = {{800, 900}, {1100, 1200}, {1900, 2000}};

CSprite* g_splashOnTop = nullptr;

static CSprite* NewPicture(int depth, int image)
{
	CSprite* sprite = new CSprite(0, 0, depth, SPRITE_OVERLAY);
	sprite->AddImage(image);
	return sprite;
}

// Null when the file does not load.
static CSprite* NewSplash(int depth, const char* file)
{
	const int image = g_display->LoadFileImage(file, "JPG");
	if (image < 0)
		return nullptr;
	CSprite* sprite = NewPicture(depth, image);
	sprite->Hide();
	return sprite;
}

CControllerIntro::CControllerIntro()
{
	HideCursor(-1);
	backdrop = NewPicture(BACKDROP_DEPTH, g_display->SnapshotScreen());
	splash   = NewSplash(SPLASH_DEPTH, "splash.dat");
	eyes     = new CSprite(EYES_X, EYES_Y, EYES_DEPTH, SPRITE_OVERLAY);
	eyes->AddFile("logozq-eyes.png");
	eyes->Hide();
	second        = NewSplash(SECOND_DEPTH, "splash2.jpg");
	third         = NewSplash(THIRD_DEPTH, "splash3.jpg");
	g_splashOnTop = splash;
}

CControllerIntro::~CControllerIntro()
{
	delete mainMenu;
	FreeSprites();
	if (!handedOn) {
		delete g_splashOnTop; // nobody else has come to own it
		g_splashOnTop = nullptr;
	}
}

// All but the splash on top, which dissolves over the main menu.
void CControllerIntro::FreeSprites()
{
	for (CSprite** sprite : {&backdrop, &splash, &eyes, &second, &third}) {
		if (*sprite != g_splashOnTop)
			delete *sprite;
		*sprite = nullptr;
	}
}

void CControllerIntro::Update()
{
	PollInput(this);
	if (!active || result != RESULT_NONE)
		return;
	if (finished) {
		SetResult(RESULT_RETURN);
		return;
	}
	if (splash && splash->IsHidden())
		splash->FadeIn(FADE_TICKS);
	if (splash && splash->IsFading())
		return;
	const unsigned int now = g_clock->Ticks();
	if (!started) {
		started    = true;
		startTicks = now;
	}
	BlinkEyes(now - startTicks);
	if (!PassSplash(second, SECOND_TICKS, THIRD_TICKS) ||
	    !PassSplash(third, THIRD_TICKS, END_TICKS))
		return;
	if (g_clock->Ticks() - startTicks >= END_TICKS)
		Finish();
}

void CControllerIntro::BlinkEyes(unsigned int t)
{
	bool shown = false;
	for (const Blink& blink : s_blinks)
		shown = shown || (t >= blink.from && t <= blink.to);
	eyes->hidden = !shown;
}

// From its time on a splash fades in once; without one the clock jumps to the time of the next.
// False while the fade runs.
bool CControllerIntro::PassSplash(CSprite* picture, unsigned int from, unsigned int next)
{
	const unsigned int now = g_clock->Ticks();
	const unsigned int t   = now - startTicks;
	if (t <= from)
		return true;
	if (!picture) {
		if (t < next)
			startTicks = now - next;
		return true;
	}
	if (picture->IsHidden()) {
		picture->FadeIn(FADE_TICKS);
		g_splashOnTop = picture;
	}
	return !picture->IsFading();
}

void CControllerIntro::Finish()
{
	FreeSprites();
	handedOn = true;
	mainMenu = new CControllerMain;
	Push(mainMenu);
}

void CControllerIntro::OnKey(bool released, int)
{
	if (active && released)
		Skip();
}

void CControllerIntro::OnMouseMove(int, int) {}

void CControllerIntro::OnMouseButton(bool, bool, bool released)
{
	if (active && released)
		Skip();
}

void CControllerIntro::Skip()
{
	if (started && !mainMenu && !finished)
		Finish();
}

void CControllerIntro::Enter()
{
	delete mainMenu;
	mainMenu = nullptr;
	finished = true;
}
