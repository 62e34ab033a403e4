// Each way to hold a wing.
#include "art/animals/wings.h"

namespace
{
struct WingBuilder {
	Model& model;
	const Bird& bird;
	const Pose& pose;
	const WingPlace& place;
	int s;

	Vec3 OnBody(float x, float y, float z) const { return place.body + place.axes * Vec3{x, y, z}; }
	void AddFolded();
	void AddBands(Vec3 centre, const Mat3& axes);
	void AddFlipper();
	void AddSpread();
	void AddFeathers(Vec3 root, Vec3 wrist, Vec3 inner, Vec3 outer);
};

void WingBuilder::AddFolded()
{
	float puff = pose.ruffle, length = bird.wingLength, width = bird.wingWidth;
	float out   = bird.bodyRadius * (.84f + puff * .35f);
	float lift  = pose.armsUp * bird.bodyRadius * .45f;
	Vec3 centre = OnBody(-bird.bodyLength * .12f, bird.bodyRadius * bird.shoulder + lift,
	                     s * (out + lift * .4f));
	Mat3 axes   = place.axes * TurnX(s * (.1f + puff * .5f + pose.armsUp * .6f));
	model.Ellipsoid(centre, {length * .78f, width * .95f, bird.bodyRadius * .30f}, axes, place.wing,
	                .5f);
	// Long feathers, so that the tip reads as feathers and not as a flipper.
	for (int i = 0; i < 3; i++) {
		Vec3 from = centre + axes * Vec3{-length * .30f, -width * (.05f + .30f * i),
		                                 bird.bodyRadius * .08f * s};
		Vec3 to = centre + axes * Vec3{-length * (1.08f - .16f * i), -width * (.18f + .30f * i), 0};
		model.RoundCone(from, to, width * .36f, width * .20f, place.tip, .25f);
	}
	if (bird.bands > 0)
		return AddBands(centre, axes);
	if (bird.wingBar)
		model.Ellipsoid(
		    centre + axes * Vec3{-length * .30f, -width * .42f, bird.bodyRadius * .20f * s},
		    {length * .24f, width * .30f, bird.bodyRadius * .16f}, axes, place.bar, .1f);
}

// Stripes from the upper to the lower edge of the folded wing.
void WingBuilder::AddBands(Vec3 centre, const Mat3& axes)
{
	float length = bird.wingLength, width = bird.wingWidth, out = bird.bodyRadius * .17f * s;
	for (int i = 0; i < bird.bands; i++) {
		float x = -length * (.12f + .30f * i);
		model.RoundCone(centre + axes * Vec3{x + length * .05f, width * .42f, out},
		                centre + axes * Vec3{x - length * .10f, -width * .62f, out}, width * .17f,
		                width * .15f, place.bar, .1f);
	}
}

void WingBuilder::AddFlipper()
{
	float lift = Clamp01(pose.armsUp + pose.ruffle * .6f), length = bird.wingLength;
	float wide = bird.wingWidth;
	Vec3 joint = OnBody(bird.bodyLength * .35f, 0, s * bird.bodyRadius * .85f);
	float out  = 1.5f + length * .8f * lift + (pose.stride >= 0 ? 1.2f : 0);
	Vec3 end   = joint + Vec3{-1.5f - lift, -length * (1 - lift * 1.3f), s * out};
	Vec3 mid   = Mix(joint, end, .55f);
	model.RoundCone(joint, mid, wide * .55f, wide * .62f, place.wing, .6f);
	model.RoundCone(mid, end, wide * .62f, wide * .28f, place.tip, .6f);
}

static Mat3 PanelAxes(Vec3 along)
{
	const Vec3 BACK = {-1, 0, 0};
	Vec3 normal     = Normalize(Cross(along, BACK));
	return AxesFrom(Normalize(Cross(normal, along)), normal, along);
}

// Two flat panels and fanned feathers. The outer panel follows the inner one with a lag.
void WingBuilder::AddSpread()
{
	float flap  = pose.flying ? pose.flap : -.1f + .9f * pose.armsUp;
	float tip   = pose.flying ? pose.flapTip : flap;
	float inner = .18f + flap * .95f, outer = inner * .45f + tip * .75f;
	float back = pose.flying ? pose.fold : 0;
	Vec3 d1    = Normalize({.12f + .30f * back, std::sin(inner), s * std::cos(inner)});
	Vec3 d2    = Normalize({-.30f - 1.1f * back, std::sin(outer), s * std::cos(outer)});
	float span = bird.span * (1 - .12f * back), chord = bird.chord;
	Vec3 root  = OnBody(bird.bodyLength * .22f, bird.bodyRadius * .50f, s * bird.bodyRadius * .45f);
	Vec3 wrist = root + d1 * span;
	AddFeathers(root, wrist, d1, d2); // before the panels, whose blend then covers their roots
	model.Ellipsoid(Mix(root, wrist, .48f) + Vec3{-chord * .12f, 0, 0},
	                {chord * .56f, chord * .20f, span * .66f}, PanelAxes(d1), place.wing, .9f);
	model.Ellipsoid(wrist + d2 * (span * .22f) + Vec3{-chord * .10f, 0, 0},
	                {chord * .46f, chord * .17f, span * .42f}, PanelAxes(d2), place.wing, .8f);
}

void WingBuilder::AddFeathers(Vec3 root, Vec3 wrist, Vec3 inner, Vec3 outer)
{
	const Vec3 BACK = {-1, 0, 0};
	const int SHORT = 5, LONG = 7;
	float span = bird.span, chord = bird.chord;
	for (int i = 0; i < SHORT; i++) {
		Vec3 from = Mix(root, wrist, .06f + .23f * i) + BACK * (chord * .25f);
		model.RoundCone(from, from + Normalize(BACK + inner * (.04f + .05f * i)) * (chord * .98f),
		                chord * .28f, chord * .20f, place.trail, .5f);
	}
	// Parted feathers are slender and bend up at their ends.
	float part = bird.fingers, slim = 1 - .42f * part, shorten = .055f + .06f * bird.point;
	Vec3 up = Normalize(Cross(BACK, outer)) * (float)-s;
	for (int i = 0; i < LONG; i++) {
		Vec3 from = Mix(wrist, wrist + outer * (span * .35f), 1 - i / (LONG - 1.f)) +
		            BACK * (chord * .12f * i / (LONG - 1.f));
		float a        = .06f - .10f * part + (.215f + .035f * part) * i;
		Vec3 direction = Normalize(outer * std::cos(a) + BACK * std::sin(a) + up * (.12f * part));
		model.RoundCone(from, from + direction * (span * (.94f - shorten * i)),
		                chord * .19f * (1 - .25f * part), chord * .12f * slim, place.tip,
		                .3f * (1 - part));
	}
}
} // namespace

void AddWing(Model& model, const Bird& bird, const Pose& pose, const WingPlace& place)
{
	const float LEAST_SPREAD = .35f; // wings that are lifted less stay folded
	WingBuilder builder{model, bird, pose, place, place.side};
	if (bird.flippers)
		builder.AddFlipper();
	else if (pose.flying || pose.armsUp > LEAST_SPREAD)
		builder.AddSpread();
	else
		builder.AddFolded();
}
