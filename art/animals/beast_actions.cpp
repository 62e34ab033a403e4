// The timing of four-footed animals' gestures.
#include "art/animals/beast_actions.h"

static const float GALLOP_STRIDE = 1.45f;
static const float WIDEST        = 1.3f; // of a mouth, where 1 is open

// A gesture's strength: quick up and slow down, with one small swing below zero.
static float Jolt(float t)
{
	return std::sin(PI * std::pow(t, .6f)) * (1 - .25f * t) - .12f * std::sin(2 * PI * t) * t;
}

// Rises at once, holds, and falls.
static float Plateau(float t, float steepness)
{
	return std::min(1.f, steepness * std::sin(t * PI));
}

static float PressAtFirst(int i, float press)
{
	return i == 0 ? press : 0;
}

Poses Moo()
{
	Poses list(7);
	for (int i = 0; i < 7; i++) {
		float a    = Jolt(Part(i, 7));
		Pose& p    = list[i];
		p.squash   = PressAtFirst(i, 2.4f);
		p.mouth    = i ? Clamp01(a) : 0;
		p.headTip  = .42f * a;
		p.earSwing = .6f * a;
		p.look     = .2f * a;
	}
	return list;
}

Poses Squeal()
{
	Poses list = Moo();
	for (int i = 0; i < (int)list.size(); i++) {
		float a          = std::sin(Part(i, 7) * PI);
		list[i].rise     = 2.5f * a;
		list[i].wideEyes = .3f * a;
		list[i].headTip *= .7f;
	}
	return list;
}

Poses Roar()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float a     = Jolt(Part(i, 8));
		Pose& p     = list[i];
		p.squash    = PressAtFirst(i, 2.6f);
		p.mouth     = i ? Clamp01(a * 1.2f) : 0;
		p.headTip   = .34f * a;
		p.look      = .45f * a;
		p.tailRaise = a;
		p.frown     = Clamp01(a);
		p.earSwing  = .4f * a;
	}
	return list;
}

Poses Howl()
{
	Poses list(9);
	for (int i = 0; i < 9; i++) {
		float a     = i ? Plateau(Part(i, 9), 2.6f) : 0;
		Pose& p     = list[i];
		p.squash    = PressAtFirst(i, 2);
		p.headTip   = .85f * a;
		p.neckReach = .6f * a;
		p.mouth     = .55f * a;
		p.lid       = a > .9f ? 1 : 0;
		p.earSwing  = .25f * a;
	}
	return list;
}

Poses KickOut()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		Pose& p    = list[i];
		p.kick     = i ? std::max(0.f, Jolt(Part(i, 8))) : 0;
		p.squash   = PressAtFirst(i, 2.4f);
		p.headTip  = -.4f * p.kick;
		p.wideEyes = .3f * p.kick;
		p.mouth    = .5f * p.kick;
		p.earSwing = .5f * p.kick;
	}
	return list;
}

// Twice.
Poses Bark()
{
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		float t = Part(i, 6), call = i % 2 ? 1 : .25f;
		Pose& p     = list[i];
		p.squash    = PressAtFirst(i, 2);
		p.mouth     = i && i < 5 ? call : 0;
		p.headTip   = i ? .35f * call : 0;
		p.rise      = i && i < 5 ? 2.2f * call : 0;
		p.earSwing  = .6f * call;
		p.tailRaise = .6f * std::sin(t * PI);
		p.tailSwing = std::sin(t * 4 * PI);
	}
	return list;
}

Poses PawTheAir()
{
	const float UP[]  = {0, .45f, .85f, .85f, .85f, .6f, .2f}; // on its haunches
	const float PAW[] = {0, .3f, 1, .25f, 1, .25f, 0};
	Poses list(7);
	for (int i = 0; i < 7; i++) {
		float a     = std::sin(Part(i, 7) * PI);
		Pose& p     = list[i];
		p.squash    = PressAtFirst(i, 2.4f);
		p.rear      = UP[i];
		p.raisePaw  = PAW[i];
		p.look      = .35f * a;
		p.headTip   = -.25f * UP[i];
		p.mouth     = i > 0 && i < 6 ? .8f : 0;
		p.earSwing  = .8f * a;
		p.tailRaise = a;
		p.frown     = a;
	}
	return list;
}

Poses Spray()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float a     = Jolt(Part(i, 8));
		Pose& p     = list[i];
		p.squash    = PressAtFirst(i, 2);
		p.tailRaise = .9f * a;
		p.kick      = i > 1 ? .28f * std::max(0.f, a) : 0;
		p.look      = .6f * a;
	}
	return list;
}

Poses Trumpet()
{
	Poses list(9);
	for (int i = 0; i < 9; i++) {
		float a     = i ? Clamp01(std::sin(Part(i, 9) * PI) * 1.25f) : 0;
		Pose& p     = list[i];
		p.squash    = PressAtFirst(i, 2.6f);
		p.mouth     = a;
		p.headTip   = .28f * a;
		p.earSwing  = a;
		p.tailRaise = a;
	}
	return list;
}

