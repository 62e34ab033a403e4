// Dog: sleeps until the ball comes, pants, runs and barks.
#include "animals/dog.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind           frames                         weight role       then    options
	{ "stand",      ACTION_IDLE,   ".",                               0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK,  ".",                              12, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,   "0-4",                             6, ROLE_NONE, "" },
	{ "pant",       ACTION_EXTRA,  "0-3",                             6, ROLE_NONE, "",
	  { .time = Between(120, 300) } },
	{ "run",        ACTION_WALK,   "0-7",                             6, ROLE_NONE, "" },
	{ "bark",       ACTION_EXTRA2, "0-5",                             0, ROLE_BUMP, "",
	  { .sounds = {"dog_bark.ogg"}, .soundDelay = 4 } },
	{ "wake:sleep", ACTION_WAKE,   "1*5 0*5 1*4 0*3 0-5",             0, ROLE_NONE, "" },
	{ "sleep",      ACTION_EXTRA3, "5-1 1*5 0*5 1*4 0*3 1*2 0*4",     1, ROLE_NONE, "wake",
	  { .time = Frames(999999), .loopFrom = 5 } },
};

static const BodyPoint s_body[] = {
	{ 4, 16 }, { 9, 21 }, { 17, 21 }, { 24, 20 }, { 29, 16 },
	{ 24, 12 }, { 16, 12 }, { 9, 12 },
};
// clang-format on

const SpeciesTable DOG_TABLE = {"dog", s_actions, {}, s_body, {}, {}};

static const int SHORTEST_SLEEP = 600, LONGEST_SLEEP = 1200, DEEP_SLEEP = 999999; // frames

CDog::CDog(int centreX, int centreY, bool left, bool deepSleep)
{
	species       = SPECIES_DOG;
	bodyRadius    = 15;
	weight        = 5;
	requiredStage = 9;
	speedX        = 3;
	mayTurn       = true;

	panting = OwnSound(new CSound("dog_pant.ogg"));
	BuildActions(DOG_TABLE);
	pant  = ActionOfKind(ACTION_EXTRA);
	bark  = ActionOfKind(ACTION_EXTRA2);
	sleep = ActionOfKind(ACTION_EXTRA3);
	wake  = ActionOfKind(ACTION_WAKE);
	PlaceAt(centreX, centreY, left);
	FallAsleep(deepSleep);
}

// On the last picture: it has been asleep for long.
void CDog::FallAsleep(bool deepSleep)
{
	currentAction        = sleep;
	currentAction->phase = PHASE_ENTRY;
	StartSprite(facingLeft ? sleep->spriteLeft : sleep->spriteRight);
	currentSprite->GoToLast();
	walkCounter = deepSleep ? DEEP_SLEEP
	                        : RandomWhole(static_cast<float>(SHORTEST_SLEEP),
	                                      static_cast<float>(LONGEST_SLEEP));
	Place();
}

void CDog::Update()
{
	CElementAnimal::Update();
	if (dead)
		return;
	if (currentAction != pant)
		panting->Stop();
	else if (!panting->IsPlaying())
		panting->Play(true);
}

bool CDog::OnBallHit()
{
	panting->Stop();
	bumpAction = currentAction == sleep || currentAction == wake ? wake : bark;
	NoteUpset();
	return TryCapture();
}
