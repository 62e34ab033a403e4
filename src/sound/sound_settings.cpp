// The choice of sound system and driver: stored, or asked for on the console.
#include "sound/sound_settings.h"

#include "frame/debug.h"
#include "media/archive.h"
#include "sound/sound_state.h"
#include "state/byte_stream.h"
#include "state/game_data.h"
#include "state/save_folder.h"

static const size_t SETTINGS_SIZE = 8;   // bytes
static const int DRIVER_NAME_SIZE = 256; // bytes
static const int FIRST_OUTPUT     = FMOD_OUTPUTTYPE_PULSEAUDIO;
static const int OUTPUTS          = 3;
static const int LAST_DIGIT       = 9;
static const int NO_ANSWER        = 0;

static std::string SettingsPath()
{
	return SaveFolder() + "SOUNDv" + std::to_string(FORMAT_VERSION) + ".DAT";
}

static void TransferSettings(CByteStream& stream, int32_t& outputType, int32_t& driver)
{
	stream.Int(outputType);
	stream.Int(driver);
}

void UseStoredSoundSettings(FMOD_SYSTEM* system)
{
	const std::string path = SettingsPath();
	Bytes data;
	if (!ReadWholeFile(path, data))
		return;
	if (data.size() != SETTINGS_SIZE) {
		Error("Damaged sound settings: ", path, false, true);
		return;
	}
	printf("\nSound settings loaded from file.  To alter settings in the future, run the game with "
	       "a command line parameter of 4\n");
	fflush(stdout);
	int32_t outputType = 0;
	int32_t driver     = 0;
	CByteStream stream(data);
	TransferSettings(stream, outputType, driver);
	CheckSound(FMOD_System_SetOutput(system, outputType));
	CheckSound(FMOD_System_SetDriver(system, driver));
}

// The first digit from 1 to last; everything else is passed over.
static int ReadDigit(FILE* answers, int last)
{
	fflush(stdout);
	for (;;) {
		const int character = fgetc(answers);
		if (character == EOF)
			return NO_ANSWER;
		if (character >= '1' && character <= '0' + last)
			return character - '0';
	}
}

static int AskDriver(FMOD_SYSTEM* system, FILE* answers)
{
	int count = 0;
	CheckSound(FMOD_System_GetNumDrivers(system, &count));
	printf("\n\n****** PLEASE SELECT DESIRED SOUND DRIVER ****** ");
	for (int i = 0; i < count; i++) {
		char name[DRIVER_NAME_SIZE];
		CheckSound(FMOD_System_GetDriverName(system, i, name, sizeof name));
		printf("%d : %s\n", i + 1, name);
	}
	printf("\nInput the number corresponding to the desired sound driver and press ENTER: ");
	fflush(stdout);
	return count > 0 ? ReadDigit(answers, count < LAST_DIGIT ? count : LAST_DIGIT) : NO_ANSWER;
}

static void StoreSettings(int32_t outputType, int32_t driver)
{
	CByteStream stream;
	TransferSettings(stream, outputType, driver);
	const std::string path = SettingsPath();
	if (!WriteFileSafely(path, stream.bytes))
		Error("Cannot save sound data: ", path, true, true);
}

void AskSoundSettings(FMOD_SYSTEM* system, FILE* answers)
{
	printf("\nQUORBLET - SOUND INITIALIZATION\n\n"
	       "****** PLEASE SELECT DESIRED SOUND SYSTEM ****** \n"
	       "1 - PulseAudio\n"
	       "2 - ALSA\n"
	       "3 - JACK\n"
	       "\nInput the number corresponding to the desired sound system and press ENTER: ");
	const int outputDigit = ReadDigit(answers, OUTPUTS);
	if (outputDigit == NO_ANSWER)
		return;
	const int outputType = FIRST_OUTPUT + outputDigit - 1;
	CheckSound(FMOD_System_SetOutput(system, outputType));
	const int driverDigit = AskDriver(system, answers);
	if (driverDigit == NO_ANSWER)
		return;
	CheckSound(FMOD_System_SetDriver(system, driverDigit - 1));
	StoreSettings(outputType, driverDigit - 1);
}
