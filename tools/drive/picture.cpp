// Saves the screen as a picture.
#include "drive/picture.h"

#include "media/display.h"

#include <SDL.h>
#include <png.h>
#include <vector>

bool SaveScreen(const std::string& path)
{
	SDL_Surface* screen = g_display->screen;
	std::vector<unsigned char> rows(static_cast<size_t>(screen->w) * screen->h * 3);
	if (SDL_MUSTLOCK(screen))
		SDL_LockSurface(screen);
	for (int y = 0; y < screen->h; y++) {
		const Uint8* line = static_cast<const Uint8*>(screen->pixels) + y * screen->pitch;
		for (int x = 0; x < screen->w; x++) {
			Uint32 pixel      = *reinterpret_cast<const Uint32*>(line + x * 4);
			unsigned char* to = &rows[(static_cast<size_t>(y) * screen->w + x) * 3];
			SDL_GetRGB(pixel, screen->format, to, to + 1, to + 2);
		}
	}
	if (SDL_MUSTLOCK(screen))
		SDL_UnlockSurface(screen);

	png_image image = {};
	image.version   = PNG_IMAGE_VERSION;
	image.width     = screen->w;
	image.height    = screen->h;
	image.format    = PNG_FORMAT_RGB;
	return png_image_write_to_file(&image, path.c_str(), 0, rows.data(), 0, nullptr) != 0;
}
