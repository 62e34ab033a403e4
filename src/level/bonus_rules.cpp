// What ends a level of each kind, what its bonus counts, and what the tally is told.
#include "level/bonus_rules.h"

#include "animals/animal.h"
#include "animals/stampede.h"
#include "field/ball.h"
#include "field/crate.h"
#include "field/fence.h"
#include "field/sidebar.h"
#include "frame/debug.h"
#include "level/tally_rules.h"
#include "media/display.h"
#include "screens/game.h"
#include "screens/level_timer.h"

#include <initializer_list>

int ObstaclesStanding()
{
	return CCrate::CountStanding(0, false) + CFence::CountStanding(0, false);
}

static bool BallIsLost(const CControllerGame& game)
{
	return game.ball->y > SCREEN_HEIGHT + 2 * game.ball->Radius();
}

bool LevelHasEnded(const CControllerGame& game)
{
	const LevelRules& rules = game.rules;
	if (g_play.animalsToRescue == 0 && game.animalsAtStart != 0)
		return true;
	if (game.timer->IsUp())
		return true;
	if (rules.isDemolition && ObstaclesStanding() == 0)
		return true;
	if (rules.isStampede && CElementStampede::StampedeFinished())
		return true;
	if (rules.isBonusLevel && BallIsLost(game))
		return true;
	if (rules.isDodgeball && rules.dodgeLimit != -1 && rules.dodgeHits >= rules.dodgeLimit)
		return true;
	return rules.isOrder && rules.orderNext > rules.orderCount;
}

int BonusStartCount(const CControllerGame& game)
{
	const LevelRules& rules = game.rules;
	if (rules.isDemolition || rules.isCoin)
		return ObstaclesStanding();
	if (rules.isStampede || rules.isTightSpot)
		return CElementAnimal::CountToRescue();
	if (rules.isSpeedball)
		return game.timer->SecondsLeft();
	return 0;
}

static void SetTally(ChildRequest& request, int type, std::initializer_list<int> values)
{
	request.tallyType = type;
	int place         = 0;
	for (int value : values)
		request.tallyValues[place++] = value;
}

void FillTally(const CControllerGame& game, ChildRequest& request)
{
	const LevelRules& rules = game.rules;
	int secondsLeft         = game.timer->SecondsLeft();
	int start               = game.startCount;

	if (!rules.isBonusLevel)
		SetTally(request, TALLY_REGULAR, {});
	else if (rules.isDemolition)
		SetTally(request, TALLY_DEMOLITION, {ObstaclesStanding(), start, secondsLeft});
	else if (rules.isStampede)
		SetTally(request, TALLY_STAMPEDE,
		         {CElementAnimal::CountToRescue(), start, CElementStampede::stampedeSpecies});
	else if (rules.isSpeedball)
		SetTally(request, TALLY_SPEEDBALL, {secondsLeft, start});
	else if (rules.isCoin)
		SetTally(request, TALLY_COIN,
		         {g_play.money - game.coinsAtStart, ObstaclesStanding(), start});
	else if (rules.isDodgeball)
		SetTally(request, rules.dodgeVariant,
		         {rules.dodgeLimit - rules.dodgeHits, rules.dodgeLimit, secondsLeft});
	else if (rules.isOrder)
		SetTally(request, TALLY_ORDER, {rules.orderCount});
	else if (rules.isTightSpot)
		SetTally(request, TALLY_TIGHT_SPOT, {secondsLeft, CElementAnimal::CountToRescue(), start});
	else if (rules.isEgg)
		SetTally(request, TALLY_EGG, {game.ball->EggCount()});
	else if (rules.isHarvest)
		SetTally(request, TALLY_HARVEST,
		         {game.ball->AppleCount(), game.ball->PineconeCount(), game.ball->AcornCount(),
		          game.ball->CoconutCount()});
	else
		Error("Unable to identify type of bonus level!  The code for this level may be missing a "
		      "required is'Type' variable.",
		      true, true);
}
