// The one source of time: everything that waits, fades or stamps asks here.
#include "frame/clock.h"

#include <SDL.h>
#include <ctime>

static CClock s_machineClock;
CClock* g_clock = &s_machineClock;

unsigned int CClock::Ticks()
{
	return SDL_GetTicks();
}

void CClock::Delay(unsigned int milliseconds)
{
	SDL_Delay(milliseconds);
}

long long CClock::Now()
{
	return std::time(nullptr);
}

unsigned int CVirtualClock::Ticks()
{
	return ticks;
}

// A wait of nothing still lets a millisecond pass, or a loop that gives way would never end.
void CVirtualClock::Delay(unsigned int milliseconds)
{
	ticks += milliseconds ? milliseconds : 1;
}

long long CVirtualClock::Now()
{
	return startSeconds + ticks / 1000;
}

void CVirtualClock::Advance(unsigned int milliseconds)
{
	ticks += milliseconds;
}
