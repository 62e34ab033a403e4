// What lives in the picture of the main menu.
#include "screens/menu_animals.h"

#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"

static const int CHANCE     = 175; // one in so many frames
static const int FISH_DEPTH = 100700;
static const int FISH_DELAY = 2; // frames a picture

namespace
{
struct Idler {
	const char* prefix;
	int frames; // pictures
	int delay;  // frames a picture
	int x, y;   // pixels
	int depth;
	int instead; // the one that hides while this one runs, -1 for none
};

struct FishLook {
	const char* prefix;
	int frames; // pictures
	int y;      // pixels
};
} // namespace

static const int PROFESSOR = 0; // place in the table

// clang-format off
static const Idler s_idlers[CMenuAnimals::IDLERS] = {
	{ "mainmenuprofA",     12, 3, 358, 336, 100400, -1 },
	{ "mainmenuprofB",     16, 3, 358, 336, 100400, PROFESSOR },
	{ "mainmenudeerhead",  10, 3, 272, 336, 100310, -1 },
	{ "mainmenudeertail",   6, 2, 236, 362, 100310, -1 },
	{ "mainmenucowhead",   10, 3, 178, 382, 100330, -1 },
	{ "mainmenucowtail",    8, 2, 128, 396, 100330, -1 },
	{ "mainmenusheep",     12, 3,  52, 414, 100340, -1 },
	{ "mainmenumouse",      8, 2, 210, 446, 100350, -1 },
	{ "mainmenumonkey",    12, 3, 498, 430, 100420, -1 },
	{ "mainmenusquirrel",  10, 2, 108, 268, 100440, -1 },
	{ "mainmenubluebird",  10, 2, 446,  64, 100440, -1 },
	{ "mainmenuduck",       8, 3, 236, 494, 100550, -1 },
	{ "mainmenuducklingA",  8, 2, 204, 504, 100550, -1 },
	{ "mainmenuducklingB",  8, 2, 178, 506, 100550, -1 },
	{ "mainmenuducklingC",  8, 2, 152, 504, 100550, -1 },
};

static const FishLook s_fish[CMenuAnimals::FISH] = {
	{ "mainmenufishleft",  14, 508 },
	{ "mainmenufishright", 14, 516 },
};
// clang-format on

// Stopped at its first picture.
static CSprite* NewRun(const char* prefix, int frames, int depth, int delay)
{
	CSprite* sprite = new CSprite(depth, delay);
	sprite->AddSequence(prefix, 0, frames - 1, ".png");
	sprite->SetStopAtEnd();
	sprite->Stop();
	return sprite;
}

static void Start(CSprite* run)
{
	run->Rewind();
	run->Forward();
	run->Show();
}

static bool HasEnded(const CSprite* run)
{
	return run->IsStopped() && run->FramesFromEnd() == 0;
}

CMenuAnimals::CMenuAnimals()
{
	for (int i = 0; i < IDLERS; i++) {
		const Idler& look = s_idlers[i];
		idlers[i]         = NewRun(look.prefix, look.frames, look.depth, look.delay);
		idlers[i]->SetPos(look.x, look.y);
		idlers[i]->hidden = look.instead >= 0;
	}
	for (int i = 0; i < FISH; i++) {
		fish[i] = NewRun(s_fish[i].prefix, s_fish[i].frames, FISH_DEPTH, FISH_DELAY);
		fish[i]->SetPos(0, s_fish[i].y);
		fish[i]->Hide();
	}
}

CMenuAnimals::~CMenuAnimals()
{
	for (CSprite* sprite : idlers)
		delete sprite;
	for (CSprite* sprite : fish)
		delete sprite;
}

void CMenuAnimals::Step()
{
	for (CSprite* sprite : fish)
		StepFish(sprite);
	for (int i = 0; i < IDLERS; i++)
		StepIdler(i);
}

void CMenuAnimals::StepFish(CSprite* sprite)
{
	if (HasEnded(sprite))
		sprite->Hide();
	if (Rand() % CHANCE != 0 || !sprite->IsHidden())
		return;
	sprite->x = RandomWhole(0, static_cast<float>(SCREEN_WIDTH - sprite->Width()));
	Start(sprite);
}

void CMenuAnimals::StepIdler(int i)
{
	CSprite* sprite = idlers[i];
	if (HasEnded(sprite)) {
		sprite->Rewind();
		SwapFor(i, false);
	}
	if (Rand() % CHANCE != 0 || !MayStart(i))
		return;
	Start(sprite);
	SwapFor(i, true);
}

// Two runs of one figure never overlap: the other must be at rest, and in sight or not as it is
// when both rest.
bool CMenuAnimals::MayStart(int i) const
{
	const int other    = s_idlers[i].instead;
	const bool resting = idlers[i]->IsStopped();
	if (other >= 0)
		return resting && idlers[other]->IsStopped();
	return resting && !idlers[i]->IsHidden();
}

void CMenuAnimals::SwapFor(int i, bool runs)
{
	const int other = s_idlers[i].instead;
	if (other < 0)
		return;
	idlers[i]->hidden     = !runs;
	idlers[other]->hidden = runs;
}
