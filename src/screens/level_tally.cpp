// The tally after a level: what it settles, and the order in which it shows it.
#include "screens/level_tally.h"

#include "animals/species_numbers.h"
#include "field/score_drum.h"
#include "field/sidebar.h"
#include "media/cursor.h"
#include "media/gui.h"
#include "screens/refuse.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <SDL.h>

#include <algorithm>

static const int FLYAWAY_SOUNDS   = 16;
static const int STEP_FRAMES      = 2;
static const int RESULT_MAIN_MENU = 3;
static const int COUNTER_BRAKE    = 8; // a counter goes this part of its way in a frame
static const int LAST_TICKS       = 5; // twentieths that a skipped counter still has to go

CControllerLevelTally::CControllerLevelTally(const TallyCount& newCount,
                                             std::span<const int> newRecord)
    : count(newCount), record(newRecord.begin(), newRecord.end())
{
	CollectSpecies();
	SettleBonus();
	levelGain  = g_gameData->ScoreGainedThisLevel();
	levelTotal = bonusTotal + levelGain;
	SetPlayScore(g_play.levelScore + bonusTotal);
	g_gameData->SetLevelScore(levelTotal);
	g_gameData->SetLevelRescues(g_gameData->rescuesThisLevel);

	countingSound = new CSound("score_tally.ogg");
	for (int i = 1; i <= FLYAWAY_SOUNDS; i++)
		flyawaySounds.push_back(new CSound("score_flyaway" + std::to_string(i) + ".ogg"));
	PlanLines();
	PlanSteps();
	Open();
}

CControllerLevelTally::~CControllerLevelTally()
{
	Close();
	delete countingSound;
	for (CSound* sound : flyawaySounds)
		delete sound;
}

void CControllerLevelTally::CollectSpecies()
{
	for (int i = 0; i < DENSE_SPECIES; i++) {
		if (g_gameData->speciesThisLevel[i] <= 0 || SpeciesOfIndex(i) == SPECIES_ALIEN)
			continue;
		speciesList.push_back(SpeciesOfIndex(i));
		speciesCounts.push_back(g_gameData->speciesThisLevel[i]);
	}
	newSpecies.assign(g_gameData->newSpeciesQueue.begin(), g_gameData->newSpeciesQueue.end());
	g_gameData->newSpeciesQueue.clear();
}

void CControllerLevelTally::SettleBonus()
{
	if (count.type != TALLY_REGULAR) {
		if (count.type == TALLY_ORDER)
			count.b = CratesBroken(record, count.a);
		bonusResult = ScoreBonusLevel(count, record);
		bonusTotal  = bonusResult.amount;
		if (bonusResult.grade == GRADE_PERFECT)
			g_gameData->OnPerfectBonus();
		return;
	}
	RegularFacts facts;
	facts.seconds   = g_gameData->secondsThisLevel;
	facts.skunks    = g_gameData->RescuedThisLevel(SPECIES_SKUNK);
	facts.sprayed   = g_gameData->notes.sprayed;
	facts.drums     = g_gameData->drumsInLevel;
	facts.drumFired = g_gameData->notes.drumFired;
	facts.alien     = g_gameData->RescuedThisLevel(SPECIES_ALIEN) > 0;
	bonuses         = ScoreRegularLevel(facts);
	bonusTotal      = bonuses.Total();
}

void CControllerLevelTally::PlanLines()
{
	const std::vector<TallyWord> time = TimeBonusWords(g_gameData->secondsThisLevel);
	const Line all[]                  = {
	                     {"postlevel_bonustitle_time.png", bonuses.time, time},
	                     {"postlevel_bonustitle_skunk.png",
	                      bonuses.skunk,
	                      {{"postlevel_bonusdescription_skunk.png"}}},
	                     {"postlevel_bonustitle_enviro.png",
	                      bonuses.enviro,
	                      {{"postlevel_bonusdescription_enviro.png"}}},
	                     {"postlevel_bonustitle_alien.png",
	                      bonuses.alien,
	                      {{"postlevel_bonusdescription_alien.png"}}},
    };
	for (const Line& line : all)
		if (line.amount > 0)
			lines.push_back(line);
}

