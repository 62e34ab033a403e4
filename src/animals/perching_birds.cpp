// The birds that sit on crates and fences until their perch is hit.
#include "animals/perching_birds.h"

#include "frame/random.h"
#include "sound/sound.h"

CPerchingBird::CPerchingBird(const BirdPage& page, int centreX, int centreY, bool left)
{
	Build(page);
	PlaceAt(centreX, centreY, left);
}

CPerchingBird::CPerchingBird(const BirdPage& page, CCrate* crate, bool left)
{
	Build(page);
	PlaceOn(crate, left);
}

CPerchingBird::CPerchingBird(const BirdPage& page, CFence* fence, bool left)
{
	Build(page);
	PlaceOn(fence, left);
}

void CPerchingBird::Build(const BirdPage& page)
{
	TakeBirdNumbers(page);
	speedX  = 1.5f;
	mayTurn = true;
	if (page.calls[1]) {
		for (int i : {0, 1})
			calls[i] = OwnSound(new CSound(page.calls[i]));
	} else {
		LoadCall(page.calls[0]);
	}
	BuildActions(*page.table);
}

void CPerchingBird::Update()
{
	if (!dead && calls[1])
		callSound = calls[Coin()];
	CElementAnimal::Update();
}
