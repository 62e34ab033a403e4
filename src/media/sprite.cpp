// Sprites: frames, animation, fades, and finding out what has to be repainted.
#include "media/sprite.h"

#include "frame/clock.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/render_manager.h"

static const int ALPHA_OPAQUE = 255;

CSprite::CSprite(int newX, int newY, int newDepth, SpriteFlags flags)
    : x(newX), y(newY), depth(newDepth)
{
	Construct(flags);
}

CSprite::CSprite(int newDepth, int newDelay, SpriteFlags flags) : depth(newDepth), delay(newDelay)
{
	Construct(flags);
}

CSprite::CSprite(int newDepth, SpriteFlags flags) : depth(newDepth)
{
	Construct(flags);
}

CSprite::CSprite(SpriteFlags flags)
{
	Construct(flags);
}

void CSprite::Construct(SpriteFlags flags)
{
	foliage       = flags & SPRITE_FOLIAGE;
	behindFoliage = flags & SPRITE_BEHIND_FOLIAGE;
	overlay       = flags & SPRITE_OVERLAY;
	g_render->Register(this);
}

CSprite::~CSprite()
{
	g_render->Unregister(this);
	for (int image : frames)
		g_display->ReleaseImage(image);
}

void CSprite::AddImage(int number)
{
	frames.push_back(number);
	width = fullWidth = g_display->ImageWidth(number);
	height = fullHeight = g_display->ImageHeight(number);
}

void CSprite::AddFile(const std::string& name)
{
	AddImage(g_display->LoadImage(name));
}

void CSprite::AddSequence(const std::string& prefix, int first, int last, const std::string& suffix)
{
	const int step = first > last ? -1 : 1;
	for (int number = first; number != last + step; number += step)
		AddFile(prefix + std::to_string(number) + suffix);
}

void CSprite::AddRepeated(const std::string& name, int times)
{
	for (int i = 0; i < times; i++)
		AddFile(name);
}

static int Hold(int value, int highest)
{
	if (value > highest)
		value = highest;
	return value < 0 ? 0 : value;
}

void CSprite::SetPos(int newX, int newY)
{
	x = newX;
	y = newY;
}

void CSprite::SetPos(int newX, int newY, int newDepth)
{
	x     = newX;
	y     = newY;
	depth = newDepth;
}

void CSprite::CenterX(int centreX)
{
	x = centreX - width / 2;
}

void CSprite::CenterY(int centreY)
{
	y = centreY - height / 2;
}

void CSprite::SetDepth(int newDepth)
{
	depth = newDepth;
}

void CSprite::SetWidth(int newWidth)
{
	width = Hold(newWidth, fullWidth);
}

void CSprite::SetHeight(int newHeight)
{
	height = Hold(newHeight, fullHeight);
}

void CSprite::CropWidth(int pixels)
{
	SetWidth(fullWidth - pixels);
}

void CSprite::CropHeight(int pixels)
{
	SetHeight(fullHeight - pixels);
}

void CSprite::SetSourceX(int pixels)
{
	sourceX = Hold(pixels, fullWidth);
}

void CSprite::SetSourceY(int pixels)
{
	sourceY = Hold(pixels, fullHeight);
}

void CSprite::Forward()
{
	direction = 1;
}

void CSprite::Backward()
{
	direction = -1;
}

void CSprite::Stop()
{
	direction = 0;
}

void CSprite::SetDirection(int newDirection)
{
	direction = newDirection;
}

void CSprite::SetDelay(int steps)
{
	delay = steps;
}

void CSprite::SetStopAtEnd()
{
	stopAtEnd = true;
}

void CSprite::SetLoopStart(int newLoopStart)
{
	loopStart = newLoopStart;
}

void CSprite::Rewind()
{
	frame = 0;
	tick  = -1;
}

void CSprite::SetFrame(int number)
{
	frame = Hold(number, FrameCount() - 1);
}

void CSprite::SetFrameFromEnd(int number)
{
	SetFrame(FrameCount() - 1 - number);
}

void CSprite::GoToLast()
{
	SetFrameFromEnd(0);
	tick = -1;
}

int CSprite::FramesFromEnd() const
{
	return FrameCount() - 1 - frame;
}

int CSprite::FirstImage() const
{
	return frames.empty() ? -1 : frames[0];
}

bool CSprite::IsAtFirstFrameEnd() const
{
	return frame == 0 && tick == delay - 1;
}

bool CSprite::IsAtLastFrameEnd() const
{
	return frame == FrameCount() - 1 && tick == delay - 1;
}

void CSprite::Hide()
{
	hidden = true;
}

void CSprite::Show()
{
	hidden = false;
}

bool CSprite::Overlaps(const CSprite* other) const
{
	return x < other->x + other->width && other->x < x + width && y < other->y + other->height &&
	       other->y < y + height;
}

bool CSprite::OverlapsRect(const Rect& rect) const
{
	return !hidden && x < rect.x + rect.width && rect.x < x + width && y < rect.y + rect.height &&
	       rect.y < y + height;
}

bool CSprite::MouseOver(int marginX, int marginY) const
{
	const int pointerX = CursorX(), pointerY = CursorY();
	return pointerX >= x - marginX && pointerX <= x + width + marginX && pointerY >= y - marginY &&
	       pointerY <= y + height + marginY;
}

