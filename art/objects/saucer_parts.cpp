// Lamps, glass dome and its rim, fire and smoke of the saucer.
#include "art/objects/saucer_parts.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/objects/light.h"
#include "art/objects/saucer.h"

static const float LAMP_REACH = 41.2f, LAMP_HEIGHT = 3.6f, LAMP_RADIUS = 2.1f;
static const int LIGHT_FRAMES = 8;
static const float RIM_RADIUS = 20.2f, RIM_HEIGHT = 12.4f;

Vec3 LampAt(int lamp)
{
	float a = (lamp + .5f) * 2 * PI / SAUCER_LAMPS;
	return {std::cos(a) * LAMP_REACH, LAMP_HEIGHT, std::sin(a) * LAMP_REACH};
}

// A bright group of lamps runs round in four colours.
static Image Lights(int frame)
{
	const uint32_t COLOURS[] = {0x5af0ff, 0xff6ac0, 0xffe65a, 0x7dff8a};
	Image glow(SAUCER_LIGHTS.width, SAUCER_LIGHTS.height);
	Model model;
	std::vector<Vec3> lit;
	for (int i = 0; i < SAUCER_LAMPS; i++) {
		Vec3 at = LampAt(i);
		if (at.z < -6)
			continue;                                    // behind the deck
		int phase    = (i * 4 + frame * 4 / 2) % 16 / 4; // two frames a step
		uint32_t hex = COLOURS[i % 4];
		bool bright  = phase == 0;
		Colour c     = Mix(HexColour(hex) * .72f, HexColour(hex), phase == 3 ? .6f : 0.f);
		Material glass;
		glass.colour = bright ? Mix(HexColour(hex), {1, 1, 1}, .35f) : c;
		glass.glow   = bright ? 1 : .5f;
		glass.gloss  = 1;
		model.Ball(at + Vec3{0, .7f, .9f}, LAMP_RADIUS + .5f * bright, model.Add(glass), 0);
		if (!bright)
			continue;
		At seen = SeenAt(at, SAUCER_LIGHTS);
		AddHalo(glow, seen.x, seen.y, 9.5f, HexColour(hex), .85f);
	}
	Compose(glow, RenderModel(model, SaucerCamera(SAUCER_LIGHTS), {}), 0, 0);
	return glow;
}

// Glass: a clear film that thickens to its edge, a window's light and a glint.
static Image Dome()
{
	const float MIDDLE = 23, FOOT = 38.4f, TALL = 36.5f, HALF = 20.8f;
	return PaintLight(SAUCER_DOME.width, SAUCER_DOME.height, [=](float x, float y, Colour& c) {
		float u = (x - MIDDLE) / HALF, v = (FOOT - y) / (y < FOOT ? TALL : 7.5f);
		float r =
		    std::pow(std::pow(std::fabs(u), 2.25f) + std::pow(std::fabs(v), 2.25f), 1 / 2.25f);
		if (r > 1.02f)
			return 0.f;
		float film = .10f + .62f * std::pow(Clamp01(r), 6.f);
		c          = Mix(HexColour(0xc8f6ff), HexColour(0x4b8fe0), Smoothstep(.6f, 1.f, r));
		c = Mix(c, HexColour(0xd9a8ff), .5f * Smoothstep(.1f, .8f, u) * Smoothstep(.5f, .9f, r));
		float gx = u + .48f, gy = v - .58f;
		float along = gx * .62f + gy * .78f, across = gx * .78f - gy * .62f;
		float shine =
		    Smoothstep(1.1f, .8f, std::sqrt(along * along / .075f + across * across / .013f));
		float glint = Smoothstep(1.2f, .7f, std::hypot(u - .55f, v - .52f) / .09f);
		float arc   = Smoothstep(.05f, .02f, std::fabs(r - .86f)) * Smoothstep(.2f, .7f, u) * .6f;
		float light = std::max(shine * .92f, std::max(glint * .8f, arc));
		c           = Mix(c, {1, 1, 1}, light);
		return std::max(film, light) * Smoothstep(1.02f, .98f, r);
	});
}

