// The base of what takes damage on the field: crates, fence sections, drums.
#include "field/breakable.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "sound/sound.h"

#include <algorithm>

std::vector<CElementBreakable*> CElementBreakable::BreakableList;

CElementBreakable::CElementBreakable()
{
	BreakableList.push_back(this);
}

CElementBreakable::~CElementBreakable()
{
	BreakableList.erase(std::find(BreakableList.begin(), BreakableList.end(), this));
}

void CElementBreakable::BlastAll(int atX, int radius)
{
	for (CElementBreakable* breakable : BreakableList)
		breakable->OnBlast(atX, radius);
}

void ShowInstead(CSprite*& current, CSprite* next)
{
	current->Hide();
	next->SetPos(current->X(), current->Y(), current->Depth());
	next->Rewind();
	next->Forward();
	next->Show();
	current = next;
}

void PlayOneOf(CSound* const* sounds, int count)
{
	sounds[Rand() % count]->Play();
}

void StartleOccupant(CElementAnimal*& occupant)
{
	if (!occupant)
		return;
	occupant->BeginFlight();
	if (g_game && g_game->rules.isDodgeball && !occupant->upset) {
		occupant->upset = true;
		g_game->AddDodgeHit();
	}
	occupant = nullptr;
}
