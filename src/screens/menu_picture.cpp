// The living picture of the main menu.
#include "screens/menu_picture.h"

#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"

#include <cmath>

static const float TURN        = 6.28318f; // radians
static const float LEAF_STEP   = 0.045f;   // radians a frame
static const int CLOUD_HIGHEST = 4;        // pixels, where a cloud that comes in may stand
static const int CLOUD_LOWEST  = 210;

namespace
{
struct Still {
	const char* file;
	int x, y, depth; // pixels
};

struct WaveRow {
	const char* crest;
	int line;    // y on which the crest stands
	float swing; // pixels to either side
	float step;  // radians a frame
	int depth;
};

struct CloudLook {
	const char* file;
	float x; // pixels
	int y;
	float speed; // pixels a frame, to the left
};

struct LeafLook {
	const char* file;
	int x, y;           // pixels
	float swayX, swayY; // pixels to either side
	float phase;        // radians
};
} // namespace

static const int CLOUD_DEPTH = 100020, LEAF_DEPTH = 100450;

// The swimmers are between the back and the middle row, the fish between the middle and the front.
// clang-format off
static const Still s_stills[CMenuPicture::STILLS] = {
	{ "mainmenusky.png",              0,   0, 100000 },
	{ "mainmenusun.png",            440,   0, 100010 },
	{ "mainmenubackgroundtop.png",    0, 170, 100100 },
	{ "mainmenubackgroundbottom.jpg", 0, 330, 100110 },
	{ "mainmenulogo.jpg",            84,  96, 100120 },
	{ "mainmenuwavesbackbase.png",    0, 496, 100500 },
	{ "mainmenuwavesmiddlebase.png",  0, 530, 100600 },
	{ "mainmenuwavesfrontbase.png",   0, 564, 100800 },
};

static const WaveRow s_rows[CMenuPicture::ROWS] = {
	{ "mainmenuwavesbacktop.png",   496,  6, 0.085f, 100510 },
	{ "mainmenuwavesmiddletop.png", 530,  8, 0.070f, 100610 },
	{ "mainmenuwavesfronttop.png",  564, 10, 0.050f, 100810 },
};

static const CloudLook s_clouds[CMenuPicture::CLOUDS] = {
	{ "mainmenucloudA.png", -30, 120, 0.12f },
	{ "mainmenucloudB.png", 330,  24, 0.20f },
	{ "mainmenucloudC.png", 560, 190, 0.09f },
	{ "mainmenucloudD.png", 730,  60, 0.28f },
};

static const LeafLook s_leaves[CMenuPicture::LEAVES] = {
	{ "mainmenuleavesA.png",   0, 262, 2.5f, 1.5f, 0 },
	{ "mainmenuleavesB.png",  96, 266, 3.0f, 1.5f, 2.1f },
	{ "mainmenuleavesC.png", 486, 318, 4.0f, 2.0f, 4.2f },
};
// clang-format on

static CSprite* NewPicture(const char* file, int x, int y, int depth)
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	return sprite;
}

CMenuPicture::CMenuPicture()
{
	for (int i = 0; i < STILLS; i++)
		stills[i] = NewPicture(s_stills[i].file, s_stills[i].x, s_stills[i].y, s_stills[i].depth);
	for (int i = 0; i < ROWS; i++) {
		crests[i]   = NewPicture(s_rows[i].crest, 0, 0, s_rows[i].depth);
		rowPhase[i] = static_cast<float>(2 * i);
	}
	for (int i = 0; i < CLOUDS; i++) {
		clouds[i].x      = s_clouds[i].x;
		clouds[i].sprite = NewPicture(s_clouds[i].file, 0, s_clouds[i].y, CLOUD_DEPTH + i);
	}
	for (int i = 0; i < LEAVES; i++)
		leaves[i] = NewPicture(s_leaves[i].file, s_leaves[i].x, s_leaves[i].y, LEAF_DEPTH + i);
	StepWaves();
	StepClouds();
}

CMenuPicture::~CMenuPicture()
{
	for (CSprite* sprite : stills)
		delete sprite;
	for (CSprite* sprite : crests)
		delete sprite;
	for (Cloud& cloud : clouds)
		delete cloud.sprite;
	for (CSprite* sprite : leaves)
		delete sprite;
}

void CMenuPicture::Step()
{
	StepWaves();
	StepClouds();
	StepLeaves();
	animals.Step();
	bubbles.Step();
}

// A crest is wider than the screen by its swing, half of that to either side.
void CMenuPicture::StepWaves()
{
	for (int i = 0; i < ROWS; i++) {
		rowPhase[i]      = std::fmod(rowPhase[i] + s_rows[i].step, TURN);
		const int middle = (SCREEN_WIDTH - crests[i]->Width()) / 2;
		crests[i]->SetPos(middle + static_cast<int>(std::sin(rowPhase[i]) * s_rows[i].swing),
		                  s_rows[i].line - crests[i]->Height());
	}
}

// One that has left on the left comes in again on the right, at another height.
void CMenuPicture::StepClouds()
{
	for (int i = 0; i < CLOUDS; i++) {
		CSprite* sprite = clouds[i].sprite;
		clouds[i].x -= s_clouds[i].speed;
		if (clouds[i].x < static_cast<float>(-sprite->Width())) {
			clouds[i].x = SCREEN_WIDTH;
			sprite->y   = RandomWhole(CLOUD_HIGHEST, CLOUD_LOWEST);
		}
		sprite->x = static_cast<int>(std::floor(clouds[i].x));
	}
}

void CMenuPicture::StepLeaves()
{
	leafPhase = std::fmod(leafPhase + LEAF_STEP, TURN);
	for (int i = 0; i < LEAVES; i++) {
		const LeafLook& look = s_leaves[i];
		const float angle    = leafPhase + look.phase;
		leaves[i]->SetPos(look.x + static_cast<int>(std::round(std::sin(angle) * look.swayX)),
		                  look.y + static_cast<int>(std::round(std::sin(angle * 2) * look.swayY)));
	}
}
