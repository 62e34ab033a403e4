// Horse, zebra, unicorn and donkey.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped HorseShape()
{
	Quadruped q;
	q.length = 21, q.shoulderHeight = q.hipHeight = 24;
	q.chest = 8.2f, q.hip = 8.4f, q.belly = 8.2f, q.spread = 4;
	q.thigh = 3.6f, q.shin = 2.4f, q.paw = 3.1f, q.hooved = true;
	q.neckForward = 7.5f, q.neckUp = 10, q.neckRadius = 5.4f, q.headPitch = -12;
	q.tail = TailKind::Hair, q.tailLength = 14, q.mane = ManeKind::Crest;
	q.coat.base = 0xbd6a30, q.coat.belly = 0x9c5420, q.legs = 0xa85a28, q.feet = 0x3a2820;

	Head& h  = q.head;
	h.radius = 8.6f, h.shape = {1, .95f, .92f}, h.cheeks = .40f;
	h.muzzleLength = 6.2f, h.muzzleRoot = 4.4f, h.muzzleTip = 3.7f, h.muzzleDrop = -3.2f;
	h.nose = .9f, h.forelock = 1.9f;
	h.ear = EarKind::Point, h.earRadius = 1.8f, h.earLength = 4.4f;
	h.eye    = {2.9f, .70f, .32f, .54f, .62f};
	h.muzzle = 0xdba274, h.noseColour = 0x5a3020;
	return q;
}

static Quadruped ZebraShape()
{
	const uint32_t WHITE = 0xfaf6ee, BLACK = 0x2a2630;
	Quadruped q     = HorseShape();
	q.coat          = {CoatKind::Stripes, WHITE, WHITE, BLACK, 1.05f, .10f, 2.2f, 18};
	q.patternedLegs = true, q.legs = WHITE, q.feet = BLACK, q.maneColour = BLACK;
	q.tail = TailKind::Rope, q.tailLength = 13, q.tailRadius = 1.2f;

	Head& h  = q.head;
	h.muzzle = 0x544a52, h.noseColour = 0x241e24, h.innerEar = 0xd8b8b0;
	h.mark = FaceMark::Bars, h.markColour = BLACK, h.hair = BLACK, h.forelock = 1.3f;
	return q;
}

static Quadruped UnicornShape()
{
	const uint32_t PINK = 0xf48ad2;
	Quadruped q         = HorseShape();
	q.coat.base = 0xffffff, q.coat.belly = 0xe6e0f4, q.legs = 0xf4f0fc, q.feet = 0xe0ac44;
	q.maneColour = PINK;

	Head& h  = q.head;
	h.muzzle = 0xfae2ea, h.noseColour = 0xb87a98, h.hair = PINK, h.blush = .5f;
	h.horn = HornKind::Single, h.hornLength = 10, h.horns = 0xffd84a;
	h.eye.iris = 0x7a5ae0, h.eye.pupil = .45f;
	return q;
}

static Quadruped DonkeyShape()
{
	const uint32_t DARK = 0x4a4444;
	Quadruped q         = HorseShape();
	q.length = 18, q.shoulderHeight = q.hipHeight = 20.5f, q.neckForward = 6.5f, q.neckUp = 8.2f;
	q.coat.base = 0xa39a96, q.coat.belly = 0xe2dacc, q.legs = 0x8e867f, q.maneColour = DARK;
	q.tail = TailKind::Rope, q.tailLength = 12, q.tailRadius = 1.2f;

	Head& h = q.head;
	h.ear = EarKind::Long, h.earRadius = 2.4f, h.earLength = 10.5f, h.earTip = DARK;
	h.muzzle = 0xf2ece0, h.hair = DARK, h.forelock = 1.3f;
	h.mark = FaceMark::EyeRings, h.markColour = 0xeae3d8;
	return q;
}

Species Horse()
{
	return BeastSpecies("horse", 60, HorseShape);
}

Species Zebra()
{
	return BeastSpecies("zebra", 60, ZebraShape);
}

Species Unicorn()
{
	return BeastSpecies("unicorn", 70, UnicornShape);
}

Species Donkey()
{
	return BeastSpecies("donkey", 52, DonkeyShape);
}

static std::vector<Sequence> OfGrazers()
{
	return {{"lowerhead", HeadDown()},
	        {"graze", Graze(4)},
	        {"whinny", Whinny()},
	        {"stunned", Stagger(7)}};
}

void AddHorses(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Horse,
	         {{"lowerhead", HeadDown()},
	          {"chewgrass", Graze(4)},
	          {"whinny", Whinny()},
	          {"rearup", RearUp()},
	          {"smilereturns", ComeDownSmiling()}},
	         true, "looksouth");
	AddBeast(catalogue, __FILE__, Zebra, OfGrazers());
	AddBeast(catalogue, __FILE__, Unicorn, OfGrazers());
	AddBeast(catalogue, __FILE__, Donkey, {{"kick", KickOut()}, {"walk", Walk(12)}});
}
