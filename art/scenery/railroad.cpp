// The rails that the machine runs on: gravel, sleepers and two rails, the same on every ground.
#include "art/scenery/boundary.h"

#include "art/core/outlines.h"
#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/renderer.h"

static const int RAIL_WIDTH = 800, RAIL_HEIGHT = 59; // stands at row 541
static const float TRACK_ROW = 41;                   // between the two rails
static const float BED_ROW   = 22;                   // upper edge of the gravel

static void DrawGravel(Image& image)
{
	for (int y = 6; y < image.height; y++)
		for (int x = 0; x < image.width; x++) {
			float edge = BED_ROW + 4 * (Noise({x * .06f, 0, 2}) - .5f) +
			             7 * (LayeredNoise(x * .5f, y * .6f, 2, 12) - .5f);
			float inside = y + .5f - edge, pebble = Noise({x * .9f, y * 1.1f, 7});
			if (inside < -1.5f)
				continue;
			Colour c = Mix(HexColour(0x8d7c66), HexColour(0xc9b99a),
			               Smoothstep(.3f, .75f, LayeredNoise(x * .55f, y * .75f, 2, 31)));
			c        = c *
			    (pebble > .72f   ? 1.16f
			     : pebble < .22f ? .74f
			                     : 1) *
			    Mix(1.08f, .82f, (y - BED_ROW) / 34);
			Blend(image, x, y, Mix(HexColour(0x4a3c2a), c, Smoothstep(-1, 2.5f, inside)),
			      Clamp01(inside + 1.2f));
		}
}

// Stray pebbles soften the seam to the ground.
static void DrawLoosePebbles(Image& image)
{
	Random random(5);
	Canvas loose(RAIL_WIDTH, 34, 2);
	for (int i = 0; i < 330; i++) {
		float out = random.Next01() * random.Next01();
		float x = random.Range(0, RAIL_WIDTH), y = BED_ROW + 4 - out * 17,
		      size = random.Range(.8f, 2.2f);
		loose.Fill(Oval(x + .4f, y + .7f, size * 1.3f + .5f, size), HexColour(0x4a3c2a), .6f);
		loose.Fill(Oval(x, y, size * 1.3f, size),
		           Mix(HexColour(0x9a8a72), HexColour(0xd4c6a8), random.Next01()));
		loose.Fill(Oval(x - size * .3f, y - size * .35f, size * .55f, size * .35f),
		           HexColour(0xece2cc), .6f);
	}
	Compose(image, loose.Finish(), 0, 0);
}

static Image DrawTrack()
{
	const float GAUGE = 12, SLEEPER_STEP = 29;
	Model model;
	int wood = model.Painted(
	    [](const SurfacePoint& at) {
		    Vec3 p     = at.position;
		    float worn = LayeredNoise(Vec3{p.x * .6f, p.y, p.z * .10f}, 3);
		    return Mix(HexColour(0x5a3c26), HexColour(0x936a45), worn) *
		           (.92f + .16f * Hash01((int)std::floor(p.x / 29 + .5f), 3, 1));
	    },
	    .03f);
	int steel = model.Plain(0x9aa3b2, .9f), rust = model.Plain(0x6e5242, .3f),
	    bolt = model.Plain(0x7c8494, .7f);
	for (int i = -1; i < 30; i++) {
		float x = i * SLEEPER_STEP + 6;
		model.Box({x, -1.5f, 0}, {6.2f, 2, 24}, TurnY((Hash01(i, 5, 2) - .5f) * .05f), .8f, wood,
		          0);
		for (int side = -1; side <= 1; side += 2)
			model.Box({x, .9f, side * GAUGE + 4.2f}, {1.6f, .9f, 1.2f}, {}, .4f, bolt, 0);
	}
	for (int side = -1; side <= 1; side += 2) {
		model.Box({400, 2.3f, side * GAUGE}, {420, 1.7f, 1.8f}, {}, .5f, steel, 0);
		model.Box({400, .4f, side * GAUGE}, {420, .8f, 3}, {}, .4f, rust, 0);
	}
	return RenderModel(model, ViewFrom(RAIL_WIDTH, RAIL_HEIGHT, 0, TRACK_ROW, 0, 30, 3));
}

void AddRailroad(Catalogue& catalogue)
{
	catalogue.Add("background_railroad", __FILE__, [](Sink& sink) {
		Image image(RAIL_WIDTH, RAIL_HEIGHT);
		DrawGravel(image);
		DrawLoosePebbles(image);
		Compose(image, DrawTrack(), 0, 0);
		sink.Add("background_railroad.png", image);
	});
}
