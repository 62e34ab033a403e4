// A drum: does not break, but spews a cloud when it is hit too often.
#pragma once

#include "field/breakable.h"

class CSound;

class CDrum : public CElementBreakable
{
public:
	// direction left chooses the picture's letter and the first cloud's side.
	CDrum(int newX, int newY, bool left);
	~CDrum() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	void OnBlast(int atX, int radius) override;
	const char* ClassName() const override { return "CDrum"; }

	void Spew();
	static bool AnyCloudAt(int atX, int atY, int r);
	static std::vector<CDrum*> DrumList; // live instances

	int hits = 0;         // 0 to 3
	int side;             // of the last cloud, 0 left, 1 right: flips with each
	bool counted = false; // its upset has been counted

	// sprites, owned; currentSprite is one of the first four
	CSprite* base;
	CSprite* light;
	CSprite* heavy;
	CSprite* spewing;
	CSprite* clouds[2];              // left, right
	CSprite* currentCloud = nullptr; // one of clouds
	CSound* hitSound;                // owned
	CSound* spewSound;               // owned
};
