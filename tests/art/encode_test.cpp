// Tests of the encoders and of the container.
#include "art/core/container.h"
#include "art/core/encode.h"

#include <gtest/gtest.h>

// Every alpha with two colours, premultiplied.
static Image Ramp()
{
	Image image(64, 2);
	for (int x = 0; x < 64; x++) {
		float alpha = x * 4 / 255.f;
		Blend(image, x, 0, {1, .5f, .25f}, alpha);
		Blend(image, x, 1, {0, .2f, .9f}, alpha);
	}
	return image;
}

static void ExpectSame(const Image& a, const Image& b, float tolerance)
{
	ASSERT_EQ(a.width, b.width);
	ASSERT_EQ(a.height, b.height);
	for (size_t i = 0; i < a.data.size(); i++)
		ASSERT_NEAR(a.data[i], b.data[i], tolerance) << "value " << i;
}

TEST(Encode, PngAndTgaKeepAlphaAndColour)
{
	const float HALF_STEP = .51f / 255;
	ExpectSame(Ramp(), DecodePng(EncodePng(Ramp())), HALF_STEP);
	ExpectSame(Ramp(), DecodeTga(EncodeTga(Ramp())), HALF_STEP);
}

// The colour of a half clear pixel must come out bright, not darkened by its alpha.
TEST(Encode, ColourIsStoredStraight)
{
	Image image(1, 1);
	Blend(image, 0, 0, {1, 1, 1}, .5f);
	std::string tga = EncodeTga(image);
	EXPECT_EQ((unsigned char)tga[18], 255);
	EXPECT_EQ((unsigned char)tga[21], 128);
}

TEST(Encode, JpegIsClose)
{
	Image image(32, 32);
	for (int y = 0; y < 32; y++)
		for (int x = 0; x < 32; x++)
			Blend(image, x, y, {x / 32.f, y / 32.f, .5f});
	ExpectSame(image, DecodeJpeg(EncodeJpeg(image, 93)), .05f);
}

TEST(Encode, BmpMarksClearPixelsWithTheKey)
{
	Image image(3, 1);
	Blend(image, 1, 0, {0, 1, 0});
	std::string bmp = EncodeBmp(image, {1, 147 / 255.f, 252 / 255.f});
	ASSERT_EQ(bmp.size(), 54u + 12u);
	EXPECT_EQ(bmp.substr(54, 3), "\xfc\x93\xff");
	EXPECT_EQ(bmp.substr(57, 3), std::string("\0\xff\0", 3));
}

TEST(Encode, RubbishGivesAnEmptyPicture)
{
	EXPECT_EQ(DecodePng("no picture").width, 0);
	EXPECT_EQ(DecodeTga("no picture").width, 0);
	EXPECT_EQ(DecodeJpeg("no picture").width, 0);
	EXPECT_EQ(DecodeTga(EncodeTga(Ramp()).substr(0, 100)).width, 0);
}

TEST(Container, GivesBackNamesAndBytesInOrder)
{
	std::vector<Picture> in = {{"b.png", std::string("\0x\xff", 3), 0, 0}, {"a.tga", "", 0, 0}};
	std::vector<Picture> out;
	ASSERT_TRUE(UnpackContainer(PackContainer(in), out));
	ASSERT_EQ(out.size(), 2u);
	EXPECT_EQ(out[0].name, "b.png");
	EXPECT_EQ(out[0].bytes, in[0].bytes);
	EXPECT_EQ(out[1].name, "a.tga");
	EXPECT_EQ(out[1].bytes, "");
}

TEST(Container, LaysNumbersOutAsTheGameReadsThem)
{
	std::string bytes = PackContainer({{"n", "data", 0, 0}});
	EXPECT_EQ(bytes, std::string("\1\0\0\0\10\0\0\0\4\0\0\0\1\0\0\0ndata", 21));
	EXPECT_EQ(PackContainer({}), std::string("\0\0\0\0", 4));
}

TEST(Container, RefusesWhatIsCutShort)
{
	std::string bytes = PackContainer({{"name", "data", 0, 0}});
	std::vector<Picture> out;
	for (size_t length = 0; length < bytes.size(); length++)
		EXPECT_FALSE(UnpackContainer(bytes.substr(0, length), out)) << length;
}
