// What the panel counts: scores, money, lives, animals, combos.
#include "field/sidebar.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/breakable.h"
#include "field/element_point.h"
#include "field/flyaway.h"
#include "field/powerup.h"
#include "field/sidebar_panel.h"
#include "frame/random.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <algorithm>

// Points before the multiplier.
static const int POINTS_SMALL_THING = 1;
static const int POINTS_CRATE       = 10;
static const int POINTS_FENCE       = 15;
static const int POINTS_ANIMAL      = 25;
static const int POINTS_POWERUP     = 100;
static const int POINTS_SAUCER      = 500;
static const int POINTS_ALIEN       = 1000;
static const int HIGHEST_COMBO      = 8; // more animals don't multiply further

static const int MONEY_IN_COIN = 1, MONEY_IN_BAG = 25;

struct ScoreTrophy {
	int above, bit;
};
static const ScoreTrophy s_scoreTrophies[] = {{24999, 34}, {99999, 27}, {999999, 12}};

// clang-format off
// Frames that a power-up lasts, by timer.
static const int s_durations[POWERUP_TIMERS] = {
	900, 900, 900,      // score multipliers
	UNTIL_USED_UP,      // barrier
	900,                // bulldozer
	UNTIL_USED_UP,      // destructo
	900, 900,           // fast, gravity
	150,                // grow
	900,                // wide
	150, 150,           // life, rain
	900, 900, 900, 900, // shrink, slow, sticky, fans
};
// clang-format on

void SetPlayScore(int score)
{
	g_play.levelScore = score;
	if (!g_levelGameData)
		return;
	for (const ScoreTrophy& trophy : s_scoreTrophies) {
		if (score > trophy.above)
			g_levelGameData->AwardTrophy(trophy.bit);
	}
}

int CSidebar::GetMultiplier() const
{
	if (timers[TIMER_QUADRUPLE] > 0)
		return 4;
	if (timers[TIMER_TRIPLE] > 0)
		return 3;
	return timers[TIMER_DOUBLE] > 0 ? 2 : 1;
}

int CSidebar::AddScore(int points)
{
	int amount = points * GetMultiplier();
	SetPlayScore(g_play.levelScore + amount);
	return amount;
}

void CSidebar::ScoreAt(int points, int atX, int atY)
{
	int amount = AddScore(points);
	new CFlyaway(amount, false, false, atX, atY, false);
}

void CSidebar::OnCrateBroken(int atX, int atY)
{
	ScoreAt(POINTS_CRATE, atX, atY);
}

void CSidebar::OnFenceBroken(int atX, int atY)
{
	ScoreAt(POINTS_FENCE, atX, atY);
}

void CSidebar::OnPointTaken(int atX, int atY)
{
	ScoreAt(POINTS_SMALL_THING, atX, atY);
}

void CSidebar::OnSaucerDown(int atX, int atY)
{
	ScoreAt(POINTS_SAUCER, atX, atY);
}

void CSidebar::OnAlienScore()
{
	ScoreAt(POINTS_ALIEN, CFlyaway::AT_BALL, CFlyaway::AT_BALL);
	alienCaught = true;
}

// What is taken outside a combo, by a held ball or as a butterfly, is still worth its points.
void CSidebar::OnAnimalScore(int weight)
{
	int size  = std::max(1, weight / 2);
	int combo = std::clamp(comboCount, 1, HIGHEST_COMBO);
	ScoreAt(POINTS_ANIMAL * size * combo, CFlyaway::AT_BALL, CFlyaway::AT_BALL);
}

static bool IsFruit(int kind)
{
	return kind < SPECIES_SHEEP || kind == POINT_COCONUT;
}

static bool CountsForCombo(int kind)
{
	bool egg       = kind == POINT_EGG_LEFT || kind == POINT_EGG_RIGHT;
	bool butterfly = kind >= SPECIES_BUTTERFLY_A && kind <= SPECIES_BUTTERFLY_C;
	return !egg && !butterfly;
}

void CSidebar::OnCollect(int kind)
{
	if (kind == POINT_COIN) {
		PlayOneOf(panel->coins, Panel::COIN_SOUNDS);
		g_play.money += MONEY_IN_COIN;
		new CFlyaway(MONEY_IN_COIN, true, false, CFlyaway::AT_BALL, CFlyaway::AT_BALL, false);
		return;
	}
	if (IsFruit(kind))
		return;
	int portrait = PortraitOfKind(kind);
	if (portrait >= 0)
		portraitQueue.push_back(portrait);
	if (CountsForCombo(kind)) {
		if (g_ball && g_ball->IsHeld())
			panel->collect[0]->Play();
		else
			OnCombo();
	}
	g_play.animalsSaved++;
}

void CSidebar::OnCombo()
{
	comboCount++;
	panel->collect[std::min(comboCount, +Panel::COLLECT_SOUNDS) - 1]->Play();
	if (comboCount >= 2)
		panel->combo.Show(comboCount);
}

void CSidebar::OnPowerupCaught(int kind)
{
	if (kind == POWERUP_MONEY) {
		g_play.money += MONEY_IN_BAG;
		new CFlyaway(MONEY_IN_BAG, true, true, 0, 0, false);
		return;
	}
	int timer = kind - POWERUP_DOUBLE;
	if (timer < 0 || timer >= POWERUP_TIMERS)
		return;
	powerupQueue.push_back(timer);
	timers[timer] = s_durations[timer];
	int amount    = AddScore(POINTS_POWERUP);
	new CFlyaway(amount, false, true, 0, 0, false);
	if (kind != POWERUP_LIFE)
		return;
	if (!g_play.gameOver && g_levelGameData)
		g_levelGameData->OnExtraLife();
	GiveExtraLife();
}

void CSidebar::GiveExtraLife()
{
	g_play.lives++;
	g_play.gameOver       = false;
	g_play.extraLifeTimer = CExtraLifeSign::FRAMES;
}

// Lives that come when all is lost already count for no level.
void CSidebar::GiveLivesBack()
{
	bool counts = !g_play.gameOver;
	while (g_play.lives < LIVES_AT_START) {
		if (counts && g_levelGameData)
			g_levelGameData->OnExtraLife();
		GiveExtraLife();
	}
}

void CSidebar::ShowTrophySign()
{
	panel->trophySign.Restart();
	if (g_trophySound && !g_trophySound->IsPlaying())
		g_trophySound->Play();
}
