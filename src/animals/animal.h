// The base of every living thing on the field, and the machine that plays its actions.
#pragma once

#include "animals/animal_action.h"
#include "field/element.h"

#include <string>
#include <vector>

class CBobber;
class CCrate;
class CFence;
class CSound;
class CTree;
struct BirdPage;
struct Perch;
struct PictureRow;
struct SpeciesTable;

// An animal is mostly data: its class fills the list of actions, and AdvanceBehaviour plays them,
// picks the next by weight and does the walking. The ball takes it at a touch when it is big
// enough, and is reflected otherwise. x, y is the upper left of the collision sprite.
//
// The base does all that a species with nothing of its own needs: Update, Place, OnBallHit and the
// body come from its SpeciesTable (species.h). A species overrides what it does differently.
class CElementAnimal : public CElementMove
{
public:
	static constexpr int LOWEST_Y     = 480;  // an animal's centre stays above this less its radius
	static constexpr int FLIGHT_DEPTH = 1200; // drawing depth in the air

	CElementAnimal();
	~CElementAnimal() override; // deletes actions, hint and every sprite and sound of Own...

	void Place() override;
	void Update() override;
	bool OnBallHit() override; // TryCapture
	int OnBump() override;

	virtual void OnLanded() {}   // a fall has ended
	virtual void UpdateFlight(); // one frame in the air
	virtual void ChooseLandingSpot();
	virtual void FaceLandingSpot();
	virtual void UpdateRescueHint();
	virtual void BeginFlight();   // the crate or fence it stands on was hit
	virtual bool HeadsUp() const; // in the air: y decreases
	virtual void HeadUp(bool up); // the same, changed by landing spot and edges
	virtual void EndFlight();     // it has come down, at its place
	virtual void RebuildBody();   // the outline of its facing; none while perched

	void AdvanceBehaviour();
	bool CanCapture() const;
	bool TryCapture(); // capture or bump; the usual OnBallHit
	void ReportCapture(int reportedSpecies);
	void LeaveField(); // the usual end of a capture: hidden, no outline, dead
	bool MayMoveTo(float centreX, float centreY, bool anywhere) const;
	void SyncBody();
	void AddBodyPoint(float dx, float dy);
	void ClearBody();
	void PullTowardBall();

	float CentreX() const; // of the collision sprite
	float CentreY() const;

	static int CountToRescue();
	static void RescueHintTick(); // once a field tick
	static std::vector<CElementAnimal*> AnimalList;
	static int hintCycle, hintTimer, hintBaseCount;
	static bool animalSoundsOn; // clear while a level is being built

	// species
	int species       = -1;
	int bodyRadius    = 0; // pixels
	int weight        = 0;
	int requiredStage = 0;
	float speedX = 0, speedY = 0;      // pixels per frame
	bool optional             = false; // nothing waits for it
	bool mayTurn              = false;
	bool ignoresTrees         = false;
	bool upset                = false; // disturbed once: counts on a dodgeball level
	CSound* callSound         = nullptr;
	const SpeciesTable* table = nullptr; // not owned

	// where it faces and what it does
	bool facingUp = false, facingLeft = false, lastFacingLeft = false;
	int forcedDirection = 0; // 1 left, 2 right; used up by the next walk
	bool moving         = false;
	int walkCounter     = 0;            // frames left in the present phase
	std::vector<AnimalAction*> actions; // owned
	AnimalAction* currentAction  = nullptr;
	AnimalAction* idleAction     = nullptr;
	AnimalAction* bumpAction     = nullptr;
	AnimalAction* flightAction   = nullptr;
	CElementAnimal* followTarget = nullptr; // not owned

	// body
	bool bodyPlaced = false;
	std::vector<ObstaclePoint*> bodyPoints; // owned
	std::vector<float> bodyOffsetX, bodyOffsetY;

	// trees
	bool inTree        = false;
	CTree* currentTree = nullptr;
	int riseFromFrame = 0, climbTopY = 0, climbReturnX = 0, climbReturnY = 0, climbReturnZ = 0;
	int nextTree = 0, climbDepth = 0; // drawing depths

