// Rocks: solid, and nothing else.
#pragma once

#include "field/element.h"

class CRock : public CElementNoMove
{
public:
	// kind 0 big, 1 medium, others small; variant -1 random within the kind.
	CRock(int newX, int newY, int newKind, int newVariant, bool sand);
	~CRock() override;

	void Place() override {}
	void Update() override {}
	const char* ClassName() const override { return "CRock"; }

	static bool AnyAt(int atX, int atY, int r);
	static std::vector<CRock*> RockList;

	CSprite* sprite; // owned
};
