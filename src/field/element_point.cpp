// Small things that the ball gathers: fruit, coins, eggs.
#include "field/element_point.h"

#include "field/background.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <algorithm>
#include <string>

static const float GRAVITY         = 0.5f;   // pixels per frame per frame
static const float SOFTEST_BOUNCE  = -12.0f; // vz above this comes to rest
static const float BOUNCE_FRACTION = -12.0f; // of the fall's speed, turned upward
static const float BOUNCE_SLIDE    = 0.25f;  // of the sideways speed
static const float BOUNCE_HEIGHT   = 0.1f;
static const float REACH           = 3.0f; // radius of the touch circle, pixels
static const int WALL_REACH        = 20;   // pixels above the field's top where a point stops
static const int WALL_STOP         = 15;
static const int COIN_FRAMES       = 47;
static const int COIN_STILL_FRAMES = 42;
static const int PULL_WEIGHT       = 1;
static const float HATCHED_X = 2, HATCHED_LEFT_X = 27, HATCHED_Y = 9; // pixels

struct PointImages {
	int kind;
	std::vector<const char*> names; // equal chances
};

// clang-format off
static const PointImages s_images[] = {
	{ POINT_APPLE,     { "appleA.png", "appleB.png", "appleC.png",
	                     "apple2A.png", "apple2B.png", "apple2C.png" } },
	{ POINT_ACORN,     { "acornA.png", "acornB.png", "acornC.tga", "acornD.png" } },
	{ POINT_PINECONE,  { "pineconeA.png", "pineconeB.png" } },
	{ POINT_APPLE2,    { "apple2A.png", "apple2B.png", "apple2C.png" } },
	{ POINT_EGG_LEFT,  { "chickeneggleftbubble.tga" } },
	{ POINT_EGG_RIGHT, { "chickeneggrightbubble.tga" } },
	{ POINT_COCONUT,   { "coconutA.png", "coconutB.png", "coconutC.png" } },
};
static const char* const s_coins[] = {
	"coingoldlarge", "coincoppersmall", "coinsilversmall", "coinsilverlarge", "coingoldsmall",
};
// clang-format on

static const int FIRST_APPLE2_IMAGE = 3;

std::vector<CElementPoint*> CElementPoint::PointList;

static bool IsEgg(int kind)
{
	return kind == POINT_EGG_LEFT || kind == POINT_EGG_RIGHT;
}

static CSprite* NewCoin(int depth)
{
	CSprite* sprite  = new CSprite(depth, 1);
	std::string stem = s_coins[Rand() % std::size(s_coins)];
	sprite->AddRepeated(stem + "0.tga", COIN_STILL_FRAMES);
	sprite->AddSequence(stem, 1, 3, ".tga");
	sprite->AddSequence(stem, 2, 1, ".tga");
	sprite->SetFrame(Rand() % COIN_FRAMES);
	return sprite;
}

// An apple of the second set becomes a kind of its own; what is no kind at all looks like an apple.
static CSprite* NewStill(int depth, int& kind)
{
	const PointImages* images = &s_images[0];
	for (const PointImages& row : s_images) {
		if (row.kind == kind)
			images = &row;
	}
	size_t choice = images->names.size() > 1 ? Rand() % images->names.size() : 0;
	if (kind == POINT_APPLE && choice >= FIRST_APPLE2_IMAGE)
		kind = POINT_APPLE2;
	CSprite* sprite = new CSprite(depth);
	sprite->AddFile(images->names[choice]);
	return sprite;
}

static CSprite* NewHatching(int depth, int kind)
{
	CSprite* sprite  = new CSprite(depth, 1);
	std::string stem = kind == POINT_EGG_LEFT ? "chickeneggleft" : "chickeneggright";
	sprite->AddSequence(stem, 0, 11, ".tga");
	sprite->AddSequence(stem, 10, 9, ".tga");
	sprite->SetStopAtEnd();
	return sprite;
}

