// Draws the groups of a catalogue on several threads and keeps what it drew.
#pragma once

#include "art/core/catalogue.h"
#include "art/core/source_keys.h"

// Draws groups in parallel. The result lies in the order of the groups whatever the number of
// threads. Groups whose sources haven't changed come out of the cache folder.
class Workshop
{
public:
	// root: the folder that holds art/. cacheFolder: created when needed; empty for no cache.
	Workshop(const std::string& root, const std::string& cacheFolder, int threads);

	// When the program that draws was built. Groups whose sources were written to since then are
	// drawn but not kept: the program doesn't know the newer source yet.
	std::filesystem::file_time_type built = std::filesystem::file_time_type::max();

	std::vector<Picture> Run(const std::vector<Group>& groups);

	int drawn  = 0;                                    // groups of the last run that were drawn
	int reused = 0;                                    // and that came out of the cache
	std::vector<std::pair<double, std::string>> times; // seconds and name of each group drawn

private:
	struct Job {
		const Group* group;
		uint64_t key;
		bool keep; // the key tells what the program really draws
		std::vector<Picture> pictures;
		bool fromCache = false;
		double seconds = 0;
	};
	void Do(Job& job) const;
	bool Load(Job& job) const;
	void Keep(const Job& job) const;
	std::string CacheFile(const Job& job) const;

	SourceKeys keys;
	std::string cacheFolder;
	int threads;
};
