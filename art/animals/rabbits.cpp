// Rabbit, snowshoe hare and jackrabbit.
#include "art/animals/actions.h"
#include "art/animals/beast.h"
#include "art/animals/hoppers.h"
#include "art/families.h"

// Small and round, hunched over its fore paws.
static Hopper RabbitShape()
{
	Hopper r;
	r.stand = {-4, 6.8f, 14, 1, -7, 0, 0, 0, 5.8f, 0, 0, 0, 0};
	r.coat = 0xa5836a, r.belly = 0xf4e8d8, r.tailColour = 0xffffff;
	r.arch = .9f;

	Head& h  = r.head;
	h.radius = 5.9f, h.cheeks = .56f;
	h.muzzleLength = .9f, h.muzzleRoot = 2.5f, h.muzzleTip = 1.9f, h.muzzleDrop = -1.5f;
	h.muzzle = 0xf6ece0, h.nose = 1.05f, h.noseColour = 0xe0808a;
	h.ear = EarKind::Long, h.earRadius = 2.0f, h.earLength = 8.8f, h.innerEar = 0xf4b8b4;
	h.eye = {2.1f, .72f, .28f, .50f, .60f};
	return r;
}

// In its winter coat: sits up higher, on hind feet as broad as snowshoes.
static Hopper HareShape()
{
	Hopper r = RabbitShape();
	r.stand  = {-4.8f, 7.0f, 28, 1, -8, 0, 2.5f, 0, 5, 0, 0, 0, 0};
	r.torso = 9.2f, r.hipRadius = 6.2f, r.chestRadius = 4.6f, r.arch = .7f;
	r.footRadius = 2.0f, r.toes = 1.45f, r.leg = 12.5f, r.arm = 11.5f;
	r.gaitWide = 1.08f, r.gaitHigh = 1.12f;
	r.coat = 0xf2f5fc, r.belly = 0xffffff, r.feet = 0xe6ecf6;
	r.headForward = 3.8f, r.headUp = 5.9f, r.gloss = .2f;

	Head& h  = r.head;
	h.radius = 5.6f, h.cheeks = .60f, h.muzzle = 0xffffff, h.noseColour = 0x6a5a66;
	h.earLength = 8.5f, h.earRadius = 2.0f, h.earTip = 0x2e2a36, h.innerEar = 0xe8c4c6;
	return r;
}

// Lean, upright on long legs, under ears as long as its body.
static Hopper JackrabbitShape()
{
	Hopper r = RabbitShape();
	r.stand  = {-5.2f, 7.8f, 33, 1, -9, 0, 1.5f, 0, 6, 0, 0, 0, 0};
	r.torso = 10.4f, r.hipRadius = 5.4f, r.chestRadius = 3.9f, r.arch = .4f;
	r.thigh = 3.9f, r.shank = 1.7f, r.leg = 15, r.footRadius = 1.25f;
	r.arm = 14.5f, r.armRadius = 1.2f, r.foreSpread = 2.2f;
	r.gaitWide = 1.12f, r.gaitHigh = 1.35f;
	r.headForward = 4.2f, r.headUp = 5.8f, r.neckRadius = 2.9f;
	r.coat = 0xb98c58, r.belly = 0xfbeed6, r.tailColour = 0x3a2c26, r.tailRadius = 2.2f;

	Head& h  = r.head;
	h.radius = 5, h.cheeks = .42f, h.muzzle = 0xf2dfc0, h.noseColour = 0x5a3a30;
	h.muzzleLength = 2.4f, h.muzzleRoot = 2.3f, h.muzzleTip = 1.6f;
	h.ear = EarKind::Long, h.earLength = 12, h.earRadius = 2.2f, h.earTip = 0x2e2420;
	h.eye = {2.15f, .70f, .32f, .52f, .62f};
	return r;
}

// A broad shadow, as it sits close to the ground.
static Species Crouching(const char* prefix, float width, Hopper (*shape)())
{
	Species s = HopperSpecies(prefix, width, shape);
	s.shadow  = .41f;
	return s;
}

Species Rabbit()
{
	return Crouching("rabbit", 28, RabbitShape);
}

Species Hare()
{
	return Crouching("hare", 29, HareShape);
}

Species Jackrabbit()
{
	return Crouching("jackrabbit", 29, JackrabbitShape);
}

void AddRabbits(Catalogue& catalogue)
{
	for (Species (*species)() : {Rabbit, Hare, Jackrabbit})
		AddBeast(catalogue, __FILE__, species, {{"hop", Hop()}}, false);
}
