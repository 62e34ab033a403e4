// The models of crates and barrels, and their pictures.
#include "art/objects/crates.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/core/stamps.h"
#include "art/families.h"
#include "art/objects/explosion.h"

static const float CRATE_HALF    = 14.9f; // of the ground square, pixels
static const float CRATE_TALL    = 13;    // half of the height: a layer is 26
static const float APPLES_TALL   = 10.8f; // apple crates are lower, the apples fill them up
static const float BEAM          = 1.9f;  // half of a beam's width
static const int ROWS            = 5;     // boards of a face
static const float BARREL_RADIUS = 13;
static const float BARREL_TALL   = 17.6f; // half of the height
static const float BARREL_BULGE  = 2.4f;
static const float STAVE         = 5.1f;
static const Colour HOLLOW       = HexColour(0x33200f);

namespace
{
struct Crate {
	CrateLook look;
	int damage;
	float squash;
	bool apples;

	Model model;
	float half, tall;
	int boards, lid, beams, nails, hollow;

	Image Draw();
	void SetUp();
	void AddLid();
	void AddFaces();
	void AddFaceBoard(int face, int row);
	void AddFrame();
	void AddEdge(bool upper, int side);
	void AddDiagonals();
	void AddApples();
};

void Crate::SetUp()
{
	int k        = look == CrateLook::Dark ? 0 : 1;
	half         = CRATE_HALF * (1 + (1 - squash) * .26f);
	tall         = (apples ? APPLES_TALL : CRATE_TALL) * squash;
	Colour board = PAINT_CRATE_BOARD[k], frame = PAINT_CRATE_FRAME[k];
	boards = model.Painted([=](const SurfacePoint& at) {
		Vec3 p = at.position;
		float grain =
		    LayeredNoise({p.y * 1.4f, (p.x + p.z) * .10f, std::floor(p.y / 5.2f) * 7.3f}, 3);
		float knot = Smoothstep(.74f, .80f, Noise({p.y * .30f, (p.x - p.z) * .16f, k * 9.f}));
		return Mix(board * (.84f + .32f * grain), board * .62f, knot * .7f);
	});
	lid    = model.Painted([=](const SurfacePoint& at) {
        return WoodColour({at.position.x, at.position.z, 0}, board * 1.08f, 0, 7.3f);
    });
	beams  = model.Painted(
        [=](const SurfacePoint& at) {
            return frame * (.86f + .30f * LayeredNoise(at.position * .7f, 3));
        },
        .10f);
	nails  = model.Plain(PAINT_NAIL, .7f);
	hollow = model.Plain(HOLLOW, 0);
}

void Crate::AddLid()
{
	float top = 2 * tall - 1.6f;
	model.Box({0, tall - .6f, 0}, {half - 2.6f, tall - 2.4f, half - 2.6f}, Mat3(), .3f, hollow, 0);
	if (apples)
		return;
	if (damage < 3) {
		model.Box({0, top, 0}, {half - 1.2f, .8f, half - 1.2f}, Mat3(), .3f, lid, 0);
		return;
	}
	for (int i = -2; i <= 2; i++) {
		if (i == 1 || (damage == 4 && i == 0))
			continue;
		Mat3 tilt = TurnZ(i == 2 ? .12f : 0);
		model.Box({i * 5.2f, top, 0}, {2.4f, .8f, half - 1.2f}, tilt, .3f, lid, 0);
	}
}

// face 0 looks to the lower left, face 1 stands for both sides across.
void Crate::AddFaceBoard(int face, int row)
{
	// clang-format off
	bool gone = (damage >= 2 && face == 0 && row == 3) || (damage >= 3 && row == 1) ||
	            (damage == 4 && face == 0 && row == 2);
	bool loose = (damage == 1 && face == 0 && row == 3) || (damage == 2 && face == 1 && row == 1) ||
	             (damage >= 3 && face == 1 && row == 3);
	// clang-format on
	if (gone)
		return;
	float pitch = 2 * tall / ROWS, y = (row + .5f) * pitch;
	float tilt = loose ? .20f : 0, out = half - 1.4f + (loose ? .9f : 0);
	bool snapped = damage >= 3 && row == 2 && face == 1;
	float length = snapped ? half * .55f : half - 1;
	if (face == 0) {
		model.Box({0, y, out}, {length, pitch * .46f, .8f}, TurnZ(tilt), .3f, boards, 0);
		return;
	}
	for (int side = -1; side <= 1; side += 2)
		model.Box({side * out, y, snapped ? -4.f : 0}, {.8f, pitch * .46f, length}, TurnX(-tilt),
		          .3f, boards, 0);
}

void Crate::AddFaces()
{
	for (int face = 0; face < 2; face++)
		for (int row = 0; row < ROWS; row++)
			AddFaceBoard(face, row);
}

void Crate::AddEdge(bool upper, int side)
{
	float y    = upper ? 2 * tall - BEAM : BEAM;
	float tilt = damage == 4 && upper && side > 0 ? -.16f : 0;
	float in   = half - BEAM;
	model.Box({0, y - std::fabs(tilt) * 6, side * in}, {half, BEAM, BEAM}, TurnZ(tilt), .5f, beams,
	          0);
	model.Box({side * in, y, 0}, {BEAM, BEAM, half}, Mat3(), .5f, beams, 0);
	for (int end = -1; end <= 1; end += 2) {
		model.Ball({end * in, y, half}, .65f, nails, 0);
		model.Ball({side * half, y, end * in}, .65f, nails, 0);
	}
}

void Crate::AddFrame()
{
	float in = half - BEAM;
	for (int sx = -1; sx <= 1; sx += 2)
		for (int sz = -1; sz <= 1; sz += 2) {
			bool broken = damage == 4 && sx * sz < 0 && sz > 0;
			float h     = broken ? tall * .62f : tall;
			model.Box({sx * in, h, sz * in}, {BEAM, h, BEAM}, Mat3(), .5f, beams, 0);
		}
	for (int side = -1; side <= 1; side += 2) {
		AddEdge(false, side);
		AddEdge(true, side);
	}
}

// One brace on each visible face; the two looks lean opposite ways.
void Crate::AddDiagonals()
{
	if (damage >= 3)
		return;
	float reach = std::hypot(half - 2, tall - 2);
	float lean  = std::atan2(tall - 2, half - 2) * (look == CrateLook::Light ? 1 : -1);
	model.Box({0, tall, half - .5f}, {reach, 1.5f, .8f}, TurnZ(lean), .3f, beams, 0);
	Mat3 across = TurnY(PI / 2) * TurnZ(lean);
	for (int end = -1; end <= 1; end += 2)
		model.Box({end * (half - .5f), tall, 0}, {reach, 1.5f, .8f}, across, .3f, beams, 0);
}

void Crate::AddApples()
{
	int red   = model.Plain(0xd8342c, .7f);
	int amber = model.Plain(0xf0b83c, .6f);
	int leaf  = model.Plain(0x4f9a2c, .3f);
	int stem  = model.Plain(0x5a3c22, .2f);
	int rows  = damage >= 3 ? 2 : 3;
	for (int i = 0; i < rows; i++)
		for (int j = 0; j < 3; j++) {
			float jitter = Hash01(i, j, 5);
			Vec3 p       = {(i - 1) * 8.2f + jitter, 2 * tall - 1.4f + 1.3f * jitter,
			                (j - 1) * 8.2f - jitter};
			model.Ball(p, 4.5f, (i * 3 + j) % 4 == 2 ? amber : red, 0);
			model.RoundCone(p + Vec3{0, 4, 0}, p + Vec3{.5f, 5.6f, 0}, .5f, .5f, stem, 0);
			if ((i + j) & 1)
				model.Ellipsoid(p + Vec3{1.6f, 4.8f, 0}, {1.5f, .6f, .9f}, TurnZ(.4f), leaf, 0);
		}
}

Image Crate::Draw()
{
	SetUp();
	AddLid();
	AddFaces();
	AddFrame();
	AddDiagonals();
	if (apples)
		AddApples();
	ShadeStyle style;
	style.innerLine  = .45f;
	style.innerDepth = 1.2f;
	style.shadowFrom = .22f;
	Image out(50, 40);
	DrawFootShadow(out, 27, 32.5f, 18.5f, PAINT_SHADOW);
	Compose(out, RenderModel(model, ViewFrom(50, 40, 25, 32.1f, 47, 17.5f), style), 0, 0);
	return out;
}

bool IsBarrelHole(int damage, int stave, float y)
{
	float h = BARREL_TALL, jag = 3 * Noise({stave * 9.1f, y * .4f, 2}); // broken ends are ragged
	if (stave == 4 && damage >= 1 && std::fabs(y - h * .9f) < (damage == 1 ? 4 : 8) + jag)
		return true;
	if (stave == 2 && damage >= 3 && y > h * .7f + jag)
		return true;
	return (stave == 3 || stave == 5) && damage >= 4 && y > h * 1.1f - jag;
}

Colour BarrelWood(Colour base, int damage, Vec3 p, float squash)
{
	float around = std::atan2(p.z, p.x) * BARREL_RADIUS;
	int stave    = (int)std::floor(around / STAVE);
	if (IsBarrelHole(damage, stave, p.y / squash))
		return HOLLOW;
	// burnt toward the hoops, lighter on the belly
	float belly = 1 - std::fabs(p.y / squash - BARREL_TALL) / BARREL_TALL;
	return WoodColour({around, p.y, 0}, base * (.90f + .16f * belly), 0, STAVE);
}
} // namespace

