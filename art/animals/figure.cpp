// Measures species, renders their poses and crops sequences.
#include "art/animals/figure.h"

#include "art/core/palette.h"

static const int SUPERSAMPLE       = 4;
static const int BROAD_SUPERSAMPLE = 3;  // enough for figures wider than this
static const float BROAD           = 58; // pixels
static const int MEASURE_SAMPLES   = 2;
static const int ROOM              = 3;     // canvas that is measured on, in sizes of the figure
static const float SEEN            = .04f;  // alpha of the faintest pixel that a crop keeps
static const int MARGIN            = 1;     // pixels free all round
static const int SLACK             = 1;     // pixels more, since measuring is coarser than drawing
static const float SHADOW_X        = 2;     // pixels that the shadow lies to the right
static const float SHADOW_SEEN     = 1.15f; // part of its radius up to which it can be seen
static const float SHADOW_FLATNESS = .26f;
static const float SHADOW_STRENGTH = .34f;
static const float SHADOW_HEIGHT   = 36;   // figures this high off the ground cast none
static const float LARGE           = 1.7f; // zoom from which outlines are wider
static const float LARGE_OUTLINE   = 1.7f; // pixels
static const float INNER_DEPTH     = 1.6f; // pixels of depth that make a line

static bool IsAirborne(const Species& species)
{
	return species.shadow <= 0;
}

Window Mirrored(const Window& window)
{
	return {-window.Right(), window.top, window.width, window.height};
}

static Window Union(const Window& a, const Window& b)
{
	Window u = {std::min(a.left, b.left), std::min(a.top, b.top), 0, 0};
	u.width  = std::max(a.Right(), b.Right()) - u.left;
	u.height = std::max(a.Bottom(), b.Bottom()) - u.top;
	return u;
}

static Window Around(const Bounds& bounds, const Window& canvas, int margin)
{
	return {canvas.left + bounds.left - margin, canvas.top + bounds.top - margin,
	        bounds.Width() + 2 * margin, bounds.Height() + 2 * margin};
}

static Window Roomy(float size)
{
	int half = (int)(size * ROOM * .5f) + 8;
	return {-half, -half - half / 2, 2 * half, 2 * half + half / 4};
}

Figure::Figure(const Species& newSpecies) : species(newSpecies)
{
	ShadeStyle bare;
	bare.outline = bare.sharpen = 0;
	Window room                 = Roomy(96);
	Image measure               = Render(species.rest, room, 1, MEASURE_SAMPLES, bare);
	Bounds b                    = OpaqueBounds(measure);
	scale = species.width > 0 ? (species.width - 2) / b.Width() : (species.height - 2) / b.Height();
	stand = species.canvas.width > 0 ? species.canvas : Extent(species.rest);
}

Image Figure::Render(const Pose& pose, const Window& window, float zoom, int supersample,
                     const ShadeStyle& style) const
{
	View view = ViewOf(pose, species.sideTurn, species.elevation);
	Model model;
	species.build(model, view, pose);
	Camera camera;
	camera.yaw         = view.yaw;
	camera.elevation   = view.elevation;
	camera.scale       = scale * zoom;
	camera.supersample = supersample;
	camera.width       = window.width;
	camera.height      = window.height;
	camera.originX     = (float)-window.left;
	camera.originY     = -window.top - pose.lift * camera.scale * std::cos(view.elevation);
	camera.bodyTurn    = TurnZ(pose.pitch) * TurnX(pose.sway);
	bool aboutFeet     = pose.sway != 0 || IsAirborne(species);
	float size         = std::max(species.width, species.height) / scale;
	camera.pivot       = {0, aboutFeet ? 0 : size * .28f, 0};
	return RenderModel(model, camera, style);
}

float Figure::ShadowRadius(const View& view) const
{
	float width = species.width > 0 ? species.width : species.height * .7f;
	return width * species.shadow * (.72f + .28f * std::fabs(std::cos(view.yaw)));
}

