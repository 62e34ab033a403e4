// The level runner's side trips: the screens that open over a level, and the way back from them.
#include "screens/game.h"

#include "field/ball.h"
#include "field/element.h"
#include "field/sidebar.h"
#include "level/bonus_rules.h"
#include "level/story_pages.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

static const float GENTLE_START = 0.1f; // share of its speed with which the ball starts again

bool CControllerGame::QuizDue() const
{
	return HasGameChild(CHILD_QUIZ) && !quizDone && g_gameData->QuizActive();
}

// Freezes the world and opens a screen over it. False when the game has no such screen.
bool CControllerGame::OpenChild(const ChildRequest& request)
{
	if (!HasGameChild(request.kind))
		return false;
	g_render->Update(true);
	g_render->Freeze();
	if (request.kind != CHILD_PAUSE && request.kind != CHILD_DIALOG)
		g_display->drawingEnabled = true;
	PushChild(request.kind, NewGameChild(request));
	return true;
}

void CControllerGame::PushChild(GameChild kind, CController* screen)
{
	if (ball && !paddleEntering && !levelOver && easingLeft > 0) {
		easingLeft--;
		ball->StartEasing(GENTLE_START);
	}
	if (g_gameData->SystemCursorOn())
		g_input->Grab(false);
	if (!soundPaused)
		FadeOutLoopingSounds();
	soundPaused = true;
	child       = screen;
	childKind   = kind;
	Push(screen);
}

bool CControllerGame::StartStory(int kind, int value)
{
	if (kind == STORY_FINAL)
		g_play.gameOver = true;
	if (IsTollStory(kind) && g_gameData->IsLevelDoneEver(levelNumber - 1)) {
		pendingStory = NO_STORY;
		ChooseMusic();
		return false;
	}
	ChildRequest request;
	request.kind  = CHILD_STORY;
	request.story = kind;
	request.value = StoryValue(kind, levelNumber, value);
	runningStory  = kind;
	if (OpenChild(request))
		return true;
	pendingStory = NO_STORY;
	return false;
}

bool CControllerGame::HandleAlienCaught()
{
	if (!sidebar || !sidebar->alienCaught)
		return false;
	sidebar->alienCaught = false;
	alienCaught          = true;

	int story = StoryOfAlien(levelNumber);
	if (story == NO_STORY)
		return false;
	if (story == STORY_FINAL) {
		g_gameData->OnLevelEvaluated(levelNumber, SecondsElapsed());
		gameWon = true;
	} else {
		PlayStoryMusic();
	}
	pendingStory = story;
	return StartStory(story, levelNumber);
}

// The paddle has left the field. The steps are tried anew after each screen's return, so that
// several of them come one after the other. True: the frame ends here.
bool CControllerGame::AfterLevel()
{
	int sidePath = storyDone ? NO_STORY : StoryOfSidePath(levelNumber);
	if (sidePath != NO_STORY) {
		storyDone = true;
		if (StartStory(sidePath, 0))
			return true;
	}
	if (!g_gameData->trophyQueue.empty()) {
		ChildRequest request;
		request.kind  = CHILD_TROPHY_TALLY;
		request.value = g_gameData->trophyQueue.front();
		bool opened   = OpenChild(request);
		g_gameData->trophyQueue.pop_front();
		if (opened)
			return true;
	}
	if (!tallyDone) {
		tallyDone = true;
		if (OpenTally())
			return true;
	}
	int endStory = storyDone ? NO_STORY : StoryAtEnd(levelNumber);
	if (endStory != NO_STORY) {
		storyDone = true;
		if (StartStory(endStory, 0))
			return true;
	}
	lastFinishedLevel = levelNumber;
	SetResult(RESULT_RETURN);
	return true;
}

bool CControllerGame::OpenTally()
{
	ChildRequest request;
	request.kind = CHILD_TALLY;
	FillTally(*this, request);
	if (OpenChild(request))
		return true;
	StoreLevelResults();
	return false;
}

// What the tally would hand on, for a game without one: no bonus, but nothing is lost.
void CControllerGame::StoreLevelResults()
{
	g_gameData->SetLevelScore(g_gameData->ScoreGainedThisLevel());
	g_gameData->SetLevelRescues(g_gameData->rescuesThisLevel);
}

// The run is over and no screen asks whether to go on: the next one starts from scratch.
void CControllerGame::LeaveAfterGameOver()
{
	g_gameData->ResetRun();
	g_gameData->ApplyTotalScore();
	g_play.gameOver = false;
	SetResult(RESULT_RETURN);
}

void CControllerGame::ReplayLevel()
{
	levelNumber--;
	ReloadLevel();
	FieldTick();
}

void CControllerGame::Enter()
{
	GameChild kind     = childKind;
	ChildAnswer answer = ReadGameChild(kind, child);
	delete child;
	child     = nullptr;
	childKind = CHILD_NONE;

	bool finalStory = kind == CHILD_STORY && runningStory == STORY_FINAL;
	bool hideField  = kind == CHILD_TROPHY_TALLY || kind == CHILD_TALLY || kind == CHILD_END_GAME ||
	                 (kind == CHILD_HINT && QuizDue()) ||
	                 (kind == CHILD_QUIZ && rules.isBonusLevel) ||
	                 (kind == CHILD_STORY &&
	                  (finalStory || firstHintDue || storyDone || answer.leave || QuizDue()));
	if (hideField)
		g_display->drawingEnabled = false;
	if (kind == CHILD_DIALOG && answer.answer == 0)
		g_gameData->SetEffectsOn(false);
	if (kind == CHILD_STORY)
		pendingStory = NO_STORY;
	g_render->Freeze();

	if (kind == CHILD_PAUSE)
		WarpCursor(storedCursorX, storedCursorY);
	if (kind == CHILD_END_GAME && answer.goOn)
		sidebar->GiveLivesBack();
	if (answer.replay || answer.goOn)
		ReplayLevel();
	if (kind == CHILD_STORY && answer.leave) {
		skipFrame    = true;
		firstHintDue = false;
		SetResult(RESULT_RETURN);
		return;
	}
	if (kind == CHILD_STORY || kind == CHILD_QUIZ)
		ChooseMusic();
	skipFrame = true;
	HideCursor(-1);
	rightHeld = false;
	sidebar->SetFanHeld(false);
}
