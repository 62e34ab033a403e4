// The three butterflies of the game.
#include "art/animals/butterfly.h"
#include "art/animals/figure.h"
#include "art/families.h"

static const Window CANVAS   = {-15, -20, 28, 30};
static const float ELEVATION = 58; // degrees: seen from above, or spread wings are lines

// clang-format off
static const Butterfly KINDS[] = {
	// wing     inner     edge      dot       spot      body       rim   spot
	{ 0xf5842a, 0xffc24e, 0x3a1e1c, 0xfff6e0, 0xffe8a0, 0x3a2426, .58f, .18f }, // A
	{ 0x3f8cf4, 0x8ad8ff, 0x1a2260, 0xe8f6ff, 0xd8fbff, 0x262a54, .74f, .30f }, // B
	{ 0xf25aa6, 0xffb0d0, 0x7a1c70, 0xfff0b0, 0xffe95a, 0x4a2450, .70f, .34f }, // C
};
// clang-format on

static void BuildA(Model& model, const View&, const Pose& pose)
{
	AddButterfly(model, KINDS[0], pose);
}
static void BuildB(Model& model, const View&, const Pose& pose)
{
	AddButterfly(model, KINDS[1], pose);
}
static void BuildC(Model& model, const View&, const Pose& pose)
{
	AddButterfly(model, KINDS[2], pose);
}

// Picture 0 is also that of a sitting butterfly and of one in the bubble. 1 and 2 raise the wings
// from there, 3 to 5 lower them.
static Poses Flutter(Heading heading)
{
	const float FLAP[] = {.10f, .45f, .75f, -.15f, -.35f, -.52f};
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		list[i].heading = heading;
		list[i].flying  = true;
		list[i].flap    = FLAP[i];
	}
	return list;
}

static Species ButterflySpecies(int kind)
{
	const BuildFigure BUILD[] = {BuildA, BuildB, BuildC};
	Species s;
	s.prefix    = std::string("butterfly") + (char)('A' + kind);
	s.build     = BUILD[kind];
	s.width     = 24;
	s.canvas    = CANVAS;
	s.elevation = ELEVATION;
	s.shadow    = 0;
	s.rest      = Flutter(Heading::Up)[0];
	return s;
}

static void DrawButterfly(Sink& sink, int kind)
{
	Figure figure(ButterflySpecies(kind));
	const Shift SAME = {0, 0, 0, true};
	figure.AddTo(sink, {"up", Flutter(Heading::Up), "", true, 0, SAME});
	figure.AddTo(sink, {"down", Flutter(Heading::Down), "", true, 0, SAME});
}

void AddButterflies(Catalogue& catalogue)
{
	for (int kind = 0; kind < 3; kind++)
		catalogue.Add("animals butterfly " + std::to_string(kind), __FILE__,
		              [kind](Sink& sink) { DrawButterfly(sink, kind); });
}