Image CrateImage(CrateLook look, int damage, float squash, bool apples)
{
	Crate crate{look, damage, squash, apples, {}, 0, 0, 0, 0, 0, 0, 0};
	return crate.Draw();
}

namespace
{
struct Barrel {
	int look, damage;
	float r, h; // radius and half of the height
	Model model;
	Colour wood;

	Barrel(int newLook, int newDamage, float squash);
	void AddStaves(float squash);
	void AddHoop(int iron, float y, float wide, float tilt);
	void AddHoops();
	void AddLid();
};

Barrel::Barrel(int newLook, int newDamage, float squash) : look(newLook), damage(newDamage)
{
	const Colour woods[3] = {PAINT_STAVE[0], PAINT_STAVE[1], HexColour(0x8e6a48)};
	r                     = BARREL_RADIUS * (1 + (1 - squash) * .22f);
	h                     = BARREL_TALL * squash;
	wood                  = woods[look];
}

void Barrel::AddStaves(float squash)
{
	auto colour = [=, this](const SurfacePoint& at) {
		Vec3 p   = at.position;
		bool top = p.y > 2 * h - 1.4f && p.x * p.x + p.z * p.z < r * r * .86f;
		if (!top)
			return BarrelWood(wood, damage, p, squash);
		return damage >= 3 ? HOLLOW : WoodColour({p.x, p.z, 0}, wood * .86f, 0, 5);
	};
	Shape& body = model.Cylinder({0, h, 0}, r, h, Mat3(), .8f, model.Painted(colour, .12f), 0);
	body.bulge  = BARREL_BULGE;
}

void Barrel::AddHoop(int iron, float y, float wide, float tilt)
{
	float k = (y - h) / h, radius = r + .55f + BARREL_BULGE * (1 - k * k);
	if (tilt == 0)
		model.Cylinder({0, y, 0}, radius, wide, Mat3(), .3f, iron, 0);
	else // a loose hoop must not close the barrel
		model.Ring({0, y, 0}, radius - .6f, wide * .8f, TurnZ(tilt), iron, 0);
}

void Barrel::AddHoops()
{
	const Colour irons[3] = {PAINT_HOOP[0], PAINT_HOOP[1], HexColour(0xa8793a)};
	int iron              = model.Plain(irons[look], .85f);
	AddHoop(iron, 5, 1.6f, 0);
	AddHoop(iron, 1.2f, 1.1f, 0);
	AddHoop(iron, 2 * h - 5, 1.6f, damage >= 2 ? -.14f : 0);
	if (damage < 4)
		AddHoop(iron, 2 * h - 1.2f, 1.1f, damage == 3 ? .10f : 0);
}

void Barrel::AddLid()
{
	Colour planks = wood * .80f;
	int lid       = model.Painted([=](const SurfacePoint& at) {
        return WoodColour({at.position.x, at.position.z, 0}, planks, 0, 5);
    });
	model.Cylinder({0, 2 * h + .15f, 0}, r - 2, .3f, Mat3(), .1f, lid, 0);
}
} // namespace

