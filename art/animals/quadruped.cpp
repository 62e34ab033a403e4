// Torso, legs and neck of four-footed mammals.
#include "art/animals/quadruped.h"

#include "art/animals/tails.h"

static const float BODY_BOB = .55f, SHOULDER_BOB = .5f;  // of a walk, twice a cycle
static const float SHOULDER_LAG = 1.2f, HEAD_LAG = 2.4f; // radians behind the hips
static const float LIFT      = .24f;                     // of a foot, part of the leg
static const float LEG_SWEEP = .36f, MOST_SWEEP = 4.6f;
static const float MOST_STEP      = .58f;  // part of the leg; more would be a split
static const float FAR_SHADE      = .55f;  // far legs lie in shadow, or a walk can't be read
static const float GRAZING_HEIGHT = 1.28f; // least, in head radii
static const float GRAZING_TIP    = .68f;  // radians, nose down
static const int WOOL_LUMPS       = 38;
static const float GOLDEN_TURN    = 2.39996f; // radians

namespace
{
struct Leg {
	float x, z, phase;
	bool front;
};

class QuadrupedBuilder
{
public:
	QuadrupedBuilder(Model& newModel, const Quadruped& newAnimal, const View& newView,
	                 const Pose& newPose)
	    : model(newModel), animal(newAnimal), view(newView), pose(newPose)
	{
	}
	void Build();

private:
	void MakeMaterials();
	int DimmedCoat();
	void PlaceBody();
	void AddWool();
	void AddNeckWool(Vec3 base, Vec3 nape);
	void AddTorso();
	void AddHumpsAndFolds(Vec3 middle, Vec3 along, const Mat3& axes);
	float BodyRadius(const Leg& leg) const { return leg.front ? animal.chest : animal.hip; }
	float LegHeight(const Leg& leg) const;
	Vec3 JointOf(const Leg& leg) const;
	Vec3 SteppingFoot(const Leg& leg) const;
	Vec3 KickedFoot(const Leg& leg, float height) const;
	Vec3 FootOf(const Leg& leg, Vec3 joint) const;
	void AddLeg(const Leg& leg);
	float GrazingHeight() const;
	Vec3 HeadCentre(Vec3 base) const;
	void AddNeckAndHead();
	void AddMane(const HeadFrame& frame, Vec3 base);

