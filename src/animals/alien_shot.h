// A shot of the saucer or the alien: falls until it meets something or has left the screen.
#pragma once

#include "field/element.h"

class CAlien;
class CSound;
class CUFO;

// It stuns the paddle, breaks crates and fences, passes animals, and fizzles out on all else. It
// stays in the lists afterwards with its pictures hidden.
class CAlienShot : public CElementMove
{
public:
	// The middle of the shot and the line 27 pixels below its upper edge; how long it stuns the
	// paddle, in frames; who fired it, one of the two, not owned.
	CAlienShot(float startX, float startY, int newStunFrames, CAlien* alien, CUFO* saucer);
	~CAlienShot() override;

	void Place() override;
	void Update() override;
	const char* ClassName() const override { return "CAlienShot"; }

	static constexpr int SAUCER_LAYERS = 20; // frames that a saucer's shot stays behind the hull

	float fallSpeed; // pixels per frame
	int stunFrames;
	int delayLayers;        // frames left behind the saucer
	CAlien* firedBy;        // not owned
	CUFO* firedByUfo;       // not owned
	CSprite* shotSprite;    // owned
	CSprite* splashSprite;  // owned
	CSound* fireSound;      // owned
	CSound* dissipateSound; // owned
	CSound* stunSound;      // owned
	CSound* flyingSound;    // owned

private:
	void Fall();
	CElement* WhatItMeets() const; // null for nothing
	bool MeetsPaddle() const;
	void Hit(CElement* target);
	float TipX() const;
	float TipY() const;
};
