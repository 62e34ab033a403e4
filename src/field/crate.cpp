// Crates and barrels, alone or in stacks, with what they hold.
#include "field/crate.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/bobber.h"
#include "field/element_point.h"
#include "field/powerup.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cstdlib>
#include <string>

// From the place that a level names to the picture's upper left, in pixels.
static const int CRATE_LEFT = 26, CRATE_TOP = 20;
static const int BARREL_LEFT = 17, BARREL_TOP = 23;

static const int LEAST_BY_SKILL = 1, MOST_BY_SKILL = 5; // points in a crate
static const float GRAVITY          = 0.5f;             // pixels per frame per frame
static const int LAST_EXPLOSION     = 20;
static const int ORDER_GAP          = 3;    // pixels between crate and numeral
static const int ORDER_DEPTH        = 1100; // above all that stands on the field
static const int ORDER_HALF_SWING   = 6;
static const float ORDER_CURVE      = 3.0f;
static const float ORDER_AMPLITUDE  = 2.2f;
static const int ORDER_PHASE_A_STEP = 2; // numerals of neighbours don't bob alike

struct Corner {
	int x, y;
};

// clang-format off
// The foot on the ground, seen in perspective; offsets from the picture's upper left.
static const Corner s_crateFoot[4]  = {{26, 13}, {46, 18}, {26, 25}, { 4, 18}};
static const Corner s_barrelFoot[4] = {{ 3, 34}, {18, 39}, {32, 34}, {17, 29}};
// clang-format on

std::vector<CCrate*> CCrate::CrateList;

CCrate::CCrate(int newX, int newY, int newLayer, int newContents, int newValue,
               bool newContainsPowerup, bool newBarrel, bool newAppleCrate, CCrate* anchor,
               int newOrderNumber)
    : containsPowerup(newContainsPowerup && !newAppleCrate), barrel(newBarrel && !newAppleCrate),
      appleCrate(newAppleCrate), contents(newAppleCrate ? int(POINT_APPLE) : newContents),
      value(newAppleCrate ? -1 : newValue), layer(newLayer), layerHeight(barrel ? 37 : 26),
      depthOffset(barrel ? 42 : 30), explosionOffsetX(barrel ? 32 : 20), explosionOffsetY(42),
      orderNumber(newOrderNumber)
{
	CrateList.push_back(this);
	if (anchor) {
		x = anchor->x + newX;
		y = anchor->y + newY;
	} else {
		x = newX - (barrel ? BARREL_LEFT : CRATE_LEFT);
		y = newY - (barrel ? BARREL_TOP : CRATE_TOP);
	}
	z = layer * layerHeight;

	LoadSprites();
	if (value == -1)
		value = LevelGameData()->RandomBySkill(LEAST_BY_SKILL, MOST_BY_SKILL);
	PlaceSprites();
	LoadOrderNumber(CentreX());
	if (layer == 0)
		LayFootprint();
}

CCrate::~CCrate()
{
	CrateList.erase(std::find(CrateList.begin(), CrateList.end(), this));
	delete squash;
	delete orderSprite;
	delete orderBobber;
}

// A hidden sprite at the crate's depth that plays its frames once.
static CSprite* NewBodySprite(int depth)
{
	CSprite* sprite = new CSprite(depth, 1);
	sprite->SetStopAtEnd();
	sprite->Hide();
	return sprite;
}

void CCrate::LoadSprites()
{
	int letters      = barrel ? 3 : 2;
	std::string stem = barrel ? "barrel" : appleCrate ? "crateapple" : "crate";
	stem += static_cast<char>('A' + Rand() % letters);

	int depth = static_cast<int>(y) + depthOffset;
	base      = NewBodySprite(depth);
	base->AddFile(stem + "base.png");
	base->Show();
	light = NewBodySprite(depth);
	light->AddSequence(stem + "break", 1, 2, ".png");
	heavy = NewBodySprite(depth);
	heavy->AddSequence(stem + "break", 3, 4, ".png");
	squash = NewBodySprite(depth);
	for (const char* word : {"squash1", "squash2", "squash1", "base", "squash3", "base"})
		squash->AddFile(stem + word + ".png");
	explosion = NewBodySprite(depth);
	explosion->AddSequence("explosion", 0, LAST_EXPLOSION, ".png");
	currentSprite   = base;
	collisionSprite = base;
	LoadSounds();
}

void CCrate::LoadOrderNumber(int centreX)
{
	orderSprite = nullptr;
	orderBobber = nullptr;
	if (orderNumber <= 0)
		return;
	orderSprite = new CSprite(ORDER_DEPTH);
	orderSprite->AddFile("bonusordernumber_" + std::to_string(orderNumber) + ".png");
	int top = currentSprite->Y() - ORDER_GAP - orderSprite->Height();
	orderSprite->CenterX(centreX);
	orderSprite->SetPos(orderSprite->X(), top);
	orderBobber = new CBobber(top, ORDER_HALF_SWING, ORDER_CURVE, ORDER_AMPLITUDE,
	                          orderNumber * ORDER_PHASE_A_STEP);
}

int CCrate::CentreX() const
{
	return static_cast<int>(x) + base->Width() / 2;
}

int CCrate::CentreY() const
{
	return static_cast<int>(y) - static_cast<int>(z) + base->Height() / 2;
}

