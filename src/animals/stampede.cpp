// An animal of a herd that runs across the field.
#include "animals/stampede.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "frame/debug.h"
#include "frame/random.h"
#include "media/sprite.h"

#include <string>

static const int FEET_IN_PICTURE = 5;   // pixels that the feet stand above the lower edge
static const int FIELD_LEFT      = 0;   // who is wholly left of it has run off
static const int FIELD_RIGHT     = 694; // the same on the right

namespace
{
// How a species runs, in the pictures of its own page.
struct HerdKind {
	int species;
	const SpeciesTable* table;
	PictureRow standing; // the outline is drawn on it
	PictureRow running;
	bool leftOnly; // one picture for both directions
};
} // namespace

// clang-format off
static const HerdKind s_kinds[] = {
	{ SPECIES_MONKEY,  &MONKEY_TABLE,  { "_sit",  "." }, { "_run", "0-7",  2, true }, true },
	{ SPECIES_SHEEP,   &SHEEP_TABLE,   { "stand", "." }, { "walk", "0-7",  2, true }, false },
	{ SPECIES_TURTLE,  &TURTLE_TABLE,  { "stand", "." }, { "walk", "0-12", 2, true }, false },
	{ SPECIES_FROG,    &FROG_TABLE,    { "stand", "." }, { "hop",  "0-7",  2, true }, false },
	{ SPECIES_OSTRICH, &OSTRICH_TABLE, { "stand", "." }, { "run",  "0-9",  2, true }, false },
	{ SPECIES_CAT,     &CAT_TABLE,     { "stand", "." }, { "run",  "0-5",  2, true }, false },
};
// clang-format on

std::vector<CElementStampede*> CElementStampede::StampedeList;
int CElementStampede::stampedeSpecies = 0;

static const HerdKind& KindOf(int species)
{
	for (const HerdKind& kind : s_kinds) {
		if (kind.species == species)
			return kind;
	}
	Error("No stampede of species:", std::to_string(species), true, true);
	return s_kinds[0];
}

CElementStampede::CElementStampede(int newSpecies, int centreX, int centreY, float speed)
    : herdSpecies(newSpecies)
{
	const HerdKind& kind = KindOf(newSpecies);
	bool left            = kind.leftOnly || speed < 0;
	species = stampedeSpecies = newSpecies;
	bodyRadius                = 20;
	weight                    = 4;
	requiredStage             = 9;
	speedX                    = speed;
	StampedeList.push_back(this);

	table      = kind.table;
	facingLeft = lastFacingLeft = left;
	LoadPicture(kind.standing, left);
	runSprite = LoadPicture(kind.running, left);
	StartSprite(runSprite);
	runSprite->SetFrame(Rand() % runSprite->FrameCount()); // the herd is not in step
	LayOutline();
	x = static_cast<float>(centreX - runSprite->Width() / 2);
	y = static_cast<float>(centreY - runSprite->Height() / 2);
	SyncBody();
	Place();
}

CElementStampede::~CElementStampede()
{
	StampedeList.clear(); // a herd ends as a whole, with its level
}

// The species' own outline, from where it lies in the standing picture to the running one.
void CElementStampede::LayOutline()
{
	RebuildBody();
	Shift shift = ShiftOf(runSprite);
	for (size_t i = 0; i < bodyPoints.size(); i++) {
		bodyOffsetX[i] -= static_cast<float>(shift.dx);
		bodyOffsetY[i] -= static_cast<float>(shift.dy);
	}
	collisionSprite = runSprite;
}

void CElementStampede::Place()
{
	int left = static_cast<int>(x), top = static_cast<int>(y);
	runSprite->SetPos(left, top, top - FEET_IN_PICTURE + runSprite->Height());
}

void CElementStampede::Update()
{
	if (dead)
		return;
	x += speedX;
	SyncBody();
	Place();
}

bool CElementStampede::OnBallHit()
{
	if (!CanCapture())
		return false;
	ReportCapture(herdSpecies);
	LeaveField();
	return true;
}

bool CElementStampede::HasRunOff() const
{
	float width = static_cast<float>(runSprite->Width());
	return (speedX < 0 && x + width < FIELD_LEFT) || (speedX > 0 && x >= FIELD_RIGHT);
}

bool CElementStampede::StampedeFinished()
{
	for (const CElementStampede* animal : StampedeList) {
		if (!animal->dead && !animal->HasRunOff())
			return false;
	}
	return true;
}
