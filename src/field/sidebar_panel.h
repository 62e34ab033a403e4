// All that the side panel shows: its pictures, doors, counters, signs and sounds.
#pragma once

#include "field/combo_banner.h"
#include "field/disc_window.h"
#include "field/fan_gauge.h"
#include "field/lives_row.h"
#include "field/panel_signs.h"
#include "field/portrait_window.h"
#include "field/score_drum.h"
#include "field/sidebar.h"
#include "field/sidebar_door.h"

class CSound;

// Plain parts without rules of their own: the side panel's rules step them.
struct CSidebar::Panel {
	static const int COIN_SOUNDS    = 4;
	static const int COLLECT_SOUNDS = 10;

	Panel();
	~Panel();

	CSprite* background; // owned
	CSprite* scoreGlow;  // owned
	CScoreDrum score, money, animalsSaved, animalsToRescue;
	CLivesRow lives;
	CFanGauge fan;
	CPortraitWindow portraits;
	CDiscWindow discs;
	CPanelDoor portraitDoor, discDoor;
	CComboBanner combo;
	CTrophySign trophySign;
	CExtraLifeSign extraLifeSign;
	CLostBallSign lostBallSign;

	// sounds, owned
	CSound* ballLost;
	CSound* coins[COIN_SOUNDS];
	CSound* collect[COLLECT_SOUNDS];
};
