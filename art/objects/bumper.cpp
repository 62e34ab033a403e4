// The striped bumper: a tube laid along the outline that the ball rebounds from.
#include "art/objects/bumper.h"

#include "art/core/palette.h"

const PartWindow BUMPER_WINDOW = {-29, 505, 134, 56};

static const int SAMPLES      = 41;   // points along the tube
static const float TUBE       = 4.2f; // radius, pixels
static const float FIRST_Y    = 52;   // model y of the line y 514
static const float HALF_WIDTH = 38;
static const int STRIPES      = 9; // odd: the middle and both ends are alike

// Height of the outline at each step of 5 pixels, downward from the line y 514.
// clang-format off
static const std::vector<float> NORMAL_OUTLINE = {31, 25, 20, 16, 13, 10.5f, 8.5f, 7, 6, 5.9f, 6, 7, 8.5f, 10.5f, 13, 16, 20, 25, 31};
static const std::vector<float> WIDE_OUTLINE   = {33, 28, 23, 18, 14, 11, 8.5f, 6.5f, 5, 4, 3.5f, 3.2f, 2.9f, 3, 3.2f, 3.5f, 4, 5, 6.5f, 8.5f, 11, 14, 18, 23, 28, 33};
static const std::vector<float> FLAT_OUTLINE   = {27, 23, 20, 17, 15, 13.5f, 12.5f, 12, 11.9f, 12, 12.5f, 13.5f, 15, 17, 20, 23, 27};
// clang-format on

std::vector<OutlinePoint> BumperOutline(BumperShape shape)
{
	const std::vector<float>& heights = shape == BumperShape::Normal ? NORMAL_OUTLINE
	                                    : shape == BumperShape::Wide ? WIDE_OUTLINE
	                                                                 : FLAT_OUTLINE;
	float first = shape == BumperShape::Normal ? -9.f : shape == BumperShape::Wide ? -25.f : -2.f;
	std::vector<OutlinePoint> points;
	for (size_t i = 0; i < heights.size(); i++)
		points.push_back({first + 5 * i, heights[i]});
	return points;
}

// The outline in model space at SAMPLES places, evenly by their number.
static std::vector<Vec3> Resampled(BumperShape shape)
{
	std::vector<OutlinePoint> points = BumperOutline(shape);
	std::vector<Vec3> out;
	for (int i = 0; i < SAMPLES; i++) {
		float at = i * (points.size() - 1) / (float)(SAMPLES - 1);
		int k    = std::min((int)at, (int)points.size() - 2);
		float t  = at - k;
		out.push_back({Mix(points[k].x, points[k + 1].x, t) - HALF_WIDTH,
		               FIRST_Y - Mix(points[k].y, points[k + 1].y, t), 0});
	}
	return out;
}

// The middle of the tube, one radius inside of the outline.
static std::vector<Vec3> TubeMiddle(const BumperState& state)
{
	std::vector<Vec3> from = Resampled(state.from), to = Resampled(state.to), out;
	std::vector<Vec3> edge;
	for (int i = 0; i < SAMPLES; i++)
		edge.push_back(Mix(from[i], to[i], state.progress));
	for (int i = 0; i < SAMPLES; i++) {
		Vec3 along  = Normalize(edge[std::min(i + 1, SAMPLES - 1)] - edge[std::max(i - 1, 0)]);
		Vec3 inward = {along.y, -along.x, 0};
		out.push_back(edge[i] + inward * TUBE);
	}
	return out;
}

// Where along the tube a point lies, 0..1, by the nearest sample.
static float PlaceAlong(const std::vector<Vec3>& middle, Vec3 p)
{
	float best = 1e9f, place = 0;
	for (int i = 0; i + 1 < SAMPLES; i++) {
		Vec3 step   = middle[i + 1] - middle[i];
		float t     = Clamp01(Dot(p - middle[i], step) / Dot(step, step));
		Vec3 off    = p - middle[i] - step * t;
		float apart = off.x * off.x + off.y * off.y;
		if (apart < best) {
			best  = apart;
			place = (i + t) / (SAMPLES - 1);
		}
	}
	return place;
}

static Paint StripePaint(std::vector<Vec3> middle, float slime)
{
	return [=](const SurfacePoint& at) {
		float stripe = PlaceAlong(middle, at.position) * STRIPES;
		bool cream   = (int)stripe & 1;
		Colour bare  = cream ? PAINT_BUMPER_CREAM : PAINT_BUMPER_RED;
		float seam   = std::fabs(stripe - std::round(stripe)) * 11; // pixels from the next stripe
		bare         = Mix(InkOf(PAINT_BUMPER_RED), bare, Smoothstep(0, .75f, seam) * .6f + .4f);
		Colour goo   = cream ? PAINT_STICKY_LIGHT : PAINT_STICKY;
		// The slime runs from the crest down: high and noisy places turn first.
		float early = LayeredNoise(at.position * .22f, 2) + .022f * (at.position.y - 30);
		return Mix(bare, goo, Smoothstep(1.2f - slime * 1.3f, 1.3f - slime * 1.3f, early));
	};
}

static void AddDrips(Model& m, const std::vector<Vec3>& middle, float slime)
{
	int goo = m.Plain(PAINT_STICKY, .9f);
	Random random(4);
	for (int i = 3; i < SAMPLES - 3; i += 4) {
		float reach = random.Range(1, 3.6f) * slime, aside = random.Range(-1, 1);
		Vec3 p = middle[i] + Vec3{0, -TUBE + 2.2f, 1.5f};
		m.RoundCone(p, p + Vec3{aside, -reach - 1, 0}, 1.9f * slime, 1.3f * slime, goo, 1.2f);
	}
}

Image MachineBumper(const BumperState& state, float zoom)
{
	Model m;
	std::vector<Vec3> middle = TubeMiddle(state);
	int tube                 = m.Painted(StripePaint(middle, state.slime), .7f);
	int steel                = m.Plain(0x7c8698, .9f);
	int brass                = m.Plain(PAINT_MACHINE_BRASS, .85f);
	for (int i = 0; i + 1 < SAMPLES; i++)
		m.RoundCone(middle[i], middle[i + 1], TUBE, TUBE, tube, 0);
	for (int s = -1; s <= 1; s += 2) {
		Vec3 end = middle[s < 0 ? 0 : SAMPLES - 1], next = middle[s < 0 ? 2 : SAMPLES - 3];
		Vec3 out = Normalize(end - next);
		m.Ring(end + out * .6f, 3.4f, 1.5f, TurnZ(std::atan2(out.y, out.x) - PI / 2), brass, .2f);
		m.Ball(end + out * 2.2f, 3.7f, steel, 0);
		Vec3 arm = middle[s < 0 ? SAMPLES / 3 : SAMPLES - 1 - SAMPLES / 3];
		m.RoundCone({s * 31.f, 20, -3}, arm + Vec3{0, 0, -3}, 1.7f, 1.5f, steel, 0);
	}
	if (state.slime > 0)
		AddDrips(m, middle, state.slime);
	return RenderPart(m, BUMPER_WINDOW, zoom);
}
