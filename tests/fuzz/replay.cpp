// Runs the fuzz target on thousands of damaged files, the same ones each time: needs no libFuzzer.
#include "tests_fuzz.h"

#include <cstdio>
#include <string>
#include <vector>

static unsigned int s_state = 12345;

static unsigned int Next()
{
	s_state = s_state * 1664525u + 1013904223u;
	return s_state >> 8;
}

static void Put32(std::vector<unsigned char>& data, unsigned int value)
{
	for (int shift = 0; shift < 32; shift += 8)
		data.push_back(static_cast<unsigned char>(value >> shift));
}

// A small container that is whole.
static std::vector<unsigned char> Container()
{
	std::vector<unsigned char> data;
	const unsigned int entries = 3, entrySize = 8 + 5 + 6;
	Put32(data, entries);
	for (unsigned int i = 0; i < entries; i++)
		Put32(data, 4 + 4 * entries + i * entrySize);
	for (unsigned int i = 0; i < entries; i++) {
		Put32(data, 6);
		Put32(data, 5);
		for (char c : std::string("a.png") + "bytes!")
			data.push_back(static_cast<unsigned char>(c));
	}
	return data;
}

// Bytes of a profile's size; most values in them are out of their range.
static std::vector<unsigned char> Noise(size_t size)
{
	std::vector<unsigned char> data(size);
	for (unsigned char& byte : data)
		byte = static_cast<unsigned char>(Next());
	return data;
}

static void Damage(std::vector<unsigned char>& data)
{
	for (unsigned int hits = Next() % 8; hits > 0 && !data.empty(); hits--)
		data[Next() % data.size()] = Next() % 3 ? static_cast<unsigned char>(Next()) : 0xff;
	if (Next() % 4 == 0)
		data.resize(Next() % (data.size() + 1));
}

int main()
{
	const int rounds = 1500;
	for (int i = 0; i < rounds; i++) {
		std::vector<unsigned char> data = i % 2 ? Container() : Noise(Next() % 4400);
		Damage(data);
		data.push_back(0); // never null, also when empty
		LLVMFuzzerTestOneInput(data.data(), data.size() - 1);
	}
	CleanUpFuzz();
	std::printf("%d damaged files read\n", rounds);
	return 0;
}
