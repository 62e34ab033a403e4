// Groups of pictures, and the sink that encodes what they draw.
#include "art/core/catalogue.h"

#include "art/core/encode.h"

static const int JPEG_QUALITY = 93;
static const Colour BMP_KEY   = {1, 147 / 255.f, 252 / 255.f}; // see-through in the window icon

static bool EndsWith(const std::string& text, const std::string& end)
{
	return text.size() >= end.size() &&
	       text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void Sink::Add(const std::string& name, const Image& image)
{
	if (EndsWith(name, ".tga"))
		AddAs(name, image, Encoding::Tga);
	else if (EndsWith(name, ".jpg"))
		AddAs(name, image, Encoding::Jpeg);
	else
		AddAs(name, image, Encoding::Png);
}

static std::string Encode(const Image& image, Encoding encoding)
{
	switch (encoding) {
	case Encoding::Tga:
		return EncodeTga(image);
	case Encoding::Jpeg:
		return EncodeJpeg(image, JPEG_QUALITY);
	case Encoding::Bmp:
		return EncodeBmp(image, BMP_KEY);
	case Encoding::Png:
		break;
	}
	return EncodePng(image);
}

void Sink::AddAs(const std::string& name, const Image& image, Encoding encoding)
{
	pictures.push_back({name, Encode(image, encoding), image.width, image.height});
}

void Sink::AddFrames(const std::string& stem, const std::vector<Image>& frames, int first,
                     const std::string& extension)
{
	for (size_t i = 0; i < frames.size(); i++)
		Add(stem + std::to_string(first + (int)i) + extension, frames[i]);
}

void Sink::AddBytes(const std::string& name, std::string bytes)
{
	pictures.push_back({name, std::move(bytes), 0, 0});
}

void Catalogue::Add(const std::string& group, const char* source, std::function<void(Sink&)> draw)
{
	groups.push_back({group, source, std::move(draw)});
}
