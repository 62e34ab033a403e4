// Draws the stand-in so loud that nobody takes it for the real picture.
#include "art/stand_in.h"

#include "art/core/canvas.h"

#include <map>

static const Colour MAGENTA = HexColour(0xe020c0), YELLOW = HexColour(0xffe020);
static const int SMALL_SIZE = 32, SCREEN_WIDTH = 800, SCREEN_HEIGHT = 600;

Image DrawStandIn(const std::string& extension)
{
	bool screen = extension == ".jpg";
	int w = screen ? SCREEN_WIDTH : SMALL_SIZE, h = screen ? SCREEN_HEIGHT : SMALL_SIZE;
	int field  = screen ? 50 : 8;
	Image base = Filled(w, h, YELLOW);
	for (int y = 0; y < h; y++)
		for (int x = 0; x < w; x++)
			if ((x / field + y / field) & 1)
				Blend(base, x, y, MAGENTA);
	Canvas canvas(w, h, screen ? 1 : 4);
	canvas.Place(base, 0, 0);
	canvas.Caption("?", h * .75f, w * .5f, h * .5f, {1, 1, 1}, HexColour(0x301030), h * .05f);
	return canvas.Finish();
}

std::vector<Picture> MakeStandIns(const std::vector<std::string>& names)
{
	std::map<std::string, Picture> known;
	std::vector<Picture> out;
	for (const std::string& name : names) {
		size_t dot            = name.rfind('.');
		std::string extension = dot == std::string::npos ? ".png" : name.substr(dot);
		if (!known.count(extension)) {
			Sink sink;
			sink.Add(name, DrawStandIn(extension));
			known[extension] = sink.pictures[0];
		}
		out.push_back(known[extension]);
		out.back().name = name;
	}
	return out;
}
