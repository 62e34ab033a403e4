// Bluebird, pigeon and crow.
#include "art/animals/actions.h"
#include "art/animals/flight.h"
#include "art/animals/fliers.h"
#include "art/families.h"

static Bird BlueBirdShape()
{
	Bird b;
	b.bodyLength = 6.8f, b.bodyRadius = 5.3f, b.tilt = .55f, b.headRadius = 5.3f;
	b.tailLength = 5.4f, b.beakLength = 2.6f, b.beakRadius = 1.2f;
	b.bellyLine = .42f;
	b.span = 7.6f, b.chord = 4.6f, b.point = .35f;
	b.eye  = {1.85f, .60f, .26f, .60f, .55f, 0, 0, .55f};
	b.body = 0x3f86e0, b.belly = 0xf5954a, b.wing = 0x2f68c4, b.wingTip = 0x27509c;
	b.tail = 0x27509c, b.head = 0x4690ea, b.beak = 0x4a4654, b.leg = 0x5a4a44;
	return b;
}

static Bird PigeonShape()
{
	Bird b;
	b.bodyLength = 8.4f, b.bodyRadius = 6.3f, b.tilt = .34f, b.headRadius = 4.2f;
	b.longNeck = true, b.neckForward = .6f, b.neckUp = 6.4f, b.neckRadius = 3.2f;
	b.tailLength = 5.8f, b.beakLength = 2.6f, b.beakRadius = 1.1f;
	b.nod = 1.8f, b.legLength = 3.4f, b.wingLength = 8.8f, b.wingWidth = 4.4f;
	b.span = 8.8f, b.chord = 5, b.point = .8f;
	b.eye  = {1.75f, .60f, .26f, .64f, .42f, 0xf08a2a, 0, .55f};
	b.body = 0xa8b4c8, b.belly = 0xc4cedc, b.wing = 0xbcc8d8, b.wingTip = 0x5c667c;
	b.wingBar = 0x343c50, b.bands = 2, b.trail = 0x8a96ac;
	b.head = 0x62738e, b.neck = 0x2fae86, b.sheen = 0xa860bc;
	b.tail = 0x98a4b8, b.tailEnd = 0x4a5268, b.beak = 0x5a5464, b.leg = 0xf27a84;
	return b;
}

static Bird CrowShape()
{
	Bird b;
	b.bodyLength = 9.6f, b.bodyRadius = 5.5f, b.tilt = .34f, b.headRadius = 4.7f;
	b.neckForward = 2.2f, b.neckUp = 3.6f;
	b.tailLength = 8, b.tailWidth = 3, b.tailUp = -.8f;
	b.beakLength = 6.4f, b.beakRadius = 2.2f, b.beakTip = .55f;
	b.legLength = 5.4f, b.legRadius = .9f, b.thigh = 2.2f;
	b.wingLength = 9.8f, b.wingWidth = 3.6f;
	b.span = 10.5f, b.chord = 5.6f, b.fingers = .6f;
	b.eye  = {1.9f, .60f, .28f, .64f, .60f, 0, 0, .55f};
	b.body = 0x50507a, b.belly = 0x3a3a56, b.wing = 0x444468, b.wingTip = 0x2e2e48;
	b.head = 0x50507a, b.tail = 0x2e2e48, b.beak = 0x5a5a68, b.leg = 0x5c5662;
	return b;
}

Species BlueBird()
{
	return BirdSpecies("bluebird", 22, 0, BlueBirdShape);
}

Species Pigeon()
{
	return BirdSpecies("pigeon", 25, 0, PigeonShape);
}

Species Crow()
{
	return BirdSpecies("crow", 31, 0, CrowShape);
}

static const int WALK_FRAMES = 8, RUFFLE_FRAMES = 6;

void AddPerchingBirds(Catalogue& catalogue)
{
	FlightStyle quick;
	quick.up = .9f, quick.down = -.7f, quick.lift = 5, quick.bob = 1;
	FlightStyle clapping = quick; // a pigeon's wings meet above its back
	clapping.beatFrames = 8, clapping.up = 1.05f, clapping.glide = .5f, clapping.glideTip = .6f;
	FlightStyle rowing = quick;
	rowing.up = .75f, rowing.down = -.7f, rowing.lift = 7, rowing.bob = 1.4f;

	AddFlier(
	    catalogue, __FILE__, BlueBird, quick, "perch",
	    {{"look", LookBothWays()}, {"ruffle", Ruffle(RUFFLE_FRAMES)}, {"walk", Walk(WALK_FRAMES)}});
	AddFlier(catalogue, __FILE__, Pigeon, clapping, "stand",
	         {{"look", LookBothWays()},
	          {"ruffle", Ruffle(RUFFLE_FRAMES)},
	          {"walk", Walk(WALK_FRAMES)},
	          {"lowerhead", Peck(3)}});
	AddFlier(
	    catalogue, __FILE__, Crow, rowing, "perch",
	    {{"look", LookBothWays()}, {"ruffle", Ruffle(RUFFLE_FRAMES)}, {"walk", Walk(WALK_FRAMES)}});
}
