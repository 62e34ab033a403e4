// What an action asks of a figure, and how the figure stands to the camera.
#pragma once

#include "art/core/vec.h"

#include <vector>

// Across the field, toward the viewer, away, or straight away with the back to the viewer.
enum class Heading { Side, Down, Up, Back };

// One pose for all rigs: a rig uses the fields that mean something to it and ignores the rest.
// Lengths are in model units, angles in radians, all others are parts of a full gesture.
struct Pose {
	bool left       = true;
	Heading heading = Heading::Side;
	float turnAway  = 0;    // degrees that the whole figure is turned from the viewer
	float seenAbove = 0;    // degrees that it is seen from higher up than figures on the ground
	bool shadow     = true; // stands on the ground and darkens it

	// head
	float look      = 0; // 1: turned 46 degrees more to the viewer; negative: away
	float lid       = 0; // 1 closed
	float wideEyes  = 0; // surprised; .4 is much
	float headDown  = 0; // 1: mouth at the ground
	float headTip   = 0; // angle, nose up
	float headRoll  = 0; // angle, toward the shoulder on the viewer's side
	float headLevel = 0; // 1: the head doesn't follow the body's pitch
	float neckReach = 0; // 1: stretched up and forward, negative: drawn in
	float mouth     = 0; // 1 open
	float chew      = 0; // -1..1, muzzle aside
	float earSwing  = 0; // ears out and back
	float frown     = 0; // brows drawn together

	// body and limbs
	float stride     = -1; // phase of a walk, 0..1; negative: stands
	float strideSize = 1;
	float squash     = 0;  // length that the body is pressed down
	float rise       = 0;  // length that the whole figure is off the ground
	float rear       = 0;  // 1: upright on the hind legs
	float kick       = 0;  // 1: hind legs thrown up
	float tuck       = 0;  // 1: legs drawn up, as in a bubble
	float lie        = 0;  // 1: lies down
	float limbsUp    = 0;  // 1: arms and legs flung up, as in a fall
	float raisePaw   = 0;  // near fore paw, or one leg of a wader
	float fit        = 0;  // phase of a tantrum, above 0
	float armsUp     = 0;  // arms, or wings lifted on the ground
	float climb      = -1; // phase of climbing; negative: doesn't climb
	float hop        = -1; // phase of a hop, 0 crouched, 7/8 landed; negative: doesn't hop
	float breath     = 0;  // throat swollen
	float tailSwing  = 0;
	float tailRaise  = 0;

	// wings
	bool flying   = false;
	float flap    = 0; // 1 up, -1 down
	float flapTip = 0; // the outer wing, which lags behind
	float fold    = 0; // 1: the outer wing drawn back, as on the upstroke
	float legDrop = 0; // 1: legs let down for landing
	float ruffle  = 0; // feathers puffed up

	// the whole figure
	float pitch = 0; // angle, nose up
	float sway  = 0; // angle, leaning to its side
	float lift  = 0; // length that it is raised when all turns are done
};
using Poses = std::vector<Pose>;

const float SIDE_ELEVATION = 16; // degrees that animals are seen from above

struct View {
	bool left       = true;
	float yaw       = 0; // radians
	float elevation = Radians(SIDE_ELEVATION);

	// Sign of z on the viewer's side.
	float NearSide() const { return left ? -1.f : 1.f; }
	// Sign of a turn about y that brings the nose to the viewer.
	float TowardViewer() const { return left ? 1.f : -1.f; }
	// Where eyes look that look out of the picture: at the viewer, a little ahead and up.
	Vec3 Gaze() const;
};

// sideTurn: degrees that a side view is turned to the viewer.
View ViewOf(const Pose& pose, float sideTurn, float elevation = SIDE_ELEVATION);
