// The machine's own device, the capture that only renders on request, and the choice between them.
#include "sound/output_device.h"

#include "sound/sound_output.h"

#include <AL/al.h>
#include <AL/alext.h>
#include <cstdlib>
#include <cstring>

// The library reads it once, at its first call.
static const char* const DRIVER_VARIABLE = "ALSOFT_DRIVERS";
// What the library falls back to when nothing else is there: it would play to nobody.
static const char* const NO_OUTPUT_NAME = "No Output";

static SoundOutput s_output = SOUND_OUTPUT_DEVICE;
static bool s_libraryCalled = false; // the choice of driver stands
static std::vector<std::string> s_captureDrivers;
static bool s_capturePlugged = true;

static const char* DriverOf(int outputType)
{
	switch (outputType) {
	case FMOD_OUTPUTTYPE_PULSEAUDIO:
		return "pulse";
	case FMOD_OUTPUTTYPE_ALSA:
		return "alsa";
	case FMOD_OUTPUTTYPE_JACK:
		return "jack";
	}
	return nullptr;
}

class CMachineDevice : public COutputDevice
{
public:
	FMOD_RESULT SelectOutput(int outputType) override
	{
		const char* driver = DriverOf(outputType);
		if (!driver)
			return FMOD_ERR_INVALID_PARAM;
		const char* before = std::getenv(DRIVER_VARIABLE);
		if (s_libraryCalled && (!before || std::strcmp(before, driver) != 0))
			return FMOD_ERR_INITIALIZED;
		setenv(DRIVER_VARIABLE, driver, 1);
		return FMOD_OK;
	}

	std::vector<std::string> DriverNames() override
	{
		s_libraryCalled = true;
		std::vector<std::string> names;
		const char* name = alcGetString(nullptr, ALC_ALL_DEVICES_SPECIFIER);
		for (; name && *name; name += std::strlen(name) + 1)
			names.push_back(name);
		return names;
	}

	ALCdevice* Open(const std::string& driver) override
	{
		s_libraryCalled   = true;
		ALCdevice* device = alcOpenDevice(driver.empty() ? nullptr : driver.c_str());
		if (!device)
			return nullptr;
		const char* name = alcGetString(device, ALC_DEVICE_SPECIFIER);
		if (!name || std::strcmp(name, NO_OUTPUT_NAME) != 0)
			return device;
		alcCloseDevice(device);
		return nullptr;
	}

	bool IsConnected(ALCdevice* device) override
	{
		ALCint connected = ALC_TRUE;
		if (alcIsExtensionPresent(device, "ALC_EXT_disconnect"))
			alcGetIntegerv(device, ALC_CONNECTED, 1, &connected);
		return connected;
	}

	std::vector<ALCint> ContextAttributes() override { return {}; }
};

class CCaptureDevice : public COutputDevice
{
public:
	FMOD_RESULT SelectOutput(int outputType) override
	{
		return DriverOf(outputType) ? FMOD_OK : FMOD_ERR_INVALID_PARAM;
	}

	std::vector<std::string> DriverNames() override { return s_captureDrivers; }

	ALCdevice* Open(const std::string&) override
	{
		if (!s_capturePlugged)
			return nullptr;
		s_libraryCalled = true;
		auto open       = reinterpret_cast<LPALCLOOPBACKOPENDEVICESOFT>(
            alcGetProcAddress(nullptr, "alcLoopbackOpenDeviceSOFT"));
		render = reinterpret_cast<LPALCRENDERSAMPLESSOFT>(
		    alcGetProcAddress(nullptr, "alcRenderSamplesSOFT"));
		return open && render ? open(nullptr) : nullptr;
	}

	bool IsConnected(ALCdevice*) override { return s_capturePlugged; }

	std::vector<ALCint> ContextAttributes() override
	{
		return {ALC_FORMAT_CHANNELS_SOFT, ALC_STEREO_SOFT, ALC_FORMAT_TYPE_SOFT,
		        ALC_FLOAT_SOFT,           ALC_FREQUENCY,   CAPTURE_RATE};
	}

	bool Render(ALCdevice* device, float* samples, int frames) override
	{
		render(device, samples, frames);
		return true;
	}

private:
	LPALCRENDERSAMPLESSOFT render = nullptr;
};

void ChooseSoundOutput(SoundOutput output)
{
	s_output         = output;
	s_capturePlugged = true;
	s_captureDrivers = {"Capture"};
}

SoundOutput ChosenSoundOutput()
{
	return s_output;
}

void SetCaptureDrivers(const std::vector<std::string>& names)
{
	s_captureDrivers = names;
}

void SetCapturePlugged(bool plugged)
{
	s_capturePlugged = plugged;
}

std::unique_ptr<COutputDevice> NewOutputDevice()
{
	if (s_output == SOUND_OUTPUT_CAPTURE)
		return std::make_unique<CCaptureDevice>();
	if (s_output == SOUND_OUTPUT_DEVICE)
		return std::make_unique<CMachineDevice>();
	return nullptr;
}
