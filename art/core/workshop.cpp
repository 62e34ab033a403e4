// The work queue of the forge and its cache, a file for each group.
#include "art/core/workshop.h"

#include "art/core/container.h"
#include "art/core/files.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fluidsynth.h>
#include <jpeglib.h>
#include <pango/pangocairo.h>
#include <png.h>
#include <thread>
#include <vorbis/codec.h>

Workshop::Workshop(const std::string& root, const std::string& cacheFolder, int threads)
    : keys(root), cacheFolder(cacheFolder), threads(std::max(1, threads))
{
	if (!cacheFolder.empty()) {
		std::error_code failed;
		std::filesystem::create_directories(cacheFolder, failed);
	}
}

// What is made depends on the libraries too.
static std::string LibraryVersions()
{
	return std::string(cairo_version_string()) + " " + pango_version_string() + " " +
	       PNG_LIBPNG_VER_STRING + " " + std::to_string(JPEG_LIB_VERSION) + " " +
	       vorbis_version_string() + " " + fluid_version_str();
}

std::vector<Picture> Workshop::Run(const std::vector<Group>& groups)
{
	uint64_t libraries = HashBytes(LibraryVersions());
	std::vector<Job> jobs;
	for (const Group& group : groups) {
		uint64_t key = HashBytes(group.name, libraries ^ keys.KeyOf(group.source));
		bool keep    = keys.TimeOf(group.source) <= built;
		jobs.push_back({&group, key, keep, {}, false, 0});
	}
	std::atomic<size_t> next = 0;
	auto work                = [&] {
        for (size_t i = next++; i < jobs.size(); i = next++)
            Do(jobs[i]);
	};
	std::vector<std::thread> others;
	for (int i = 1; i < threads; i++)
		others.emplace_back(work);
	work();
	for (std::thread& other : others)
		other.join();

	drawn = reused = 0;
	times.clear();
	std::vector<Picture> all;
	for (Job& job : jobs) {
		(job.fromCache ? reused : drawn)++;
		if (!job.fromCache)
			times.emplace_back(job.seconds, job.group->name);
		for (Picture& picture : job.pictures)
			all.push_back(std::move(picture));
	}
	return all;
}

void Workshop::Do(Job& job) const
{
	if (job.keep && Load(job))
		return;
	auto start = std::chrono::steady_clock::now();
	Sink sink;
	job.group->draw(sink);
	job.pictures = std::move(sink.pictures);
	job.seconds  = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
	if (job.keep)
		Keep(job);
}

std::string Workshop::CacheFile(const Job& job) const
{
	std::string file = job.group->name;
	for (char& c : file)
		if (c == '/' || c == ' ')
			c = '_';
	return cacheFolder + "/" + file + ".group";
}

static std::string KeyName(uint64_t key)
{
	return "key " + std::to_string(key);
}

// A cache file is a container: the key first, then each picture as "width height name".
bool Workshop::Load(Job& job) const
{
	std::string bytes;
	std::vector<Picture> entries;
	if (cacheFolder.empty() || !ReadFile(CacheFile(job), bytes) ||
	    !UnpackContainer(bytes, entries) || entries.empty() || entries[0].name != KeyName(job.key))
		return false;
	entries.erase(entries.begin());
	for (Picture& p : entries) {
		int nameAt = 0;
		if (std::sscanf(p.name.c_str(), "%d %d %n", &p.width, &p.height, &nameAt) != 2)
			return false;
		p.name = p.name.substr(nameAt);
	}
	job.pictures  = std::move(entries);
	job.fromCache = true;
	return true;
}

void Workshop::Keep(const Job& job) const
{
	if (cacheFolder.empty())
		return;
	std::vector<Picture> entries = {{KeyName(job.key), "", 0, 0}};
	for (const Picture& p : job.pictures) {
		std::string size = std::to_string(p.width) + " " + std::to_string(p.height);
		entries.push_back({size + " " + p.name, p.bytes, 0, 0});
	}
	WriteIfChanged(CacheFile(job), PackContainer(entries));
}
