// The parts and pictures that the whole interface is put together from.
#include "art/screens/kit.h"

const TitleInk TITLE_YELLOW = {HexColour(0xfff04a), HexColour(0xff8a1a), HexColour(0x5a2410)};
const TitleInk TITLE_BLUE   = {HexColour(0x9af0ff), HexColour(0x2a78e0), HexColour(0x14285a)};
const TitleInk TITLE_GREEN  = {HexColour(0xc8f470), HexColour(0x2f9a2c), HexColour(0x143c14)};
const TitleInk TITLE_RED    = {HexColour(0xffb060), HexColour(0xe02c28), HexColour(0x4c0c14)};
const TitleInk TITLE_VIOLET = {HexColour(0xf0b0ff), HexColour(0x8a3ae0), HexColour(0x2c1058)};

static const Colour PAPER_SHADE = HexColour(0x7a5228);

void DrawRivet(Canvas& canvas, float x, float y, float r)
{
	canvas.Fill(Disc(x, y, r + .9f), InkOf(PAINT_BRASS));
	canvas.Relief(Disc(x, y, r), Plain(Lighter(PAINT_BRASS, .1f)), 1.3f, 3.4f, .7f);
}

void DrawWindow(Canvas& canvas, float x, float y, float w, float h, Colour inside, float radius)
{
	const float RIM = 2.4f;
	canvas.Body(RoundRect(x - RIM, y - RIM, w + 2 * RIM, h + 2 * RIM, radius + 2),
	            Plain(PAINT_BRASS), PAINT_BRASS_INK, 1, 1.4f, 3, .6f);
	canvas.Fill(RoundRect(x, y, w, h, radius), inside);
	canvas.InnerShadow(RoundRect(x, y, w, h, radius), 2, {0, 0, 0}, .6f);
}

void DrawWell(Canvas& canvas, float x, float y, float w, float h, Colour inside, float radius)
{
	PathFn path = RoundRect(x, y, w, h, radius);
	canvas.Fill(path, HexColour(0xb98f52), 1, .9f);
	canvas.Fill(path, inside);
	canvas.InnerShadow(path, 1.8f, PAPER_SHADE, .5f);
}

void DrawPlate(Canvas& canvas, float x, float y, float w, float h, Colour c, float radius)
{
	canvas.Fill(RoundRect(x, y, w, h, radius), InkOf(c), 1, 1.1f);
	canvas.Relief(RoundRect(x, y, w, h, radius), Downward(Lighter(c, .16f), c * .92f, y, y + h),
	              2.4f, 2.6f, .25f);
}

void DrawMarked(Canvas& canvas, const PathFn& path, Colour face, Colour ink, float rim)
{
	canvas.Fill(path, ink, 1, rim);
	canvas.Relief(path, Plain(face), 1.1f, 2.4f, .3f);
}

Image PaperPanel(int w, int h, float frame)
{
	Canvas canvas(w, h, 2);
	PathFn outer = RoundRect(3, 2, w - 9, h - 10, 18);
	PathFn inner = RoundRect(3 + frame, 2 + frame, w - 9 - 2 * frame, h - 10 - 2 * frame, 9);
	canvas.DropShadow(outer, 3, 3, 5, .55f);
	canvas.Fill(outer, InkOf(PAINT_WOOD));
	canvas.Relief(RoundRect(4.4f, 3.4f, w - 11.8f, h - 12.8f, 16.8f), WoodGrain(PAINT_WOOD), 4, 3,
	              .22f);
	canvas.Fill(inner, InkOf(PAINT_WOOD), 1, 1.6f);
	canvas.FillAt(inner, [](float x, float y) {
		return PAINT_PAPER * (1 - .06f * LayeredNoise(x * .012f, y * .012f, 3, 4));
	});
	canvas.InnerShadow(inner, 2.4f, PAPER_SHADE, .5f);
	float inset = frame * .62f;
	for (int i = 0; i < 4; i++)
		DrawRivet(canvas, i & 1 ? w - 6 - inset : 3 + inset, i & 2 ? h - 8 - inset : 2 + inset,
		          3.6f);
	return canvas.Finish();
}

Image SteelPanel(int w, int h, float radius, bool rivets)
{
	Canvas canvas(w, h, 2);
	PathFn outer = RoundRect(2, 2, w - 7, h - 8, radius + 3);
	PathFn plate = RoundRect(5.6f, 5.6f, w - 14.2f, h - 15.2f, radius);
	canvas.DropShadow(outer, 2.4f, 2, 4, .5f);
	canvas.Body(outer, Plain(PAINT_BRASS), PAINT_BRASS_INK, 1.1f, 2, 3, .6f);
	canvas.Fill(plate, HexColour(0x173a54), 1, 1);
	canvas.Relief(plate, Downward(Lighter(PAINT_STEEL_PLATE, .10f), PAINT_STEEL, 0, h), 3, 2.4f,
	              .2f);
	for (int i = 0; rivets && i < 4; i++)
		DrawRivet(canvas, i & 1 ? w - 18.f : 14.f, i & 2 ? h - 19.f : 14.f, 2.2f);
	return canvas.Finish();
}