// Cracks run from the blows over the glass; later ones leave a gap with sharp edges.
static void AddCracks(Canvas& canvas, int stage)
{
	const At BLOWS[] = {{41, 25}, {64, 32}, {55, 17}};
	Random random(41);
	for (int blow = 0; blow < 3; blow++) {
		int age = stage - 2 - blow;
		for (int ray = 0; ray < 6; ray++) {
			float a = ray * 2 * PI / 6 + random.Range(-.3f, .3f), reach = random.Range(5, 9);
			At from = BLOWS[blow];
			At bend = {from.x + std::cos(a) * reach * .6f, from.y + std::sin(a) * reach * .6f};
			At to   = {bend.x + std::cos(a + .6f) * reach * .5f,
			           bend.y + std::sin(a + .6f) * reach * .5f};
			if (age < 0)
				continue;
			PathFn crack = Line({from, bend, to});
			canvas.Stroke(crack, HexColour(0x3d64a8), 1.6f, .5f);
			canvas.Stroke(crack, {1, 1, 1}, .9f, .95f);
		}
		if (age < 1)
			continue;
		At m       = BLOWS[blow];
		float wide = 4.2f + .9f * age;
		PathFn gap = Polygon({{m.x - wide, m.y - wide * .3f},
		                      {m.x - wide * .2f, m.y - wide * .5f},
		                      {m.x + wide * .3f, m.y - wide},
		                      {m.x + wide * .5f, m.y - wide * .2f},
		                      {m.x + wide, m.y + wide * .3f},
		                      {m.x + wide * .2f, m.y + wide * .5f},
		                      {m.x - wide * .2f, m.y + wide},
		                      {m.x - wide * .4f, m.y + wide * .3f}});
		canvas.Fill(gap, HexColour(0x241c44), .62f);
		canvas.Stroke(gap, {1, 1, 1}, .9f, .95f);
	}
}

// In pieces, of which blows bend some, burn some and tear two away.
void AddRimRing(Model& model, int stage, bool nearHalf)
{
	const int PIECES = 28;
	int brass = model.Plain(0xf2bc44u, 1.f), burnt = model.Plain(0x74583cu, .4f);
	int stud = model.Plain(0xfff0c0u, .9f);
	auto at  = [&](int k) {
        float a    = k * 2 * PI / PIECES;
        float bent = stage * .42f * (Hash01(k % PIECES, 5, 9) - .5f), r = RIM_RADIUS + bent;
        return Vec3{std::cos(a) * r, RIM_HEIGHT + bent * 1.2f, std::sin(a) * r};
	};
	for (int i = 0; i < PIECES; i++) {
		bool isNear = i < PIECES / 2, lost = stage >= 5 && (i == 9 || i == 3);
		if (isNear != nearHalf || lost)
			continue;
		bool sooty = Hash01(i, 2, 7) < (stage - 1) * .16f;
		model.RoundCone(at(i), at(i + 1), 2.0f, 2.0f, sooty ? burnt : brass, .3f);
		if (i % 3 == 1)
			model.Ball((at(i) + at(i + 1)) * .5f + Vec3{0, 1.7f, 0}, .85f, stud, 0);
	}
}

// Round puffs with a lit upper left, rising and thinning out.
static void AddSmoke(Canvas& canvas, At from, float size, int frame, int seed)
{
	const int PUFFS = 6;
	Random random(seed);
	for (int i = PUFFS - 1; i >= 0; i--) {
		float t = (i + 1.f) / PUFFS, r = size * (.4f + .6f * t);
		float x = from.x + random.Range(-1, 1) * size * .5f + 4 * t * t + (frame % 2 ? .8f : 0);
		float y = from.y - size * 3.0f * t, alpha = .85f * (1 - .65f * t);
		Colour c = Mix(HexColour(0x3a3440), HexColour(0xa09aa8), t);
		canvas.Fill(Disc(x, y, r), c, alpha);
		canvas.Fill(Disc(x - r * .25f, y - r * .28f, r * .58f), Lighter(c, .35f), alpha * .5f);
	}
}

