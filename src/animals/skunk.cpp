// Skunk: sprays when it is touched, and runs.
#include "animals/skunk.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name    kind         frames  weight role       then
	{ "stand", ACTION_IDLE, ".",        0, ROLE_NONE, "" },
	{ "look",  ACTION_LOOK, "0-4",      1, ROLE_NONE, "" },
	{ "run",   ACTION_WALK, "0-11",     2, ROLE_NONE, "" },
	{ "spray", ACTION_BUMP, "0-7",      0, ROLE_BUMP, "run" },
};

static const BodyPoint s_body[] = {
	{ 3, 25 }, { 10, 29 }, { 18, 30 }, { 27, 30 }, { 36, 28 },
	{ 36, 21 }, { 27, 19 }, { 18, 19 }, { 10, 20 },
};
// clang-format on

const SpeciesTable SKUNK_TABLE = {"skunk", s_actions, {}, s_body, {}, {}};

static const int SPRAY_DELAY = 57;                                  // frames from the touch
static const int CLOUD_LEFT = 19, CLOUD_RIGHT = -26, CLOUD_Y = -42; // pixels from the skunk
static const int CLOUD_LAST = 24;

CSkunk::CSkunk(int centreX, int centreY, bool left)
{
	species       = SPECIES_SKUNK;
	bodyRadius    = 21;
	weight        = 4;
	requiredStage = 8;
	speedX        = 2;
	mayTurn       = true;

	spray         = OwnSound(new CSound("skunk_spray.ogg"));
	clouds[true]  = OwnSprite(new CSprite(0, 2));
	clouds[false] = OwnSprite(new CSprite(0, 2));
	clouds[true]->AddSequence("skunkspraycloudleft", 0, CLOUD_LAST, ".png");
	clouds[false]->AddSequence("skunkspraycloud", 0, CLOUD_LAST, ".png");
	for (CSprite* side : clouds) {
		side->SetStopAtEnd();
		side->Hide();
	}
	cloud = clouds[left];
	BuildActions(SKUNK_TABLE);
	PlaceAt(centreX, centreY, left);
}

bool CSkunk::OnBallHit()
{
	forcedDirection = facingLeft ? 1 : 2;
	bool caught     = TryCapture();
	NoteUpset();
	if (!caught)
		OnBump();
	return caught;
}

int CSkunk::OnBump()
{
	currentAction = bumpAction;
	if (lastAction != bumpAction)
		ArmSpray();
	return species;
}

void CSkunk::ArmSpray()
{
	sprayTimer = SPRAY_DELAY;
	cloud      = clouds[facingLeft];
	cloud->Hide();
	cloud->SetPos(static_cast<int>(x) + (facingLeft ? CLOUD_LEFT : CLOUD_RIGHT),
	              static_cast<int>(y) + CLOUD_Y, static_cast<int>(y) + currentSprite->Height() / 2);
	lastAction = bumpAction; // a second touch before the next update sets no second one
	if (g_levelGameData) {
		g_levelGameData->SkillPenalty();
		g_levelGameData->NoteSprayed();
	}
}

void CSkunk::RunSpray()
{
	if (sprayTimer == 0) {
		spray->Play();
		cloud->Rewind();
		cloud->Forward();
		cloud->Show();
	}
	if (sprayTimer >= 0)
		sprayTimer--;
}

void CSkunk::Update()
{
	if (!cloud->IsHidden() && cloud->IsAtLastFrameEnd())
		cloud->Hide(); // that of one caught since then too
	if (dead)
		return;
	RunSpray();
	CElementAnimal::Update();
	lastAction = currentAction;
}
