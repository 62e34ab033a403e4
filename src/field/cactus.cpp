// Cacti: solid, and they shiver when hit.
#include "field/cactus.h"

#include "field/outline.h"
#include "frame/random.h"
#include "media/sprite.h"

#include <algorithm>
#include <string>

static const int KIND_BIG = 3, KIND_SMALL = 2, KIND_ROUND_BIG = 1;
static const int FOOT    = 12; // pixels from a tall cactus' lower edge up to the place given
static const int CORNERS = 4;

static const int BIG_VARIANTS = 5, SMALL_VARIANTS = 3, ROUND_VARIANTS = 11;

// One shiver: to one side and back, to the other, and once to the front.
static const int SHIVER[] = {0, 1, 2, 1, 0, 3, 4, 3, 0, 5, 6, 5};

// clang-format off
static const OutlinePoint BIG_FEET[BIG_VARIANTS][CORNERS] = {
	{{19, 60}, {25, 61}, {31, 60}, {25, 59}},
	{{19, 60}, {25, 61}, {31, 60}, {25, 59}},
	{{18, 60}, {25, 61}, {32, 60}, {25, 59}},
	{{19, 60}, {25, 61}, {31, 60}, {25, 59}},
	{{18, 60}, {25, 61}, {32, 60}, {25, 59}},
};
static const OutlinePoint SMALL_FEET[SMALL_VARIANTS][CORNERS] = {
	{{15, 42}, {19, 41}, {24, 42}, {20, 43}},
	{{14, 42}, {19, 41}, {25, 42}, {20, 43}},
	{{14, 42}, {19, 41}, {25, 42}, {20, 43}},
};
static const OutlinePoint ROUND_BIG_FOOT[CORNERS]   = {{3, 22}, {12, 23}, {21, 22}, {12, 21}};
static const OutlinePoint ROUND_SMALL_FOOT[CORNERS] = {{1, 13}, {9, 12}, {17, 13}, {9, 11}};
// clang-format on

static int VariantOf(int wanted, int variants)
{
	return wanted < 0 ? Rand() % variants : std::min(wanted, variants - 1);
}

static std::string Lettered(const char* stem, int variant)
{
	return std::string(stem) + static_cast<char>('A' + variant);
}

static void AddShiver(CSprite* sprite, const std::string& stem)
{
	for (int number : SHIVER)
		sprite->AddFile(stem + std::to_string(number) + ".png");
}

CCactus::CCactus(int newX, int newY, int newKind, int newVariant) : sprite(new CSprite(newY, 1))
{
	const OutlinePoint* foot;
	if (newKind == KIND_BIG || newKind == KIND_SMALL) {
		bool big    = newKind == KIND_BIG;
		int variant = VariantOf(newVariant, big ? BIG_VARIANTS : SMALL_VARIANTS);
		AddShiver(sprite, Lettered(big ? "cactusbig" : "cactussmall", variant));
		x    = newX - sprite->Width() / 2;
		y    = newY - (sprite->Height() - FOOT);
		foot = big ? BIG_FEET[variant] : SMALL_FEET[variant];
	} else {
		bool big    = newKind == KIND_ROUND_BIG;
		int variant = VariantOf(newVariant, ROUND_VARIANTS);
		sprite->AddFile(Lettered(big ? "cactusroundbig" : "cactusroundsmall", variant) + ".png");
		x    = newX - (big ? 12 : 11);
		y    = newY - (big ? 22 : 13);
		foot = big ? ROUND_BIG_FOOT : ROUND_SMALL_FOOT;
	}
	sprite->SetStopAtEnd();
	sprite->Stop();
	sprite->SetPos(static_cast<int>(x), static_cast<int>(y));
	currentSprite = collisionSprite = sprite;
	LayOutline(this, x, y, foot, CORNERS);
}

CCactus::~CCactus()
{
	delete sprite;
}

// After a shiver it stands upright again.
void CCactus::Update()
{
	if (sprite->IsStopped() && sprite->Frame() != 0)
		sprite->Rewind();
}

bool CCactus::OnBallHit()
{
	sprite->Rewind();
	sprite->Forward();
	return false;
}
