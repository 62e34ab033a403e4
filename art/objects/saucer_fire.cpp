// What the saucer shoots, where it strikes, and how it blows up.
#include "art/core/canvas.h"
#include "art/families.h"
#include "art/objects/light.h"

static const int SHOT_FRAMES = 4, SPLASH_FRAMES = 6, BLAST_FRAMES = 12;
// The bolt lies left of the picture's middle, where the game has its tip.
static const int SHOT_WIDTH = 30, SHOT_HEIGHT = 36;
static const float SHOT_AXIS = 10, SHOT_BALL = 27; // of the head of the bolt
static const int SPLASH_WIDTH = 70, SPLASH_HEIGHT = 84;
static const float SPLASH_X = 35, SPLASH_Y = 50;
static const int BLAST_WIDTH = 190, BLAST_HEIGHT = 160;
static const float BLAST_X = 95, BLAST_Y = 84;
static const int SHARDS = 22, SPARKS = 30, FIREBALLS = 22;

static const Colour CORE = {1, 1, 1}, PLASMA = HexColour(0x6af6ff), RIM = HexColour(0x6a3cf0);

// A ball of plasma with a tail of two strands that wind about each other.
static Image Shot(int frame)
{
	float phase = frame * 2 * PI / SHOT_FRAMES;
	return PaintLight(SHOT_WIDTH, SHOT_HEIGHT, [=](float x, float y, Colour& c) {
		float dx = x - SHOT_AXIS, dy = y - SHOT_BALL, r = std::hypot(dx, dy);
		float pulse = 7.2f + .6f * std::sin(phase);
		float spin  = .5f + .5f * std::sin(3 * std::atan2(dy, dx) + phase * 3);
		float ball  = Smoothstep(pulse, pulse - 1.8f, r);
		float halo =
		    .55f * std::exp(-std::max(0.f, r - pulse) * .42f) * Smoothstep(10, 8, std::fabs(dx));
		halo *= Smoothstep(0, 3, SHOT_HEIGHT - y);
		float up = Clamp01((SHOT_BALL - y) / (SHOT_BALL - 1)), thin = 1 - up;
		float wave = 3.4f * up * (1 - .35f * up);
		float tail = 0;
		for (int s : {-1, 1}) {
			float off = dx - s * wave * std::sin(up * 7 - phase);
			tail      = std::max(tail, std::exp(-off * off / (1.1f + 8 * thin * thin)) * thin);
		}
		tail *= y < SHOT_BALL ? 1.f : 0.f;
		float bright = std::max(ball, tail);
		c            = Mix(RIM, PLASMA, Smoothstep(.15f, .6f, bright));
		float white  = std::max(Smoothstep(5.2f, 2.2f, r), Smoothstep(.7f, 1, tail) * .8f);
		c            = Mix(c, CORE, std::max(white, ball * .35f * spin));
		return std::max(bright, halo);
	});
}

// A ring that widens, rays and drops of plasma that fly up and fall.
static Image Splash(int frame)
{
	float t = (frame + .6f) / SPLASH_FRAMES, gone = 1 - (1 - t) * (1 - t), fade = 1 - t * t;
	Image glow = PaintLight(SPLASH_WIDTH, SPLASH_HEIGHT, [=](float x, float y, Colour& c) {
		float dx = x - SPLASH_X, dy = (y - SPLASH_Y) * 1.15f, r = std::hypot(dx, dy);
		float a = std::atan2(dy, dx), ring = 6 + 25 * gone;
		ring += 1.4f * std::sin(a * 7 + frame * 2);
		float shell = std::exp(-std::pow((r - ring) / (5.2f * (1 - .45f * t)), 2.f));
		float heart = Smoothstep(17 * (1 - .5f * t), 2, r) * (1 - t);
		c           = Mix(RIM, PLASMA, Clamp01(shell * .9f + heart));
		c           = Mix(c, CORE, std::max(Smoothstep(.5f, 1, heart), shell * shell * .5f * fade));
		return Clamp01(shell + heart) * fade * Smoothstep(34.5f, 31, r);
	});
	Canvas canvas(SPLASH_WIDTH, SPLASH_HEIGHT);
	canvas.Place(glow, 0, 0);
	Random random(77);
	for (int i = 0; i < 12; i++) {
		float a = -PI * (i + random.Range(.1f, .9f)) / 12, speed = random.Range(18, 31);
		float x = SPLASH_X + std::cos(a) * speed * gone;
		float y = SPLASH_Y + std::sin(a) * speed * 1.25f * gone + 22 * t * t;
		float r = random.Range(1.3f, 2.4f) * (1 - .55f * t);
		canvas.Fill(Disc(x, y, r), RIM, .8f * fade, .9f);
		canvas.Fill(Disc(x, y, r), Mix(PLASMA, CORE, .4f), fade);
	}
	if (frame < 2) {
		float size = 21 - 6.f * frame;
		canvas.Fill(Star(SPLASH_X, SPLASH_Y, size, size * .34f, 8, .3f * frame), PLASMA, .8f, 1);
		canvas.Fill(Star(SPLASH_X, SPLASH_Y, size * .68f, size * .26f, 8, .3f), CORE, .95f);
	}
	return canvas.Finish();
}

