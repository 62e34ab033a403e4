// What the paddle is made of: pictures, outline records, sounds.
#include "field/paddle_parts.h"

#include "media/sprite.h"
#include "sound/sound.h"

#include <string>

static const int BUMPER_DEPTH    = 590;
static const int RAY_DEPTH       = 588; // over the field, under the machine
static const int SIGN_DEPTH      = 589;
static const int PROMPT_DEPTH    = 25000;
static const int LAUNCH_PROMPT_X = 262, RAY_PROMPT_X = 221, PROMPT_Y = 463; // pixels
static const int SIGN_DELAY = 2;                                            // frames a picture
static const int NO_NUMBER  = -1;

struct PartRow {
	PaddlePlace place;
	int depth;
	bool once; // stops at its end
	const char* stem;
	int first, last; // NO_NUMBER for a single picture without a number
	const char* suffix;
};

// clang-format off
// In the order of PaddlePart.
static const PartRow s_parts[PADDLE_PARTS] = {
	// part              dx     y   depth   once   pictures
	{{PART_BODY,        -10,  514},   600, false, "paddle_main",       NO_NUMBER, 0, ".png"},
	{{PART_LEFT_WHEEL,    4,  566},   610, false, "paddle_wheelleft",           0, 2, ".png"},
	{{PART_RIGHT_WHEEL,  47,  566},   611, false, "paddle_wheelright",          0, 2, ".png"},
	{{PART_LEFT_FAN,      2,  541},   604, false, "paddle_fanleft",             0, 2, ".png"},
	{{PART_RIGHT_FAN,    54,  541},   605, false, "paddle_fanright",            0, 2, ".png"},
	{{PART_LEFT_LIGHT,    5,  535},   601, true,  "paddle_light",               0, 7, ".tga"},
	{{PART_RIGHT_LIGHT,  64,  535},   602, true,  "paddle_light",               0, 7, ".tga"},

	{{FlamePart(FLAME_LEFT,  FLAMES_FAST, PHASE_START), -56, 529}, 592, true,  "paddle_flamesleft",      14, 25, ".png"},
	{{FlamePart(FLAME_LEFT,  FLAMES_FAST, PHASE_LOOP),  -56, 529}, 593, false, "paddle_flamesleft",      42, 51, ".png"},
	{{FlamePart(FLAME_LEFT,  FLAMES_SLOW, PHASE_START), -30, 529}, 592, true,  "paddle_flamesslowleft",  14, 25, ".png"},
	{{FlamePart(FLAME_LEFT,  FLAMES_SLOW, PHASE_LOOP),  -30, 529}, 593, false, "paddle_flamesslowleft",  42, 51, ".png"},
	{{FlamePart(FLAME_RIGHT, FLAMES_FAST, PHASE_START),  83, 530}, 592, true,  "paddle_flamesright",     14, 25, ".png"},
	{{FlamePart(FLAME_RIGHT, FLAMES_FAST, PHASE_LOOP),   83, 530}, 593, false, "paddle_flamesright",     42, 51, ".png"},
	{{FlamePart(FLAME_RIGHT, FLAMES_SLOW, PHASE_START),  83, 530}, 592, true,  "paddle_flamesslowright", 14, 25, ".png"},
	{{FlamePart(FLAME_RIGHT, FLAMES_SLOW, PHASE_LOOP),   83, 530}, 593, false, "paddle_flamesslowright", 42, 51, ".png"},

	{{PART_PROFESSOR,                     19, 503}, 615, false, "prof_base", NO_NUMBER, 0,    ".png"},
	{{MOVE_LEFT_SLOW,        19, 503}, 615, true,  "prof_goleftslow",        0, 11, ".png"},
	{{MOVE_RIGHT_SLOW,       16, 503}, 615, true,  "prof_gorightslow",       0, 11, ".png"},
	{{MOVE_LEFT_FAST,        20, 503}, 615, true,  "prof_goleftfast",        0, 11, ".png"},
	{{MOVE_RIGHT_FAST,       11, 503}, 615, true,  "prof_gorightfast",       0, 11, ".png"},
	{{MOVE_LEFT_RECOIL,      13, 503}, 615, true,  "prof_goleftfastrecoil",  0, 11, ".png"},
	{{MOVE_RIGHT_RECOIL,     11, 503}, 615, true,  "prof_gorightfastrecoil", 0, 11, ".png"},
	{{MOVE_LEFT_RIGHT_SLOW,  16, 503}, 615, true,  "prof_goleftrightslow",   0, 11, ".png"},
	{{MOVE_LEFT_RIGHT_FAST,   6, 502}, 615, true,  "prof_goleftrightfast",   0, 11, ".png"},
	{{MOVE_RIGHT_LEFT_FAST,   9, 501}, 615, true,  "prof_gorightleftfast",   0, 11, ".png"},

	{{PART_SHORT_GLOW,  -22,  496},   618, true,  "ufoshotglow",                0, 14, ".png"},
	{{PART_LONG_GLOW,   -22,  496},   618, true,  "ufoshotglow",                0, 14, ".png"},
	{{PART_CRACKLE,     -18,  506},   619, false, "ufoshotelectric",            0, 59, ".png"},
};

