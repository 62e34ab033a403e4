// Pictures of light, and glows around lamps.
#include "art/objects/light.h"

static const int SAMPLES_A_PIXEL = 3;

Image PaintLight(int w, int h, const LightAt& at)
{
	Image fine(w * SAMPLES_A_PIXEL, h * SAMPLES_A_PIXEL);
	for (int y = 0; y < fine.height; y++)
		for (int x = 0; x < fine.width; x++) {
			Colour c;
			float a  = Clamp01(at((x + .5f) / SAMPLES_A_PIXEL, (y + .5f) / SAMPLES_A_PIXEL, c));
			c        = ClampColour(c);
			float* p = fine.At(x, y);
			p[0]     = c.x * a;
			p[1]     = c.y * a;
			p[2]     = c.z * a;
			p[3]     = a;
		}
	return BoxDownsample(fine, SAMPLES_A_PIXEL);
}

void AddHalo(Image& target, float x, float y, float radius, Colour c, float strength)
{
	for (int py = (int)(y - radius); py <= (int)(y + radius) + 1; py++)
		for (int px = (int)(x - radius); px <= (int)(x + radius) + 1; px++) {
			float r = std::hypot(px + .5f - x, py + .5f - y) / radius;
			if (r < 1)
				Blend(target, px, py, c, strength * (1 - r) * (1 - r));
		}
}
