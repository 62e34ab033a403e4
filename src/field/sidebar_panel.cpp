// All that the side panel shows: its pictures, doors, counters, signs and sounds.
#include "field/sidebar_panel.h"

#include "media/sprite.h"
#include "sound/sound.h"

#include <string>

static const int PANEL_X     = 686;
static const int DEPTH_PANEL = 18000, DEPTH_SCORE_GLOW = 18050;
static const int GLOW_X = 684, GLOW_Y = 25, LAST_GLOW = 8;
static const int DIGITS_X = 700, SCORE_Y = 40, MONEY_Y = 101, SAVED_Y = 162;
static const int TO_RESCUE_Y = 431, TO_RESCUE_DIGITS = 2;
static const int DOOR_Y = 297, DOOR_DISTANCE = 197;

CSidebar::Panel::Panel()
    : score("sidebarnumbersA.png", CScoreDrum::MOST_DIGITS, DIGITS_X, SCORE_Y),
      money("sidebarnumbersB.png", CScoreDrum::MOST_DIGITS, DIGITS_X, MONEY_Y),
      animalsSaved("sidebarnumbersA.png", CScoreDrum::MOST_DIGITS, DIGITS_X, SAVED_Y),
      animalsToRescue("sidebarnumbersA.png", TO_RESCUE_DIGITS, DIGITS_X, TO_RESCUE_Y),
      portraitDoor(DOOR_Y), discDoor(DOOR_Y + DOOR_DISTANCE)
{
	background = new CSprite(PANEL_X, 0, DEPTH_PANEL, SPRITE_OVERLAY);
	background->AddFile("sidebarmain.png");
	scoreGlow = new CSprite(DEPTH_SCORE_GLOW, 1, SPRITE_OVERLAY);
	scoreGlow->AddSequence("sidebarscoreglow", 0, LAST_GLOW, ".png");
	scoreGlow->AddSequence("sidebarscoreglow", LAST_GLOW - 1, 1, ".png");
	scoreGlow->SetPos(GLOW_X, GLOW_Y);
	scoreGlow->Hide();

	score.SetShown(g_play.levelScore * CScoreDrum::TWENTIETHS);
	money.SetShown(g_play.money * CScoreDrum::TWENTIETHS);
	animalsSaved.SetShown(g_play.animalsSaved * CScoreDrum::TWENTIETHS);

	ballLost = new CSound("ball_lost.ogg");
	for (int i = 0; i < COIN_SOUNDS; i++)
		coins[i] = new CSound("coin_collection" + std::to_string(i + 1) + ".ogg");
	for (int i = 0; i < COLLECT_SOUNDS; i++)
		collect[i] = new CSound("collect_animal" + std::to_string(i + 1) + ".ogg");
}

CSidebar::Panel::~Panel()
{
	delete background;
	delete scoreGlow;
	delete ballLost;
	for (CSound* sound : coins)
		delete sound;
	for (CSound* sound : collect)
		delete sound;
}