Image BarrelImage(int look, int damage, float squash)
{
	Barrel barrel(look, damage, squash);
	barrel.AddStaves(squash);
	barrel.AddHoops();
	if (damage < 3)
		barrel.AddLid();
	ShadeStyle style;
	style.innerLine = .4f;
	Image out(36, 48);
	DrawFootShadow(out, 20, 41.5f, 13.5f, PAINT_SHADOW);
	Compose(out, RenderModel(barrel.model, ViewFrom(36, 48, 18, 41.6f, 17, 19), style), 0, 0);
	return out;
}

// --- pictures

static const float SQUASHES[3] = {.86f, .74f, 1.02f}; // pictures squash1 to squash3

static void DrawStates(Sink& sink, const std::string& stem,
                       const std::function<Image(int, float)>& draw)
{
	sink.Add(stem + "base.png", draw(0, 1));
	for (int damage = 1; damage <= 4; damage++)
		sink.Add(stem + "break" + std::to_string(damage) + ".png", draw(damage, 1));
	for (int i = 0; i < 3; i++)
		sink.Add(stem + "squash" + std::to_string(i + 1) + ".png", draw(0, SQUASHES[i]));
}

static void AddCrateKind(Catalogue& catalogue, const std::string& stem, CrateLook look, bool apples)
{
	catalogue.Add("crates " + stem, __FILE__, [=](Sink& sink) {
		DrawStates(sink, stem, [=](int damage, float squash) {
			return CrateImage(look, damage, squash, apples);
		});
	});
}