// The pictures of each bumper, without "paddle_bumper" and ".png".
static const char* const s_bumpers[BUMPERS][8] = {
	{"base", "baseB", "baseC", "baseD", "stickybase"},
	{"base", "grow1", "base", "grow3", "grow4", "grow5", "grow6", "grow5"},
	{"base", "flat1", "base", "flat3", "flat4", "flat5", "flat6", "flat5"},
	{"grow5", "growB", "growC", "growD", "stickygrow5"},
	{"flat5", "flatB", "flatC", "flatD", "stickyflat5"},
	{"stickybase", "stickygrow1", "stickybase", "stickygrow3", "stickygrow4", "stickygrow5", "stickygrow6", "stickygrow5"},
	{"stickybase", "stickyflat1", "stickybase", "stickyflat3", "stickyflat4", "stickyflat5", "stickyflat6", "stickyflat5"},
};
// clang-format on

PaddlePlace PlaceOfPart(int part)
{
	return s_parts[part].place;
}

static CSprite* MakePart(const PartRow& row)
{
	CSprite* sprite = new CSprite(row.depth, 1);
	if (row.first == NO_NUMBER)
		sprite->AddFile(std::string(row.stem) + row.suffix);
	else
		sprite->AddSequence(row.stem, row.first, row.last, row.suffix);
	if (row.once)
		sprite->SetStopAtEnd();
	sprite->Stop();
	sprite->Hide();
	return sprite;
}

static CSprite* MakeBumper(const char* const (&pictures)[8])
{
	CSprite* sprite = new CSprite(BUMPER_DEPTH, 1);
	for (const char* picture : pictures) {
		if (picture)
			sprite->AddFile(std::string("paddle_bumper") + picture + ".png");
	}
	sprite->SetStopAtEnd();
	sprite->Stop();
	sprite->Hide();
	return sprite;
}

static CSprite* MakePrompt(const char* name, int atX)
{
	CSprite* sprite = new CSprite(atX, PROMPT_Y, PROMPT_DEPTH);
	sprite->AddFile(name);
	sprite->Hide();
	return sprite;
}

CPaddle::Parts::Parts()
{
	for (const PartRow& row : s_parts)
		sprites[row.place.part] = MakePart(row);
	// The glow swells and fades; the long one throbs five times in between.
	for (int i = 0; i < 5; i++) {
		sprites[PART_LONG_GLOW]->AddSequence("ufoshotglow", 13, 11, ".png");
		sprites[PART_LONG_GLOW]->AddSequence("ufoshotglow", 12, 14, ".png");
	}
	sprites[PART_SHORT_GLOW]->AddSequence("ufoshotglow", 14, 0, ".png");
	sprites[PART_LONG_GLOW]->AddSequence("ufoshotglow", 14, 0, ".png");
	for (int i = PART_BODY; i <= PART_RIGHT_LIGHT; i++)
		sprites[i]->Show();

	for (int i = 0; i < BUMPERS; i++)
		bumpers[i] = MakeBumper(s_bumpers[i]);
	bumpers[BUMPER_NORMAL_STICKY]->Show();

	ray = new CSprite(RAY_DEPTH);
	ray->AddFile("destructoray.png");
	ray->Hide();
	sign = new CSprite(SIGN_DEPTH, SIGN_DELAY);
	sign->AddSequence("destructo_loaded", 0, 8, ".png");
	sign->AddSequence("destructo_loaded", 7, 1, ".png");
	sign->Hide();
	launchPrompt.sprite = MakePrompt("clickto_quorblet.png", LAUNCH_PROMPT_X);
	rayPrompt.sprite    = MakePrompt("clickto_destructoray.png", RAY_PROMPT_X);
	fanSound            = new CSound("fan_loop.ogg");
	raySound            = new CSound("destructoray.ogg");
}

CPaddle::Parts::~Parts()
{
	for (CSprite* sprite : sprites)
		delete sprite;
	for (CSprite* sprite : bumpers)
		delete sprite;
	delete ray;
	delete sign;
	delete launchPrompt.sprite;
	delete rayPrompt.sprite;
	delete fanSound;
	delete raySound;
}

void PaddlePrompt::Run()
{
	if (timer >= 0) {
		timer--;
		blink = SHOWN;
		sprite->Hide();
		return;
	}
	if (blink <= 0) {
		timer = timer == TIMER_ON ? TIMER_OFF : TIMER_ON;
		blink = timer == TIMER_ON ? SHOWN : HIDDEN;
	}
	blink--;
	if (timer == TIMER_ON)
		sprite->Show();
	else
		sprite->Hide();
}
