// A meadow with nothing on it but the animals that a script names, and orders to them.
#include "drive/zoo.h"

#include "animals/animal.h"
#include "animals/species.h"
#include "field/background.h"
#include "field/ball.h"
#include "field/barrier.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "media/display.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "screens/greeting.h"

#include <algorithm>

static const int FIELD_LEFT = 20, FIELD_TOP = 165, FIELD_BOTTOM = 470; // where the animals stand
static const int MOST_IN_A_ROW = 8;
static const int HORIZON       = -10;
static const int BELOW_HORIZON = 700; // pixels, for the sun

namespace
{
struct Guest {
	const SpeciesEntry* entry;
	bool left;
};
struct Guests {
	std::vector<Guest> list;
	BackgroundLook look;
};
} // namespace

static bool ChooseGround(const std::string& word, BackgroundLook& look)
{
	if (word == "grass")
		look.ground = GROUND_GRASS;
	else if (word == "sand")
		look.ground = GROUND_SAND;
	else if (word == "snow")
		look.ground = GROUND_SNOW;
	else if (word == "night") {
		look.sky  = SKY_NIGHT;
		look.sunX = BELOW_HORIZON;
		look.sunY = BELOW_HORIZON;
	} else
		return false;
	return true;
}

static bool ReadGuests(const std::vector<std::string>& words, Guests& guests, std::string& problem)
{
	bool left = true;
	for (const std::string& word : words) {
		size_t before = guests.list.size();
		for (const SpeciesEntry& entry : AllSpecies())
			if (word == "all" || word == entry.table->prefix)
				guests.list.push_back({&entry, left});
		if (word == "left" || word == "right") {
			left = word == "left";
		} else if (guests.list.size() == before && !ChooseGround(word, guests.look)) {
			problem = word + " is no species";
			return false;
		}
	}
	return true;
}

// Fixed, so that films of different species can be laid side by side.
static BackgroundLook PlainLook()
{
	BackgroundLook look;
	look.fenceVariant  = 0;
	look.horizonOffset = HORIZON;
	look.clouds        = false;
	look.railroad      = false;
	return look;
}

static void ClearLevel(CControllerGame* game)
{
	const CElement* kept[] = {g_sidebar, g_paddle, g_ball, g_barrier};
	for (CElement* element : std::vector<CElement*>(CElement::ElementList))
		if (std::find(std::begin(kept), std::end(kept), element) == std::end(kept)) {
			RemoveFromElementList(element);
			delete element;
		}
	game->background = g_background = nullptr;
}

// In rows from the far end of the field to the near one.
static void PlaceGuests(const std::vector<Guest>& guests)
{
	int count   = std::max(1, static_cast<int>(guests.size()));
	int rows    = (count + MOST_IN_A_ROW - 1) / MOST_IN_A_ROW;
	int columns = (count + rows - 1) / rows;
	int wide    = (FIELD_RIGHT - 2 * FIELD_LEFT) / columns;
	int high    = (FIELD_BOTTOM - FIELD_TOP) / rows;
	for (int i = 0; i < static_cast<int>(guests.size()); i++) {
		int x = FIELD_LEFT + wide / 2 + i % columns * wide;
		int y = FIELD_TOP + high / 2 + i / columns * high;
		guests[i].entry->make(x, y, guests[i].left);
	}
}

bool BuildZoo(CControllerGame* game, const std::vector<std::string>& words, std::string& problem)
{
	Guests guests{{}, PlainLook()};
	if (!ReadGuests(words, guests, problem))
		return false;
	ClearLevel(game);
	game->background = g_background = new CBackground(guests.look);
	g_paddle->SetBeamTop(g_background->BeamTop());
	PlaceGuests(guests.list);
	game->animalsAtStart = CElementAnimal::CountToRescue();
	while (game->greeting->running)
		game->greeting->Step(); // nothing hangs over the meadow
	game->playOpen = 1;
	g_render->AddExtraRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
	return true;
}

static size_t PlaceOf(const CSprite* sprite)
{
	auto& all = g_render->sprites;
	return std::find(all.begin(), all.end(), sprite) - all.begin();
}

// An animal's sprites were registered after its arrow and before that of the next animal.
static CSprite* SpriteShowing(const CElementAnimal* animal, const std::string& file)
{
	size_t begin = PlaceOf(animal->hintArrow), end = g_render->sprites.size();
	for (const CElementAnimal* other : CElementAnimal::AnimalList)
		if (size_t place = PlaceOf(other->hintArrow); place > begin)
			end = std::min(end, place);
	int image      = g_display->LoadImage(file);
	CSprite* found = nullptr;
	for (size_t i = begin; i < end && !found; i++)
		if (g_render->sprites[i]->FirstImage() == image)
			found = g_render->sprites[i];
	g_display->ReleaseImage(image);
	return found;
}

static bool ShowPictures(CElementAnimal* animal, const std::string& word)
{
	const SpeciesTable& table = *animal->table;
	for (const PictureRow& row : table.pictures) {
		if (word != row.name)
			continue;
		const char* frames = !animal->facingLeft && row.rightFrames ? row.rightFrames : row.frames;
		std::vector<std::string> files =
		    PictureFiles(table.prefix, row.name, animal->facingLeft, frames);
		CSprite* sprite = SpriteShowing(animal, files[0]);
		if (!sprite)
			return false;
		animal->currentSprite->Hide();
		animal->currentSprite = sprite;
		sprite->Show();
		sprite->Rewind();
		sprite->Forward();
		return true;
	}
	return false;
}

static bool Order(CElementAnimal* animal, const std::string& word)
{
	if (word == "bump") {
		animal->OnBump();
		return true;
	}
	for (size_t i = 0; i < animal->actions.size(); i++) {
		const ActionRow& row = animal->table->actions[i];
		if (word != KeyOf(row) && word != WordOf(row))
			continue;
		animal->currentAction              = animal->actions[i];
		animal->currentAction->phase       = PHASE_ENTRY;
		animal->currentAction->repeatsLeft = -1;
		return true;
	}
	return ShowPictures(animal, word);
}

bool ForceAction(const std::string& prefix, const std::string& word, std::string& problem)
{
	bool any = false, done = false;
	for (CElementAnimal* animal : CElementAnimal::AnimalList) {
		if (animal->dead || !animal->table || prefix != animal->table->prefix)
			continue;
		any = true;
		done |= Order(animal, word);
	}
	problem = any ? "no action " + word : "no " + prefix + " on the field";
	return done;
}
