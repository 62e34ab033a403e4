// The march over a model's distance field, tile by tile, and the shading of its samples.
#include "art/core/renderer.h"

static const int TILE           = 8; // samples; a tile marches only the shapes that touch it
static const int MAX_STEPS      = 64;
static const float STEP         = .92f; // part of the distance taken at once
static const float HIT          = .02f; // distance that counts as the surface
static const float NORMAL_REACH = .12f;
static const float BOUND_MARGIN = .6f; // room around a shape for normals, model units
static const float AO_STEP      = .9f; // model units between the four occlusion taps
static const float AO_FALL      = .62f;
static const float INNER_REACH  = .62f;              // final pixels, inner lines
static const Colour EYE_OUTLINE = {.4f, .35f, .35f}; // eyes get an outline of this local colour

Camera ViewFrom(int width, int height, float originX, float originY, float yawDegrees,
                float elevationDegrees, int supersample)
{
	Camera camera;
	camera.width       = width;
	camera.height      = height;
	camera.originX     = originX;
	camera.originY     = originY;
	camera.yaw         = Radians(yawDegrees);
	camera.elevation   = Radians(elevationDegrees);
	camera.supersample = supersample;
	return camera;
}

namespace
{
struct Sample {
	Colour colour;
	Vec3 normal; // in view space
	float depth = -1e9f, openness = 1, gloss = 0, glow = 0;
	bool hit = false, eye = false;
};

// One rendering. Samples are kept only for the part of the picture that the model can touch.
class Renderer
{
public:
	Renderer(Model& model, const Camera& camera, const ShadeStyle& style)
	    : model(model), camera(camera), style(style)
	{
	}
	Image Render();

private:
	void SetUpView();
	bool SetUpWindow();
	float DistanceAt(Vec3 p, const std::vector<int>& shapes) const;
	bool GatherTile(int tileX, int tileY);
	void MarchTile(int tileX, int tileY);
	bool March(Vec3 start, float from, float stop, float& z) const;
	float MarchFat(Vec3 start) const;
	void MarchSample(int x, int y, float from);
	Vec3 NormalAt(Vec3 p) const;
	float OpennessAt(Vec3 p, Vec3 normal) const;
	void ColourSample(Sample& sample, const SurfacePoint& point);
	Vec3 RayStart(float x, float y) const;
	Colour Shade(const Sample& s) const;
	Colour ShadeSolid(const Sample& s, float diffuse) const;
	Image ShadeSamples() const;
	void AddLines(Image& image) const;
	void InnerLine(const Sample& here, int x, int y, int reach, float* p) const;
	void Outline(int x, int y, int reach, float* p) const;
	bool NearHit(int x, int y, int reach) const;
	const Sample* SampleAt(int x, int y) const
	{
		if (x < 0 || y < 0 || x >= width || y >= height)
			return nullptr;
		return &samples[(size_t)y * width + x];
	}

	Model& model;
	Camera camera;
	ShadeStyle style;
	Vec3 right, up, toViewer, offset;
	Vec3 light, halfway;
	std::vector<Vec3> centres; // of the bounds, in view space
	float unit = 1;            // model units per sample

	int left = 0, top = 0, pixelWidth = 0, pixelHeight = 0; // the window, final pixels
	int width = 0, height = 0;                              // the window, samples
	int tilesAcross = 0;
	std::vector<Sample> samples;
	std::vector<char> tileHit;

