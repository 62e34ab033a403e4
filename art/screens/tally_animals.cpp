// The species as they stand in the tally: the figures of the field, small enough for one box.
#include "art/animals/beasts.h"
#include "art/animals/crawlers.h"
#include "art/animals/duck.h"
#include "art/animals/fliers.h"
#include "art/animals/fowl.h"
#include "art/animals/hoppers.h"
#include "art/animals/monkey.h"
#include "art/animals/sheep.h"
#include "art/core/palette.h"
#include "art/families.h"

// Pixels: what a picture may measure at most, and how long the smallest are drawn.
static const float MOST_WIDE = 50, MOST_HIGH = 42, LEAST = 27;

// clang-format off
static Species (*const s_species[])() = {
	Alien, Bear, Bighorn, BlueBird, Camel, Cat, Chicken, Chipmunk, Cow, Coyote, Crow, Deer, Dog,
	Donkey, Duck, Duckling, Eagle, Elephant, Flamingo, Fox, Frog, Goat, Goose, Hare, Hippo, Horse,
	Hyena, Jackrabbit, Kangaroo, KangarooJoey, Koala, Lion, Lizard, Monkey, Moose, Mouse, Ostrich,
	Owl, Panda, Penguin, Pig, Pigeon, PolarBear, Rabbit, Raccoon, Rhino, Roadrunner, Seal, Sheep,
	Skunk, Snake, SnowTiger, SnowyOwl, Squirrel, Swan, Tiger, Tortoise, Turtle, Unicorn, Vulture,
	Walrus, Warthog, Wolf, Zebra,
};
// clang-format on

static Image Standing(const Figure& figure)
{
	const int AIR = 6;
	Pose pose     = figure.species.rest;
	pose.left     = true;
	float w = figure.stand.width, h = figure.stand.height;
	float zoom    = std::min({std::max(1.f, LEAST / std::max(w, h)), MOST_WIDE / w, MOST_HIGH / h});
	Window window = {(int)(figure.stand.left * zoom) - AIR, (int)(figure.stand.top * zoom) - AIR,
	                 (int)(w * zoom) + 2 * AIR, (int)(h * zoom) + 2 * AIR};
	Image drawn   = figure.DrawLarge(pose, window, zoom);
	Bounds seen   = OpaqueBounds(drawn, .3f);
	Image out(window.width, window.height);
	DrawFootShadow(out, (seen.left + seen.right) * .5f + 1, -window.top - .5f, seen.Width() * .36f,
	               PAINT_SHADOW_SAND, .3f);
	Compose(out, drawn, 0, 0);
	return Cropped(out, OpaqueBounds(out, .03f));
}

void AddTallyAnimals(Catalogue& catalogue)
{
	for (Species (*species)() : s_species)
		catalogue.Add("tally/animal " + species().prefix, __FILE__, [species](Sink& sink) {
			sink.Add("postlevel_animal_" + species().prefix + ".png", Standing(Figure(species())));
		});
}
