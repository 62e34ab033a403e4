// Fence sections: rails between two posts.
#include "field/fence.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/fence_post.h"
#include "field/sidebar.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cstdlib>
#include <string>

static const int RAIL_RAISE      = 11; // pixels that a rail is drawn above its outline
static const int BLAST_MARGIN    = 2;  // pixels that a section is open to a blast beyond its rails
static const int LAST_EXPLOSION  = 20;
static const int EXPLOSION_ABOVE = 2; // depths above the rails

struct Offset {
	int x, y;
};

// Where a section of a style stands: from the post to the section going right and left, from the
// section to the far post likewise, and its two rails, each from the left end to the right end.
struct RailStyle {
	char letter;
	Offset fromPost[2], toFarPost[2]; // by FenceDirection
	Offset railStart[2], railEnd[2];
};

// clang-format off
static const RailStyle s_styles[3] = {
	//     post, right  left         far post, right left       rails
	{ 'A', {{9,   5}, {-42,   5}}, {{42, -5}, {-9, -5}}, {{2, 14}, {2, 20}}, {{44, 14}, {44, 20}} },
	{ 'B', {{3,   7}, {-30, -14}}, {{30, 14}, {-3, -7}}, {{7, 21}, {7, 16}}, {{32, 37}, {32, 31}} },
	{ 'C', {{4, -14}, {-29,   7}}, {{29, -7}, {-4, 14}}, {{7, 37}, {7, 31}}, {{32, 21}, {32, 16}} },
};
// clang-format on

std::vector<CFence*> CFence::FenceList;

CFence::CFence(CFencePost* start, int direction, int newStyle, bool makeEndPost)
    : style(std::clamp(newStyle, 0, 2))
{
	FenceList.push_back(this);
	bool left = direction == FENCE_LEFT;
	x         = start->x + s_styles[style].fromPost[left].x;
	y         = start->y + s_styles[style].fromPost[left].y;
	LoadSprites();
	LayRails();
	TieTo(start, !left);
	if (makeEndPost) {
		const Offset& far = s_styles[style].toFarPost[left];
		TieTo(new CFencePost(static_cast<int>(x) + far.x, static_cast<int>(y) + far.y), left);
	}
}

CFence::~CFence()
{
	FenceList.erase(std::find(FenceList.begin(), FenceList.end(), this));
}

static CSprite* NewRailSprite(const std::string& stem, int first, int last)
{
	CSprite* sprite = new CSprite(0, 1);
	sprite->AddSequence(stem, first, last, ".png");
	sprite->SetStopAtEnd();
	sprite->Hide();
	return sprite;
}

void CFence::LoadSprites()
{
	std::string stem = std::string("fencerails") + s_styles[style].letter;
	base             = NewRailSprite(stem, 0, 0);
	light            = NewRailSprite(stem, 1, 2);
	heavy            = NewRailSprite(stem, 3, 4);
	explosion        = NewRailSprite("explosionwhite", 0, LAST_EXPLOSION);

	int left = static_cast<int>(x), top = static_cast<int>(y);
	int depth = top + base->Height() / 2;
	base->SetPos(left, top, depth);
	base->Show();
	explosion->SetDepth(depth + EXPLOSION_ABOVE);
	explosion->CenterX(left + base->Width() / 2);
	explosion->CenterY(top + base->Height() / 2);
	currentSprite   = base;
	collisionSprite = base;
	LoadSounds();
}

void CFence::LayRails()
{
	const RailStyle& rails = s_styles[style];
	for (int i = 0; i < 2; i++)
		AddObstaclePoint(this, x + rails.railStart[i].x, y + rails.railStart[i].y);
	for (int i = 0; i < 2; i++)
		AddObstacleLine(this, x + rails.railStart[i].x, y + rails.railStart[i].y,
		                x + rails.railEnd[i].x, y + rails.railEnd[i].y);
}

void CFence::TieTo(CFencePost* post, bool left)
{
	(left ? leftPost : rightPost) = post;
	post->sections.push_back(this);
}

CFencePost* CFence::FarPost(int direction) const
{
	return direction == FENCE_LEFT ? leftPost : rightPost;
}

int CFence::CentreX() const
{
	return static_cast<int>(x) + base->Width() / 2;
}

void CFence::Update()
{
	if (!explosion->IsHidden() && explosion->IsAtLastFrameEnd())
		explosion->Hide();
	int left = static_cast<int>(x), top = static_cast<int>(y);
	currentSprite->SetPos(left, top, top + base->Height() / 2);
}

void CFence::OnBlast(int atX, int radius)
{
	if (!broken && std::abs(CentreX() - atX) <= base->Width() / 2 + BLAST_MARGIN + radius)
		BreakDown(false);
}

void CFence::BreakDown(bool silent)
{
	if (broken)
		return;
	FallApart();
	if (!silent && g_sidebar)
		g_sidebar->OnFenceBroken(CentreX(), static_cast<int>(y));
	if (g_levelGameData)
		g_levelGameData->OnObstacleBroken();
}

Perch CFence::PerchPlace() const
{
	const RailStyle& rails = s_styles[style];
	int middle[2];
	for (int i = 0; i < 2; i++)
		middle[i] = (rails.railStart[i].y + rails.railEnd[i].y) / 2;
	int top = std::min(middle[0], middle[1]) - RAIL_RAISE;
	return {CentreX(), static_cast<int>(y) + top, 0};
}

bool CFence::IsFree(int offset) const
{
	int room = std::abs(offset);
	return !broken && !occupant && CentreX() - room >= FIELD_WALL_LEFT &&
	       CentreX() + room <= FIELD_WALL_RIGHT;
}

int CFence::CountStanding(int offset, bool freeOnly)
{
	int count = 0;
	for (const CFence* fence : FenceList)
		count += freeOnly ? fence->IsFree(offset) : !fence->broken;
	return count;
}

CFence* CFence::NthFree(int n, int offset)
{
	for (CFence* fence : FenceList) {
		if (fence->IsFree(offset) && n-- == 0)
			return fence;
	}
	return nullptr;
}

void CloseFence(CFence* last, CFencePost* post)
{
	last->TieTo(post, !last->leftPost);
}
