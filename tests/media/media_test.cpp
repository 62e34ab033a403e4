// The plain pictures and the services of MediaTest.
#include "media/media_test.h"

#include "frame/program.h"
#include "frame/random.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "state/game_data.h"
#include "state/save_folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

static const size_t TGA_HEADER = 18; // bytes
static const size_t BMP_HEADER = 54;

static void PutBytes(Bytes& bytes, size_t at, unsigned int value, int count)
{
	for (int i = 0; i < count; i++)
		bytes[at + static_cast<size_t>(i)] = static_cast<unsigned char>(value >> (8 * i));
}

void PutWord(Bytes& bytes, size_t at, unsigned int value)
{
	PutBytes(bytes, at, value, 4);
}

Bytes PlainTga(int width, int height, const Colour& colour)
{
	Bytes bytes(TGA_HEADER);
	bytes[2] = 2; // true colour, not packed
	PutBytes(bytes, 12, static_cast<unsigned int>(width), 2);
	PutBytes(bytes, 14, static_cast<unsigned int>(height), 2);
	bytes[16] = 32;
	bytes[17] = 8 | 0x20; // bits of alpha, top row first
	for (int i = 0; i < width * height; i++)
		for (int value : {colour.blue, colour.green, colour.red, colour.alpha})
			bytes.push_back(static_cast<unsigned char>(value));
	return bytes;
}

Bytes PlainBmp(int width, int height, const Colour& colour)
{
	const int row = (width * 3 + 3) / 4 * 4;
	Bytes bytes(BMP_HEADER + static_cast<size_t>(row * height));
	bytes[0] = 'B';
	bytes[1] = 'M';
	PutWord(bytes, 2, static_cast<unsigned int>(bytes.size()));
	PutWord(bytes, 10, BMP_HEADER);
	PutWord(bytes, 14, 40);
	PutWord(bytes, 18, static_cast<unsigned int>(width));
	PutWord(bytes, 22, static_cast<unsigned int>(height));
	PutBytes(bytes, 26, 1, 2);
	PutBytes(bytes, 28, 24, 2);
	PutWord(bytes, 34, static_cast<unsigned int>(row * height));
	for (int y = 0; y < height; y++)
		for (int x = 0; x < width; x++) {
			unsigned char* pixel = &bytes[BMP_HEADER + static_cast<size_t>(y * row + 3 * x)];
			pixel[0]             = static_cast<unsigned char>(colour.blue);
			pixel[1]             = static_cast<unsigned char>(colour.green);
			pixel[2]             = static_cast<unsigned char>(colour.red);
		}
	return bytes;
}

Bytes ContainerBytes(const Container& entries)
{
	Bytes bytes(4 + 4 * entries.size());
	PutWord(bytes, 0, static_cast<unsigned int>(entries.size()));
	for (size_t i = 0; i < entries.size(); i++) {
		const auto& [name, data] = entries[i];
		const size_t start       = bytes.size();
		PutWord(bytes, 4 + 4 * i, static_cast<unsigned int>(start));
		bytes.resize(start + 8);
		PutWord(bytes, start, static_cast<unsigned int>(data.size()));
		PutWord(bytes, start + 4, static_cast<unsigned int>(name.size()));
		bytes.insert(bytes.end(), name.begin(), name.end());
		bytes.insert(bytes.end(), data.begin(), data.end());
	}
	return bytes;
}

void WriteBytes(const std::string& path, const Bytes& bytes)
{
	std::ofstream file(path, std::ios::binary);
	file.write(reinterpret_cast<const char*>(bytes.data()),
	           static_cast<std::streamsize>(bytes.size()));
}

std::string ReadText(const std::string& path)
{
	std::ifstream file(path, std::ios::binary);
	std::stringstream text;
	text << file.rdbuf();
	return text.str();
}

bool Near(const Colour& a, const Colour& b)
{
	const auto close = [](int x, int y) { return std::abs(x - y) <= 2; };
	return close(a.red, b.red) && close(a.green, b.green) && close(a.blue, b.blue) &&
	       close(a.alpha, b.alpha);
}

std::ostream& operator<<(std::ostream& out, const Colour& colour)
{
	return out << colour.red << "," << colour.green << "," << colour.blue << "," << colour.alpha;
}

static Colour PixelOf(SDL_Surface* surface, int x, int y)
{
	SDL_LockSurface(surface);
	const unsigned char* row = static_cast<unsigned char*>(surface->pixels) + y * surface->pitch;
	const Uint32 value       = reinterpret_cast<const Uint32*>(row)[x];
	SDL_UnlockSurface(surface);
	Uint8 red, green, blue, alpha;
	SDL_GetRGBA(value, surface->format, &red, &green, &blue, &alpha);
	return {red, green, blue, surface->format->Amask ? alpha : 255};
}

Colour ScreenPixel(int x, int y)
{
	return PixelOf(g_display->screen, x, y);
}

Colour ImagePixel(int image, int x, int y)
{
	return PixelOf(g_display->ImageSurface(image), x, y);
}

