// Cacti: solid, and they shiver when hit.
#pragma once

#include "field/element.h"

class CCactus : public CElementNoMove
{
public:
	// kind 3 big, 2 small, 1 big and round, others small and round; variant -1 random.
	CCactus(int newX, int newY, int newKind, int newVariant);
	~CCactus() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CCactus"; }

	CSprite* sprite; // owned
};
