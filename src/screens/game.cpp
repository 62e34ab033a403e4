// The level runner's frame: what happens in it, in which order, and what input does.
#include "screens/game.h"

#include "animals/animal.h"
#include "field/background.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/barrier.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "field/tree.h"
#include "level/bonus_rules.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/greeting.h"
#include "screens/level_timer.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

static const int PADDLE_START     = -300;   // mouse x: well off the field to the left
static const float ENTRY_SPEED    = 54;     // pixels per frame of the mouse target
static const float ENTRY_BRAKE    = 1.95f;  // lost each frame
static const float ENTRY_SLOWEST  = 1;      // pixels per frame
static const float FIELD_MIDDLE   = 346.5f; // pixels
static const int PADDLE_MIDDLE    = 30;     // from the paddle's x, where its entry is measured
static const int POINTER_OFFSET   = 93;    // from the paddle's x: there the pointer leaves it still
static const int WARPS_AT_START   = 2;     // motions pulled to the paddle
static const int KEY_STEP         = 15;    // pixels a frame at mouse speed 1
static const float RUN_OUT        = 0.85f; // the ball's speed each frame once the level is over
static const float SPEEDBALL      = 1.00033f; // the ball's speed each frame
static const float SPEEDBALL_KIDS = 1.0002f;
static const int SLOW_RATE        = 23;   // frames per second that count as slow
static const int SLOW_FRAMES      = 121;  // of them until the player is asked
static const int NO_HINT          = 2;    // written into the hint timer, so that it never runs out
static const int DIALOG_SLOW      = 12;   // kind of the dialog that asks
static const float GENTLE_START   = 0.1f; // share of its speed with which the ball starts again

CControllerGame* g_game = nullptr;

CControllerGame::CControllerGame(int level)
{
	HideCursor(-1);
	if (g_gameData->SystemCursorOn())
		g_input->Grab(true);
	firstHintDue = HasGameChild(CHILD_HINT) && !g_gameData->GetInstructionsSeen();
	g_gameData->ApplyTotalScore();
	CElement::FrameCounter = 0;
	g_levelGameData        = g_gameData;
	g_game                 = this;
	ClearFieldPointers();

	levelCompleteSound = new CSound("level_complete.ogg");
	loseGameSound      = new CSound("lose_game.ogg");
	goSprite           = new CSprite(25000, 1, SPRITE_OVERLAY);
	goSprite->AddSequence("go", 0, 4, ".png");
	goSprite->AddRepeated("go5.png", 5);
	goSprite->AddSequence("go", 6, 8, ".png");
	goSprite->SetStopAtEnd();
	goSprite->CenterX(346);
	goSprite->CenterY(300);
	goSprite->Hide();
	greeting = new CGreeting();
	timer    = new CLevelTimer();

	LoadLevel(level);
	if (QuizDue() || firstHintDue || (pendingStory != -1 && HasGameChild(CHILD_STORY)) ||
	    (rules.isBonusLevel && HasGameChild(CHILD_BONUS_CARD)))
		g_display->drawingEnabled = false;
	CElementAnimal::animalSoundsOn = false;
	FieldTick();
	CElementAnimal::animalSoundsOn = true;
}

CControllerGame::~CControllerGame()
{
	if (g_gameData->SystemCursorOn())
		g_input->Grab(false);
	delete child;
	ClearField();
	delete physics;
	ClearFieldPointers();
	delete greeting;
	delete timer;
	delete goSprite;
	delete levelCompleteSound;
	delete loseGameSound;
	g_game = nullptr;
}

void CControllerGame::Update()
{
	if (skipFrame) {
		skipFrame = false;
		return;
	}
	if (StartDueScreens() || HandleAlienCaught() || HandleGameOver())
		return;
	if (rules.isSpeedball && !timer->held && ball)
		ball->ScaleSpeed(g_gameData->IsKidsMode() ? SPEEDBALL_KIDS : SPEEDBALL);
	if (HandleLevelEnd())
		return;

	g_display->drawingEnabled = true;
	DriveIn();
	if (!firstFrame) {
		PollInput(this);
		if (!active)
			return;
	}
	StepField();
	StepGreeting();
	timer->Step(levelOver);
	StepButtons();
	StepTrophySign();
	if (elapsed != -1 && !levelOver)
		elapsed++;
	if (rules.isBonusLevel)
		CElementAnimal::hintTimer = NO_HINT;
	if (firstFrame && rules.isBonusLevel) {
		firstFrame = false;
		ChildRequest request;
		request.kind  = CHILD_BONUS_CARD;
		request.level = levelNumber;
		if (OpenChild(request))
			return;
	}
	StepControlKeys();
	firstFrame = false;
	ResumeSound();
	CheckSlowMachine();
}

