// A species made ready for drawing: fitted to its true size, its pictures cropped alike.
#pragma once

#include "art/animals/pose.h"
#include "art/core/catalogue.h"
#include "art/core/renderer.h"

// Adds the parts of one figure in a pose to a model. Its feet stand on y = 0, its nose points to x.
using BuildFigure = std::function<void(Model& model, const View& view, const Pose& pose)>;

// A part of the plane in whole pixels from the foot point, y downward.
struct Window {
	int left = 0, top = 0, width = 0, height = 0;
	int Right() const { return left + width; }
	int Bottom() const { return top + height; }
};
// The same for the other facing.
Window Mirrored(const Window& window);

struct Species {
	std::string prefix; // of its picture files
	BuildFigure build;
	// True size of the standing picture in pixels, outline included: one of the two, the other 0.
	float width = 0, height = 0;
	float sideTurn  = 24; // degrees that the side view is turned to the viewer
	float elevation = SIDE_ELEVATION;
	float shadow    = .36f; // radius of the foot shadow, part of the figure's width; 0 for none
	Pose rest;              // what is measured
	// The standing picture, looking left, where the game relies on its size; of width 0: as it
	// comes out.
	Window canvas;
};

// Where the game puts a sequence's corner, from the corner of the standing picture. Both facings
// together tell the width, dy the height.
struct Shift {
	int leftX = 0, rightX = 0, y = 0;
	bool given = false; // not given: the middle of the lower edge on that of the standing picture
};

// The pictures of one action: prefix + word + side + number, or tail instead of the number.
struct Sequence {
	std::string word;
	Poses poses;
	std::string tail = "";
	bool numbered    = true;
	int first        = 0; // number of the first picture
	Shift shift      = {};
};

class Figure
{
public:
	explicit Figure(const Species& newSpecies);

	// What a window shows of a pose, its shadow included.
	Image Draw(const Pose& pose, const Window& window) const;
	// One pose on a canvas that just holds it.
	Image DrawAlone(const Pose& pose) const;
	// `zoom` times as large; without a shadow.
	Image DrawLarge(const Pose& pose, const Window& window, float zoom) const;
	// Where pictures of a sequence lie, for the facing to the left.
	Window WindowOf(const Sequence& sequence) const;
	// Both facings of a sequence.
	void AddTo(Sink& sink, const Sequence& sequence) const;

	Species species;
	float scale = 1; // pixels per model unit
	Window stand;    // of the standing picture that looks left

private:
	Image Render(const Pose& pose, const Window& window, float zoom, int supersample,
	             const ShadeStyle& style) const;
	Window Extent(const Pose& pose) const;
	float ShadowRadius(const View& view) const;
};

// One group for each sequence.
void AddSequences(Catalogue& catalogue, const char* source, Species (*species)(),
                  const std::vector<Sequence>& sequences);
