// Ray-marches a Model in parallel projection and shades it in the house style.
#pragma once

#include "art/core/image.h"
#include "art/core/model.h"

struct Camera {
	float yaw = 0, elevation = Radians(16); // radians
	float scale   = 1;                      // final pixels per model unit
	float originX = 0, originY = 0;         // where the model's origin falls, in final pixels
	int width = 64, height = 64;            // final pixels
	int supersample = 4;                    // 3 is enough above 60 pixels
	Mat3 bodyTurn;                          // turns the whole model about `pivot`: rolls, tumbles
	Vec3 pivot;
};

// A camera by size, origin and angles in degrees.
Camera ViewFrom(int width, int height, float originX, float originY, float yawDegrees,
                float elevationDegrees, int supersample = 4);

struct ShadeStyle {
	float outline    = 1.0f; // width in final pixels; 0 for none
	float innerLine  = .55f; // strength of lines inside the figure
	float innerDepth = 1.6f; // depth step that makes a line, in model units
	float sharpen    = .35f;
	float shadowFrom = .30f, shadowTo = .62f; // the two tones part here
	float rim       = .38f;
	float occlusion = .75f;
	Vec3 light{-.52f, .70f, .50f}; // right, up, to the viewer
};

// Two soft tones, warm highlight, cool shadow, ambient occlusion, bounce and rim light, inner lines
// at depth steps, an outline in a dark tint of the local colour. The model is prepared here.
Image RenderModel(Model& model, const Camera& camera, const ShadeStyle& style = {});
