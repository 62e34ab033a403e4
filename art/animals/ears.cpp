// Each kind of ear.
#include "art/animals/ears.h"

static const float NEAR_FAN_TURN = -.66f, FAR_FAN_TURN = .10f; // radians to the front
namespace
{
struct EarBuilder {
	Model& model;
	const Head& head;
	const HeadFrame& frame;
	int s, outer, inner;
	bool far;              // from the viewer
	float r, er, el, back; // head radius, ear radius and length, swing

	void Add();
	void AddRound();
	void AddSide();
	void AddPoint();
	void AddFlop();
	void AddFan();
	void AddLong();
	void AddTube();
};

void EarBuilder::Add()
{
	switch (head.ear) {
	case EarKind::None:
		return;
	case EarKind::Round:
		return AddRound();
	case EarKind::Side:
		return AddSide();
	case EarKind::Point:
		return AddPoint();
	case EarKind::Flop:
		return AddFlop();
	case EarKind::Fan:
		return AddFan();
	case EarKind::Long:
		return AddLong();
	case EarKind::Tube:
		return AddTube();
	}
}

void EarBuilder::AddRound()
{
	Vec3 e = frame.Point(-r * .12f, r * head.earUp, s * r * head.earAside);
	model.Ellipsoid(e, {er * .62f, er, er}, frame.axes, outer, .6f);
	model.Ellipsoid(e + frame.Along(er * .42f, 0, 0), {er * .36f, er * .64f, er * .64f}, frame.axes,
	                inner, 0);
}

// An ape's, at the height of the eyes.
void EarBuilder::AddSide()
{
	Vec3 e = frame.Point(-r * .05f, r * .10f, s * r * 1.05f);
	model.Ellipsoid(e, {1.2f, er, er * .92f}, frame.axes, outer, .4f);
	model.Ellipsoid(e + frame.Along(.85f, 0, s * .2f), {.65f, er * .68f, er * .62f}, frame.axes,
	                inner, 0);
}

void EarBuilder::AddPoint()
{
	Vec3 e = frame.Point(-r * .1f, r * .62f, s * r * .58f);
	Vec3 t =
	    frame.Point(-r * .2f - back * 3, r * .62f + el, s * (r * .58f + el * (.28f + back * .5f)));
	model.RoundCone(e, t, er, .7f, outer, .6f);
	model.RoundCone(e + frame.Along(er * .6f, .6f, 0), Mix(e, t, .72f) + frame.Along(.8f, 0, 0),
	                er * .58f, .35f, inner, 0);
	if (head.earTip)
		model.RoundCone(Mix(e, t, .72f), t, Mix(er, .7f, .72f) + .12f, .8f,
		                model.Plain(head.earTip), .1f);
}

void EarBuilder::AddFlop()
{
	Vec3 e = frame.Point(-r * .15f, r * .48f, s * r * .82f);
	Vec3 t = e + frame.Along(-.8f, -el * (.25f - .7f * back) - back * .5f, s * el);
	model.RoundCone(e, t, er * .75f, er, outer, .6f);
	model.RoundCone(Mix(e, t, .25f) + frame.Along(er * .55f, -.2f, 0),
	                t + frame.Along(er * .55f, -.1f, -s * .4f), er * .42f, er * .62f, inner, 0);
}

// An elephant's. The near plate is turned toward the side view and the far one out, or they are
// seen edge-on as sticks.
void EarBuilder::AddFan()
{
	float turn = far ? FAR_FAN_TURN : NEAR_FAN_TURN + back * .35f;
	Mat3 plate = frame.axes * TurnY(s * turn) * TurnX(s * back * .12f);
	Vec3 e     = frame.Point(-r * .55f, r * .08f, s * r * (1.14f + back * .12f));
	float tall = r * (1.08f + .10f * back), wide = r * (1.0f + .22f * back);
	model.Ellipsoid(e, {1.4f, tall, wide}, plate, outer, .8f);
	model.Ellipsoid(e + plate * Vec3{1.0f, 0, 0}, {.8f, tall * .8f, wide * .76f}, plate, inner, 0);
}

void EarBuilder::AddLong()
{
	Vec3 e   = frame.Point(-r * .2f, r * .7f, s * r * .42f);
	Vec3 mid = e + frame.Along(-.6f - back * el * .3f, el * .5f, s * el * .12f);
	Vec3 t   = e + frame.Along(-1.4f - back * el * .8f, el * (1 - back * .4f), s * el * .30f);
	model.RoundCone(e, mid, er * .7f, er, outer, .6f);
	model.RoundCone(mid, t, er, er * .45f, outer, .4f);
	Vec3 front = frame.Along(er * .6f, 0, 0);
	model.RoundCone(Mix(e, mid, .5f) + front, Mix(mid, t, .7f) + front, er * .5f, er * .35f, inner,
	                0);
	if (head.earTip)
		model.RoundCone(Mix(mid, t, .62f), t, Mix(er, er * .45f, .62f) + .15f, er * .45f + .2f,
		                model.Plain(head.earTip), .1f);
}

void EarBuilder::AddTube()
{
	Vec3 e = frame.Point(-r * .35f, r * .72f, s * r * .52f);
	Vec3 t = e + frame.Along(-.4f, el, s * el * .35f);
	model.RoundCone(e, t, er * .8f, er, outer, .6f);
	model.Ellipsoid(t + frame.Along(er * .55f, .2f, 0), {er * .5f, er * .75f, er * .6f}, frame.axes,
	                inner, 0);
}
} // namespace

void AddEar(Model& model, const Head& head, const HeadFrame& frame, const Pose& pose, int side,
            int coat, int inner)
{
	int outer = head.earColour ? model.Plain(head.earColour) : coat;
	bool far  = (side > 0) == pose.left;
	EarBuilder{model, head,        frame,          side,           outer,        inner,
	           far,   head.radius, head.earRadius, head.earLength, pose.earSwing}
	    .Add();
}
