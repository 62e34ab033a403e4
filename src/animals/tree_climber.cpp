// The base of animals that sit in the crown of a tree until the ball shakes them out.
#include "animals/tree_climber.h"

#include "field/tree.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <algorithm>

static const int CROWN_LIFT = 10; // pixels of z above what the tree says

CElementTreeClimber::CElementTreeClimber()
{
	ignoresTrees = true;
	currentTree  = nullptr;
	thudSound    = OwnSound(new CSound("animal_land_from_tree.ogg"));
}

void CElementTreeClimber::PlaceInCrown(CTree* tree, bool left)
{
	inTree      = true;
	currentTree = tree;
	tree->SetClimber(this);
	StartLife(left);
	x          = static_cast<float>(tree->CrownX() - collisionSprite->Width() / 2 +
                           (left ? crownOffsetLeft : crownOffsetRight));
	y          = static_cast<float>(tree->TrunkBaseY() - collisionSprite->Height() + crownDrop);
	z          = static_cast<float>(tree->CrownZ() + CROWN_LIFT);
	climbDepth = tree->CrownDepth();
	Place();
}

void CElementTreeClimber::TakeTree(CTree* tree)
{
	currentTree = tree;
	tree->SetClimber(this);
	climbDepth = std::max(GroundDepth(), tree->trunk->Depth() + 1);
}

void CElementTreeClimber::OnLanded()
{
	if (!currentTree)
		return;
	currentTree->SetClimber(nullptr);
	currentTree = nullptr;
	inTree      = false;
}

void CElementTreeClimber::RebuildBody()
{
	if (OffTheGround())
		ClearBody();
	else
		CElementAnimal::RebuildBody();
}

void CElementTreeClimber::Update()
{
	if (dead)
		return;
	if (bodyPlaced == OffTheGround())
		RebuildBody();
	PullTowardBall();
	if (facingLeft != lastFacingLeft) {
		lastFacingLeft = facingLeft;
		RebuildBody();
	}
	AdvanceBehaviour();
	LookForTree();
	Place();
	PlayThud(currentAction->kind == ACTION_LAND);
}

void CElementTreeClimber::LookForTree()
{
	if (currentTree || z != 0 || moving || currentAction == idleAction)
		return;
	CTree* tree =
	    CTree::FreeTreeAt(static_cast<float>(currentSprite->X() + currentSprite->Width() / 2),
	                      static_cast<float>(currentSprite->Y() + currentSprite->Height() / 2),
	                      toleranceX, toleranceY);
	if (!tree)
		return;
	TakeTree(tree);
	currentAction = ActionOfKind(ACTION_CLIMB);
	climbTopY     = tree->TrunkTopY();
	climbReturnX  = tree->CrownX() - collisionSprite->Width() / 2 +
	               (facingLeft ? crownOffsetLeft : crownOffsetRight);
	climbReturnY = tree->TrunkBaseY() - collisionSprite->Height() + crownDrop;
	climbReturnZ = tree->CrownZ() + CROWN_LIFT;
	nextTree     = tree->CrownDepth();
}

void CElementTreeClimber::PlayThud(bool landing)
{
	if (landing && currentSprite->FramesFromEnd() == thudFromEnd && !thudSound->IsPlaying())
		thudSound->Play();
}

bool CElementTreeClimber::OnBallHit()
{
	return currentAction->kind != ACTION_FALL && TryCapture();
}

void CElementTreeClimber::ShakeOut()
{
	if (dead || currentAction->kind == ACTION_FALL || currentAction->kind == ACTION_LAND)
		return;
	AnimalAction* fall = ActionOfKind(ACTION_FALL);
	if (currentAction->kind != ACTION_CLIMB) {
		fall->spriteLeft->behindFoliage  = false;
		fall->spriteRight->behindFoliage = false;
	}
	currentAction = fall;
}
