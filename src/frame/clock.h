// The one source of time: everything that waits, fades or stamps asks here.
#pragma once

// The clock of the machine. Tests and the driver put a clock of their own in g_clock, so that a
// run does not depend on how fast the machine is.
class CClock
{
public:
	virtual ~CClock() = default;

	virtual unsigned int Ticks();                  // milliseconds since some fixed moment
	virtual void Delay(unsigned int milliseconds); // waits; 0 gives the processor away once
	virtual long long Now();                       // seconds since 1970
};

// A clock that stands still but for its own delays and for Advance.
class CVirtualClock : public CClock
{
public:
	unsigned int Ticks() override;
	void Delay(unsigned int milliseconds) override;
	long long Now() override;
	void Advance(unsigned int milliseconds);

	unsigned int ticks     = 1000;       // milliseconds
	long long startSeconds = 1000000000; // what Now tells at tick 0
};

extern CClock* g_clock; // never null