CElementPoint::CElementPoint(float newX, float newY, float newZ, int newKind, float newVx,
                             float newVy, float newVz)
    : kind(newKind), firstKind(newKind), hatching(nullptr), thudSound(new CSound("subtle_thud.ogg"))
{
	PointList.push_back(this);
	x         = newX;
	y         = newY;
	z         = newZ;
	vx        = newVx;
	vy        = newVy;
	vz        = newVz;
	int depth = static_cast<int>(y);
	sprite    = kind == POINT_COIN ? NewCoin(depth) : NewStill(depth, kind);
	if (IsEgg(kind)) {
		hatching = NewHatching(depth, kind);
		sprite->Hide();
	}
	currentSprite = hatching ? hatching : sprite;
	currentSprite->SetPos(static_cast<int>(x), static_cast<int>(y - z));
}

CElementPoint::~CElementPoint()
{
	PointList.erase(std::find(PointList.begin(), PointList.end(), this));
	RemoveTouchCircles(this);
	delete sprite;
	delete hatching;
	delete thudSound;
}

void CElementPoint::Update()
{
	if (dead)
		return;
	if (z != 0)
		Fly();
	if ((z < 0 || (z == 0 && bouncing)) && !hatching)
		Land();
	StayBelowWall();
	if (!bouncing && z == 0)
		Rest();
	if (hatching && hatching->IsAtLastFrameEnd())
		Hatch();
	currentSprite->SetPos(static_cast<int>(x), static_cast<int>(y - z), static_cast<int>(y));
}

void CElementPoint::Fly()
{
	RemoveTouchCircles(this);
	x += vx;
	y += vy;
	z += vz;
	vz -= GRAVITY;
}

void CElementPoint::Land()
{
	if (vz >= SOFTEST_BOUNCE) {
		z        = 0;
		bouncing = false;
		LayCircle();
		return;
	}
	z  = BOUNCE_HEIGHT;
	vz = vz / BOUNCE_FRACTION;
	vx *= BOUNCE_SLIDE;
	if ((Rand() & 3) == 0)
		thudSound->Play();
}

void CElementPoint::LayCircle()
{
	AddTouchCircle(this, x + sprite->Width() / 2, y - z + sprite->Height() / 2, REACH);
}

void CElementPoint::MoveCircle()
{
	RemoveTouchCircles(this);
	LayCircle();
}

void CElementPoint::StayBelowWall()
{
	if (!g_background || y > g_background->FieldTop() - WALL_REACH)
		return;
	y = g_background->FieldTop() - WALL_STOP;
	if (!bouncing)
		MoveCircle();
}

void CElementPoint::Rest()
{
	if (x < FIELD_WALL_LEFT || x > FIELD_WALL_RIGHT) {
		Disappear();
		return;
	}
	if (!g_ball || !g_ball->IsGravity() || hatching)
		return;
	RemoveTouchCircles(this);
	g_ball->PullToward(x, y, PULL_WEIGHT);
	LayCircle();
}

// The egg that has come out lies at another place than the hen's picture of it began.
void CElementPoint::Hatch()
{
	if (g_render)
		g_render->AddExtraRect(hatching->X(), hatching->Y(), hatching->Width(), hatching->Height());
	delete hatching;
	hatching      = nullptr;
	currentSprite = sprite;
	sprite->Show();
	x += firstKind == POINT_EGG_LEFT ? HATCHED_LEFT_X : HATCHED_X;
	y += HATCHED_Y;
	z        = 0;
	bouncing = false;
	LayCircle();
}

void CElementPoint::Disappear()
{
	currentSprite->Hide();
	RemoveTouchCircles(this);
	dead = true;
}

bool CElementPoint::OnBallHit()
{
	if (hatching || dead)
		return true;
	Disappear();
	if (kind != POINT_COIN && g_ball)
		g_ball->AddContent(kind);
	if (!g_sidebar)
		return true;
	g_sidebar->OnCollect(kind);
	if (kind != POINT_COIN)
		g_sidebar->OnPointTaken(static_cast<int>(x) + sprite->Width() / 2,
		                        static_cast<int>(y - z) + sprite->Height() / 2);
	return true;
}

bool CElementPoint::AnyCoinLeft()
{
	for (const CElementPoint* point : PointList) {
		if (point->kind == POINT_COIN && !point->dead)
			return true;
	}
	return false;
}
