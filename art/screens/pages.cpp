// Draws the parts of the small pages.
#include "art/screens/pages.h"

#include "art/objects/ball.h"
#include "art/objects/machine.h"

#include <algorithm>

static const Window ROOM     = {-150, -200, 300, 260}; // round a figure's foot point
static const Colour KEY_FACE = HexColour(0xf4f1ea), KEY_SIDE = HexColour(0xb9b3ab);

Image SillPanel(int w, int h, int sill, float frame)
{
	Canvas canvas(w, h, 2);
	canvas.Place(PaperPanel(w, h, frame), 0, 0);
	float top  = h - 8.f - sill;
	PathFn bar = RoundRect(3.5f, top, w - 10.f, sill - .5f, 16);
	canvas.Body(bar, WoodGrain(PAINT_WOOD), InkOf(PAINT_WOOD), 1.2f, 3.4f, 3, .2f);
	return canvas.Finish();
}

void PrintLabel(Canvas& canvas, const std::string& text, float x, float y, float size)
{
	canvas.Print(text, size, x, y, PAINT_TEXT, Align::Right);
}

static int LineCount(const std::string& text)
{
	return 1 + (int)std::count(text.begin(), text.end(), '\n');
}

void PrintText(Canvas& canvas, const std::string& text, float size, float x, float y, float width,
               Align align, Colour c)
{
	canvas.Print(Wrapped(text, size, width, SPEECH_FACE), size, x, y, c, align, SPEECH_FACE);
}

void PrintNote(Canvas& canvas, const std::string& heading, const std::string& text, float x,
               float y, float width)
{
	const float HEADING = 16.5f, BODY = 14.5f, STEP = 16.5f, GAP = 18;
	int lines  = LineCount(Wrapped(text, BODY, width, SPEECH_FACE));
	float high = GAP + (lines - 1) * STEP;
	float top  = y - high * .5f;
	canvas.Print(heading, HEADING, x, top, PAINT_HEADING);
	PrintText(canvas, text, BODY, x, top + GAP + (lines - 1) * STEP * .5f, width);
}

static Image Trimmed(const Image& image)
{
	return Cropped(image, CommonBounds({image}));
}

Image AnimalPicture(Species (*species)(), float zoom, const Pose& pose)
{
	return Trimmed(Figure(species()).DrawLarge(pose, ROOM, zoom));
}

Image RiddenBubble(int width, Species (*species)(), float zoom)
{
	Pose pose;
	pose.tuck = 1, pose.shadow = false;
	Image picture(width, width);
	ComposeCentred(picture, AnimalPicture(species, zoom, pose), width * .5f, width * .54f);
	Compose(picture, Bubble(width, BubbleSkin::Normal, .2f), 0, 0);
	return picture;
}

Image MachinePicture(float zoom)
{
	const float WIDE = 120, HIGH = 120; // machine units
	Image picture((int)(WIDE * zoom), (int)(HIGH * zoom));
	DrawMachine(picture, 22 * zoom, 18 * zoom, zoom);
	return Trimmed(picture);
}

static void DrawCap(Canvas& canvas, float x, float y, float w, float h)
{
	PathFn foot = RoundRect(x, y, w, h, 5);
	canvas.DropShadow(foot, 1.4f, .8f, 1.6f, .4f);
	canvas.Body(foot, Plain(KEY_SIDE), HexColour(0x4a4038), 1, 1.6f, 3, .2f);
	canvas.Relief(RoundRect(x + 2.4f, y + 1.2f, w - 4.8f, h - 6, 4),
	              Downward(PAINT_WHITE, KEY_FACE, y, y + h), 1.4f, 2, .2f);
}

void DrawKey(Canvas& canvas, float x, float y, float w, float h, const std::string& word)
{
	DrawCap(canvas, x, y, w, h);
	canvas.Print(word, 13, x + w * .5f, y + h * .5f - 1.8f, PAINT_TEXT_BLUE, Align::Centre);
}

void DrawArrowKey(Canvas& canvas, float x, float y, float size, float turn)
{
	DrawCap(canvas, x, y, size, size);
	canvas.Fill(Arrow(x + size * .5f, y + size * .5f - 1.8f, size * .5f, size * .15f, turn),
	            PAINT_TEXT_BLUE);
}

// The upper part of a mouse's body on one side of its middle.
static PathFn MouseButton(float x, float y, float side)
{
	return [=](cairo_t* c) {
		cairo_move_to(c, x + side * 1.2f, y - 6);
		cairo_line_to(c, x + side * 1.2f, y - 36);
		cairo_curve_to(c, x + side * 16, y - 36, x + side * 24.5f, y - 27, x + side * 25, y - 6);
		cairo_close_path(c);
	};
}

void DrawMouseDevice(Canvas& canvas, float x, float y, Colour left, Colour right)
{
	const Colour INK = HexColour(0x4a4038);
	PathFn cable     = [=](cairo_t* c) {
        cairo_move_to(c, x, y - 36);
        cairo_curve_to(c, x + 1, y - 46, x + 12, y - 44, x + 20, y - 50);
	};
	PathFn body = RoundRect(x - 26, y - 37, 52, 74, 25.5f);
	canvas.Stroke(cable, INK, 4.4f);
	canvas.Stroke(cable, KEY_SIDE, 2.2f);
	canvas.DropShadow(body, 2, 1.5f, 3, .45f);
	canvas.Body(body, Downward(PAINT_WHITE, HexColour(0xd8d2c8), y - 37, y + 37), INK, 1.2f, 4,
	            2.6f, .3f);
	for (float side : {-1.f, 1.f}) {
		Colour c = side < 0 ? left : right;
		canvas.Fill(MouseButton(x, y, side), INK, 1, .8f);
		canvas.Relief(MouseButton(x, y, side),
		              Downward(Lighter(c, .25f), Darker(c, .2f), y - 37, y - 6), 2.6f, 2.6f, .35f);
	}
	canvas.Body(RoundRect(x - 3.4f, y - 29, 6.8f, 15, 3.4f), Plain(HexColour(0x5c6270)), INK, 1,
	            1.2f, 2.4f, .5f);
}
