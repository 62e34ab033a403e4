// The screen and everything that reaches it: video mode, images, frame clock, screen shake.
#pragma once

#include "media/archive.h"
#include "media/rect.h"

#include <SDL.h>
#include <map>
#include <string>
#include <vector>

const int SCREEN_WIDTH  = 800;
const int SCREEN_HEIGHT = 600;
const int FRAME_TICKS   = 33; // milliseconds from one presented frame to the next

// One picture of the archive: its file form stays in memory for the whole run.
struct ImageEntry {
	std::string name;
	int references  = 0;
	int imageNumber = -1; // -1 while nobody holds it
	Bytes data;
};

// One number of the table. Until a picture is first drawn its entry waits and only its size is
// known: a level asks for hundreds of pictures that may never be shown.
struct ImageSlot {
	SDL_Surface* surface = nullptr; // owned
	ImageEntry* waiting  = nullptr;
	int width = 0, height = 0; // pixels

	bool IsFree() const { return !surface && !waiting; }
};

// Owns the 800x600 surface, the table of decoded images and the archive's bytes. Game code speaks
// of images by number, an index in imageTable; LoadImage and ReleaseImage count references.
// One object lives for the whole run. Every failure here is fatal, through Error.
class CDisplay
{
public:
	CDisplay();  // opens the video mode by g_fullscreen and shows the loading picture
	~CDisplay(); // reports images that were never released

	// Images. A name that is not in the archive is fatal.
	int LoadImage(const std::string& name, bool privateCopy = false);
	void ReleaseImage(int number);
	int ImageWidth(int number) const;
	int ImageHeight(int number) const;
	int AdoptSurface(SDL_Surface* surface); // takes ownership, returns the image number
	SDL_Surface* ConvertSurface(SDL_Surface* surface, bool freeOriginal);
	int NewImage(int width, int height);
	int NewScreenImage();
	int SnapshotScreen();
	// An image file outside the archive, decoded as the given type ("JPG", "PNG"); -1 if it does
	// not load.
	int LoadFileImage(const std::string& path, const char* type);
	bool HasImage(const std::string& name) const;
	int DecodedImages() const; // images now in the table

	// Drawing on the screen, or on the shake backing while a shake runs.
	void BlitImage(int number, int x, int y);
	void BlitRegion(int number, int x, int y, int sourceX, int sourceY, int width, int height);
	void BlitFull(int number);
	void BlitRects(int number, const Rect& source, const Rect& destination);
	void UpdateRect(int x, int y, int width, int height);

	// Drawing into images.
	void Blit(int source, int destination, int x, int y, int sourceX, int sourceY, int width,
	          int height);
	void BlitWhole(int source, int destination, int x, int y);
	int DrawFile(const std::string& name, int destination, int x, int y, bool update);
	int DrawFilePart(const std::string& name, int destination, int x, int y, int sourceX,
	                 int sourceY, int width, int height);
	void SetImageAlpha(int number, int alpha); // 0 to 255; works on images without an alpha channel
	void FillImage(int number, const Rect& area, int red, int green, int blue);

	// Frame.
	void Present(bool dirtyOnly);
	void SetPresentAllowed(bool allowed);
	int FramesPerSecond() const;
	int PresentedFrames() const;
	void StartShake(); // nothing unless the profile's effects option is on
	void EndShake(bool force);
	bool IsShaking() const;
	void ToggleFullscreen();
	bool IsFullscreen() const;

	// Loading.
	void Preload(); // reads resource.dat with the loading bar running
	void AdvanceLoadingBar(int count);
	int ImageLoadingCount() const; // where the sound loader starts counting
	void FreeLoadingText();

	// The images that are held for the whole run, so that no level start has to decode them.
	void LoadPersistentImages();
	static std::vector<std::string> PersistentImageNames(); // in load order
	void ReleasePersistentImages();

	SDL_Surface* ImageSurface(int number); // not handed over; decodes what has only been asked for
	SDL_Surface* screen = nullptr;         // belongs to SDL; its pixels move at each mode change
	bool drawingEnabled = true; // cleared between two stacked screens: sprites stand still

private:
	void OpenVideoMode();
	void ShowLoadingPicture();
	SDL_Surface* Target() const;
	SDL_Surface* Decode(const Bytes& data, const std::string& type);
	SDL_Surface* DecodeEntry(const ImageEntry& entry);
	int TakeSlot();
	void StoreEntry(const std::string& name, Bytes&& data);
	void ShakeStep();
	void PaintShaken(int x, int y);
	void WaitForFrame();
	void UpdateDirtyRects();

	std::map<std::string, ImageEntry*> entryByName; // owned
	std::map<int, ImageEntry*> entryByImageNumber;
	std::vector<ImageSlot> imageTable; // index is the image number
	size_t firstFreeSlot = 0;          // no slot of the table below it is free
	std::vector<int> persistentImages;
	std::vector<SDL_Rect> updateRects; // scratch, kept so that no frame allocates

	// frame clock, in milliseconds and frames
	unsigned int lastFrameTicks  = 0;
	unsigned int lastSecondTicks = 0;
	int frameCount = 0, countAtLastSecond = 0, framesPerSecond = 0, presentedFrames = 0;
	bool presentAllowed = true;

	// screen shake
	bool shaking = false;
	float shakeX = 0, shakeY = 0, shakeVx = 0, shakeVy = 0;
	float shakeSpeedLow = 0, shakeSpeedHigh = 0, shakeLimit = 0;
	SDL_Surface* shakeBacking = nullptr; // owned

	// loading bar
	int progressTotal        = 8900;
	SDL_Surface* loadingText = nullptr; // owned until FreeLoadingText
	int loadingBarWidth      = 0;
};

extern CDisplay* g_display;
