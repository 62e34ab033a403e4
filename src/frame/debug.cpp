// The error and log channel, and the profile counters of the developer.
#include "frame/debug.h"

#include "frame/clock.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>

static const char* const LOG_FILE    = "LOG.TXT";
static const char* const TIME_FORMAT = "%d/%m/%y %H:%M:%S - ";
static const size_t TIME_FIELD_SIZE  = 63; // bytes
static const int PROFILE_COUNTERS    = 10;
static const int PROFILE_ROUNDS      = 299; // a call that finds more than these prints
static const char* const NO_LOG_TEXT = "Cannot open log file!";
static const char* const NO_COUNTER_TEXT =
    "Ran out of profile counters!  Increase the number in debug";

struct ProfileCounter {
	unsigned int startTicks = 0; // milliseconds
	unsigned int sum        = 0; // milliseconds
	int count               = 0;
};

static ProfileCounter s_counters[PROFILE_COUNTERS];

static void Print(const std::string& prefix, const std::string& detail)
{
	printf("ERROR!  %s%s\n", prefix.c_str(), detail.c_str());
	fflush(stdout);
}

static std::string TimeStamp()
{
	char field[TIME_FIELD_SIZE] = "";
	const time_t now            = static_cast<time_t>(g_clock->Now());
	const tm* local             = localtime(&now);
	if (local)
		strftime(field, sizeof field, TIME_FORMAT, local);
	return field;
}

// Opened anew for each line, so that the log is whole when the program ends badly.
static void AppendToLog(const std::string& prefix, const std::string& detail)
{
	FILE* log = fopen(LOG_FILE, "a+b");
	if (!log) {
		Print(NO_LOG_TEXT, "");
		exit(1);
	}
	const std::string line = TimeStamp() + prefix + detail + "\r\n";
	fwrite(line.data(), 1, line.size(), log);
	fclose(log);
}

void Error(const std::string& prefix, const std::string& detail, bool fatal, bool log)
{
	Print(prefix, detail);
	if (log)
		AppendToLog(prefix, detail);
	if (fatal)
		exit(1);
}

void Error(const std::string& message, bool fatal, bool log)
{
	Error(message, "", fatal, log);
}

void LogLine(const std::string& message)
{
	AppendToLog(message, "");
}

static ProfileCounter* CounterOf(int number)
{
	if (number >= 0 && number < PROFILE_COUNTERS)
		return &s_counters[number];
	printf("%s\n", NO_COUNTER_TEXT);
	return nullptr;
}

void ProfileStart(int counter)
{
	if (ProfileCounter* record = CounterOf(counter))
		record->startTicks = g_clock->Ticks();
}

void ProfileStop(int counter)
{
	ProfileCounter* record = CounterOf(counter);
	if (!record)
		return;
	if (record->count > PROFILE_ROUNDS) {
		printf("profile counter %i: %i\n", counter, static_cast<int>(record->sum));
		record->count = 0;
		record->sum   = 0;
		return;
	}
	record->sum += g_clock->Ticks() - record->startTicks;
	record->count++;
}
