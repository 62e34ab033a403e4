// The energy floor: its light over the whole width, the line that rises first, and the pulse.
#include "art/core/image.h"
#include "art/families.h"

static const int FIELD_WIDTH  = 693;
static const int HEIGHT       = 24; // pixels; the floor line is the picture's top
static const int MAIN_FRAMES  = 18; // the game shimmers between 15 and 17 for as long as it stays
static const int REST_FRAME   = 15;
static const int TOP_FRAMES   = 10;
static const int PULSE_FRAMES = 12, PULSE_WIDTH = 130;
static const float LINE_Y = 3; // of the bright line, pixels below the top
static const Colour DEEP = HexColour(0x2a90ff), BRIGHT = HexColour(0xe8ffff);

static void SetLight(Image& image, int x, int y, Colour c, float alpha)
{
	float a  = Clamp01(alpha);
	c        = ClampColour(c);
	float* p = image.At(x, y);
	p[0]     = c.x * a;
	p[1]     = c.y * a;
	p[2]     = c.z * a;
	p[3]     = a;
}

static float LineAt(float x, float phase)
{
	return LINE_Y + 1.1f * std::sin(x * .05f + phase);
}

// strength 0..1 at rest, a little above 1 while it shimmers.
static Image ShieldBody(float strength, float phase)
{
	Image out(FIELD_WIDTH, HEIGHT);
	for (int y = 0; y < HEIGHT; y++)
		for (int x = 0; x < FIELD_WIDTH; x++) {
			float t = y + .5f - LineAt(x, phase);
			if (t < -3)
				continue;
			// it rises from the lower edge
			float risen = Smoothstep(0, 6, y - HEIGHT * (1 - std::min(1.f, strength * 1.15f)));
			float line  = std::exp(-t * t / 2.6f);
			float body  = t > 0 ? .58f * std::exp(-t / 12) : 0;
			float net   = .24f * (t > 2) *
			            std::max(Smoothstep(.93f, 1, std::sin((x + y) * .5f)),
			                     Smoothstep(.93f, 1, std::sin((x - y) * .5f)));
			float swell = .22f * Smoothstep(.75f, 1, std::sin(x * .02f - phase)) * (t > 0);
			float flash = std::max(0.f, strength - 1) * .6f;
			Colour c    = Mix(DEEP, BRIGHT, Clamp01(line + swell + net * .6f + flash));
			SetLight(out, x, y, c,
			         (line * .95f + body + net + swell + flash * (t > 0)) * risen *
			             std::min(1.f, strength + .2f));
		}
	return out;
}

// The bright line alone, which spreads from the middle to both walls.
static Image ShieldTop(float spread)
{
	Image out(FIELD_WIDTH, HEIGHT);
	float reach = FIELD_WIDTH * .5f * spread;
	for (int y = 0; y < HEIGHT; y++)
		for (int x = 0; x < FIELD_WIDTH; x++) {
			float away = std::fabs(x + .5f - FIELD_WIDTH * .5f);
			float t    = y + .5f - LineAt(x, 0);
			float line = std::exp(-t * t / 2.6f), glow = .35f * std::exp(-t * t / 16);
			float head = spread < 1 ? std::exp(-std::pow((away - reach) / 9, 2.f)) : 0;
			float seen = Smoothstep(reach + 3, reach - 3, away);
			float star = head * std::exp(-t * t / 9) * 1.2f;
			SetLight(out, x, y, Mix(DEEP, BRIGHT, Clamp01(line + star)),
			         (line + glow) * seen + star);
		}
	return out;
}

// Four sparks that fall behind the comet and die down, once round per loop.
static float SparksAt(float u, float t, float phase)
{
	float light = 0;
	for (int i = 0; i < 4; i++) {
		float age = std::fmod(phase / (2 * PI) + i * .25f, 1.f);
		float du = u + 8 + 44 * age, dt = t - 7 * std::sin(i * 2.1f) * age;
		light += (1 - age) * std::exp(-(du * du + dt * dt) / 3.f);
	}
	return light;
}

// A comet of light on the line; its tail lies behind the way it runs.
static Image ShieldPulse(bool toRight, float phase)
{
	Image out(PULSE_WIDTH, HEIGHT);
	for (int y = 0; y < HEIGHT; y++)
		for (int x = 0; x < PULSE_WIDTH; x++) {
			float u    = (x + .5f - PULSE_WIDTH * .5f) * (toRight ? 1 : -1); // ahead is positive
			float t    = y + .5f - LINE_Y - .5f;
			float beat = .85f + .15f * std::sin(phase);
			float head = std::exp(-(u * u / 90 + t * t / 20)) * beat;
			float back = std::min(u, 0.f);
			float tail = .8f * Smoothstep(3, -9, u) * std::exp(back / 17) *
			             std::exp(-t * t / (4 + 10 * std::exp(back / 12)));
			float below = t > 0 ? .45f * std::exp(-u * u / 300) * std::exp(-t / 8) * beat : 0;
			float edge  = Smoothstep(PULSE_WIDTH * .5f, PULSE_WIDTH * .5f - 12, std::fabs(u));
			SetLight(out, x, y,
			         Mix(HexColour(0x6ad8ff), {1, 1, 1}, Clamp01(head * 1.3f + tail * .3f)),
			         (head + tail + below + SparksAt(u, t, phase)) * edge);
		}
	return out;
}

// Full at REST_FRAME, then it shimmers up to the last frame and back.
static float MainStrength(int frame)
{
	if (frame <= REST_FRAME)
		return Smoothstep(-2, REST_FRAME, frame);
	return 1 + .10f * (frame - REST_FRAME);
}

void AddShield(Catalogue& catalogue)
{
	catalogue.Add("shield main", __FILE__, [](Sink& sink) {
		for (int i = 0; i < MAIN_FRAMES; i++)
			sink.Add("barriermain" + std::to_string(i) + ".png",
			         ShieldBody(MainStrength(i), i * .25f));
	});
	catalogue.Add("shield top", __FILE__, [](Sink& sink) {
		for (int i = 0; i < TOP_FRAMES; i++)
			sink.Add("barriertop" + std::to_string(i) + ".png", ShieldTop((i + 1.f) / TOP_FRAMES));
	});
	catalogue.Add("shield pulses", __FILE__, [](Sink& sink) {
		for (int i = 0; i < PULSE_FRAMES; i++) {
			float phase = i * 2 * PI / PULSE_FRAMES;
			sink.Add("barrierpulseleft" + std::to_string(i) + ".png", ShieldPulse(false, phase));
			sink.Add("barrierpulseright" + std::to_string(i) + ".png", ShieldPulse(true, phase));
		}
	});
}