bool CControllerGame::StartDueScreens()
{
	if (pendingStory != -1 && StartStory(pendingStory, 0))
		return true;
	if (firstHintDue) {
		firstHintDue = false;
		g_gameData->SetInstructionsSeen();
		ChildRequest request;
		request.kind = CHILD_HINT;
		if (OpenChild(request))
			return true;
	}
	bool quizDue = QuizDue();
	quizDone     = true;
	if (!quizDue)
		return false;
	ChildRequest request;
	request.kind = CHILD_QUIZ;
	return OpenChild(request);
}

bool CControllerGame::HandleGameOver()
{
	if (!g_play.gameOver)
		return false;
	loseGameSound->Play();
	ChildRequest request;
	request.kind    = CHILD_END_GAME;
	request.gameWon = gameWon;
	if (!OpenChild(request))
		LeaveAfterGameOver();
	return true;
}

bool CControllerGame::HandleLevelEnd()
{
	if (!ball || !sidebar || !paddle || paddleEntering)
		return false;
	if (!levelOver && !LevelHasEnded(*this))
		return false;
	DriveOut();
	return paddle->GetX() > SCREEN_WIDTH && AfterLevel();
}

// The end of the level has begun: the ball runs out, the paddle leaves to the right.
void CControllerGame::DriveOut()
{
	StopMusic();
	if (!levelOver) {
		if (!levelCompleteSound->IsPlaying())
			levelCompleteSound->Play();
		g_gameData->OnLevelEvaluated(levelNumber, SecondsElapsed());
	}
	rightHeld = false;
	sidebar->SetFanHeld(false);
	ball->ScaleSpeed(RUN_OUT);
	ball->SetHeld(false);
	levelOver = true;
	paddle->ClearSlowFlames();
	exitSpeed += 1;
	paddle->SetMouseX(paddle->GetTarget() + static_cast<int>(exitSpeed));
}

void CControllerGame::DriveIn()
{
	if (!ball || !sidebar || !paddle || !paddleEntering)
		return;
	if (entrySpeed == ENTRY_SPEED)
		paddle->SetMouseX(PADDLE_START);
	entrySpeed -= ENTRY_BRAKE;
	if (entrySpeed < ENTRY_SLOWEST)
		entrySpeed = ENTRY_SLOWEST;
	paddle->SetMouseX(paddle->GetTarget() + static_cast<int>(entrySpeed));
	if (paddle->GetX() + PADDLE_MIDDLE >= FIELD_MIDDLE) {
		paddleEntering = false;
		WarpCursor(paddle->GetX() + POINTER_OFFSET, CursorY());
	}
}

void CControllerGame::StepField()
{
	physics->Step();
	if (rightHeld)
		CTree::WindStep();
	CTree::SwayStep();
	FieldTick();
}

void CControllerGame::StepGreeting()
{
	if (greeting->running) {
		greeting->Step();
		if (greeting->count >= CGreeting::LEAVE_AT)
			playOpen = 1;
		if (greeting->count == CGreeting::GO_AT) {
			goSprite->Rewind();
			goSprite->Forward();
			goSprite->Show();
			timer->Run();
		}
	}
	if (!goSprite->IsHidden() && goSprite->IsStopped()) {
		goSprite->Hide();
		g_gameData->ClearFastPaddleNote(); // the machine has driven in with all flames
	}
}

