// Pictures to file bytes and back through libpng and libjpeg; TGA and BMP by hand.
#include "art/core/encode.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <jpeglib.h>
#include <png.h>

static const int TGA_HEADER = 18;

// Straight 8-bit red, green, blue, alpha of one premultiplied pixel. What is see-through becomes
// all zero, so that equal pictures have equal bytes.
static void StraightPixel(const float* p, unsigned char* out)
{
	uint32_t alpha = ToByte(p[3]);
	for (int c = 0; c < 3; c++)
		out[c] = alpha ? (unsigned char)ToByte(p[c] / std::max(p[3], 1e-6f)) : 0;
	out[3] = (unsigned char)alpha;
}

static std::vector<unsigned char> StraightBytes(const Image& image)
{
	std::vector<unsigned char> bytes((size_t)image.width * image.height * 4);
	for (size_t i = 0; i < bytes.size(); i += 4)
		StraightPixel(&image.data[i], &bytes[i]);
	return bytes;
}

static Image FromStraightBytes(const unsigned char* bytes, int w, int h)
{
	Image image(w, h);
	for (size_t i = 0; i < image.data.size(); i += 4) {
		float alpha = bytes[i + 3] / 255.f;
		for (int c = 0; c < 3; c++)
			image.data[i + c] = bytes[i + c] / 255.f * alpha;
		image.data[i + 3] = alpha;
	}
	return image;
}

static void AppendPng(png_structp png, png_bytep data, png_size_t length)
{
	((std::string*)png_get_io_ptr(png))->append((const char*)data, length);
}

