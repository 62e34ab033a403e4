// The way out to the desktop's browser.
#include "screens/open_address.h"

#include <spawn.h>
#include <unistd.h>

#include <string>

// No shell reads the address: it goes over as it is.
void OpenAddress(const std::string& address)
{
	if (address.empty())
		return;
	std::string handler = "xdg-open", argument = address;
	char* words[] = {handler.data(), argument.data(), nullptr};
	pid_t child   = 0;
	posix_spawnp(&child, words[0], nullptr, nullptr, words, environ);
}
