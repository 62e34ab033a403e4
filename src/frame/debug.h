// The error and log channel: every fatal condition of the program passes through here.
#pragma once

#include <string>

// Prints "ERROR!  prefix detail" to standard output; with log set appends it to LOG.TXT in the
// working directory; with fatal set ends the process with exit code 1. A log that cannot be
// opened ends the process too, whatever was asked for.
void Error(const std::string& prefix, const std::string& detail, bool fatal, bool log);
void Error(const std::string& message, bool fatal, bool log);

// Appends a line to the log without printing it.
void LogLine(const std::string& message);

// Ten counters of milliseconds, 0 to 9, that print their sum every 300 rounds.
void ProfileStart(int counter);
void ProfileStop(int counter);
