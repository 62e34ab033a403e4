// Skull, muzzle, mouth and what hangs on a head.
#include "art/animals/head.h"

#include "art/animals/ears.h"
#include "art/animals/face_mark.h"
#include "art/animals/horns.h"

static const float MOUTH_LINE  = .36f;     // radius
static const uint32_t GULLET   = 0x7c1c2c; // inside of a mouth
static const uint32_t TONGUE   = 0xf07a80;
static const uint32_t TOOTH    = 0xfff8e4;
static const uint32_t DARK_LID = 0x4a4450; // of eyes within a dark mark
static const int BOTH[]        = {-1, 1};

namespace
{
class HeadBuilder
{
public:
	HeadBuilder(Model& newModel, const Head& newHead, const HeadFrame& newFrame,
	            const View& newView, const Pose& newPose);
	void Build(float skullBlend);

private:
	Colour LidColour() const;
	void AddMuzzle();
	void AddNose(Vec3 tip);
	void AddDisc(Vec3 tip);
	void AddMouthLine(Vec3 tip);
	void AddOpenMouth();
	void AddTrunk();
	void AddPrimateFace();
	Vec3 Smile(float along) const;
	void AddTusks();
	void AddHair();
	void AddCurls();
	void AddBrows();

	Model& model;
	const Head& head;
	HeadFrame frame;
	View view;
	const Pose& pose;
	float r;
	int skin, coat, muzzle, nose, innerEar, horn, hair;
};

HeadBuilder::HeadBuilder(Model& newModel, const Head& newHead, const HeadFrame& newFrame,
                         const View& newView, const Pose& newPose)
    : model(newModel), head(newHead), frame(newFrame), view(newView), pose(newPose),
      r(newHead.radius)
{
	skin = model.Painted(
	    [copy = head, at = frame](const SurfacePoint& s) {
		    Vec3 local = Transpose(at.axes) * (s.position - at.centre) * (1 / copy.radius);
		    return FaceColour(copy, local, HexColour(copy.coat));
	    },
	    head.gloss);
	coat     = model.Plain(head.coat, head.gloss);
	muzzle   = model.Plain(head.muzzle, .12f);
	nose     = model.Plain(head.noseColour, .7f);
	innerEar = model.Plain(head.innerEar);
	horn     = model.Plain(head.horns, head.hornGloss);
	hair     = model.Plain(head.hair);
}

void HeadBuilder::Build(float skullBlend)
{
	model.Ellipsoid(frame.centre, head.shape * r, frame.axes, skin, skullBlend);
	for (int s : BOTH)
		if (head.cheeks > 0)
			model.Ball(frame.Point(r * .32f, -r * .32f, s * r * .55f), r * head.cheeks, skin, 2);
	if (head.facePlate)
		AddPrimateFace();
	else if (head.trunk)
		AddTrunk();
	else
		AddMuzzle();
	AddEyes(model, frame, head.shape * r, head.eye, LidColour(), skin, view, pose);
	for (int s : BOTH)
		AddEar(model, head, frame, pose, s, coat, innerEar);
	AddHorns(model, head, frame, pose, horn);
	AddTusks();
	AddHair();
	AddCurls();
	AddBrows();
}

Colour HeadBuilder::LidColour() const
{
	if (head.mark == FaceMark::PandaEyes || head.mark == FaceMark::Bandit)
		return HexColour(DARK_LID);
	return HexColour(head.facePlate ? head.muzzle : head.coat);
}

void HeadBuilder::AddMuzzle()
{
	Vec3 root = frame.Point(r * .55f, head.muzzleDrop * .7f, 0);
	Vec3 tip  = MuzzleTip(head, frame, pose);
	if (head.muzzleWide > 0) {
		for (int s : BOTH) {
			Vec3 aside = frame.Along(0, 0, s * head.muzzleWide);
			model.RoundCone(root + aside * .6f, tip + aside, head.muzzleRoot, head.muzzleTip,
			                muzzle, s < 0 ? 1.6f : 3.f);
		}
	} else {
		model.RoundCone(root, tip, head.muzzleRoot, head.muzzleTip, muzzle, 1.6f);
	}
	if (pose.mouth > 0)
		AddOpenMouth();
	if (head.disc) {
		AddDisc(tip);
		return;
	}
	AddNose(tip);
	if (head.mouthLine && pose.mouth <= 0)
		AddMouthLine(tip);
}

void HeadBuilder::AddDisc(Vec3 tip)
{
	Vec3 face = tip + frame.Along(head.muzzleTip * .6f, .3f, 0);
	model.Cylinder(face, head.muzzleTip * 1.08f, 1.0f, frame.axes * TurnZ(PI / 2), .6f, innerEar,
	               .3f);
	for (int s : BOTH)
		model.Ellipsoid(face + frame.Along(1.0f, .2f, s * head.muzzleTip * .42f), {.5f, .95f, .65f},
		                frame.axes, nose, 0);
}

void HeadBuilder::AddNose(Vec3 tip)
{
	if (head.muzzleWide > 0) { // nostrils on top of a broad muzzle
		for (int s : BOTH) {
			Vec3 at = tip + frame.Along(head.muzzleTip * .55f, head.muzzleTip * .62f,
			                            s * head.muzzleWide);
			model.Ellipsoid(at, {head.nose * .8f, head.nose * .6f, head.nose * .8f}, frame.axes,
			                nose, 0);
		}
	} else if (head.nose > 0) {
		model.Ellipsoid(tip + frame.Along(head.muzzleTip * .72f, head.muzzleTip * .52f, 0),
		                {head.nose * .8f, head.nose * .74f, head.nose * 1.15f}, frame.axes, nose,
		                0);
	}
}

void HeadBuilder::AddMouthLine(Vec3 tip)
{
	float spread = head.muzzleTip * .82f + head.muzzleWide;
	for (int s : BOTH)
		model.RoundCone(tip + frame.Along(head.muzzleTip * .86f, -head.muzzleTip * .42f, s * .2f),
		                tip +
		                    frame.Along(head.muzzleTip * .25f, -head.muzzleTip * .50f, s * spread),
		                MOUTH_LINE, .3f, nose, 0);
}

void HeadBuilder::AddOpenMouth()
{
	float reach = std::max(head.muzzleLength + head.muzzleRoot * .9f, r * .78f);
	float open = pose.mouth, tip = head.muzzleTip;
	Vec3 hinge  = frame.Point(r * .48f, head.muzzleDrop - head.muzzleRoot * .45f, 0);
	Vec3 jawTip = hinge + frame.Along(std::cos(open * 1.05f) * reach,
	                                  -std::sin(open * 1.05f) * reach - tip * .25f, 0);
	float wide  = tip * .72f + head.muzzleWide;
	model.Ellipsoid(Mix(hinge, jawTip, .60f) + frame.Along(0, open * tip * .42f, 0),
	                {reach * .48f, .6f + open * tip * .62f, wide}, frame.axes * TurnZ(-open * .42f),
	                model.Plain(GULLET, .2f), 0);
	model.Ellipsoid(Mix(hinge, jawTip, .70f) + frame.Along(0, .5f, 0),
	                {reach * .30f, .9f, wide * .55f}, frame.axes * TurnZ(-open * .8f),
	                model.Plain(TONGUE, .3f), 0);
	for (int s : BOTH) {
		Vec3 aside = frame.Along(0, 0, s * (wide - tip * .5f));
		model.RoundCone(hinge + aside, jawTip + aside, tip * .50f, tip * .42f, muzzle,
		                s < 0 ? .3f : 1.5f);
		if (head.teeth > 0)
			model.RoundCone(jawTip + aside, jawTip + aside + frame.Along(.3f, head.teeth, 0), 1.2f,
			                .8f, model.Plain(TOOTH, .4f), 0);
	}
}

// `mouth` raises the trunk.
void HeadBuilder::AddTrunk()
{
	float up = pose.mouth;
	Vec3 p0 = frame.Point(r * .62f, -r * .05f, 0), p1 = frame.Point(r * 1.30f, -r * .45f, 0);
	Vec3 p2 = frame.Point(r * 1.38f, -r * 1.25f, pose.chew * 2);
	Vec3 p3 = frame.Point(r * 1.62f, -r * 1.62f, pose.chew * 4);
	p2      = Mix(p2, frame.Point(r * 2.2f, -r * .1f, 0), up);
	p3      = Mix(p3, frame.Point(r * 2.3f, r * 1.15f, 0), up);
	model.Tube(p0, p1, p2, p3, r * .46f, r * .21f, 6, coat, 2.5f, .8f);
	if (up > 0)
		model.Ellipsoid(frame.Point(r * .78f, -r * .62f, 0),
		                {r * .3f, r * .1f + r * .16f * up, r * .3f}, frame.axes,
		                model.Plain(GULLET, .2f), 0);
}

// A point of the smile, `along` -3..3 from corner to corner.
Vec3 HeadBuilder::Smile(float along) const
{
	float root = head.muzzleRoot, z = along * root * .20f;
	float out = std::sqrt(std::max(0.f, 1 - z * z / (root * root * 1.3f)));
	return frame.Point(r * .62f + out * root * .80f, -r * .36f - root * .40f + z * z * .12f, z);
}

void HeadBuilder::AddPrimateFace()
{
	float root = head.muzzleRoot;
	for (int s : BOTH)
		model.Ellipsoid(frame.Point(r * .52f, r * .22f, s * r * .36f),
		                {r * .47f, r * .54f, r * .47f}, frame.axes, muzzle, .4f);
	model.Ellipsoid(frame.Point(r * .62f, -r * .36f, 0), {root * .85f, root * .76f, root * 1.10f},
	                frame.axes, muzzle, .8f);
	for (int s : BOTH)
		model.Ball(frame.Point(r * .62f + root * .83f, -r * .16f, s * .75f), .42f, nose, 0);
	if (pose.mouth > 0) {
		float open = pose.mouth;
		model.Ellipsoid(frame.Point(r * .62f + root * .50f, -r * .36f - root * .30f, 0),
		                {root * .47f, root * .50f * open, root * .70f}, frame.axes,
		                model.Plain(GULLET), 0);
		model.Ellipsoid(
		    frame.Point(r * .62f + root * .72f, -r * .36f - root * (.22f + .38f * open), 0),
		    {root * .30f, root * .16f * open, root * .42f}, frame.axes, model.Plain(TONGUE, .3f),
		    0);
		return;
	}
	for (int i = -3; i < 3; i++)
		model.RoundCone(Smile((float)i), Smile(i + 1.f), MOUTH_LINE, MOUTH_LINE, nose, 0);
}

void HeadBuilder::AddTusks()
{
	if (head.tusk <= 0)
		return;
	float t = head.tusk, forward = r * .80f + (head.trunk ? 0 : head.muzzleLength * .55f);
	for (int s : BOTH) {
		Vec3 root = frame.Point(forward, -r * .48f, s * r * .40f);
		Vec3 bow  = root + frame.Along(t * .55f, -t * .15f, s * t * .25f);
		model.RoundCone(root, bow, 1.2f, .95f, horn, 0);
		model.RoundCone(bow, bow + frame.Along(t * .20f, t * .55f, s * .4f), .95f, .45f, horn, .2f);
	}
}

void HeadBuilder::AddHair()
{
	int ruff = head.ruff > 0 ? model.Plain(head.ruffColour ? head.ruffColour : head.coat) : 0;
	for (int i = 0; head.ruff > 0 && i < 6; i++) {
		int s = i & 1 ? 1 : -1, row = i / 2;
		Vec3 root = frame.Point(-r * .05f, -r * (.05f + .26f * row), s * r * .62f);
		Vec3 tip  = root + frame.Along(-r * .28f, -r * (.12f + .18f * row),
		                               s * head.ruff * (1 - .18f * row));
		model.RoundCone(root, tip, r * .30f, .5f, ruff, .9f);
	}
	for (int i = 0; head.forelock > 0 && i < 3; i++)
		model.RoundCone(frame.Point(-r * .15f, r * .95f, (i - 1) * r * .22f),
		                frame.Point(r * .55f, r * (.95f - .1f * i), (i - 1) * r * .34f),
		                head.forelock, head.forelock * .55f, hair, .8f);
	for (int i = 0; head.tuft > 0 && i < 3; i++) {
		Vec3 root = frame.Point(r * (.18f - .20f * i), r * .90f, 0);
		model.RoundCone(root,
		                root + frame.Along(head.tuft * (.5f - .5f * i), head.tuft, (i - 1) * .6f),
		                1.3f, .5f, coat, .8f);
	}
	if (head.beard > 0)
		model.RoundCone(frame.Point(r * .62f, head.muzzleDrop - head.muzzleRoot * .6f, 0),
		                frame.Point(r * .55f, head.muzzleDrop - head.muzzleRoot - head.beard, 0),
		                1.7f, .55f, hair, .6f);
}

// Drawn down to the nose.
void HeadBuilder::AddBrows()
{
	if (pose.frown <= 0)
		return;
	const Eye& eye = head.eye;
	Vec3 half      = head.shape * r;
	int dark       = model.Plain(InkOf(HexColour(head.coat)));
	for (int s : BOTH) {
		float x = half.x * eye.forward + eye.radius * .72f, z = half.z * eye.aside;
		float y = half.y * eye.up + eye.radius * (1.25f - .45f * pose.frown);
		model.RoundCone(
		    frame.Point(x, y - eye.radius * .35f * pose.frown, s * (z - eye.radius * .7f)),
		    frame.Point(x - .5f, y + eye.radius * .35f * pose.frown, s * (z + eye.radius * .8f)),
		    .75f, .55f, dark, 0);
	}
}

// Balls of wool spread over the brow and the crown.
void HeadBuilder::AddCurls()
{
	const int COUNT = 9;
	for (int i = 0; head.curls > 0 && i < COUNT; i++) {
		float a = i * 2.39996f, out = std::sqrt((i + .5f) / COUNT);
		Vec3 at = frame.Point(r * (-.12f + .48f * out * std::cos(a)), r * (1.0f - .22f * out * out),
		                      r * .62f * out * std::sin(a));
		model.Ball(at, head.curls * (1 - .12f * (i % 3)), hair, .8f);
	}
}
} // namespace

Vec3 MuzzleTip(const Head& head, const HeadFrame& frame, const Pose& pose)
{
	return frame.Point(head.radius * .62f + head.muzzleLength,
	                   head.muzzleDrop - head.muzzleLength * .12f, pose.chew * .9f);
}

void AddHead(Model& model, const Head& head, const HeadFrame& frame, const View& view,
             const Pose& pose, float skullBlend)
{
	HeadBuilder(model, head, frame, view, pose).Build(skullBlend);
}
