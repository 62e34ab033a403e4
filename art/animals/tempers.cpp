// Gestures that tell the temper of a species: how it lowers its head, and how it takes a bump.
#include "art/animals/beast_actions.h"

Poses Stalk()
{
	Poses list = LowerHead(6);
	for (Pose& p : list) {
		float a     = p.headDown;
		p.headDown  = .62f * a;
		p.headTip   = .34f * a;
		p.squash    = 2.4f * a;
		p.frown     = a;
		p.earSwing  = .5f * a;
		p.look      = .2f * a;
		p.tailSwing = std::sin(a * 2 * PI);
		p.tailRaise = -.5f * a;
	}
	return list;
}

Poses Slink()
{
	Poses list = LowerHead(6);
	for (Pose& p : list) {
		float a    = p.headDown;
		p.headDown = .78f * a;
		p.headTip  = .2f * a;
		p.squash   = 1.6f * a;
		p.look     = .8f * a;
		p.earSwing = .8f * a;
		p.mouth    = .3f * a;
	}
	return list;
}

Poses Doze()
{
	Poses list = LowerHead(6);
	for (int i = 0; i < 6; i++) {
		float a          = list[i].headDown;
		list[i].headDown = .8f * a;
		list[i].squash   = 2 * a;
		list[i].lid      = i == 5 ? 1 : .6f * a;
		list[i].earSwing = i == 2 || i == 4 ? .9f : .3f * a;
		list[i].look     = .3f * a;
	}
	return list;
}

Poses LowerHorn()
{
	Poses list = LowerHead(6);
	for (int i = 0; i < 6; i++) {
		float a           = list[i].headDown;
		list[i].headDown  = .85f * a;
		list[i].headTip   = -.12f * a;
		list[i].squash    = .8f * a;
		list[i].frown     = a;
		list[i].earSwing  = -.2f * a;
		list[i].tailRaise = a;
		list[i].raisePaw  = i == 3 ? .45f : i == 4 ? .25f : 0;
		list[i].look      = .3f * a;
	}
	return list;
}

Poses Browse()
{
	Poses list = LowerHead(6);
	for (int i = 0; i < 6; i++) {
		float a          = list[i].headDown;
		list[i].look     = .45f * a;
		list[i].chew     = i > 3 ? 1.2f : 0;
		list[i].mouth    = i == 4 ? .4f : 0;
		list[i].earSwing = .5f * a;
	}
	return list;
}

Poses LookDownItsNose()
{
	Poses list = LowerHead(6);
	for (int i = 0; i < 6; i++) {
		float a          = list[i].headDown;
		list[i].headDown = .9f * a;
		list[i].headTip  = .42f * a;
		list[i].look     = .7f * a;
		list[i].lid      = .45f * a;
		list[i].chew     = i == 3 ? -1.2f : i == 4 ? 1.2f : 0;
	}
	return list;
}

Poses TossHorn()
{
	const float DOWN[] = {.2f, .7f, .75f, .3f, .6f, .25f, 0};
	const float TIP[]  = {0, -.2f, 0, .55f, -.1f, .3f, 0};
	Poses list(7);
	for (int i = 0; i < 7; i++) {
		float a     = std::sin(Part(i, 7) * PI);
		Pose& p     = list[i];
		p.squash    = i == 0 ? 2.8f : 0;
		p.headDown  = DOWN[i];
		p.headTip   = TIP[i];
		p.frown     = i ? 1 : 0;
		p.raisePaw  = i == 2 || i == 4 ? .5f : 0;
		p.rise      = i == 3 ? 2 : 0;
		p.mouth     = i == 3 || i == 5 ? .7f : 0;
		p.tailRaise = a;
		p.look      = .3f * a;
	}
	return list;
}

Poses TossAntlers()
{
	const float DOWN[] = {.1f, .45f, .3f, 0, 0, 0, 0};
	const float TIP[]  = {0, -.35f, -.1f, .45f, .6f, .3f, .05f};
	const float CALL[] = {0, 0, .3f, .9f, 1, .5f, 0};
	Poses list(7);
	for (int i = 0; i < 7; i++) {
		float a    = std::sin(Part(i, 7) * PI);
		Pose& p    = list[i];
		p.squash   = i == 0 ? 3 : 0;
		p.headDown = DOWN[i];
		p.headTip  = TIP[i];
		p.mouth    = CALL[i];
		p.look     = i > 2 ? .45f * a : -.2f * a;
		p.earSwing = .8f * a;
		p.wideEyes = i == 1 || i == 2 ? .3f : 0;
		p.lid      = i == 4 ? 1 : 0;
	}
	return list;
}

Poses FallToItsKnees()
{
	const float LYING[] = {.05f, .2f, .52f, .76f, .74f, .5f, .15f};
	Poses list(7);
	for (int i = 0; i < 7; i++) {
		Pose& p    = list[i];
		p.lie      = LYING[i];
		p.squash   = i == 0 ? 2.6f : i == 3 ? 1.8f : 0;
		p.rise     = i == 1 ? 1.5f : 0;
		p.wideEyes = i < 3 ? .35f : 0;
		p.mouth    = i > 0 && i < 5 ? .8f : 0;
		p.lid      = i == 3 ? 1 : i == 4 ? .5f : 0;
		p.earSwing = i > 0 && i < 5 ? .7f : 0;
		p.headTip  = i == 2 ? .3f : 0;
		p.look     = i > 3 ? .5f : .2f;
	}
	return list;
}

Poses StartUp()
{
	Poses list(7);
	for (int i = 0; i < 7; i++) {
		float t = Part(i, 7), a = std::sin(t * PI);
		Pose& p     = list[i];
		p.squash    = i == 0 ? 3 : i == 5 ? 1.6f : 0;
		p.rise      = i && i < 5 ? 5 * std::sin(i * PI / 5) : 0;
		p.tuck      = i && i < 5 ? .35f * a : 0;
		p.neckReach = i ? a : 0;
		p.headTip   = .2f * a;
		p.wideEyes  = .38f * a;
		p.earSwing  = .7f * a;
		p.tailRaise = a;
		p.look      = .3f * a;
	}
	return list;
}
