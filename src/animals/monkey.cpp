// Monkey: sits, looks about, runs, climbs trees and throws tantrums.
#include "animals/monkey.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/tree.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

static const float CLIMB_SPEED    = 2.5f; // pixels per frame
static const int CLIMB_FROM_FRAME = 4;    // the picture from which a climb rises
static const float STEP_TO_TRUNK  = 4;    // pixels toward the trunk as a climb begins
static const int CROWN_LIFT       = 10;   // pixels of z above what the tree says
static const float GRAVITY        = 0.5f; // pixels per frame per frame
static const float LET_GO_SPEED   = -4;   // a fall faster than this has left the crown

// clang-format off
static const PictureRow s_pictures[CMonkey::PICTURES] = {
	// name          frames                  ticks  loops  from  right
	{ "_sit",        ".*54 blink*2",             1, true,     0, ".*50 blink*2" }, // SITTING
	{ "_throwfit",   "14 1-13",                  2, true },                        // THROWING_FIT
	{ "_run",        "0-7",                      2, true },                        // RUNNING
	{ "_lookleft",   "0-3",                      2, false },                       // LOOKING_FROM_LEFT
	{ "_lookright",  "0-3",                      2, false },                       // LOOKING_FROM_RIGHT
	{ "_fall",       "0-9",                      2, false },                       // FALLING
	{ "_fall",       "10-15",                    2, false },                       // HITTING_GROUND
	{ "_climb",      "0-2 =_climbcommon0-7",     2, true,     3 },                 // CLIMBING
	{ "_popup",      "0-5",                      2, false },                       // POPPING_UP
};

static const BodyPoint s_body[] = { // for both facings
	{ 11, 13 }, { 19, 15 }, { 17, 24 }, { 12, 26 }, { 5, 24 }, { 3, 15 },
};

static const PicturePlace s_places[] = {
	// word         left        right
	{ "_sit",         0,   0,     0,   0 },
	{ "_throwfit",   -5, -17,    -5, -17 },
	{ "_run",       -11,  -2,    -4,  -2 },
	{ "_lookleft",    0,   0,     0,   0 },
	{ "_lookright",   0,   0,     0,   0 },
	{ "_fall",       -6,  -8,    -9,  -8 },
	{ "_climb",      -5, -14,   -11, -14 },
	{ "_popup",      -1,  -9,    -3,  -9 },
};
// clang-format on

const SpeciesTable MONKEY_TABLE = {"monkey", {}, s_pictures, s_body, s_body, s_places};

CMonkey::CMonkey(int centreX, int centreY, bool left)
{
	Build();
	facingLeft = left;
	Enter(SIT, SITTING);
	PlaceAt(centreX, centreY, left);
}

CMonkey::CMonkey(CTree* tree, bool left)
{
	Build();
	facingLeft = left;
	Enter(SIT, SITTING);
	PlaceInCrown(tree, left);
}

void CMonkey::Build()
{
	species       = SPECIES_MONKEY;
	bodyRadius    = 20;
	weight        = 4;
	requiredStage = 9;
	speedX        = 2.5f;
	thudFromEnd   = 4;
	toleranceX    = 2;
	toleranceY    = 15;

	screeches[0] = OwnSound(new CSound("monkey_screech1.ogg"));
	screeches[1] = OwnSound(new CSound("monkey_screech2.ogg"));

	LoadPictures(MONKEY_TABLE, sprites);
	for (CSprite* sprite : sprites[CLIMBING])
		sprite->behindFoliage = true; // before the trunk, behind the leaves
}

void CMonkey::Enter(State newState, Pictures pictures)
{
	Enter(newState, sprites[pictures][facingLeft]);
}

void CMonkey::Enter(State newState, CSprite* sprite)
{
	state       = newState;
	lookingBack = false;
	wait.Restart();
	StartSprite(sprite);
}

void CMonkey::Update()
{
	if (dead)
		return;
	if (bodyPlaced == OffTheGround())
		RebuildBody();
	PullTowardBall();
	LookForTree();
	switch (state) {
	case SIT:
		SitFrame();
		break;
	case TANTRUM:
		TantrumFrame();
		break;
	case RUN:
		RunFrame();
		break;
	case LOOK:
		LookFrame();
		break;
	case FALL:
		FallFrame();
		break;
	case LANDING:
		LandFrame();
		break;
	case CLIMB:
		ClimbFrame();
		break;
	case POP_UP:
		if (currentSprite->IsAtLastFrameEnd())
			Enter(SIT, SITTING);
		break;
	}
	Place();
	PlayThud(state == LANDING);
}