void CControllerLevelTally::PlanSteps()
{
	const bool regular = count.type == TALLY_REGULAR;
	if (regular) {
		for (size_t i = 0; i < newSpecies.size(); i++)
			steps.push_back({STEP_NEW, static_cast<int>(i)});
		steps.push_back({STEP_ANIMALS});
		for (size_t i = 0; i < speciesList.size(); i++)
			steps.push_back({STEP_ANIMAL, static_cast<int>(i)});
	}
	if ((regular || count.type == TALLY_HARVEST) && g_gameData->rescuesThisLevel > 0)
		steps.push_back({STEP_BUTTERFLIES});
	if (!regular)
		steps.push_back({STEP_BONUS_BOX});
	for (size_t i = 0; i < lines.size(); i++)
		steps.push_back({STEP_LINE, static_cast<int>(i)});
	if (regular && lines.empty())
		steps.push_back({STEP_NO_BONUS});
	steps.push_back({STEP_TOTALS});
}

// One step when its frames are over; all that are left once the player asks for it.
void CControllerLevelTally::Step()
{
	RunCounters();
	if (done)
		return;
	if (skipRequested) {
		while (stepsShown < steps.size())
			ShowStep(steps[stepsShown++], true);
		FinishCounters();
		done = true;
		return;
	}
	if (--stepWait > 0)
		return;
	stepWait = STEP_FRAMES;
	ShowStep(steps[stepsShown++], false);
	done = stepsShown == steps.size();
}

static void RunTo(int& shown, int value)
{
	const int target = value * CScoreDrum::TWENTIETHS;
	if (shown == target)
		return;
	const int speed = (target - shown) / COUNTER_BRAKE;
	shown += speed != 0 ? speed : target > shown ? 1 : -1;
}

void CControllerLevelTally::RunCounters()
{
	counting = false;
	for (size_t i = 0; i < amountsShown.size(); i++) {
		if (amountsShown[i] == lines[i].amount * CScoreDrum::TWENTIETHS)
			continue;
		RunTo(amountsShown[i], lines[i].amount);
		PutLineAmount(static_cast<int>(i), amountsShown[i] / CScoreDrum::TWENTIETHS);
		counting = true;
	}
	const int values[] = {levelGain, bonusTotal, levelTotal};
	for (int i = 0; i < 3 && totals[i]; i++) {
		const int before = totalsShown[i];
		RunTo(totalsShown[i], values[i]);
		counting |= totalsShown[i] != before;
		totals[i]->SetShown(totalsShown[i]);
	}
	if (counting && !countingSound->IsPlaying() && !skipRequested)
		countingSound->Play();
}

// Every counter stands just before its end, so that it still ticks its last frames.
void CControllerLevelTally::FinishCounters()
{
	countingSound->Stop();
	for (size_t i = 0; i < amountsShown.size(); i++)
		amountsShown[i] = lines[i].amount * CScoreDrum::TWENTIETHS - LAST_TICKS;
	const int values[] = {levelGain, bonusTotal, levelTotal};
	for (int i = 0; i < 3; i++)
		totalsShown[i] = std::max(values[i] * CScoreDrum::TWENTIETHS - LAST_TICKS, 0);
}

void CControllerLevelTally::PlayFlyaway()
{
	flyawaySounds[flyaway]->Play();
	flyaway = (flyaway + 1) % FLYAWAY_SOUNDS;
}

// Arrows choose a button, Return presses it; every other key hurries the show.
void CControllerLevelTally::OnKey(bool released, int key)
{
	if (!active || !released)
		return;
	const bool presses = key == SDLK_RETURN || key == SDLK_KP_ENTER || key == SDLK_SPACE;
	if ((presses && g_focusedWidget == -1) || !GuiKey(key))
		skipRequested = true;
}

void CControllerLevelTally::OnMouseButton(bool left, bool right, bool released)
{
	if (active && left && released && g_focusedWidget == -1)
		skipRequested = true;
	CScreen::OnMouseButton(left, right, released);
}

void CControllerLevelTally::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	switch (id) {
	case RETRY:
		replay = true;
		SetResult(RESULT_RETURN);
		break;
	case CONTINUE:
		SetResult(RESULT_RETURN);
		break;
	case MAIN_MENU:
		SetResult(RESULT_MAIN_MENU);
		break;
	default:
		RefuseMissing();
		return;
	}
	ShowHourglass(false);
}