Image Figure::Draw(const Pose& pose, const Window& window) const
{
	ShadeStyle style;
	style.innerDepth = INNER_DEPTH * std::max(1.f, .8f / scale);
	bool broad       = species.width > BROAD;
	Image figure     = Render(pose, window, 1, broad ? BROAD_SUPERSAMPLE : SUPERSAMPLE, style);
	if (!pose.shadow || IsAirborne(species))
		return figure;
	Image out(window.width, window.height);
	float radius   = ShadowRadius(ViewOf(pose, species.sideTurn));
	float strength = SHADOW_STRENGTH * Clamp01(1 - pose.rise * scale / SHADOW_HEIGHT);
	DrawFootShadow(out, SHADOW_X - window.left, .5f - window.top, radius, PAINT_SHADOW, strength);
	Compose(out, figure, 0, 0);
	return out;
}

Image Figure::DrawLarge(const Pose& pose, const Window& window, float zoom) const
{
	ShadeStyle style;
	style.outline    = zoom > LARGE ? LARGE_OUTLINE : 1;
	style.innerDepth = INNER_DEPTH * .6f;
	return Render(pose, window, zoom, SUPERSAMPLE, style);
}

// What a pose covers in either facing, laid out as if it looked left. Figures of the two facings
// are mirror images; shadows are not.
Window Figure::Extent(const Pose& pose) const
{
	Window room = Roomy(std::max(species.width, species.height));
	Pose faced  = pose;
	faced.left  = true;
	Image image = Render(faced, room, 1, MEASURE_SAMPLES, {});
	Window seen = Around(OpaqueBounds(image, SEEN), room, MARGIN);
	if (!pose.shadow || IsAirborne(species))
		return seen;
	float reach = ShadowRadius(ViewOf(faced, species.sideTurn)) * SHADOW_SEEN;
	int wide = (int)std::ceil(reach + SHADOW_X), down = (int)std::ceil(reach * SHADOW_FLATNESS) + 1;
	return Union(seen, {-wide, -down, 2 * wide, 2 * down});
}

Window Figure::WindowOf(const Sequence& sequence) const
{
	const Shift& shift = sequence.shift;
	if (shift.given)
		return {stand.left + shift.leftX, stand.top + shift.y,
		        stand.width - shift.leftX - shift.rightX, stand.height - shift.y};
	Window covered;
	for (size_t i = 0; i < sequence.poses.size(); i++) {
		Window extent = Extent(sequence.poses[i]);
		covered       = i ? Union(covered, extent) : extent;
	}
	bool moves = sequence.poses.size() > 1;
	if (moves)
		covered.top -= SLACK;
	// The game centres it on the standing picture, so both sides grow alike.
	int grow = std::max(stand.left - covered.left, covered.Right() - stand.Right()) + SLACK * moves;
	Window window = {stand.left - grow, covered.top, stand.width + 2 * grow, 0};
	window.height = stand.Bottom() - window.top;
	return window;
}

Image Figure::DrawAlone(const Pose& pose) const
{
	Window window = Extent(pose);
	window        = {window.left - SLACK, window.top - SLACK, window.width + 2 * SLACK,
	                 window.height + 2 * SLACK};
	if (!pose.left)
		window = Mirrored(window);
	Image image = Draw(pose, window);
	Bounds seen = OpaqueBounds(image, SEEN);
	return Draw(pose, Around(seen, window, MARGIN));
}

void Figure::AddTo(Sink& sink, const Sequence& sequence) const
{
	Window window = WindowOf(sequence);
	for (bool left : {true, false}) {
		std::string stem = species.prefix + sequence.word + (left ? "left" : "right");
		for (size_t i = 0; i < sequence.poses.size(); i++) {
			Pose pose   = sequence.poses[i];
			pose.left   = left;
			Image image = Draw(pose, left ? window : Mirrored(window));
			std::string end =
			    sequence.numbered ? std::to_string(sequence.first + (int)i) : sequence.tail;
			sink.Add(stem + end + ".png", image);
		}
	}
}

void AddSequences(Catalogue& catalogue, const char* source, Species (*species)(),
                  const std::vector<Sequence>& sequences)
{
	std::string family = "animals " + species().prefix;
	for (const Sequence& sequence : sequences)
		catalogue.Add(family + " " + sequence.word + sequence.tail, source,
		              [=](Sink& sink) { Figure(species()).AddTo(sink, sequence); });
}
