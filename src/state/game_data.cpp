// The player's data: life, options, mode of play and sanctuary.
#include "state/game_data.h"

#include "frame/clock.h"
#include "frame/debug.h"
#include "frame/program.h"
#include "media/input.h"
#include "sound/sound_manager.h"

#include <algorithm>

CGameData* g_gameData      = nullptr;
CGameData* g_levelGameData = nullptr;

CGameData* LevelGameData()
{
	if (!g_levelGameData)
		Error("ERROR: Current profile not found!", true, true);
	return g_levelGameData;
}

// Loading a profile can award trophies by its score, and that goes through the pointers.
CGameData::CGameData()
{
	g_gameData = g_levelGameData = this;
	LoadProfileList();
}

CGameData::~CGameData()
{
	SaveProfileList();
	if (g_gameData == this)
		g_gameData = nullptr;
	if (g_levelGameData == this)
		g_levelGameData = nullptr;
}

int CGameData::GetKey(int i) const
{
	return i >= 0 && i < CONTROL_KEYS ? profile.keyCode[i] : 0;
}

void CGameData::SetKey(int i, int code)
{
	if (i >= 0 && i < CONTROL_KEYS)
		profile.keyCode[i] = code;
}

void CGameData::SetSoundVolume(int v)
{
	profile.soundVolume = std::clamp(v, 0, VOLUME_MAX);
	::SetSoundVolume(profile.soundVolume / static_cast<float>(VOLUME_MAX));
}

// Squared, since music at half its volume still covers the effects.
void CGameData::SetMusicVolume(int v)
{
	profile.musicVolume = std::clamp(v, 0, VOLUME_MAX);
	float part          = profile.musicVolume / static_cast<float>(VOLUME_MAX);
	::SetMusicVolume(part * part);
}

void CGameData::SetMouseSpeed(float speed)
{
	profile.mouseSpeed = speed;
	if (g_input)
		g_input->speed = speed;
}

void CGameData::ToggleSystemCursor()
{
	profile.systemCursorOn = !profile.systemCursorOn;
	if (!g_input)
		return;
	g_input->systemCursorMode = profile.systemCursorOn;
	g_input->speed            = profile.mouseSpeed;
}

void CGameData::SetHintPagesOn(bool on)
{
	profile.hintPagesOn = on;
}

void CGameData::SetQuizOn(bool on)
{
	profile.quizOn = on;
}

void CGameData::SetKidsBarrierOn(bool on)
{
	profile.kidsBarrierOn = on;
}

void CGameData::SetEffectsOn(bool on)
{
	profile.effectsOn = on;
}

void CGameData::SetFullscreen(bool on)
{
	profile.fullscreen = on;
}

void CGameData::ToggleKidsMode()
{
	profile.kidsMode        = !profile.kidsMode;
	profile.runCountsAsKids = profile.kidsMode;
}

void CGameData::MarkRunAsKids()
{
	profile.runCountsAsKids = 1;
}

// A fund ages from the moment when there is something in it.
void CGameData::SetSanctuaryFund(int v)
{
	if (profile.sanctuaryFund == 0)
		StampSanctuaryVisit();
	profile.sanctuaryFund = v;
}

// Never negative: the machine's clock may have been set back since.
double CGameData::SecondsSinceSanctuaryVisit() const
{
	double seconds = static_cast<double>(g_clock->Now()) - profile.sanctuaryLastVisit;
	return std::max(seconds, 0.0);
}

void CGameData::StampSanctuaryVisit()
{
	profile.sanctuaryLastVisit = static_cast<int32_t>(g_clock->Now());
}
