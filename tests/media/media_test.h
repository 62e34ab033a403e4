// A world of a few plain pictures made on the spot, for tests of the media classes.
#pragma once

#include "frame/clock.h"
#include "media/archive.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

class CCursor;
class CDisplay;
class CGameData;
class CInput;
class CRenderManager;
class CSprite;

struct Colour {
	int red, green, blue, alpha = 255;
};

const Colour RED   = {255, 0, 0};
const Colour GREEN = {0, 255, 0};
const Colour BLUE  = {0, 0, 255};
const Colour WHITE = {255, 255, 255};
const Colour BLACK = {0, 0, 0};
const Colour HALF  = {255, 0, 0, 128}; // red, half see-through
const Colour CLEAR = {0, 0, 0, 0};

typedef std::vector<std::pair<std::string, Bytes>> Container;

Bytes PlainTga(int width, int height, const Colour& colour); // with an alpha channel
Bytes PlainBmp(int width, int height, const Colour& colour); // without; decodes under any name
Bytes ContainerBytes(const Container& entries);
void WriteBytes(const std::string& path, const Bytes& bytes);
void PutWord(Bytes& bytes, size_t at, unsigned int value); // little-endian
std::string ReadText(const std::string& path);

// Alike but for the rounding of a blend.
bool Near(const Colour& a, const Colour& b);
std::ostream& operator<<(std::ostream& out, const Colour& colour);
Colour ScreenPixel(int x, int y);
Colour ImagePixel(int image, int x, int y);

// The files that start-up needs, in a folder of its own that becomes the working directory.
class CTinyData
{
public:
	explicit CTinyData(const Container& more = {});
	~CTinyData();

	CTempFolder folder;
	std::string before; // the working directory to go back to
};

// Dummy video, virtual clock and all services, on CTinyData. Pictures of 20x20 pixels: "red.bmp",
// "green.bmp", "blue.bmp", "white.bmp" without alpha, "redalpha.tga" and so on with it.
class MediaTest : public testing::Test
{
protected:
	MediaTest();
	~MediaTest() override;

	CSprite* NewSprite(int x, int y, int depth, const std::string& file = "red.bmp");
	void Frame(); // one step and painting, without presenting
	void ClearScreen();

	CTinyData files;
	CTempFolder home;
	CVirtualClock clock;
	CClock* clockBefore;
	std::unique_ptr<CGameData> data;
	std::unique_ptr<CInput> input;
	std::unique_ptr<CDisplay> display;
	std::unique_ptr<CRenderManager> render;
	std::unique_ptr<CCursor> cursor;
	std::vector<std::unique_ptr<CSprite>> sprites; // of NewSprite; reset to delete one
};
