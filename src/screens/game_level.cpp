// The level runner's loading: how a level is built, torn down and built again.
#include "screens/game.h"

#include "animals/animal.h"
#include "field/background.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/barrier.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "field/tree.h"
#include "frame/debug.h"
#include "level/bonus_rules.h"
#include "level/level_catalogue.h"
#include "level/story_pages.h"
#include "screens/greeting.h"
#include "screens/level_timer.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

static const int BIG_BALL_STAGE    = 17;
static const float SPEEDBALL_START = 1.4f; // times the ball's normal speed
static const int BARRIER_PULSE     = 41;   // from the paddle's x

void CControllerGame::LoadLevel(int number)
{
	levelNumber       = number == -1 ? levelNumber + 1 : number;
	lastFinishedLevel = -2;
	background        = nullptr;
	rules             = LevelRules();
	alienCaught       = false;
	leftKeyHeld = rightKeyHeld = false;

	g_gameData->OnLevelStart(levelNumber);
	BuildLevel(levelNumber, this);
	if (!background) {
		if (levelNumber == FIRST_LEVEL)
			Error("The first level has no background.", true, true);
		LoadLevel(FIRST_LEVEL);
		return;
	}
	if (rules.isBonusLevel)
		g_gameData->NoteBonusLevel();
	g_gameData->StoreObstaclesAtStart(ObstaclesStanding());

	MakeField();
	ApplyStartRules();
	CountStart();
	if (g_gameData->KidsBarrierOn() && g_gameData->IsKidsMode() && !rules.isSpeedball)
		barrier->Raise(paddle->GetX() + BARRIER_PULSE);
	storyDone = !g_gameData->HintPagesOn();
	if (!storyDone)
		pendingStory = StoryAtStart(levelNumber);
	ChooseMusic();
}

// The order is that of the element list: the panel sees each frame before paddle and ball do.
void CControllerGame::MakeField()
{
	sidebar = g_sidebar = new CSidebar();
	paddle = g_paddle = new CPaddle();
	ball = g_ball = new CBall();
	barrier = g_barrier = new CBarrier(ball);
	physics             = new BallPhysics(ball, paddle);
	g_background        = background;
	paddle->ResetBall();
	paddle->SetBeamTop(background->BeamTop());
}

void CControllerGame::ApplyStartRules()
{
	animalsAtStart = CElementAnimal::CountToRescue();
	if (rules.isBonusLevel)
		CTree::SetBonusLevel();
	sidebar->SetBonusLevel(rules.isBonusLevel);
	if (rules.startBulldozer)
		ball->SetSkinBulldozer();
	if (rules.startBigBall)
		ball->SetStage(BIG_BALL_STAGE);
	if (rules.isSpeedball && !g_gameData->IsKidsMode())
		ball->ScaleSpeed(SPEEDBALL_START);
	if (rules.unlimitedFans)
		sidebar->SetUnlimitedFans();
}

void CControllerGame::CountStart()
{
	startCount   = BonusStartCount(*this);
	coinsAtStart = rules.isCoin ? g_play.money : 0;
}

void CControllerGame::ReloadLevel()
{
	slowFrames = 0;
	startCount = coinsAtStart = 0;
	tallyDone                 = false;
	firstFrame                = true;

	ClearField();
	delete physics;
	ClearFieldPointers();
	timer->Reset();
	leftHeld = rightHeld = false;
	elapsed              = -1; // before the level's prizes ask how long it has run

	LoadLevel(-1);
	exitSpeed      = 0;
	entrySpeed     = 54;
	levelOver      = false;
	paddleEntering = true;
	playOpen       = 0;
	greeting->Begin();
}

void CControllerGame::ClearFieldPointers()
{
	paddle       = nullptr;
	ball         = nullptr;
	barrier      = nullptr;
	physics      = nullptr;
	sidebar      = nullptr;
	background   = nullptr;
	g_paddle     = nullptr;
	g_ball       = nullptr;
	g_barrier    = nullptr;
	g_sidebar    = nullptr;
	g_background = nullptr;
}

bool CControllerGame::AlienLevel() const
{
	for (int level : {23, 60, 83, 100, 140, 170, 182})
		if (levelNumber == level)
			return true;
	return false;
}

void CControllerGame::ChooseMusic()
{
	if (AlienLevel() && !alienCaught)
		PlayAlienMusic();
	else if (pendingStory != -1 && HasGameChild(CHILD_STORY))
		PlayStoryMusic();
	else if (QuizDue())
		PlayQuizMusic();
	else if (rules.isBonusLevel)
		PlayBonusMusic();
	else
		PlayNextStageMusic();
}

void CControllerGame::SetLevelTimer(int seconds, bool held)
{
	timer->Set(seconds, held);
}

void CControllerGame::AddDodgeHit()
{
	if (rules.isDodgeball)
		rules.dodgeHits++;
}

void CControllerGame::RecordOrderBreak(int number)
{
	if (rules.orderNext >= 1 && rules.orderNext <= ORDER_PLACES)
		rules.orderRecord[rules.orderNext - 1] = number;
	rules.orderNext++;
}
