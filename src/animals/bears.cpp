// What a bear does about the ball.
#include "animals/bears.h"

#include "field/ball.h"

bool CRearingBear::InChain() const
{
	return currentAction == bumpAction || currentAction == Growl() || currentAction == Reared() ||
	       currentAction == Sink();
}

bool CRearingBear::OnBallHit()
{
	if (!g_ball)
		return false;
	if (!InChain())
		return TryCapture();
	if (CanCapture()) {
		ReportCapture(species);
		LeaveField();
		return true;
	}
	OnBump();
	return false;
}

int CRearingBear::OnBump()
{
	if (currentAction == Reared())
		currentAction = Growl();
	else if (!InChain())
		currentAction = bumpAction;
	return species;
}
