// The moving parts of a level's sky and sea, held together for the background.
#pragma once

#include "field/background.h"
#include "field/clouds.h"
#include "field/fireflies.h"
#include "field/hail.h"
#include "field/rain.h"
#include "field/sea.h"
#include "field/snow.h"

// Everything that the background steps once a frame. What the level does not have stays unmade,
// and its steps do nothing.
struct CBackground::Weather {
	~Weather();
	void HideAll(); // clouds, rain, snow, hail, fireflies, overlay; waves and rainbow stay

	CClouds clouds;
	CWaves waves;
	CRainbow rainbow;
	CRain rain;
	CFireflies fireflies;
	CSnow snow;
	CHail hail;
	CSprite* overlay     = nullptr; // owned; darkens the whole field
	CSound* ambientSound = nullptr; // owned
	CSprite* hills[2]    = {};      // owned; what of the hills stands in front of the waves
	bool hasFireflies    = false;
};
