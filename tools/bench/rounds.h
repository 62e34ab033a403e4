// What all benchmarks share: the times of their rounds, and the memory in use.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <fstream>
#include <string>
#include <vector>

const double FRAME_MS = 33;

// Times of single rounds, for their median and 99th percentile.
class CRounds
{
public:
	void Begin() { start = std::chrono::steady_clock::now(); }
	double End(benchmark::State& state) // milliseconds of the round
	{
		std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
		state.SetIterationTime(time.count());
		milliseconds.push_back(time.count() * 1000);
		return milliseconds.back();
	}
	void Report(benchmark::State& state)
	{
		std::sort(milliseconds.begin(), milliseconds.end());
		double median                  = milliseconds[milliseconds.size() / 2];
		state.counters["median_ms"]    = median;
		state.counters["p99_ms"]       = milliseconds[milliseconds.size() * 99 / 100];
		state.counters["frame_share%"] = median / FRAME_MS * 100;
	}

private:
	std::chrono::steady_clock::time_point start;
	std::vector<double> milliseconds;
};

// One frame as the main loop shows it, without the wait for its end.
void PresentFrame();

// Megabytes that the process holds now.
inline double ResidentMegabytes()
{
	std::ifstream status("/proc/self/status");
	for (std::string word; status >> word;) {
		if (word != "VmRSS:")
			continue;
		double kilobytes = 0;
		status >> kilobytes;
		return kilobytes / 1024;
	}
	return 0;
}
