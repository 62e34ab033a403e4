// Builds hopping mammals from the keys of their gait.
#include "art/animals/hopper.h"

#include "art/animals/limbs.h"

static const float FAR_SHADE  = .45f; // far limbs lie in shadow
static const float LIMB_SHADE = .92f; // of the coat's colour; thighs stand out from the flank
static const Vec3 BACK_HANDS = {1.2f, 2.6f, 6.4f}, BACK_FEET = {1.6f, -2.2f, 6.2f}; // on a trunk

namespace
{
// The places of one side's limbs.
struct Limbs {
	Vec3 shoulder, hand, joint, heel, toe, kneeBend, elbowBend;
};

class HopperBuilder
{
public:
	HopperBuilder(Model& newModel, const Hopper& newAnimal, const View& newView,
	              const Pose& newPose)
	    : model(newModel), animal(newAnimal), view(newView), pose(newPose)
	{
	}
	void Build();

private:
	HopKey Moment() const;
	void PlaceTrunk();
	void PlaceOnTrunk();
	int BodyMaterial();
	void AddTrunk();
	void AddHeadAndNeck();
	Limbs LimbsOf(int s) const;
	void Fling(Limbs& limbs, int s) const;
	void Tuck(Limbs& limbs, int s) const;
	void Cling(Limbs& limbs, int s) const;
	void AddLimbs(int s);
	void AddTail();
	void AddHeavyTail(Vec3 root);
	void AddBush(Vec3 root);
	void AddPouch();
	bool Climbs() const { return pose.climb >= 0; }

