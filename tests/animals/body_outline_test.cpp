// The outlines that the ball meets lie on the animals as they are drawn.
#include "animals/animal_test_support.h"

#include "field/obstacle_grid.h"
#include "media/display.h"

#include <SDL.h>
#include <algorithm>
#include <cmath>

static const int SOLID              = 150;  // alpha; shadows are fainter
static const float FEW              = 6;    // pixels
static const float LEAST_OF_WIDTH   = .25f; // of the picture, that an outline covers
static const int HIGHEST_ABOVE_FEET = 18;   // pixels up to its lower edge

class BodyOutlineTest : public AnimalTest
{
protected:
	// Shows a standing animal of each species, each facing, with the picture that it stands in.
	typedef void (*Look)(const CElementAnimal* animal, SDL_Surface* picture);
	void ForEachStanding(Look look)
	{
		for (const SpeciesEntry& entry : AllSpecies()) {
			if (!HasPictures(*entry.table)) // without them none could be made
				ADD_FAILURE() << entry.table->prefix << " lacks pictures";
			else
				ShowBothFacings(entry, look);
		}
	}

private:
	static bool HasPictures(const SpeciesTable& table)
	{
		for (const std::string& file : AllPictureFiles(table)) {
			if (!g_display->HasImage(file))
				return false;
		}
		return true;
	}
	static void ShowBothFacings(const SpeciesEntry& entry, Look look)
	{
		for (bool left : {true, false}) {
			CElementAnimal* animal = entry.make(300, 250, left);
			SCOPED_TRACE(std::string(animal->table->prefix) + (left ? " left" : " right"));
			animal->facingLeft = left; // a duckling alone does not choose its side
			animal->RebuildBody();
			ASSERT_FALSE(animal->bodyPoints.empty());
			int image = g_display->LoadImage(StandingFile(*animal->table, left));
			look(animal, g_display->ImageSurface(image));
			g_display->ReleaseImage(image);
			ClearField();
		}
	}
	static std::string StandingFile(const SpeciesTable& table, bool left)
	{
		if (table.actions.empty())
			return PictureFiles(table.prefix, table.pictures[0].name, left,
			                    table.pictures[0].frames)[0];
		return PictureFiles(table.prefix, WordOf(table.actions[0]).c_str(), left,
		                    table.actions[0].frames)[0];
	}
};

static bool IsSolid(const SDL_Surface* picture, int x, int y)
{
	if (x < 0 || y < 0 || x >= picture->w || y >= picture->h)
		return false;
	const Uint8* line = static_cast<const Uint8*>(picture->pixels) + y * picture->pitch;
	Uint8 red, green, blue, alpha;
	SDL_GetRGBA(reinterpret_cast<const Uint32*>(line)[x], picture->format, &red, &green, &blue,
	            &alpha);
	return alpha >= SOLID;
}

static float DistanceTo(const SDL_Surface* picture, float x, float y)
{
	float nearest = 1000;
	for (int py = 0; py < picture->h; py++)
		for (int px = 0; px < picture->w; px++)
			if (IsSolid(picture, px, py))
				nearest = std::min(
				    nearest, PointDistance(static_cast<float>(px), static_cast<float>(py), x, y));
	return nearest;
}

// The lowest row with something solid in it.
static int FeetOf(const SDL_Surface* picture)
{
	for (int y = picture->h - 1; y > 0; y--)
		for (int x = 0; x < picture->w; x++)
			if (IsSolid(picture, x, y))
				return y;
	return 0;
}

TEST_F(BodyOutlineTest, EachPointLiesOnTheAnimalAsItStands)
{
	ForEachStanding([](const CElementAnimal* animal, SDL_Surface* picture) {
		for (size_t i = 0; i < animal->bodyPoints.size(); i++)
			EXPECT_LE(DistanceTo(picture, animal->bodyOffsetX[i], animal->bodyOffsetY[i]), FEW)
			    << "point " << i;
	});
}

// The ball is a globe: it meets an animal low down, and over most of its length.
TEST_F(BodyOutlineTest, TheOutlineRunsRoundTheLowerHalf)
{
	ForEachStanding([](const CElementAnimal* animal, SDL_Surface* picture) {
		auto [left, right] =
		    std::minmax_element(animal->bodyOffsetX.begin(), animal->bodyOffsetX.end());
		auto [top, bottom] =
		    std::minmax_element(animal->bodyOffsetY.begin(), animal->bodyOffsetY.end());
		int feet = FeetOf(picture);
		EXPECT_GT(*right - *left, LEAST_OF_WIDTH * static_cast<float>(picture->w));
		EXPECT_LE(*bottom, feet + 1);
		EXPECT_GE(*bottom, feet - HIGHEST_ABOVE_FEET);
		EXPECT_GT(*bottom - *top, 3) << "a line would let the ball sit inside";
	});
}

// Seen from its middle the points go round once, so that no part of the ring crosses another.
TEST_F(BodyOutlineTest, TheOutlineGoesRoundOnce)
{
	ForEachStanding([](const CElementAnimal* animal, SDL_Surface*) {
		size_t count  = animal->bodyPoints.size();
		float middleX = 0, middleY = 0;
		for (size_t i = 0; i < count; i++) {
			middleX += animal->bodyOffsetX[i] / static_cast<float>(count);
			middleY += animal->bodyOffsetY[i] / static_cast<float>(count);
		}
		float turned = 0;
		for (size_t i = 0; i < count; i++) {
			size_t next = (i + 1) % count;
			float ax = animal->bodyOffsetX[i] - middleX, ay = animal->bodyOffsetY[i] - middleY;
			float bx = animal->bodyOffsetX[next] - middleX,
			      by = animal->bodyOffsetY[next] - middleY;
			turned += std::fabs(std::atan2(ax * by - ay * bx, ax * bx + ay * by));
		}
		EXPECT_NEAR(6.2832f, turned, 0.01f);
	});
}
