// Body, head and legs of birds.
#include "art/animals/bird.h"

#include "art/animals/limbs.h"
#include "art/animals/wings.h"

static const float STANCE     = .55f;              // part of a stride that a foot stays down
static const float LONG_SHANK = 8;                 // legs longer than this show their joint
static const float FLYING_FAN = 2.5f;              // spread of the tail in the air
static const float REST_TURN = 14, LOOK_TURN = 46; // degrees
static const float OWL_REST_TURN = 42, OWL_LOOK_TURN = 42; // an owl faces the viewer at rest
static const uint32_t COMB_RED = 0xe0342c;
static const Colour ROSY       = HexColour(0xf08a5a);

namespace
{
class BirdBuilder
{
public:
	BirdBuilder(Model& newModel, const Bird& newBird, const View& newView, const Pose& newPose)
	    : model(newModel), bird(newBird), view(newView), pose(newPose)
	{
	}
	void Build();

private:
	void PlaceBody();
	void MakeMaterials();
	int BodyMaterial();
	int HeadMaterial();
	int NeckMaterial();
	Vec3 OnBody(float x, float y, float z) const { return body + bodyAxes * Vec3{x, y, z}; }
	void AddBody();
	void AddRuff();
	void AddTail();
	void AddTailEnd(Vec3 root, Vec3 reach, float tip, float fan, int feathers);
	Vec3 NeckOffset(Vec3 base) const;
	void PlaceHead();
	void AddNeck(Vec3 base, Vec3 offset);
	void AddHead();
	void AddBrows();
	void AddFace();
	void AddCrown();
	void AddBeak();
	void AddFlatBeak();
	void AddHookedBeak();
	Vec3 FootOf(int side, Vec3 joint) const;
	void AddLeg(int side);

