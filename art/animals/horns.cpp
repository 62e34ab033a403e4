// Each kind of horn.
#include "art/animals/horns.h"

namespace
{
struct HornBuilder {
	Model& model;
	const Head& head;
	const HeadFrame& frame;
	const Pose& pose;
	int horn;
	float r, hl; // head radius, horn length

	int PaleHorn(float part) const;
	void AddPair(int s);
	void AddCow(int s);
	void AddSwept(int s);
	void AddCurl(int s);
	void AddAntler(int s);
	void AddPalm(int s);
	void AddRhino();
	void AddSingle();
};

// Worn parts: ridges and tips.
int HornBuilder::PaleHorn(float part) const
{
	return model.Plain(Mix(HexColour(head.horns), HexColour(0xfff0d0), part), .1f);
}

void HornBuilder::AddPair(int s)
{
	switch (head.horn) {
	case HornKind::Cow:
		return AddCow(s);
	case HornKind::Swept:
		return AddSwept(s);
	case HornKind::Curl:
		return AddCurl(s);
	case HornKind::Antler:
		return AddAntler(s);
	case HornKind::Palm:
		return AddPalm(s);
	default:
		return;
	}
}

void HornBuilder::AddCow(int s)
{
	Vec3 e   = frame.Point(-r * .05f, r * .82f, s * r * .52f);
	Vec3 mid = e + frame.Along(.3f, hl * .45f, s * hl * .6f);
	model.RoundCone(e, mid, 1.6f, 1.2f, horn, .2f);
	model.RoundCone(mid, e + frame.Along(1.0f, hl * 1.05f, s * hl * .5f), 1.2f, .5f, horn, .3f);
}

// Up, then back.
void HornBuilder::AddSwept(int s)
{
	Vec3 e = frame.Point(r * .12f, r * .80f, s * r * .34f);
	model.Tube(e, e + frame.Along(.8f, hl * .55f, s * .3f),
	           e + frame.Along(-hl * .15f, hl * 1.05f, s * .8f),
	           e + frame.Along(-hl * .85f, hl * 1.05f, s * 1.6f), 1.6f, .55f, 4, horn, .2f, .3f);
}

// A spiral of beads: up from the brow, back, down and forward under the ear.
void HornBuilder::AddCurl(int s)
{
	const int BEADS = 19;
	int ridge       = PaleHorn(.26f);
	Vec3 centre     = frame.Point(-r * .18f, r * .22f, s * r * .86f), last;
	for (int i = 0; i < BEADS; i++) {
		float t = i / (BEADS - 1.f), a = Radians(62 + 318 * t), reach = hl * (1 - .30f * t);
		Vec3 at =
		    centre + frame.Along(std::cos(a) * reach, std::sin(a) * reach, s * (.2f + 2.6f * t));
		float thick = Mix(3.1f, 1.3f, t), swell = i % 3 ? 0 : .22f;
		if (i > 0)
			model.RoundCone(last, at, thick + swell, thick + swell, i % 3 ? horn : ridge,
			                i == 1 ? .3f : .1f);
		last = at;
	}
}

void HornBuilder::AddAntler(int s)
{
	Vec3 e   = frame.Point(-r * .1f, r * .8f, s * r * .4f);
	Vec3 mid = e + frame.Along(-1.5f, hl * .55f, s * hl * .45f);
	Vec3 tip = e + frame.Along(.4f, hl * 1.2f, s * hl * .55f);
	model.RoundCone(e, mid, 1.2f, 1.0f, horn, .2f);
	model.RoundCone(mid, tip, 1.0f, .6f, horn, .2f);
	model.RoundCone(mid, mid + frame.Along(2.8f, 2.6f, s * .8f), .9f, .55f, horn, .2f);
	Vec3 fork = Mix(mid, tip, .5f);
	model.RoundCone(fork, fork + frame.Along(-2.4f, 2.4f, s * .6f), .85f, .5f, horn, .2f);
}

// A moose's: a beam that widens to a long dished plate, held up and aside with its face forward;
// short points along the upper edge and one over the brow.
void HornBuilder::AddPalm(int s)
{
	const int POINTS = 7;
	int tip          = PaleHorn(.40f);
	Vec3 root        = frame.Point(-r * .10f, r * .72f, s * r * .40f);
	Vec3 along = Normalize(Vec3{-.02f, .26f, s * .95f}), face = {.80f, .58f, 0};
	face        = Normalize(face - along * Dot(face, along));
	Vec3 across = Cross(face, along) * (float)-s; // upward
	Mat3 plate  = frame.axes * AxesFrom(along, across, face);
	float l = hl * .52f, w = hl * .38f;
	Vec3 beam = root + plate * Vec3{hl * .30f, 0, 0};
	Vec3 palm = root + plate * Vec3{hl * .72f, w * .22f, 0};
	model.RoundCone(root, beam, 1.5f, 1.9f, horn, .3f);
	model.Ellipsoid(palm, {l, w, 1.3f}, plate, horn, 1.4f);
	for (int i = 0; i < POINTS; i++) {
		float a   = Radians(-12 + 22.f * i);
		Vec3 out  = plate * Normalize(Vec3{std::cos(a) + .25f, std::sin(a) + .5f, .12f});
		Vec3 edge = palm + plate * Vec3{l * .86f * std::cos(a), w * .80f * std::sin(a), 0};
		model.RoundCone(edge, edge + out * (hl * .26f), 1.5f, .40f, tip, .6f);
	}
	model.RoundCone(beam, beam + frame.Along(hl * .34f, hl * .12f, s * .6f), 1.1f, .5f, tip, .4f);
}

void HornBuilder::AddRhino()
{
	Vec3 front =
	    MuzzleTip(head, frame, pose) + frame.Along(head.muzzleTip * .1f, head.muzzleTip * .7f, 0);
	model.Tube(front, front + frame.Along(2.6f, hl * .30f, 0),
	           front + frame.Along(3.6f, hl * .65f, 0), front + frame.Along(2.4f, hl, 0), 3.0f, .5f,
	           4, horn, .8f, .3f);
	Vec3 rear = frame.Point(r * .72f + head.muzzleLength * .25f, r * .28f, 0);
	model.RoundCone(rear, rear + frame.Along(1.0f, hl * .5f, 0), 2.0f, .5f, horn, .6f);
}

void HornBuilder::AddSingle()
{
	Vec3 e = frame.Point(r * .52f, r * .78f, 0), t = frame.Point(r * 1.0f, r * .8f + hl, 0);
	model.RoundCone(e, t, 1.5f, .35f, horn, .2f);
	for (int i = 1; i < 5; i++)
		model.Ring(Mix(e, t, i * .19f), Mix(1.35f, .55f, i * .2f), .28f, frame.axes * TurnZ(-.35f),
		           horn, .1f);
}
} // namespace

void AddHorns(Model& model, const Head& head, const HeadFrame& frame, const Pose& pose, int horn)
{
	HornBuilder builder{model, head, frame, pose, horn, head.radius, head.hornLength};
	for (int s : {-1, 1})
		builder.AddPair(s);
	if (head.horn == HornKind::Rhino)
		builder.AddRhino();
	if (head.horn == HornKind::Single)
		builder.AddSingle();
}
