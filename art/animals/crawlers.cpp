// What creepers have in common: their views in the bubble.
#include "art/animals/crawlers.h"

static void DrawViews(Sink& sink, const Species& species, Pose pose)
{
	Figure figure(species);
	for (bool left : {true, false}) {
		pose.left = left;
		sink.Add(species.prefix + "bubble" + (left ? "left" : "right") + ".png",
		         figure.DrawAlone(pose));
	}
}

void AddBubbleViews(Catalogue& catalogue, const char* source, Species (*species)(),
                    const Pose& pose)
{
	catalogue.Add("animals " + species().prefix + " bubble", source,
	              [=](Sink& sink) { DrawViews(sink, species(), pose); });
}