void CCrate::LayFootprint()
{
	const Corner* foot = barrel ? s_barrelFoot : s_crateFoot;
	for (int i = 0; i < 4; i++) {
		const Corner& from = foot[i];
		const Corner& to   = foot[(i + 1) % 4];
		AddObstacleLine(this, x + from.x, y + from.y, x + to.x, y + to.y);
	}
}

void CCrate::Update()
{
	if (falling)
		Fall();
	if (!explosion->IsHidden() && explosion->IsAtLastFrameEnd())
		explosion->Hide();
	PlaceSprites();
	if (orderSprite)
		orderSprite->SetPos(orderSprite->X(), orderBobber->StepValue());
}

void CCrate::Fall()
{
	z += vz;
	float rest = layer * layerHeight;
	if (z >= rest) {
		vz -= GRAVITY;
		return;
	}
	z       = rest;
	vz      = 0;
	falling = false;
	if (layer == 0)
		LayFootprint();
	ShowInstead(currentSprite, squash);
}

void CCrate::PlaceSprites()
{
	currentSprite->SetPos(static_cast<int>(x), static_cast<int>(y) - static_cast<int>(z));
	explosion->SetPos(static_cast<int>(x) - explosionOffsetX,
	                  static_cast<int>(y - z) - explosionOffsetY);
}

void CCrate::OnBlast(int atX, int radius)
{
	if (broken || falling || layer > 0)
		return;
	if (std::abs(CentreX() - atX) <= base->Width() / 2 + radius)
		BreakDown(false);
}

void CCrate::BreakDown(bool silent)
{
	if (broken)
		return;
	FallApart();
	if (orderSprite) {
		orderSprite->Hide();
		if (g_game)
			g_game->RecordOrderBreak(orderNumber);
	}
	if (upper)
		upper->FallOneLayer();
	upper = nullptr;
	SpillContents();
	if (!silent && g_sidebar)
		g_sidebar->OnCrateBroken(CentreX(), static_cast<int>(y));
	if (g_levelGameData)
		g_levelGameData->OnObstacleBroken();
}

// What stands higher comes along, and what sits on it flies up; that is no upset of the player's.
void CCrate::FallOneLayer()
{
	if (occupant)
		occupant->BeginFlight();
	occupant = nullptr;
	if (upper)
		upper->FallOneLayer();
	falling = true;
	layer--;
	if (layer < 1)
		SetStackDepth(static_cast<int>(y) + depthOffset);
}

void CCrate::SetStackDepth(int depth)
{
	for (CSprite* sprite : {base, light, heavy, squash, explosion})
		sprite->SetDepth(depth);
	if (upper)
		upper->SetStackDepth(depth + 1);
}

void CCrate::SpillContents()
{
	int cx = CentreX(), cy = CentreY();
	if (containsPowerup) {
		new CPowerup(cx, static_cast<int>(y) - base->Height() / 2, contents, true, 0);
		return;
	}
	if (contents != POINT_APPLE && contents != POINT_ACORN && contents != POINT_PINECONE &&
	    contents != POINT_COIN)
		return;
	for (int i = 0; i < value; i++) {
		float atX    = cx + RandomRange(-5, 5) - 10;
		float atY    = cy + RandomRange(-5, 5);
		float height = RandomRange(4, 8);
		float speedX = RandomRange(-2, 2);
		float speedY = RandomRange(-0.5f, 1.5f);
		float speedZ = RandomRange(2, 7);
		new CElementPoint(atX, atY, height, contents, speedX, speedY, speedZ);
	}
}

// On the upper face: what is left of the picture above one layer.
Perch CCrate::PerchPlace() const
{
	return {CentreX(), static_cast<int>(y) + base->Height() - layerHeight, static_cast<int>(z)};
}

// Free to land on: on top of its stack, nobody there, and room for offset pixels at either side.
bool CCrate::IsFree(int offset) const
{
	if (broken || occupant || upper)
		return false;
	int room = std::abs(offset);
	return CentreX() - room >= FIELD_WALL_LEFT && CentreX() + room <= FIELD_WALL_RIGHT;
}

int CCrate::CountStanding(int offset, bool freeOnly)
{
	int count = 0;
	for (const CCrate* crate : CrateList)
		count += freeOnly ? crate->IsFree(offset) : !crate->broken;
	return count;
}

CCrate* CCrate::NthFree(int n, int offset)
{
	for (CCrate* crate : CrateList) {
		if (crate->IsFree(offset) && n-- == 0)
			return crate;
	}
	return nullptr;
}

bool CCrate::AnyAt(int atX, int atY, int rx, int ry)
{
	for (const CCrate* crate : CrateList) {
		if (!crate->broken && std::abs(crate->CentreX() - atX) <= rx &&
		    std::abs(crate->CentreY() - atY) <= ry)
			return true;
	}
	return false;
}

int CCrate::OccupantDepth(const CElementAnimal* animal)
{
	for (const CCrate* crate : CrateList) {
		if (crate->occupant && crate->occupant == animal)
			return crate->currentSprite->Depth() + 1;
	}
	return -1;
}

bool CCrate::AnyHoldsCoinsOrApples()
{
	for (const CCrate* crate : CrateList) {
		bool gives = crate->contents == POINT_COIN || crate->contents == POINT_APPLE;
		if (!crate->broken && gives)
			return true;
	}
	return false;
}

void StackCrate(CCrate* lower, CCrate* upper)
{
	lower->upper = upper;
	upper->SetStackDepth(lower->currentSprite->Depth() + 1);
}
