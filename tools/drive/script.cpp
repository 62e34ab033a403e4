// A script of the driver: one command a line, read and checked before the game starts.
#include "drive/script.h"

#include <cstring>
#include <sstream>

struct CommandForm {
	const char* word;
	int fewest, most; // arguments
	const char* usage;
};

static const int ANY = 1000;

// clang-format off
static const CommandForm s_forms[] = {
	// word    fewest most  usage
	{ "wait",    1,   1,   "wait N" },
	{ "move",    2,   2,   "move X Y" },
	{ "press",   1,   1,   "press left|right" },
	{ "release", 1,   1,   "release left|right" },
	{ "click",   2,   2,   "click X Y" },
	{ "key",     1,   ANY, "key NAME" },
	{ "hold",    1,   ANY, "hold NAME" },
	{ "let",     1,   ANY, "let NAME" },
	{ "until",   3,   5,   "until FIELD OP VALUE [within N]" },
	{ "expect",  3,   3,   "expect FIELD OP VALUE" },
	{ "show",    0,   ANY, "show [FIELD...]" },
	{ "shot",    1,   1,   "shot FILE.png" },
	{ "dump",    1,   1,   "dump FILE" },
	{ "level",   1,   1,   "level N" },
	{ "zoo",     1,   ANY, "zoo [grass|sand|snow|night] [left|right] SPECIES...|all" },
	{ "act",     2,   2,   "act SPECIES WORD|bump" },
	{ "film",    2,   2,   "film FOLDER N" },
	{ "bot",     1,   1,   "bot on|off" },
	{ "seed",    1,   1,   "seed S" },
	{ "quit",    0,   0,   "quit" },
};
// clang-format on

static const CommandForm* FindForm(const std::string& word)
{
	for (const CommandForm& form : s_forms)
		if (word == form.word)
			return &form;
	return nullptr;
}

std::string ScriptUsage()
{
	std::string text;
	for (const CommandForm& form : s_forms)
		text += std::string("  ") + form.usage + "\n";
	return text;
}

static bool CheckForm(const ScriptCommand& command, std::string& problem)
{
	const CommandForm* form = FindForm(command.word);
	int count               = static_cast<int>(command.args.size());
	bool wrongWithin =
	    command.word == "until" && count > 3 && (count != 5 || command.args[3] != "within");
	if (form && count >= form->fewest && count <= form->most && !wrongWithin)
		return true;
	problem = "line " + std::to_string(command.line) + ": " + command.text + ": ";
	problem += form ? std::string("usage: ") + form->usage : "no such command";
	return false;
}

bool ReadScript(std::istream& in, std::vector<ScriptCommand>& script, std::string& problem)
{
	std::string text;
	for (int line = 1; std::getline(in, text); line++) {
		text = text.substr(0, text.find('#'));
		std::istringstream words(text);
		ScriptCommand command;
		command.line = line;
		command.text = text;
		if (!(words >> command.word))
			continue;
		for (std::string word; words >> word;)
			command.args.push_back(word);
		if (!CheckForm(command, problem))
			return false;
		script.push_back(command);
	}
	return true;
}
