// Head-and-shoulders pictures for the side panel's window, their closed lids and the words below.
#include "art/animals/actions.h"
#include "art/animals/beasts.h"
#include "art/animals/crawlers.h"
#include "art/animals/duck.h"
#include "art/animals/figure.h"
#include "art/animals/fliers.h"
#include "art/animals/fowl.h"
#include "art/animals/hoppers.h"
#include "art/animals/monkey.h"
#include "art/animals/sheep.h"
#include "art/families.h"
#include "art/screens/panel_words.h"

// As wide as the window. The foot of the picture hangs below it, behind the plate with the name,
// so that nothing shows where the figure is cut while it bobs.
static const int WIDTH = 90, HEIGHT = 72;
static const Window ROOM = {-150, -250, 300, 280}; // drawn in, before the picture is cut out
static const int EYES_X = 36, EYES_Y = 35;         // place of their middle in every portrait
static const float LID_DIFFERENCE = .03f; // of a channel, where shut eyes differ from open ones

namespace
{
struct Portrait {
	int number;
	const char* word;
	Species (*species)();
	float zoom, look;
};
} // namespace

// clang-format off
static const Portrait PORTRAITS[] = {
	// number, word, species, zoom, look
	{  0, "Alien",     Alien,      2.2f, 0 },
	{  1, "Bear",       Bear,       1.95f, .2f },
	{  3, "Bighorn",    Bighorn,    2.0f, .25f },
	{  4, "Bluebird",   BlueBird,   4.2f, .55f },
	{  5, "Robot",     Bot,        1.7f, .25f },
	{  6, "Camel",      Camel,      2.1f, .25f },
	{  7, "Cat",        Cat,        3.3f, .25f },
	{  8, "Chicken",    Chicken,    3.1f, .25f },
	{  9, "Chipmunk",   Chipmunk,   3.2f, .25f },
	{ 10, "Cow",        Cow,        1.85f, .25f },
	{ 11, "Coyote",     Coyote,     2.1f, .25f },
	{ 12, "Crow",       Crow,       4.0f, .55f },
	{ 13, "Deer",       Deer,       1.8f, .25f },
	{ 14, "Dog",        Dog,        3.25f, .25f },
	{ 15, "Donkey",     Donkey,     1.9f, .25f },
	{ 16, "Duck",       Duck,       3.3f, .25f },
	{ 17, "Duckling",   Duckling,   4.3f, .25f },
	{ 18, "Eagle",      Eagle,      2.9f, .5f },
	{ 19, "Elephant",   Elephant,   1.04f, .25f },
	{ 20, "Flamingo",   Flamingo,   3.3f, .25f },
	{ 21, "Fox",        Fox,        2.9f, .25f },
	{ 22, "Frog",       Frog,       3.0f, .25f },
	{ 23, "Goat",       Goat,       2.1f, .25f },
	{ 24, "Goose",      Goose,      3.0f, .25f },
	{ 25, "Hare",       Hare,       2.35f, .25f },
	{ 26, "Hippo",      Hippo,      1.75f, .25f },
	{ 27, "Horse",      Horse,      2.0f, .25f },
	{ 28, "Hyena",      Hyena,      2.11f, .25f },
	{ 29, "Jackrabbit", Jackrabbit, 1.9f, .25f },
	{ 30, "Joey",       KangarooJoey, 2.9f, .25f },
	{ 31, "Kangaroo",   Kangaroo,   1.95f, .25f },
	{ 32, "Koala",      Koala,      2.9f, .2f },
	{ 33, "Lion",       Lion,       1.35f, .2f },
	{ 34, "Lizard",    Lizard,     2.9f, .3f },
	{ 35, "Monkey",     Monkey,     3.0f, .1f },
	{ 36, "Moose",      Moose,      1.45f, .25f },
	{ 37, "Mouse",      Mouse,      4.1f, .25f },
	{ 38, "Ostrich",    Ostrich,    2.6f, .25f },
	{ 39, "Owl",        Owl,        3.2f, .1f },
	{ 40, "Panda",      Panda,      1.9f, .2f },
	{ 41, "Penguin",    Penguin,    2.9f, .25f },
	{ 42, "Pig",        Pig,        2.15f, .25f },
	{ 43, "Pigeon",     Pigeon,     4.2f, .55f },
	{ 44, "Polar Bear", PolarBear,  2.0f, .25f },
	{ 45, "Rabbit",     Rabbit,     2.5f, .25f },
	{ 46, "Raccoon",    Raccoon,    2.85f, .25f },
	{ 47, "Rhino",      Rhino,      1.8f, .25f },
	{ 48, "Roadrunner", Roadrunner, 3.5f, .5f },
	{ 49, "Seal",      Seal,       2.5f, .3f },
	{ 50, "Sheep",      Sheep,      2.7f, .25f },
	{ 51, "Skunk",      Skunk,      2.8f, .25f },
	{ 52, "Snake",     Snake,      3.1f, .3f },
	{ 53, "Snow Tiger", SnowTiger,  1.6f, .2f },
	{ 54, "Snowy Owl",  SnowyOwl,   3.1f, .1f },
	{ 55, "Squirrel",   Squirrel,   3.4f, .2f },
	{ 56, "Swan",       Swan,       3.0f, .25f },
	{ 57, "Tiger",      Tiger,      1.6f, .2f },
	{ 58, "Tortoise",  Tortoise,   2.5f, .3f },
	{ 59, "Turtle",    Turtle,     4.4f, .3f },
	{ 60, "Vulture",    Vulture,    3.4f, .45f },
	{ 61, "Walrus",    Walrus,     2.0f, .3f },
	{ 62, "Warthog",    Warthog,    2.1f, .25f },
	{ 63, "Wolf",       Wolf,       2.0f, .25f },
	{ 64, "Zebra",      Zebra,      2.0f, .25f },
	{ 65, "Unicorn",    Unicorn,    1.65f, .25f },
};
// clang-format on

