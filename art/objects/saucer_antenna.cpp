// The antenna below the saucer: idle, charging, trembling, firing.
#include "art/core/canvas.h"
#include "art/families.h"
#include "art/objects/light.h"
#include "art/objects/saucer.h"

static const int CHARGE_FRAMES = 8, VIBRATE_FRAMES = 4, FIRE_FRAMES = 6;
static const Vec3 ROOT = {-3, -3.5f, 44};

namespace
{
struct AntennaState {
	float charge = 0; // 0..1
	float shake  = 0; // pixels aside
	float flash  = 0; // 0..1
};
} // namespace

// A brass cone with rings hangs from the belly and ends in a lamp.
static Image Antenna(const AntennaState& state)
{
	const Colour COLD = HexColour(0xff4a62), HOT = HexColour(0xfff6b8), RAY = HexColour(0x7df0ff);
	Model model;
	int brass = model.Plain(0xf0b83eu, .95f), steel = model.Plain(0xc8d4e4u, .95f);
	Vec3 aside = {state.shake, 0, 0}, root = ROOT, tip = root + Vec3{0, -12.5f, 0} + aside;
	float kick = 2.2f * state.flash;
	tip.y += kick;
	model.Ellipsoid(root, {5.2f, 3.4f, 4.0f}, Mat3(), brass, 0);
	model.RoundCone(root - Vec3{0, 2, 0}, tip, 2.6f, 1.2f, brass, .4f);
	for (int i = 0; i < 3; i++)
		model.Ring(Mix(root, tip, .42f + .20f * i), 3.5f - .6f * i, .85f, Mat3(), steel, .1f);
	Material lamp;
	lamp.colour = Mix(COLD, HOT, state.charge), lamp.gloss = 1,
	lamp.glow = .55f + .4f * state.charge;
	model.Ball(tip - Vec3{0, 2, 0}, 3.0f + 1.2f * state.charge + state.flash, model.Add(lamp), 0);
	Image glow(SAUCER_ANTENNA.width, SAUCER_ANTENNA.height);
	At seen    = SeenAt(tip - Vec3{0, 2, 0}, SAUCER_ANTENNA);
	Colour hue = Mix(HexColour(0xff8a3a), RAY, state.charge);
	AddHalo(glow, seen.x, seen.y, 6 + 9 * state.charge + 5 * state.flash, hue,
	        .25f + .6f * state.charge);
	Compose(glow, RenderModel(model, SaucerCamera(SAUCER_ANTENNA), {}), 0, 0);
	if (state.flash > 0) {
		Canvas canvas(glow.width, glow.height);
		float size = 6 + 12 * state.flash;
		canvas.Place(glow, 0, 0);
		canvas.Fill(Star(seen.x, seen.y, size, size * .34f, 8, .2f), RAY, .8f * state.flash, 1);
		canvas.Fill(Star(seen.x, seen.y, size * .62f, size * .26f, 8, .6f), {1, 1, 1}, state.flash);
		return canvas.Finish();
	}
	return glow;
}

static void DrawAntennas(Sink& sink)
{
	std::vector<Image> charge, vibrate, fire;
	for (int i = 0; i < CHARGE_FRAMES; i++)
		charge.push_back(Antenna({Smoothstep(0, 7, (float)i), 0, 0}));
	for (int i = 0; i < VIBRATE_FRAMES; i++) {
		const float SHAKE[] = {1.3f, -1.0f, .6f, -1.4f}, CHARGE[] = {1, .8f, 1, .75f};
		vibrate.push_back(Antenna({CHARGE[i], SHAKE[i], 0}));
	}
	for (int i = 0; i < FIRE_FRAMES; i++) {
		const float FLASH[] = {1, .7f, .35f, .1f, 0, 0}, CHARGE[] = {1, .9f, .7f, .45f, .2f, 0};
		fire.push_back(Antenna({CHARGE[i], 0, FLASH[i]}));
	}
	sink.AddFrames("flyingsaucerantennacharge", charge);
	sink.AddFrames("flyingsaucerantennavibrate", vibrate);
	sink.AddFrames("flyingsaucerantennafire", fire);
}

void AddSaucerAntenna(Catalogue& catalogue)
{
	catalogue.Add("saucer antenna", __FILE__, DrawAntennas);
}