CTinyData::CTinyData(const Container& more) : before(std::filesystem::current_path())
{
	std::filesystem::current_path(folder.path);
	Container entries = {
	    {"collision.png", PlainBmp(3, 3, RED)},
	    {"dirty.png", PlainBmp(1, 1, RED)},
	    {"mouse_cursor.tga", PlainTga(8, 8, WHITE)},
	    {"mouse_hourglass.tga", PlainTga(16, 16, WHITE)},
	    {"logozq-eyes.png", PlainBmp(20, 20, WHITE)},
	    {"red.bmp", PlainBmp(20, 20, RED)},
	    {"green.bmp", PlainBmp(20, 20, GREEN)},
	    {"blue.bmp", PlainBmp(20, 20, BLUE)},
	    {"white.bmp", PlainBmp(20, 20, WHITE)},
	    {"redalpha.tga", PlainTga(20, 20, RED)},
	    {"halfalpha.tga", PlainTga(20, 20, HALF)},
	    {"clearalpha.tga", PlainTga(20, 20, CLEAR)},
	    {"large.bmp", PlainBmp(100, 60, BLUE)},
	};
	for (const std::string& name : CDisplay::PersistentImageNames())
		entries.push_back(
		    {name, name.ends_with("tga") ? PlainTga(1, 1, RED) : PlainBmp(1, 1, RED)});
	entries.insert(entries.end(), more.begin(), more.end());
	WriteBytes("resource.dat", ContainerBytes(entries));
	WriteBytes("loading.dat", PlainBmp(800, 600, BLACK));
	WriteBytes("loadingtext.dat", PlainBmp(400, 60, WHITE));
}

CTinyData::~CTinyData()
{
	std::filesystem::current_path(before);
}

// What the widget tests show, in sizes that their arithmetic was made for.
static Container WidgetPictures()
{
	Container pictures;
	const auto add = [&](const char* name, int width, int height, const Colour& colour) {
		pictures.push_back({name, PlainBmp(width, height, colour)});
	};
	for (const char* name :
	     {"optionscheckboxuncheckedbase.png", "optionscheckboxuncheckedrollover.png",
	      "optionscheckboxcheckedbase.png", "optionscheckboxcheckedrollover.png"})
		add(name, 24, 24, WHITE);
	for (const char* name : {"optionsslidershadow.png", "optionssliderframe.png",
	                         "optionsslidergreyout.png", "optionssliderslider.png"})
		add(name, 114, 20, BLUE);
	add("profileenternameinputfield.png", 170, 30, BLUE);
	add("profilenternamecursor.png", 2, 20, WHITE);
	for (const char* name : {"fontsmalla.png", "fontsmallb.png", "fontsmallc.png"})
		add(name, 10, 20, WHITE);
	for (const char* name : {"fontbigA.png", "fontnumber7.png"})
		add(name, 10, 20, RED);
	add("sidebardoorrubberleft.png", 15, 60, RED);
	add("sidebardoorrubberright.png", 15, 60, RED);
	add("sidebardoormainleft.png", 47, 60, GREEN);
	add("sidebardoormainright.png", 47, 60, GREEN);
	add("sidebardoorhandleleft.png", 28, 20, BLUE);
	add("sidebardoorhandleright.png", 28, 20, BLUE);
	for (int i = 0; i < 24; i++)
		add(("sidebardoorhandleboth" + std::to_string(i) + ".png").c_str(), 56, 26, WHITE);
	for (int i = 0; i < 5; i++)
		add(("walk" + std::to_string(i) + ".png").c_str(), 10 + i, 20, {40 * i, 0, 0});
	return pictures;
}

MediaTest::MediaTest() : files(WidgetPictures()), clockBefore(g_clock)
{
	// A child process started anew would leave its folders behind.
	GTEST_FLAG_SET(death_test_style, "fast");
	g_clock = &clock;
	SeedRandom(1);
	SetSaveFolderRoot(home.path);
	g_fullscreen = false;
	data         = std::make_unique<CGameData>();
	SDL_Init(SDL_INIT_VIDEO);
	g_gameData = g_levelGameData = data.get();
	input                        = std::make_unique<CInput>();
	g_input                      = input.get();
	display                      = std::make_unique<CDisplay>();
	g_display                    = display.get();
	display->Preload();
	display->FreeLoadingText();
	render   = std::make_unique<CRenderManager>();
	g_render = render.get();
	cursor   = std::make_unique<CCursor>();
	g_cursor = cursor.get();
	HideCursor(-1);
	SDL_Event event;
	while (SDL_PollEvent(&event)) // the window's own events are no part of a test
		continue;
}

MediaTest::~MediaTest()
{
	sprites.clear();
	cursor.reset();
	g_cursor = nullptr;
	render.reset();
	g_render = nullptr;
	display.reset();
	g_display = nullptr;
	input.reset();
	g_input = nullptr;
	data.reset();
	g_gameData = g_levelGameData = nullptr;
	SDL_Quit();
	SetSaveFolderRoot("");
	g_clock = clockBefore;
}

CSprite* MediaTest::NewSprite(int x, int y, int depth, const std::string& file)
{
	sprites.push_back(std::make_unique<CSprite>(x, y, depth));
	sprites.back()->AddFile(file);
	return sprites.back().get();
}

void MediaTest::Frame()
{
	render->Update(true);
}

void MediaTest::ClearScreen()
{
	SDL_FillRect(display->screen, nullptr, 0);
}
