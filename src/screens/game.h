// Runs one level: builds it, greets, plays it frame by frame, and walks through what follows.
#pragma once

#include "frame/controller.h"
#include "screens/game_children.h"

class BallPhysics;
class CBackground;
class CBall;
class CBarrier;
class CGreeting;
class CLevelTimer;
class CPaddle;
class CSidebar;
class CSound;
class CSprite;

const int ORDER_PLACES = 20;

// What makes a level a bonus level, and how it starts. The level's routine writes it on an object
// with these defaults.
struct LevelRules {
	bool isBonusLevel = false;
	bool isDemolition = false, isStampede = false, isSpeedball = false, isTightSpot = false,
	     isDodgeball = false, isCoin = false, isEgg = false, isHarvest = false, isOrder = false;
	int dodgeHits = 0, dodgeLimit = -1; // upsets so far, and how many end the level; -1: none do
	int dodgeVariant = 0;               // 1 birds, 2 drums, 3 dogs, 4 skunks
	int orderCount = 0, orderNext = 0;  // crates of the sequence, place of the next break
	int orderRecord[ORDER_PLACES] = {}; // numbers of the crates broken, by break
	bool startBulldozer = false, startBigBall = false, unlimitedFans = false;
};

// The controller of a running level. Elements report to it through g_game. It owns the physics,
// the greeting, the timer and the screen that interrupts play; ball, paddle, shield, panel and
// background belong to the field's lists. After its return lastFinishedLevel tells the parent what
// was finished.
class CControllerGame : public CController
{
public:
	explicit CControllerGame(int level);
	~CControllerGame() override;

	void Enter() override;
	void Update() override;
	void OnKey(bool released, int key) override;
	void OnMouseMove(int x, int y) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	void OnFocusLost() override; // pauses
	const char* Name() const override { return "CControllerGame"; }

	void LoadLevel(int number); // -1 takes the next number; one without a routine becomes level 1
	void ReloadLevel();         // tears the level down and loads the next number
	void SetLevelTimer(int seconds, bool held); // held: stands still until the ball is let go
	void AddDodgeHit();                         // an upset; counts on a dodgeball level only
	void RecordOrderBreak(int number);          // a numbered crate has broken
	int SecondsElapsed() const;                 // 0 until the first launch
	int TimeLeft() const;                       // frames
	const char* StateName() const;              // for the driver and the debug overlay

	// the level
	LevelRules rules;
	int levelNumber       = 0;
	int lastFinishedLevel = -2; // -2: nothing was finished
	int animalsAtStart    = 0;
	int startCount        = 0; // what the bonus counts against
	int coinsAtStart      = 0;
	int elapsed           = -1; // frames of play, -1 until the first launch
	bool alienCaught      = false;
	bool gameWon          = false;

	// what stands on the field; not owned, null between levels
	CPaddle* paddle         = nullptr;
	CBall* ball             = nullptr;
	CBarrier* barrier       = nullptr;
	CSidebar* sidebar       = nullptr;
	CBackground* background = nullptr;
	BallPhysics* physics    = nullptr; // owned

	// where the level is
	bool paddleEntering = true;
	bool levelOver      = false;
	bool firstFrame     = true;  // no input is read in it
	bool skipFrame      = false; // the next Update only clears it
	int playOpen        = 0;     // mouse buttons work once it is set

	CGreeting* greeting; // owned
	CLevelTimer* timer;  // owned

private:
	// building
	void MakeField();
	void ApplyStartRules();
	void CountStart();
	void ChooseMusic();
	void ClearFieldPointers();
	bool AlienLevel() const;

	// steps of a frame; true when the frame ends there
	bool StartDueScreens();
	bool HandleAlienCaught();
	bool HandleGameOver();
	bool HandleLevelEnd();
	void DriveOut();
	bool AfterLevel();
	void DriveIn();
	void StepField();
	void StepGreeting();
	void StepButtons();
	void StepTrophySign();
	void StepControlKeys();
	void ResumeSound();
	bool CheckSlowMachine();

	// screens over the level
	bool OpenChild(const ChildRequest& request);
	void PushChild(GameChild kind, CController* screen);
	bool StartStory(int kind, int value);
	bool OpenTally();
	void StoreLevelResults();
	void ReplayLevel();
	void LeaveAfterGameOver();
	bool QuizDue() const;
	void Pause();

	// input as the game sees it
	bool leftHeld = false, rightHeld = false, leftHeldLastFrame = false;
	bool leftTapped         = false; // pressed since the last frame, perhaps let go already
	bool pressFoundBallHeld = false; // this press has let the ball go: it fires no ray
	bool leftKeyHeld = false, rightKeyHeld = false;
	int warpsLeft     = 2; // next motions that are pulled to the paddle
	int storedCursorX = 0, storedCursorY = 0;

	float exitSpeed  = 0;  // pixels per frame
	float entrySpeed = 54; // pixels per frame
	int easingLeft   = 1;  // how often the ball may still start gently
	int slowFrames   = 0;

	// what is due
	int pendingStory  = -1;
	bool quizDone     = false;
	bool firstHintDue = false;
	bool storyDone    = false;
	bool tallyDone    = false;
	bool soundPaused  = false;

	CController* child  = nullptr; // owned
	GameChild childKind = CHILD_NONE;
	int runningStory    = -1; // kind of the story page now open

	CSprite* goSprite;          // owned
	CSound* levelCompleteSound; // owned
	CSound* loseGameSound;      // owned
};

extern CControllerGame* g_game; // null outside a level
