// The overview of the campaign: three groups of islands to choose from.
#include "screens/map.h"

#include "media/cursor.h"
#include "media/display.h"
#include "media/gui.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/map_clouds.h"
#include "screens/map_group1.h"
#include "screens/map_group2.h"
#include "screens/map_group3.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <SDL.h>

static const int BACKGROUND_DEPTH = 700000;
static const int LIT_DEPTH        = 700100;
static const int LABEL_DEPTH      = 700200;
static const int CHAPTER_DEPTH    = 700210;
static const int LOCK_DEPTH       = 700300;
static const int CLOUD_DEPTH      = 700400;
static const int BOX_DEPTH        = 700500;
static const int PRESSED_SHIFT    = 4; // pixels, while the button is held

namespace
{
struct MapPicture {
	const char* file;
	int x, y; // pixels of the screen
};
// The pointer is over a choice when it is over its lit picture or its label.
struct MapRegion {
	IslandGroup group; // GROUP_NONE leads back
	MapPicture lit, label, chapter;
	int lockX, lockY; // pixels
};
} // namespace

// clang-format off
static const MapPicture s_background = { "mapoverviewbackground.jpg", 0, 0 };       // 800x600
static const MapPicture s_box        = { "mapoverviewboxchoosemain.png", 162, 24 }; // 476x72
static const MapPicture s_backShadow = { "mapbuttonbackshadow.png", 27, 546 };

// By choice. Glows are 370x194, 384x196 and 340x172, labels 178x52, chapters 90x18, the lock 40x44.
// The way back is a button of 122x40.
static const MapRegion s_regions[MAP_CHOICES] = {
	{ GROUP_A, { "mapoverviewglowwest.png",  15,  222 }, { "mapoverviewlabelwest.png",  47,  412 },
	  { "mapoverviewlabelchapter1.png", 91, 417 }, 208, 402 },
	{ GROUP_C, { "mapoverviewgloweast.png",  408, 187 }, { "mapoverviewlabeleast.png",  551, 374 },
	  { "mapoverviewlabelchapter3.png", 595, 379 }, 712, 364 },
	{ GROUP_B, { "mapoverviewglowsouth.png", 262, 396 }, { "mapoverviewlabelsouth.png", 363, 540 },
	  { "mapoverviewlabelchapter2.png", 407, 545 }, 524, 530 },
	{ GROUP_NONE, { "mapbuttonbackrollover.png", 24, 540 }, { "mapbuttonbackbase.png", 24, 540 },
	  { nullptr, 0, 0 }, 0, 0 },
};
// clang-format on

static int ChoiceOf(IslandGroup group)
{
	int which = CHOICE_WEST;
	while (s_regions[which].group != group)
		which++;
	return which;
}

CControllerMap::CControllerMap(int newGoToCurrentGroup) : goToCurrentGroup(newGoToCurrentGroup)
{
	if (!goToCurrentGroup)
		Open();
}

CControllerMap::~CControllerMap()
{
	Close();
	delete group;
}

CSprite* CControllerMap::AddPicture(const char* file, int x, int y, int depth)
{
	pictures.push_back(new CSprite(x, y, depth));
	pictures.back()->AddFile(file);
	return pictures.back();
}

void CControllerMap::BuildRegion(int which)
{
	const MapRegion& region = s_regions[which];
	lit[which]              = AddPicture(region.lit.file, region.lit.x, region.lit.y, LIT_DEPTH);
	label[which] = AddPicture(region.label.file, region.label.x, region.label.y, LABEL_DEPTH);
	lit[which]->Hide();
	if (region.group == GROUP_NONE)
		return;
	AddPicture(region.chapter.file, region.chapter.x, region.chapter.y, CHAPTER_DEPTH);
	if (!IsGroupOpen(*g_gameData, region.group))
		AddPicture("mapoverviewlock.png", region.lockX, region.lockY, LOCK_DEPTH);
}

// Lit at first is where the run stands, so that the keys have a choice to start from.
void CControllerMap::Build()
{
	PlayMapMusic();
	HideCursor(-1);
	g_display->drawingEnabled = true;
	g_render->AddExtraRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
	AddPicture(s_background.file, s_background.x, s_background.y, BACKGROUND_DEPTH);
	AddPicture(s_box.file, s_box.x, s_box.y, BOX_DEPTH);
	AddPicture(s_backShadow.file, s_backShadow.x, s_backShadow.y, BACKGROUND_DEPTH + 1);
	for (int i = 0; i < MAP_CHOICES; i++)
		BuildRegion(i);
	if (choice == CHOICE_NONE)
		choice = ChoiceOf(GroupOfLevel(NextLevelOfRun(*g_gameData)));
	clouds = new CMapClouds(CLOUD_DEPTH);
}

