// A sprite: a place, a depth, a list of frames, an animation and a fade.
#pragma once

#include "media/rect.h"

#include <string>
#include <vector>

enum SpriteFlags {
	SPRITE_PLAIN          = 0,
	SPRITE_FOLIAGE        = 1, // what is held back behind foliage is drawn right before it
	SPRITE_BEHIND_FOLIAGE = 2, // waits in the depth order for the foliage that overlaps it
	SPRITE_OVERLAY        = 4, // above all ordinary sprites: side panel, cursor
};

enum FadeState { FADE_NONE, FADE_OUT, FADE_IN };

// The only thing on screen that moves. It registers itself with the render manager, works out by
// itself what has to be repainted, and owns one reference of each of its frame images. Whoever
// makes it deletes it; deleting it does not repaint the place where it stood.
//
// NOTES: the render manager calls Step and DrawInRect and reads overlay, trail, foliage,
// behindFoliage, depth and hidden; everything else writes plain fields and lets Step find out.
class CSprite
{
public:
	CSprite(int newX, int newY, int newDepth, SpriteFlags flags = SPRITE_PLAIN);
	CSprite(int newDepth, int newDelay, SpriteFlags flags = SPRITE_PLAIN);
	explicit CSprite(int newDepth, SpriteFlags flags = SPRITE_PLAIN);
	explicit CSprite(SpriteFlags flags = SPRITE_PLAIN);
	~CSprite();
	CSprite(const CSprite&)            = delete;
	CSprite& operator=(const CSprite&) = delete;

	// Frames. Each call also takes the size of the image added.
	void AddImage(int number); // takes over the caller's reference
	void AddFile(const std::string& name);
	void AddSequence(const std::string& prefix, int first, int last, const std::string& suffix);
	void AddRepeated(const std::string& name, int times);

	// Place and size, in pixels.
	void SetPos(int newX, int newY);
	void SetPos(int newX, int newY, int newDepth);
	void CenterX(int centreX);
	void CenterY(int centreY);
	void SetDepth(int newDepth);
	void SetWidth(int newWidth);
	void SetHeight(int newHeight);
	void CropWidth(int pixels);
	void CropHeight(int pixels);
	void SetSourceX(int pixels);
	void SetSourceY(int pixels);
	int X() const { return x; }
	int Y() const { return y; }
	int Width() const { return width; }
	int Height() const { return height; }
	int Depth() const { return depth; }
	int FullWidth() const { return fullWidth; }
	int FullHeight() const { return fullHeight; }

	// Animation. Frames outside the list are held to it.
	void Forward();
	void Backward();
	void Stop();
	void SetDirection(int newDirection); // 1, -1 or 0
	void SetDelay(int steps);            // steps a frame; 0 means no animation
	void SetStopAtEnd();
	void SetLoopStart(int newLoopStart);
	void Rewind();
	void SetFrame(int number);
	void SetFrameFromEnd(int number);
	void GoToLast();
	int Frame() const { return frame; }
	int FrameCount() const { return static_cast<int>(frames.size()); }
	int FramesFromEnd() const;
	int FirstImage() const; // -1 without frames
	bool IsStopped() const { return direction == 0; }
	bool IsAtFirstFrameEnd() const;
	bool IsAtLastFrameEnd() const;

	// Visibility.
	void Hide();
	void Show();
	bool IsHidden() const { return hidden; }
	bool IsFading() const { return fadeState != FADE_NONE; }
	bool Changed() const { return changed; }
	bool Overlaps(const CSprite* other) const; // touching edges do not overlap
	bool OverlapsRect(const Rect& rect) const; // false when hidden
	bool MouseOver(int marginX, int marginY) const;
	void FadeOut(int milliseconds);
	void FadeIn(int milliseconds);

	// Drawing.
	void Step(); // once a frame, by the render manager
	void DrawInRect(const Rect& rect);
	void DrawNow();
	void DrawNowAndUpdate();
	void SnapToState(); // the next step sees no change
	void SetTrail(bool on);

	int sourceX = 0, sourceY = 0, previousSourceX = 0, previousSourceY = 0;
	int loopStart          = 0;
	bool repaintAtNewPlace = true;
	bool overlay           = false;
	bool trail             = false; // drawn as one group, makes no dirty rectangle of its own
	bool foliage           = false;
	bool behindFoliage     = false;
	int x = 0, previousX = 0, y = 0, previousY = 0;
	int depth = 0, previousDepth = 0;
	int width = 0, previousWidth = 0, fullWidth = 0;
	int height = 0, previousHeight = 0, fullHeight = 0;
	int previousImage = -1;
	bool hidden = false, previousHidden = true;
	bool stopAtEnd = false;
	int delay      = 0;
	int frame = 0, previousFrame = 0;
	int tick = -1;           // steps spent in this frame
	std::vector<int> frames; // image numbers, one reference owned each
	int direction          = 1;
	FadeState fadeState    = FADE_NONE;
	unsigned int fadeStart = 0, fadeEnd = 0; // ticks
	bool changed = false, hiddenBeforeHideAll = false;

private:
	void Construct(SpriteFlags flags);
	void AnimationStep();
	void FadeStep();
	bool DiffersFromLastStep() const;
	void MarkDirty();
	void StartFade(FadeState state, int milliseconds);
	int CurrentImage() const; // needs a frame
	int ShownImage() const;   // -1 without frames
};

// Hides all registered sprites, or shows again those that were not hidden before.
void HideAllSprites(bool hide);