	Model& model;
	const Quadruped& animal;
	View view;
	const Pose& pose;
	bool walking = false;
	float phase = 0, tip = 0; // tip: radians that the body is reared up
	Vec3 hip, shoulder;
	int coat = 0, plainCoat = 0, legNear = 0, legFar = 0, footNear = 0, footFar = 0, mane = 0;
};

void QuadrupedBuilder::Build()
{
	PlaceBody();
	MakeMaterials();
	if (animal.wool)
		AddWool();
	else
		AddTorso();
	float h = -animal.length * .5f + 1.4f, f = animal.length * .5f + .6f, z = animal.spread;
	const Leg legs[] = {// in the order of a walk
	                    {h, z, 0, false},
	                    {f, z, .25f, true},
	                    {h, -z, .5f, false},
	                    {f, -z, .75f, true}};
	for (const Leg& leg : legs)
		AddLeg(leg);
	AddNeckAndHead();
	float swing     = (walking ? std::sin(phase * 2 * PI) * 1.4f : 0) + pose.tailSwing * 3;
	TailPlace place = {hip + Vec3{-animal.hip * .82f, animal.hip * .35f, 0},
	                   swing,
	                   pose.tailRaise * animal.tailLength * .5f,
	                   coat,
	                   plainCoat,
	                   mane,
	                   animal.tailTip ? model.Plain(animal.tailTip) : mane,
	                   view.NearSide()};
	AddTail(model, animal, place);
}

static uint32_t DimmedHex(uint32_t hex)
{
	Colour c = Darker(HexColour(hex), FAR_SHADE);
	return (uint32_t)(c.x * 255) << 16 | (uint32_t)(c.y * 255) << 8 | (uint32_t)(c.z * 255);
}

int QuadrupedBuilder::DimmedCoat()
{
	Coat dim = animal.coat;
	dim.base = dim.belly = DimmedHex(animal.coat.base);
	dim.mark             = DimmedHex(animal.coat.mark);
	return AddCoat(model, dim);
}

void QuadrupedBuilder::MakeMaterials()
{
	const Coat& fur = animal.coat;
	coat            = AddCoat(model, fur, tip);
	plainCoat       = model.Plain(fur.base, fur.gloss);
	uint32_t leg = animal.legs ? animal.legs : fur.base, foot = animal.feet ? animal.feet : leg;
	if (animal.patternedLegs) {
		Coat legCoat  = fur;
		legCoat.belly = fur.base;
		legNear       = AddCoat(model, legCoat);
		legFar        = DimmedCoat();
	} else {
		legNear = model.Plain(leg, fur.gloss);
		legFar  = model.Plain(DimmedHex(leg), fur.gloss);
	}
	footNear = model.Plain(foot);
	footFar  = model.Plain(DimmedHex(foot));
	mane     = model.Plain(animal.maneColour);
}

void QuadrupedBuilder::PlaceBody()
{
	walking        = pose.stride >= 0;
	phase          = walking ? pose.stride : 0;
	float bob      = walking ? std::sin(phase * 4 * PI) * BODY_BOB : 0;
	float lag      = walking ? std::sin(phase * 4 * PI + SHOULDER_LAG) * SHOULDER_BOB : 0;
	float hipDown  = pose.lie * (animal.hipHeight - animal.belly * 1.06f);
	float foreDown = pose.lie * (animal.shoulderHeight - animal.chest * 1.06f);
	float lowHip   = animal.wool ? 0 : 1.5f;

	hip = {-animal.length * .5f, animal.hipHeight - lowHip + bob - pose.squash * .8f - hipDown, 0};
	shoulder = {animal.length * .5f, animal.shoulderHeight + lag - pose.squash - foreDown, 0};
	tip      = pose.rear * 1.05f;
	if (tip > 0)
		shoulder = Swing(shoulder, hip, tip);
	if (pose.kick > 0)
		hip = Swing(hip, shoulder, -pose.kick * .42f);
	hip.y += pose.rise;
	shoulder.y += pose.rise;
}

// An egg of lumps on a golden-angle spiral. They lag behind the body, so wool wobbles in a walk.
void QuadrupedBuilder::AddWool()
{
	Vec3 along = shoulder - hip;
	float lean = std::atan2(along.y, along.x);
	Mat3 axes  = TurnZ(lean);
	Vec3 c     = (hip + shoulder) * .5f + Vec3{0, .4f, 0};
	float half = animal.length * .5f, wide = animal.belly;
	model.Ellipsoid(c, {half + animal.hip * .62f, wide * .86f, wide * .86f}, axes, coat, 0);
	for (int i = 0; i < WOOL_LUMPS; i++) {
		float y = 1 - 2 * (i + .5f) / WOOL_LUMPS, r = std::sqrt(1 - y * y), a = i * GOLDEN_TURN;
		a += .55f * Hash01(i, 5, 2); // or the lumps line up as ridges
		Vec3 out     = {std::cos(a) * r * (half + animal.hip * .55f), y * wide * .80f,
		                std::sin(a) * r * wide * .80f};
		float wobble = walking ? std::sin(phase * 4 * PI - 1.4f + .09f * out.x) * .55f : 0;
		float size   = 3.1f + .9f * Hash01(i, 3, 1);
		model.Ball(c + axes * out + Vec3{0, wobble, 0}, size, coat, 1.3f);
	}
}

// Rings of lumps, or a stretched neck is a smooth ball.
void QuadrupedBuilder::AddNeckWool(Vec3 base, Vec3 nape)
{
	const int RINGS = 3, LUMPS = 7;
	Vec3 along = Normalize(nape - base), up = {-along.y, along.x, 0};
	for (int i = 0; i < RINGS * LUMPS; i++) {
		int ring    = i / LUMPS;
		float a     = (i % LUMPS + .5f * (ring % 2)) * 2 * PI / LUMPS;
		float thick = animal.neckRadius * Mix(1.0f, .72f, ring / (RINGS - 1.f));
		Vec3 out    = up * std::cos(a) + Vec3{0, 0, std::sin(a)};
		model.Ball(Mix(base, nape, .75f * ring / (RINGS - 1)) + out * thick,
		           2.4f + .7f * Hash01(i, 2, 9), coat, 1.1f);
	}
}

void QuadrupedBuilder::AddTorso()
{
	Vec3 middle = (hip + shoulder) * .5f;
	Vec3 along  = Normalize(shoulder - hip);
	Mat3 axes   = AxesFrom(along, {-along.y, along.x, 0}, {0, 0, 1});
	model.Ellipsoid(middle + Vec3{-.6f, -.3f, 0},
	                {animal.length * .5f + animal.hip * .86f, animal.belly, animal.belly * .96f},
	                axes, coat, 0);
	model.Ball(shoulder + Vec3{.4f, -.3f, 0}, animal.chest * .98f, coat, 4);
	AddHumpsAndFolds(middle, along, axes);
	if (animal.mane != ManeKind::Bristle)
		return;
	for (int i = 0; i < 9; i++) {
		Vec3 p = Mix(shoulder + Vec3{animal.chest * .7f, animal.chest, 0},
		             hip + Vec3{0, animal.hip * .92f, 0}, i / 8.f);
		model.RoundCone(p, p + Vec3{-2.4f, 3.2f - .25f * i, 0}, 1.3f, .5f, mane, .8f);
	}
}

void QuadrupedBuilder::AddHumpsAndFolds(Vec3 middle, Vec3 along, const Mat3& axes)
{
	if (animal.shoulderHump > 0)
		model.Ball(shoulder + Vec3{-2, animal.shoulderHump, 0}, animal.chest * .8f, coat, 5);
	if (animal.backHump > 0)
		model.Ellipsoid(middle + axes * Vec3{-1, animal.belly * .86f, 0},
		                {animal.backHump * .95f, animal.backHump, animal.backHump * .75f}, axes,
		                coat, 3);
	if (!animal.armour)
		return;
	int seam = model.Plain(HexColour(animal.coat.base) * .70f);
	for (float at : {.28f, -.40f}) {
		float radius = animal.belly * (at > 0 ? .97f : .93f);
		Mat3 plane   = axes * TurnZ(PI / 2 + (at > 0 ? .12f : -.12f));
		model.Ring(middle + along * (animal.length * at), radius, .75f, plane, seam, .4f);
	}
}

float QuadrupedBuilder::LegHeight(const Leg& leg) const
{
	return (leg.front ? animal.shoulderHeight : animal.hipHeight) - BodyRadius(leg) * .35f;
}

Vec3 QuadrupedBuilder::JointOf(const Leg& leg) const
{
	float inside = BodyRadius(leg) * .35f;
	if (leg.front && tip > 0)
		return Swing({leg.x, animal.shoulderHeight - inside, leg.z}, hip, tip);
	if (!leg.front && pose.kick > 0)
		return {hip.x + 1.4f, hip.y - inside, leg.z};
	return {leg.x, (leg.front ? shoulder.y : hip.y) - inside, leg.z};
}

// Stance straight back, swing with a lift.
Vec3 QuadrupedBuilder::SteppingFoot(const Leg& leg) const
{
	Vec3 foot = {leg.x + (leg.front ? -.4f : -1.0f), animal.paw * .62f + pose.rise, leg.z * 1.02f};
	if (!walking)
		return foot;
	float height = LegHeight(leg);
	float sweep  = animal.step > 0 ? std::min(animal.step, height * MOST_STEP)
	                               : std::min(height * LEG_SWEEP, MOST_SWEEP);
	sweep *= pose.strideSize;
	float t = std::fmod(phase + leg.phase, 1.f), stance = animal.stance;
	if (t < stance) {
		foot.x += sweep * (1 - 2 * t / stance);
	} else {
		float u = (t - stance) / (1 - stance);
		foot.x += sweep * (-1 + 2 * Smoothstep(0, 1, u));
		foot.y += std::sin(u * PI) * height * LIFT;
	}
	return foot;
}

// From the hip. Well behind the rump, and not one leg behind the other.
Vec3 QuadrupedBuilder::KickedFoot(const Leg& leg, float height) const
{
	bool nearSide = (leg.z > 0) == (view.NearSide() > 0);
	return {-height * 1.15f, height * (nearSide ? -.22f : .16f), leg.z * .3f};
}

Vec3 QuadrupedBuilder::FootOf(const Leg& leg, Vec3 joint) const
{
	float height = LegHeight(leg);
	Vec3 foot    = SteppingFoot(leg);
	if (leg.front && tip > 0) { // paws hang while rearing
		Vec3 hanging =
		    joint + Vec3{3.0f + 1.2f * std::sin(tip * 3), -height * .62f, leg.z > 0 ? 1.5f : -1.5f};
		foot = Mix(foot, hanging, Clamp01(pose.rear * 1.6f));
	}
	if (!leg.front && pose.kick > 0)
		foot = Mix(foot, joint + KickedFoot(leg, height), Smoothstep(0, .5f, pose.kick));
	float fold = std::max(pose.tuck, pose.lie);
	if (fold > 0) {
		Vec3 folded =
		    joint + Vec3{height * (leg.front ? .28f : .32f), -height * .62f, leg.z * .12f};
		if (pose.lie > 0)
			folded.y = animal.paw * .62f;
		foot = Mix(foot, folded, fold);
	}
	if (pose.limbsUp > 0) {
		float ahead = leg.front ? 1 : -1;
		foot        = Mix(foot, joint + Vec3{ahead * height * .75f, height * .05f, leg.z * .9f},
		                  pose.limbsUp);
	}
	bool nearSide = (leg.z > 0) == (view.NearSide() > 0);
	if (leg.front && nearSide && pose.raisePaw > 0)
		foot = Mix(foot, joint + Vec3{height * .80f, height * .22f, leg.z * .3f}, pose.raisePaw);
	return foot;
}

void QuadrupedBuilder::AddLeg(const Leg& leg)
{
	bool far   = (leg.z > 0) != (view.NearSide() > 0);
	Vec3 joint = JointOf(leg), foot = FootOf(leg, joint);

	float distance = Length(foot - joint);
	float bone     = std::max(LegHeight(leg) * .54f, distance * .505f);
	Vec3 down = Normalize(foot - joint), ahead = {-down.y, down.x, 0};
	float bend = std::sqrt(std::max(0.f, bone * bone - distance * distance * .25f));
	// What shows are elbows and hocks: both bend back.
	Vec3 knee = (joint + foot) * .5f + ahead * (bend * (leg.front ? -.6f : -.75f));
	int skin = far ? legFar : legNear, shoe = far ? footFar : footNear;
	float shin = animal.shin, paw = animal.paw;
	model.RoundCone(joint, knee, animal.thigh * (leg.front ? 1 : 1.22f), shin * 1.02f, skin, 2.0f);
	model.RoundCone(knee, foot, shin * 1.02f, shin * .92f, skin, .9f);
	if (animal.hooved)
		model.RoundCone(foot + Vec3{.3f, -.1f, 0}, foot + Vec3{.9f, -paw * .15f, 0}, shin * .95f,
		                paw * .82f, shoe, .3f);
	else
		model.Ellipsoid(foot + Vec3{paw * .22f, -.05f, 0},
		                {paw * animal.pawStretch, paw * .66f, paw * .95f}, Mat3(), shoe, .9f);
}

// Of the head's centre: the muzzle just touches the ground.
float QuadrupedBuilder::GrazingHeight() const
{
	const Head& head = animal.head;
	float down       = GRAZING_TIP - Radians(animal.headPitch);
	float reach      = std::sin(down) * (head.radius * .62f + head.muzzleLength);
	float below      = std::cos(down) * (head.muzzleDrop - head.muzzleLength * .12f);
	return std::max(head.radius * GRAZING_HEIGHT, reach - below + head.muzzleTip - .15f);
}

Vec3 QuadrupedBuilder::HeadCentre(Vec3 base) const
{
	float r = animal.head.radius, chest = animal.chest;
	Vec3 centre =
	    shoulder + Vec3{animal.neckForward + chest * .5f, animal.neckUp + chest * .35f, 0};
	if (tip > 0) {
		Vec3 upright = shoulder + Vec3{animal.neckForward * .55f + chest * .25f,
		                               animal.neckUp + chest * .75f, 0};
		centre       = Mix(centre, upright, Smoothstep(0, .4f, pose.rear));
	}
	if (pose.headDown > 0) { // on an arc round the neck's base, or a long neck shrinks half way
		float t       = pose.headDown;
		Vec3 grazing  = shoulder + Vec3{animal.neckForward * 1.15f + chest * .55f,
                                       GrazingHeight() - animal.shoulderHeight, 0};
		Vec3 straight = Mix(centre, grazing, t);
		float reach   = Mix(Length(centre - base), Length(grazing - base), t);
		centre        = base + Normalize(straight - base) * reach;
	}
	if (pose.lie > 0)
		centre = Mix(centre, {shoulder.x + chest * .9f, r * 1.12f, view.NearSide() * chest * .5f},
		             pose.lie);
	if (walking)
		centre.y += std::sin(phase * 4 * PI + HEAD_LAG) * .5f;
	float behind = std::max(0.f, pose.look - 1); // looking back takes the head along
	centre       = centre + Vec3{-behind * r * .35f, 0, view.NearSide() * behind * r * .22f};
	return centre + Vec3{-pose.squash + pose.neckReach * 2, pose.squash * .2f + pose.neckReach, 0};
}

void QuadrupedBuilder::AddNeckAndHead()
{
	float r     = animal.head.radius;
	Vec3 base   = shoulder + Vec3{animal.chest * .28f, animal.chest * .25f, 0};
	Vec3 centre = HeadCentre(base);
	float turn  = Radians(pose.look * 46 + animal.restTurn) * view.TowardViewer();
	float pitch =
	    Radians(animal.headPitch) - pose.headDown * GRAZING_TIP + pose.headTip + tip * .05f;
	HeadFrame frame{centre, TurnZ(-pose.pitch * pose.headLevel) * TurnY(turn) * TurnZ(pitch)};

	Vec3 nape = centre - frame.Along(1.f, r * .1f, 0);
	if (animal.neckDip > 0)
		model.Tube(base, base + Vec3{animal.neckForward * .45f, -animal.neckDip, 0},
		           nape - Vec3{0, animal.neckUp * .55f, 0}, nape, animal.neckRadius * 1.2f,
		           animal.neckRadius * .82f, 5, coat, 4, 1.2f);
	else
		model.RoundCone(base, nape, animal.neckRadius * 1.12f, animal.neckRadius * .88f, coat,
		                animal.wool ? 1.5f : 4);
	if (animal.wool)
		AddNeckWool(base, nape);
	AddMane(frame, base);
	Head head = animal.head;
	if (!head.coat)
		head.coat = animal.coat.base;
	head.gloss = animal.coat.gloss;
	AddHead(model, head, frame, view, pose, animal.wool ? .3f : 2.5f);
}

void QuadrupedBuilder::AddMane(const HeadFrame& frame, Vec3 base)
{
	float r = animal.head.radius, chest = animal.chest;
	if (animal.mane == ManeKind::Ring) {
		for (int i = 0; i < 16; i++) {
			float a = i * 2 * PI / 16;
			model.Ball(frame.Point(-2.2f, std::cos(a) * r * .98f - .3f, std::sin(a) * r * .98f),
			           r * .42f, mane, 1.0f);
		}
		model.Ball(frame.Point(-3.5f, -.5f, 0), r * 1.05f, mane, 1.0f);
		model.Ball(shoulder + Vec3{3, -2, 0}, chest * .86f, mane, 2);
	} else if (animal.mane == ManeKind::Crest) {
		for (int i = 0; i < 8; i++) {
			Vec3 p = Mix(frame.Point(-r * .25f, r, 0), shoulder + Vec3{-chest * .25f, chest, 0},
			             i / 7.f);
			model.Ellipsoid(p, {2.2f, 2.4f, 1.5f}, Mat3(), mane, 1.2f);
		}
	} else if (animal.mane == ManeKind::Dewlap) {
		Vec3 throat = Mix(base, frame.centre, .75f);
		float neck  = animal.neckRadius;
		model.RoundCone(throat + Vec3{neck * .6f, -neck * .5f, 0},
		                throat + Vec3{neck * .7f, -neck * 1.5f, 0}, 2.0f, .9f, mane, 1.0f);
	}
}
} // namespace

void AddQuadruped(Model& model, const Quadruped& animal, const View& view, const Pose& pose)
{
	QuadrupedBuilder(model, animal, view, pose).Build();
}
