// Sounds of a hop.
#include "animals/hoppers.h"

#include "media/sprite.h"
#include "sound/sound.h"

CHopper::CHopper()
{
	jump    = OwnSound(new CSound("animal_jump.ogg"));
	landing = OwnSound(new CSound("animal_jump_landing.ogg"));
}

void CHopper::Update()
{
	CElementAnimal::Update();
	if (dead || !animalSoundsOn || currentAction->kind != ACTION_WALK)
		return;
	if (currentSprite->Frame() == jumpPicture && !jump->IsPlaying())
		jump->Play();
	else if (currentSprite->Frame() == landingPicture && !landing->IsPlaying())
		landing->Play();
}
