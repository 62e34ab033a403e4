// What a script can ask of the running game, by name.
#include "drive/fields.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "field/crate.h"
#include "field/fence.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "frame/controller.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/gui.h"
#include "media/render_manager.h"
#include "screens/game.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>

int g_driverFrame = 0;

static std::string Number(double value)
{
	char text[40];
	std::snprintf(text, sizeof text, "%.9g", value);
	return text;
}

static std::string BallNumber(float CBall::*member)
{
	return Number(g_ball ? g_ball->*member : 0);
}

static int LiveAnimals()
{
	return static_cast<int>(
	    std::count_if(CElementAnimal::AnimalList.begin(), CElementAnimal::AnimalList.end(),
	                  [](const CElementAnimal* animal) { return !animal->dead; }));
}

typedef std::string (*FieldReader)();
struct FieldRow {
	const char* name;
	FieldReader read;
};

// clang-format off
static const FieldRow s_rows[] = {
	{ "screen",       []() -> std::string { return g_currentController ? g_currentController->Name() : "none"; } },
	{ "frame",        []() { return Number(g_driverFrame); } },
	{ "level",        []() { return Number(g_game ? g_game->levelNumber : 0); } },
	{ "state",        []() -> std::string { return g_game ? g_game->StateName() : "none"; } },
	{ "score",        []() { return Number(g_play.levelScore); } },
	{ "money",        []() { return Number(g_play.money); } },
	{ "lives",        []() { return Number(g_play.lives); } },
	{ "left",         []() { return Number(CElementAnimal::CountToRescue()); } },
	{ "saved",        []() { return Number(g_play.animalsSaved); } },
	{ "time",         []() { return Number(g_game ? g_game->TimeLeft() : 0); } },
	{ "seconds",      []() { return Number(g_game ? g_game->SecondsElapsed() : 0); } },
	{ "gameover",     []() { return Number(g_play.gameOver); } },
	{ "ball.x",       []() { return BallNumber(&CBall::x); } },
	{ "ball.y",       []() { return BallNumber(&CBall::y); } },
	{ "ball.vx",      []() { return BallNumber(&CBall::vx); } },
	{ "ball.vy",      []() { return BallNumber(&CBall::vy); } },
	{ "ball.stage",   []() { return Number(g_ball ? g_ball->stage : 0); } },
	{ "ball.skin",    []() { return Number(g_ball ? g_ball->skin : 0); } },
	{ "ball.load",    []() { return Number(g_ball ? g_ball->load : 0); } },
	{ "ball.held",    []() { return Number(g_ball ? g_ball->held : false); } },
	{ "paddle.x",     []() { return Number(g_paddle ? g_paddle->GetX() : 0); } },
	{ "paddle.shape", []() { return Number(g_paddle ? g_paddle->shape : 0); } },
	{ "elements",     []() { return Number(CElement::ElementList.size()); } },
	{ "animals",      []() { return Number(LiveAnimals()); } },
	{ "crates",       []() { return Number(CCrate::CountStanding(0, false)); } },
	{ "fences",       []() { return Number(CFence::CountStanding(0, false)); } },
	{ "obstacles",    []() { return Number(CElement::ObstaclePointList.size()); } },
	{ "circles",      []() { return Number(CElement::TouchCircleList.size()); } },
	{ "sprites",      []() { return Number(g_render->sprites.size()); } },
	{ "widgets",      []() { return Number(GuiWidgets.size()); } },
	{ "images",       []() { return Number(g_display->DecodedImages()); } },
	{ "dirty",        []() { return Number(g_render->dirtyRects.size()); } },
	{ "combo",        []() { return Number(g_sidebar ? g_sidebar->comboCount : 0); } },
	{ "fan",          []() { return Number(g_sidebar ? g_sidebar->fanCharge : 0); } },
	{ "trophies",     []() { return Number(g_gameData->profile.trophies); } },
	{ "rand",         []() { return Number(RandomCalls()); } },
	{ "music",        []() { return CurrentMusicName().empty() ? std::string("none") : CurrentMusicName(); } },
};
// clang-format on

static bool ReadIndexed(const std::string& name, std::string& value)
{
	size_t dot = name.find('.');
	if (dot == std::string::npos)
		return false;
	char* end   = nullptr;
	long number = std::strtol(name.c_str() + dot + 1, &end, 10);
	if (end == name.c_str() + dot + 1 || *end)
		return false;
	std::string family = name.substr(0, dot);
	if (family == "timer" && number >= 0 && number < POWERUP_TIMERS) {
		value = Number(g_sidebar ? g_sidebar->timers[number] : 0);
		return true;
	}
	if (family == "done" && number >= 1 && number <= LEVEL_COUNT) {
		value = Number(g_gameData->IsLevelDoneEver(number - 1));
		return true;
	}
	return false;
}

bool ReadField(const std::string& name, std::string& value)
{
	for (const FieldRow& row : s_rows) {
		if (name == row.name) {
			value = row.read();
			return true;
		}
	}
	return ReadIndexed(name, value);
}

std::vector<std::string> FieldNames()
{
	std::vector<std::string> names;
	for (const FieldRow& row : s_rows)
		names.push_back(row.name);
	for (int i = 0; i < POWERUP_TIMERS; i++)
		names.push_back("timer." + std::to_string(i));
	return names;
}

static bool ParseNumber(const std::string& text, double& number)
{
	char* end = nullptr;
	number    = std::strtod(text.c_str(), &end);
	return end != text.c_str() && !*end;
}

bool Holds(const std::string& value, const std::string& op, const std::string& wanted, bool& valid)
{
	double left = 0, right = 0;
	bool numbers = ParseNumber(value, left) && ParseNumber(wanted, right);
	valid        = true;
	if (op == "=" || op == "==")
		return numbers ? left == right : value == wanted;
	if (op == "!=")
		return numbers ? left != right : value != wanted;
	valid = numbers;
	if (op == "<")
		return left < right;
	if (op == "<=")
		return left <= right;
	if (op == ">")
		return left > right;
	if (op == ">=")
		return left >= right;
	valid = false;
	return false;
}

bool DumpField(const std::string& path)
{
	FILE* file = std::fopen(path.c_str(), "w");
	if (!file)
		return false;
	if (g_ball)
		std::fprintf(file, "ball %.9g %.9g %.9g %.9g %.9g %d %d %d\n", g_ball->x, g_ball->y,
		             g_ball->vx, g_ball->vy, g_ball->Radius(), g_ball->stage, g_ball->skin,
		             g_ball->held);

	std::map<const CElement*, int> places;
	for (const CElement* element : CElement::ElementList) {
		int place       = static_cast<int>(places.size());
		places[element] = place;
		std::fprintf(file, "element %d %s %.9g %.9g %.9g %d %d\n", place, element->ClassName(),
		             element->x, element->y, element->z, element->dead, element->active);
	}
	for (const ObstaclePoint* point : CElement::ObstaclePointList)
		std::fprintf(file, "point %.9g %.9g %d\n", point->x, point->y, places[point->owner]);
	for (const TouchCircle* circle : CElement::TouchCircleList)
		std::fprintf(file, "circle %.9g %.9g %.9g %d\n", circle->x, circle->y, circle->radius,
		             places[circle->owner]);
	return std::fclose(file) == 0;
}
