// What is made of wood: the hits that crates and fence sections take, and how they fall apart.
#include "field/wooden.h"

#include "field/ball.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <string>

enum HitOutcome { HIT_LIGHT, HIT_HEAVY, HIT_BREAKS };

CElementWooden::~CElementWooden()
{
	for (CSprite* sprite : {base, light, heavy, explosion})
		delete sprite;
	for (int i = 0; i < 3; i++) {
		delete damageSounds[i];
		delete destroySounds[i];
	}
}

void CElementWooden::LoadSounds()
{
	for (int i = 0; i < 3; i++) {
		damageSounds[i]  = new CSound("damage_object_wood" + std::to_string(i + 1) + ".ogg");
		destroySounds[i] = new CSound("destroy_object_wood" + std::to_string(i + 1) + ".ogg");
	}
}

// What the present ball does to wood that has taken so many hits.
static HitOutcome WoodHit(int hits)
{
	if (g_ball->IsBulldozer() || g_ball->IsLarge())
		return HIT_BREAKS;
	if (g_ball->IsSmall())
		return hits == 0 ? HIT_LIGHT : hits == 1 ? HIT_HEAVY : HIT_BREAKS;
	return hits == 0 ? HIT_HEAVY : HIT_BREAKS;
}

bool CElementWooden::OnBallHit()
{
	if (!g_ball)
		return false;
	if (FramesSinceLastHit() < FRAMES_BETWEEN_HITS || broken)
		return g_ball->IsBulldozer();

	HitOutcome outcome = WoodHit(hits);
	if (outcome == HIT_BREAKS) {
		BreakDown(false);
	} else {
		StartleOccupant(occupant);
		hits = outcome == HIT_LIGHT ? 1 : 2;
		ShowInstead(currentSprite, outcome == HIT_LIGHT ? light : heavy);
		PlayOneOf(damageSounds, 3);
	}
	return g_ball->IsBulldozer();
}

void CElementWooden::Break(bool byShot, int, int)
{
	BreakDown(byShot);
}

void CElementWooden::FallApart()
{
	PlayOneOf(destroySounds, 3);
	broken = true;
	hits   = HITS_WHEN_BROKEN;
	StartleOccupant(occupant);
	currentSprite->Hide();
	explosion->Rewind();
	explosion->Show();
	RemoveObstaclePoints(this);
}
