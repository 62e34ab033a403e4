// The base of every living thing on the field: its life, its body, its capture.
#include "animals/animal.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/bobber.h"
#include "field/crate.h"
#include "field/fence.h"
#include "field/obstacle_grid.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>

static const int HINT_DEPTH       = 24500;
static const int FEET_IN_PICTURE  = 6; // pixels that the feet stand above the lower edge
static const int HINT_BOB_STEPS   = 6;
static const float HINT_BOB_CURVE = 3.5f;
static const float HINT_BOB_SWING = 5.2f; // pixels

std::vector<CElementAnimal*> CElementAnimal::AnimalList;
bool CElementAnimal::animalSoundsOn = true;

int FrameSpan::Draw() const
{
	return random ? RandomWhole(static_cast<float>(min), static_cast<float>(max)) : fixed;
}

CElementAnimal::CElementAnimal()
{
	isAnimal  = true;
	shotProof = true;
	hintCycle = 0;
	AnimalList.push_back(this);

	hintArrow = new CSprite(HINT_DEPTH);
	hintArrow->AddFile("animal_arrow.png");
	hintArrow->Hide();
	hintText = new CSprite(HINT_DEPTH + 1);
	hintText->AddFile("animal_arrowtext.png");
	hintText->Hide();
	hintBob = new CBobber(0, HINT_BOB_STEPS, HINT_BOB_CURVE, HINT_BOB_SWING,
	                      Rand() % (4 * HINT_BOB_STEPS));
}

CElementAnimal::~CElementAnimal()
{
	AnimalList.erase(std::find(AnimalList.begin(), AnimalList.end(), this));
	ClearBody();
	for (ObstaclePoint* point : sparePoints)
		delete point;
	for (AnimalAction* action : actions)
		delete action;
	for (CSprite* sprite : ownedSprites)
		delete sprite;
	for (CSound* sound : ownedSounds)
		delete sound;
	delete hintArrow;
	delete hintText;
	delete hintBob;
}

CSprite* CElementAnimal::OwnSprite(CSprite* sprite)
{
	ownedSprites.push_back(sprite);
	return sprite;
}

CSound* CElementAnimal::OwnSound(CSound* sound)
{
	ownedSounds.push_back(sound);
	return sound;
}

AnimalAction* CElementAnimal::ActionOfKind(int kind) const
{
	for (AnimalAction* action : actions) {
		if (action->kind == kind)
			return action;
	}
	return nullptr;
}

// The first action is picked before the animal has its place.
void CElementAnimal::StartLife(bool left)
{
	facingLeft = lastFacingLeft = left;
	if (!actions.empty())
		AdvanceBehaviour();
}

void CElementAnimal::PlaceAt(int centreX, int centreY, bool left)
{
	StartLife(left);
	x = static_cast<float>(centreX - collisionSprite->Width() / 2);
	y = static_cast<float>(centreY - collisionSprite->Height() / 2);
	RebuildBody();
	Place();
}

void CElementAnimal::PlaceOn(CCrate* crate, bool left)
{
	crate->occupant = this;
	SitOn(crate->PerchPlace(), crateOffsetLeft, crateOffsetRight, crateOffsetY, left);
}

void CElementAnimal::PlaceOn(CFence* fence, bool left)
{
	fence->occupant = this;
	SitOn(fence->PerchPlace(), fenceOffsetLeft, fenceOffsetRight, fenceOffsetY, left);
}

void CElementAnimal::SitOn(const Perch& perch, int offsetLeft, int offsetRight, int offsetY,
                           bool left)
{
	perched = true;
	StartLife(left);
	x = static_cast<float>(perch.x - collisionSprite->Width() / 2 +
	                       (left ? offsetLeft : offsetRight));
	y = static_cast<float>(perch.y + offsetY - collisionSprite->Height());
	z = static_cast<float>(perch.z);
	Place();
}

