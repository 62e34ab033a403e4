// The image store of the display, and drawing with image numbers.
#include "media/display.h"

#include "frame/debug.h"

#include <SDL_image.h>
#include <algorithm>

static const size_t TYPE_LENGTH = 3; // last letters of a name, which give the type of its data
static const int OPAQUE         = 255;

SDL_Surface* CDisplay::ImageSurface(int number)
{
	ImageSlot& slot = imageTable.at(static_cast<size_t>(number));
	if (slot.waiting) {
		slot.surface = DecodeEntry(*slot.waiting);
		slot.waiting = nullptr;
	}
	return slot.surface;
}

bool CDisplay::HasImage(const std::string& name) const
{
	return entryByName.count(name) != 0;
}

int CDisplay::DecodedImages() const
{
	int count = 0;
	for (const ImageSlot& slot : imageTable)
		if (slot.surface)
			count++;
	return count;
}

SDL_Surface* CDisplay::ConvertSurface(SDL_Surface* surface, bool freeOriginal)
{
	SDL_Surface* copy =
	    surface->format->Amask ? SDL_DisplayFormatAlpha(surface) : SDL_DisplayFormat(surface);
	if (freeOriginal)
		SDL_FreeSurface(surface);
	return copy;
}

SDL_Surface* CDisplay::Decode(const Bytes& data, const std::string& type)
{
	if (data.empty()) {
		SDL_SetError("no data");
		return nullptr;
	}
	SDL_RWops* stream = SDL_RWFromConstMem(data.data(), static_cast<int>(data.size()));
	if (!stream)
		return nullptr;
	SDL_Surface* decoded = IMG_LoadTyped_RW(stream, 1, const_cast<char*>(type.c_str()));
	return decoded ? ConvertSurface(decoded, true) : nullptr;
}

static std::string TypeOf(const std::string& name)
{
	return name.size() > TYPE_LENGTH ? name.substr(name.size() - TYPE_LENGTH) : name;
}

SDL_Surface* CDisplay::DecodeEntry(const ImageEntry& entry)
{
	SDL_Surface* surface = Decode(entry.data, TypeOf(entry.name));
	if (!surface)
		Error("Unable to load image (" + entry.name + "): ", SDL_GetError(), true, true);
	return surface;
}

