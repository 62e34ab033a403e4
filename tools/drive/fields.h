// What a script can ask of the running game, by name.
#pragma once

#include <string>
#include <vector>

// The value as text; numbers without needless digits. False for a name that does not exist.
bool ReadField(const std::string& name, std::string& value);

// All names, in the order in which they are shown; done.N stands for 182 of them and is left out.
std::vector<std::string> FieldNames();

// Compares as numbers when both are numbers, else as text, where only = and != make sense.
// False in valid for an operator that does not exist.
bool Holds(const std::string& value, const std::string& op, const std::string& wanted, bool& valid);

// Passes of the main loop since the program started.
extern int g_driverFrame;

// Writes the field as lines; false when the file cannot be written.
bool DumpField(const std::string& path);
