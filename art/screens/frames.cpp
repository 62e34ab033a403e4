// Boxes, headings and texts that several pages have in common.
#include "art/screens/frames.h"

Image Well(int w, int h, Colour inside, float radius)
{
	Canvas canvas(w, h);
	DrawWell(canvas, 1, 1, w - 2.f, h - 2.f, inside, radius);
	return canvas.Finish();
}

void AddWellParts(Sink& sink, const std::string& stem, int left, int middle, int right, int h,
                  Colour inside)
{
	Image whole = Well(left + middle + right, h, inside);
	sink.Add(stem + "left.png", Cropped(whole, 0, 0, left, h));
	sink.Add(stem + "middle.png", Cropped(whole, left, 0, middle, h));
	sink.Add(stem + "right.png", Cropped(whole, left + middle, 0, right, h));
}

Image TitlePlank(int w, int h, const std::string& text, float size, const TitleInk& ink)
{
	Image plank = Plank(w, h);
	Image words = TitleLettering(text, size, ink);
	ComposeCentred(plank, words, w * .5f - 1.5f, h * .5f - 2);
	return plank;
}

void DrawBand(Canvas& canvas, float x, float y, float w, float h)
{
	canvas.Fill(RoundRect(x, y, w, h, 6), HexColour(0xe0c98e), .7f);
}

static std::vector<std::string> LinesOf(const std::string& text)
{
	std::vector<std::string> lines(1);
	for (char letter : text) {
		if (letter == '\n')
			lines.emplace_back();
		else
			lines.back() += letter;
	}
	return lines;
}

static float LineStep(float size, float step)
{
	return step > 0 ? step : size * 1.3f;
}

Image TextPiece(const std::string& text, float size, int height, Colour c)
{
	Canvas canvas((int)std::lround(LetteringWidth(text, size)), height);
	canvas.Print(text, size, 0, height * .5f - size * .04f, c);
	return canvas.Finish();
}

Image TextBlock(const std::string& text, float size, int w, int h, Colour c, float step)
{
	std::vector<std::string> lines = LinesOf(text);
	Canvas canvas(w, h);
	float down = LineStep(size, step);
	float y    = h * .5f - size * .04f - down * (lines.size() - 1) * .5f;
	for (const std::string& line : lines) {
		canvas.Print(line, size, w * .5f, y, c, Align::Centre);
		y += down;
	}
	return canvas.Finish();
}

Image TextAround(const std::string& text, float size, int left, int middle, Colour c, float step)
{
	float lines = (float)LinesOf(text).size();
	int h       = (int)std::ceil(LineStep(size, step) * (lines - 1) + size * 1.3f);
	return TextBlock(text, size, 2 * (middle - left), h, c, step);
}

Image EdgedBlock(const std::string& text, float size, int w, int h, Colour face, Colour edge,
                 float edgeWidth)
{
	Canvas canvas(w, h);
	canvas.Caption(text, size, w * .5f, h * .5f - size * .04f, face, edge, edgeWidth);
	return canvas.Finish();
}