Image OrderNumber(int number)
{
	const int w = 26, h = 28;
	Canvas canvas(w, h);
	PathFn shield = [](cairo_t* c) {
		cairo_move_to(c, 3, 5);
		cairo_curve_to(c, 8, 5, 11, 4, 13, 2);
		cairo_curve_to(c, 15, 4, 18, 5, 23, 5);
		cairo_curve_to(c, 24, 14, 21, 21, 13, 25.5f);
		cairo_curve_to(c, 5, 21, 2, 14, 3, 5);
		cairo_close_path(c);
	};
	canvas.DropShadow(shield, 1, .6f, 1, .45f);
	canvas.Body(shield, Downward(HexColour(0xffd75a), HexColour(0xe0861c), 3, 25),
	            HexColour(0x4a2410), 1.2f, 1.8f, 3, .6f);
	canvas.Caption(std::to_string(number), 17, 13, 13.2f, PAINT_CREAM, HexColour(0x5a2410), 1.9f);
	return canvas.Finish();
}

void AddCrates(Catalogue& catalogue)
{
	AddCrateKind(catalogue, "crateA", CrateLook::Dark, false);
	AddCrateKind(catalogue, "crateB", CrateLook::Light, false);
	AddCrateKind(catalogue, "crateappleA", CrateLook::Dark, true);
	AddCrateKind(catalogue, "crateappleB", CrateLook::Light, true);
	for (int look = 0; look < 3; look++) {
		std::string stem = std::string("barrel") + (char)('A' + look);
		catalogue.Add("crates " + stem, __FILE__, [=](Sink& sink) {
			DrawStates(sink, stem,
			           [=](int damage, float squash) { return BarrelImage(look, damage, squash); });
		});
	}
	for (bool white : {false, true}) {
		std::string stem = white ? "explosionwhite" : "explosion";
		catalogue.Add(stem, __FILE__, [=](Sink& sink) {
			for (int i = 0; i < EXPLOSION_FRAMES; i++)
				sink.Add(stem + std::to_string(i) + ".png", Explosion(i, white));
		});
	}
	catalogue.Add("crates order numbers", __FILE__, [](Sink& sink) {
		for (int i = 1; i <= 8; i++)
			sink.Add("bonusordernumber_" + std::to_string(i) + ".png", OrderNumber(i));
	});
}
