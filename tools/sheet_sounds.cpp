// Lays the effects of resource2.dat out on one sheet: name, length, level, waveform, spectrogram.
#include "tools/sheet_sounds.h"

#include "art/core/canvas.h"
#include "art/core/container.h"
#include "art/core/encode.h"
#include "art/core/files.h"
#include "art/sounds/loudness.h"
#include "art/sounds/spectrum.h"
#include "art/sounds/vorbis_file.h"

#include <cstdio>
#include <cstring>

static const int COLUMNS = 5, FEW = 9, FEW_COLUMNS = 3; // few effects are drawn larger
static const int CELL_WIDTH = 252, LABEL = 26, WAVE_HEIGHT = 36, SPECTRUM_HEIGHT = 150; // pixels
static const int GAP       = 8;
static const double TOP_HZ = 10000, FLOOR_DB = -70; // of the spectrogram; 0 is its loudest spot
static const size_t WINDOW = 1024;

static const Colour GROUND = {.05f, .06f, .09f}, WAVE_COLOUR = {.45f, .8f, .6f};
static const Colour NAME_COLOUR = {1, .92f, .55f}, FIGURE_COLOUR = {.7f, .78f, .9f};

namespace
{
struct Order {
	std::string out, prefix, data = "build/release/data";
};
struct Effect {
	std::string name;
	size_t bytes;
	Sound sound;
};
// Sizes of one sheet in pixels.
struct Layout {
	int columns = COLUMNS, cellWidth = CELL_WIDTH, spectrumHeight = SPECTRUM_HEIGHT;

	explicit Layout(size_t count)
	{
		if (count <= (size_t)FEW) {
			columns        = std::min((int)count, FEW_COLUMNS);
			cellWidth      = CELL_WIDTH * 2;
			spectrumHeight = SPECTRUM_HEIGHT * 2;
		}
	}
	int CellHeight() const { return LABEL + WAVE_HEIGHT + spectrumHeight; }
	int LeftOf(size_t i) const { return GAP + (int)i % columns * (cellWidth + GAP); }
	int TopOf(size_t i) const { return GAP + (int)i / columns * (CellHeight() + GAP); }
};
} // namespace

static bool ReadOrder(int count, char** words, Order& order)
{
	int plain = 0;
	for (int i = 2; i < count; i++) {
		std::string word = words[i];
		if (word == "--data" && i + 1 < count)
			order.data = words[++i];
		else if (plain == 0 && ++plain)
			order.out = word;
		else if (plain == 1 && ++plain)
			order.prefix = word;
		else
			return false;
	}
	return plain > 0;
}

// Dark blue over red to white, by 0..1.
static Colour Heat(float v)
{
	return {Clamp01(v * 1.9f - .15f), Clamp01(v * 2.1f - .85f),
	        Clamp01(v < .4f ? v * 1.4f : 1.1f - v * 1.4f + std::max(0.f, v - .7f) * 4.2f)};
}

static void DrawWave(Image& sheet, const Sound& sound, int width, int left, int top)
{
	double peak  = std::max(1e-6, std::max(PeakOf(sound.left), PeakOf(sound.right)));
	float middle = top + WAVE_HEIGHT / 2.f;
	for (int x = 0; x < width; x++) {
		size_t from = sound.left.size() * x / width;
		size_t to   = std::max(from + 1, sound.left.size() * (x + 1) / width);
		double low = 0, high = 0;
		for (size_t i = from; i < to && i < sound.left.size(); i++) {
			low  = std::min(low, sound.left[i]);
			high = std::max(high, sound.left[i]);
		}
		float scale = (WAVE_HEIGHT / 2.f - 1) / (float)peak;
		for (int y = (int)(middle - high * scale); y <= (int)(middle - low * scale); y++)
			Blend(sheet, left + x, y, WAVE_COLOUR);
	}
}

