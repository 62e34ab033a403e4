// The close-up of a group of islands: a dot for each level, and the buttons of the map.
#pragma once

#include "level/campaign_map.h"
#include "media/gui_map_dot.h"
#include "screens/screen.h"
#include "state/game_data.h"

#include <string>
#include <vector>

class CControllerDialog;
class CControllerGame;
class CGuiButton;
class CMapClouds;
class CScoreDrum;
class CSprite;

enum MapButton {
	MAP_RESET,
	MAP_CHANGE,
	MAP_PLAY,
	MAP_ZOOM,
	MAP_ACHIEVEMENTS,
	MAP_MAIN_MENU,
	MAP_SANCTUARY,
	MAP_TROPHIES,
	MAP_HIGH_SCORES,
	MAP_BACK,
	MAP_ARROW_A,
	MAP_ARROW_B1,
	MAP_ARROW_B2,
	MAP_ARROW_C,
	FIRST_DOT_ID = 100, // of level 1
};

// The player picks a level. It owns the level runner and the dialogs that it opens, and tears
// itself down before each. Its parent reads nextGroup. The subclasses open and close it, so that
// their own pictures come and go with it.
class CControllerMapGroup : public CScreen
{
public:
	explicit CControllerMapGroup(IslandGroup newGroup);
	~CControllerMapGroup() override;

	void Enter() override;
	void OnKey(bool released, int key) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	void OnGuiEvent(int id, int value) override;

	// Background, arrows and dots; only the dots where the rest stands. At the first time the dots
	// grow in along the path.
	virtual void BuildScreen(bool firstTime) = 0;
	virtual void ClearScreen(bool all); // what BuildScreen made; without all only the dots
	virtual void StepHelpArrow() {}     // once a frame

	void StartLevel(int number);  // 1 to LEVEL_COUNT, as a click on its dot when it is open
	void SelectLevel(int number); // nothing for one without a dot or with a locked one
	CGuiButtonMapDot* DotOfLevel(int number) const; // null when it has none here
	int SelectedLevel() const;                      // 0 for none

	IslandGroup group;
	IslandGroup nextGroup = GROUP_NONE; // where the overview is to go on; none: it shows itself
	int startedLevel      = 0;          // the last one handed to the level runner
	int lastFinishedIndex = -1;         // level - 1 of what was finished last, -1 for nothing

protected:
	void Build() override;
	void TearDown() override;
	void Step() override;
	void OnOtherKey(bool released, int key) override;

	bool HasPictures() const { return !pictures.empty(); }
	CSprite* AddPicture(const char* file, int x, int y, int depth);
	void AddBackground(const char* file, int y);
	void AddArrow(MapButton id, const char* family, int x, int y);
	void BuildDots(bool firstTime);
	void HideDotsUnder(const CSprite* picture);

private:
	// building
	void BuildPercentage();
	void BuildCounters();
	void BuildLegend();
	void BuildButtons();
	void ShowPanel(bool second);
	CSprite* AddBox(const std::string& file, int x, int y, int depth);
	CGuiButtonMapDot* NewDot(int level, bool firstTime, int built);
	void WriteModeBox();
	void SelectWhenGrown();

	// events
	void OnDot(int level, int value);
	void OnButton(int id);
	void PressPlay();
	void GoToGroup(IslandGroup wanted);
	void Ask(int dialogKind);
	void AfterLevel(int finished);
	void AfterDialog(int kind, bool yes);

	CControllerGame* game     = nullptr; // owned
	CControllerDialog* dialog = nullptr; // owned
	int askedLevel            = 0;       // of the dialog that asks whether to play again
	int chosenLevel           = 0;       // selected when the screen was last seen, 0 for none
	int labelledLevel         = 0;       // whose label the mode box shows
	DotState startedAs        = DOT_INCOMPLETE; // the dot of the level that was started
	bool firstTime            = true;           // the next building is one
	bool levelJustLeft        = false;          // the next building shows what it opened
	bool secondPanel          = false;

	std::vector<CSprite*> pictures; // owned, as all below: of BuildScreen
	std::vector<CGuiButton*> arrows;
	std::vector<CGuiButtonMapDot*> dots;
	std::vector<CSprite*> boxes; // of the screen itself
	std::vector<CGuiButton*> buttons;
	CSprite* modeBox   = nullptr;
	CScoreDrum* score  = nullptr;
	CScoreDrum* money  = nullptr;
	CMapClouds* clouds = nullptr;
};
