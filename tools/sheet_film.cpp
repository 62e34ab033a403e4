// Lays the frames of a film on one sheet.
#include "tools/sheet_film.h"

#include "art/core/canvas.h"
#include "art/core/encode.h"
#include "art/core/files.h"
#include "art/core/palette.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

static const int GAP             = 2; // pixels between frames
static const int DEFAULT_COLUMNS = 8;

static const char* const USAGE =
    "sheet --film DIR OUT.png [--columns N] [--crop X Y W H] [--every N] [--from N] [--zoom N]\n";

namespace
{
struct FilmOrder {
	std::string folder, out;
	int columns = DEFAULT_COLUMNS, every = 1, from = 0, zoom = 1;
	int x = 0, y = 0, width = 0, height = 0; // of width 0: whole frames
};
} // namespace

static bool ReadOrder(int count, char** words, FilmOrder& order)
{
	int plain = 0;
	for (int i = 2; i < count; i++) {
		std::string word = words[i];
		auto number      = [&](int least) {
            return i + 1 < count ? std::max(least, std::atoi(words[++i])) : least;
		};
		if (word == "--columns")
			order.columns = number(1);
		else if (word == "--every")
			order.every = number(1);
		else if (word == "--from")
			order.from = number(0);
		else if (word == "--zoom")
			order.zoom = number(1);
		else if (word == "--crop") {
			order.x      = number(0);
			order.y      = number(0);
			order.width  = number(1);
			order.height = number(1);
		} else if (plain == 0 && ++plain)
			order.folder = word;
		else if (plain == 1 && ++plain)
			order.out = word;
		else
			return false;
	}
	return plain == 2;
}

static std::vector<std::string> FramesOf(const std::string& folder)
{
	std::vector<std::string> files;
	std::error_code missing;
	for (const auto& entry : std::filesystem::directory_iterator(folder, missing))
		if (entry.path().extension() == ".png")
			files.push_back(entry.path());
	std::sort(files.begin(), files.end());
	return files;
}

static std::vector<Image> LoadFrames(const FilmOrder& order)
{
	std::vector<Image> frames;
	std::vector<std::string> files = FramesOf(order.folder);
	for (size_t i = order.from; i < files.size(); i += order.every) {
		std::string bytes;
		if (!ReadFile(files[i], bytes))
			continue;
		Image frame = DecodePng(bytes);
		if (order.width)
			frame = Cropped(frame, order.x, order.y, order.width, order.height);
		frames.push_back(Enlarged(frame, order.zoom));
	}
	return frames;
}

int DrawFilmSheet(int count, char** words)
{
	FilmOrder order;
	if (!ReadOrder(count, words, order)) {
		std::fputs(USAGE, stderr);
		return 2;
	}
	std::vector<Image> frames = LoadFrames(order);
	if (frames.empty()) {
		std::fprintf(stderr, "sheet: no frames in %s\n", order.folder.c_str());
		return 1;
	}
	int width = frames[0].width + GAP, height = frames[0].height + GAP;
	int columns = std::min(order.columns, (int)frames.size());
	int rows    = ((int)frames.size() + columns - 1) / columns;
	Canvas canvas(columns * width, rows * height, 1);
	for (size_t i = 0; i < frames.size(); i++) {
		int left = (int)i % columns * width, top = (int)i / columns * height;
		canvas.Place(frames[i], left, top);
		canvas.Caption(std::to_string(order.from + (int)i * order.every), 9, left + 2.f, top + 7.f,
		               {1, 1, 1}, PAINT_TEXT, 1, Align::Left, PRINT_FACE);
	}
	return WriteIfChanged(order.out, EncodePng(canvas.pixels)) ? 0 : 1;
}