Image SaucerRim(int stage, int frame)
{
	const At HOLES[] = {{27, 64}, {79, 61}, {14, 55}};
	Model model;
	AddRimRing(model, stage, true);
	Image ring = RenderModel(model, SaucerCamera(SAUCER_RIM, stage > 0 ? JoltOf(frame) : 0), {});
	Canvas canvas(SAUCER_RIM.width, SAUCER_RIM.height);
	AddCracks(canvas, stage);
	canvas.Place(ring, 0, 0);
	for (int i = 0; i < 3; i++)
		if (stage >= 3 + i)
			AddSmoke(canvas, {HOLES[i].x, HOLES[i].y - 4}, 5 + 1.2f * (stage - 3 - i), frame,
			         10 + i);
	return canvas.Finish();
}

static void AddFlame(Canvas& canvas, At foot, float size, float lean)
{
	auto flame = [&](float k) {
		float w = size * .42f * k, h = size * k;
		return Polygon({{foot.x - w, foot.y},
		                {foot.x - w * .8f + lean * .3f, foot.y - h * .45f},
		                {foot.x - w * .3f + lean * .5f, foot.y - h * .35f},
		                {foot.x + lean, foot.y - h},
		                {foot.x + w * .5f + lean * .4f, foot.y - h * .4f},
		                {foot.x + w * .9f + lean * .3f, foot.y - h * .55f},
		                {foot.x + w, foot.y}});
	};
	canvas.Fill(flame(1), HexColour(0xe8401c), .9f, .6f);
	canvas.Fill(flame(.76f), HexColour(0xff9a2a), .95f);
	canvas.Fill(flame(.46f), HexColour(0xffee8a), 1);
}

void AddFlames(Image& hull, int stage, int frame)
{
	const At HOLES[] = {{27, 32}, {79, 29}, {15, 23}, {58, 38}};
	bool fresh       = stage > 0 && frame < SAUCER_BLOW_FRAMES - 1;
	Canvas canvas(hull.width, hull.height);
	canvas.Place(hull, 0, 0);
	for (int i = 0; i < 4; i++)
		if (stage >= 4 + (i > 0))
			AddFlame(canvas, HOLES[i], 9 + 3.f * (stage - 4), frame % 2 ? 2.2f : -1.6f);
	if (fresh) {
		At at      = HOLES[(stage + 1) % 2];
		float size = 15 - 4.f * frame;
		canvas.Fill(Star(at.x, at.y, size, size * .4f, 9, frame * .5f), HexColour(0xffc23a), .85f,
		            .8f);
		canvas.Fill(Star(at.x, at.y, size * .66f, size * .3f, 9, .3f), {1, 1, .9f}, .95f);
	}
	hull = canvas.Finish();
}

void AddSaucerParts(Catalogue& catalogue)
{
	catalogue.Add("saucer lights", __FILE__, [](Sink& sink) {
		std::vector<Image> frames;
		for (int i = 0; i < LIGHT_FRAMES; i++)
			frames.push_back(Lights(i));
		sink.AddFrames("flyingsaucerlights", frames);
	});
	catalogue.Add("saucer dome", __FILE__,
	              [](Sink& sink) { sink.Add("flyingsaucerbubble.png", Dome()); });
	catalogue.Add("saucer shadow", __FILE__, [](Sink& sink) {
		Image shadow(112, 34);
		DrawFootShadow(shadow, 56, 17, 41, PAINT_SHADOW, .42f);
		sink.Add("flyingsaucershadow.tga", shadow);
	});
}