void CControllerMap::TearDown()
{
	delete clouds;
	for (CSprite* picture : pictures)
		delete picture;
	pictures.clear();
	clouds = nullptr;
}

void CControllerMap::Update()
{
	if (goToCurrentGroup && result == RESULT_NONE) {
		goToCurrentGroup = false;
		OpenGroup(GroupOfLevel(NextLevelOfRun(*g_gameData)));
		return;
	}
	CScreen::Update();
}

void CControllerMap::Step()
{
	if (!IsOpen())
		return;
	clouds->Step();
	for (int i = 0; i < MAP_CHOICES; i++) {
		const MapPicture& place = s_regions[i].lit;
		const int shift         = g_leftButtonDown && ChoiceAtPointer() == i ? PRESSED_SHIFT : 0;
		lit[i]->hidden          = choice != i;
		lit[i]->SetPos(place.x + shift, place.y + shift);
	}
	label[CHOICE_BACK]->hidden = choice == CHOICE_BACK;
}

static bool IsPointerOver(const MapPicture& place, const CSprite* sprite)
{
	const int right = CursorX() - place.x, below = CursorY() - place.y;
	return right >= 0 && right < sprite->Width() && below >= 0 && below < sprite->Height();
}

int CControllerMap::ChoiceAtPointer() const
{
	for (int i = 0; i < MAP_CHOICES; i++)
		if (IsPointerOver(s_regions[i].label, label[i]))
			return i;
	for (int i = 0; i < MAP_CHOICES; i++)
		if (IsPointerOver(s_regions[i].lit, lit[i]))
			return i;
	return CHOICE_NONE;
}

void CControllerMap::Choose(int newChoice)
{
	if (choice == newChoice)
		return;
	choice = newChoice;
	if (choice != CHOICE_NONE)
		g_mouseOverSound->Play();
}

void CControllerMap::Confirm()
{
	if (choice == CHOICE_NONE)
		return;
	if (choice == CHOICE_BACK) {
		EndByKey();
		return;
	}
	const IslandGroup chosen = s_regions[choice].group;
	if (!IsGroupOpen(*g_gameData, chosen)) {
		g_actionFailedSound->Play();
		return;
	}
	g_mouseSelectionSound->Play();
	ShowHourglass(true);
	OpenGroup(chosen);
}

void CControllerMap::OpenGroup(IslandGroup chosen)
{
	Close();
	choice = ChoiceOf(chosen); // where the keys start from when it comes back
	if (chosen == GROUP_A)
		group = new CControllerMapGroup1();
	else if (chosen == GROUP_B)
		group = new CControllerMapGroup2();
	else
		group = new CControllerMapGroup3();
	Push(group);
}

void CControllerMap::Enter()
{
	const IslandGroup next = group ? group->nextGroup : GROUP_NONE;
	delete group;
	group = nullptr;
	if (result != RESULT_NONE)
		return; // on the way further up
	if (next == GROUP_NONE)
		Open();
	else
		OpenGroup(next);
}

void CControllerMap::OnKey(bool released, int key)
{
	if (!active || !IsOpen() || !released)
		return;
	switch (key) {
	case SDLK_UP:
	case SDLK_LEFT:
		Choose(choice <= 0 ? MAP_CHOICES - 1 : choice - 1);
		break;
	case SDLK_DOWN:
	case SDLK_RIGHT:
		Choose((choice + 1) % MAP_CHOICES);
		break;
	case SDLK_RETURN:
	case SDLK_KP_ENTER:
	case SDLK_SPACE:
		Confirm();
		break;
	case SDLK_ESCAPE:
		EndByKey();
		break;
	}
}

void CControllerMap::OnMouseMove(int, int)
{
	if (!active || !IsOpen())
		return;
	CursorActivity();
	if (ChoiceAtPointer() != CHOICE_NONE) // off the islands the last one stays lit, for the keys
		Choose(ChoiceAtPointer());
}

void CControllerMap::OnMouseButton(bool left, bool, bool released)
{
	if (!active || !IsOpen())
		return;
	CursorActivity();
	if (!left)
		return;
	const bool clicked = g_leftButtonDown && released;
	GuiMouseEdge(released);
	if (!clicked || ChoiceAtPointer() == CHOICE_NONE)
		return;
	Choose(ChoiceAtPointer());
	Confirm();
}
