// Reads the list of wanted names and multiplies its brackets out.
#include "art/wanted.h"

#include <cctype>
#include <cstdlib>
#include <sstream>

static bool IsNumber(const std::string& word)
{
	for (char c : word)
		if (!std::isdigit((unsigned char)c))
			return false;
	return !word.empty();
}

// Appends what one alternative stands for: a word, a run of numbers or a run of letters.
static void ExpandAlternative(const std::string& word, std::vector<std::string>& out)
{
	size_t dots      = word.find("..");
	std::string from = word.substr(0, dots);
	std::string to   = dots == std::string::npos ? "" : word.substr(dots + 2);
	if (IsNumber(from) && IsNumber(to)) {
		for (int i = std::atoi(from.c_str()); i <= std::atoi(to.c_str()); i++) {
			std::string number = std::to_string(i);
			while (number.size() < from.size())
				number = "0" + number;
			out.push_back(number);
		}
	} else if (from.size() == 1 && to.size() == 1) {
		for (char c = from[0]; c <= to[0]; c++)
			out.push_back(std::string(1, c));
	} else {
		out.push_back(word);
	}
}

std::vector<std::string> ExpandPattern(const std::string& pattern)
{
	size_t open = pattern.find('['), end = pattern.find(']', open);
	if (open == std::string::npos || end == std::string::npos)
		return {pattern};
	std::vector<std::string> middles;
	std::string word;
	for (size_t at = open + 1; at <= end; at++) {
		if (pattern[at] == '|' || at == end) {
			ExpandAlternative(word, middles);
			word.clear();
		} else {
			word += pattern[at];
		}
	}
	std::vector<std::string> out;
	std::vector<std::string> tails = ExpandPattern(pattern.substr(end + 1));
	for (const std::string& middle : middles)
		for (const std::string& tail : tails)
			out.push_back(pattern.substr(0, open) + middle + tail);
	return out;
}

WantedNames ReadWanted(const std::string& text)
{
	WantedNames names;
	std::istringstream lines(text);
	std::string line, word;
	while (std::getline(lines, line)) {
		std::istringstream words(line.substr(0, line.find('#')));
		std::vector<std::string>* list = &names.pictures;
		while (words >> word) {
			if (word == "beside:") {
				list = &names.beside;
				continue;
			}
			for (std::string& name : ExpandPattern(word))
				list->push_back(std::move(name));
		}
	}
	return names;
}