void CSprite::StartFade(FadeState state, int milliseconds)
{
	fadeStart = g_clock->Ticks();
	fadeEnd   = fadeStart + static_cast<unsigned int>(milliseconds > 0 ? milliseconds : 0);
	fadeState = state;
	hidden    = false;
	g_display->SetImageAlpha(CurrentImage(), 0);
}

void CSprite::FadeOut(int milliseconds)
{
	StartFade(FADE_OUT, milliseconds);
}

void CSprite::FadeIn(int milliseconds)
{
	StartFade(FADE_IN, milliseconds);
}

int CSprite::CurrentImage() const
{
	return frames.at(static_cast<size_t>(frame));
}

void CSprite::DrawInRect(const Rect& rect)
{
	if (!OverlapsRect(rect))
		return;
	const int image = CurrentImage();
	const int left  = x > rect.x ? x : rect.x;
	const int top   = y > rect.y ? y : rect.y;
	int right       = x + width < rect.x + rect.width ? x + width : rect.x + rect.width;
	int bottom      = y + height < rect.y + rect.height ? y + height : rect.y + rect.height;
	int fromX = sourceX, fromY = sourceY;
	const int imageW = g_display->ImageWidth(image), imageH = g_display->ImageHeight(image);
	// Of a frame that is smaller than the sprite the display would show the whole image wherever
	// the rectangle happens to begin. It belongs at the sprite's own corner.
	if (fromX + width > imageW || fromY + height > imageH) {
		fromX = fromY = 0;
		right         = right < x + imageW ? right : x + imageW;
		bottom        = bottom < y + imageH ? bottom : y + imageH;
	}
	if (left < right && top < bottom)
		g_display->BlitRegion(image, left, top, fromX + left - x, fromY + top - y, right - left,
		                      bottom - top);
}

void CSprite::DrawNow()
{
	if (!hidden)
		g_display->BlitRegion(CurrentImage(), x, y, sourceX, sourceY, width, height);
}

void CSprite::DrawNowAndUpdate()
{
	DrawNow();
	g_display->UpdateRect(x, y, width, height);
}

void CSprite::SetTrail(bool on)
{
	trail = on;
	if (on)
		g_render->ResetTrail();
}

void CSprite::Step()
{
	if (delay > 0 && direction != 0 && !hidden)
		AnimationStep();
	if (fadeState != FADE_NONE)
		FadeStep();
	changed       = false;
	previousFrame = frame;
	if (fadeState == FADE_NONE && !DiffersFromLastStep())
		return;
	if (!trail && !(previousHidden && hidden))
		MarkDirty();
	SnapToState();
}

void CSprite::AnimationStep()
{
	if (tick + 1 < delay) {
		tick++;
		return;
	}
	const int last   = FrameCount() - 1;
	const bool atEnd = direction > 0 ? frame >= last : frame <= 0;
	tick             = 0;
	if (!atEnd) {
		frame += direction > 0 ? 1 : -1;
	} else if (stopAtEnd) {
		tick      = delay - 1;
		direction = 0;
	} else {
		SetFrame(direction > 0 ? loopStart : last);
	}
}

void CSprite::FadeStep()
{
	const unsigned int now = g_clock->Ticks();
	if (now < fadeEnd) {
		const unsigned int part = fadeState == FADE_OUT ? fadeEnd - now : now - fadeStart;
		const float fraction = static_cast<float>(part) / static_cast<float>(fadeEnd - fadeStart);
		g_display->SetImageAlpha(CurrentImage(), static_cast<int>(fraction * ALPHA_OPAQUE));
		hidden = false;
		return;
	}
	g_display->SetImageAlpha(CurrentImage(), fadeState == FADE_IN ? ALPHA_OPAQUE : 0);
	if (fadeState == FADE_OUT)
		hidden = true;
	fadeState = FADE_NONE;
	DrawNowAndUpdate();
}

bool CSprite::DiffersFromLastStep() const
{
	return x != previousX || y != previousY || hidden != previousHidden || depth != previousDepth ||
	       width != previousWidth || height != previousHeight || sourceX != previousSourceX ||
	       sourceY != previousSourceY || ShownImage() != previousImage;
}

// A hidden sprite may still be without frames.
int CSprite::ShownImage() const
{
	return frames.empty() ? -1 : CurrentImage();
}

void CSprite::MarkDirty()
{
	if (previousHidden && !hidden)
		repaintAtNewPlace = true;
	if (repaintAtNewPlace)
		g_render->AddSpriteDirty(this, x, y, width, height);
	else
		g_render->AddSpriteDirty(this, previousX, previousY, previousWidth, previousHeight);
	repaintAtNewPlace = false;
	changed           = true;
}

void CSprite::SnapToState()
{
	previousX       = x;
	previousY       = y;
	previousDepth   = depth;
	previousWidth   = width;
	previousHeight  = height;
	previousSourceX = sourceX;
	previousSourceY = sourceY;
	previousImage   = ShownImage();
	previousFrame   = frame;
	previousHidden  = hidden;
}

void HideAllSprites(bool hide)
{
	for (CSprite* sprite : g_render->sprites) {
		if (hide) {
			sprite->hiddenBeforeHideAll = sprite->hidden;
			sprite->hidden              = true;
		} else if (!sprite->hiddenBeforeHideAll) {
			sprite->hidden = false;
		}
	}
}
