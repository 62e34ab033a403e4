// The timing of water birds' and waders' gestures.
#include "art/animals/fowl_actions.h"

Poses MoveHead(int count, float reach)
{
	const float DRAWN_IN = -.35f;
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float r           = i == 0 ? DRAWN_IN : std::min(1.f, .2f + .6f * (i - 1));
		list[i].neckReach = r * reach;
		list[i].headTip   = .10f * r;
	}
	return list;
}

Poses AdjustWings(int count, float lift)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t = Part(i, count), a = std::sin(t * PI), shake = std::sin(t * 6 * PI) * a;
		Pose& p     = list[i];
		p.armsUp    = lift * a;
		p.ruffle    = .55f * a;
		p.tailSwing = shake;
		p.sway      = .07f * shake;
		p.rise      = 1.0f * a;
		p.neckReach = .4f * a;
		p.lid       = i == count / 2 - 1 || i == count / 2 ? 1 : 0;
	}
	return list;
}

Poses HonkAndFlap(int count, float low)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t = Part(i, count), a = std::min(1.f, 1.8f * std::sin(t * PI));
		bool during = i > 0 && i < count - 1;
		Pose& p     = list[i];
		p.squash    = i == 0 ? 2.2f : 0;
		p.armsUp    = during ? .75f + .35f * std::cos(i * PI) : 0;
		p.mouth     = during && i < count - 2 ? 1 : 0;
		p.headDown  = low * a;
		p.headTip   = (.15f + .9f * low) * a;
		p.neckReach = .9f * a;
		p.rise      = 2.2f * a;
		p.ruffle    = .3f * a;
		p.tailRaise = .5f * a;
		p.wideEyes  = .2f * a;
	}
	return list;
}
