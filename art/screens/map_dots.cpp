// Every picture of the level dots: at rest, under the pointer, pulsing, coming and going.
#include "art/families.h"
#include "art/screens/kit.h"
#include "art/screens/map/dots.h"

static const int PULSES = 5;

namespace
{
struct KindRow {
	DotKind kind;
	const char* word;
	std::vector<DotFace> faces;
};
} // namespace

static const char* Word(DotFace face)
{
	static const char* const s_words[] = {"completed", "incomplete", "locked", "lockedghosted",
	                                      "selected"};
	return s_words[(int)face];
}

// It shrinks in three steps to a speck.
static void AddShrinking(Sink& sink, const std::string& stem, const Image& whole)
{
	static const float s_scale[] = {.82f, .52f, .22f};
	for (int i = 0; i < 3; i++)
		sink.Add(stem + "shrink" + std::to_string(i + 1) + ".png", Popped(whole, s_scale[i]));
}

static Image Ghostly(const Image& dot, DotFace face)
{
	return face == DotFace::Ghosted ? Faded(dot, .88f) : dot;
}

static void DrawKind(Sink& sink, const KindRow& row)
{
	std::string kind = std::string("mapdot") + row.word;
	for (DotFace face : row.faces) {
		std::string stem = kind + Word(face);
		Image base       = Ghostly(DrawDot(row.kind, face, 0), face);
		sink.Add(stem + "base.png", base);
		sink.Add(stem + "rollover.png", Ghostly(DrawDot(row.kind, face, 1), face));
		AddShrinking(sink, stem, base);
	}
	std::string stem = kind + Word(DotFace::Selected);
	Image base       = DrawDot(row.kind, DotFace::Selected, 0);
	sink.Add(stem + "base.png", base);
	for (int i = 1; i <= PULSES; i++)
		sink.Add(stem + "pulse" + std::to_string(i) + ".png",
		         DrawDot(row.kind, DotFace::Selected, i / (float)PULSES));
	AddShrinking(sink, stem, base);
}

void AddMapDots(Catalogue& catalogue)
{
	using enum DotFace;
	static const KindRow s_rows[] = {
	    {DotKind::Regular, "regular", {Completed, Incomplete, Locked, Ghosted}},
	    {DotKind::Bonus, "bonus", {Completed, Incomplete, Locked, Ghosted}},
	    {DotKind::Alien, "alien", {Completed, Incomplete}},
	    {DotKind::Side, "side", {Completed, Incomplete, Locked}},
	    {DotKind::Star, "star", {Incomplete, Ghosted}},
	};
	for (const KindRow& row : s_rows)
		catalogue.Add(std::string("map/dots/") + row.word, __FILE__,
		              [&row](Sink& sink) { DrawKind(sink, row); });
}