namespace
{
// One picture of the saucer's end; t runs from 0 to 1.
struct Blast {
	Canvas canvas{BLAST_WIDTH, BLAST_HEIGHT, 3};
	int frame;
	float t, gone; // gone: way done, fast at first

	void AddFlash();
	void AddWave();
	void AddFire();
	void AddShard(int index);
	void AddSparks();
};

void Blast::AddFlash()
{
	if (frame > 3)
		return;
	float size = 74 - 9.f * frame, fade = 1 - frame * .24f;
	canvas.Fill(Star(BLAST_X, BLAST_Y, size, size * .42f, 12, frame * .2f), HexColour(0xffa62a),
	            .6f * fade, 2);
	canvas.Fill(Star(BLAST_X, BLAST_Y, size * .86f, size * .4f, 12, frame * .2f),
	            HexColour(0xffe27a), .9f * fade);
	canvas.Fill(Star(BLAST_X, BLAST_Y, size * .58f, size * .32f, 12, .3f), {1, 1, .95f}, fade);
}

// The wave of its drive: a flat violet ring that races outward.
void Blast::AddWave()
{
	float fade = Clamp01(1.25f - 1.5f * t);
	if (fade <= 0)
		return;
	float rx = 26 + 66 * gone, ry = rx * .40f, wide = 7 * (1 - .75f * t);
	PathFn ring = Oval(BLAST_X, BLAST_Y + 6, rx, ry);
	canvas.Stroke(ring, RIM, wide + 4, .35f * fade);
	canvas.Stroke(ring, PLASMA, wide, .75f * fade);
	canvas.Stroke(ring, CORE, wide * .4f, .95f * fade);
}

// Puffs of fire that turn to smoke, from far to near, each with a lit upper left.
void Blast::AddFire()
{
	float heat = Clamp01(1.5f - 2.0f * t), fade = Clamp01(1.9f - 1.95f * t);
	Colour soot = HexColour(0x6a6172), outer = Mix(soot, HexColour(0xee4f1c), heat);
	Colour inner = Mix(Lighter(soot, .22f), HexColour(0xff9c2a), heat);
	Colour spot  = Mix(Lighter(soot, .45f), HexColour(0xffee94), heat);
	Random random(19);
	for (int i = 0; i < FIREBALLS; i++) {
		float a = i * 2.39996f, far = 50 * std::sqrt((FIREBALLS - i) / (float)FIREBALLS);
		float size = random.Range(15, 25), late = random.Range(.7f, 1.2f);
		float x = BLAST_X + std::cos(a) * far * (.3f + .8f * gone);
		float y = BLAST_Y + std::sin(a) * far * .66f * (.3f + .8f * gone) - 24 * t * t * late;
		float r = size * (.55f + .55f * gone) * (1.2f - t * t * late * .55f);
		canvas.Fill(Disc(x, y, r), InkOf(outer), .45f * fade, .8f);
		canvas.Fill(Disc(x, y, r), outer, fade);
		canvas.Fill(Disc(x - r * .10f, y - r * .12f, r * .76f), inner, fade);
		canvas.Fill(Disc(x - r * .26f, y - r * .30f, r * .40f), spot, .9f * fade);
	}
}

// Plates of the hull, splinters of glass and bits of brass in arcs.
void Blast::AddShard(int index)
{
	const uint32_t TINTS[] = {0xc3cfe0, 0x7d5be0, 0xc3cfe0, 0xf2bc44, 0x9feaff, 0x36c9c0};
	Random random(500 + index * 13);
	float a     = -PI * 1.25f * (index + random.Range(.1f, .9f)) / SHARDS + PI * .125f;
	float speed = random.Range(48, 96), angle = random.Range(0, PI) + random.Range(-7, 7) * t;
	float x = BLAST_X + std::cos(a) * (14 + speed * gone * .9f);
	float y = BLAST_Y + std::sin(a) * (6 + speed * gone * .8f) + 62 * t * t;
	float l = random.Range(5, 11) * (1 - .25f * t), w = l * random.Range(.35f, .62f);
	float fade = Clamp01((1.03f - t) * 4);
	float room = std::min(std::min(x, BLAST_WIDTH - x), std::min(y, BLAST_HEIGHT - y));
	fade *= Clamp01((room - 10) / 8);
	Colour tint = HexColour(TINTS[index % 6]);
	PathFn body = Turned(Polygon({{x - l, y - w * .6f},
	                              {x - l * .1f, y - w},
	                              {x + l, y - w * .3f},
	                              {x + l * .6f, y + w},
	                              {x - l * .7f, y + w * .7f}}),
	                     x, y, angle);
	PathFn edge =
	    Turned(Line({{x - l * .7f, y - w * .35f}, {x + l * .6f, y - w * .35f}}), x, y, angle);
	canvas.Fill(body, InkOf(tint), fade, 1);
	canvas.Fill(body, Mix(tint, HexColour(0xff8a3a), .35f * (1 - t)), fade);
	canvas.Stroke(edge, std::cos(angle) > 0 ? Lighter(tint, .7f) : Darker(tint, .5f), w * .4f,
	              fade);
}

void Blast::AddSparks()
{
	Random random(91);
	for (int i = 0; i < SPARKS; i++) {
		float a = random.Range(0, 2 * PI), speed = random.Range(40, 88);
		float x = BLAST_X + std::cos(a) * speed * gone,
		      y = BLAST_Y + std::sin(a) * speed * .8f * gone + 26 * t * t;
		float r = random.Range(.8f, 1.9f) * (1 - .7f * t), fade = Clamp01(1.4f - 1.4f * t);
		Colour c = i % 3 ? HexColour(0xffd24a) : PLASMA;
		PathFn streak =
		    Line({{x, y}, {x - std::cos(a) * 7 * (1 - t), y - std::sin(a) * 6 * (1 - t)}});
		canvas.Stroke(streak, c, r * 1.4f, .6f * fade);
		canvas.Fill(Disc(x, y, r), Mix(c, CORE, .5f), fade);
	}
}
} // namespace

static Image SaucerBlast(int frame)
{
	Blast blast;
	blast.frame = frame;
	blast.t     = frame / (BLAST_FRAMES - 1.f);
	blast.gone  = 1 - std::pow(1 - blast.t, 3.f);
	blast.AddWave();
	blast.AddFire();
	for (int i = 0; i < SHARDS && frame > 0; i++)
		blast.AddShard(i);
	blast.AddFlash();
	if (frame > 0)
		blast.AddSparks();
	return blast.canvas.Finish();
}

static void AddRun(Catalogue& catalogue, const char* stem, int frames, Image (*draw)(int))
{
	catalogue.Add(std::string("saucer ") + stem, __FILE__, [=](Sink& sink) {
		std::vector<Image> run;
		for (int i = 0; i < frames; i++)
			run.push_back(draw(i));
		sink.AddFrames(stem, run);
	});
}

void AddSaucerFire(Catalogue& catalogue)
{
	AddRun(catalogue, "ufoshot", SHOT_FRAMES, Shot);
	AddRun(catalogue, "ufoshotsplash", SPLASH_FRAMES, Splash);
	AddRun(catalogue, "flyingsaucerexplode", BLAST_FRAMES, SaucerBlast);
}
