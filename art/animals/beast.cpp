// The pictures that every four-footed species has.
#include "art/animals/beast.h"

#include "art/animals/actions.h"

static const int LOOK_FRAMES = 5;

Species BeastSpecies(const char* prefix, float width, Quadruped (*shape)())
{
	Species s;
	s.prefix = prefix;
	s.width  = width;
	s.build  = [shape](Model& model, const View& view, const Pose& pose) {
        AddQuadruped(model, shape(), view, pose);
	};
	return s;
}

static void DrawInBubble(Sink& sink, const Species& species)
{
	Figure figure(species);
	for (bool left : {true, false}) {
		Pose pose = Captured();
		pose.left = left;
		sink.Add(species.prefix + "bubble" + (left ? "left" : "right") + ".png",
		         figure.DrawAlone(pose));
	}
}

void AddInBubble(Catalogue& catalogue, const char* source, Species (*species)())
{
	catalogue.Add("animals " + species().prefix + " bubble", source,
	              [species](Sink& sink) { DrawInBubble(sink, species()); });
}

void AddBeast(Catalogue& catalogue, const char* source, Species (*species)(),
              const std::vector<Sequence>& sequences, bool blinks, const char* lookWord)
{
	std::vector<Sequence> all = {{"stand", {Pose()}, "", false}, {lookWord, Look(LOOK_FRAMES)}};
	if (blinks)
		all.push_back({"stand", {Blinking()}, "blink", false});
	all.insert(all.end(), sequences.begin(), sequences.end());
	AddSequences(catalogue, source, species, all);
	AddInBubble(catalogue, source, species);
}
