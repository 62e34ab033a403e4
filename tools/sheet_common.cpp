// What the modes of the sheet tool share.
#include "tools/sheet_common.h"

#include "art/core/container.h"
#include "art/core/encode.h"
#include "art/core/files.h"
#include "art/core/palette.h"
#include "art/core/stamps.h"

#include <cstdio>

bool LoadPictures(const std::string& dataFolder, std::vector<Picture>& pictures)
{
	std::string bytes;
	if (ReadFile(dataFolder + "/resource.dat", bytes) && UnpackContainer(bytes, pictures))
		return true;
	std::fprintf(stderr, "sheet: no resource.dat in %s\n", dataFolder.c_str());
	return false;
}

bool LoadPicturesByName(const std::string& dataFolder, std::map<std::string, Picture>& pictures)
{
	std::vector<Picture> all;
	if (!LoadPictures(dataFolder, all))
		return false;
	for (Picture& picture : all)
		pictures[picture.name] = std::move(picture);
	return true;
}

Image Decode(const Picture& p)
{
	if (!p.bytes.compare(0, 4, "\x89PNG"))
		return DecodePng(p.bytes);
	if (!p.bytes.compare(0, 2, "\xff\xd8"))
		return DecodeJpeg(p.bytes);
	return DecodeTga(p.bytes);
}

static Colour GroundAt(const std::string& ground, int x, int y)
{
	float grain = LayeredNoise(x * .05f, y * .12f, 3, 3) - .5f;
	if (ground == "sand")
		return PAINT_SAND * (1 + .08f * grain);
	if (ground == "snow")
		return PAINT_SNOW * (1 + .04f * grain);
	if (ground == "night")
		return Mix(GrassColour(x, 270 + y), PAINT_NIGHT, .34f);
	if (ground == "checker")
		return (x / 8 + y / 8) & 1 ? Colour{.62f, .62f, .66f} : Colour{.74f, .74f, .78f};
	return GrassColour(x, 270 + y);
}

Image Ground(const std::string& ground, int width, int height)
{
	Image sheet(width, height);
	for (int y = 0; y < height; y++)
		for (int x = 0; x < width; x++)
			Blend(sheet, x, y, GroundAt(ground, x, y));
	return sheet;
}
