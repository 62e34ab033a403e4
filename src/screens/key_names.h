// What keys are called on the controls screen.
#pragma once

#include <string>

// The name of an SDL key symbol, at most 19 characters, all of them in the bitmap font; "UNKNOWN"
// for a code that has none.
std::string KeyName(int code);
