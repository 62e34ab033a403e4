// Each kind of tail.
#include "art/animals/tails.h"

namespace
{
struct TailBuilder {
	Model& model;
	const Quadruped& animal;
	const TailPlace& place;
	Vec3 root;
	float len, r, swing, raise;

	void Add();
	void AddRope();
	void AddThick();
	void AddWhip();
	void AddHair();
	void AddCurl();
	void AddBush();
	void AddHang();
	void AddPlume();
	void AddRinged();
};

void TailBuilder::Add()
{
	switch (animal.tail) {
	case TailKind::None:
		return;
	case TailKind::Stub:
		model.Ball(root + Vec3{-.6f, .2f + raise, swing * .3f}, r,
		           animal.tailTip ? place.tip : place.coat, 1.2f);
		return;
	case TailKind::Rope:
		return AddRope();
	case TailKind::Thick:
		return AddThick();
	case TailKind::Hair:
		return AddHair();
	case TailKind::Curl:
		return AddCurl();
	case TailKind::Bush:
		return AddBush();
	case TailKind::Plume:
		return AddPlume();
	case TailKind::Ringed:
		return AddRinged();
	case TailKind::Whip:
		return AddWhip();
	case TailKind::Hang:
		return AddHang();
	}
}

void TailBuilder::AddRope()
{
	Vec3 mid = root + Vec3{-len * .45f, -len * .35f + raise, swing * .4f};
	Vec3 end = root + Vec3{-len * .35f, -len * .95f + raise * 2, swing};
	model.RoundCone(root, mid, r, r * .7f, place.plainCoat, 1);
	model.RoundCone(mid, end, r * .7f, r * .6f, place.plainCoat, .5f);
	model.Ellipsoid(end + Vec3{0, -1.2f, 0}, {1.5f, 2.4f, 1.5f}, Mat3(), place.tip, .3f);
}

// Out, then up with a hook.
void TailBuilder::AddThick()
{
	Vec3 mid = root + Vec3{-len * .5f, -len * .28f, swing * .5f};
	Vec3 end = root + Vec3{-len * .95f, len * .12f + raise, swing};
	model.RoundCone(root, mid, r * 1.15f, r, place.coat, 1.4f);
	model.RoundCone(mid, end, r, r * .95f, place.coat, .5f);
	model.RoundCone(end, end + Vec3{-len * .08f, len * .35f, swing * .3f}, r * .95f, r * .8f,
	                place.tip, .5f);
}

void TailBuilder::AddWhip()
{
	float hip = animal.hip;
	model.Tube(root + Vec3{0, -hip * .7f, 0}, root + Vec3{-len * .5f, -hip * .8f, swing},
	           root + Vec3{-len * .7f, len * .2f, swing}, root + Vec3{-len, len * .55f, swing}, r,
	           r * .6f, 6, place.tip, .5f, .3f);
}

void TailBuilder::AddHair()
{
	Vec3 mid = root + Vec3{-2.8f, -1.0f + raise, 0};
	model.RoundCone(root + Vec3{0, 1, 0}, mid, 1.6f, 2.3f, place.mane, .6f);
	model.RoundCone(mid, root + Vec3{-3.6f, -len + raise, swing}, 2.4f, 1.2f, place.mane, .5f);
}

void TailBuilder::AddCurl()
{
	for (int i = 0; i < 9; i++) {
		float a = i * .8f;
		model.Ball(root + Vec3{-.6f - i * .32f, 1.4f * std::sin(a) + .6f,
		                       place.nearSide * 1.4f * std::cos(a)},
		           .85f, place.plainCoat, .5f);
	}
}

void TailBuilder::AddBush()
{
	Vec3 mid = root + Vec3{-len * .5f, -len * .18f, swing * .4f};
	Vec3 end = root + Vec3{-len, len * .10f + raise, swing};
	model.RoundCone(root, mid, r * .6f, r * 1.2f, place.plainCoat, 1);
	model.RoundCone(mid, end, r * 1.2f, r * .45f, place.plainCoat, .8f);
	model.RoundCone(Mix(mid, end, .55f), end + Vec3{-.6f, .2f, 0}, r * .92f, r * .42f, place.tip,
	                .2f);
}

void TailBuilder::AddHang()
{
	Vec3 mid = root + Vec3{-len * .42f, -len * .30f, swing * .4f};
	Vec3 end = root + Vec3{-len * .62f, -len * .85f + raise, swing};
	model.RoundCone(root, mid, r * .75f, r * 1.2f, place.coat, 1);
	model.RoundCone(mid, end, r * 1.2f, r * .6f, place.coat, .8f);
	model.RoundCone(Mix(mid, end, .6f), end, r * .95f, r * .66f, place.tip, .2f);
}

// Up and over the back.
void TailBuilder::AddPlume()
{
	Vec3 p1  = root + Vec3{-len * .55f, len * .05f, 0};
	Vec3 p2  = root + Vec3{-len * .85f, len * .75f + raise, swing};
	Vec3 p3  = root + Vec3{-len * .05f, len * 1.05f + raise, swing};
	Vec3 out = {-r * .62f, r * .55f, 0};
	model.Tube(root, p1, p2, p3, r * .75f, r * 1.15f, 5, place.plainCoat, 1, 1.2f);
	model.Tube(root + Vec3{-.6f, r * .5f, 0}, p1 + out, p2 + out, p3 + out, r * .42f, r * .80f, 5,
	           place.tip, .2f, .8f);
}

void TailBuilder::AddRinged()
{
	Colour base = HexColour(animal.coat.base), dark = HexColour(animal.maneColour);
	int rings = model.Painted([from = root, l = len, base, dark](const SurfacePoint& at) {
		float t = Length(at.position - from) / l;
		return Mix(base, dark, Smoothstep(.0f, .2f, std::sin(t * 21.f)));
	});
	model.Tube(root, root + Vec3{-len * .4f, -len * .25f, swing * .4f},
	           root + Vec3{-len * .7f, -len * .15f, swing},
	           root + Vec3{-len, len * .25f + raise, swing}, r * .8f, r, 5, rings, 1, .6f);
}
} // namespace

void AddTail(Model& model, const Quadruped& animal, const TailPlace& place)
{
	TailBuilder{model,       animal,     place, place.root, animal.tailLength, animal.tailRadius,
	            place.swing, place.raise}
	    .Add();
}
