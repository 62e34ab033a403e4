// Kangaroo and its joey.
#include "art/animals/actions.h"
#include "art/animals/beast.h"
#include "art/animals/hoppers.h"
#include "art/families.h"

static Hopper KangarooShape()
{
	Hopper k;
	k.stand = {-5, 14.5f, 58, 1, -7, 0, 7, 0, 4, -5, 0, 0, 0};
	k.gait = BOUNCE, k.armsHang = true;
	k.torso = 15, k.hipRadius = 9, k.chestRadius = 5.2f, k.arch = 0;
	k.thigh = 5.8f, k.shank = 2.8f, k.leg = 23, k.hindSpread = 5;
	k.footRadius = 1.9f, k.armRadius = 1.6f, k.arm = 7.5f, k.foreSpread = 3.6f;
	k.headForward = 3.2f, k.headUp = 8, k.neckRadius = 3.6f;
	k.tail = HopperTail::Heavy, k.tailLength = 25, k.tailRadius = 3.6f;
	k.pouch = true, k.coat = 0xb4743e, k.belly = 0xf4e0be, k.feet = 0x7a4a2a;

	Head& h  = k.head;
	h.radius = 6.4f, h.cheeks = .40f, h.shape = {1.05f, .95f, .95f};
	h.muzzleLength = 4.4f, h.muzzleRoot = 3.1f, h.muzzleTip = 2.2f, h.muzzleDrop = -1.8f;
	h.muzzle = 0xe0b88e, h.nose = 1.5f;
	h.ear = EarKind::Long, h.earRadius = 2.1f, h.earLength = 8, h.innerEar = 0xf0c0b0;
	h.eye = {2.3f, .68f, .32f, .52f};
	return k;
}

static Hopper JoeyShape()
{
	Hopper k   = KangarooShape();
	k.stand    = {-2, 7, 60, 1, -3.5f, 0, 3.8f, 0, 2.6f, -2.4f, 0, 0, 0};
	k.gaitWide = .58f, k.gaitHigh = .52f;
	k.torso = 6.6f, k.hipRadius = 4.8f, k.chestRadius = 3.4f;
	k.thigh = 3.1f, k.shank = 1.6f, k.leg = 12, k.hindSpread = 2.8f;
	k.footRadius = 1.3f, k.armRadius = 1.1f, k.arm = 4.4f, k.foreSpread = 2.2f;
	k.headForward = 1.6f, k.headUp = 6, k.neckRadius = 3;
	k.tailLength = 11, k.tailRadius = 1.9f, k.pouch = false, k.coat = 0xd09a62;

	Head& h  = k.head;
	h.radius = 5.6f, h.cheeks = .5f, h.muzzle = 0xecc8a0;
	h.muzzleLength = 2.2f, h.muzzleRoot = 2.6f, h.muzzleTip = 1.8f, h.nose = 1.2f;
	h.earRadius = 1.8f, h.earLength = 6, h.eye = {2.2f, .70f, .28f, .50f, .60f};
	return k;
}

// Pinned, since the joey's way out of the pouch is measured from its corner.
static const Window KANGAROO_CANVAS = {-20, -56, 58, 65};
static const Window JOEY_CANVAS     = {-13, -32, 30, 37};

Species Kangaroo()
{
	Species s  = HopperSpecies("kangaroo", 52, KangarooShape);
	s.canvas   = KANGAROO_CANVAS;
	s.shadow   = .30f;
	s.sideTurn = 33;
	return s;
}

Species KangarooJoey()
{
	Species s = HopperSpecies("kangajoey", 26, JoeyShape);
	s.canvas  = JOEY_CANVAS;
	return s;
}

// Rocks back on its tail with its arms flung out, then forward, and shakes it off.
static Poses Reel()
{
	const float LEAN[] = {0, .35f, .62f, .45f, -.12f, -.20f, -.05f};
	const float ARMS[] = {0, .7f, 1, .9f, .4f, .1f, 0};
	Poses list         = Stagger(7);
	for (int i = 0; i < 7; i++) {
		Pose& p     = list[i];
		p.rear      = LEAN[i];
		p.armsUp    = ARMS[i];
		p.headTip   = LEAN[i] * .5f;
		p.wideEyes  = i > 0 && i < 4 ? .35f : 0;
		p.mouth     = i > 0 && i < 4 ? .6f : 0;
		p.lid       = i == 4 || i == 5 ? 1 : 0;
		p.earSwing  = LEAN[i];
		p.tailSwing = .4f * LEAN[i];
	}
	return list;
}

// The game lays the pictures over its mother's, then puts the joey where the last one shows it. The
// joey passes behind her, out of the pouch and down on its own feet.
static void DrawEmerging(Sink& sink)
{
	const Window ROOM   = {-17, -45, 38, 52};
	const int COUNT     = 7;
	const int BEHIND[]  = {8, 6, 4, 2, 0, 0, 0}; // pixels, toward its mother
	const float RISE[]  = {2, 7, 12, 11, 5, 0, 0};
	const float PRESS[] = {1.5f, -.5f, -1, 0, 0, 3.2f, 0};
	const float ARMS[]  = {.2f, .8f, 1, .7f, .5f, 0, 0};
	Figure figure((KangarooJoey()));
	for (bool left : {true, false})
		for (int i = 0; i < COUNT; i++) {
			Pose p;
			p.left     = left;
			p.rise     = RISE[i];
			p.squash   = PRESS[i];
			p.armsUp   = ARMS[i];
			p.tuck     = i < 2 ? 1 : i == 2 ? .6f : 0;
			p.pitch    = i == 2 ? .25f : i == 3 ? .1f : i == 4 ? -.12f : 0;
			p.lid      = i == 5 ? 1 : 0;
			p.wideEyes = i < 5 ? .15f : 0;
			p.earSwing = i == 2 || i == 3 ? .6f : 0;
			p.shadow   = i > 2;
			Window w   = left ? ROOM : Mirrored(ROOM);
			w.left += left ? -BEHIND[i] : BEHIND[i];
			sink.Add(std::string("kangajoeyemerge") + (left ? "left" : "right") +
			             std::to_string(i) + ".png",
			         figure.Draw(p, w));
		}
}

void AddKangaroos(Catalogue& catalogue)
{
	const std::vector<Sequence> MOVES = {
	    {"stunned", Reel()}, {"hopup", Hop(Heading::Up)}, {"hopdown", Hop(Heading::Down)}};
	AddBeast(catalogue, __FILE__, Kangaroo, MOVES);
	AddBeast(catalogue, __FILE__, KangarooJoey, MOVES, false);
	catalogue.Add("animals kangajoey emerge", __FILE__, DrawEmerging);
}