// The size that a picture's header tells. False for a type or a header that isn't understood.
static bool ReadSize(const ImageEntry& entry, int& width, int& height)
{
	static const unsigned char PNG_START[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
	const Bytes& data                      = entry.data;
	const std::string type                 = TypeOf(entry.name);
	if (type == "png" && data.size() > 24 && std::equal(PNG_START, PNG_START + 8, data.begin())) {
		width  = data[18] << 8 | data[19];
		height = data[22] << 8 | data[23];
	} else if (type == "tga" && data.size() > 18) {
		width  = data[12] | data[13] << 8;
		height = data[14] | data[15] << 8;
	}
	return width > 0 && height > 0;
}

int CDisplay::LoadFileImage(const std::string& path, const char* type)
{
	Bytes data;
	if (!ReadWholeFile(path, data)) {
		SDL_SetError("Couldn't open %s", path.c_str());
		return -1;
	}
	SDL_Surface* surface = Decode(data, type);
	return surface ? AdoptSurface(surface) : -1;
}

int CDisplay::LoadImage(const std::string& name, bool privateCopy)
{
	const auto found = entryByName.find(name);
	if (found == entryByName.end())
		Error("Unable to find preloaded image: ", name, true, true);
	ImageEntry& entry = *found->second;
	const bool isHeld = entry.references > 0 && entry.imageNumber >= 0;
	if (privateCopy) {
		// A picture that nobody shares is decoded straight into the copy: nobody would free it.
		SDL_Surface* copy =
		    isHeld ? ConvertSurface(ImageSurface(entry.imageNumber), false) : DecodeEntry(entry);
		return AdoptSurface(copy);
	}
	if (!isHeld) {
		ImageSlot slot;
		if (ReadSize(entry, slot.width, slot.height)) {
			entry.imageNumber             = TakeSlot();
			slot.waiting                  = &entry;
			imageTable[entry.imageNumber] = slot;
		} else {
			entry.imageNumber = AdoptSurface(DecodeEntry(entry));
		}
		entryByImageNumber[entry.imageNumber] = &entry;
	}
	entry.references++;
	return entry.imageNumber;
}

void CDisplay::ReleaseImage(int number)
{
	ImageSlot& slot = imageTable.at(static_cast<size_t>(number));
	if (slot.IsFree())
		return;
	const auto found = entryByImageNumber.find(number);
	if (found != entryByImageNumber.end()) {
		ImageEntry& entry = *found->second;
		if (entry.imageNumber == number) {
			if (--entry.references > 0)
				return;
			entry.references  = 0;
			entry.imageNumber = -1;
		}
		entryByImageNumber.erase(found);
	}
	if (slot.surface)
		SDL_FreeSurface(slot.surface);
	slot = ImageSlot();
	if (static_cast<size_t>(number) < firstFreeSlot)
		firstFreeSlot = static_cast<size_t>(number);
}

int CDisplay::TakeSlot()
{
	size_t slot = firstFreeSlot;
	while (slot < imageTable.size() && !imageTable[slot].IsFree())
		slot++;
	if (slot == imageTable.size())
		imageTable.push_back(ImageSlot());
	firstFreeSlot = slot + 1;
	return static_cast<int>(slot);
}

int CDisplay::AdoptSurface(SDL_Surface* surface)
{
	const int number   = TakeSlot();
	imageTable[number] = {surface, nullptr, surface->w, surface->h};
	return number;
}

int CDisplay::ImageWidth(int number) const
{
	return imageTable.at(static_cast<size_t>(number)).width;
}

int CDisplay::ImageHeight(int number) const
{
	return imageTable.at(static_cast<size_t>(number)).height;
}

int CDisplay::NewImage(int width, int height)
{
	const SDL_PixelFormat* format = screen->format;
	SDL_Surface* surface =
	    SDL_CreateRGBSurface(SDL_SWSURFACE, width > 0 ? width : 0, height > 0 ? height : 0,
	                         format->BitsPerPixel, format->Rmask, format->Gmask, format->Bmask, 0);
	if (!surface)
		Error("Unable to make image: ", SDL_GetError(), true, true);
	return AdoptSurface(surface);
}

int CDisplay::NewScreenImage()
{
	return NewImage(SCREEN_WIDTH, SCREEN_HEIGHT);
}

int CDisplay::SnapshotScreen()
{
	const int image = NewScreenImage();
	SDL_BlitSurface(screen, nullptr, ImageSurface(image), nullptr);
	return image;
}

// SDL's rectangles hold 16 bits: what cannot touch the target is left out before it could wrap.
static void BlitSurfaces(SDL_Surface* source, const Rect& part, SDL_Surface* target, int x, int y)
{
	if (!source || !target || part.width <= 0 || part.height <= 0)
		return;
	if (x >= target->w || y >= target->h || x + part.width <= 0 || y + part.height <= 0)
		return;
	SDL_Rect from = {static_cast<Sint16>(part.x), static_cast<Sint16>(part.y),
	                 static_cast<Uint16>(part.width), static_cast<Uint16>(part.height)};
	SDL_Rect to   = {static_cast<Sint16>(x), static_cast<Sint16>(y), 0, 0};
	SDL_BlitSurface(source, &from, target, &to);
}

static Rect WholeOf(const SDL_Surface* surface)
{
	return surface ? Rect{0, 0, surface->w, surface->h} : Rect();
}

void CDisplay::BlitImage(int number, int x, int y)
{
	SDL_Surface* source = ImageSurface(number);
	BlitSurfaces(source, WholeOf(source), Target(), x, y);
}

void CDisplay::BlitRegion(int number, int x, int y, int sourceX, int sourceY, int width, int height)
{
	SDL_Surface* source = ImageSurface(number);
	Rect part           = {sourceX, sourceY, width, height};
	const Rect whole    = WholeOf(source);
	if (sourceX < 0 || sourceY < 0 || width < 0 || height < 0 || sourceX + width > whole.width ||
	    sourceY + height > whole.height)
		part = whole;
	BlitSurfaces(source, part, Target(), x, y);
}

void CDisplay::BlitFull(int number)
{
	BlitImage(number, 0, 0);
}

void CDisplay::BlitRects(int number, const Rect& source, const Rect& destination)
{
	BlitSurfaces(ImageSurface(number), source, Target(), destination.x, destination.y);
}

void CDisplay::UpdateRect(int x, int y, int width, int height)
{
	if (x >= SCREEN_WIDTH || y >= SCREEN_HEIGHT)
		return;
	if (x < 0) {
		width += x;
		x = 0;
	}
	if (y < 0) {
		height += y;
		y = 0;
	}
	if (width > SCREEN_WIDTH - x)
		width = SCREEN_WIDTH - x;
	if (height > SCREEN_HEIGHT - y)
		height = SCREEN_HEIGHT - y;
	// SDL takes an empty rectangle for the whole screen.
	if (width > 0 && height > 0)
		SDL_UpdateRect(screen, x, y, static_cast<Uint32>(width), static_cast<Uint32>(height));
}

static int Channel(Uint32 pixel, Uint32 mask, int shift)
{
	return static_cast<int>((pixel & mask) >> shift);
}

// One pixel laid over another, both with an alpha of their own.
static Uint32 Over(Uint32 top, Uint32 bottom, const SDL_PixelFormat* format)
{
	const int topAlpha    = Channel(top, format->Amask, format->Ashift);
	const int bottomAlpha = Channel(bottom, format->Amask, format->Ashift);
	if (topAlpha == OPAQUE || bottomAlpha == 0)
		return top;
	if (topAlpha == 0)
		return bottom;
	const int rest  = bottomAlpha * (OPAQUE - topAlpha) / OPAQUE;
	const int alpha = topAlpha + rest;
	const auto mix  = [&](Uint32 mask, int shift) {
        const int value =
            (Channel(top, mask, shift) * topAlpha + Channel(bottom, mask, shift) * rest) / alpha;
        return static_cast<Uint32>(value) << shift;
	};
	return mix(format->Rmask, format->Rshift) | mix(format->Gmask, format->Gshift) |
	       mix(format->Bmask, format->Bshift) | static_cast<Uint32>(alpha) << format->Ashift;
}

static Uint32* PixelAt(const SDL_Surface* surface, int x, int y)
{
	unsigned char* row = static_cast<unsigned char*>(surface->pixels) + y * surface->pitch;
	return reinterpret_cast<Uint32*>(row) + x;
}

// SDL's own blit between two surfaces with alpha keeps the alpha of the lower one, so that nothing
// drawn on a transparent image would ever show.
static void LayOver(SDL_Surface* source, Rect part, SDL_Surface* target, int x, int y)
{
	const int left = x < 0 ? -x : 0, top = y < 0 ? -y : 0;
	const int right  = x + part.width > target->w ? target->w - x : part.width;
	const int bottom = y + part.height > target->h ? target->h - y : part.height;
	SDL_LockSurface(source);
	SDL_LockSurface(target);
	for (int row = top; row < bottom; row++)
		for (int column = left; column < right; column++) {
			Uint32* below = PixelAt(target, x + column, y + row);
			*below = Over(*PixelAt(source, part.x + column, part.y + row), *below, target->format);
		}
	SDL_UnlockSurface(target);
	SDL_UnlockSurface(source);
}

// Both carry alpha in the same 32-bit layout, as all images of the store with alpha do.
static bool BothCarryAlpha(const SDL_Surface* a, const SDL_Surface* b)
{
	return a->format->Amask && a->format->Amask == b->format->Amask &&
	       a->format->Rmask == b->format->Rmask && a->format->BytesPerPixel == 4 &&
	       b->format->BytesPerPixel == 4;
}

void CDisplay::Blit(int source, int destination, int x, int y, int sourceX, int sourceY, int width,
                    int height)
{
	SDL_Surface* from = ImageSurface(source);
	SDL_Surface* to   = ImageSurface(destination);
	if (!from || !to)
		return;
	Rect part = {sourceX, sourceY, width < from->w ? width : from->w,
	             height < from->h ? height : from->h};
	if (!BothCarryAlpha(from, to)) {
		BlitSurfaces(from, part, to, x, y);
		return;
	}
	// SDL would clip the part to its image and shift the rest; so does this.
	if (part.x < 0) {
		part.width += part.x;
		x -= part.x;
		part.x = 0;
	}
	if (part.y < 0) {
		part.height += part.y;
		y -= part.y;
		part.y = 0;
	}
	part.width  = part.width < from->w - part.x ? part.width : from->w - part.x;
	part.height = part.height < from->h - part.y ? part.height : from->h - part.y;
	LayOver(from, part, to, x, y);
}

void CDisplay::BlitWhole(int source, int destination, int x, int y)
{
	Blit(source, destination, x, y, 0, 0, ImageWidth(source), ImageHeight(source));
}

int CDisplay::DrawFile(const std::string& name, int destination, int x, int y, bool update)
{
	const int image = LoadImage(name);
	const int width = ImageWidth(image);
	BlitWhole(image, destination, x, y);
	if (update)
		UpdateRect(x, y, width, ImageHeight(image));
	ReleaseImage(image);
	return x + width;
}

int CDisplay::DrawFilePart(const std::string& name, int destination, int x, int y, int sourceX,
                           int sourceY, int width, int height)
{
	const int image     = LoadImage(name);
	const int fullWidth = ImageWidth(image);
	Blit(image, destination, x, y, sourceX, sourceY, width, height);
	ReleaseImage(image);
	return x + fullWidth;
}

// Without run-length encoding, which would encode the picture anew at every step of a fade. A fully
// opaque picture goes back to the plain copy, which is ten times as fast as a blend.
void CDisplay::SetImageAlpha(int number, int alpha)
{
	SDL_Surface* surface = ImageSurface(number);
	if (!surface)
		return;
	const int held     = alpha < 0 ? 0 : alpha > OPAQUE ? OPAQUE : alpha;
	const bool plain   = held == OPAQUE && !surface->format->Amask;
	const Uint32 flags = plain ? 0 : SDL_SRCALPHA;
	SDL_SetAlpha(surface, flags, static_cast<Uint8>(held));
}

void CDisplay::FillImage(int number, const Rect& area, int red, int green, int blue)
{
	SDL_Surface* surface = ImageSurface(number);
	if (!surface || area.width <= 0 || area.height <= 0)
		return;
	SDL_Rect rect = {static_cast<Sint16>(area.x), static_cast<Sint16>(area.y),
	                 static_cast<Uint16>(area.width), static_cast<Uint16>(area.height)};
	SDL_FillRect(surface, &rect,
	             SDL_MapRGB(surface->format, static_cast<Uint8>(red), static_cast<Uint8>(green),
	                        static_cast<Uint8>(blue)));
}
