// Loading: the image container with its bar, and the images that are held for the whole run.
#include "media/display.h"

#include "frame/debug.h"
#include "sound/sound_manager.h"

#include <cstring>

static const char* const RESOURCE_FILE     = "resource.dat";
static const char* const LOADING_TEXT_FILE = "loadingtext.dat";
static const int LOADING_BAR_X             = 360; // pixels
static const int LOADING_BAR_Y             = 527;

struct PersistentRun {
	const char* prefix;
	int first, last; // numbers of the run; NO_RUN: prefix and suffix are the whole name
	const char* suffix;
};

static const int NO_RUN = -1;

// clang-format off
static const PersistentRun s_persistentRuns[] = {
	{ "appleA.png", NO_RUN, 0, "" },
	{ "apple2A.png", NO_RUN, 0, "" },
	{ "apple2B.png", NO_RUN, 0, "" },
	{ "apple2C.png", NO_RUN, 0, "" },
	{ "appleB.png", NO_RUN, 0, "" },
	{ "appleC.png", NO_RUN, 0, "" },
	{ "acornA.png", NO_RUN, 0, "" },
	{ "acornB.png", NO_RUN, 0, "" },
	{ "acornC.tga", NO_RUN, 0, "" },
	{ "acornD.png", NO_RUN, 0, "" },
	{ "coconutA.png", NO_RUN, 0, "" },
	{ "coconutB.png", NO_RUN, 0, "" },
	{ "coconutC.png", NO_RUN, 0, "" },
	{ "coingoldlarge", 0, 3, ".tga" },
	{ "coincoppersmall", 0, 3, ".tga" },
	{ "coinsilversmall", 0, 3, ".tga" },
	{ "coinsilverlarge", 0, 3, ".tga" },
	{ "coingoldsmall", 0, 3, ".tga" },
	{ "chickeneggleft", 0, 11, ".tga" },
	{ "chickeneggleftbubble.tga", NO_RUN, 0, "" },
	{ "chickeneggright", 0, 11, ".tga" },
	{ "chickeneggrightbubble.tga", NO_RUN, 0, "" },
	{ "pineconeA.png", NO_RUN, 0, "" },
	{ "pineconeB.png", NO_RUN, 0, "" },
	{ "flyaway0-", 0, 15, ".png" },
	{ "flyaway1-", 0, 15, ".png" },
	{ "flyaway2-", 0, 15, ".png" },
	{ "flyaway3-", 0, 15, ".png" },
	{ "flyaway4-", 0, 15, ".png" },
	{ "flyaway5-", 0, 15, ".png" },
	{ "flyaway6-", 0, 15, ".png" },
	{ "flyaway7-", 0, 15, ".png" },
	{ "flyaway8-", 0, 15, ".png" },
	{ "flyaway9-", 0, 15, ".png" },
	{ "flyawaydollar-", 0, 15, ".png" },
	{ "balloons", 40, 57, ".png" },
	{ "balloonsB", 17, 39, ".png" },
	{ "balloons_shrink", 0, 2, ".png" },
	{ "powerupdisc.png", NO_RUN, 0, "" },
	{ "moneybag", 1, 15, ".png" },
	{ "moneybagcollected", 0, 6, ".png" },
	{ "powerupgrowpaddle", 0, 9, ".png" },
	{ "powerupshrinkpaddle", 0, 9, ".png" },
	{ "powerupgravitybubble", 0, 11, ".png" },
	{ "powerupbulldozer.png", NO_RUN, 0, "" },
	{ "powerupstickypaddle.png", NO_RUN, 0, "" },
	{ "powerupbarrier", 0, 9, ".png" },
	{ "powerupgrowbubble", 0, 12, ".png" },
	{ "powerupfan", 0, 6, ".png" },
	{ "powerupcollectedblue", 0, 6, ".png" },
	{ "powerupcollectedorange", 0, 6, ".png" },
	{ "powerupcollectedpurple", 0, 6, ".png" },
	{ "powerupcollectedred", 0, 6, ".png" },
	{ "powerupcollectedyellow", 0, 6, ".png" },
	{ "powerup2x.png", NO_RUN, 0, "" },
	{ "powerup3x.png", NO_RUN, 0, "" },
	{ "powerup4x.png", NO_RUN, 0, "" },
	{ "powerupfastbubble.png", NO_RUN, 0, "" },
	{ "poweruponeup.png", NO_RUN, 0, "" },
	{ "poweruprainobjects.png", NO_RUN, 0, "" },
	{ "powerupslowbubble.png", NO_RUN, 0, "" },
	{ "powerupdestructoray.png", NO_RUN, 0, "" },
	{ "sheepcapturedA.png", NO_RUN, 0, "" },
	{ "sheepcapturedB.png", NO_RUN, 0, "" },
	{ "sheepcapturedC.png", NO_RUN, 0, "" },
	{ "sheepcapturedD.png", NO_RUN, 0, "" },
	{ "turtlecapturedA.png", NO_RUN, 0, "" },
	{ "turtlecapturedB.png", NO_RUN, 0, "" },
	{ "monkeycapturedleft.png", NO_RUN, 0, "" },
	{ "monkeycapturedright.png", NO_RUN, 0, "" },
};