Image Plank(int w, int h, Colour c)
{
	Canvas canvas(w, h, 3);
	PathFn path = RoundRect(3, 3, w - 9, h - 11, h * .22f);
	canvas.DropShadow(path, 2.6f, 2, 4, .5f);
	canvas.Body(path, WoodGrain(c), InkOf(c), 1.4f, 3.4f, 3, .2f);
	canvas.Stroke(RoundRect(8, 8, w - 19, h - 21, h * .15f), Darker(c, .8f), 1.1f, .55f);
	DrawRivet(canvas, 14, h * .5f - 2.5f, 3);
	DrawRivet(canvas, w - 17, h * .5f - 2.5f, 3);
	return canvas.Finish();
}

void DrawRays(Image& image, int x, int y, int w, int h, Colour a, Colour b, float turn)
{
	for (int j = 0; j < h; j++)
		for (int i = 0; i < w; i++) {
			float u = i - w * .5f, v = j - h * .5f;
			float wave = std::sin((std::atan2(v, u) + std::hypot(u, v) * .05f) * 6 + turn);
			float edge = std::min(std::min(i, w - 1 - i), std::min(j, h - 1 - j));
			Colour c   = Mix(a, b, Smoothstep(-.15f, .15f, wave));
			Blend(image, x + i, y + j, c * Mix(.62f, 1, Smoothstep(0, 7, edge)));
		}
}

Image Capsule(int w, int h, const std::string& text, Colour base, ButtonLook look, float size)
{
	Canvas canvas(w, h);
	float r = std::min(13.f, h * .42f);
	if (size <= 0)
		size = std::min(22.f, h * .52f);
	PathFn outer = RoundRect(1.2f, 1.2f, w - 2.4f, h - 2.4f, r + 1);
	PathFn inner = RoundRect(2.4f, 2.4f, w - 4.8f, h - 4.8f, r);
	if (look == ButtonLook::Shadow) {
		canvas.DropShadow(outer, 2, 0, 0, .55f);
		return canvas.Finish();
	}
	bool warm   = look == ButtonLook::Rollover;
	Colour face = warm ? Mix(base, HexColour(0xfff2b2), .3f) : base, ink = InkOf(base);
	canvas.Fill(outer, ink);
	canvas.Relief(inner, Downward(Lighter(face, .16f), Darker(face, .35f), 0, h), 2.6f, 3.2f, .35f);
	canvas.Gloss(RoundRect(5, 4, w - 10.f, h * .42f, r * .7f), inner, 4, h * .46f);
	canvas.Caption(text, size, w * .5f, h * .5f, warm ? HexColour(0xffffcc) : PAINT_WHITE,
	               ink * .85f, 1.5f);
	return canvas.Finish();
}

void AddCapsule(Sink& sink, const std::string& stem, int w, int h, const std::string& text,
                Colour base, float size)
{
	sink.Add(stem + "base.png", Capsule(w, h, text, base, ButtonLook::Base, size));
	sink.Add(stem + "rollover.png", Capsule(w, h, text, base, ButtonLook::Rollover, size));
	sink.Add(stem + "shadow.png", Capsule(w, h, text, base, ButtonLook::Shadow, size));
}

// Moves every point of the current path: the ends sink by `bend`, the middle grows a little.
static void BendPath(cairo_t* c, float cx, float cy, float halfWidth, float bend)
{
	cairo_path_t* path = cairo_copy_path(c);
	for (int i = 0; i < path->num_data; i += path->data[i].header.length)
		for (int k = 1; k < path->data[i].header.length; k++) {
			cairo_path_data_t& p = path->data[i + k];
			float u              = (p.point.x - cx) / halfWidth;
			p.point.y = cy + (p.point.y - cy) * (1.14f - .24f * u * u) + bend * (u * u - .45f);
		}
	cairo_new_path(c);
	cairo_append_path(c, path);
	cairo_path_destroy(path);
}

// The light over the upper half of a title's letters.
static void AddUpperBand(Canvas& canvas, Field face, float cx, float middle, float bend)
{
	float s = canvas.supersample;
	for (int y = 0; y < face.height; y++)
		for (int x = 0; x < face.width; x++) {
			float u    = (x / s - cx) / cx;
			float edge = middle + bend * (u * u - .45f);
			face.At(x, y) *= .26f * Smoothstep(edge + 1, edge - 1, y / s);
		}
	canvas.FillMask(face, PAINT_WHITE);
}

Image TitleLettering(const std::string& text, float size, const TitleInk& ink, float bend)
{
	int w = (int)(LetteringWidth(text, size) + size * .9f);
	int h = (int)(size * 1.55f + std::fabs(bend));
	return TitleOn(w, h, w * .5f, h * .48f, text, size, ink, bend);
}

