// The side panel's rules: scores, combos, timers, lost and stuck balls, the fan, the doors.
#include "field/sidebar.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/element_point.h"
#include "field/paddle.h"
#include "field/powerup.h"
#include "field/sidebar_panel.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "state/game_data.h"
#include "support/field_test.h"

#include <cmath>
#include <set>

class SidebarTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
		paddle->SetMouseX(400);
		PutBall(346, 300, 3, -4);
	}

	// A frame of the panel alone, with its pictures stepped.
	void Frames(int count = 1)
	{
		for (int i = 0; i < count; i++) {
			sidebar->Update();
			g_render->Update(true);
		}
	}

	void LoseBall()
	{
		PutBall(346, 601 + 2 * ball->Radius(), 0, 5);
		Frames();
	}
};

TEST_F(SidebarTest, ScoresFollowTheTableAndTheHighestRunningMultiplier)
{
	static const struct {
		int timer, multiplier;
	} MULTIPLIERS[] = {{-1, 1}, {TIMER_DOUBLE, 2}, {TIMER_TRIPLE, 3}, {TIMER_QUADRUPLE, 4}};
	for (const auto& row : MULTIPLIERS) { // each comes on top of the ones before
		if (row.timer >= 0)
			sidebar->timers[row.timer] = 10;
		int m = row.multiplier;
		EXPECT_EQ(m, sidebar->GetMultiplier());
		g_play.levelScore   = 0;
		sidebar->comboCount = 3;

		EXPECT_EQ(7 * m, sidebar->AddScore(7));
		sidebar->OnPointTaken(1, 1);
		sidebar->OnCrateBroken(1, 1);
		sidebar->OnFenceBroken(1, 1);
		sidebar->OnSaucerDown(1, 1);
		sidebar->OnAlienScore();
		EXPECT_EQ((7 + 1 + 10 + 15 + 500 + 1000) * m, g_play.levelScore);
		EXPECT_TRUE(sidebar->alienCaught);
	}
}

TEST_F(SidebarTest, AnimalsCountByWeightAndCombo)
{
	static const struct {
		int weight, combo, points;
	} CASES[] = {{1, 1, 25}, {5, 1, 50}, {15, 2, 350}, {4, 8, 400}, {4, 12, 400}, {6, 0, 75}};
	for (const auto& row : CASES) {
		g_play.levelScore   = 0;
		sidebar->comboCount = row.combo;
		sidebar->OnAnimalScore(row.weight);
		EXPECT_EQ(row.points, g_play.levelScore) << row.weight << " x " << row.combo;
	}
}

TEST_F(SidebarTest, ScoreTrophiesComeAboveTheirLimits)
{
	static const struct {
		int limit, bit;
	} CASES[] = {{24999, 34}, {99999, 27}, {999999, 12}};
	for (const auto& row : CASES) {
		SetPlayScore(row.limit);
		EXPECT_FALSE(g_gameData->HasTrophy(row.bit)) << row.limit;
		SetPlayScore(row.limit + 1);
		EXPECT_TRUE(g_gameData->HasTrophy(row.bit)) << row.limit;
	}
}

TEST_F(SidebarTest, ComboCountsAnimalsOfOneFlightOnly)
{
	sidebar->OnCollect(SPECIES_SHEEP);
	sidebar->OnCollect(POINT_APPLE);
	sidebar->OnCollect(POINT_EGG_LEFT);
	sidebar->OnCollect(SPECIES_BUTTERFLY_B);
	EXPECT_EQ(1, sidebar->comboCount);
	EXPECT_EQ(-1, sidebar->panel->combo.current) << "no banner for a single animal";

	for (int i = 2; i <= 12; i++) {
		sidebar->OnCollect(SPECIES_COW);
		EXPECT_EQ(std::min(i - 2, 8), sidebar->panel->combo.current);
	}
	sidebar->ClearCombo();
	ball->SetHeld(true);
	sidebar->OnCollect(SPECIES_COW);
	EXPECT_EQ(0, sidebar->comboCount) << "a held ball makes no combo";
}

TEST_F(SidebarTest, BannerStaysInTheFieldAndGoesWhenPlayed)
{
	PutBall(5, 300, 0, -5);
	sidebar->OnCollect(SPECIES_COW);
	sidebar->OnCollect(SPECIES_COW);
	CComboBanner& banner  = sidebar->panel->combo;
	const CSprite* number = banner.number[0];
	const CSprite* word   = banner.word[0];
	EXPECT_EQ(0, number->X());
	EXPECT_EQ(number->Width() + 4, word->X());
	EXPECT_EQ(310, number->Y());

	PutBall(690, 300, 0, -5);
	sidebar->OnCollect(SPECIES_COW);
	EXPECT_TRUE(number->IsHidden()) << "the earlier banner is taken away";
	EXPECT_EQ(693, banner.word[1]->X() + banner.word[1]->Width());
	Frames(200);
	EXPECT_EQ(-1, banner.current);
	EXPECT_TRUE(banner.number[1]->IsHidden());
}

