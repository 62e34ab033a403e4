// Lays the pictures of resource.dat out on one sheet, with their names and sizes.
#include "art/core/canvas.h"
#include "art/core/encode.h"
#include "art/core/files.h"
#include "art/core/palette.h"
#include "tools/sheet_bodies.h"
#include "tools/sheet_common.h"
#include "tools/sheet_film.h"
#include "tools/sheet_sounds.h"

#include <cstdio>
#include <cstring>

static const int GAP = 8, LABEL = 22; // pixels
static const int DEFAULT_WIDTH = 1200;

static const char* const USAGE =
    "sheet PREFIX OUT.png [--data DIR] [--zoom N] [--ground grass|sand|snow|night|checker]\n"
    "      [--columns N] [--bare]\n"
    "sheet --sounds OUT.png [PREFIX] [--data DIR]\n"
    "sheet --film DIR OUT.png [--columns N] [--crop X Y W H] [--every N] [--from N] [--zoom N]\n"
    "sheet --bodies OUT.png [SPECIES...] [--fitted] [--data DIR]\n"
    "      outlines over standing pictures: those of the tables, or fitted ones\n"
    "sheet --fit [SPECIES...] [--data DIR]   fitted outlines as rows of a table\n";

namespace
{
struct Order {
	std::string prefix, out, data = "build/release/data", ground = "grass";
	int zoom = 1, columns = 0;
	bool bare = false; // without names
};
struct Entry {
	std::string name;
	Image image;
};
} // namespace

static bool ReadOrder(int count, char** words, Order& order)
{
	int plain = 0;
	for (int i = 1; i < count; i++) {
		std::string word = words[i];
		bool hasNext     = i + 1 < count;
		if (word == "--data" && hasNext)
			order.data = words[++i];
		else if (word == "--zoom" && hasNext)
			order.zoom = std::max(1, std::atoi(words[++i]));
		else if (word == "--ground" && hasNext)
			order.ground = words[++i];
		else if (word == "--columns" && hasNext)
			order.columns = std::max(1, std::atoi(words[++i]));
		else if (word == "--bare")
			order.bare = true;
		else if (plain == 0 && ++plain)
			order.prefix = word;
		else if (plain == 1 && ++plain)
			order.out = word;
		else
			return false;
	}
	return plain == 2;
}

// Where each picture goes, and how large the sheet gets.
static std::vector<At> LayOut(const std::vector<Entry>& entries, const Order& order, int& width,
                              int& height)
{
	std::vector<At> places;
	int x = GAP, y = GAP, rowHeight = 0, inRow = 0;
	width = 0;
	for (const Entry& e : entries) {
		int label = order.bare ? 0 : (int)LetteringWidth(e.name, 10, PRINT_FACE);
		int w     = std::max(e.image.width * order.zoom, label);
		int h     = e.image.height * order.zoom + (order.bare ? 0 : LABEL);
		bool full = order.columns ? inRow == order.columns : inRow && x + w > DEFAULT_WIDTH;
		if (full) {
			x = GAP;
			y += rowHeight + GAP;
			rowHeight = inRow = 0;
		}
		places.push_back({(float)x, (float)y});
		x += w + GAP;
		inRow++;
		rowHeight = std::max(rowHeight, h);
		width     = std::max(width, x);
	}
	height = y + rowHeight + GAP;
	return places;
}

int main(int count, char** words)
{
	if (count > 1 && !std::strcmp(words[1], "--sounds"))
		return DrawSoundSheet(count, words);
	if (count > 1 && !std::strcmp(words[1], "--film"))
		return DrawFilmSheet(count, words);
	if (count > 1 && (!std::strcmp(words[1], "--bodies") || !std::strcmp(words[1], "--fit")))
		return DrawBodySheet(count, words);
	Order order;
	if (!ReadOrder(count, words, order)) {
		std::fputs(USAGE, stderr);
		return 2;
	}
	std::vector<Picture> pictures;
	if (!LoadPictures(order.data, pictures))
		return 1;
	std::vector<Entry> entries;
	for (const Picture& p : pictures)
		if (!p.name.compare(0, order.prefix.size(), order.prefix))
			entries.push_back({p.name, Decode(p)});
	if (entries.empty()) {
		std::fprintf(stderr, "sheet: no picture begins with %s\n", order.prefix.c_str());
		return 1;
	}
	int width, height;
	std::vector<At> places = LayOut(entries, order, width, height);
	Image sheet            = Ground(order.ground, width, height);
	for (size_t i = 0; i < entries.size(); i++)
		Compose(sheet, Enlarged(entries[i].image, order.zoom), (int)places[i].x, (int)places[i].y);
	Canvas canvas(width, height, 1);
	canvas.Place(sheet, 0, 0);
	for (size_t i = 0; i < entries.size() && !order.bare; i++) {
		const Image& image = entries[i].image;
		float y            = places[i].y + image.height * order.zoom + 7;
		std::string size   = std::to_string(image.width) + "x" + std::to_string(image.height);
		canvas.Caption(entries[i].name, 10, places[i].x, y, {1, 1, 1}, PAINT_TEXT, 1.1f,
		               Align::Left, PRINT_FACE);
		canvas.Caption(size, 10, places[i].x, y + 10, HexColour(0xffe9a0), PAINT_TEXT, 1.1f,
		               Align::Left, PRINT_FACE);
	}
	return WriteIfChanged(order.out, EncodePng(canvas.pixels)) ? 0 : 1;
}
