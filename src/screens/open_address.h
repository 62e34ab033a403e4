// The way out to the desktop's browser.
#pragma once

#include <string>

// Hands a web address to the desktop's default handler and does not wait for it. Nothing happens
// when the address is empty or there is no handler.
void OpenAddress(const std::string& address);
