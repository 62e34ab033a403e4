// Owl and snowy owl.
#include "art/animals/actions.h"
#include "art/animals/flight.h"
#include "art/animals/fliers.h"
#include "art/families.h"

static Bird OwlShape()
{
	Bird b;
	b.bodyLength = 8.0f, b.bodyRadius = 7.4f, b.tilt = 1.2f;
	b.headRadius = 7.8f, b.neckForward = .6f, b.neckUp = 3.4f;
	b.legLength = 1.8f, b.legRadius = 1.1f;
	b.owlFace = true, b.beakLength = 1.6f, b.beakRadius = 1.3f, b.earTufts = 4.2f;
	b.tailLength = 3.6f, b.tailWidth = 3.2f, b.wingLength = 8.6f, b.wingWidth = 4;
	b.span = 12, b.chord = 7.6f, b.fingers = .25f;
	b.eye   = {3.2f, .92f, .14f, .43f, .30f, 0xf8a81e, 0, .1f};
	b.spots = .60f, b.fleckSize = .75f, b.bellySpots = true, b.bellyLine = .85f;
	b.body = 0x9c6c3c, b.belly = 0xf0d8ae, b.wing = 0x85582f, b.wingTip = 0x684322;
	b.trail = 0xb48656, b.tail = 0x85582f;
	b.face = 0xf6e2bc, b.fleck = 0x7c5228, b.beak = 0xe8ae3a, b.leg = 0xecbc60;
	return b;
}

// Rounder than its cousin: no tufts, feathers down to the toes, narrow yellow eyes.
static Bird SnowyOwlShape()
{
	Bird b     = OwlShape();
	b.earTufts = 0, b.bodyRadius = 8.6f, b.bodyLength = 9.4f, b.thigh = 3.2f;
	b.headRadius = 7.4f, b.neckUp = 3.8f;
	b.eye   = {2.9f, .93f, .15f, .42f, .32f, 0xf8cc20, 0, .1f};
	b.spots = .53f, b.bellySpots = false;
	b.body = b.belly = 0xfcfcff, b.wing = 0xf4f6fa, b.wingTip = 0xe2e6ee;
	b.wingBar = 0x747a92, b.bands = 3;
	b.trail = 0xd6dbe6, b.tail = 0xe6e9f0;
	b.face = 0xffffff, b.fleck = 0x747a92, b.beak = 0x4a4650, b.leg = 0xf4f4f8;
	return b;
}

Species Owl()
{
	return BirdSpecies("owl", 0, 30, OwlShape);
}

Species SnowyOwl()
{
	return BirdSpecies("snowyowl", 0, 31, SnowyOwlShape);
}

// Turns far round without moving the body.
static Poses TurnFar()
{
	Poses list(5);
	for (int i = 0; i < 5; i++)
		list[i].look = 1.25f * Ease((i + 1) / 5.f);
	return list;
}

// Turns the other way and lays its head aside.
static Poses Wonder()
{
	Poses list(5);
	for (int i = 0; i < 5; i++) {
		float t          = Ease((i + 1) / 5.f);
		list[i].look     = -.75f * t;
		list[i].headRoll = -.50f * t;
	}
	return list;
}

void AddOwls(Catalogue& catalogue)
{
	FlightStyle silent;
	silent.beatFrames = 8, silent.up = .8f, silent.down = -.5f, silent.lift = 9;
	silent.bob = 1.4f, silent.glide = .10f, silent.glideTip = .05f;
	std::vector<Sequence> own = {
	    {"lookA", TurnFar()}, {"lookB", Wonder()}, {"stunned", Startled(6)}};
	AddFlier(catalogue, __FILE__, Owl, silent, "perch", own);
	AddFlier(catalogue, __FILE__, SnowyOwl, silent, "perch", own);
}