	Model& model;
	const Bird& bird;
	View view;
	const Pose& pose;
	bool walking = false;
	float phase  = 0;
	Vec3 body, neckBase;
	Mat3 bodyAxes;
	HeadFrame head;
	int coat = 0, wing = 0, wingTip = 0, bar = 0, trail = 0, headCoat = 0, neck = 0, beak = 0,
	    leg = 0, tail = 0;
};

void BirdBuilder::Build()
{
	PlaceBody();
	PlaceHead();
	MakeMaterials();
	AddBody();
	AddTail();
	AddHead();
	for (int side : {-1, 1}) {
		AddWing(model, bird, pose, {body, bodyAxes, wing, wingTip, bar, trail, side});
		AddLeg(side);
	}
}

void BirdBuilder::PlaceBody()
{
	walking      = pose.stride >= 0;
	phase        = walking ? pose.stride : 0;
	float height = bird.legLength * (1 - .55f * pose.tuck) + bird.bodyRadius + 1;
	float step   = walking ? std::fabs(std::sin(phase * 2 * PI)) * .6f : 0;
	body         = {0, height - pose.squash + pose.rise + step, 0};
	bodyAxes     = TurnZ(pose.flying ? std::min(.10f, bird.tilt) : bird.tilt);
}

// Back, belly and breast in one paint.
int BirdBuilder::BodyMaterial()
{
	return model.Painted(
	    [b = bird, centre = body, toLocal = Transpose(bodyAxes)](const SurfacePoint& at) {
		    Vec3 l  = toLocal * (at.position - centre);
		    float x = l.x / b.bodyLength, y = l.y / b.bodyRadius;
		    float side = y - .45f * x + .5f - b.bellyLine;
		    Colour c   = Mix(HexColour(b.body), HexColour(b.belly), Smoothstep(.15f, -.25f, side));
		    if (b.breast) {
			    float from = 1 - b.breastLine;
			    c = Mix(c, HexColour(b.breast), Smoothstep(from - .08f, from + .08f, x + .15f * y));
		    }
		    if (b.spots > 0) {
			    Vec3 p   = {l.x * .62f, l.y * 1.1f, std::fabs(l.z) * .8f};
			    p        = p * (1 / b.fleckSize) + Vec3{4, 9, 2};
			    float on = b.bellySpots ? Smoothstep(.15f, -.25f, side) : 1;
			    c = Mix(c, HexColour(b.fleck), on * Smoothstep(b.spots, b.spots + .06f, Noise(p)));
		    }
		    return c;
	    },
	    .12f);
}

int BirdBuilder::HeadMaterial()
{
	Colour base = HexColour(bird.head ? bird.head : bird.body);
	float gloss = bird.head ? .3f : .12f;
	if (bird.blush <= 0)
		return model.Plain(base, gloss);
	return model.Painted(
	    [base, at = head, r = bird.headRadius, blush = bird.blush](const SurfacePoint& s) {
		    Vec3 p   = Transpose(at.axes) * (s.position - at.centre) * (1 / r);
		    float dy = p.y + .18f, dz = std::fabs(p.z) - .78f;
		    float near =
		        Smoothstep(.40f, .12f, std::sqrt(dy * dy + dz * dz)) * Smoothstep(0, .3f, p.x);
		    return Mix(base, ROSY, near * blush);
	    },
	    gloss);
}

// A throat may change its colour from top to bottom.
int BirdBuilder::NeckMaterial()
{
	Colour top = HexColour(bird.neck ? bird.neck : bird.head ? bird.head : bird.body);
	if (!bird.sheen)
		return model.Plain(top);
	float low = neckBase.y, high = head.centre.y - bird.headRadius * .5f;
	return model.Painted(
	    [top, low, high, foot = HexColour(bird.sheen)](const SurfacePoint& at) {
		    return Mix(foot, top,
		               Smoothstep(Mix(low, high, .35f), Mix(low, high, .65f), at.position.y));
	    },
	    .45f);
}

void BirdBuilder::MakeMaterials()
{
	coat     = BodyMaterial();
	headCoat = HeadMaterial();
	wing     = model.Plain(bird.wing);
	wingTip  = model.Plain(bird.wingTip);
	bar      = model.Plain(bird.wingBar ? bird.wingBar : bird.wing, .3f);
	trail    = bird.trail ? model.Plain(bird.trail) : wing;
	neck     = NeckMaterial();
	beak     = model.Plain(bird.beak, .5f);
	leg      = model.Plain(bird.leg, .2f);
	tail     = model.Plain(bird.tail ? bird.tail : bird.wing);
}

void BirdBuilder::AddBody()
{
	float puff = 1 + pose.ruffle * .30f;
	model.Ellipsoid(body, Vec3{bird.bodyLength, bird.bodyRadius, bird.bodyRadius * .95f} * puff,
	                bodyAxes, coat, 0);
	if (bird.ruffCollar > 0)
		AddRuff();
}

// A ring of tufts about the root of the neck.
void BirdBuilder::AddRuff()
{
	int collar   = model.Plain(bird.collar);
	Vec3 neckWay = head.centre - neckBase, along = Normalize(neckWay);
	Vec3 aside = {0, 0, 1}, across = Normalize(Cross(aside, along));
	Vec3 centre = neckBase + neckWay * .16f;
	float c     = bird.ruffCollar * (1 + pose.ruffle * .35f);
	for (int i = 0; i < 12; i++) {
		float a = i * 2 * PI / 12;
		model.Ball(centre + (across * std::cos(a) + aside * std::sin(a)) * c, c * .42f, collar,
		           .7f);
	}
}

void BirdBuilder::AddTail()
{
	float length = bird.tailLength, width = bird.tailWidth;
	float swing = (walking ? std::sin(phase * 2 * PI) * 1.1f : 0) + pose.tailSwing * 2;
	float fan   = pose.flying ? FLYING_FAN : 1 + pose.ruffle;
	float tip   = width * (pose.flying ? .32f : .42f);
	if (pose.flying)
		length *= 1.15f;
	Vec3 root    = OnBody(-bird.bodyLength * .75f, .2f, 0);
	float up     = bird.tailUp + pose.tailRaise * length * .7f;
	int feathers = pose.flying ? 2 : 1; // at either side of the middle one
	for (int s = -feathers; s <= feathers; s++) {
		float aside = s * width * .55f * fan / feathers + swing;
		Vec3 end    = root + bodyAxes * Vec3{-length * (1 - .04f * s * s), up, aside};
		model.RoundCone(root, end, bird.bodyRadius * bird.tailThick, tip, tail, .8f);
	}
	if (bird.tailEnd)
		AddTailEnd(root, {-length, up, swing}, tip, fan, feathers);
	if (bird.tailCurl > 0) {
		int dark  = model.Plain(bird.wingTip, .2f);
		float c   = bird.tailCurl;
		Vec3 from = root + bodyAxes * Vec3{-length * .25f, up * .4f + c * .45f, swing * .4f};
		model.Tube(
		    from, from + Vec3{-c, 0, swing * .3f}, from + Vec3{-c * 1.5f, c * 1.3f, swing * .5f},
		    from + Vec3{-c * .35f, c * 1.25f, swing * .5f}, c * .42f, c * .28f, 5, dark, .4f, .2f);
	}
	for (int i = 0; bird.tailPlume > 0 && i < 5; i++) {
		float a = i * 2 * PI / 5, p = bird.tailPlume;
		Vec3 at = root + bodyAxes * Vec3{-p * .7f, p * (.35f + .4f * std::sin(a)),
		                                 p * .5f * std::cos(a) + swing};
		model.Ball(at, p * .62f, tail, .9f);
	}
}

// A band across the last third.
void BirdBuilder::AddTailEnd(Vec3 root, Vec3 reach, float tip, float fan, int feathers)
{
	int band    = model.Plain(bird.tailEnd);
	float width = bird.tailWidth;
	for (int s = -feathers; s <= feathers; s++) {
		float aside = s * width * .55f * fan / feathers;
		Vec3 end = root + bodyAxes * Vec3{reach.x * (1 - .04f * s * s), reach.y, reach.z + aside};
		model.RoundCone(Mix(root, end, .72f), end + bodyAxes * Vec3{-.15f, 0, 0}, tip * 1.1f,
		                tip * 1.07f, band, .2f);
	}
}

Vec3 BirdBuilder::NeckOffset(Vec3 base) const
{
	float r     = bird.headRadius;
	Vec3 offset = {bird.neckForward, bird.neckUp, 0};
	if (pose.flying && bird.longNeck)
		offset = Vec3{Length(offset) * .92f, Length(offset) * .38f, 0};
	offset = offset + Vec3{1.4f, 1.5f, 0} * pose.neckReach;
	if (pose.headDown <= 0)
		return offset;
	// Far enough forward to clear the breast, down until the beak meets the ground.
	float reach  = Length(offset);
	float floorY = r * 1.1f - base.y + pose.rise;
	float bury   = std::max(0.f, pose.headDown - 1) * r * 4; // beyond 1 it goes into the ground
	Vec3 down    = {std::max(reach * .75f, r * 1.2f), std::max(floorY, -reach * .95f) - bury, 0};
	float way    = std::min(pose.headDown, 1.f);
	Vec3 mixed   = Mix(offset, down, way);
	return Normalize(mixed) * Mix(reach, Length(down), way);
}

// The head nods against each step.
void BirdBuilder::PlaceHead()
{
	neckBase    = OnBody(bird.bodyLength * .55f, bird.bodyRadius * .35f, 0);
	float nod   = walking ? std::sin(phase * 4 * PI) * bird.nod : 0;
	float turn  = bird.owlFace ? pose.look * OWL_LOOK_TURN + OWL_REST_TURN
	                           : pose.look * LOOK_TURN + REST_TURN;
	head.centre = neckBase + NeckOffset(neckBase) + Vec3{nod, 0, 0};
	head.axes   = TurnY(Radians(turn) * view.TowardViewer()) *
	            TurnZ(-pose.headDown * .9f + pose.headTip) *
	            TurnX(-pose.sway * .6f + pose.headRoll * view.NearSide());
}

void BirdBuilder::AddNeck(Vec3 base, Vec3 offset)
{
	float r = bird.headRadius, thick = bird.neckRadius, curve = bird.neckCurve;
	Vec3 centre = head.centre;
	if (!bird.longNeck) {
		if (bird.neckRing > 0)
			model.Ellipsoid(Mix(base, centre, .42f), {r * .86f, bird.neckRing, r * .86f},
			                TurnZ(-.3f), model.Plain(bird.collar), .3f);
		return;
	}
	Vec3 p1 = base + Vec3{curve, offset.y * .38f, 0};
	Vec3 p2 = centre - Vec3{curve * 1.25f + offset.x * .25f, offset.y * .22f - curve * .4f, 0};
	model.Tube(base - Vec3{1, 1, 0}, p1, p2, centre, thick * 1.4f, thick * .95f, 7, neck, 3, 1.0f);
	if (bird.neckRing <= 0)
		return;
	Vec3 ring = Mix(base, centre, .34f);
	model.RoundCone(ring, ring + Vec3{.3f, bird.neckRing, 0}, thick * 1.3f, thick * 1.22f,
	                model.Plain(bird.collar), .2f);
}

void BirdBuilder::AddHead()
{
	float r = bird.headRadius;
	AddNeck(neckBase, head.centre - neckBase);
	model.Ball(head.centre, r, headCoat, bird.longNeck ? 1.5f : 2.2f);
	AddFace();
	AddCrown();
	AddBeak();
	uint32_t around = bird.face && bird.owlFace ? bird.face : bird.head ? bird.head : bird.body;
	if (bird.lid)
		around = bird.lid;
	AddEyes(model, head, {r, r, r}, bird.eye, HexColour(around), headCoat, view, pose);
	if (bird.brow > 0)
		AddBrows();
}

// Ridges that slope down to the beak and cut the eyes' upper edge.
void BirdBuilder::AddBrows()
{
	float r = bird.headRadius, e = bird.eye.radius, lift = pose.wideEyes * e * 1.4f;
	for (int s : {-1, 1}) {
		float aside = r * bird.eye.aside;
		Vec3 inner  = head.Point(r * bird.eye.forward + e * .72f, r * bird.eye.up + e * .60f + lift,
		                         s * (aside - e * .55f));
		Vec3 outer = head.Point(r * bird.eye.forward + e * .05f, r * bird.eye.up + e * 1.12f + lift,
		                        s * (aside + e * .50f));
		model.RoundCone(inner, outer, e * .42f * bird.brow, e * .50f * bird.brow, headCoat, .3f);
	}
}

void BirdBuilder::AddFace()
{
	float r = bird.headRadius;
	if (bird.face && bird.owlFace) {
		int face = model.Plain(bird.face);
		for (int s : {-1, 1})
			model.Ellipsoid(head.Point(r * .60f, r * .06f, s * r * .42f),
			                {r * .46f, r * .66f, r * .56f}, head.axes, face, .4f);
	} else if (bird.face) {
		float back = bird.faceBack;
		model.Ellipsoid(head.Point(r * (.35f - back), -r * (.25f + .2f * back), 0),
		                {r * (.75f - .12f * back), r * .62f, r * (.8f + .55f * back)}, head.axes,
		                model.Plain(bird.face), .5f);
	}
}

// What stands on a crown or hangs from a chin.
void BirdBuilder::AddCrown()
{
	float r = bird.headRadius, c = bird.crest, up = pose.ruffle;
	int feather = bird.crestColour ? model.Plain(bird.crestColour, .12f) : headCoat;
	for (int i = 0; c > 0 && i < 4; i++)
		model.RoundCone(head.Point(r * (.22f - .26f * i), r * .70f, 0),
		                head.Point(-r * (.15f + .28f * i) - c * (.45f + .12f * i),
		                           r * .85f + c * (.95f - .27f * i + up * .4f), 0),
		                r * .24f, .35f, feather, .5f);
	for (int i = 0; bird.tuft > 0 && i < 3; i++) {
		Vec3 root = head.Point(-r * .05f - r * .16f * i, r * .92f, 0);
		model.RoundCone(root,
		                root + head.Along(-bird.tuft * (.1f + .4f * i), bird.tuft, (i - 1) * .5f),
		                .75f, .35f, headCoat, .5f);
	}
	int red = bird.comb > 0 ? model.Plain(COMB_RED, .3f) : 0;
	for (int i = -1; bird.comb > 0 && i <= 1; i++)
		model.Ball(head.Point(r * (.05f + .42f * i), r * (.98f + (i == 0 ? .14f : 0)), 0),
		           bird.comb * (i == 0 ? 1.1f : .9f), red, .4f);
	for (int s : {-1, 1}) {
		if (bird.comb > 0 && bird.wattle > 0)
			model.Ellipsoid(head.Point(r * .95f, -r * .72f, s * .55f),
			                {bird.wattle * .8f, bird.wattle * 1.3f, bird.wattle * .7f}, head.axes,
			                red, .2f);
		float t = bird.earTufts;
		if (t > 0)
			model.RoundCone(head.Point(r * .25f, r * .72f, s * r * .55f),
			                head.Point(r * .15f, r * .8f + t, s * (r * .62f + t * .35f)), r * .30f,
			                .5f, headCoat, .7f);
	}
}

// A bill: rounded at its end, turned up a little, so that it smiles.
void BirdBuilder::AddFlatBeak()
{
	float r = bird.headRadius, l = bird.beakLength, w = bird.beakRadius, open = pose.mouth;
	Mat3 upper = head.axes * TurnZ(.06f + open * .28f);
	Vec3 root  = head.Point(r * .86f, -r * .20f, 0);
	model.Ellipsoid(root + upper * Vec3{l * .50f, 0, 0}, {l * .66f, w * .58f, w * 1.05f}, upper,
	                beak, .3f);
	model.Ellipsoid(root + upper * Vec3{l * .86f, -.1f, 0}, {l * .30f, w * .42f, w * 1.22f}, upper,
	                beak, .6f);
	if (bird.knob > 0)
		model.Ball(root + upper * Vec3{l * .10f, w * .55f, 0}, bird.knob,
		           model.Plain(bird.knobColour, .3f), .4f);
	if (open <= 0)
		return;
	Mat3 lower = head.axes * TurnZ(-.55f * open);
	model.Ellipsoid(root + lower * Vec3{l * .46f, -w * .45f - .3f * open, 0},
	                {l * .56f, w * .40f, w * .95f}, lower, beak, .1f);
	model.Ellipsoid(root + head.Along(l * .25f, -w * .30f - .35f * open, 0),
	                {l * .42f, w * .42f * open, w * .62f}, head.axes * TurnZ(-.2f * open),
	                model.Plain(0x9c2a34, .2f), 0);
}

void BirdBuilder::AddHookedBeak()
{
	float r = bird.headRadius, l = bird.beakLength, w = bird.beakRadius, open = pose.mouth;
	int end   = bird.beakEnd ? model.Plain(bird.beakEnd, .5f) : beak;
	Vec3 bend = head.Point(r * .9f + l * .62f, -r * .10f + open * .6f, 0);
	model.RoundCone(head.Point(r * .72f, -r * .08f, 0), bend, w, w * .78f, beak, .3f);
	model.RoundCone(bend, head.Point(r * .9f + l * .85f, -r * .10f - l * .55f + open * .4f, 0),
	                w * .78f, .35f, end, .3f);
	if (open > 0)
		model.RoundCone(head.Point(r * .72f, -r * .3f, 0),
		                head.Point(r * .8f + l * .5f, -r * .35f - 2.0f * open, 0), w * .65f, .4f,
		                beak, .1f);
}

void BirdBuilder::AddBeak()
{
	float r = bird.headRadius, l = bird.beakLength, w = bird.beakRadius, open = pose.mouth;
	if (bird.beakKind == BeakKind::Flat)
		return AddFlatBeak();
	if (bird.beakKind == BeakKind::Hook)
		return AddHookedBeak();
	if (bird.beakKind == BeakKind::Bent) {
		int end   = bird.beakEnd ? model.Plain(bird.beakEnd, .5f) : beak;
		Vec3 bend = head.Point(r * .8f + l * .6f, -r * .25f, 0);
		model.RoundCone(head.Point(r * .6f, -r * .05f, 0), bend, w, w * .95f, beak, .4f);
		model.RoundCone(bend, bend + head.Along(l * .22f, -l * .62f - open, 0), w * .95f, .5f, end,
		                .2f);
		return;
	}
	float drop = bird.owlFace ? 1.2f : 0;
	model.RoundCone(head.Point(r * .8f, -r * .12f, 0),
	                head.Point(r * .9f + l, -r * .28f + open * .5f - drop, 0), w, bird.beakTip,
	                beak, .2f);
	if (open > 0)
		model.RoundCone(head.Point(r * .75f, -r * .3f, 0),
		                head.Point(r * .8f + l * .75f, -r * .35f - 2.2f * open, 0), w * .8f,
		                bird.beakTip, beak, .1f);
}

Vec3 BirdBuilder::FootOf(int side, Vec3 joint) const
{
	float length = bird.legLength;
	if (pose.flying)
		return joint + Mix(Vec3{-length * .8f - 1, -length * .12f - .6f, 0},
		                   Vec3{length * .45f, -length * .85f - .6f, 0}, pose.legDrop);
	Vec3 foot = {body.x + .3f, .7f + pose.rise, joint.z};
	if (walking) {
		float t     = std::fmod(phase + (side > 0 ? .5f : 0), 1.f);
		float sweep = std::min(.36f * (length + 3), 5.f) * pose.strideSize;
		if (t < STANCE) {
			foot.x += sweep * (1 - 2 * t / STANCE);
		} else {
			float u = (t - STANCE) / (1 - STANCE);
			foot.x += sweep * (-1 + 2 * u);
			foot.y += std::sin(u * PI) * std::max(length * .35f, 1.3f);
		}
	}
	foot = Mix(foot, joint + Vec3{1.2f, -length * .42f - 1, 0}, pose.tuck);
	if (side == (int)view.NearSide())
		foot = Mix(foot, joint + Vec3{1.5f, -length * .42f, 0}, pose.raisePaw);
	else
		foot.z *= 1 - .8f * pose.raisePaw; // the other one bears all the weight
	return foot;
}

void BirdBuilder::AddLeg(int side)
{
	float radius = bird.legRadius;
	Vec3 joint   = body + Vec3{0, -bird.bodyRadius * .7f, side * bird.bodyRadius * .42f};
	if (bird.tilt > 1) // upright birds stand on the end of their egg
		joint.y = body.y - bird.bodyLength * .78f;
	Vec3 foot = FootOf(side, joint);
	if (bird.thigh > 0)
		model.RoundCone(joint + Vec3{.2f, bird.thigh * .5f, 0}, Mix(joint, foot, .55f), bird.thigh,
		                std::max(bird.thigh * .55f, radius), coat, .8f);
	if (bird.legLength > LONG_SHANK) { // the joint bends back
		float bones = (bird.legLength + 1) * 1.03f * (1 + bird.legSlack);
		Vec3 ankle  = KneeOf(joint, foot, bones, {-1, 0, 0});
		float thick = std::max(bird.drumstick, radius * 1.25f);
		model.RoundCone(joint, ankle, thick, radius * .95f, leg, .5f);
		model.RoundCone(ankle, foot, radius * 1.05f, radius * .9f, leg, .2f);
	} else {
		model.RoundCone(joint, foot, radius * 1.15f, radius, leg, .3f);
	}
	if (bird.webbed) {
		float size = .6f + .4f * radius;
		model.Ellipsoid(foot + Vec3{1.4f * size, -.1f, 0}, {2.5f * size, .75f, 2.0f * size}, Mat3(),
		                leg, .3f);
	} else if (!pose.flying || pose.legDrop > .5f) {
		for (int k = -1; k <= 1; k++)
			model.RoundCone(foot, foot + Vec3{1.8f + radius * .6f, -.1f, k * 1.3f}, radius * .85f,
			                radius * .6f, leg, .2f);
	}
}
} // namespace

void AddBird(Model& model, const Bird& bird, const View& view, const Pose& pose)
{
	BirdBuilder(model, bird, view, pose).Build();
}
