// Vulture and eagle.
#include "art/animals/actions.h"
#include "art/animals/flight.h"
#include "art/animals/fliers.h"
#include "art/families.h"

static Bird EagleShape()
{
	Bird b;
	b.bodyLength = 10, b.bodyRadius = 7.2f, b.tilt = .92f, b.headRadius = 6;
	b.neckForward = 1.2f, b.neckUp = 4.4f;
	b.legLength = 3.4f, b.legRadius = 1.4f, b.thigh = 3.2f;
	b.beakKind = BeakKind::Hook, b.beakLength = 4.6f, b.beakRadius = 2.3f;
	b.tailLength = 6.4f, b.tailWidth = 4, b.tailUp = -.6f;
	b.wingLength = 10.6f, b.wingWidth = 4.8f, b.span = 13, b.chord = 7, b.fingers = .8f;
	b.eye  = {2.1f, .62f, .22f, .60f, .50f, 0xf2d030, 0, .5f};
	b.brow = 1;
	b.body = 0x80502e, b.belly = 0x6e4528, b.wing = 0x6a4429, b.wingTip = 0x4a3220;
	b.trail = 0x5a3a24, b.head = 0xfdfbf4, b.tail = 0xfaf6ec, b.beak = 0xf6b81e, b.leg = 0xf2b030;
	return b;
}

// The shoulders stand higher than the bare head, which hangs before them.
static Bird VultureShape()
{
	Bird b;
	b.bodyLength = 9.6f, b.bodyRadius = 6, b.tilt = .90f, b.headRadius = 4;
	b.longNeck = true, b.neckForward = 8, b.neckUp = 2.2f, b.neckRadius = 1.8f, b.neckCurve = 1.6f;
	b.ruffCollar = 3.4f, b.collar = 0xfaf4ea;
	b.legLength = 5, b.legRadius = 1.2f, b.thigh = 3;
	b.beakKind = BeakKind::Hook, b.beakLength = 5.2f, b.beakRadius = 1.8f, b.beakEnd = 0x54485a;
	b.tailLength = 5.4f, b.tailWidth = 3.8f, b.tailUp = -.6f;
	b.wingLength = 12, b.wingWidth = 5.2f, b.shoulder = .38f;
	b.span = 13.5f, b.chord = 8, b.fingers = 1;
	b.eye  = {1.9f, .60f, .30f, .62f, .55f, 0, 0, .5f};
	b.body = 0x5e5068, b.belly = 0x4c4254, b.wing = 0x54485e, b.wingTip = 0x383040;
	b.trail = 0x8a7e8c, b.head = 0xf49e96, b.tail = 0x383040, b.beak = 0xe4c484, b.leg = 0xcaa898;
	return b;
}

Species Eagle()
{
	return BirdSpecies("eagle", 0, 37, EagleShape);
}

Species Vulture()
{
	return BirdSpecies("vulture", 0, 36, VultureShape);
}

void AddRaptors(Catalogue& catalogue)
{
	FlightStyle soaring;
	soaring.beatFrames = 10, soaring.up = .8f, soaring.down = -.55f;
	soaring.lift = 12.5f, soaring.bob = 1.8f, soaring.glide = .02f, soaring.glideTip = .22f;
	soaring.rock          = .05f;
	FlightStyle teetering = soaring; // wings held in a V
	teetering.lift        = 14;
	teetering.glide = .36f, teetering.glideTip = .55f, teetering.rock = .13f;

	AddFlier(catalogue, __FILE__, Eagle, soaring, "stand",
	         {{"stand", {Blinking()}, "blink", false},
	          {"look", Look(5)},
	          {"ruffle", Ruffle(6)},
	          {"stunned", Startled(7)}});
	AddFlier(catalogue, __FILE__, Vulture, teetering, "perch",
	         {{"look", LookBothWays()}, {"ruffle", Ruffle(6)}, {"lowerhead", Peck(3)}});
}
