// The sound system as a whole: start and end, class volumes, the frame's step, sounds that loop.
#include "sound/sound_manager.h"

#include "frame/debug.h"
#include "media/archive.h"
#include "media/display.h"
#include "sound/sound.h"
#include "sound/sound_output.h"
#include "sound/sound_settings.h"
#include "sound/sound_state.h"

#include <cstdio>
#include <deque>

static const char* const LIBRARY_ERROR_TEXT = "Sound library error: ";
static const char* const RESOURCE_FILE      = "resource2.dat";
static const int CHANNELS                   = 128;
static const size_t SOUNDS_IN_FLIGHT        = 8;  // being decoded while the archive is walked
static const int LOOP_FADE_FRAMES           = 10; // when play is interrupted, and when it goes on

bool soundEnabled          = false;
FMOD_SYSTEM* g_soundSystem = nullptr;
float soundVolume          = 1;
float musicVolume          = 1;
std::vector<FMOD_SOUND> soundHandles;
std::map<std::string, int> preloadedSounds;
std::vector<CSound*> allSounds;

CSound* g_mouseOverSound      = nullptr;
CSound* g_mouseSelectionSound = nullptr;
CSound* g_actionFailedSound   = nullptr;
CSound* g_trophySound         = nullptr;

void CheckSound(FMOD_RESULT result)
{
	if (result != FMOD_OK)
		Error(LIBRARY_ERROR_TEXT, FMOD_ErrorString(result), true, true);
}

int StoreSoundHandle(FMOD_SOUND handle)
{
	size_t index = 0;
	while (index < soundHandles.size() && soundHandles[index] != 0)
		index++;
	if (index == soundHandles.size())
		soundHandles.push_back(0);
	soundHandles[index] = handle;
	return static_cast<int>(index);
}

void FreeSoundHandle(int index)
{
	if (index < 0 || soundHandles[index] == 0)
		return;
	CheckSound(FMOD_Sound_Release(soundHandles[index]));
	soundHandles[index] = 0;
}

static void CloseSystem()
{
	FMOD_System_Close(g_soundSystem);
	FMOD_System_Release(g_soundSystem);
	g_soundSystem = nullptr;
}

static FMOD_RESULT StartSystem(bool useStoredSettings)
{
	const FMOD_RESULT result = FMOD_System_Create(&g_soundSystem);
	if (result != FMOD_OK)
		return result;
	if (useStoredSettings)
		UseStoredSoundSettings(g_soundSystem);
	else
		AskSoundSettings(g_soundSystem, stdin);
	return FMOD_System_Init(g_soundSystem, CHANNELS);
}

void SoundInit(bool useStoredSettings)
{
	if (g_soundSystem || ChosenSoundOutput() == SOUND_OUTPUT_NONE)
		return;
	const FMOD_RESULT result = StartSystem(useStoredSettings);
	if (result == FMOD_OK) {
		soundEnabled = true;
		soundVolume = musicVolume = 1;
		return;
	}
	Error(LIBRARY_ERROR_TEXT, FMOD_ErrorString(result), false, true);
	if (g_soundSystem)
		CloseSystem();
}

void SoundShutdown()
{
	if (!g_soundSystem)
		return;
	for (size_t i = 0; i < soundHandles.size(); i++)
		FreeSoundHandle(static_cast<int>(i));
	soundHandles.clear();
	preloadedSounds.clear();
	CloseSystem();
	soundEnabled = false;
}

// A sound that is still being decoded.
struct SoundInFlight {
	std::string name;
	FMOD_SOUND handle;
};

// Decoding goes on beside the walk through the archive; what is done moves the bar, in order.
class CSoundLoader
{
public:
	explicit CSoundLoader(CDisplay* newDisplay)
	    : display(newDisplay), progress(display ? display->ImageLoadingCount() : 0)
	{
	}

