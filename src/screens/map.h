// The overview of the campaign: three groups of islands to choose from.
#pragma once

#include "level/campaign_map.h"
#include "screens/screen.h"

#include <vector>

class CControllerMapGroup;
class CMapClouds;
class CSprite;

enum MapChoice {
	CHOICE_NONE = -1,
	CHOICE_WEST,
	CHOICE_EAST,
	CHOICE_SOUTH,
	CHOICE_BACK,
	MAP_CHOICES
};

// It has no widgets: the four choices are its own, and one of them is lit. It owns the close-up of
// a group, and lives as long as the player stays in the map.
class CControllerMap : public CScreen
{
public:
	// With goToCurrentGroup not 0 its first frame opens the close-up where the run stands.
	explicit CControllerMap(int goToCurrentGroup);
	~CControllerMap() override;

	void Enter() override;
	void Update() override;
	void OnKey(bool released, int key) override;
	void OnMouseMove(int x, int y) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	const char* Name() const override { return "CControllerMap"; }

	int choice = CHOICE_NONE;

private:
	void Build() override;
	void TearDown() override;
	void Step() override;
	CSprite* AddPicture(const char* file, int x, int y, int depth);
	void BuildRegion(int which);
	int ChoiceAtPointer() const;
	void Choose(int newChoice);
	void Confirm();
	void OpenGroup(IslandGroup group);

	bool goToCurrentGroup;
	CControllerMapGroup* group = nullptr; // owned
	CMapClouds* clouds         = nullptr; // owned
	std::vector<CSprite*> pictures;       // owned
	CSprite* lit[MAP_CHOICES]   = {};     // of pictures: shown while the choice is lit
	CSprite* label[MAP_CHOICES] = {};     // of pictures, too
};
