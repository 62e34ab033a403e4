// A fence post: looks as worn as the least worn of its sections.
#pragma once

#include "field/element.h"

class CFence;

// Has no outline and takes no hits of its own.
class CFencePost : public CElementMove
{
public:
	CFencePost(int newX, int newY);
	~CFencePost() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CFencePost"; }

	int state = 0;                 // the smallest hits among its sections
	std::vector<CFence*> sections; // not owned
	CSprite* base;                 // owned
	CSprite* light;                // owned
	CSprite* heavy;                // owned
};