TEST_F(SidebarTest, CaughtPowerupStartsItsTimerAndScores)
{
	static const int DURATIONS[POWERUP_TIMERS] = {900, 900, 900, 1000000, 900, 1000000, 900, 900,
	                                              150, 900, 150, 150,     900, 900,     900, 900};
	for (int kind = POWERUP_DOUBLE; kind <= POWERUP_FANS; kind++) {
		SCOPED_TRACE(kind);
		std::fill(std::begin(sidebar->timers), std::end(sidebar->timers), 0);
		sidebar->powerupQueue.clear();
		g_play.levelScore = 0;
		sidebar->OnPowerupCaught(kind);
		EXPECT_EQ(DURATIONS[kind - 2], sidebar->timers[kind - 2]);
		ASSERT_EQ(1u, sidebar->powerupQueue.size());
		EXPECT_EQ(kind - 2, sidebar->powerupQueue.front());
		EXPECT_EQ(kind <= POWERUP_QUADRUPLE ? 100 * kind : 100, g_play.levelScore);
	}
	g_play.levelScore = g_play.money = 0;
	sidebar->OnPowerupCaught(POWERUP_MONEY);
	EXPECT_EQ(25, g_play.money);
	EXPECT_EQ(0, g_play.levelScore);
}

TEST_F(SidebarTest, ExtraLifeIsCountedForTheLevelUnlessAllWasLost)
{
	sidebar->OnPowerupCaught(POWERUP_LIFE);
	EXPECT_EQ(5, g_play.lives);
	EXPECT_EQ(1, g_gameData->extraLivesThisLevel);
	EXPECT_EQ(75, g_play.extraLifeTimer);
	g_play.gameOver = true;
	sidebar->OnPowerupCaught(POWERUP_LIFE);
	EXPECT_EQ(6, g_play.lives);
	EXPECT_EQ(1, g_gameData->extraLivesThisLevel);
	EXPECT_FALSE(g_play.gameOver);

	CSprite* sign = sidebar->panel->extraLifeSign.sprite;
	Frames(76);
	EXPECT_FALSE(sign->IsHidden());
	Frames(1);
	EXPECT_TRUE(sign->IsHidden());
}

TEST_F(SidebarTest, TimersUndoWhatTheyHeld)
{
	float speed = ball->Speed();
	static const struct {
		int timer;
		float speedFactor;
	} SPEEDS[] = {{TIMER_FAST, 0.7692308f}, {TIMER_SLOW, 1.3f}};
	for (const auto& row : SPEEDS) {
		PutBall(346, 300, 3, -4);
		sidebar->timers[row.timer] = 2;
		Frames();
		EXPECT_FLOAT_EQ(speed * row.speedFactor, ball->Speed());
		Frames(3);
		EXPECT_FLOAT_EQ(speed * row.speedFactor, ball->Speed()) << "once only";
	}

	paddle->BecomeWide();
	sidebar->timers[TIMER_WIDE] = 2;
	Frames();
	EXPECT_FALSE(paddle->IsWide());
	paddle->BecomeFlat();
	sidebar->timers[TIMER_SHRINK] = 2;
	Frames();
	EXPECT_FALSE(paddle->IsFlat());
	paddle->BecomeSticky();
	sidebar->timers[TIMER_STICKY] = 2;
	Frames();
	EXPECT_FALSE(paddle->IsSticky());
}

TEST_F(SidebarTest, SkinLastsWhileTheOtherSkinsTimerRuns)
{
	ball->SetSkinGravity();
	sidebar->timers[TIMER_BULLDOZER] = 2;
	sidebar->timers[TIMER_GRAVITY]   = 10;
	Frames();
	EXPECT_TRUE(ball->IsGravity());
	Frames(8);
	EXPECT_FALSE(ball->IsGravity());

	ball->SetSkinBulldozer();
	sidebar->timers[TIMER_BULLDOZER] = sidebar->timers[TIMER_GRAVITY] = 2;
	Frames();
	EXPECT_FALSE(ball->IsBulldozer()) << "both end in one frame";
}