std::string EncodePng(const Image& image)
{
	std::string out;
	std::vector<unsigned char> bytes = StraightBytes(image);
	png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
	png_infop info  = png_create_info_struct(png);
	png_set_write_fn(png, &out, AppendPng, nullptr);
	png_set_compression_level(png, 1);
	png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
	png_set_IHDR(png, info, image.width, image.height, 8, PNG_COLOR_TYPE_RGB_ALPHA,
	             PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
	png_write_info(png, info);
	for (int y = 0; y < image.height; y++)
		png_write_row(png, &bytes[(size_t)y * image.width * 4]);
	png_write_end(png, info);
	png_destroy_write_struct(&png, &info);
	return out;
}

static void Put16(std::string& out, int at, int value)
{
	out[at]     = (char)(value & 255);
	out[at + 1] = (char)(value >> 8 & 255);
}

std::string EncodeTga(const Image& image)
{
	std::string out(TGA_HEADER, '\0');
	out[2] = 2; // uncompressed colour
	Put16(out, 12, image.width);
	Put16(out, 14, image.height);
	out[16] = 32; // bits
	out[17] = 8;  // eight of them alpha; bit 5 clear: rows from the bottom up
	for (int y = image.height - 1; y >= 0; y--)
		for (int x = 0; x < image.width; x++) {
			unsigned char rgba[4];
			StraightPixel(image.At(x, y), rgba);
			char bgra[4] = {(char)rgba[2], (char)rgba[1], (char)rgba[0], (char)rgba[3]};
			out.append(bgra, 4);
		}
	return out;
}

std::string EncodeJpeg(const Image& image, int quality)
{
	jpeg_compress_struct jpeg;
	jpeg_error_mgr errors;
	jpeg.err = jpeg_std_error(&errors);
	jpeg_create_compress(&jpeg);
	unsigned char* buffer = nullptr;
	unsigned long length  = 0;
	jpeg_mem_dest(&jpeg, &buffer, &length);
	jpeg.image_width      = image.width;
	jpeg.image_height     = image.height;
	jpeg.input_components = 3;
	jpeg.in_color_space   = JCS_RGB;
	jpeg_set_defaults(&jpeg);
	jpeg_set_quality(&jpeg, quality, TRUE);
	jpeg.comp_info[0].h_samp_factor = 1; // full colour resolution: red on blue stays crisp
	jpeg.comp_info[0].v_samp_factor = 1;
	jpeg.dct_method                 = JDCT_ISLOW;
	jpeg_start_compress(&jpeg, TRUE);
	std::vector<unsigned char> row((size_t)image.width * 3);
	for (int y = 0; y < image.height; y++) {
		for (int x = 0; x < image.width; x++)
			for (int c = 0; c < 3; c++)
				row[(size_t)x * 3 + c] = (unsigned char)ToByte(image.At(x, y)[c]);
		unsigned char* rows[1] = {row.data()};
		jpeg_write_scanlines(&jpeg, rows, 1);
	}
	jpeg_finish_compress(&jpeg);
	jpeg_destroy_compress(&jpeg);
	std::string out((const char*)buffer, length);
	std::free(buffer);
	return out;
}

static void Append32(std::string& out, uint32_t value)
{
	for (int i = 0; i < 4; i++)
		out += (char)(value >> (8 * i) & 255);
}

std::string EncodeBmp(const Image& image, Colour key)
{
	const uint32_t HEADERS = 54;
	uint32_t pitch         = ((uint32_t)image.width * 3 + 3) / 4 * 4;
	std::string out        = "BM";
	Append32(out, HEADERS + pitch * image.height);
	Append32(out, 0);
	Append32(out, HEADERS);
	Append32(out, 40);
	Append32(out, image.width);
	Append32(out, image.height);
	Append32(out, 1 | 24 << 16); // one plane, 24 bits
	Append32(out, 0);
	Append32(out, pitch * image.height);
	for (int i = 0; i < 4; i++)
		Append32(out, 0);
	for (int y = image.height - 1; y >= 0; y--) {
		size_t rowEnd = out.size() + pitch;
		for (int x = 0; x < image.width; x++) {
			const float* p = image.At(x, y);
			bool clear     = p[3] < .5f;
			Colour c       = clear ? key : Colour{p[0] / p[3], p[1] / p[3], p[2] / p[3]};
			out += (char)ToByte(c.z);
			out += (char)ToByte(c.y);
			out += (char)ToByte(c.x);
		}
		out.resize(rowEnd, '\0');
	}
	return out;
}

Image DecodePng(const std::string& bytes)
{
	png_image png;
	std::memset(&png, 0, sizeof png);
	png.version = PNG_IMAGE_VERSION;
	if (!png_image_begin_read_from_memory(&png, bytes.data(), bytes.size()))
		return Image();
	png.format = PNG_FORMAT_RGBA;
	std::vector<unsigned char> pixels(PNG_IMAGE_SIZE(png));
	if (!png_image_finish_read(&png, nullptr, pixels.data(), 0, nullptr))
		return Image();
	return FromStraightBytes(pixels.data(), png.width, png.height);
}

Image DecodeTga(const std::string& bytes)
{
	if (bytes.size() < (size_t)TGA_HEADER || bytes[2] != 2 || bytes[16] != 32)
		return Image();
	const unsigned char* header = (const unsigned char*)bytes.data();
	int w = header[12] | header[13] << 8, h = header[14] | header[15] << 8;
	if (bytes.size() < TGA_HEADER + (size_t)w * h * 4)
		return Image();
	bool topDown = header[17] & 32;
	std::vector<unsigned char> pixels((size_t)w * h * 4);
	for (int y = 0; y < h; y++)
		for (int x = 0; x < w; x++) {
			const unsigned char* p =
			    header + TGA_HEADER + ((size_t)(topDown ? y : h - 1 - y) * w + x) * 4;
			unsigned char* q = &pixels[((size_t)y * w + x) * 4];
			q[0]             = p[2];
			q[1]             = p[1];
			q[2]             = p[0];
			q[3]             = p[3];
		}
	return FromStraightBytes(pixels.data(), w, h);
}

Image DecodeJpeg(const std::string& bytes)
{
	// libjpeg ends the program on what is no JPEG at all, so look at its first bytes.
	if (bytes.size() < 4 || (unsigned char)bytes[0] != 0xff || (unsigned char)bytes[1] != 0xd8)
		return Image();
	jpeg_decompress_struct jpeg;
	jpeg_error_mgr errors;
	jpeg.err = jpeg_std_error(&errors);
	jpeg_create_decompress(&jpeg);
	jpeg_mem_src(&jpeg, (const unsigned char*)bytes.data(), bytes.size());
	jpeg_read_header(&jpeg, TRUE);
	jpeg.out_color_space = JCS_RGB;
	jpeg_start_decompress(&jpeg);
	Image image = Filled(jpeg.output_width, jpeg.output_height, {0, 0, 0});
	std::vector<unsigned char> row((size_t)image.width * 3);
	while (jpeg.output_scanline < jpeg.output_height) {
		int y                  = (int)jpeg.output_scanline;
		unsigned char* rows[1] = {row.data()};
		jpeg_read_scanlines(&jpeg, rows, 1);
		for (int x = 0; x < image.width; x++)
			for (int c = 0; c < 3; c++)
				image.At(x, y)[c] = row[(size_t)x * 3 + c] / 255.f;
	}
	jpeg_finish_decompress(&jpeg);
	jpeg_destroy_decompress(&jpeg);
	return image;
}
