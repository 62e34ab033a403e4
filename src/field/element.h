// The common base of all that stands on the field, and the static lists that are the field.
#pragma once

#include <vector>

class CElement;
class CSprite;

const int FRAMES_A_SECOND = 31; // the game's own arithmetic

// A point that stops the ball. Two of them at most JOIN_DISTANCE apart act as a solid segment.
struct ObstaclePoint {
	float x, y;
	CElement* owner;
	unsigned int order         = 0;       // place in the list: earlier is smaller; kept by the list
	int cell                   = -1;      // of the obstacle grid; -1 while it is not in the list
	bool fieldOwned            = false;   // freed by ClearField, not by its owner
	ObstaclePoint* nextOfOwner = nullptr; // the owner's points in list order
};

// A sensor: a ball that overlaps it calls the owner's OnBallHit and is not deflected.
struct TouchCircle {
	float x, y, radius;
	CElement* owner;
};

// What stands on the field during a level. It enters ElementList when it is made, gets one Update
// a frame, and ends not by being deleted but by setting dead; its memory goes in ClearField.
//
// NOTES on the shared fields: the ball physics reads obstacle points and touch circles only and
// calls OnBallHit. Animals read active, isTree, leader and follower of an owner; alien shots read
// shotProof and shootable. currentSprite and collisionSprite are deleted by the class, not here.
class CElement
{
public:
	static constexpr int JOIN_DISTANCE = 12; // pixels

	CElement();
	virtual ~CElement();
	CElement(const CElement&)            = delete;
	CElement& operator=(const CElement&) = delete;

	// Copies the position to the sprites; called by the element at the end of its own Update.
	virtual void Place() = 0;
	// One frame of behaviour; called from FieldTick only, dead or alive.
	virtual void Update() = 0;
	// The ball has touched it. True: the ball goes on as if nothing had been there. False: it
	// reflects.
	virtual bool OnBallHit();
	// A shot has hit it.
	virtual void OnStun(int frames);
	// Destroyed or damaged by something other than the ball.
	virtual void Break(bool byShot, int, int);
	// The ball touched an animal that it cannot take: the species number, -1 for all others.
	virtual int OnBump();
	virtual const char* ClassName() const = 0; // for the driver's dump and the debug overlay

	// Frames since this was asked last for this element; then stores the present frame.
	int FramesSinceLastHit();
	void AddDependant(CElement* element);

	std::vector<CElement*> dependants; // not owned
	int lastHitFrame         = 0;
	bool active              = true; // an inactive animal neither moves nor can be caught
	bool dead                = false;
	bool isAnimal            = false;
	bool isTree              = false;
	bool leader              = false; // passes over the points of followers
	bool follower            = false;
	bool shotProof           = false;   // alien shots pass through its points
	bool shootable           = false;   // an alien shot that reaches it calls OnStun
	CSprite* currentSprite   = nullptr; // the one on screen
	CSprite* collisionSprite = nullptr; // its size is the element's size
	float x = 0, y = 0;                 // pixels
	float z = 0;                        // height above the ground line

	// its points in the list, kept by the list
	ObstaclePoint* firstPoint = nullptr;
	ObstaclePoint* lastPoint  = nullptr;

	static std::vector<CElement*> ElementList;            // in order of construction
	static std::vector<ObstaclePoint*> ObstaclePointList; // the solid outline of the field
	static std::vector<TouchCircle*> TouchCircleList;
	static int FrameCounter; // frames of play
};

// Adds nothing: rocks, trees, the background, the panel.
class CElementNoMove : public CElement
{
};

class CElementMove : public CElement
{
public:
	float vx = 0, vy = 0, vz = 0; // pixels per frame
};

// The outline of the field. Two kinds of record lie in it:
// - Records laid by AddObstaclePoint and AddObstacleLine belong to the field. RemoveObstaclePoints
//   takes them out of the list, but they stay valid until ClearField frees them.
// - A record handed to AddObstacleRecord stays its owner's, who keeps it, may move it with
//   MoveObstacle, and frees it after RemoveObstaclePoints, at the latest in its destructor.
// Every record has an owner. An element that is deleted takes its points and its touch circles
// out of the lists, so that they never hold anything of an owner that is gone.
ObstaclePoint* AddObstaclePoint(CElement* owner, float x, float y);
void AddObstacleRecord(ObstaclePoint* point); // not yet in the list; goes to its end
// Points along the line, at most 11 apart: the end is laid, the start is not.
void AddObstacleLine(CElement* owner, float x1, float y1, float x2, float y2);
// The only way to move a point that lies in the list.
void MoveObstacle(ObstaclePoint* point, float x, float y);
void RemoveObstaclePoints(CElement* owner);       // cheap when there are none; the order is kept
bool AnyObstacleNear(int x, int y, float radius); // at a distance of at most radius

void AddTouchCircle(CElement* owner, float x, float y, float radius);
void RemoveTouchCircles(CElement* owner); // removes and frees

void RemoveFromElementList(CElement* element); // does not delete
void FieldTick();                              // one frame of all elements
// Deletes every element and frees the field's own points. Touch circles go with their owners.
void ClearField();
