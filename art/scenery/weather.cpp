// What falls and floats before the field: rain with its splashes, snow, fireflies.
#include "art/families.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"

// Rain falls straight down, so the streaks are upright; thin above, round at the drop.
static Image DrawStreak(int variant)
{
	static const int LENGTHS[4]     = {20, 26, 31, 36};
	static const float STRENGTHS[4] = {.62f, .72f, .82f, .90f};
	int length                      = LENGTHS[variant];
	Image streak(3, length);
	for (int y = 0; y < length; y++) {
		float t = (y + .5f) / length, end = Smoothstep(0, 2, length - y - .5f);
		float a = STRENGTHS[variant] * std::pow(t, 1.4f) * end, width = .35f + .65f * t;
		Blend(streak, 1, y, Mix(HexColour(0xb4d4f4), HexColour(0xf2faff), t), a);
		Blend(streak, 0, y, HexColour(0xa8ccf0), a * .30f * width);
		Blend(streak, 2, y, HexColour(0x88b0dc), a * .42f * width);
	}
	return streak;
}

// A ring that widens and drops that fly up and out of it.
static Image DrawSplash(int frame)
{
	const int W = 19, H = 13;
	const float X = W * .5f, Y = H - 3.2f;
	float t = (frame + 1) / 4.f, wide = 2 + 6.2f * t, fade = 1 - .72f * t * t;
	Canvas canvas(W, H);
	PathFn ring = Oval(X, Y, wide, wide * .36f);
	canvas.Stroke(ring, HexColour(0x6f98c4), 1.7f, .35f * fade);
	canvas.Stroke(ring, HexColour(0xeef8ff), 1.0f, .75f * fade);
	if (frame > 0)
		canvas.Stroke(Oval(X, Y, wide * .5f, wide * .18f), HexColour(0xeef8ff), .7f, .40f * fade);
	for (int i = -2; i <= 2; i++) {
		float rise = 9.5f * t * (1.15f - t) * (1.35f - .22f * std::abs(i)) * 1.5f;
		float size = 1.15f * (1 - .5f * t);
		float x = X + i * (1.0f + 1.5f * t), y = Y - rise;
		canvas.Fill(Disc(x + .2f, y + .3f, size + .4f), HexColour(0x6f98c4), .30f * fade);
		canvas.Fill(Disc(x, y, size), HexColour(0xf6fcff), .9f * fade);
	}
	return canvas.Finish();
}

// One picture for soft flakes and for hail: a blue halo keeps it in sight on snow.
static Image DrawFlake()
{
	Canvas canvas(9, 9);
	canvas.Fill(Disc(4.6f, 4.8f, 3.7f), HexColour(0x86a6d4), .20f);
	canvas.Fill(Disc(4.5f, 4.6f, 3.0f), HexColour(0x86a6d4), .30f);
	canvas.Fill(Disc(4.4f, 4.4f, 2.4f), PAINT_WHITE, .96f);
	return canvas.Finish();
}

// Frame 0 is the brightest, 8 the last glimmer.
static Image DrawFirefly(int frame)
{
	const int SIZE = 25;
	const float C  = SIZE * .5f;
	float on = std::pow(1 - frame / 9.f, 1.4f), reach = C * (.55f + .45f * on);
	Image fly(SIZE, SIZE);
	for (int y = 0; y < SIZE; y++)
		for (int x = 0; x < SIZE; x++) {
			float out  = std::hypot(x + .5f - C, y + .5f - C);
			float halo = Clamp01(1 - out / reach);
			Blend(fly, x, y, HexColour(0xc8f03c), on * .85f * halo * halo);
			Blend(fly, x, y,
			      Mix(HexColour(0xf4ffb0), HexColour(0xd8ff5a), Smoothstep(.5f, 2.2f, out)),
			      std::min(1.f, on * 1.1f) * Smoothstep(3.0f, 1.3f, out));
		}
	return fly;
}

void AddWeather(Catalogue& catalogue)
{
	catalogue.Add("weather", __FILE__, [](Sink& sink) {
		for (int i = 0; i < 4; i++) {
			sink.Add(std::string("rain_streak") + (char)('A' + i) + ".tga", DrawStreak(i));
			sink.Add("rain_splash" + std::to_string(i) + ".tga", DrawSplash(i));
		}
		sink.Add("background_snow.png", DrawFlake());
		for (int i = 0; i < 9; i++)
			sink.Add("firefly" + std::to_string(i) + ".png", DrawFirefly(i));
	});
}