	// of the tile being marched
	std::vector<int> active;
	float nearest = 0, farthest = 0;
	// of the sample being shaded
	std::vector<int> close, around;
};

// Smooth union; returns how much of the point belongs to the new shape.
float Join(float& d, float next, float blend)
{
	if (blend <= 0) {
		bool nearer = next < d;
		d           = std::min(d, next);
		return nearer ? 1.f : 0.f;
	}
	float h = Clamp01(.5f + .5f * (d - next) / blend);
	d       = d * (1 - h) + next * h - blend * h * (1 - h);
	return h;
}

Image Renderer::Render()
{
	model.Prepare();
	SetUpView();
	Image out(camera.width, camera.height);
	if (!SetUpWindow())
		return out;
	for (int y = 0; y < height; y += TILE)
		for (int x = 0; x < width; x += TILE)
			MarchTile(x, y);
	Image shaded = ShadeSamples();
	if (style.outline > 0)
		AddLines(shaded);
	Image small = BoxDownsample(shaded, camera.supersample);
	if (style.sharpen > 0)
		small = Sharpened(small, style.sharpen);
	Compose(out, small, left, top);
	return out;
}

void Renderer::SetUpView()
{
	float c = std::cos(camera.elevation), s = std::sin(camera.elevation);
	Mat3 turn = Transpose(TurnY(camera.yaw)), unroll = Transpose(camera.bodyTurn);
	right    = unroll * (turn * Vec3{1, 0, 0});
	up       = unroll * (turn * Vec3{0, c, -s});
	toViewer = unroll * (turn * Vec3{0, s, c});
	// model point = pivot + unroll * (turned point - pivot)
	offset  = camera.pivot - unroll * camera.pivot;
	light   = Normalize(style.light);
	halfway = Normalize(light + Vec3{0, 0, 1});
	unit    = 1.f / (camera.supersample * camera.scale);
	for (const Shape& shape : model.shapes) {
		Vec3 p = shape.boundCentre - offset;
		centres.push_back({Dot(p, right), Dot(p, up), Dot(p, toViewer)});
	}
}

// The rectangle of final pixels that the bounds of all shapes touch, outline included.
bool Renderer::SetUpWindow()
{
	float x0 = 1e9f, x1 = -1e9f, y0 = 1e9f, y1 = -1e9f;
	for (size_t i = 0; i < model.shapes.size(); i++) {
		float r = (model.shapes[i].boundRadius + model.shapes[i].blend * .25f) * camera.scale;
		float x = camera.originX + centres[i].x * camera.scale;
		float y = camera.originY - centres[i].y * camera.scale;
		x0      = std::min(x0, x - r);
		x1      = std::max(x1, x + r);
		y0      = std::min(y0, y - r);
		y1      = std::max(y1, y + r);
	}
	float margin = style.outline + 2;
	x0           = std::max(0.f, x0 - margin);
	y0           = std::max(0.f, y0 - margin);
	x1           = std::min((float)camera.width, x1 + margin);
	y1           = std::min((float)camera.height, y1 + margin);
	if (x1 <= x0 || y1 <= y0)
		return false;
	left        = (int)x0;
	top         = (int)y0;
	pixelWidth  = (int)std::ceil(x1) - left;
	pixelHeight = (int)std::ceil(y1) - top;
	width       = pixelWidth * camera.supersample;
	height      = pixelHeight * camera.supersample;
	tilesAcross = (width + TILE - 1) / TILE;
	samples.assign((size_t)width * height, Sample());
	tileHit.assign((size_t)tilesAcross * ((height + TILE - 1) / TILE), 0);
	return true;
}

float Renderer::DistanceAt(Vec3 p, const std::vector<int>& shapes) const
{
	float d = 1e9f;
	for (int i : shapes) {
		const Shape& s = model.shapes[i];
		// A shape whose bounding ball is farther than the surface so far can't matter.
		float limit = d + s.blend + s.boundRadius;
		Vec3 off    = p - s.boundCentre;
		if (limit < 1e8f && (limit < 0 || Dot(off, off) > limit * limit))
			continue;
		Join(d, DistanceTo(s, p), s.blend);
	}
	return d;
}

// Collects the shapes whose bounds touch the tile; false when there are none.
bool Renderer::GatherTile(int tileX, int tileY)
{
	float x0 = (tileX + left * camera.supersample) * unit - camera.originX / camera.scale;
	float y1 = camera.originY / camera.scale - (tileY + top * camera.supersample) * unit;
	float x1 = x0 + TILE * unit, y0 = y1 - TILE * unit;
	active.clear();
	nearest  = -1e9f;
	farthest = 1e9f;
	for (size_t i = 0; i < model.shapes.size(); i++) {
		float r  = model.shapes[i].boundRadius + model.shapes[i].blend + BOUND_MARGIN;
		float dx = std::max(std::max(x0 - centres[i].x, centres[i].x - x1), 0.f);
		float dy = std::max(std::max(y0 - centres[i].y, centres[i].y - y1), 0.f);
		if (dx * dx + dy * dy >= r * r)
			continue;
		active.push_back((int)i);
		nearest  = std::max(nearest, centres[i].z + r);
		farthest = std::min(farthest, centres[i].z - r);
	}
	return !active.empty();
}

Vec3 Renderer::RayStart(float x, float y) const
{
	float sx = (x + left * camera.supersample) * unit - camera.originX / camera.scale;
	float sy = camera.originY / camera.scale - (y + top * camera.supersample) * unit;
	return offset + right * sx + up * sy;
}

// Marches from depth `from` until the field is nearer than `stop`. False when it never is.
bool Renderer::March(Vec3 start, float from, float stop, float& z) const
{
	z = from;
	for (int step = 0; step < MAX_STEPS && z >= farthest; step++) {
		float d = DistanceAt(start + toViewer * z, active);
		if (d < stop)
			return true;
		z -= d * STEP;
	}
	return false;
}

// One fat ray through the middle of a tile: the depth from which on its samples have to look,
// below `farthest` when all of them miss.
float Renderer::MarchFat(Vec3 start) const
{
	const float CLOSE   = .15f;
	const float breadth = TILE * unit * .7072f * 1.1f; // half a tile's diagonal and a little

	float z = nearest;
	for (int step = 0; step < MAX_STEPS && z >= farthest; step++) {
		float d = DistanceAt(start + toViewer * z, active) - breadth;
		if (d < CLOSE)
			break;
		z -= d * STEP;
	}
	return z;
}

void Renderer::MarchTile(int tileX, int tileY)
{
	if (!GatherTile(tileX, tileY))
		return;
	float start = MarchFat(RayStart(tileX + TILE * .5f, tileY + TILE * .5f));
	if (start < farthest)
		return;
	for (int y = tileY; y < std::min(tileY + TILE, height); y++)
		for (int x = tileX; x < std::min(tileX + TILE, width); x++)
			MarchSample(x, y, start);
}

void Renderer::MarchSample(int x, int y, float from)
{
	Vec3 start = RayStart(x + .5f, y + .5f);
	float z;
	if (!March(start, from, HIT, z))
		return;
	Vec3 p                                               = start + toViewer * z;
	Sample& sample                                       = samples[(size_t)y * width + x];
	sample.hit                                           = true;
	sample.depth                                         = z;
	tileHit[(size_t)(y / TILE) * tilesAcross + x / TILE] = 1;

	// Only what is close can shape the surface here, and only what is around can darken it.
	close.clear();
	around.clear();
	for (int i : active) {
		const Shape& s = model.shapes[i];
		Vec3 off       = p - s.boundCentre;
		float reach    = s.boundRadius + 2 * s.blend + 8 * AO_STEP + 1;
		if (Dot(off, off) > reach * reach)
			continue;
		around.push_back(i);
		float nearReach = s.boundRadius + 2 * s.blend + 2;
		if (Dot(off, off) <= nearReach * nearReach)
			close.push_back(i);
	}
	Vec3 n          = NormalAt(p);
	sample.openness = OpennessAt(p, n);
	sample.normal   = {Dot(n, right), Dot(n, up), Dot(n, toViewer)};
	ColourSample(sample, {p, n});
}

// Central differences from the four corners of a tetrahedron.
Vec3 Renderer::NormalAt(Vec3 p) const
{
	const float e = NORMAL_REACH * .5774f;
	float a = DistanceAt(p + Vec3{e, -e, -e}, close), b = DistanceAt(p + Vec3{-e, -e, e}, close);
	float c = DistanceAt(p + Vec3{-e, e, -e}, close), d = DistanceAt(p + Vec3{e, e, e}, close);
	return Normalize({a - b - c + d, -a - b + c + d, -a + b - c + d});
}

float Renderer::OpennessAt(Vec3 p, Vec3 normal) const
{
	float blocked = 0, weight = 1;
	for (int k = 1; k <= 4; k++) {
		float reach = k * AO_STEP;
		blocked += (reach - DistanceAt(p + normal * reach, around)) * weight / reach;
		weight *= AO_FALL;
	}
	return Clamp01(1 - blocked * .42f * style.occlusion);
}

void Renderer::ColourSample(Sample& sample, const SurfacePoint& point)
{
	float d = 1e9f;
	for (int i : close) {
		const Shape& s = model.shapes[i];
		float share    = Join(d, DistanceTo(s, point.position), s.blend);
		// Narrow the blend, so that markings keep an edge of about one pixel.
		if (s.blend > 0)
			share = Smoothstep(.35f, .65f, share);
		if (share <= 0)
			continue;
		const Material& m = model.materials[s.material];
		sample.colour     = Mix(sample.colour, m.paint ? m.paint(point) : m.colour, share);
		sample.gloss      = Mix(sample.gloss, m.gloss, share);
		sample.glow       = Mix(sample.glow, m.glow, share);
		if (share > .5f)
			sample.eye = m.eye;
	}
}

Colour Renderer::ShadeSolid(const Sample& s, float diffuse) const
{
	Vec3 n     = s.normal;
	Colour c   = s.colour;
	float lit  = Smoothstep(style.shadowFrom, style.shadowTo, diffuse * (.45f + .55f * s.openness));
	Colour out = Mix(ShadowOf(c), c, lit);
	out        = Mix(out, HighlightOf(c), .85f * Smoothstep(.70f, 1.02f, diffuse));
	out        = out * Mix(.72f, 1.f, s.openness);
	out        = out + c * Colour{.30f, .34f, .16f} * (.45f * std::max(0.f, -n.y)); // bounce
	float toSky = Smoothstep(.05f, .8f, .8f * n.y - .45f * n.x);
	if (toSky > 0)
		out = Mix(out, {.93f, .96f, 1}, style.rim * std::pow(Clamp01(1 - n.z), 2.6f) * toSky);
	float spot = Clamp01(Dot(n, halfway));
	if (spot > .7f)
		out = out + Colour{1, .98f, .92f} * (std::pow(spot, 34.f) * s.gloss);
	return Mix(out, c, s.glow);
}

Colour Renderer::Shade(const Sample& s) const
{
	static const Vec3 SPARK = Normalize({-.45f, .55f, .70f}); // the highlight on every eye
	float diffuse           = Clamp01((Dot(s.normal, light) + .35f) / 1.35f);
	if (!s.eye)
		return ClampColour(ShadeSolid(s, diffuse));
	Colour out = s.colour * Mix(.82f, 1.f, Smoothstep(.1f, .5f, diffuse));
	return ClampColour(Mix(out, {1, 1, 1}, Smoothstep(.93f, .96f, Dot(s.normal, SPARK))));
}

Image Renderer::ShadeSamples() const
{
	Image out(width, height);
	for (size_t i = 0; i < samples.size(); i++) {
		if (!samples[i].hit)
			continue;
		Colour c = Shade(samples[i]);
		float* p = &out.data[i * 4];
		p[0]     = c.x;
		p[1]     = c.y;
		p[2]     = c.z;
		p[3]     = 1;
	}
	return out;
}

// Inner lines where a sample lies well behind a neighbour; an outline around the whole.
void Renderer::AddLines(Image& image) const
{
	int outer = std::max(1, (int)std::lround(style.outline * camera.supersample));
	int inner = std::max(1, (int)std::lround(INNER_REACH * camera.supersample));
	for (int y = 0; y < height; y++)
		for (int x = 0; x < width; x++) {
			const Sample& here = samples[(size_t)y * width + x];
			if (here.hit && !here.eye)
				InnerLine(here, x, y, inner, image.At(x, y));
			else if (!here.hit && NearHit(x, y, outer))
				Outline(x, y, outer, image.At(x, y));
		}
}

void Renderer::InnerLine(const Sample& here, int x, int y, int reach, float* p) const
{
	float step = 0;
	for (int j = -reach; j <= reach; j++)
		for (int i = -reach; i <= reach; i++) {
			if (i * i + j * j > reach * reach)
				continue;
			const Sample* s = SampleAt(x + i, y + j);
			if (s && s->hit)
				step = std::max(step, s->depth - here.depth);
		}
	float a = Smoothstep(style.innerDepth, style.innerDepth * 2.2f, step) * style.innerLine;
	if (a <= 0)
		return;
	Colour ink = InkOf(here.colour);
	p[0]       = Mix(p[0], ink.x, a);
	p[1]       = Mix(p[1], ink.y, a);
	p[2]       = Mix(p[2], ink.z, a);
}

// False when no tile within reach has a hit: spares the search over empty ground.
bool Renderer::NearHit(int x, int y, int reach) const
{
	int x0 = std::max(0, x - reach) / TILE, x1 = std::min(width - 1, x + reach) / TILE;
	int y0 = std::max(0, y - reach) / TILE, y1 = std::min(height - 1, y + reach) / TILE;
	for (int ty = y0; ty <= y1; ty++)
		for (int tx = x0; tx <= x1; tx++)
			if (tileHit[(size_t)ty * tilesAcross + tx])
				return true;
	return false;
}

void Renderer::Outline(int x, int y, int reach, float* p) const
{
	int best               = reach * reach + 1;
	const Sample* touching = nullptr;
	for (int j = -reach; j <= reach; j++)
		for (int i = -reach; i <= reach; i++) {
			int distance = i * i + j * j;
			if (distance >= best)
				continue;
			const Sample* s = SampleAt(x + i, y + j);
			if (s && s->hit) {
				best     = distance;
				touching = s;
			}
		}
	if (!touching)
		return;
	Colour ink = InkOf(touching->eye ? EYE_OUTLINE : touching->colour);
	p[0]       = ink.x;
	p[1]       = ink.y;
	p[2]       = ink.z;
	p[3]       = 1;
}
} // namespace

Image RenderModel(Model& model, const Camera& camera, const ShadeStyle& style)
{
	return Renderer(model, camera, style).Render();
}
