// Head-and-shoulders pictures for the side panel's window, their closed lids and the words below.
#include "art/animals/actions.h"
#include "art/animals/duck.h"
#include "art/animals/figure.h"
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
	{ 16, "Duck",     Duck,     3.3f, .25f },
	{ 17, "Duckling", Duckling, 4.3f, .25f },
	{ 35, "Monkey",   Monkey,   3.0f, .10f },
	{ 50, "Sheep",    Sheep,    2.7f, .25f },
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