// A press lets the ball go, or its release fires the ray. A tap that fits between two frames counts
// as held for one.
void CControllerGame::StepButtons()
{
	bool held  = leftHeld || leftTapped;
	leftTapped = false;
	if (paddle && ball && !held && leftHeldLastFrame && !pressFoundBallHeld && !ball->IsHeld())
		paddle->FireDestructo();
	leftHeldLastFrame = held;
	if (ball && ball->IsHeld())
		pressFoundBallHeld = true;

	if (!held) {
		pressFoundBallHeld = false;
	} else if (paddle) {
		ball->SetHeld(false);
		if (elapsed == -1)
			elapsed = 0;
		timer->Release();
	}
}

void CControllerGame::StepTrophySign()
{
	if (!g_gameData->trophyPending)
		return;
	g_gameData->trophyPending = false;
	if (!firstFrame && !levelOver)
		sidebar->ShowTrophySign();
}

void CControllerGame::StepControlKeys()
{
	if (!paddle || paddle->IsStunned())
		return;
	int step = static_cast<int>(g_gameData->GetMouseSpeed() * KEY_STEP);
	if (leftKeyHeld)
		WarpCursor(CursorX() - step, CursorY());
	if (rightKeyHeld)
		WarpCursor(CursorX() + step, CursorY());
}

void CControllerGame::ResumeSound()
{
	if (!soundPaused)
		return;
	if (g_gameData->SystemCursorOn())
		g_input->Grab(true);
	FadeInLoopingSounds();
	soundPaused = false;
}

// Slow frames add up over the whole level: a machine that keeps up has none at all.
bool CControllerGame::CheckSlowMachine()
{
	if (!HasGameChild(CHILD_DIALOG) || !g_gameData->EffectsOn() ||
	    g_gameData->GetSlowMachineHintShown())
		return false;
	if (g_display->FramesPerSecond() > SLOW_RATE || ++slowFrames < SLOW_FRAMES)
		return false;
	g_gameData->SetSlowMachineHintShown();
	ChildRequest request;
	request.kind  = CHILD_DIALOG;
	request.value = DIALOG_SLOW;
	return OpenChild(request);
}

void CControllerGame::OnKey(bool released, int key)
{
	if (!active || levelOver)
		return;
	if (key == g_gameData->GetKey(KEY_LEFT)) {
		leftKeyHeld = !released;
	} else if (key == g_gameData->GetKey(KEY_RIGHT)) {
		rightKeyHeld = !released;
	} else if (key == g_gameData->GetKey(KEY_LEFT_BUTTON)) {
		OnMouseButton(true, false, released);
	} else if (key == g_gameData->GetKey(KEY_RIGHT_BUTTON)) {
		OnMouseButton(false, true, released);
	} else if (released) {
		Pause();
	}
}

// Keys that were held come up while another screen is open, and nobody would hear of it.
void CControllerGame::Pause()
{
	storedCursorX = CursorX();
	storedCursorY = CursorY();
	leftKeyHeld = rightKeyHeld = false;
	leftHeld = leftHeldLastFrame = leftTapped = false;
	ChildRequest request;
	request.kind = CHILD_PAUSE;
	OpenChild(request);
}

void CControllerGame::OnFocusLost()
{
	if (active && !levelOver && !firstFrame)
		Pause();
}

void CControllerGame::OnMouseMove(int x, int)
{
	if (!active || levelOver || paddleEntering || !paddle)
		return;
	if (warpsLeft > 0) {
		warpsLeft--;
		WarpCursor(paddle->GetX() + POINTER_OFFSET, CursorY());
		return;
	}
	paddle->SetMouseX(x);
}

void CControllerGame::OnMouseButton(bool, bool right, bool released)
{
	if (!active || levelOver || paddleEntering || !playOpen)
		return;
	if (!right) {
		leftHeld = !released;
		leftTapped |= leftHeld;
		return;
	}
	rightHeld = !released;
	sidebar->SetFanHeld(rightHeld);
}

int CControllerGame::SecondsElapsed() const
{
	return elapsed == -1 ? 0 : elapsed / FRAMES_A_SECOND;
}

int CControllerGame::TimeLeft() const
{
	return timer->timeLeft;
}

const char* CControllerGame::StateName() const
{
	if (child)
		return "child";
	if (g_play.gameOver)
		return "gameover";
	if (levelOver)
		return "leaving";
	if (paddleEntering)
		return "entering";
	return greeting->running ? "greeting" : "play";
}