TEST_F(SidebarTest, LostBallCostsALifeAndEndsWhatRan)
{
	ball->SetSkinBulldozer();
	paddle->BecomeWide();
	paddle->LoadDestructo();
	for (int timer : {TIMER_WIDE, TIMER_FAST, TIMER_BULLDOZER, TIMER_DOUBLE, TIMER_DESTRUCTO})
		sidebar->timers[timer] = 500;
	sidebar->powerupQueue.push_back(TIMER_RAIN);
	LoseBall();

	EXPECT_EQ(3, g_play.lives);
	EXPECT_FALSE(g_play.gameOver);
	EXPECT_TRUE(ball->IsHeld());
	EXPECT_FLOAT_EQ(CPaddle::BALL_REST_Y, ball->y);
	EXPECT_FALSE(ball->IsBulldozer());
	EXPECT_FALSE(paddle->IsWide());
	EXPECT_FALSE(paddle->destructoLoaded);
	EXPECT_TRUE(sidebar->powerupQueue.empty());
	EXPECT_TRUE(g_gameData->notes.paddleTouch);
	EXPECT_EQ(0, sidebar->timers[TIMER_FAST]);

	ball->ResetSpeed();
	float speed = ball->Speed();
	Frames();
	for (int timer : sidebar->timers)
		EXPECT_EQ(0, timer);
	EXPECT_FLOAT_EQ(speed, ball->Speed()) << "fast is not undone";
}

TEST_F(SidebarTest, LostBallShowsTheBallsLeftForItsTime)
{
	LoseBall();
	CLostBallSign& sign = sidebar->panel->lostBallSign;
	EXPECT_EQ(209, g_play.readyTimer);
	EXPECT_FALSE(sign.upperLine->IsHidden());
	EXPECT_FALSE(sign.big[3]->IsHidden());
	EXPECT_TRUE(sign.big[4]->IsHidden());
	int left = sign.lowerLine->X(), right = sign.big[3]->X() + sign.big[3]->Width();
	EXPECT_NEAR(346, (left + right) / 2, 1);

	g_play.lives = 12;
	Frames();
	EXPECT_TRUE(sign.big[3]->IsHidden());
	EXPECT_FALSE(sign.small[0][1]->IsHidden());
	EXPECT_FALSE(sign.small[1][2]->IsHidden());
	Frames(210);
	EXPECT_EQ(-1, g_play.readyTimer);
	EXPECT_TRUE(sign.upperLine->IsHidden());
	EXPECT_TRUE(sign.small[1][2]->IsHidden());
}

TEST_F(SidebarTest, WithoutALifeTheLostBallEndsTheGame)
{
	g_play.lives = 0;
	LoseBall();
	EXPECT_TRUE(g_play.gameOver);
	EXPECT_EQ(0, g_play.lives);
	EXPECT_FALSE(ball->IsHeld());
	EXPECT_EQ(-1, g_play.readyTimer);
}

TEST_F(SidebarTest, BonusLevelTakesNoLife)
{
	sidebar->SetBonusLevel(true);
	LoseBall();
	EXPECT_EQ(4, g_play.lives);
	EXPECT_FALSE(ball->IsHeld());
}

TEST_F(SidebarTest, BallAboveTheFieldComesBackFree)
{
	PutBall(346, -1 - 2 * ball->Radius(), 0, -5);
	Frames();
	EXPECT_TRUE(ball->IsHeld());
	EXPECT_EQ(4, g_play.lives);
	EXPECT_EQ(-1, g_play.readyTimer);
}

TEST_F(SidebarTest, StuckBallIsGivenBackAfterFifteenSamples)
{
	int frames = 0;
	while (!ball->IsHeld() && frames < 1000) {
		PutBall(346 + frames % 40, 300, 1, 1); // to and fro within 60 pixels
		Frames();
		frames++;
	}
	EXPECT_EQ(450, frames);
	EXPECT_EQ(4, g_play.lives);
}

TEST_F(SidebarTest, BallThatTravelsIsNeverStuck)
{
	for (int frame = 0; frame < 900; frame++) {
		ball->x = frame / 30 % 2 ? 346 : 410;
		Frames();
		ASSERT_FALSE(ball->IsHeld()) << frame;
	}
	EXPECT_EQ(0, sidebar->stuckStrikes);
}

TEST_F(SidebarTest, FullFanLastsFiftyNineFramesAndRefillsInFiveHundred)
{
	sidebar->SetFanHeld(true);
	int frames = 0;
	do {
		Frames();
		frames++;
	} while (sidebar->fanRunning && frames < 200);
	EXPECT_EQ(59, frames);
	EXPECT_EQ(0, sidebar->fanCharge);
	EXPECT_FALSE(paddle->fanOn);

	sidebar->SetFanHeld(false);
	Frames(499);
	EXPECT_EQ(998, sidebar->fanCharge);
	Frames(5);
	EXPECT_EQ(1000, sidebar->fanCharge);
}