Poses Yawn()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float a    = i ? Plateau(Part(i, 8), 1.5f) : 0;
		Pose& p    = list[i];
		p.squash   = PressAtFirst(i, 2.6f);
		p.mouth    = WIDEST * a;
		p.headTip  = .55f * a;
		p.look     = .45f * a;
		p.earSwing = .4f * a;
	}
	return list;
}

Poses RearUp()
{
	Poses list(9);
	for (int i = 0; i < 9; i++) {
		float t    = Part(i, 9);
		Pose& p    = list[i];
		p.squash   = PressAtFirst(i, 1.5f);
		p.rear     = Ease(t);
		p.look     = .35f * Ease(t);
		p.wideEyes = .2f * std::sin(t * PI);
	}
	return list;
}

Poses Growl()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float a   = std::sin(Part(i, 8) * PI);
		Pose& p   = list[i];
		p.rear    = 1;
		p.look    = .35f;
		p.mouth   = Clamp01(1.15f * a);
		p.headTip = .25f * a;
		p.frown   = a;
	}
	return list;
}

Poses ComeDownSmiling()
{
	const float REAR[] = {.7f, .25f, 0, 0}, PRESS[] = {0, 0, 1.8f, .6f};
	Poses list(4);
	for (int i = 0; i < 4; i++) {
		Pose& p    = list[i];
		p.rear     = REAR[i];
		p.squash   = PRESS[i];
		p.look     = .5f;
		p.mouth    = i < 3 ? .55f : .3f;
		p.headTip  = i == 3 ? .2f : .1f;
		p.earSwing = .4f;
	}
	return list;
}

Poses HeadDown()
{
	return LowerHead(6);
}

Poses Chew()
{
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		list[i].chew     = 1.2f * std::sin(i * PI / 3);
		list[i].earSwing = i == 4 ? .3f : 0;
	}
	return list;
}

Poses Whinny()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float t = Part(i, 8), a = std::sin(t * PI);
		Pose& p     = list[i];
		p.headTip   = .5f * a + .12f * std::sin(t * 6 * PI) * a;
		p.neckReach = .5f * a;
		p.mouth     = .7f * a;
		p.earSwing  = .6f * a;
		p.tailSwing = std::sin(t * 2 * PI);
		p.look      = .25f * std::sin(t * 4 * PI) * a;
	}
	return list;
}

// Quick breaths with an open mouth, over and over.
Poses Pant()
{
	Poses list(4);
	for (int i = 0; i < 4; i++) {
		float breath = .5f + .5f * std::sin(i * PI / 2);
		Pose& p      = list[i];
		p.mouth      = .4f + .4f * breath;
		p.squash     = .8f * breath;
		p.look       = .35f;
		p.headTip    = .1f;
		p.tailSwing  = std::cos(i * PI / 2);
		p.tailRaise  = .4f;
	}
	return list;
}

Poses Purr()
{
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		float wave  = std::sin(2 * PI * i / 6);
		Pose& p     = list[i];
		p.lid       = 1;
		p.headTip   = .18f + .05f * wave;
		p.look      = .5f;
		p.squash    = .4f + .4f * wave;
		p.tailSwing = std::cos(2 * PI * i / 6);
		p.tailRaise = .6f;
	}
	return list;
}

Poses Sniff()
{
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		float t = Part(i, 6), a = Plateau(t, 2);
		Pose& p     = list[i];
		p.headTip   = .35f * a;
		p.neckReach = a * (.4f + .3f * std::sin(i * PI / 1.5f));
		p.chew      = a * std::sin(i * PI / 1.5f);
		p.look      = .4f * std::sin(t * 2 * PI);
		p.tailSwing = std::sin(t * 2 * PI);
	}
	return list;
}

Poses Laugh()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float t = Part(i, 8), a = Plateau(t, 2), shake = std::sin(i * PI / 1.5f);
		Pose& p    = list[i];
		p.mouth    = a * (.65f + .3f * shake);
		p.headTip  = a * (.45f + .1f * shake);
		p.squash   = a * (.6f - .5f * shake);
		p.lid      = i > 1 && i < 6 ? 1 : 0;
		p.earSwing = .5f * a;
		p.look     = .4f * a;
	}
	return list;
}

Poses ShakeHead()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float t = Part(i, 8), a = std::sin(t * PI);
		Pose& p   = list[i];
		p.look    = .7f * a * std::sin(t * 6 * PI);
		p.headTip = -.35f * a;
		p.lid     = i > 1 && i < 6 ? 1 : 0;
	}
	return list;
}

Poses FlapEars()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float t           = Part(i, 8);
		list[i].earSwing  = .5f - .5f * std::cos(t * 4 * PI);
		list[i].chew      = .6f * std::sin(t * 2 * PI);
		list[i].tailSwing = std::sin(t * 4 * PI);
	}
	return list;
}

Poses Sleep()
{
	const float LYING[] = {1, 1, .95f, .7f, .38f, .12f};
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		list[i].lie    = LYING[i];
		list[i].lid    = i < 4 ? 1 : 0;
		list[i].squash = i == 0 ? -.8f : 0;
	}
	return list;
}

Poses Gallop(int count, Heading heading)
{
	Poses list = Walk(count, heading, GALLOP_STRIDE);
	for (int i = 0; i < count; i++)
		list[i].pitch = .05f * std::sin(2 * PI * i / count);
	return list;
}
