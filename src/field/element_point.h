// Small things that the ball gathers: fruit, coins, eggs.
#pragma once

#include "field/element.h"

class CSound;

enum PointKind {
	POINT_APPLE     = 1,
	POINT_ACORN     = 2,
	POINT_PINECONE  = 3,
	POINT_APPLE2    = 4, // the second set of apple pictures
	POINT_COIN      = 6,
	POINT_EGG_LEFT  = 18, // laid by a hen that faces left
	POINT_EGG_RIGHT = 19,
	POINT_COCONUT   = 49,
};

// Thrown up or lying; when it has come to rest it lays a touch circle, so it never deflects the
// ball. Taken or out of the field it is dead.
class CElementPoint : public CElementMove
{
public:
	CElementPoint(float newX, float newY, float newZ, int newKind, float newVx, float newVy,
	              float newVz);
	~CElementPoint() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CElementPoint"; }

	static bool AnyCoinLeft();
	static std::vector<CElementPoint*> PointList; // live instances

	int kind;          // an apple of the second set becomes POINT_APPLE2
	int firstKind;     // as it was made
	CSprite* sprite;   // owned
	CSprite* hatching; // owned; eggs only, null once it has hatched
	bool bouncing = true;
	CSound* thudSound; // owned

private:
	void Fly();
	void Land();
	void Rest();
	void Hatch();
	void Disappear();
	void LayCircle();
	void MoveCircle();
	void StayBelowWall();
};
