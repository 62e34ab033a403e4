// Pictures to file bytes and back: PNG, TGA, JPEG and BMP.
#pragma once

#include "art/core/image.h"

#include <string>

// 8-bit RGBA with straight alpha, quickest compression, no filters.
std::string EncodePng(const Image& image);
// 32-bit uncompressed, straight alpha, rows from the bottom up.
std::string EncodeTga(const Image& image);
// Alpha is ignored: draw on an opaque ground. quality 1..100.
std::string EncodeJpeg(const Image& image, int quality);
// 24-bit; what is less than half opaque becomes `key`.
std::string EncodeBmp(const Image& image, Colour key);

// Both give an empty picture for bytes that they can't read.
Image DecodePng(const std::string& bytes);
Image DecodeTga(const std::string& bytes);
Image DecodeJpeg(const std::string& bytes);
