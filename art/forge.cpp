// The forge: makes every picture and sound of the game and writes the files it is played from.
#include "art/core/container.h"
#include "art/core/files.h"
#include "art/core/lettering.h"
#include "art/core/workshop.h"
#include "art/families.h"
#include "art/stand_in.h"
#include "art/wanted.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <set>
#include <thread>

// Files of their own, not entries of resource.dat.
static const char* const BESIDE_FILES[] = {"loading.dat", "loadingtext.dat", "splash.dat",
                                           "splash2.jpg", "splash3.jpg",     "icon.dat"};

static const char* const USAGE =
    "forge OUT [--only PREFIX...]   draw and write into the folder OUT\n"
    "forge --list                   print every picture with its size\n"
    "forge --undrawn                print the names asked for that have no picture\n"
    "  --cache DIR    where drawn groups are kept (OUT/../forge-cache)\n"
    "  --threads N    instead of one for each processor\n"
    "  --times        print the slowest groups\n"
    "  --strict       fail when a name has no picture\n";

namespace
{
struct Order {
	std::string out, cache;
	std::vector<std::string> only;
	int threads = 0;
	bool list = false, undrawn = false, times = false, strict = false, wrong = false;
};
} // namespace

static Order ReadOrder(int count, char** words)
{
	Order order;
	for (int i = 1; i < count; i++) {
		std::string word = words[i];
		bool hasNext     = i + 1 < count;
		if (word == "--list")
			order.list = true;
		else if (word == "--undrawn")
			order.undrawn = true;
		else if (word == "--times")
			order.times = true;
		else if (word == "--strict")
			order.strict = true;
		else if (word == "--cache" && hasNext)
			order.cache = words[++i];
		else if (word == "--threads" && hasNext)
			order.threads = std::atoi(words[++i]);
		else if (word == "--only")
			while (i + 1 < count && words[i + 1][0] != '-')
				order.only.push_back(words[++i]);
		else if (word[0] != '-' && order.out.empty())
			order.out = word;
		else
			order.wrong = true;
	}
	if (order.threads <= 0)
		order.threads = std::max(1u, std::thread::hardware_concurrency());
	return order;
}

static bool StartsWithAny(const std::string& text, const std::vector<std::string>& starts)
{
	for (const std::string& start : starts)
		if (text.compare(0, start.size(), start) == 0)
			return true;
	return starts.empty();
}

// The names in the list that no picture has.
static std::vector<std::string> Undrawn(const WantedNames& wanted,
                                        const std::vector<Picture>& pictures)
{
	std::set<std::string> drawn;
	for (const Picture& p : pictures)
		drawn.insert(p.name);
	std::vector<std::string> missing;
	for (const std::string& name : wanted.pictures)
		if (!drawn.count(name))
			missing.push_back(name);
	return missing;
}

static bool EndsWith(const std::string& text, const std::string& end)
{
	return text.size() >= end.size() &&
	       text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// A file of its own: the few by name, and music.
static bool LiesBeside(const std::string& name)
{
	if (EndsWith(name, ".mdt"))
		return true;
	for (const char* beside : BESIDE_FILES)
		if (name == beside)
			return true;
	return false;
}

static bool Write(const std::string& folder, const std::string& name, const std::string& bytes)
{
	if (WriteIfChanged(folder + "/" + name, bytes))
		return true;
	std::fprintf(stderr, "forge: can't write %s/%s\n", folder.c_str(), name.c_str());
	return false;
}

static bool WriteAll(const std::string& folder, std::vector<Picture> pictures)
{
	std::error_code failed;
	std::filesystem::create_directories(folder, failed);
	std::vector<Picture> inside, sounds;
	for (Picture& p : pictures) {
		if (EndsWith(p.name, ".ogg"))
			sounds.push_back(std::move(p));
		else if (!LiesBeside(p.name))
			inside.push_back(std::move(p));
		else if (!Write(folder, p.name, p.bytes))
			return false;
	}
	return Write(folder, "resource.dat", PackContainer(inside)) &&
	       Write(folder, "resource2.dat", PackContainer(sounds));
}

// False when a name was drawn twice: the game would show one of the two by chance.
static bool NamesAreUnique(const std::vector<Picture>& pictures)
{
	std::set<std::string> names;
	bool unique = true;
	for (const Picture& p : pictures)
		if (!names.insert(p.name).second) {
			std::fprintf(stderr, "forge: %s is drawn twice\n", p.name.c_str());
			unique = false;
		}
	return unique;
}

static void PrintTimes(const Workshop& workshop)
{
	const size_t MOST = 25;
	auto times        = workshop.times;
	std::sort(times.rbegin(), times.rend());
	for (size_t i = 0; i < times.size() && i < MOST; i++)
		std::printf("%7.2f s  %s\n", times[i].first, times[i].second.c_str());
}

static std::vector<Group> ChosenGroups(const Order& order)
{
	Catalogue catalogue;
	AddEverything(catalogue);
	std::vector<Group> chosen;
	for (Group& group : catalogue.groups)
		if (StartsWithAny(group.name, order.only))
			chosen.push_back(std::move(group));
	return chosen;
}

static std::string CacheFolder(const Order& order)
{
	if (!order.cache.empty())
		return order.cache;
	if (order.out.empty()) { // beside the forge itself, where a build keeps it
		std::error_code failed;
		std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", failed);
		return self.parent_path().string() + "/forge-cache";
	}
	std::string out = std::filesystem::absolute(order.out).lexically_normal().string();
	if (out.back() == '/')
		out.pop_back();
	return std::filesystem::path(out).parent_path().string() + "/forge-cache";
}

int main(int count, char** words)
{
	Order order = ReadOrder(count, words);
	if (order.wrong || (order.out.empty() && !order.list && !order.undrawn)) {
		std::fputs(USAGE, stderr);
		return 2;
	}
	std::string missingFont = MissingFont(), wantedText;
	if (!missingFont.empty()) {
		std::fprintf(stderr, "forge: %s\n", missingFont.c_str());
		return 1;
	}
	if (!ReadFile(std::string(QUORBLET_SOURCE_DIR) + "/art/wanted.txt", wantedText)) {
		std::fputs("forge: art/wanted.txt is missing\n", stderr);
		return 1;
	}
	Workshop workshop(QUORBLET_SOURCE_DIR, CacheFolder(order), order.threads);
	std::error_code unknown;
	auto built = std::filesystem::last_write_time("/proc/self/exe", unknown);
	if (!unknown)
		workshop.built = built;
	std::vector<Picture> pictures = workshop.Run(ChosenGroups(order));
	if (!NamesAreUnique(pictures))
		return 1;
	std::vector<std::string> undrawn = Undrawn(ReadWanted(wantedText), pictures);
	if (order.list)
		for (const Picture& p : pictures)
			std::printf("%-44s %4dx%-4d %8zu\n", p.name.c_str(), p.width, p.height, p.bytes.size());
	if (order.undrawn)
		for (const std::string& name : undrawn)
			std::printf("%s\n", name.c_str());
	if (order.times)
		PrintTimes(workshop);
	if (order.out.empty())
		return 0;
	size_t drawn = pictures.size();
	for (Picture& p : MakeStandIns(undrawn))
		pictures.push_back(std::move(p));
	if (!WriteAll(order.out, std::move(pictures)))
		return 1;
	std::printf("forge: %d groups drawn, %d unchanged; %zu pictures and sounds, %zu stand-ins\n",
	            workshop.drawn, workshop.reused, drawn, undrawn.size());
	return order.strict && !undrawn.empty() ? 1 : 0;
}