TEST_F(SidebarTest, FansPowerupCostsNothing)
{
	sidebar->SetUnlimitedFans();
	sidebar->SetFanHeld(true);
	Frames(300);
	EXPECT_TRUE(paddle->fanOn);
	EXPECT_EQ(1000, sidebar->fanCharge);
	EXPECT_FALSE(sidebar->panel->fan.glow->IsHidden());
	sidebar->SetFanHeld(false);
	Frames();
	EXPECT_FALSE(paddle->fanOn);
	EXPECT_TRUE(sidebar->panel->fan.glow->IsHidden());
}

TEST_F(SidebarTest, GaugeIsCutToTheCharge)
{
	CSprite* colour    = sidebar->panel->fan.colour;
	sidebar->fanCharge = 498;
	Frames();
	EXPECT_EQ(std::min(41, colour->FullHeight()), colour->Height()) << "half of 83";
}

TEST_F(SidebarTest, PortraitsAreShownInOrderBehindTheDoor)
{
	sidebar->OnCollect(SPECIES_BEAR);
	sidebar->OnCollect(POINT_EGG_RIGHT);
	sidebar->OnCollect(SPECIES_ZEBRA);
	CPortraitWindow& window = sidebar->panel->portraits;
	CPanelDoor& door        = sidebar->panel->portraitDoor;
	std::vector<int> shown;
	for (int frame = 0; frame < 600; frame++) {
		int before   = window.number;
		bool wasOpen = door.rubberSlide > 0 || door.mainSlide > 0;
		Frames();
		if (window.number != before) {
			shown.push_back(window.number);
			EXPECT_FALSE(wasOpen) << "it changes behind the closed door";
			EXPECT_GT(sidebar->portraitHold, 28);
		}
	}
	EXPECT_EQ((std::vector<int>{1, 2, 64}), shown);
	EXPECT_TRUE(door.IsFullyOpen()) << "the last portrait stays";
	EXPECT_TRUE(window.portraits[1]->IsHidden());
	EXPECT_FALSE(window.portraits[64]->IsHidden());
	EXPECT_FALSE(window.nameThe->IsHidden());
	EXPECT_EQ(nullptr, window.eyes[2]) << "an egg has no eyes";
}

TEST_F(SidebarTest, DiscsAreShownInOrderAndTheDoorShutsWhenTheTimerEnds)
{
	sidebar->OnPowerupCaught(POWERUP_STICKY);
	sidebar->OnPowerupCaught(POWERUP_RAIN);
	CDiscWindow& window = sidebar->panel->discs;
	Frames(40);
	EXPECT_EQ(TIMER_STICKY, window.index);
	Frames(70);
	EXPECT_EQ(TIMER_RAIN, window.index);
	EXPECT_TRUE(window.discs[TIMER_STICKY]->IsHidden());
	EXPECT_TRUE(sidebar->panel->discDoor.IsFullyOpen());
	Frames(130);
	EXPECT_EQ(-1, window.index);
	EXPECT_FALSE(sidebar->panel->discDoor.open);
	EXPECT_FALSE(sidebar->panel->discDoor.handleBoth->IsHidden());
	EXPECT_TRUE(window.names[TIMER_RAIN]->IsHidden());
}

TEST_F(SidebarTest, DoorSlidesFollowOneAnother)
{
	CPanelDoor door(297);
	door.AskToOpen();
	int frames = 0;
	while (!door.open && frames < 100) {
		door.Step();
		door.PlaceParts();
		g_render->Update(true);
		frames++;
		EXPECT_TRUE(door.mainSlide == 0 || door.handleSlide > 25);
		EXPECT_TRUE(door.rubberSlide == 0 || door.mainSlide > 18);
	}
	EXPECT_EQ(48, door.rubberSlide);
	EXPECT_EQ(48, door.handleSlide);
	EXPECT_EQ(693, door.mainPart[0]->X()) << "cut at the panel's edge";
	EXPECT_EQ(std::max(door.mainPart[0]->FullWidth() - 43, 0), door.mainPart[0]->Width());

	door.AskToClose(true);
	for (int i = 0; i < 100 && door.closing; i++) {
		door.Step();
		EXPECT_TRUE(door.handleSlide == 48 || door.mainSlide + 25 < 48);
	}
	EXPECT_TRUE(door.justShut);
	EXPECT_TRUE(door.MayChange());
	EXPECT_TRUE(door.handleBoth->IsHidden()) << "its handle does not turn in between";
}

