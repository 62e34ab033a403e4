// The timing of shared actions.
#include "art/animals/actions.h"

float Ease(float t)
{
	return Smoothstep(0, 1, t);
}

float Part(int i, int count)
{
	return count > 1 ? i / (count - 1.f) : 0;
}

Pose Blinking()
{
	Pose p;
	p.lid = 1;
	return p;
}

Pose EyesWide()
{
	Pose p;
	p.wideEyes = .35f;
	return p;
}

Pose Captured()
{
	Pose p;
	p.look     = .5f;
	p.tuck     = 1;
	p.wideEyes = .1f;
	p.shadow   = false;
	return p;
}

Poses Look(int count, float way)
{
	Poses list(count);
	for (int i = 0; i < count; i++)
		list[i].look = way * Ease((i + 1) / (float)count);
	return list;
}

Poses Walk(int count, Heading heading, float strideSize)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		list[i].stride     = i / (float)count;
		list[i].strideSize = strideSize;
		list[i].heading    = heading;
	}
	return list;
}

// Leans over the standing foot.
Poses Waddle(int count, Heading heading, float sway, float strideSize)
{
	Poses list = Walk(count, heading, strideSize);
	for (int i = 0; i < count; i++)
		list[i].sway = sway * std::sin(2 * PI * i / count);
	return list;
}

Poses LowerHead(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++)
		list[i].headDown = Ease((i + 1) / (float)count);
	return list;
}

Poses Graze(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float a          = 2 * PI * i / count;
		list[i].headDown = 1;
		list[i].chew     = 1.3f * std::sin(a);
	}
	return list;
}

Poses Stagger(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t    = Part(i, count);
		Pose& p    = list[i];
		p.squash   = i == 0 ? 3 : 2.2f * std::sin(t * 2 * PI) * (1 - t);
		p.wideEyes = .35f * std::sin(t * PI);
		p.headTip  = -.30f * std::sin(t * 2 * PI);
		p.mouth    = i > 0 && i < count - 1 ? .2f + .6f * std::sin(t * PI) : 0;
		p.earSwing = std::sin(t * PI);
	}
	return list;
}

Poses Squawk(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t     = Part(i, count);
		bool during = i > 0 && i < count - 1;
		float beat  = std::fabs(std::sin(t * 3 * PI)) * (1 - .3f * t);
		Pose& p     = list[i];
		p.squash    = i == 0 ? 2 : 0;
		p.armsUp    = during ? Clamp01(.15f + beat) : 0;
		p.mouth     = during && i < count - 2 ? .9f : 0;
		p.rise      = 3 * std::sin(t * PI);
		p.ruffle    = .4f * std::sin(t * PI);
		p.headTip   = .15f * std::sin(t * PI);
	}
	return list;
}
