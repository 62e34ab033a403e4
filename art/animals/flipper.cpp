// Body, flippers and whiskered head of seals.
#include "art/animals/flipper.h"

static const float HEAVE = 3.4f; // height by which the back humps up in a stride
static const float PULL  = 2.6f; // way of the fore flippers

namespace
{
class FlipperBuilder
{
public:
	FlipperBuilder(Model& newModel, const Flipper& newSeal, const View& newView,
	               const Pose& newPose);
	void Build();

private:
	void AddBody();
	void AddTail();
	void AddFlippers();
	void AddHead();
	void AddFace(const HeadFrame& frame);
	void AddMouth(const HeadFrame& frame);
	void AddWhiskers(const HeadFrame& frame, int s);

	Model& model;
	const Flipper& seal;
	View view;
	const Pose& pose;
	float k, r; // size, head radius
	float hump = 0, reach = 0;
	Vec3 tail, rump, breast, head;
	int coat = 0, fin = 0;
};

FlipperBuilder::FlipperBuilder(Model& newModel, const Flipper& newSeal, const View& newView,
                               const Pose& newPose)
    : model(newModel), seal(newSeal), view(newView), pose(newPose), k(newSeal.size),
      r(newSeal.headRadius * newSeal.size)
{
	float phase = pose.stride >= 0 ? pose.stride * 2 * PI : 0, low = pose.squash * k;
	if (pose.stride >= 0) {
		hump  = .5f - .5f * std::cos(phase);
		reach = std::cos(phase + .7f);
	}
	float up = pose.rise, pull = hump * 2.2f;
	tail   = Vec3{-17 + pull, 3 + 1.2f * pose.tailRaise, 0} * k + Vec3{0, up, 0};
	rump   = Vec3{-5 + pull * .6f, 6.2f * seal.bulk + hump * HEAVE * .8f, 0} * k;
	breast = Vec3{6.5f, 9.6f + hump * HEAVE * .25f + 2 * pose.rear, 0} * k;
	head   = Vec3{10.5f + pose.neckReach * 2.5f + reach * .5f,
                18.6f - hump * 1.2f + pose.rear * 3.2f - pose.headDown * 7, 0} *
	       k;
	rump   = rump + Vec3{0, up - low * .3f, 0};
	breast = breast + Vec3{0, up - low * .5f, 0};
	head   = head + Vec3{0, up - low, 0};
}

// Pale below; the line rises toward the chin.
void FlipperBuilder::AddBody()
{
	coat = model.Painted(
	    [s = seal, size = k, lift = pose.rise](const SurfacePoint& at) {
		    Vec3 p     = at.position * (1 / size);
		    float line = p.y - lift / size - std::max(0.f, p.x - 2) * .85f;
		    float above =
		        std::max(Smoothstep(2.2f, 5.2f, line), Smoothstep(.15f, .6f, at.normal.y));
		    Colour c = Mix(HexColour(s.belly), HexColour(s.coat), above);
		    if (s.spots) {
			    float blot = Noise(Vec3{p.x, p.y, std::fabs(p.z)} * .45f + Vec3{7, 1, 3});
			    c          = Mix(c, HexColour(s.fin), Smoothstep(.64f, .72f, blot) * .75f * above);
		    }
		    return c;
	    },
	    .60f);
	fin     = model.Plain(seal.fin, .5f);
	float b = seal.bulk;
	model.RoundCone(tail, rump, 2.5f * k, 6.4f * k * b, coat, 0);
	model.RoundCone(rump, breast, 6.6f * k * b, 6.2f * k * b, coat, 3 * k);
	model.RoundCone(breast, head - Vec3{.6f, .6f, 0} * k, 5.8f * k * b, r * .74f, coat, 3 * k);
	if (!seal.creased)
		return;
	int fold = model.Plain(Darker(HexColour(seal.coat), .35f), .3f);
	for (int i = 0; i < 2; i++) {
		Vec3 way = Normalize(head - breast);
		Vec3 at  = Mix(breast, head, .30f + .30f * i);
		model.Ring(at, (5.6f - .5f * i) * k * b, .8f * k, TurnZ(std::atan2(-way.x, way.y)), fold,
		           1.2f * k);
	}
}

// Two fans that close and open.
void FlipperBuilder::AddTail()
{
	float spread = .45f + .18f * hump + .25f * pose.tailSwing;
	for (int s : {-1, 1}) {
		Mat3 axes = TurnY(s * spread) * TurnZ(-.35f - .3f * pose.tailRaise);
		Vec3 end  = tail + axes * Vec3{-5.6f, 0, 0} * k;
		model.RoundCone(tail, end, 1.7f * k, 1.5f * k, fin, .8f * k);
		model.Ellipsoid(end, Vec3{2.9f, .9f, 1.9f} * k, axes, fin, .8f * k);
	}
}

void FlipperBuilder::AddFlippers()
{
	float clap = pose.armsUp, b = seal.bulk;
	for (int s : {-1, 1}) {
		Vec3 shoulder = breast + Vec3{0, -3.4f * k, s * 5.0f * k * b};
		float tucked  = pose.tuck;
		Vec3 tip      = {(7.5f + reach * PULL - 5 * tucked) * k, 1.4f * k + pose.rise,
		                 s * (9.6f - 1.8f * tucked) * k * b};
		tip           = Mix(tip, shoulder + Vec3{5.5f, 2.0f, s * 3.0f} * k, clap);
		tip.y +=
		    std::max(0.f, -std::sin(pose.stride >= 0 ? pose.stride * 2 * PI + .7f : 0)) * k * 1.6f;
		model.RoundCone(shoulder, tip, 2.4f * k, 1.5f * k, fin, 1.4f * k);
		Mat3 axes = TurnY(-s * .45f) * TurnZ(clap * .9f);
		model.Ellipsoid(tip + axes * Vec3{.8f, -.1f, 0} * k, Vec3{3.5f, .95f, 2.3f} * k, axes, fin,
		                1.0f * k);
	}
}

// Two hairs a side.
void FlipperBuilder::AddWhiskers(const HeadFrame& frame, int s)
{
	if (seal.tusks > 0)
		return;
	int hair = model.Plain(0xfdfdfdu, .2f);
	for (int i = 0; i < 2; i++) {
		Vec3 root = frame.Point(r * 1.02f, -r * (.26f + .18f * i), s * r * .50f);
		Vec3 tip  = root + frame.Along(r * .25f, r * (.20f - .36f * i), s * r * .55f);
		model.RoundCone(root, tip, .26f, .18f, hair, 0);
	}
}

// pose.earSwing: how broadly it smiles.
void FlipperBuilder::AddMouth(const HeadFrame& frame)
{
	float open = pose.mouth, smile = pose.earSwing;
	int line = model.Plain(InkOf(HexColour(seal.fin)));
	if (open > 0) {
		model.Ellipsoid(frame.Point(r * .62f, -r * (.66f + .14f * open), 0),
		                {r * .42f, r * (.14f + .30f * open), r * .42f}, frame.axes,
		                model.Plain(Lighter(HexColour(seal.coat), .25f), .3f), .6f);
		model.Ellipsoid(frame.Point(r * .82f, -r * (.60f + .12f * open), 0),
		                {r * .34f, r * (.08f + .28f * open), r * .34f}, frame.axes,
		                model.Plain(0x8c2434u, .2f), .1f);
		model.Ellipsoid(frame.Point(r * .92f, -r * (.74f + .20f * open), 0),
		                {r * .26f, r * .12f, r * .24f}, frame.axes, model.Plain(0xf07a86u, .3f),
		                .1f);
	}
	if (smile <= 0)
		return;
	// a broad line from cheek to cheek, below the pads, and the cheeks pushed up
	Vec3 last;
	for (int i = -3; i <= 3; i++) {
		float u = i / 3.f, z = u * .86f * smile;
		Vec3 at =
		    frame.Point(r * (1.10f - .52f * u * u), r * (-.70f + .42f * u * u * smile), z * r);
		if (i > -3)
			model.RoundCone(last, at, .48f, .48f, line, 0);
		last = at;
	}
	for (int s : {-1, 1})
		model.Ball(frame.Point(r * .66f, -r * .16f, s * r * .74f), r * .20f * smile,
		           model.Plain(Mix(HexColour(seal.coat), HexColour(0xff9a9a), .45f), .2f), r * .2f);
}

void FlipperBuilder::AddFace(const HeadFrame& frame)
{
	int pad = model.Plain(seal.pad, .25f), dark = model.Plain(0x2a2024u, .75f);
	int ivory = model.Plain(0xfffaecu, .6f);
	AddMouth(frame);
	for (int s : {-1, 1}) {
		model.Ellipsoid(frame.Point(r * .84f, -r * .34f, s * r * .32f),
		                Vec3{seal.pads, seal.pads * .88f, seal.pads} * r, frame.axes, pad, .5f);
		AddWhiskers(frame, s);
		for (int i = 0; i < 3; i++)
			model.Ball(frame.Point(r * (.84f + seal.pads * .86f), -r * (.28f + .13f * i),
			                       s * r * (.32f + .07f * i)),
			           .34f * std::max(1.f, k), dark, 0);
		if (seal.tusks > 0)
			model.RoundCone(frame.Point(r * .98f, -r * .58f, s * r * .34f),
			                frame.Point(r * 1.06f, -r * (.58f + seal.tusks), s * r * .40f),
			                r * .155f, r * .07f, ivory, 0);
	}
	model.Ellipsoid(frame.Point(r * 1.14f, -r * .10f, 0), Vec3{.16f, .15f, .23f} * r, frame.axes,
	                dark, 0);
}

void FlipperBuilder::AddHead()
{
	Mat3 axes = TurnY(Radians(18 + pose.look * 46) * view.TowardViewer()) *
	            TurnZ(pose.headTip - .05f - pose.headDown * .5f);
	model.Ellipsoid(head, {r * 1.02f, r * .96f, r}, axes, coat, 2 * k);
	HeadFrame frame{head, axes};
	AddFace(frame);
	AddEyes(model, frame, {r, r, r}, seal.eye, HexColour(seal.coat), coat, view, pose);
}

void FlipperBuilder::Build()
{
	AddBody();
	AddTail();
	AddFlippers();
	AddHead();
}
} // namespace

void AddFlipper(Model& model, const Flipper& seal, const View& view, const Pose& pose)
{
	FlipperBuilder(model, seal, view, pose).Build();
}