static void DrawSpectrogram(Image& sheet, const Sound& sound, const Layout& layout, int left,
                            int top)
{
	std::vector<std::vector<double>> columns;
	double loudest = 1e-12;
	for (int x = 0; x < layout.cellWidth; x++) {
		long middle = (long)(sound.left.size() * (x + .5) / layout.cellWidth);
		columns.push_back(PowerSpectrum(sound.left, middle, WINDOW));
		for (double power : columns.back())
			loudest = std::max(loudest, power);
	}
	for (int x = 0; x < layout.cellWidth; x++)
		for (int y = 0; y < layout.spectrumHeight; y++) {
			double hz   = TOP_HZ * (layout.spectrumHeight - 1 - y) / layout.spectrumHeight;
			double band = hz * WINDOW / SAMPLE_RATE;
			size_t i    = (size_t)band;
			double u = band - i, power = columns[x][i] * (1 - u) + columns[x][i + 1] * u;
			double db = 10 * std::log10(std::max(1e-12, power / loudest));
			Blend(sheet, left + x, top + y, Heat(Clamp01((float)(1 - db / FLOOR_DB))));
		}
}

static void Caption(Canvas& canvas, const Effect& effect, int left, int top)
{
	char figures[120];
	double peak = std::max(PeakOf(effect.sound.left), PeakOf(effect.sound.right));
	std::snprintf(figures, sizeof figures, "%.2f s   %.1f dB   peak %.1f   %.0f Hz   %.1f kB%s",
	              effect.sound.Seconds(), Loudness(effect.sound), ToDb(peak),
	              SpectralCentre(effect.sound), effect.bytes / 1000.0,
	              effect.sound.IsStereo() ? "   stereo" : "");
	canvas.Print(effect.name, 13, left, top + 7, NAME_COLOUR, Align::Left, PRINT_FACE);
	canvas.Print(figures, 11, left, top + 19, FIGURE_COLOUR, Align::Left, PRINT_FACE);
}

static std::vector<Effect> DecodeAll(const std::vector<Picture>& entries, const std::string& prefix)
{
	std::vector<Effect> effects;
	for (const Picture& p : entries) {
		if (p.name.compare(0, prefix.size(), prefix))
			continue;
		Effect effect = {p.name, p.bytes.size(), {}};
		if (DecodeVorbis(p.bytes, effect.sound))
			effects.push_back(std::move(effect));
		else
			std::fprintf(stderr, "sheet: %s can't be decoded\n", p.name.c_str());
	}
	return effects;
}

int DrawSoundSheet(int count, char** words)
{
	Order order;
	if (!ReadOrder(count, words, order)) {
		std::fputs("sheet --sounds OUT.png [PREFIX] [--data DIR]\n", stderr);
		return 2;
	}
	std::string bytes;
	std::vector<Picture> entries;
	if (!ReadFile(order.data + "/resource2.dat", bytes) || !UnpackContainer(bytes, entries)) {
		std::fprintf(stderr, "sheet: no resource2.dat in %s\n", order.data.c_str());
		return 1;
	}
	std::vector<Effect> effects = DecodeAll(entries, order.prefix);
	if (effects.empty()) {
		std::fprintf(stderr, "sheet: no sound begins with '%s'\n", order.prefix.c_str());
		return 1;
	}
	Layout layout(effects.size());
	int rows    = ((int)effects.size() + layout.columns - 1) / layout.columns;
	Image sheet = Filled(GAP + layout.columns * (layout.cellWidth + GAP),
	                     GAP + rows * (layout.CellHeight() + GAP), GROUND);
	for (size_t i = 0; i < effects.size(); i++) {
		int left = layout.LeftOf(i), top = layout.TopOf(i) + LABEL;
		DrawWave(sheet, effects[i].sound, layout.cellWidth, left, top);
		DrawSpectrogram(sheet, effects[i].sound, layout, left, top + WAVE_HEIGHT);
	}
	Canvas canvas(sheet.width, sheet.height, 1);
	canvas.Place(sheet, 0, 0);
	for (size_t i = 0; i < effects.size(); i++)
		Caption(canvas, effects[i], layout.LeftOf(i), layout.TopOf(i));
	return WriteIfChanged(order.out, EncodePng(canvas.pixels)) ? 0 : 1;
}