// Each has a picture in the bubble for either side. A name with a dot stands for itself.
static const char* const s_persistentBubbles[] = {
	"pig", "frog", "cow", "horse", "dog", "squirrel", "chicken",
	"chickeneggleftbubble.tga", "chickeneggrightbubble.tga",
	"cat", "donkey", "duck", "duckling", "seal", "snowyowl", "crow", "vulture", "bluebird",
	"bot", "panda", "koala", "goose", "eagle", "chipmunk", "zebra", "unicorn", "coyote", "moose",
	"bear", "wolf", "polarbear", "hippo", "tiger", "snowtiger", "lion", "rhino", "deer",
	"bighorn", "ostrich", "snake", "penguin", "tortoise", "camel", "goat", "flamingo", "skunk",
	"rabbit", "hare", "jackrabbit", "walrus", "fox", "warthog", "kangaroo",
	"kangajoeybubbleright.png", "kangajoeybubbleright.png",
	"mouse", "raccoon", "pigeon", "owl", "roadrunner", "hyena", "lizard", "swan", "elephant",
	"alienbubble.png", "alienbubble.png",
};
// clang-format on

static bool EndsIn(const std::string& name, const char* ending)
{
	const std::string tail = ending;
	return name.size() >= tail.size() &&
	       name.compare(name.size() - tail.size(), tail.size(), tail) == 0;
}

void CDisplay::Preload()
{
	const int text = LoadFileImage(LOADING_TEXT_FILE, "PNG");
	if (text < 0)
		Error("Unable to load image: ", SDL_GetError(), true, true);
	FreeLoadingText();
	loadingText      = imageTable[text].surface;
	loadingBarWidth  = 0;
	imageTable[text] = ImageSlot(); // no image of the game, so out of the table

	int stored = 0;
	ArchiveVisitor visitor;
	visitor.onCount = [&](unsigned int count) {
		progressTotal = static_cast<int>(count) + (soundEnabled ? SOUND_LOADING_TOTAL : 0);
	};
	visitor.wants = [](const std::string& name) {
		return !EndsIn(name, "ogg") && !EndsIn(name, "wav");
	};
	visitor.onEntry = [&](const std::string& name, Bytes&& data) {
		StoreEntry(name, std::move(data));
		AdvanceLoadingBar(++stored);
	};
	if (!ForEachArchiveEntry(RESOURCE_FILE, visitor))
		Error("Cannot load resource file!", true, true);
}

// A name that comes twice keeps the later data.
void CDisplay::StoreEntry(const std::string& name, Bytes&& data)
{
	ImageEntry*& entry = entryByName[name];
	if (!entry)
		entry = new ImageEntry;
	entry->name = name;
	entry->data = std::move(data);
}

void CDisplay::AdvanceLoadingBar(int count)
{
	if (!loadingText || progressTotal <= 0)
		return;
	const int width = static_cast<int>(static_cast<double>(count) / progressTotal * loadingText->w);
	if (width <= loadingBarWidth)
		return;
	// Only the columns that come new: soft edges drawn over and over would harden.
	const int left  = loadingBarWidth;
	const int added = width - left;
	loadingBarWidth = width;
	SDL_Rect from   = {static_cast<Sint16>(left), 0, static_cast<Uint16>(added),
	                   static_cast<Uint16>(loadingText->h)};
	SDL_Rect to     = {static_cast<Sint16>(LOADING_BAR_X + left), LOADING_BAR_Y, 0, 0};
	SDL_BlitSurface(loadingText, &from, screen, &to);
	UpdateRect(LOADING_BAR_X + left, LOADING_BAR_Y, added, loadingText->h);
}

int CDisplay::ImageLoadingCount() const
{
	return progressTotal - (soundEnabled ? SOUND_LOADING_TOTAL : 0);
}

void CDisplay::FreeLoadingText()
{
	if (loadingText)
		SDL_FreeSurface(loadingText);
	loadingText = nullptr;
}

// Holding only saves decoding: a picture that is not there is reported when somebody shows it.
static void AddRun(std::vector<std::string>& names, const PersistentRun& run)
{
	for (int number = run.first; number <= run.last; number++)
		names.push_back(run.prefix + std::to_string(number) + run.suffix);
}

std::vector<std::string> CDisplay::PersistentImageNames()
{
	std::vector<std::string> names;
	for (const PersistentRun& run : s_persistentRuns) {
		if (run.first == NO_RUN)
			names.push_back(run.prefix);
		else
			AddRun(names, run);
	}
	for (const char* name : s_persistentBubbles) {
		if (strchr(name, '.')) {
			names.push_back(name);
			continue;
		}
		names.push_back(std::string(name) + "bubbleleft.png");
		names.push_back(std::string(name) + "bubbleright.png");
	}
	return names;
}

void CDisplay::LoadPersistentImages()
{
	for (const std::string& name : PersistentImageNames()) {
		persistentImages.push_back(LoadImage(name));
		ImageSurface(persistentImages.back()); // decoded now, so that no level has to
	}
}

void CDisplay::ReleasePersistentImages()
{
	for (int image : persistentImages)
		ReleaseImage(image);
	persistentImages.clear();
}
