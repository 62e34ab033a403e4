// A drum: does not break, but spews a cloud when it is hit too often.
#include "field/drum.h"

#include "field/ball.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cstdlib>
#include <string>

// From the place that a level names to the picture's upper left, in pixels: half the picture.
static const int DRUM_LEFT = 22, DRUM_TOP = 31;

static const int DEPTH_OFFSET = 55;
static const int LAST_SPEW    = 9;
static const int LAST_CLOUD   = 24;
static const int CLOUD_ASIDE  = 10; // pixels that a cloud reaches over the drum's middle
static const int CLOUD_SINKS  = 20; // pixels of a cloud below the drum's upper edge

struct Corner {
	int x, y;
};

// The foot on the ground; offsets from the picture's upper left.
static const Corner s_foot[4] = {{4, 46}, {22, 52}, {40, 46}, {22, 40}};

std::vector<CDrum*> CDrum::DrumList;

static CSprite* NewPart(int depth, const std::string& stem, int first, int last)
{
	CSprite* sprite = new CSprite(depth, 1);
	sprite->AddSequence(stem, first, last, ".png");
	sprite->SetStopAtEnd();
	sprite->Hide();
	return sprite;
}

CDrum::CDrum(int newX, int newY, bool left) : side(left ? 1 : 0)
{
	DrumList.push_back(this);
	x = newX - DRUM_LEFT;
	y = newY - DRUM_TOP;

	int depth        = static_cast<int>(y) + DEPTH_OFFSET;
	std::string stem = left ? "drumA" : "drumB";
	base             = new CSprite(depth);
	base->AddFile(stem + "base.png");
	light     = NewPart(depth, stem + "break", 1, 2);
	heavy     = NewPart(depth, stem + "break", 3, 4);
	spewing   = NewPart(depth, stem + "spew", 0, LAST_SPEW);
	clouds[0] = NewPart(depth + 1, "skunkspraycloudleft", 0, LAST_CLOUD);
	clouds[1] = NewPart(depth + 1, "skunkspraycloud", 0, LAST_CLOUD);
	hitSound  = new CSound("damage_drum.ogg");
	spewSound = new CSound("drum_spewing.ogg");

	int drumLeft = static_cast<int>(x), drumTop = static_cast<int>(y);
	int middle = drumLeft + base->Width() / 2;
	for (CSprite* sprite : {base, light, heavy, spewing})
		sprite->SetPos(drumLeft, drumTop);
	// The cloud of the left side drifts off to the right, as a left-facing skunk's does.
	int cloudTop = drumTop + CLOUD_SINKS - clouds[0]->Height();
	clouds[0]->SetPos(middle - CLOUD_ASIDE, cloudTop);
	clouds[1]->SetPos(middle + CLOUD_ASIDE - clouds[1]->Width(), cloudTop);
	currentSprite   = base;
	collisionSprite = base;

	for (int i = 0; i < 4; i++)
		AddObstacleLine(this, x + s_foot[i].x, y + s_foot[i].y, x + s_foot[(i + 1) % 4].x,
		                y + s_foot[(i + 1) % 4].y);
	if (g_levelGameData)
		g_levelGameData->NoteDrum();
}

CDrum::~CDrum()
{
	DrumList.erase(std::find(DrumList.begin(), DrumList.end(), this));
	for (CSprite* sprite : {base, light, heavy, spewing, clouds[0], clouds[1]})
		delete sprite;
	delete hitSound;
	delete spewSound;
}

void CDrum::Update()
{
	for (CSprite* cloud : clouds) {
		if (!cloud->IsHidden() && cloud->IsAtLastFrameEnd())
			cloud->Hide();
	}
}

bool CDrum::OnBallHit()
{
	if (!g_ball || FramesSinceLastHit() < FRAMES_BETWEEN_HITS)
		return false;
	if (hits >= 2) {
		Spew();
		return false;
	}
	ShowInstead(currentSprite, hits == 0 ? light : heavy);
	hits++;
	hitSound->Play();
	return false;
}

void CDrum::OnBlast(int atX, int radius)
{
	int middle = static_cast<int>(x) + base->Width() / 2;
	if (std::abs(middle - atX) > base->Width() / 2 + radius)
		return;
	hitSound->Play();
	Spew();
}

void CDrum::Spew()
{
	if (g_levelGameData) {
		g_levelGameData->SkillPenalty();
		g_levelGameData->NoteDrumFired();
	}
	spewSound->Play();
	ShowInstead(currentSprite, spewing);
	hits = HITS_WHEN_BROKEN;

	side         = 1 - side;
	currentCloud = clouds[side];
	currentCloud->Rewind();
	currentCloud->Forward();
	currentCloud->Show();

	if (!counted && g_game && g_game->rules.isDodgeball) {
		counted = true;
		g_game->AddDodgeHit();
	}
}

bool CDrum::AnyCloudAt(int atX, int atY, int r)
{
	for (const CDrum* drum : DrumList) {
		const CSprite* body = drum->base;
		if (std::abs(body->X() + body->Width() / 2 - atX) <= body->Width() / 4 &&
		    std::abs(body->Y() + body->Height() / 3 - atY) <= r)
			return true;
	}
	return false;
}
