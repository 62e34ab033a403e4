// Walls are laid stone by stone along the line that balls bounce off.
#include "art/scenery/boundary.h"

#include "art/core/outlines.h"
#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/core/stamps.h"
#include "art/scenery/ground_paint.h"

static const int WALL_WIDTH = 693, WALL_HEIGHT = 60;
static const float FOOT_BELOW   = 14; // pixels from the line that balls bounce off down to the foot
static const int WALL_FIELD_TOP = 112; // row of the screen where the wall usually begins
static const float WALL_ELEVATION = 14;

namespace
{
struct CoursePoint {
	float x, y;
};
enum class Masonry { Stone, Sandstone, Ice };
} // namespace

// clang-format off
static const CoursePoint s_courses[2][8] = {
	{ {0, 26}, {77, 24}, {185, 24}, {285, 29}, {385, 35}, {485, 37}, {585, 35}, {693, 29} },
	{ {0, 29}, {100, 36}, {200, 38}, {300, 36}, {400, 29}, {500, 24}, {600, 24}, {693, 27} },
};
// clang-format on

// Row of the wall's foot in the picture.
static float WallFoot(float x, int variant)
{
	const CoursePoint* p = s_courses[variant];
	int i                = 0;
	while (i < 6 && x > p[i + 1].x)
		i++;
	return Mix(p[i].y, p[i + 1].y, Smoothstep(p[i].x, p[i + 1].x, x)) + FOOT_BELOW;
}

static Colour BlockColour(Masonry masonry, Vec3 p, Colour c)
{
	float grain = LayeredNoise(p * .22f, 3);
	Colour q    = c * (.84f + .34f * grain);
	if (masonry == Masonry::Sandstone)
		return q * (.95f + .09f * std::sin(p.y * 1.9f + 3 * grain));
	if (masonry == Masonry::Ice)
		return Mix(q, PAINT_WHITE, .5f * Smoothstep(.58f, .66f, LayeredNoise(p * .13f, 3)));
	float lichen = LayeredNoise(p * .20f + Vec3{3, 8, 2}, 3);
	q            = Mix(q, HexColour(0xd8cf9c), .35f * Smoothstep(.62f, .68f, lichen));
	float moss   = LayeredNoise(p * .10f + Vec3{9, 2, 1}, 3);
	return Mix(q, PAINT_MOSS, .68f * Smoothstep(.53f, .64f, moss));
}

namespace
{
// Builds one wall; y of the model is minus the row of the picture.
struct WallBuilder {
	Model model;
	Masonry masonry;
	int variant;
	int blocks[4];
	Random random;

	WallBuilder(Masonry masonry, int variant)
	    : masonry(masonry), variant(variant), random(11 + variant * 7 + (int)masonry)
	{
	}
	void AddMaterials();
	void AddRow(float lift, float tall);
	void AddCoping(float lift);
	float Foot(float x) const { return WallFoot(Clamp(x, 0, WALL_WIDTH), variant); }
};
} // namespace

void WallBuilder::AddMaterials()
{
	static const uint32_t SANDSTONE[] = {0xdcb878, 0xcaa05e, 0xe8cc94, 0xbf9258};
	static const uint32_t ICE[]       = {0xa8d4f0, 0x8cc0e8, 0xc4e6f8, 0x9accf0};
	for (int i = 0; i < 4; i++) {
		Colour c  = masonry == Masonry::Stone       ? PAINT_STONES[i]
		            : masonry == Masonry::Sandstone ? HexColour(SANDSTONE[i])
		                                            : HexColour(ICE[i]);
		Masonry m = masonry;
		blocks[i] =
		    model.Painted([=](const SurfacePoint& at) { return BlockColour(m, at.position, c); },
		                  masonry == Masonry::Ice ? .8f : .06f);
	}
}

void WallBuilder::AddRow(float lift, float tall)
{
	bool ice = masonry == Masonry::Ice;
	for (float x = -6 + random.Range(-8, 0); x < WALL_WIDTH + 6;) {
		float wide = random.Range(13, 25), middle = x + wide * .5f;
		float high = tall * random.Range(.96f, 1.04f);
		Shape& s =
		    model.Box({middle, -(Foot(middle) - lift - tall * .5f), random.Range(-1, 1.8f)},
		              {wide * .5f - .1f, high * .5f + .2f, 7}, TurnZ(random.Range(-.05f, .05f)),
		              ice ? 2.4f : 4.f, blocks[random.Below(4)], .5f);
		s.bumps     = ice ? .4f : .9f;
		s.bumpScale = .25f;
		x += wide;
	}
}

