// The growth of each country.
#include "art/screens/map/flora.h"

// clang-format off
static const Flora s_flora[(int)Land::Count] = {
	{ { Growth::Leafy, Growth::Leafy, Growth::Bush }, .75f },                      // Meadow
	{ { Growth::Bamboo }, 1 },                                                     // Bamboo
	{ { Growth::Palm, Growth::Palm, Growth::Boulder }, .7f },                      // Cove
	{ { Growth::Leafy, Growth::Leafy, Growth::Pine, Growth::Bush }, .7f },         // Farm
	{ { Growth::Pine, Growth::Pine, Growth::Leafy }, 1 },                          // Woods
	{ { Growth::SnowPine }, .6f },                                                 // Snow
	{ { Growth::Autumn, Growth::Autumn, Growth::Pine, Growth::Boulder }, .9f },    // HighWoods
	{ { Growth::Bush, Growth::Boulder, Growth::Autumn }, .5f },                    // Dry
	{ { Growth::Cactus, Growth::Palm, Growth::Boulder }, .5f },                    // Sand
	{ { Growth::Leafy, Growth::Pine, Growth::Reeds, Growth::Bush }, .8f },         // Lakes
	{ { Growth::Crystal, Growth::SnowPine, Growth::SnowPine }, .7f },              // Heights
	{ { Growth::Acacia, Growth::Acacia, Growth::Bush, Growth::Boulder }, .5f },    // Savanna
	{ { Growth::Salt }, .45f },                                                    // Salt
	{ { Growth::Giant, Growth::Giant, Growth::Giant, Growth::Palm }, 1 },          // Jungle
	{ { Growth::Spire }, .4f },                                                    // Polar
	{ { Growth::Cactus, Growth::Cactus, Growth::Boulder, Growth::Palm }, .4f },    // Dunes
	{ { Growth::Mushroom, Growth::Blossom }, .7f },                                // Dream
};
// clang-format on

const Flora& FloraOf(Land land)
{
	return s_flora[(int)land];
}
