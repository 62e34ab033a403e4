// The tally after a level: what was rescued, what it is worth, and what to do next.
#pragma once

#include "level/tally_rules.h"
#include "screens/screen.h"

#include <deque>
#include <string>
#include <vector>

class CCard;
class CGuiButton;
class CScoreDrum;
class CSound;
class CSprite;

// Settles score, rescues and perfect mark in its constructor; what follows is show, one step after
// the other, and may be skipped. Result 0 goes back to the level runner, which reads replay; 3 goes
// to the main menu.
class CControllerLevelTally : public CScreen
{
public:
	// type and numbers as of TallyCount; record are the numbers of an order level's broken crates.
	CControllerLevelTally(const TallyCount& newCount, std::span<const int> newRecord);
	~CControllerLevelTally() override;

	void OnKey(bool released, int key) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerLevelTally"; }

	enum { RETRY, CONTINUE, MAIN_MENU, SANCTUARY, BUTTON_COUNT };

	TallyCount count;
	BonusResult bonusResult;                    // of a bonus level
	RegularBonuses bonuses;                     // of a regular level
	std::deque<int> speciesList, speciesCounts; // rescued, by dense index, without the alien
	int bonusTotal = 0, levelGain = 0, levelTotal = 0;
	bool skipRequested = false;
	bool done          = false; // all steps are shown
	bool replay        = false; // the player wants the level again

private:
	enum StepKind {
		STEP_NEW,
		STEP_ANIMALS,
		STEP_ANIMAL,
		STEP_BUTTERFLIES,
		STEP_BONUS_BOX,
		STEP_LINE,
		STEP_NO_BONUS,
		STEP_TOTALS
	};
	struct TallyStep {
		StepKind kind;
		int index = 0;
	};
	struct Line {
		const char* title;
		int amount;
		std::vector<TallyWord> words;
	};

	void Build() override;
	void TearDown() override;
	void Step() override;

	// setup
	void CollectSpecies();
	void SettleBonus();
	void PlanLines();
	void PlanSteps();

	// show
	void LayOut();
	void ShowStep(const TallyStep& step, bool quiet);
	void ShowNewSpecies(int index);
	void ShowAnimal(int index);
	void ShowButterflies();
	void ShowBonusBox();
	void ShowHarvest(int top);
	void ShowLine(int index);
	void ShowTotals();
	void RunCounters();
	void FinishCounters();
	void PlayFlyaway();

	// drawing
	CSprite* Put(const std::string& file, int x, int y);
	void PutCentred(const std::string& file, int middleX, int y);
	void PutBox(const std::string& family, int y);
	int PutNumber(const char* format, int value, int x, int y);
	int PutWords(const std::vector<TallyWord>& words, int x, int y);
	void PutWordsCentred(const std::vector<TallyWord>& words, int middleX, int middleY);
	void PutLineAmount(int index, int value);

	std::vector<int> record;
	std::vector<int> newSpecies;
	std::vector<Line> lines;
	std::vector<TallyStep> steps;
	size_t stepsShown = 0;
	int stepWait      = 2; // frames until the next step
	int flyaway       = 0; // which of the sounds comes next
	bool counting     = false;
	int height = 0, top = 0; // of the panel, pixels
	int newTop = 0, animalsTop = 0, butterflyTop = 0, bonusTop = 0, totalsTop = 0;

	CCard* card = nullptr;                      // owned, as are all below
	std::vector<CSprite*> pictures;             // what the steps have put on the panel
	std::vector<std::vector<CSprite*>> amounts; // figures of each bonus line
	std::vector<int> amountsShown;              // twentieths; of the lines on the panel
	int totalsShown[3]                = {};
	CScoreDrum* totals[3]             = {};
	CGuiButton* buttons[BUTTON_COUNT] = {};
	std::vector<CSound*> flyawaySounds;
	CSound* countingSound;
};