// Flat stones on top, and snow over them on the wall of ice.
void WallBuilder::AddCoping(float lift)
{
	int snow = masonry == Masonry::Ice ? model.Glowing(0xeef5ff, .5f) : -1;
	for (float x = -5; x < WALL_WIDTH + 6;) {
		float wide = random.Range(20, 34), middle = x + wide * .5f,
		      y     = -(Foot(middle) - lift - 3.2f);
		Shape& s    = model.Box({middle, y, 0}, {wide * .5f, 3.6f, 9},
		                        TurnZ(random.Range(-.05f, .05f)), 2.6f, blocks[random.Below(4)], .3f);
		s.bumps     = .8f;
		s.bumpScale = .25f;
		if (snow >= 0)
			model.Ellipsoid({middle, y + 4.2f, 1},
			                {wide * .56f, 4.0f + random.Range(0, 1.4f), 10.5f}, {}, snow, 2.5f);
		x += wide;
	}
}

static void DrawWallShadow(Image& image, int variant)
{
	for (int x = 0; x < image.width; x++) {
		float foot = WallFoot(x, variant);
		for (int y = (int)foot - 6; y < image.height; y++)
			Blend(image, x, y, PAINT_SHADOW, .40f * Smoothstep(9, -1, y - foot));
	}
}

// Ivy hangs over the coping here and there.
static void DrawIvy(Image& image, int variant)
{
	CairoLayer layer(image, 3);
	Random random(5 + variant);
	Colour green = HexColour(0x4f8a34);
	for (int i = 0; i < 8; i++) {
		float x = random.Range(15, WALL_WIDTH - 15), top = WallFoot(x, variant) - 31;
		int strands = 2 + random.Below(4);
		for (int pass = 0; pass < 2; pass++) {
			Random same(i * 9 + variant);
			for (int k = 0; k < strands * 9; k++) {
				float down = same.Next01(), side = (k % strands - strands * .5f) * 4.4f;
				float px    = x + side + 2.5f * std::sin(down * 7 + k) + same.Range(-1.5f, 1.5f);
				float py    = top + down * (12.f + 11 * Hash01(i, k % strands, 3)) - 2,
				      light = same.Next01();
				Colour c    = pass == 0 ? InkOf(green)
				                        : Mix(Darker(green, .5f), HexColour(0x98c858),
				                              light * (1 - .4f * down));
				cairo_set_source_rgba(layer.cairo, c.x, c.y, c.z, pass == 0 ? .8f : 1.f);
				LeafPath(layer.cairo, px, py, 1.1f + same.Range(-.9f, .9f), pass == 0 ? 5.4f : 4.3f,
				         pass == 0 ? 2.3f : 1.6f);
				cairo_fill(layer.cairo);
			}
		}
	}
	layer.End();
}

static Image DrawWall(Masonry masonry, int variant)
{
	// the ice is lower, for the snow on top of it has to find room in the picture
	const float ROWS[2][3] = {{9.8f, 9.4f, 9}, {8.8f, 8.4f, 8.2f}};
	WallBuilder wall(masonry, variant);
	wall.AddMaterials();
	float lift = 0;
	for (float tall : ROWS[masonry == Masonry::Ice]) {
		wall.AddRow(lift, tall);
		lift += tall;
	}
	wall.AddCoping(lift);
	ShadeStyle style;
	style.innerDepth = 1;
	style.innerLine  = .6f;
	style.outline    = masonry == Masonry::Ice ? .7f : 1.f;
	Image out(WALL_WIDTH, WALL_HEIGHT);
	DrawWallShadow(out, variant);
	Compose(out,
	        RenderModel(wall.model, ViewFrom(WALL_WIDTH, WALL_HEIGHT, 0, 2, 0, WALL_ELEVATION, 3),
	                    style),
	        0, 0);
	if (masonry == Masonry::Stone)
		DrawIvy(out, variant);
	Turf turf = masonry == Masonry::Stone       ? Turf::Grass
	            : masonry == Masonry::Sandstone ? Turf::Sand
	                                            : Turf::Snow;
	StrokeSeam(out, {turf, WALL_FIELD_TOP, turf == Turf::Grass ? 1.7f : .55f, 3, 6.5f, 9}, WallFoot,
	           variant);
	return out;
}

void AddBoundary(Catalogue& catalogue)
{
	const struct {
		const char* word;
		Masonry masonry;
	} KINDS[] = {{"stone", Masonry::Stone}, {"sand", Masonry::Sandstone}, {"ice", Masonry::Ice}};
	for (const auto& kind : KINDS)
		for (int variant = 0; variant < 2; variant++) {
			std::string name =
			    std::string("background_fence") + kind.word + (char)('A' + variant) + ".png";
			catalogue.Add(name, __FILE__, [name, kind, variant](Sink& sink) {
				sink.Add(name, DrawWall(kind.masonry, variant));
			});
		}
}