TEST_F(SidebarTest, DigitsAreRowsOfTheStrip)
{
	static const struct {
		int shown, place, row;
	} CASES[] = {
	    {0, 0, 0},           // no value yet: the blank row
	    {20, 0, 20},         // 1
	    {35, 0, 35},         // three quarters on the way to 2
	    {200, 0, 200},       // the 0 of 10
	    {215, 0, 215},       // on the way to 11
	    {220, 0, 20},        // the 1 of 11
	    {180, 1, 0},         // 9 has no tens: a leading zero
	    {200, 1, 20},        // the 1 of 10
	    {399, 1, 20},        // whole steps only
	    {2000, 1, 200},      // the tens of 100
	    {40 * 1234, 1, 120}, // 2468: the 6
	    {40 * 1234, 3, 40},  // the 2
	    {40 * 1234, 4, 0},   // nothing before it
	};
	for (const auto& row : CASES)
		EXPECT_EQ(row.row, CScoreDrum::StripRow(row.shown, row.place))
		    << row.shown << " at " << row.place;
}

TEST_F(SidebarTest, DrumsRollFastFromFarAndSettleExactly)
{
	CScoreDrum& score = sidebar->panel->score;
	g_play.levelScore = 1000;
	Frames();
	EXPECT_EQ(1000, score.shown) << "a twentieth of the way";
	Frames(300);
	EXPECT_EQ(20000, score.shown);
	EXPECT_EQ(20, score.sprites[3]->sourceY) << "the 1 of 0001000";
	g_play.levelScore = 999;
	Frames(19);
	EXPECT_EQ(20000 - 19, score.shown) << "downward by ones";
	EXPECT_EQ(0, sidebar->panel->animalsToRescue.shown);
}

TEST_F(SidebarTest, BubblesComeAndGoWithTheLives)
{
	CLivesRow& row = sidebar->panel->lives;
	Frames(40);
	for (int i = 0; i < CLivesRow::BUBBLES; i++)
		EXPECT_EQ(i >= 4, row.bubbles[i]->IsHidden()) << i;
	EXPECT_EQ(0, row.bubbles[3]->Frame());
	g_play.lives = 3;
	Frames(2);
	EXPECT_FALSE(row.bubbles[3]->IsHidden()) << "it bursts first";
	Frames(40);
	EXPECT_TRUE(row.bubbles[3]->IsHidden());
	g_play.lives = 10;
	Frames(1);
	EXPECT_FALSE(row.bubbles[9]->IsHidden());
}

TEST_F(SidebarTest, ContinuedGameGetsFourLivesThatCountForNoLevel)
{
	g_play.lives    = 0;
	g_play.gameOver = true;
	sidebar->GiveLivesBack();
	EXPECT_EQ(4, g_play.lives);
	EXPECT_EQ(0, g_gameData->extraLivesThisLevel);
	g_play.lives = 2;
	sidebar->GiveLivesBack();
	EXPECT_EQ(4, g_play.lives);
	EXPECT_EQ(2, g_gameData->extraLivesThisLevel);
}

TEST_F(SidebarTest, TrophySignShowsOnceAndGoes)
{
	CSprite* sign = sidebar->panel->trophySign.sprite;
	EXPECT_TRUE(sign->IsHidden());
	sidebar->ShowTrophySign();
	Frames(10);
	EXPECT_FALSE(sign->IsHidden());
	Frames(200);
	EXPECT_TRUE(sign->IsHidden());
}

TEST(Portraits, EveryAnimalHasOneOfItsOwn)
{
	std::set<int> numbers;
	for (int kind = SPECIES_SHEEP; kind <= SPECIES_UNICORN; kind++) {
		bool none = kind == POINT_COIN || kind == POINT_COCONUT || kind == POINT_EGG_LEFT ||
		            kind == POINT_EGG_RIGHT;
		if (none)
			continue;
		int number = PortraitOfKind(kind);
		EXPECT_GE(number, 0) << kind;
		EXPECT_TRUE(numbers.insert(number).second) << kind;
	}
	EXPECT_EQ(65u, numbers.size());
	EXPECT_EQ(2, PortraitOfKind(POINT_EGG_LEFT));
	EXPECT_EQ(2, PortraitOfKind(POINT_EGG_RIGHT));
	EXPECT_EQ(35, PortraitOfKind(SPECIES_MONKEY));
	EXPECT_EQ(0, PortraitOfKind(SPECIES_ALIEN));
	for (int kind :
	     {int(POINT_APPLE), int(POINT_COIN), int(POINT_COCONUT), int(SPECIES_BUTTERFLY_A)})
		EXPECT_EQ(-1, PortraitOfKind(kind));
}
