// The picture behind a level, its moving sky and sea, and the weather.
#pragma once

#include "field/element.h"

#include <string>

class CSound;

enum Ground { GROUND_GRASS, GROUND_SAND, GROUND_SNOW, GROUND_SNOWY_GRASS };
enum Sky {
	SKY_BLUE,
	SKY_LIGHT_BLUE,
	SKY_DEEP_BLUE,
	SKY_SUNSET,
	SKY_MAGENTA,
	SKY_PURPLE,
	SKY_DUSK,
	SKY_NIGHT,
};

// The seventeen values that a level gives, in their order.
struct BackgroundLook {
	int ground        = GROUND_GRASS;
	int groundX       = 0;   // pixels the ground pictures are shifted left
	int groundMargin  = 20;  // pixels the ground's lower picture stands below its natural place
	int fenceVariant  = -1;  // 0 or 1; -1 takes a random one
	int horizonOffset = -10; // the wall's top is 122 plus this
	bool hills        = false;
	int hillsX        = 0; // pixels the hill pictures are shifted left
	int hillsHeight   = 0; // rows of the hills' lower picture that are used
	bool rain         = false;
	bool rainbow      = false;
	bool clouds       = true;
	int sky           = SKY_BLUE;
	int sunX = 0, sunY = 0; // pixels
	bool snow     = false;
	bool hail     = false;
	bool railroad = true;
};

// Paints all that does not move once, into one picture; keeps clouds, waves, rainbow, rain,
// lightning, snow, hail and fireflies going; lays the boundary at the top of the field. A level's
// routine makes exactly one, first of all.
class CBackground : public CElementNoMove
{
public:
	explicit CBackground(const BackgroundLook& newLook);
	~CBackground() override;

	void Place() override {}
	void Update() override;
	const char* ClassName() const override { return "CBackground"; }

	CBackground* ScatterDecor(int preset); // 0 to 10; others stamp nothing. Returns this
	void BlowSnowFrom(float fromX, float fromY);
	int BeamTop() const { return beamTop; }   // upper end of the destructo ray
	int FieldTop() const { return fieldTop; } // upper limit of lying points

	BackgroundLook look;
	int backdropImage = -1;
	CSprite* backdrop = nullptr;   // owned
	int beamTop = 0, fieldTop = 0; // pixels
	bool weatherRunning = true;

	struct Weather;   // clouds, waves, rainbow, rain, snow, hail, fireflies
	Weather* weather; // owned

private:
	void StartSounds();
	void PaintSky();
	void MakeOverlay();
	void PaintGround();
	void PaintHills();
	CSprite* PaintHill(const std::string& name, int y, int rows);
	void PaintWall();
	void LayBoundary();
	void MakeParticles();
};

extern CBackground* g_background; // null outside a level
