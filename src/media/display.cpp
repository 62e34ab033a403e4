// The screen: video mode, the end of a frame, the screen shake.
#include "media/display.h"

#include "frame/clock.h"
#include "frame/debug.h"
#include "frame/program.h"
#include "frame/random.h"
#include "media/cursor.h"
#include "media/render_manager.h"
#include "state/game_data.h"

static const int WANTED_DEPTH             = 32;   // bits a pixel
static const unsigned int SLEEP_MARGIN    = 10;   // milliseconds that are given away, not slept
static const unsigned int SECOND_TICKS    = 1000; // milliseconds
static const float SHAKE_START_SPEED_LOW  = 10;   // pixels a frame
static const float SHAKE_START_SPEED_HIGH = 5;    // pixels a frame
static const float SHAKE_START_LIMIT      = 5;    // pixels
static const float SHAKE_START_OFFSET     = 3;    // pixels, either way
static const float SHAKE_DECAY            = 0.87f;
static const float SHAKE_END_THRESHOLD    = 1; // pixels
static const char* const LOADING_FILE     = "loading.dat";
static const char* const MODE_FAILURE     = "Unable to set video mode: ";
static const char* const LOAD_FAILURE     = "Unable to load image: ";

CDisplay* g_display = nullptr;

CDisplay::CDisplay()
{
	SDL_ShowCursor(0);
	OpenVideoMode();
	ShowLoadingPicture();
}

CDisplay::~CDisplay()
{
	if (shakeBacking)
		SDL_FreeSurface(shakeBacking);
	FreeLoadingText();
	for (const ImageSlot& slot : imageTable)
		if (slot.surface)
			SDL_FreeSurface(slot.surface);
	for (const auto& [name, entry] : entryByName) {
		if (entry->references > 0)
			printf("IMAGE REMAINING: %s\n", name.c_str());
		delete entry;
	}
	SDL_FreeSurface(screen); // gives back the handle; the window goes with SDL_Quit
	SDL_ShowCursor(1);
}

void CDisplay::OpenVideoMode()
{
	const Uint32 flags = g_fullscreen ? SDL_FULLSCREEN : 0;
	int depth          = SDL_VideoModeOK(SCREEN_WIDTH, SCREEN_HEIGHT, WANTED_DEPTH, flags);
	if (depth == 0)
		depth = WANTED_DEPTH;
	screen = SDL_SetVideoMode(SCREEN_WIDTH, SCREEN_HEIGHT, depth, flags);
	if (!screen)
		Error(MODE_FAILURE, SDL_GetError(), true, true);
	SDL_SetClipRect(screen, nullptr);
}

void CDisplay::ShowLoadingPicture()
{
	const int picture = LoadFileImage(LOADING_FILE, "JPG");
	if (picture < 0)
		Error(LOAD_FAILURE, SDL_GetError(), true, true);
	BlitFull(picture);
	SDL_Flip(screen);
	ReleaseImage(picture);
}

SDL_Surface* CDisplay::Target() const
{
	return shaking ? shakeBacking : screen;
}

bool CDisplay::IsFullscreen() const
{
	return g_fullscreen;
}

void CDisplay::ToggleFullscreen()
{
	const int cursorX = CursorX(), cursorY = CursorY();
	g_fullscreen      = !g_fullscreen;
	SDL_Surface* copy = SDL_DisplayFormat(screen);
	OpenVideoMode();
	SDL_BlitSurface(copy, nullptr, screen, nullptr);
	SDL_Flip(screen);
	SDL_FreeSurface(copy);
	WarpCursor(cursorX, cursorY);
}

void CDisplay::SetPresentAllowed(bool allowed)
{
	presentAllowed = allowed;
}

int CDisplay::FramesPerSecond() const
{
	return framesPerSecond;
}

int CDisplay::PresentedFrames() const
{
	return presentedFrames;
}

void CDisplay::Present(bool dirtyOnly)
{
	if (!presentAllowed || !drawingEnabled)
		return;
	WaitForFrame();
	ShakeStep();
	if (dirtyOnly && !shaking)
		UpdateDirtyRects();
	else
		SDL_Flip(screen);
	EndShake(false);
	presentedFrames++;
}

void CDisplay::WaitForFrame()
{
	const unsigned int due = lastFrameTicks + FRAME_TICKS;
	unsigned int now       = g_clock->Ticks();
	while (now < due) {
		g_clock->Delay(now + SLEEP_MARGIN < due ? due - now : 0);
		now = g_clock->Ticks();
	}
	frameCount++;
	lastFrameTicks = now;
	if (now - lastSecondTicks >= SECOND_TICKS) {
		lastSecondTicks   = now;
		framesPerSecond   = frameCount - countAtLastSecond;
		countAtLastSecond = frameCount;
	}
}

