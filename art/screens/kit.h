// Panels, buttons, titles and gauges: the interface in paper, wood, blue steel and brass.
#pragma once

#include "art/core/canvas.h"
#include "art/core/catalogue.h"
#include "art/core/palette.h"

// --- parts drawn onto a canvas, in its pixels
void DrawRivet(Canvas& canvas, float x, float y, float r = 2.6f);
// Sunken dark window in a brass rim of 2.4 px around the given rectangle.
void DrawWindow(Canvas& canvas, float x, float y, float w, float h, Colour inside = PAINT_WINDOW,
                float radius = 4);
// Inset field on paper: darker paper with a soft upper edge.
void DrawWell(Canvas& canvas, float x, float y, float w, float h,
              Colour inside = HexColour(0xeeddb2), float radius = 7);
// Raised steel plate with an ink edge.
void DrawPlate(Canvas& canvas, float x, float y, float w, float h, Colour c, float radius);
// Face with ink rim and a small bevel: marks and emblems.
void DrawMarked(Canvas& canvas, const PathFn& path, Colour face, Colour ink, float rim = 1.3f);

// --- whole pictures
// Sheet of paper in a wooden frame with brass rivets; the 9 px at the right and below hold the
// shadow.
Image PaperPanel(int w, int h, float frame = 13);
// Blue steel plate with a brass rim, for gauges and lists.
Image SteelPanel(int w, int h, float radius = 10, bool rivets = true);
// Wooden sign with a rivet at each end.
Image Plank(int w, int h, Colour c = PAINT_WOOD);
// Two colours of rays that turn about the middle, darker at the edges.
void DrawRays(Image& image, int x, int y, int w, int h, Colour a, Colour b, float turn = 0);

// A small clear bubble that fills a square; `swell` stretches its film sideways by that part. Film,
// rim and window light are worked out per pixel.
Image GlassBall(int size, float swell);

// --- buttons: base, rollover and shadow have one size and fit over each other
enum class ButtonLook { Base, Rollover, Shadow };
Image Capsule(int w, int h, const std::string& text, Colour base, ButtonLook look, float size = 0);
// Adds <stem>base.png, <stem>rollover.png and <stem>shadow.png.
void AddCapsule(Sink& sink, const std::string& stem, int w, int h, const std::string& text,
                Colour base, float size = 0);

// --- lettering
struct TitleInk {
	Colour top, bottom, ink;
};
extern const TitleInk TITLE_YELLOW, TITLE_BLUE, TITLE_GREEN, TITLE_RED, TITLE_VIOLET;

// White-rimmed lettering: ink, cream rim, lit face with a light upper half. bend lowers the ends,
// in pixels. The picture is about text width + 0.9 size wide and 1.55 size + bend high.
Image TitleLettering(const std::string& text, float size, const TitleInk& ink, float bend = 0);
// The same on a picture of the given size, its capitals centred on (cx, cy).
Image TitleOn(int w, int h, float cx, float cy, const std::string& text, float size,
              const TitleInk& ink, float bend = 0);
Image SignedPlank(const std::string& text, float size, const TitleInk& ink, int extra = 60);
// The picture scaled about its middle onto one of the same size, then faded.
Image Popped(const Image& source, float scale, float opacity = 1);
// One line of small light lettering with a dark edge, as wide as its text and 3 px more.
Image EdgedWord(const std::string& text, float size, Colour face, Colour edge, int height,
                float edgeWidth = 1.3f);
