// Shows the outlines that the ball meets over the animals' pictures, and fits new ones.
#include "tools/sheet_bodies.h"

#include "animals/species.h"
#include "art/core/canvas.h"
#include "art/core/encode.h"
#include "art/core/files.h"
#include "art/core/palette.h"
#include "tools/sheet_common.h"
#include "tools/sheet_fit.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

static const int ZOOM = 3, GAP = 10, LABEL = 14; // pixels
static const int SHEET_WIDTH   = 1500;
static const float SAME_MIRROR = 5; // pixels within which one table does for both facings
static const int ROW_POINTS    = 5; // points in a line of a table

static const char* const USAGE = "sheet --bodies OUT.png [SPECIES...] [--fitted] [--data DIR]\n"
                                 "sheet --fit [SPECIES...] [--data DIR]\n";

namespace
{
struct BodyOrder {
	std::string out, data = "build/release/data";
	std::vector<std::string> species; // prefixes; none: all
	bool fit = false, fitted = false;
};
struct Standing {
	const SpeciesTable* table;
	Image left, right;
	std::vector<BodyPoint> ringLeft, ringRight; // what is shown
};
} // namespace

static bool ReadOrder(int count, char** words, BodyOrder& order)
{
	order.fit = !std::strcmp(words[1], "--fit");
	for (int i = 2; i < count; i++) {
		if (!std::strcmp(words[i], "--data") && i + 1 < count)
			order.data = words[++i];
		else if (!std::strcmp(words[i], "--fitted"))
			order.fitted = true;
		else if (!order.fit && order.out.empty())
			order.out = words[i];
		else
			order.species.push_back(words[i]);
	}
	return order.fit || !order.out.empty();
}

// The picture that gives the animal its size: the first of its table.
static std::string StandingFile(const SpeciesTable& table, bool left)
{
	if (table.actions.empty())
		return PictureFiles(table.prefix, table.pictures[0].name, left,
		                    table.pictures[0].frames)[0];
	return PictureFiles(table.prefix, WordOf(table.actions[0]).c_str(), left,
	                    table.actions[0].frames)[0];
}

static std::vector<BodyPoint> Ring(const SpeciesTable& table, bool left, int width)
{
	if (left || !table.bodyRight.empty()) {
		std::span<const BodyPoint> body = left ? table.body : table.bodyRight;
		return {body.begin(), body.end()};
	}
	std::vector<BodyPoint> mirrored;
	for (const BodyPoint& point : table.body)
		mirrored.push_back({width - point.x, point.y});
	return mirrored;
}

static void PrintRing(const char* name, const std::vector<BodyPoint>& ring)
{
	std::printf("static const BodyPoint %s[] = {", name);
	for (size_t i = 0; i < ring.size(); i++)
		std::printf("%s{ %g, %g },", i % ROW_POINTS ? " " : "\n\t", ring[i].x, ring[i].y);
	std::printf("\n};\n");
}

// The two facings are mirror images but for the light; where they are not, both are printed.
static void PrintFit(const Standing& standing)
{
	std::vector<BodyPoint> left = FitBody(standing.left), right = FitBody(standing.right);
	std::printf("== %s %dx%d\n", standing.table->prefix, standing.left.width, standing.left.height);
	PrintRing("s_body", left);
	float worst = 0;
	for (const BodyPoint& point : left) {
		float nearest = 1e6f;
		for (const BodyPoint& other : right)
			nearest = std::min(
			    nearest, std::hypot(standing.left.width - point.x - other.x, point.y - other.y));
		worst = std::max(worst, nearest);
	}
	float margin = 0;
	for (const BodyPoint& point : left)
		margin = std::max(
		    margin, DistanceToFigure(standing.right, {standing.left.width - point.x, point.y}));
	std::printf("// mirrored: %.1f from the fit, %.1f from the figure\n", worst, margin);
	if (margin > SAME_MIRROR)
		PrintRing("s_bodyRight", right);
}

