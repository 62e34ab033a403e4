// Benchmarks of the animals: a crowded field, the making of each species, all their pictures.
#include "animals/species.h"
#include "bench/rounds.h"
#include "field/crate.h"
#include "frame/random.h"
#include "level/parts.h"
#include "media/display.h"
#include "media/render_manager.h"
#include "state/game_data.h"
#include "support/world.h"

#include <map>
#include <set>

// A species in turn at each place of a grid: all that have their pictures in the container.
static void PlaceMixedAnimals(int count)
{
	for (int i = 0; i < count; i++) {
		const SpeciesEntry& entry = AllSpecies()[i % AllSpecies().size()];
		entry.make(50 + i % 12 * 53, 190 + i / 12 * 60, i & 1);
	}
}

// The animals' own points come on top of the obstacles.
static void FieldTickOf60Animals(benchmark::State& state)
{
	static const int ANIMALS = 60, OBSTACLES = 200;
	CWorld world;
	SeedRandom(5);
	g_gameData->OnLevelStart(1);
	CElement* scenery = Crate(346, 150);
	for (int i = 0; i < OBSTACLES; i++) {
		float x = RandomRange(0, 693);
		float y = RandomRange(140, 480);
		AddObstaclePoint(scenery, x, y);
	}
	PlaceMixedAnimals(ANIMALS);
	CRounds rounds;
	for (auto _ : state) {
		rounds.Begin();
		FieldTick();
		rounds.End(state);
		g_render->Update(true); // pictures step, so that actions end
	}
	rounds.Report(state);
	state.counters["obstacles"] = CElement::ObstaclePointList.size();
	ClearField();
}
BENCHMARK(FieldTickOf60Animals)->UseManualTime()->Iterations(3000)->Unit(benchmark::kMillisecond);

// Holds every picture of every species, decoded, and lets them go at the end.
class CAllPictures
{
public:
	CAllPictures()
	{
		for (const SpeciesEntry& entry : AllSpecies())
			for (const std::string& file : AllPictureFiles(*entry.table))
				images.push_back(g_display->LoadImage(file));
		for (int image : images)
			g_display->ImageSurface(image);
	}
	~CAllPictures()
	{
		for (int image : images)
			g_display->ReleaseImage(image);
	}
	double Megabytes() const
	{
		double bytes = 0;
		for (int image : std::set<int>(images.begin(), images.end())) {
			const SDL_Surface* surface = g_display->ImageSurface(image);
			bytes += static_cast<double>(surface->pitch) * surface->h;
		}
		return bytes / (1 << 20);
	}
	std::vector<int> images;
};

// Making an animal whose pictures are there; the slowest species is told by name.
static void MakeEverySpecies(benchmark::State& state)
{
	CWorld world;
	SeedRandom(5);
	g_gameData->OnLevelStart(1);
	double residentBefore = ResidentMegabytes();
	CAllPictures pictures;
	state.counters["pictures"]     = pictures.images.size();
	state.counters["pixels_MiB"]   = pictures.Megabytes();
	state.counters["resident_MiB"] = ResidentMegabytes() - residentBefore;
	CRounds rounds;
	std::map<const char*, double> quickest; // milliseconds: what disturbs the machine is left out
	size_t next = 0;
	for (auto _ : state) {
		const SpeciesEntry& entry = AllSpecies()[next++ % AllSpecies().size()];
		rounds.Begin();
		entry.make(300, 300, next & 1);
		double time   = rounds.End(state);
		auto known    = quickest.emplace(entry.table->prefix, time).first;
		known->second = std::min(known->second, time);
		ClearField();
	}
	rounds.Report(state);
	auto worst                 = std::max_element(quickest.begin(), quickest.end(),
	                                              [](auto& a, auto& b) { return a.second < b.second; });
	state.counters["worst_ms"] = worst->second;
	state.SetLabel(std::string("worst: ") + worst->first);
}
BENCHMARK(MakeEverySpecies)->UseManualTime()->Iterations(700)->Unit(benchmark::kMillisecond);