void CMonkey::LookForTree()
{
	if (currentTree || z != 0 || moving)
		return;
	int middleX = currentSprite->X() + currentSprite->Width() / 2;
	CTree* tree = CTree::FreeTreeAt(static_cast<float>(middleX),
	                                y + static_cast<float>(collisionSprite->Height()), toleranceX,
	                                toleranceY);
	if (!tree)
		return;
	Enter(CLIMB, CLIMBING);
	x += facingLeft ? -STEP_TO_TRUNK : STEP_TO_TRUNK;
	TakeTree(tree);
}

// Up in a tree it only looks about.
void CMonkey::SitFrame()
{
	if (!wait.Over(60, 200))
		return;
	int choice = Rand() % 4 + (currentTree ? 2 : 0);
	if (choice < 2)
		TryToRun(choice == 0);
	else
		Enter(LOOK, LookSprite(!Coin()));
}

// Without room it stays, and chooses again in the next frame.
void CMonkey::TryToRun(bool left)
{
	if (!MayMoveTo(CentreX() + (left ? -speedX : speedX), CentreY(), false))
		return;
	facingLeft = left;
	Enter(RUN, RUNNING);
}

void CMonkey::TantrumFrame()
{
	if (wait.Over(60, 90) && currentSprite->IsAtLastFrameEnd())
		Enter(SIT, SITTING);
}

// It ends only with the last picture, so that the legs come to rest.
void CMonkey::RunFrame()
{
	bool spent = wait.Over(40, 70);
	float step = facingLeft ? -speedX : speedX;
	if (MayMoveTo(CentreX() + step, CentreY(), false))
		x += step;
	else
		wait.EndNow();
	SyncBody();
	if (spent && currentSprite->IsAtLastFrameEnd()) {
		moving = false;
		Enter(SIT, SITTING);
	}
}

CSprite* CMonkey::LookSprite(bool leftward) const
{
	return sprites[facingLeft ? LOOKING_FROM_LEFT : LOOKING_FROM_RIGHT][leftward];
}

void CMonkey::LookFrame()
{
	bool spent = wait.Over(20, 150);
	if (!lookingBack) {
		if (spent && currentSprite->IsAtLastFrameEnd()) {
			lookingBack = true;
			currentSprite->Backward();
		}
	} else if (currentSprite->IsAtFirstFrameEnd()) {
		if (Rand() % 3 == 0)
			Enter(LOOK, LookSprite(currentSprite != LookSprite(true)));
		else
			Enter(SIT, SITTING);
	}
}

void CMonkey::FallFrame()
{
	moving = true;
	if (z > 0) {
		z += vz;
		vz -= GRAVITY;
		if (z < 0)
			z = 0;
		if (vz < LET_GO_SPEED && currentTree) {
			currentSprite->behindFoliage = true;
			OnLanded();
		}
		return;
	}
	z = vz = 0;
	OnLanded();
	currentSprite->behindFoliage = false;
	Enter(LANDING, HITTING_GROUND);
}

void CMonkey::LandFrame()
{
	if (!currentSprite->IsAtLastFrameEnd())
		return;
	Enter(TANTRUM, THROWING_FIT);
	Screech();
}

void CMonkey::ClimbFrame()
{
	if (currentSprite->Frame() >= CLIMB_FROM_FRAME)
		z += CLIMB_SPEED;
	float middle = y - z + static_cast<float>(currentSprite->Height() / 2);
	if (middle < static_cast<float>(currentTree->TrunkTopY()))
		TakeSeatInCrown();
}

void CMonkey::TakeSeatInCrown()
{
	Enter(POP_UP, POPPING_UP);
	x = static_cast<float>(currentTree->CrownX() - collisionSprite->Width() / 2);
	y = static_cast<float>(currentTree->TrunkBaseY() - collisionSprite->Height() + crownDrop);
	z = static_cast<float>(currentTree->CrownZ() + CROWN_LIFT);
	climbDepth = currentTree->CrownDepth();
	ClearBody();
	inTree = true;
}

void CMonkey::ShakeOut()
{
	if (dead || state == FALL || state == LANDING)
		return;
	bool climbing = state == CLIMB;
	Enter(FALL, FALLING);
	currentSprite->behindFoliage = climbing;
	if (climbing)
		currentSprite->GoToLast();
}

void CMonkey::Screech()
{
	screeches[Coin()]->Play();
}

// In the air and on the way up the bump waits for nobody: a climb or fall goes on.
int CMonkey::OnBump()
{
	if (state != TANTRUM && state != FALL && state != CLIMB && state != POP_UP) {
		Enter(TANTRUM, THROWING_FIT);
		Place();
		Screech();
	}
	return species;
}

bool CMonkey::OnBallHit()
{
	return state != FALL && g_ball && CaptureOrBump();
}

void CMonkey::Place()
{
	if (dead)
		return;
	int groundDepth = static_cast<int>(y) + collisionSprite->Height() * 5 / 6;
	PutSprite(currentTree ? climbDepth : groundDepth);
}