	Model& model;
	const Hopper& animal;
	View view;
	const Pose& pose;
	HopKey key = {};
	Vec3 hip, chest, spine, back; // back: at right angles to the spine, away from the belly
	int body = 0, coat = 0;
};

void HopperBuilder::Build()
{
	key = Moment();
	PlaceTrunk();
	if (Climbs())
		PlaceOnTrunk();
	spine = Normalize(chest - hip);
	back  = Normalize(Vec3{-spine.y, spine.x, 0});
	body  = BodyMaterial();
	coat  = model.Plain(animal.coat, animal.gloss);
	AddTrunk();
	if (animal.pouch)
		AddPouch();
	AddHeadAndNeck();
	for (int s : {-1, 1})
		AddLimbs(s);
	AddTail();
}

static HopKey Between(const HopKey& a, const HopKey& b, float t)
{
	return {Mix(a.hipX, b.hipX, t),       Mix(a.hipY, b.hipY, t),   Mix(a.pitch, b.pitch, t),
	        Mix(a.stretch, b.stretch, t), Mix(a.heelX, b.heelX, t), Mix(a.heelY, b.heelY, t),
	        Mix(a.toeX, b.toeX, t),       Mix(a.toeY, b.toeY, t),   Mix(a.handX, b.handX, t),
	        Mix(a.handY, b.handY, t),     Mix(a.ears, b.ears, t),   Mix(a.tail, b.tail, t),
	        Mix(a.headTip, b.headTip, t)};
}

HopKey HopperBuilder::Moment() const
{
	if (pose.hop < 0)
		return animal.stand;
	float at   = std::fmod(pose.hop, 1.f) * HOP_KEYS;
	int i      = (int)at;
	HopKey k   = Between(animal.gait[i % HOP_KEYS], animal.gait[(i + 1) % HOP_KEYS], at - i);
	float wide = animal.gaitWide, high = animal.gaitHigh;
	k.hipX *= wide, k.heelX *= wide, k.toeX *= wide, k.handX *= wide;
	k.hipY *= high, k.heelY *= high, k.toeY *= high, k.handY *= high;
	return k;
}

void HopperBuilder::PlaceTrunk()
{
	float tilt = Radians(key.pitch) + pose.rear * .5f, length = animal.torso * key.stretch;
	hip   = {key.hipX, key.hipY + pose.rise - pose.squash * .6f, 0};
	chest = hip + Vec3{std::cos(tilt), std::sin(tilt), 0} * length;
	chest.y -= pose.squash * .4f;
	chest.x += pose.squash * .3f;
}

// Upright along the trunk; gathered, then stretched, from one hold to the next.
void HopperBuilder::PlaceOnTrunk()
{
	float gather = .5f + .5f * std::cos(pose.climb * 2 * PI);
	float middle = animal.torso * .9f + animal.hipRadius;
	float half   = animal.torso * (.58f - .16f * gather);
	hip          = {0, middle - half + pose.rise, 0};
	chest        = {1, middle + half + pose.rise, 0};
}

// Pale below or before, by the distance from the spine.
int HopperBuilder::BodyMaterial()
{
	return model.Painted(
	    [a = animal, at = hip, below = Vec3{} - back](const SurfacePoint& s) {
		    const Colour DARK = HexColour(0x4a2c18), PALE = HexColour(0xfdf0d8);
		    Vec3 p     = s.position - at;
		    float down = Dot(p, below), r = a.chestRadius;
		    Colour c =
		        Mix(HexColour(a.coat), HexColour(a.belly), Smoothstep(r * .42f, r * .80f, down));
		    if (!a.flankStripes)
			    return c;
		    float round = std::atan2(std::fabs(p.z), -down);
		    float off   = std::fabs(round - .95f);
		    c           = Mix(DARK, c, Smoothstep(.34f, .40f, off));
		    c           = Mix(PALE, c, Smoothstep(.16f, .22f, off));
		    return Mix(DARK, c, Smoothstep(.10f, .16f, round));
	    },
	    animal.gloss);
}

void HopperBuilder::AddTrunk()
{
	float half = Length(chest - hip) * .5f, hipR = animal.hipRadius, chestR = animal.chestRadius;
	Vec3 middle = (hip + chest) * .5f + back * (animal.arch * 1.2f);
	Mat3 axes   = AxesFrom(spine, back, {0, 0, 1});
	model.RoundCone(hip, chest, hipR, chestR, body, 0);
	float tall = (hipR + chestR) * .5f + animal.arch;
	model.Ellipsoid(middle, {half + hipR * .5f, tall, tall * .96f}, axes, body, 2.5f);
}

void HopperBuilder::AddHeadAndNeck()
{
	float r     = animal.head.radius;
	Vec3 centre = chest + Vec3{animal.headForward, animal.headUp, 0};
	if (pose.hop >= 0) { // stretched forward as the body is
		float level  = Clamp01(1 - Radians(key.pitch));
		Vec3 forward = {std::max(animal.headForward, animal.headUp) * .95f, animal.headUp * .72f,
		                0};
		centre       = Mix(centre, chest + forward, level * Clamp01((key.stretch - .95f) * 5));
	}
	if (Climbs())
		centre = chest + Vec3{.5f, animal.headUp * .95f, 0};
	centre =
	    centre + Vec3{pose.headDown * 3 + pose.neckReach, pose.neckReach - pose.headDown * 5, 0};
	float turn = Climbs() ? 0 : animal.restTurn;
	Mat3 axes  = TurnY(Radians(pose.look * 46 + turn) * view.TowardViewer()) *
	            TurnZ(pose.headTip + key.headTip - pose.headDown * .6f);
	model.RoundCone(chest, centre, animal.chestRadius * .85f, animal.neckRadius, coat, 2);
	Head head = animal.head;
	if (!head.coat)
		head.coat = animal.coat;
	head.gloss  = animal.gloss;
	Pose facing = pose;
	facing.earSwing += key.ears;
	AddHead(model, head, {centre - Vec3{r * .05f, 0, 0}, axes}, view, facing, 1.6f);
}

Limbs HopperBuilder::LimbsOf(int s) const
{
	float up = pose.rise, sole = animal.footRadius, palm = animal.armRadius * .8f;
	Limbs l;
	l.joint = hip + spine * .8f - back * .8f + Vec3{0, 0, s * animal.hindSpread};
	l.shoulder =
	    chest - back * (animal.chestRadius * .25f) + Vec3{0, 0, s * animal.foreSpread * 1.1f};
	l.heel = {key.heelX, key.heelY + sole + up, s * animal.hindSpread * 1.35f};
	l.toe  = {key.toeX, key.toeY + sole * .9f + up, s * animal.hindSpread * 1.5f};
	l.hand = {key.handX, key.handY + palm + up, s * animal.foreSpread};
	if (animal.armsHang)
		l.hand = l.shoulder + Vec3{key.handX, key.handY, s * .4f};
	l.kneeBend  = {1, .25f, s * .25f};
	l.elbowBend = {-1, -.2f, s * .25f};
	if (pose.tuck > 0)
		Tuck(l, s);
	if (pose.armsUp > 0)
		l.hand = Mix(l.hand, l.shoulder + Vec3{animal.arm * .75f, animal.arm * .35f, s * 1.5f},
		             pose.armsUp);
	if (pose.limbsUp > 0)
		Fling(l, s);
	if (Climbs())
		Cling(l, s);
	return l;
}

void HopperBuilder::Tuck(Limbs& l, int s) const
{
	float foot = Length(l.toe - l.heel);
	Vec3 heel  = l.joint + Vec3{animal.hipRadius * .25f, -animal.hipRadius * .62f, s * .4f};
	Vec3 toe   = heel + Vec3{foot * .9f, foot * .15f, 0};
	Vec3 hand  = l.shoulder + Vec3{animal.arm * .45f, -animal.arm * .40f, 0};
	l.heel     = Mix(l.heel, heel, pose.tuck);
	l.toe      = Mix(l.toe, toe, pose.tuck);
	l.hand     = Mix(l.hand, hand, pose.tuck);
}

// All four thrown wide, waving.
void HopperBuilder::Fling(Limbs& l, int s) const
{
	float wave = pose.fit > 0 ? std::sin(pose.fit * 2 * PI + (s > 0 ? 2 : 0)) : 0;
	float arm = animal.arm, leg = animal.leg, foot = Length(l.toe - l.heel);
	Vec3 hand = l.shoulder + Vec3{arm * .55f, arm * (.40f + .2f * wave), s * arm * .72f};
	Vec3 heel = l.joint + Vec3{-leg * .35f, leg * (.02f - .14f * wave), s * leg * .62f};
	l.hand    = Mix(l.hand, hand, pose.limbsUp);
	l.heel    = Mix(l.heel, heel, pose.limbsUp);
	l.toe     = Mix(l.toe, heel + Vec3{-foot * .55f, foot * .25f, s * foot * .6f}, pose.limbsUp);
}

// Paws on both sides of the trunk: fore paws reach up while the hind ones hold, and the other way.
void HopperBuilder::Cling(Limbs& l, int s) const
{
	float gather = .5f + .5f * std::cos(pose.climb * 2 * PI);
	float odd    = s > 0 ? .9f : -.9f; // one paw a little higher
	Vec3 hand    = BACK_HANDS + Vec3{0, animal.arm * (.25f - .45f * gather) + odd, 0};
	Vec3 heel    = BACK_FEET + Vec3{0, animal.leg * (-.30f + .26f * gather) - odd, 0};
	l.hand       = l.shoulder + Vec3{hand.x, hand.y, s * (hand.z - animal.foreSpread)};
	l.heel       = l.joint + Vec3{heel.x, heel.y, s * (heel.z - animal.hindSpread + 1.5f)};
	l.toe        = l.heel + Vec3{1, 1.6f, s * 2.0f};
	l.kneeBend   = {-.1f, .6f, s * 1.f};
	l.elbowBend  = {-.6f, -.6f, s * 1.f};
}

static Vec3 Within(Vec3 joint, Vec3 end, float reach)
{
	Vec3 way = end - joint;
	return joint + Normalize(way) * std::min(Length(way), reach * .999f);
}

void HopperBuilder::AddLimbs(int s)
{
	bool far    = !Climbs() && s != (int)view.NearSide();
	float shade = far ? FAR_SHADE : 0;
	Colour fur  = Darker(HexColour(animal.coat) * LIMB_SHADE, shade);
	Colour paw  = animal.feet ? Darker(HexColour(animal.feet), shade) : fur;
	int limb = model.Plain(fur, animal.gloss), foot = model.Plain(paw, animal.gloss);

	Limbs l    = LimbsOf(s);
	Vec3 heel  = Within(l.joint, l.heel, animal.leg);
	Vec3 toe   = l.toe + (heel - l.heel);
	Vec3 knee  = KneeOf(l.joint, heel, animal.leg, l.kneeBend);
	float sole = animal.footRadius;
	model.RoundCone(l.joint, knee, animal.thigh, animal.shank * 1.15f, limb, 1.5f);
	model.RoundCone(knee, heel, animal.shank, sole * .95f, limb, .6f);
	model.RoundCone(heel, Mix(heel, toe, .8f), sole * .95f, sole, foot, .5f);
	model.Ellipsoid(toe, {sole * 1.25f, sole * .9f, sole * animal.toes}, Mat3(), foot, .5f);

	Vec3 hand  = Within(l.shoulder, l.hand, animal.arm);
	Vec3 elbow = KneeOf(l.shoulder, hand, animal.arm, l.elbowBend);
	float r    = animal.armRadius;
	model.RoundCone(l.shoulder, elbow, r * 1.3f, r, limb, 1.0f);
	model.RoundCone(elbow, hand, r, r * .85f, limb, .5f);
	model.Ellipsoid(hand + Vec3{r * .35f, 0, 0}, {r * 1.25f, r * .85f, r * 1.05f}, Mat3(), foot,
	                .4f);
}

void HopperBuilder::AddTail()
{
	Vec3 root = hip - spine * (animal.hipRadius * .80f) + back * (animal.hipRadius * .10f);
	switch (animal.tail) {
	case HopperTail::Ball: {
		Vec3 at = hip - spine * (animal.hipRadius * .93f) +
		          back * (animal.tailRadius * (.5f + .5f * key.tail));
		model.Ball(at, animal.tailRadius, animal.tailColour ? model.Plain(animal.tailColour) : coat,
		           .5f);
		return;
	}
	case HopperTail::Heavy:
		return AddHeavyTail(root);
	case HopperTail::Bush:
		return AddBush(root);
	}
}

// Lies on the ground as a third leg, or streams out in the air.
void HopperBuilder::AddHeavyTail(Vec3 root)
{
	float len = animal.tailLength, r = animal.tailRadius, lift = key.tail + pose.tailRaise;
	float floor = r * .5f + pose.rise, level = root.y + len * (lift - 1) * .42f;
	float low   = 1 - Clamp01(lift);
	float swing = pose.tailSwing * 3;
	auto height = [&](float along, float thick) {
		float lying =
		    std::max(floor + thick * .4f, Mix(root.y, floor, std::min(1.f, along * 1.7f)));
		return Mix(Mix(root.y, level, along * along), lying, low);
	};
	Vec3 p1 = {root.x - len * .30f, height(.30f, r) - (1 - low) * len * .06f, 0};
	Vec3 p2 = {root.x - len * .66f, height(.66f, r * .6f), swing * .5f};
	Vec3 p3 = {root.x - len, height(1, r * .4f), swing};
	model.Tube(hip - spine * (animal.hipRadius * .35f), p1, p2, p3, r * 1.35f, r * .42f, 8, coat, 2,
	           .6f);
}

// Sitting: an S up behind the back. Running: streams after it. On a trunk: hangs toward the viewer.
void HopperBuilder::AddBush(Vec3 root)
{
	float len = animal.tailLength, r = animal.tailRadius;
	float lift = pose.hop >= 0 ? Mix(.55f, .12f, key.tail) : 1 + .15f * pose.tailRaise;
	float wave = pose.tailSwing;
	Vec3 p1 = {-len * .50f, -len * .06f * lift, 0}, p2 = {-len * .55f, len * .95f * lift, wave};
	Vec3 p3  = {-len * (pose.hop >= 0 ? 1.05f : .62f), len * 1.08f * lift, wave * 2};
	Vec3 end = {-len * .16f, -len * .10f, 0};
	if (Climbs()) {
		float side = view.TowardViewer(); // seen from behind, both facings have z on one side
		p1         = {-len * .30f, -len * .30f, side * wave * .5f};
		p2         = {-len * .45f, -len * .45f, side * (3 + wave * 1.5f)};
		p3         = {-len * .40f, -len * .50f, side * (6 + wave * 2)};
		end        = {-len * .05f, len * .22f, side * (2 + wave * .5f)};
	}
	float puff = 1 + .2f * pose.tailRaise;
	model.Tube(root, root + p1, root + p2, root + p3, r * .55f, r * puff, 8,
	           animal.tailColour ? model.Plain(animal.tailColour) : coat, 1, 1);
	int tip = animal.tailTip ? model.Plain(animal.tailTip) : coat;
	model.RoundCone(root + p3, root + p3 + end, r * .96f * puff, r * .5f, tip, .8f);
}

// Only its lip: the young one inside is not to be seen, since it may have hopped out.
void HopperBuilder::AddPouch()
{
	float r   = animal.hipRadius;
	Vec3 at   = Mix(hip, chest, .36f) - back * (r * .92f);
	Mat3 axes = AxesFrom(spine, back, {0, 0, 1});
	int lip   = model.Plain(Mix(HexColour(animal.belly), HexColour(animal.coat), .30f));
	model.Ellipsoid(at - spine * 1.8f - back * .8f, {3.6f, 3.0f, 5.2f}, axes, lip, .8f);
}
} // namespace

void AddHopper(Model& model, const Hopper& animal, const View& view, const Pose& pose)
{
	HopperBuilder(model, animal, view, pose).Build();
}