Image TitleOn(int w, int h, float cx, float cy, const std::string& text, float size,
              const TitleInk& t, float bend)
{
	const float SMALL = 30; // below it a cream rim would swallow the letters
	float rim         = size * .075f;
	Canvas canvas(w, h, size > 60 ? 3 : 4);
	PathFn straight = Lettering(text, size, cx, cy);
	PathFn path     = [=](cairo_t* c) {
        straight(c);
        if (bend != 0)
            BendPath(c, cx, cy, cx, bend);
	};
	Field face = canvas.Mask(path, size * .018f);
	Field ink  = canvas.Mask(path, size < SMALL ? size * .085f : rim + size * .035f);
	// Small words get a small shadow, or it ends at the picture's edge.
	float soft = std::min(2.f, size * .05f), fall = std::min(4.f, size * .09f);
	canvas.FillMask(Blur(ink, soft * canvas.supersample), {.04f, .06f, .10f}, .5f, soft * .5f,
	                fall);
	for (float down = 0; down <= size * .05f; down += .5f) // thickness
		canvas.FillMask(ink, t.ink, 1, 0, down);
	if (size >= SMALL)
		canvas.FillMask(canvas.Mask(path, rim), PAINT_CREAM);
	canvas.ReliefMask(face, Downward(t.top, t.bottom, cy - size * .32f, cy + size * .36f),
	                  size * .045f, 3, .6f);
	AddUpperBand(canvas, face, cx, cy - size * .04f, bend);
	return canvas.Finish();
}

Image SignedPlank(const std::string& text, float size, const TitleInk& ink, int extra)
{
	Image words = TitleLettering(text, size, ink);
	Image plank = Plank((int)LetteringWidth(text, size) + extra + 6, (int)(size * 1.55f) + 8);
	ComposeCentred(plank, words, plank.width * .5f - 3, plank.height * .5f - 3);
	return plank;
}

Image EdgedWord(const std::string& text, float size, Colour face, Colour edge, int height,
                float edgeWidth)
{
	int w = (int)std::ceil(LetteringWidth(text, size)) + 3;
	Canvas canvas(w, height);
	// A little above the middle, so that descenders have room.
	canvas.Caption(text, size, w * .5f, height * .5f - size * .1f, face, edge, edgeWidth);
	return canvas.Finish();
}

Image GlassBall(int size, float swell)
{
	Image ball(size, size);
	float r = size * .5f - size * .02f;
	for (int y = 0; y < size; y++)
		for (int x = 0; x < size; x++) {
			float u = (x + .5f - size * .5f) / r * (1 + swell * .5f);
			float v = (y + .5f - size * .5f) / r * (1 - swell * .5f);
			float q = std::hypot(u, v);
			if (q >= 1)
				continue;
			float rim   = 1 - std::sqrt(1 - q * q);
			float hue   = std::cos(2.2f * q + .35f * std::sin(3 * std::atan2(v, u)) + .6f * v);
			Colour c    = Mix(HexColour(0x9ae0ff), HexColour(0xffd8f8), .5f + .5f * hue);
			float a     = .26f + .62f * std::pow(rim, 1.15f);
			float edge  = Smoothstep(.80f, .95f, q);
			c           = Mix(c, HexColour(0x2a68a8), edge * .7f);
			a           = std::max(a, edge * .85f);
			float glow  = Smoothstep(.55f, .88f, u * .62f + v * .78f) * Smoothstep(.98f, .84f, q);
			c           = Mix(c, {1, 1, 1}, glow * .5f);
			a           = std::max(a, glow * .5f);
			float p     = (u + .38f) * .75f - (v + .44f) * .66f,
			      w     = (u + .38f) * .66f + (v + .44f) * .75f;
			float light = Smoothstep(1.15f, .5f, p * p / .10f + w * w / .032f);
			c           = Mix(c, {1, 1, 1}, light);
			a           = std::max(a, light * .95f);
			Blend(ball, x, y, c, a * Smoothstep(1, .96f, q));
		}
	return ball;
}

Image Popped(const Image& source, float scale, float opacity)
{
	Image out(source.width, source.height);
	cairo_surface_t* target  = ToCairo(out);
	cairo_surface_t* picture = ToCairo(source);
	cairo_t* c               = cairo_create(target);
	cairo_translate(c, source.width * .5, source.height * .5);
	cairo_scale(c, scale, scale);
	cairo_set_source_surface(c, picture, -source.width * .5, -source.height * .5);
	cairo_pattern_set_filter(cairo_get_source(c), CAIRO_FILTER_BEST);
	cairo_paint_with_alpha(c, opacity);
	out = FromCairo(target);
	cairo_destroy(c);
	cairo_surface_destroy(picture);
	cairo_surface_destroy(target);
	return out;
}