// Start and length on one axis, held to the screen; a length is never below 0.
static void HoldToScreen(int& start, int& length, int limit)
{
	if (start < 0)
		start = 0;
	if (start > limit - 1)
		start = limit - 1;
	if (length > limit - start)
		length = limit - start;
	if (length < 0)
		length = 0;
}

void CDisplay::UpdateDirtyRects()
{
	updateRects.clear();
	for (Rect rect : g_render->dirtyRects) {
		HoldToScreen(rect.x, rect.width, SCREEN_WIDTH);
		HoldToScreen(rect.y, rect.height, SCREEN_HEIGHT);
		updateRects.push_back({static_cast<Sint16>(rect.x), static_cast<Sint16>(rect.y),
		                       static_cast<Uint16>(rect.width), static_cast<Uint16>(rect.height)});
	}
	SDL_UpdateRects(screen, static_cast<int>(updateRects.size()), updateRects.data());
}

static float ShakeVelocity(float low, float high)
{
	const float speed = RandomRange(low, high);
	return Coin() ? speed : -speed;
}

void CDisplay::StartShake()
{
	if (!g_gameData || !g_gameData->EffectsOn())
		return;
	shakeSpeedLow  = SHAKE_START_SPEED_LOW;
	shakeSpeedHigh = SHAKE_START_SPEED_HIGH;
	shakeLimit     = SHAKE_START_LIMIT;
	shakeX         = RandomRange(-SHAKE_START_OFFSET, SHAKE_START_OFFSET);
	shakeY         = RandomRange(-SHAKE_START_OFFSET, SHAKE_START_OFFSET);
	shakeVx        = ShakeVelocity(shakeSpeedLow, shakeSpeedHigh);
	shakeVy        = ShakeVelocity(shakeSpeedLow, shakeSpeedHigh);
	if (!shaking)
		shakeBacking = SDL_DisplayFormat(screen);
	shaking = true;
}

bool CDisplay::IsShaking() const
{
	return shaking;
}

void CDisplay::EndShake(bool force)
{
	if (!shaking || (!force && shakeLimit >= SHAKE_END_THRESHOLD))
		return;
	shaking = false;
	SDL_BlitSurface(shakeBacking, nullptr, screen, nullptr);
	SDL_FreeSurface(shakeBacking);
	shakeBacking = nullptr;
	if (force)
		SDL_Flip(screen);
}

// The velocity after a look at the limit: outside it the picture is sent back.
static float TurnedVelocity(float offset, float velocity, float limit, float low, float high)
{
	if (offset < -limit)
		return RandomRange(low, high);
	if (offset > limit)
		return -RandomRange(low, high);
	return velocity;
}

void CDisplay::ShakeStep()
{
	if (!shaking)
		return;
	shakeX += shakeVx;
	shakeY += shakeVy;
	shakeVx = TurnedVelocity(shakeX, shakeVx, shakeLimit, shakeSpeedLow, shakeSpeedHigh);
	shakeVy = TurnedVelocity(shakeY, shakeVy, shakeLimit, shakeSpeedLow, shakeSpeedHigh);
	shakeLimit *= SHAKE_DECAY;
	shakeSpeedLow *= SHAKE_DECAY;
	shakeSpeedHigh *= SHAKE_DECAY;
	if (shakeLimit < SHAKE_END_THRESHOLD)
		shakeX = shakeY = 0;
	PaintShaken(static_cast<int>(shakeX), static_cast<int>(shakeY));
}

// The backing at an offset, and black where it uncovers the screen.
void CDisplay::PaintShaken(int x, int y)
{
	const Uint32 black  = SDL_MapRGB(screen->format, 0, 0, 0);
	const Uint16 across = static_cast<Uint16>(x < 0 ? -x : x);
	const Uint16 down   = static_cast<Uint16>(y < 0 ? -y : y);
	if (across) {
		SDL_Rect side = {static_cast<Sint16>(x > 0 ? 0 : SCREEN_WIDTH + x), 0, across,
		                 SCREEN_HEIGHT};
		SDL_FillRect(screen, &side, black);
	}
	if (down) {
		SDL_Rect edge = {0, static_cast<Sint16>(y > 0 ? 0 : SCREEN_HEIGHT + y), SCREEN_WIDTH, down};
		SDL_FillRect(screen, &edge, black);
	}
	SDL_Rect place = {static_cast<Sint16>(x), static_cast<Sint16>(y), 0, 0};
	SDL_BlitSurface(shakeBacking, nullptr, screen, &place);
}