// The picture of shut eyes without all that it has in common with the open ones.
static Image LidsOnly(const Image& open, const Image& shut)
{
	Image lids(open.width, open.height);
	for (int y = 0; y < open.height; y++)
		for (int x = 0; x < open.width; x++) {
			const float *a = open.At(x, y), *b = shut.At(x, y);
			float difference = 0;
			for (int c = 0; c < 4; c++)
				difference = std::max(difference, std::fabs(a[c] - b[c]));
			if (difference > LID_DIFFERENCE)
				std::copy(b, b + 4, lids.At(x, y));
		}
	return lids;
}

static void DrawPortrait(Sink& sink, const Portrait& portrait)
{
	Figure figure(portrait.species());
	Pose pose;
	pose.look  = portrait.look;
	Image open = figure.DrawLarge(pose, ROOM, portrait.zoom);
	pose.lid   = 1;
	Image lids = LidsOnly(open, figure.DrawLarge(pose, ROOM, portrait.zoom));

	Bounds eyes = OpaqueBounds(lids);
	int left = (eyes.left + eyes.right) / 2 - EYES_X, top = (eyes.top + eyes.bottom) / 2 - EYES_Y;
	std::string stem = "sidebarportrait" + std::to_string(portrait.number);
	sink.Add(stem + ".png", Cropped(open, left, top, WIDTH, HEIGHT));
	sink.Add(stem + "eyes.png", Cropped(lids, left, top, WIDTH, HEIGHT));
	sink.Add(stem + "name.png", PanelWord(portrait.word));
}

// A bowl of straws, laid round in layers.
static void AddNest(Model& model)
{
	const int STRAWS = 64;
	int tones[]      = {model.Plain(0xd9a74a), model.Plain(0xc08a38), model.Plain(0xe8c070),
	                    model.Plain(0xa87430)};
	for (int i = 0; i < STRAWS; i++) {
		float a = i * 2.39996f, layer = i / (float)STRAWS, radius = 20 + 9 * layer;
		float y   = 2 + 9 * layer + 2.2f * Hash01(i, 1, 7);
		float to  = a + .55f + .35f * Hash01(i, 2, 7);
		Vec3 from = {std::cos(a) * radius, y, std::sin(a) * radius};
		Vec3 end  = {std::cos(to) * (radius + 2), y + 3 * (Hash01(i, 3, 7) - .3f),
		             std::sin(to) * (radius + 2)};
		model.RoundCone(from, end, 1.9f, 1.1f, tones[i % 4], .3f);
	}
	model.Ellipsoid({0, 3, 0}, {23, 7, 23}, Mat3(), tones[3], 1);
}

static void DrawEgg(Sink& sink)
{
	Model model;
	AddNest(model);
	int shell = model.Painted(
	    [](const SurfacePoint& at) {
		    float freckle = LayeredNoise(at.position * .32f + Vec3{3, 8, 1}, 2);
		    return Mix(HexColour(0xfff3dc), HexColour(0xd8ae84), Smoothstep(.66f, .72f, freckle));
	    },
	    .6f);
	Mat3 lean = TurnZ(.14f);
	model.RoundCone({0, 21, 0}, lean * Vec3{2, 33, 0}, 15.5f, 10.5f, shell, 0);
	Camera camera = ViewFrom(WIDTH, HEIGHT, WIDTH * .5f, HEIGHT - 10, 0, 18, 3);
	ShadeStyle style;
	style.outline = 1.7f;
	sink.Add("sidebarportrait2.png", RenderModel(model, camera, style));
	sink.Add("sidebarportrait2name.png", PanelWord("Egg"));
}

void AddPortraits(Catalogue& catalogue)
{
	for (const Portrait& portrait : PORTRAITS)
		catalogue.Add("animals portrait " + std::to_string(portrait.number), __FILE__,
		              [portrait](Sink& sink) { DrawPortrait(sink, portrait); });
	catalogue.Add("animals portrait 2", __FILE__, DrawEgg);
}
