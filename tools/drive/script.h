// A script of the driver: one command a line, read and checked before the game starts.
#pragma once

#include <istream>
#include <string>
#include <vector>

struct ScriptCommand {
	int line; // counted from 1
	std::string text;
	std::string word;              // the command
	std::vector<std::string> args; // the rest, split at blanks
};

// Reads all commands; blank lines and what follows a # are left out. On a command that does not
// exist or has the wrong number of arguments it returns false and tells the line in problem.
bool ReadScript(std::istream& in, std::vector<ScriptCommand>& script, std::string& problem);

// One line for each command.
std::string ScriptUsage();
