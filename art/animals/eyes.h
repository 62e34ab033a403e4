// A pair of eyes with pupils, lids and a gaze.
#pragma once

#include "art/animals/pose.h"
#include "art/core/model.h"

// Where the head is, and how it is turned: x forward, y up, z aside.
struct HeadFrame {
	Vec3 centre;
	Mat3 axes;
	Vec3 Point(float x, float y, float z) const { return centre + axes * Vec3{x, y, z}; }
	Vec3 Along(float x, float y, float z) const { return axes * Vec3{x, y, z}; }
};

struct Eye {
	float radius  = 2.2f;
	float forward = .72f, up = .30f, aside = .46f; // place, in head radii
	float pupil     = .68f;                        // cosine of the pupil's cone
	uint32_t iris   = 0;                           // 0: none, the pupil is dark
	float bulge     = 0;                           // socket ball under the eye, in head radii
	float lookAside = .34f;                        // how far the eyes part
};

// headHalf: half sizes of the skull. `lidColour` is that of the face around the eye, `socket` the
// material of the bulge.
void AddEyes(Model& model, const HeadFrame& frame, Vec3 headHalf, const Eye& eye, Colour lidColour,
             int socket, const View& view, const Pose& pose);
