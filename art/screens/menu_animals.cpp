// The animals of the main menu: bodies on the land, and what stirs on them.
#include "art/screens/menu_animals.h"

#include "art/animals/beasts.h"
#include "art/animals/duck.h"
#include "art/animals/fliers.h"
#include "art/animals/hoppers.h"
#include "art/animals/monkey.h"
#include "art/animals/sheep.h"
#include "art/core/palette.h"
#include "art/families.h"
#include "art/screens/menu_poses.h"

namespace
{
enum class Share { Whole, Head, Tail };

// One sequence: the figure's foot point on the screen, and the rectangle that its pictures cover.
struct Idler {
	const char* word;
	Species (*species)();
	float zoom;
	bool left;
	int footX, footY;
	int x, y, width, height;
	Share share;
	Poses (*poses)();
	float shadow; // on the land, part of the figure's width; 0 for none
};
} // namespace

// clang-format off
static const Idler s_idlers[] = {
	// word        species   zoom  left   foot      place      size    share         poses             shadow
	{ "deerhead",  Deer,     1.25f, false, 272, 412, 272, 336,  46, 60, Share::Head,  DeerLooksRound,   .36f },
	{ "deertail",  Deer,     1.25f, false, 272, 412, 236, 362,  24, 26, Share::Tail,  DeerFlicks,       0 },
	{ "cowhead",   Cow,      1.30f, false, 179, 456, 178, 382,  60, 60, Share::Head,  CowChews,         .36f },
	{ "cowtail",   Cow,      1.30f, false, 179, 456, 128, 396,  30, 54, Share::Tail,  CowSwishes,       0 },
	{ "sheep",     Sheep,    1.55f, true,   94, 471,  52, 414,  76, 62, Share::Whole, SheepGrazes,      .36f },
	{ "mouse",     Mouse,    1.30f, false, 231, 474, 210, 446,  42, 32, Share::Whole, MouseSitsUp,      .36f },
	{ "monkey",    Monkey,   1.35f, false, 516, 473, 498, 430,  42, 46, Share::Whole, MonkeyScratches,  .36f },
	{ "squirrel",  Squirrel, 1.25f, true,  127, 304, 108, 268,  46, 38, Share::Whole, SquirrelPeeps,    0 },
	{ "bluebird",  BlueBird, 1.30f, true,  467,  97, 446,  64,  42, 35, Share::Whole, BluebirdRuffles,  0 },
	{ "duck",      Duck,     1.22f, false, 258, 526, 236, 494,  48, 38, Share::Whole, DuckDips,         0 },
	{ "ducklingA", Duckling, 1.15f, false, 217, 528, 204, 504,  29, 28, Share::Whole, DucklingBobs,     0 },
	{ "ducklingB", Duckling, 1.15f, false, 191, 530, 178, 506,  29, 28, Share::Whole, DucklingWags,     0 },
	{ "ducklingC", Duckling, 1.15f, false, 165, 528, 152, 504,  29, 28, Share::Whole, DucklingPeeps,    0 },
};
// clang-format on

// --- parts of a four-footed figure: torso and legs come first, then neck and head, then the tail

static Model BuiltIn(const Species& species, const Pose& pose)
{
	Model model;
	species.build(model, ViewOf(pose, species.sideTurn, species.elevation), pose);
	return model;
}

static bool SamePlace(const Shape& a, const Shape& b)
{
	return Length(a.a - b.a) + Length(a.b - b.b) < 1e-4f;
}

namespace
{
struct Parts {
	size_t head, tail; // number of shapes before the neck, and of those that are the tail
};
} // namespace

// The neck is where two figures with different heads begin to differ, the tail what differs at
// the end when it is lifted.
static Parts PartsOf(const Species& species)
{
	Pose nodding, lifting;
	nodding.headDown  = 1;
	lifting.tailRaise = lifting.tailSwing = 1;
	Model rest = BuiltIn(species, {}), nods = BuiltIn(species, nodding),
	      lifts  = BuiltIn(species, lifting);
	Parts parts  = {0, 0};
	size_t count = rest.shapes.size();
	while (parts.head < count && SamePlace(rest.shapes[parts.head], nods.shapes[parts.head]))
		parts.head++;
	while (parts.tail < count &&
	       !SamePlace(rest.shapes[count - 1 - parts.tail], lifts.shapes[count - 1 - parts.tail]))
		parts.tail++;
	return parts;
}

// The figure with its scale, but only some of its parts.
static Figure Reduced(const Figure& whole, bool head, bool tail)
{
	Figure reduced        = whole;
	Parts parts           = PartsOf(whole.species);
	BuildFigure build     = whole.species.build;
	reduced.species.build = [=](Model& model, const View& view, const Pose& pose) {
		build(model, view, pose);
		auto first = model.shapes.begin(), end = model.shapes.end();
		if (!tail)
			end = model.shapes.erase(end - (long)parts.tail, end);
		if (!head)
			model.shapes.erase(first + (long)parts.head, end - (tail ? (long)parts.tail : 0));
	};
	return reduced;
}

// What has to be laid over `body` to see `whole`.
static Image Overlay(const Image& whole, const Image& body)
{
	const float SEEN = .012f;
	Image out(whole.width, whole.height);
	for (int y = 0; y < out.height; y++)
		for (int x = 0; x < out.width; x++) {
			const float *a = whole.At(x, y), *b = body.At(x, y);
			float change = 0;
			for (int k = 0; k < 4; k++)
				change = std::max(change, std::fabs(a[k] - b[k]));
			if (change > SEEN)
				std::copy(a, a + 4, out.At(x, y));
		}
	return out;
}

static void DrawIdler(Sink& sink, const Idler& idler)
{
	Figure figure(idler.species());
	Window window = {idler.x - idler.footX, idler.y - idler.footY, idler.width, idler.height};
	bool whole    = idler.share == Share::Whole;
	if (!whole)
		figure = Reduced(figure, idler.share == Share::Head, idler.share == Share::Tail);
	Figure bare = whole ? figure : Reduced(Figure(idler.species()), false, false);
	std::vector<Image> frames;
	for (Pose pose : idler.poses()) {
		pose.left   = idler.left;
		Image image = figure.DrawLarge(pose, window, idler.zoom);
		if (!whole)
			image = Overlay(image, bare.DrawLarge(pose, window, idler.zoom));
		frames.push_back(image);
	}
	sink.AddFrames(std::string("mainmenu") + idler.word, frames);
}

void DrawMenuBodies(Image& scene)
{
	for (const Idler& idler : s_idlers) {
		if (idler.shadow <= 0)
			continue;
		Species species = idler.species();
		float reach     = species.width > 0 ? species.width : species.height * .8f;
		float rx        = reach * idler.zoom * idler.shadow;
		DrawContactShadow(scene, idler.footX + 3.f, idler.footY - 1.f, rx, rx * .28f, .42f);
		if (idler.share == Share::Whole)
			continue;
		const int ROOM = 90;
		Pose pose;
		pose.left    = idler.left;
		Figure body  = Reduced(Figure(species), false, false);
		Window field = {-ROOM, -ROOM - 20, 2 * ROOM, ROOM + 40};
		Compose(scene, body.DrawLarge(pose, field, idler.zoom), idler.footX + field.left,
		        idler.footY + field.top);
	}
}

void AddMenuAnimals(Catalogue& catalogue)
{
	for (const Idler& idler : s_idlers)
		catalogue.Add(std::string("menu/") + idler.word, __FILE__,
		              [&idler](Sink& sink) { DrawIdler(sink, idler); });
}