	// flight
	bool flying = false, rising = false, descending = false, landsOnGround = false;
	bool perched       = false;
	int landOffsetLeft = 0, landOffsetRight = 0;
	int crateOffsetLeft = 0, crateOffsetRight = 0, crateOffsetY = 0;
	int fenceOffsetLeft = 0, fenceOffsetRight = 0, fenceOffsetY = 0;
	int flightCounter  = 0; // frames
	float flightSpeedX = 0, flightSpeedY = 0, flightSpeedZ = 0, flightCeiling = 0;
	int flightMargin = 0;
	float landX = 0, landY = 0, landZ = 0;

	// hint
	CSprite* hintArrow; // owned
	CSprite* hintText;  // owned
	CBobber* hintBob;   // owned
	int hintFrames = 0;

protected:
	// Steps of a species' constructor, in this order: its numbers, then these.
	void LoadCall(const std::string& soundName);
	void BuildActions(const SpeciesTable& newTable); // pictures, actions, collision sprite
	void PlaceAt(int centreX, int centreY, bool left);
	void PlaceOn(CCrate* crate, bool left);
	void PlaceOn(CFence* fence, bool left);
	void StartLife(bool left); // the first action; part of those that place

	bool CaptureOrBump();     // for those that bump in a machine of their own
	void NoteUpset();         // once an animal, for a dodgeball level
	void FlyAsPerchingBird(); // the flight numbers that all perching birds share
	void TakeBirdNumbers(const BirdPage& page);
	void TakeOff();                      // what every flight begins with
	CSprite* OwnSprite(CSprite* sprite); // deleted with the animal
	CSound* OwnSound(CSound* sound);
	AnimalAction* ActionOfKind(int kind) const; // the first; null without one
	// Pictures that a class shows by itself, beside those of its actions.
	CSprite* LoadPicture(const PictureRow& row, bool left);
	// All of the table's, by row and facing; for a species with a machine of its own.
	void LoadPictures(const SpeciesTable& newTable, CSprite* (*sprites)[2]);
	// Shows a sprite from its first frame on in place of the current one.
	void StartSprite(CSprite* sprite);
	void PutSprite(int depth); // the current one, at its place
	struct Shift {
		CSprite* sprite = nullptr; // not owned
		int dx = 0, dy = 0;
	};
	Shift ShiftOf(const CSprite* sprite) const; // against x, y; zero for the standing picture
	int GroundDepth() const; // of one that stands on the ground: the y of its feet

private:
	bool SpriteFits() const;
	bool PhaseEnded(const FrameSpan& span) const;
	bool RunPhase(); // true when the action has finished
	bool ToExit();   // the same
	void TakePhase(int phase, CSprite* left, CSprite* right, const FrameSpan& span);
	void PlayActionSounds();
	void WorkFrame();
	void WalkFrame();
	void WalkBothFrame();
	void FallFrame();
	void ClimbFrame();
	void LayFrame();
	void FlutterFrame();
	void FinishAction();
	AnimalAction* ChooseNext();
	AnimalAction* ChooseByWeight();
	void DecideDirection();
	void DecideBothDirections();
	void TowardTarget(bool& left, bool& up) const;
	bool StepAllowed(bool left, bool up, float stepY) const;
	void EndWalkSoon();
	CSprite* EntrySprite() const;
	void EnterAction();
	bool Descend(); // true when it has come down
	void Arrive();
	void ChooseGroundSpot();
	void ChoosePerch(int fences, int crates, int margin);
	void AimAtPerch(const Perch& perch, int offsetY);
	void KeepInFlightMargin();
	void SitOn(const Perch& perch, int offsetLeft, int offsetRight, int offsetY, bool left);
	bool RoomAmongAnimals(float centreX, float centreY) const;

	std::vector<Shift> shifts;               // of sprites that do not stand at x, y itself
	std::vector<ObstaclePoint*> sparePoints; // owned; of bodies cleared, for the next one
	std::vector<CSprite*> ownedSprites;
	std::vector<CSound*> ownedSounds;

	friend struct SpeciesBuilder;
};