void CElementAnimal::StartSprite(CSprite* sprite)
{
	currentSprite->Hide();
	currentSprite = sprite;
	currentSprite->Show();
	currentSprite->Rewind();
	currentSprite->Forward();
}

void CElementAnimal::PutSprite(int depth)
{
	Shift shift = ShiftOf(currentSprite);
	currentSprite->SetPos(static_cast<int>(x) + shift.dx,
	                      static_cast<int>(y) + shift.dy - static_cast<int>(z), depth);
}

CElementAnimal::Shift CElementAnimal::ShiftOf(const CSprite* sprite) const
{
	for (const Shift& shift : shifts) {
		if (shift.sprite == sprite)
			return shift;
	}
	return {};
}

int CElementAnimal::GroundDepth() const
{
	return static_cast<int>(y) + collisionSprite->Height() - FEET_IN_PICTURE;
}

void CElementAnimal::Place()
{
	if (dead)
		return;
	int depth = GroundDepth();
	if (flying) {
		depth = FLIGHT_DEPTH;
	} else if (currentTree) {
		depth = climbDepth;
	} else if (perched) {
		int onCrate = CCrate::OccupantDepth(this);
		if (onCrate >= 0)
			depth = onCrate;
	}
	PutSprite(depth);
}

void CElementAnimal::Update()
{
	if (dead)
		return;
	PullTowardBall();
	if (facingLeft != lastFacingLeft || (!bodyPlaced && !perched)) {
		lastFacingLeft = facingLeft;
		RebuildBody();
	}
	AdvanceBehaviour();
	Place();
}

bool CElementAnimal::OnBallHit()
{
	return TryCapture();
}

int CElementAnimal::OnBump()
{
	if (currentAction != bumpAction) {
		currentAction = bumpAction;
		if (callSound)
			callSound->Play();
	}
	return species;
}

bool CElementAnimal::CanCapture() const
{
	return g_ball && active && g_ball->GetStage() >= requiredStage;
}

bool CElementAnimal::TryCapture()
{
	if (!g_ball)
		return false;
	if (CanCapture()) {
		ReportCapture(species);
		LeaveField();
		return true;
	}
	if (currentAction == bumpAction) {
		if (bumpAction)
			bumpAction->phase = PHASE_ENTRY; // it plays on
		return false;
	}
	if (callSound)
		callSound->Play();
	currentAction = bumpAction;
	return false;
}

bool CElementAnimal::CaptureOrBump()
{
	if (!CanCapture()) {
		OnBump();
		return false;
	}
	ReportCapture(species);
	LeaveField();
	return true;
}

void CElementAnimal::ReportCapture(int reportedSpecies)
{
	if (g_ball)
		g_ball->AddContent(reportedSpecies);
	if (g_sidebar) {
		g_sidebar->OnCollect(reportedSpecies);
		if (reportedSpecies == SPECIES_ALIEN)
			g_sidebar->OnAlienScore();
		else
			g_sidebar->OnAnimalScore(weight);
	}
	if (g_levelGameData)
		g_levelGameData->OnAnimalRescued(reportedSpecies);
}

void CElementAnimal::LeaveField()
{
	currentSprite->Hide();
	ClearBody();
	dead = true;
}

void CElementAnimal::RebuildBody()
{
	ClearBody();
	if (perched)
		return;
	if (facingLeft || !table->bodyRight.empty()) {
		for (const BodyPoint& corner : facingLeft ? table->body : table->bodyRight)
			AddBodyPoint(corner.x, corner.y);
	} else {
		float width = static_cast<float>(collisionSprite->Width());
		for (const BodyPoint& corner : table->body)
			AddBodyPoint(width - corner.x, corner.y);
	}
	bodyPlaced = true;
}

void CElementAnimal::SyncBody()
{
	for (size_t i = 0; i < bodyPoints.size(); i++)
		MoveObstacle(bodyPoints[i], x + bodyOffsetX[i], y + bodyOffsetY[i]);
}

