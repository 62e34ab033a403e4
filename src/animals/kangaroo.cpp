// Kangaroo: hops about with a joey in its pouch.
#include "animals/kangaroo.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "animals/plain_species.h"
#include "media/sprite.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind              frames  weight role       then options
	{ "stand",      ACTION_IDLE,      ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK,     ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,      "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,      "0-6",      0, ROLE_BUMP, "" },
	{ "hopup",      ACTION_WALK_BOTH, "0-7",      2, ROLE_NONE, "",
	  { .time = UNTIL_END, .repeats = Between(2, 5), .sounds = {"kangaroo_bounce.ogg"}, .soundDelay = 4 } },
};

static const BodyPoint s_body[] = {
	{ 5, 47 }, { 11, 53 }, { 20, 55 }, { 30, 55 }, { 39, 55 },
	{ 48, 53 }, { 54, 47 }, { 48, 42 }, { 39, 40 }, { 29, 40 },
	{ 20, 40 }, { 11, 42 },
};
// clang-format on

const SpeciesTable KANGAROO_TABLE = {"kangaroo", s_actions, {}, s_body, {}, {}};

static const float JOEY_ROOM = 50;                                    // pixels before its mother
static const float JOEY_LEFT = 100, JOEY_RIGHT = 593;                 // where she may stand
static const int JOEY_DELAY  = 2;                                     // frames
static const int EMERGE_LEFT = -10, EMERGE_RIGHT = 30, EMERGE_Y = 11; // pixels from her
static const int EMERGE_LAST = 6;
static const int BIRTH_DROP  = 5; // pixels

CKangaroo::CKangaroo(int centreX, int centreY, bool left)
{
	species       = SPECIES_KANGAROO;
	bodyRadius    = 27;
	weight        = 6;
	requiredStage = 12;
	speedX        = 3;
	speedY        = 1.5f;
	mayTurn       = true;

	for (bool side : {true, false}) {
		emerging[side] = OwnSprite(new CSprite(0, 2));
		emerging[side]->AddSequence(side ? "kangajoeyemergeleft" : "kangajoeyemergeright", 0,
		                            EMERGE_LAST, ".png");
		emerging[side]->SetStopAtEnd();
		emerging[side]->Hide();
	}
	BuildActions(KANGAROO_TABLE);
	PlaceAt(centreX, centreY, left);
}

bool CKangaroo::OnBallHit()
{
	if (TryCapture())
		return true;
	ReleaseJoey();
	return false;
}

void CKangaroo::ReleaseJoey()
{
	if (!hasJoey)
		return;
	float spot = CentreX() + (facingLeft ? -JOEY_ROOM : JOEY_ROOM);
	if (!MayMoveTo(spot, CentreY(), false) || CentreX() >= JOEY_RIGHT || CentreX() <= JOEY_LEFT)
		return;
	hasJoey       = false;
	joeyTimer     = JOEY_DELAY;
	CSprite* joey = emerging[facingLeft];
	joey->SetPos(static_cast<int>(x) + (facingLeft ? EMERGE_LEFT : EMERGE_RIGHT),
	             static_cast<int>(y) + EMERGE_Y,
	             static_cast<int>(y) + currentSprite->Height() * 4 / 5);
}

bool CKangaroo::ShowJoey()
{
	if (joeyTimer == 0) {
		emerging[facingLeft]->Rewind();
		emerging[facingLeft]->Forward();
		emerging[facingLeft]->Show();
	}
	if (joeyTimer >= 0)
		joeyTimer--;
	for (bool left : {true, false}) {
		CSprite* joey = emerging[left];
		if (joey->IsHidden())
			continue;
		joey->SetPos(joey->X() + (left ? -1 : 1), joey->Y());
		if (!joey->IsAtLastFrameEnd())
			continue;
		new CKangarooJoey(joey->X() + joey->Width() / 2,
		                  joey->Y() + BIRTH_DROP + joey->Height() / 2, left);
		return true;
	}
	return false;
}

void CKangaroo::Update()
{
	bool born = ShowJoey();
	CElementAnimal::Update();
	if (born) {
		for (CSprite* joey : emerging)
			joey->Hide();
	}
}
