// The device that the engine mixes for: opening, naming drivers, telling whether it is still there.
#pragma once

#include "sound/fmod.h"

#include <AL/alc.h>
#include <memory>
#include <string>
#include <vector>

// One way to get a device. The engine owns one and makes its context on the device it opens.
class COutputDevice
{
public:
	virtual ~COutputDevice() = default;

	// Before anything else, or FMOD_ERR_INITIALIZED.
	virtual FMOD_RESULT SelectOutput(int outputType)   = 0;
	virtual std::vector<std::string> DriverNames()     = 0;
	virtual ALCdevice* Open(const std::string& driver) = 0; // empty: the default; null: none there
	virtual bool IsConnected(ALCdevice* device)        = 0;
	virtual std::vector<ALCint> ContextAttributes()    = 0; // pairs, without the end mark
	// Two floats a frame; what has no clock of its own is rendered on request.
	virtual bool Render(ALCdevice*, float*, int) { return false; }
};

// By ChosenSoundOutput; null for none.
std::unique_ptr<COutputDevice> NewOutputDevice();