// A record of a body cleared before is used again. It is never freed while the animal lives: the
// ball may still be looking at it when its touch has made the animal change shape.
void CElementAnimal::AddBodyPoint(float dx, float dy)
{
	ObstaclePoint* point = nullptr;
	if (sparePoints.empty()) {
		point = new ObstaclePoint;
	} else {
		point = sparePoints.back();
		sparePoints.pop_back();
	}
	*point = ObstaclePoint{x + dx, y + dy, this};
	AddObstacleRecord(point);
	bodyPoints.push_back(point);
	bodyOffsetX.push_back(dx);
	bodyOffsetY.push_back(dy);
}

void CElementAnimal::ClearBody()
{
	RemoveObstaclePoints(this);
	sparePoints.insert(sparePoints.end(), bodyPoints.begin(), bodyPoints.end());
	bodyPoints.clear();
	bodyOffsetX.clear();
	bodyOffsetY.clear();
	bodyPlaced = false;
}

float CElementAnimal::CentreX() const
{
	return x + static_cast<float>(collisionSprite->Width() / 2);
}

float CElementAnimal::CentreY() const
{
	return y + static_cast<float>(collisionSprite->Height() / 2);
}

// Only the owner's centre counts for an animal's points, so each animal is asked once, and the
// other points are found by place: the answer is that of a walk over the whole list.
bool CElementAnimal::MayMoveTo(float centreX, float centreY, bool anywhere) const
{
	static std::vector<ObstaclePoint*> s_near;

	if (!active)
		return false;
	float r = static_cast<float>(bodyRadius);
	if (!anywhere && (centreX <= r || centreX >= FIELD_WALL_RIGHT - r || centreY >= LOWEST_Y - r))
		return false;

	g_obstacleGrid.Near(centreX, centreY, r, s_near);
	for (const ObstaclePoint* point : s_near) {
		const CElement* owner = point->owner;
		if (owner == this || (ignoresTrees && owner->isTree) || (leader && owner->follower))
			continue;
		if (!owner->isAnimal || !collisionSprite || !owner->collisionSprite)
			return false;
	}
	return !collisionSprite || RoomAmongAnimals(centreX, centreY);
}

// Two that overlap may part, but come no closer.
bool CElementAnimal::RoomAmongAnimals(float centreX, float centreY) const
{
	float ownX = CentreX(), ownY = CentreY();
	for (const CElementAnimal* other : AnimalList) {
		if (other == this || !other->firstPoint || !other->collisionSprite)
			continue;
		if (leader && other->follower)
			continue;
		float otherX = other->CentreX(), otherY = other->CentreY();
		float distance = PointDistance(otherX, otherY, centreX, centreY);
		if (distance > static_cast<float>(bodyRadius + other->bodyRadius))
			continue;
		if (follower && other->leader)
			return false;
		if (distance <= PointDistance(otherX, otherY, ownX, ownY))
			return false;
	}
	return true;
}

void CElementAnimal::PullTowardBall()
{
	if (z != 0 || flying || !active || !g_ball || g_ball->GetStage() < requiredStage ||
	    !g_ball->IsGravity())
		return;
	float fromX   = static_cast<float>(currentSprite->X() + currentSprite->Width() / 2);
	float fromY   = static_cast<float>(currentSprite->Y() + currentSprite->Height() / 2);
	float centreX = fromX, centreY = fromY;
	g_ball->PullToward(centreX, centreY, weight);
	if ((centreX == fromX && centreY == fromY) || !MayMoveTo(centreX, centreY, true))
		return;
	x += centreX - fromX;
	y += centreY - fromY;
	SyncBody();
}

int CElementAnimal::CountToRescue()
{
	int count = 0;
	for (const CElementAnimal* animal : AnimalList) {
		if (!animal->dead && !animal->optional)
			count++;
	}
	return count;
}

void CElementAnimal::NoteUpset()
{
	if (!g_game || upset)
		return;
	upset = true;
	g_game->AddDodgeHit();
}
