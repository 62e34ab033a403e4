// The entry that libFuzzer calls, and what the replay needs besides.
#pragma once

#include <cstddef>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size);
void CleanUpFuzz();
