// Solid models: a list of signed distance shapes, joined in order by smooth union.
#pragma once

#include "art/core/vec.h"

#include <functional>
#include <vector>

// Where a painted material is asked for its colour, in model space.
struct SurfacePoint {
	Vec3 position, normal;
};

using Paint = std::function<Colour(const SurfacePoint&)>;

struct Material {
	Colour colour{.6f, .6f, .6f};
	float gloss = .10f;  // strength of the specular spot, 0..1
	float glow  = 0;     // 1: the colour is shown unshaded (lamps)
	bool eye    = false; // shaded flat, with a white highlight
	Paint paint;         // optional: replaces `colour`, for coats, wood and eyes
};

enum class ShapeKind { RoundCone, Ellipsoid, Box, Cylinder, Ring };

// One solid part. The builder functions of Model fill it in; set the extras on the reference that
// they return.
struct Shape {
	ShapeKind kind = ShapeKind::Ellipsoid;
	Vec3 a, b;            // centre, or the two ends of a round cone
	float r1 = 1, r2 = 1; // end radii; cylinder: radius, half height; ring: ring and tube radius
	Vec3 half{1, 1, 1};   // half sizes of ellipsoid and box
	Mat3 toLocal;         // model to local: the transpose of the axes given to the builder
	float blend    = 0;   // smooth union radius with everything before it
	float rounding = 0;   // box and cylinder: radius of the edges, inside the given size
	int material   = 0;

	// extras
	float bulge     = 0;    // cylinder: extra radius at half height (barrels)
	float bumps     = 0;    // height of noise on the surface, for rocks and dents
	float bumpScale = .2f;  // noise periods per unit
	float cutAbove  = 1e9f; // planes in model y, for domes, dishes and flat feet
	float cutBelow  = -1e9f;

	// worked out by Model::Prepare
	Vec3 axis, boundCentre;
	float axisLength2 = 0, radiusDrop = 0, slope2 = 0, boundRadius = 0;
};

// Signed distance, negative inside. Valid once the model is prepared.
float DistanceTo(const Shape& s, Vec3 p);

// Lengths are in model units: one final pixel at camera scale 1. `axes` turn local to model space.
// `blend` is the radius of the smooth union with all parts added before, 0 for a sharp joint.
struct Model {
	std::vector<Shape> shapes;
	std::vector<Material> materials;

	int Add(const Material& m);
	int Plain(Colour colour, float gloss = .10f);
	int Plain(uint32_t hex, float gloss = .10f);
	int Painted(Paint paint, float gloss = .10f);
	int Glowing(uint32_t hex, float glow);

	// The returned references last until the next part is added.
	Shape& RoundCone(Vec3 a, Vec3 b, float ra, float rb, int material, float blend);
	Shape& Ball(Vec3 centre, float r, int material, float blend);
	Shape& Ellipsoid(Vec3 centre, Vec3 half, const Mat3& axes, int material, float blend);
	Shape& Box(Vec3 centre, Vec3 half, const Mat3& axes, float rounding, int material, float blend);
	// The axis of cylinder and ring is local y.
	Shape& Cylinder(Vec3 centre, float r, float halfHeight, const Mat3& axes, float rounding,
	                int material, float blend);
	Shape& Ring(Vec3 centre, float r, float tube, const Mat3& axes, int material, float blend);
	// A curved tube through a cubic Bezier: necks, tails, trunks.
	void Tube(Vec3 p0, Vec3 p1, Vec3 p2, Vec3 p3, float r0, float r1, int pieces, int material,
	          float firstBlend, float blend = .6f);

	// Magnifies every shape about the origin; paints still see unscaled positions only if the
	// magnification is done by Camera::scale instead, which is what figures should use.
	void Scale(float factor);
	void Prepare();

private:
	Shape& Push(Shape& s, int material, float blend);
};
