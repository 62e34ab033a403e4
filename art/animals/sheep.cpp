// The sheep.
#include "art/animals/actions.h"
#include "art/animals/figure.h"
#include "art/animals/sheep.h"
#include "art/families.h"

static const float LOOK_BACK = 2.1f; // to the viewer and beyond, over the shoulder

static Quadruped SheepShape()
{
	Quadruped q;
	q.length = 13, q.shoulderHeight = 16, q.hipHeight = 16.5f;
	q.chest = 7, q.hip = 8, q.belly = 9.4f, q.wool = true;
	q.thigh = 2.6f, q.shin = 2.1f, q.paw = 2.6f, q.hooved = true, q.spread = 4.3f;
	q.neckForward = 4.6f, q.neckUp = 4.2f, q.neckRadius = 5;
	q.coat.base = 0xfbf6ea, q.coat.belly = 0xe8dcc8;
	q.legs = 0xdcae8a, q.feet = 0x70503f, q.tailRadius = 2.8f;

	Head& h  = q.head;
	h.radius = 7.3f, h.shape = {1, 1, .97f}, h.cheeks = 0;
	h.muzzleLength = 1.9f, h.muzzleRoot = 3.9f, h.muzzleTip = 3.3f, h.muzzleDrop = -2.5f;
	h.nose = 1.25f, h.curls = 2.4f, h.blush = .55f;
	h.ear = EarKind::Flop, h.earRadius = 2, h.earLength = 4.4f;
	h.eye  = {2.55f, .74f, .26f, .46f, .62f};
	h.coat = 0xf1c9a4, h.muzzle = 0xf7dcc0, h.innerEar = 0xf0a890, h.noseColour = 0x7a4238;
	h.hair = 0xfbf6ea;
	return q;
}

static void BuildSheep(Model& model, const View& view, const Pose& pose)
{
	AddQuadruped(model, SheepShape(), view, pose);
}

Species Sheep()
{
	Species s;
	s.prefix = "sheep";
	s.build  = BuildSheep;
	s.width  = 39;
	return s;
}

// The head goes down, then the mouth moves.
static Poses Grazing()
{
	Poses list = LowerHead(6);
	for (const Pose& pose : Graze(4))
		list.push_back(pose);
	return list;
}

// Two views for each side: calm, and crying out.
static void DrawCaptured(Sink& sink)
{
	const char* const LETTERS = "ABCD";
	Figure figure((Sheep()));
	for (int i = 0; i < 4; i++) {
		Pose pose = Captured();
		pose.left = i % 2 == 0;
		if (i >= 2) {
			pose.look = .9f, pose.mouth = .7f, pose.wideEyes = .3f, pose.headTip = .15f;
			pose.earSwing = .8f;
		}
		sink.Add(std::string("sheepcaptured") + LETTERS[i] + ".png", figure.DrawAlone(pose));
	}
}

void AddSheep(Catalogue& catalogue)
{
	AddSequences(catalogue, __FILE__, Sheep,
	             {{"stand", {Pose()}, "", false},
	              {"stand", {EyesWide()}, "eyeswide", false},
	              {"walk", Walk(8)},
	              {"graze", Grazing()},
	              {"lookback", Look(5, LOOK_BACK)},
	              {"stunned", Stagger(7)}});
	catalogue.Add("animals sheep captured", __FILE__, DrawCaptured);
}
