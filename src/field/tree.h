// Trees: a solid foot, a crown that shakes, fruit that falls.
#pragma once

#include "field/element.h"

#include <string>

class CElementAnimal;

enum TreeKind { TREE_GREEN, TREE_ORANGE, TREE_RED, TREE_PINE, TREE_PALM };

// A ball at its foot shakes it: fruit falls, sometimes a power-up, and out comes whoever sits in
// the crown. A y of 600 or more stands in front of the field, as a picture only.
class CTree : public CElementNoMove
{
public:
	static constexpr int MOST_FOLIAGE = 16;

	CTree(int newX, int newY, int newKind, int newSize, int newVariant); // variant -1: random
	~CTree() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CTree"; }

	// Swings every foliage sprite once around a small circle; radius in pixels, speed in radians a
	// frame. Only with the effects option on.
	void Shake(float radius, float speed);

	static void SwayStep();              // once a frame
	static void WindStep();              // while the fan blows
	static void BlastAll();              // the destructo ray
	static void SetBonusLevel();         // no drops from any tree
	static std::vector<CTree*> TreeList; // in order of creation

	// For climbers.
	void SetClimber(CElementAnimal* animal);
	int CrownX() const;
	int TrunkTopY() const;
	int TrunkBaseY() const;
	int CrownZ() const;
	int CrownDepth() const;
	static CTree* FreeTreeAt(float atX, float atY, float toleranceX, float toleranceY);

	struct Swing {
		float step, radius, centreX, centreY, homeX, homeY, startAngle, angle;
		bool done;
	};
	struct Foliage {
		CSprite* sprite; // owned
		float x, y;      // offset from the tree's position
		Swing swing;
	};

	int kind, size, variant;
	int baseY;
	CSprite* trunk          = nullptr; // owned
	CElementAnimal* climber = nullptr; // not owned; at most one
	int powerupsGiven = 0, fruitThrown = 0;
	bool noDrops     = false;
	int foliageCount = 0;
	Foliage foliage[MOST_FOLIAGE];
	int crownIndex = 0;
	bool shaking   = false;

private:
	void GrowTrunk();
	void GrowBroadleaf();
	void GrowPine();
	void GrowPalm();
	CSprite* AddFoliage(const std::string& picture, int depth);
	void DropPowerup();
	void ThrowFruit();
	void ThrowOne();
	void ThrowCoconut();
	void Swivel(Foliage& leaf, float radius, float speed);
	void SwayFoliage();
};