static void DrawRing(CairoLayer& layer, const std::vector<BodyPoint>& ring, float left, float top)
{
	cairo_t* cairo = layer.cairo;
	for (size_t i = 0; i <= ring.size(); i++) {
		const BodyPoint& point = ring[i % ring.size()];
		cairo_line_to(cairo, left + (point.x + .5f) * ZOOM, top + (point.y + .5f) * ZOOM);
	}
	cairo_set_line_width(cairo, 1);
	cairo_set_source_rgba(cairo, 1, .1, .1, .9);
	cairo_stroke(cairo);
	for (const BodyPoint& point : ring) {
		cairo_arc(cairo, left + (point.x + .5f) * ZOOM, top + (point.y + .5f) * ZOOM, 2.2, 0, 7);
		cairo_fill(cairo);
	}
}

// Pairs in rows; first the places, to know the sheet's height.
static std::vector<At> LayOut(const std::vector<Standing>& all, int& height)
{
	std::vector<At> places;
	int x = GAP, y = GAP, rowHeight = 0;
	for (const Standing& standing : all) {
		int w = 2 * standing.left.width * ZOOM + GAP, h = standing.left.height * ZOOM + LABEL;
		if (x > GAP && x + w > SHEET_WIDTH) {
			x = GAP;
			y += rowHeight + GAP;
			rowHeight = 0;
		}
		places.push_back({(float)x, (float)y});
		x += w + GAP;
		rowHeight = std::max(rowHeight, h);
	}
	height = y + rowHeight + GAP;
	return places;
}

static bool DrawBodies(const std::vector<Standing>& all, const std::string& out)
{
	int height             = 0;
	std::vector<At> places = LayOut(all, height);
	Image sheet            = Ground("grass", SHEET_WIDTH, height);
	for (size_t i = 0; i < all.size(); i++) {
		int x = (int)places[i].x, y = (int)places[i].y, side = all[i].left.width * ZOOM + GAP;
		Compose(sheet, Enlarged(all[i].left, ZOOM), x, y);
		Compose(sheet, Enlarged(all[i].right, ZOOM), x + side, y);
	}
	CairoLayer layer(sheet);
	for (size_t i = 0; i < all.size(); i++) {
		float side = all[i].left.width * ZOOM + GAP;
		DrawRing(layer, all[i].ringLeft, places[i].x, places[i].y);
		DrawRing(layer, all[i].ringRight, places[i].x + side, places[i].y);
	}
	layer.End();
	Canvas canvas(SHEET_WIDTH, height, 1);
	canvas.Place(sheet, 0, 0);
	for (size_t i = 0; i < all.size(); i++)
		canvas.Caption(all[i].table->prefix, 11, places[i].x,
		               places[i].y + all[i].left.height * ZOOM + 6, {1, 1, 1}, PAINT_TEXT, 1.1f,
		               Align::Left, PRINT_FACE);
	return WriteIfChanged(out, EncodePng(canvas.pixels));
}

static Standing Show(const SpeciesTable& table, const Image& left, const Image& right, bool fitted)
{
	if (fitted)
		return {&table, left, right, FitBody(left), FitBody(right)};
	return {&table, left, right, Ring(table, true, left.width), Ring(table, false, left.width)};
}

static bool Wanted(const BodyOrder& order, const SpeciesTable& table)
{
	return order.species.empty() || std::find(order.species.begin(), order.species.end(),
	                                          table.prefix) != order.species.end();
}

int DrawBodySheet(int count, char** words)
{
	BodyOrder order;
	std::map<std::string, Picture> pictures;
	if (!ReadOrder(count, words, order)) {
		std::fputs(USAGE, stderr);
		return 2;
	}
	if (!LoadPicturesByName(order.data, pictures))
		return 1;
	std::vector<Standing> all;
	for (const SpeciesEntry& entry : AllSpecies()) {
		const SpeciesTable& table = *entry.table;
		if (!Wanted(order, table))
			continue;
		auto left  = pictures.find(StandingFile(table, true));
		auto right = pictures.find(StandingFile(table, false));
		if (left == pictures.end() || right == pictures.end())
			std::fprintf(stderr, "sheet: %s has no picture\n", table.prefix);
		else
			all.push_back(Show(table, Decode(left->second), Decode(right->second), order.fitted));
	}
	if (!order.fit)
		return !all.empty() && DrawBodies(all, order.out) ? 0 : 1;
	for (const Standing& standing : all)
		PrintFit(standing);
	return 0;
}
