// The arrows that come up over the last animals of a level when the player does not find them.
#include "animals/animal.h"

#include "field/bobber.h"
#include "media/sprite.h"
#include "state/game_data.h"

static const int MOST_FOR_HINTS = 5; // animals left
static const int HINT_FRAMES    = 120;
static const int ARROW_DISTANCE = 6; // pixels above the animal
static const int TEXT_OVERLAP   = 6; // pixels that the text reaches into the arrow

int CElementAnimal::hintCycle     = 0;
int CElementAnimal::hintTimer     = -1;
int CElementAnimal::hintBaseCount = -1;

// Frames to wait for each animal that is left: a good player gets less help.
static int HintBase()
{
	int rating = g_levelGameData ? g_levelGameData->SkillRating() : 0;
	if (rating >= 12001)
		return 900;
	return rating > 8000 ? 600 : 400;
}

void CElementAnimal::RescueHintTick()
{
	int left = CountToRescue();
	if (left != hintBaseCount || hintTimer < 0) {
		hintBaseCount = left;
		hintTimer     = left > MOST_FOR_HINTS ? -1 : HintBase() * left * (2 * hintCycle + 1);
	}
	if (hintTimer == 0) {
		hintCycle++;
		for (CElementAnimal* animal : AnimalList)
			animal->hintFrames = HINT_FRAMES;
	}
	if (hintTimer >= 0)
		hintTimer--;
	for (CElementAnimal* animal : AnimalList)
		animal->UpdateRescueHint();
}

void CElementAnimal::UpdateRescueHint()
{
	hintArrow->Hide();
	hintText->Hide();
	if (hintFrames == 0 || optional || dead || !collisionSprite)
		return;
	int bob     = hintBob->StepValue();
	int top     = static_cast<int>(y) - static_cast<int>(z) - hintArrow->Height() - ARROW_DISTANCE;
	int centreX = static_cast<int>(x) + collisionSprite->Width() / 2;
	hintArrow->SetPos(centreX - hintArrow->Width() / 2, top + bob);
	hintText->SetPos(centreX - hintText->Width() / 2, top - hintText->Height() + TEXT_OVERLAP);
	hintFrames--;
	hintArrow->Show();
	hintText->Show();
}
