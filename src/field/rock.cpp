// Rocks: solid, and nothing else.
#include "field/rock.h"

#include "field/outline.h"
#include "frame/random.h"
#include "media/sprite.h"

#include <algorithm>
#include <cstdlib>
#include <string>

static const int FOOT         = 15; // pixels from the picture's lower edge up to the place given
static const int BAND_CORNERS = 7;

namespace
{
struct RockKind {
	const char* word;
	int variants;
	const OutlinePoint (*bands)[BAND_CORNERS]; // one a variant
};
} // namespace

// clang-format off
// A band along the lower part of each picture: the front from left to right, then the back.
static const OutlinePoint BIG_BANDS[][BAND_CORNERS] = {
	{{0, 42}, {41, 46}, {58, 40}, {99, 40}, {94, 30}, {50, 28}, {4, 30}},
	{{3, 41}, {40, 45}, {62, 45}, {101, 41}, {97, 30}, {53, 28}, {7, 30}},
	{{3, 42}, {41, 46}, {62, 44}, {101, 41}, {97, 31}, {52, 28}, {6, 30}},
	{{3, 41}, {42, 45}, {63, 46}, {101, 42}, {98, 30}, {53, 28}, {7, 31}},
};
static const OutlinePoint MEDIUM_BANDS[][BAND_CORNERS] = {
	{{4, 27}, {22, 30}, {37, 30}, {58, 27}, {56, 19}, {31, 17}, {5, 19}},
	{{4, 27}, {24, 30}, {39, 30}, {58, 27}, {56, 19}, {31, 17}, {5, 19}},
	{{4, 27}, {22, 30}, {38, 29}, {58, 26}, {56, 18}, {31, 17}, {5, 19}},
	{{4, 26}, {23, 29}, {39, 30}, {58, 27}, {56, 19}, {32, 17}, {5, 18}},
	{{4, 27}, {22, 30}, {37, 30}, {58, 27}, {56, 19}, {30, 17}, {5, 19}},
	{{4, 27}, {24, 30}, {39, 30}, {58, 27}, {56, 19}, {32, 17}, {6, 19}},
};
static const OutlinePoint SMALL_BANDS[][BAND_CORNERS] = {
	{{3, 17}, {14, 20}, {24, 20}, {35, 17}, {34, 11}, {19, 10}, {4, 11}},
	{{3, 17}, {15, 20}, {25, 20}, {35, 17}, {34, 11}, {19, 10}, {4, 11}},
	{{3, 17}, {14, 20}, {24, 19}, {35, 16}, {34, 11}, {19, 10}, {4, 11}},
	{{3, 16}, {15, 19}, {25, 20}, {35, 17}, {34, 11}, {19, 10}, {4, 11}},
};
static const RockKind KINDS[] = {
	{"big", 4, BIG_BANDS}, {"medium", 6, MEDIUM_BANDS}, {"small", 4, SMALL_BANDS},
};
// clang-format on

std::vector<CRock*> CRock::RockList;

CRock::CRock(int newX, int newY, int newKind, int newVariant, bool sand)
{
	const RockKind& kind = KINDS[newKind == 0 || newKind == 1 ? newKind : 2];
	int variant = newVariant < 0 ? Rand() % kind.variants : std::min(newVariant, kind.variants - 1);

	sprite = new CSprite(newY);
	sprite->AddFile(std::string(sand ? "sandrock" : "rock") + kind.word +
	                static_cast<char>('A' + variant) + ".png");
	x = newX - sprite->Width() / 2;
	y = newY - (sprite->Height() - FOOT);
	sprite->SetPos(static_cast<int>(x), static_cast<int>(y));
	currentSprite = collisionSprite = sprite;
	LayOutline(this, x, y, kind.bands[variant], BAND_CORNERS);
	RockList.push_back(this);
}

CRock::~CRock()
{
	delete sprite;
	RockList.clear();
}

bool CRock::AnyAt(int atX, int atY, int r)
{
	for (const CRock* rock : RockList) {
		const CSprite* picture = rock->sprite;
		int centreX            = picture->X() + picture->Width() / 2;
		int centreY            = picture->Y() + picture->Height() / 2;
		if (std::abs(centreX - atX) <= picture->Width() / 3 && std::abs(centreY - atY) <= r)
			return true;
	}
	return false;
}