	void Begin(const std::string& name, const Bytes& data)
	{
		FMOD_CREATESOUNDEXINFO info;
		info.length       = static_cast<uint32_t>(data.size());
		FMOD_SOUND handle = 0;
		CheckSound(FMOD_System_CreateSound(g_soundSystem,
		                                   reinterpret_cast<const char*>(data.data()),
		                                   FMOD_OPENMEMORY | FMOD_SOFTWARE, &info, &handle));
		inFlight.push_back({name, handle});
		if (inFlight.size() > SOUNDS_IN_FLIGHT)
			FinishFirst();
	}

	void FinishAll()
	{
		while (!inFlight.empty())
			FinishFirst();
	}

private:
	void FinishFirst()
	{
		const SoundInFlight first = inFlight.front();
		inFlight.pop_front();
		const FMOD_RESULT result = FMOD_Sound_SetMode(first.handle, FMOD_LOOP_OFF);
		if (result != FMOD_OK)
			LogLine("Cannot play sound: " + first.name); // the message to come does not name it
		CheckSound(result);
		preloadedSounds[first.name] = StoreSoundHandle(first.handle);
		progress += SOUND_LOADING_WEIGHT;
		if (display)
			display->AdvanceLoadingBar(progress);
	}

	CDisplay* display;
	int progress; // of the loading bar
	std::deque<SoundInFlight> inFlight;
};

void LoadSoundResources(CDisplay* display)
{
	if (!soundEnabled)
		return;
	CSoundLoader loader(display);
	ArchiveVisitor visitor;
	visitor.onEntry = [&](const std::string& name, Bytes&& data) { loader.Begin(name, data); };
	if (!ForEachArchiveEntry(RESOURCE_FILE, visitor))
		Error("Cannot load sound resource file!", true, true);
	loader.FinishAll();
}

// Without its device the game goes on in silence.
void SoundUpdate()
{
	if (!soundEnabled)
		return;
	for (size_t i = 0; i < allSounds.size(); i++)
		allSounds[i]->Update();
	const FMOD_RESULT result = FMOD_System_Update(g_soundSystem);
	if (result != FMOD_OK) {
		Error(LIBRARY_ERROR_TEXT, FMOD_ErrorString(result), false, true);
		soundEnabled = false;
	}
}

static void SetClassVolume(bool music, float volume)
{
	if (!soundEnabled)
		return;
	(music ? musicVolume : soundVolume) = volume;
	for (CSound* sound : allSounds)
		if (sound->isMusic == music && !sound->IsFadingIn() && !sound->IsFadingOut() &&
		    sound->channel != 0)
			sound->SetVolume(volume);
}

void SetSoundVolume(float volume)
{
	SetClassVolume(false, volume);
}

void SetMusicVolume(float volume)
{
	SetClassVolume(true, volume);
}

float GetSoundVolume()
{
	return soundEnabled ? soundVolume : 0;
}

void FadeOutLoopingSounds()
{
	if (!soundEnabled)
		return;
	for (CSound* sound : allSounds) {
		if (sound->isMusic)
			continue;
		if (sound->volume == 0 || sound->IsFadingOut()) {
			sound->Stop();
			sound->volume = soundVolume;
		} else if (sound->looping && sound->IsPlaying()) {
			sound->FadeOut(LOOP_FADE_FRAMES);
		}
	}
}

void FadeInLoopingSounds()
{
	if (!soundEnabled)
		return;
	for (CSound* sound : allSounds)
		if (!sound->isMusic && sound->looping && sound->IsPlaying())
			sound->FadeIn(LOOP_FADE_FRAMES);
}

void CreateUiSounds()
{
	g_mouseOverSound      = new CSound("mouse_over.ogg");
	g_mouseSelectionSound = new CSound("mouse_selection.ogg");
	g_actionFailedSound   = new CSound("action_failed.ogg");
	g_trophySound         = new CSound("trophy_unlocked.ogg");
}

void DeleteUiSounds()
{
	for (CSound** sound :
	     {&g_mouseOverSound, &g_mouseSelectionSound, &g_actionFailedSound, &g_trophySound}) {
		delete *sound;
		*sound = nullptr;
	}
}
