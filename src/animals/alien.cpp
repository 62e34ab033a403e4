// Alien: falls out of its saucer, runs, hides and shoots until it is stunned and taken.
#include "animals/alien.h"

#include "animals/alien_shot.h"
#include "animals/species.h"
#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/crate.h"
#include "field/drum.h"
#include "field/paddle.h"
#include "field/rock.h"
#include "media/sprite.h"
#include "sound/sound.h"

// The stars go round its head before it comes to.
static const char* const STUNNED = "=stunned0-10 =stunned5-10 =stunned5-10 =stunned5-10 "
                                   "=stunned5-10 =stunned5-10 =stunned5-10";

// clang-format off
// No word but the run has sides.
static const ActionRow s_actions[] = {
	// name         kind              frames             weight role       then  options
	{ "stand",      ACTION_IDLE,      "=stand",              0, ROLE_NONE, "",
	  { .time = Between(10, 25) } },
	{ "standblink", ACTION_BLINK,     "=standblink",         1, ROLE_NONE, "" },
	{ "runup",      ACTION_WALK_BOTH, "0-8",                 3, ROLE_NONE, "",
	  { .time = Between(15, 45) } },
	{ "crouch",     ACTION_EXTRA,     "=crouch0-2",          0, ROLE_NONE, "",
	  { .time = Between(30, 90), .hold = Between(120, 300), .holdFrames = "=crouch3-11",
	    .exitFrames = EXIT_BACK, .once = true } },
	{ "firegun",    ACTION_EXTRA2,    "=firegun0-3",         1, ROLE_NONE, "",
	  { .hold = Between(25, 40), .holdFrames = "=firegun4-5", .exitFrames = "=firegun6-11" } },
	{ "laugh",      ACTION_EXTRA3,    "=laugh0-20",          0, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,      STUNNED,               0, ROLE_BUMP, "" },
};

static const BodyPoint s_body[] = {
	{ 3, 25 }, { 5, 32 }, { 13, 34 }, { 19, 32 }, { 22, 25 },
	{ 19, 18 }, { 12, 16 }, { 5, 18 },
};

static const BodyPoint s_stunnedBody[] = {
	{ 1, 29 }, { 5, 35 }, { 13, 36 }, { 20, 35 }, { 24, 29 },
	{ 20, 22 }, { 12, 20 }, { 5, 22 },
};
// clang-format on

const SpeciesTable ALIEN_TABLE = {"alien", s_actions, {}, s_body, s_body, {}};

static const int CROUCH_COOLDOWN    = 700;  // frames
static const int COVER_BELOW        = 10;   // pixels below its centre, where cover is looked for
static const int COVER_REACH        = 10;   // pixels
static const int FIRST_OPEN_PICTURE = 3;    // of being stunned, from which it can be taken
static const int HINT_WHILE_STUNNED = 9999; // frames
static const float HOP_HEIGHT       = 28;   // pixels, of its fall out of the saucer
static const int LONG_STUN          = 60;   // frames, of a boss's shot

CAlien::CAlien(int centreX, int centreY, bool newBoss) : boss(newBoss)
{
	species       = SPECIES_ALIEN;
	bodyRadius    = 13;
	weight        = 5;
	requiredStage = 10;
	speedX        = 2.5f;
	speedY        = 1.25f;
	mayTurn       = true;

	captureSound  = OwnSound(new CSound("alien_capture.ogg"));
	groundSound   = OwnSound(new CSound("alien_fall_on_ground.ogg"));
	laughSound    = OwnSound(new CSound("alien_laugh.ogg"));
	CSound* grunt = OwnSound(new CSound("alien_fall_grunt.ogg"));

	CSprite* itsText = new CSprite(hintText->Depth());
	itsText->AddFile("arrowcapturenowtext.png");
	itsText->Hide();
	delete hintText;
	hintText = itsText;

	BuildActions(ALIEN_TABLE);
	run    = ActionOfKind(ACTION_WALK_BOTH);
	crouch = ActionOfKind(ACTION_EXTRA);
	fire   = ActionOfKind(ACTION_EXTRA2);
	laugh  = ActionOfKind(ACTION_EXTRA3);
	PlaceAt(centreX, centreY, true);
	grunt->Play();
}

void CAlien::Update()
{
	if (dead)
		return;
	PullTowardBall();
	if (facingLeft != lastFacingLeft) {
		lastFacingLeft = facingLeft;
		RebuildBody();
	}
	if (stunnedOnce && currentAction == idleAction) {
		stunnedOnce = false;
		RebuildBody();
	}
	if (crouchCooldown > 0)
		crouchCooldown--;
	if (MayCrouch()) {
		crouchCooldown = CROUCH_COOLDOWN;
		currentAction  = crouch;
	}
	bool gunWasUp = currentAction == fire && fire->phase == PHASE_MIDDLE;
	AdvanceBehaviour();
	if (!gunWasUp && currentAction == fire && fire->phase == PHASE_MIDDLE)
		Shoot();
	if (currentAction != bumpAction)
		hintFrames = 0;
	LandFrame();
	Place();
}

// Behind something that stands right before its feet.
bool CAlien::MayCrouch() const
{
	if (crouchCooldown > 0 || (currentAction != idleAction && currentAction != run))
		return false;
	int atX = static_cast<int>(CentreX());
	int atY = static_cast<int>(CentreY()) + COVER_BELOW;
	return CCrate::AnyAt(atX, atY, COVER_REACH, COVER_REACH) ||
	       CRock::AnyAt(atX, atY, COVER_REACH) || CDrum::AnyCloudAt(atX, atY, COVER_REACH);
}

void CAlien::Shoot()
{
	new CAlienShot(CentreX(), y + static_cast<float>(collisionSprite->Height()),
	               boss ? LONG_STUN : CPaddle::SHORT_STUN, this, nullptr);
}

// The blast throws it up; it comes down where it was.
void CAlien::LandFrame()
{
	if (landDelay == 0)
		return;
	landDelay--;
	float swing = static_cast<float>(2 * landDelay) / LANDING_FRAMES - 1; // 1 to -1
	z           = (1 - swing * swing) * HOP_HEIGHT;
	if (landDelay > 0)
		return;
	groundSound->Play();
	RebuildBody();
}

void CAlien::StandAtOnce()
{
	landDelay = 0;
	z         = 0;
	RebuildBody();
	Place();
}

bool CAlien::OnBallHit()
{
	if (!g_ball || landDelay > 0)
		return false;
	bool reels =
	    currentSprite == bumpAction->spriteLeft || currentSprite == bumpAction->spriteRight;
	bool open = reels && currentSprite->Frame() >= FIRST_OPEN_PICTURE;
	if (stunnedOnce && open && CanCapture()) {
		captureSound->Play();
		ReportCapture(species);
		LeaveField();
		return true;
	}
	currentAction = bumpAction;
	stunnedOnce   = true;
	hintFrames    = HINT_WHILE_STUNNED;
	RebuildBody();
	return false;
}

void CAlien::RebuildBody()
{
	if (landDelay == 0 && !stunnedOnce) {
		CElementAnimal::RebuildBody();
		return;
	}
	ClearBody();
	if (landDelay > 0)
		return;
	for (const BodyPoint& corner : s_stunnedBody)
		AddBodyPoint(corner.x, corner.y);
	bodyPlaced = true;
}

void CAlien::UpdateRescueHint()
{
	if (!stunnedOnce)
		hintFrames = 0;
	CElementAnimal::UpdateRescueHint();
}

void CAlien::Laugh()
{
	if (dead || currentAction == bumpAction)
		return;
	currentAction = laugh;
	laughSound->Play();
}
