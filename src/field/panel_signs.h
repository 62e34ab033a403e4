// The three signs over the field: a trophy, an extra life, a lost ball.
#pragma once

class CBobber;
class CSound;
class CSprite;

// "Trophy won": plays once and hides. Owned by the panel, as the other two are.
class CTrophySign
{
public:
	CTrophySign();
	~CTrophySign();
	CTrophySign(const CTrophySign&)            = delete;
	CTrophySign& operator=(const CTrophySign&) = delete;

	void Restart();
	void Step(); // once a frame

	CSprite* sprite; // owned
	CBobber* bobber; // owned
};

// Shows while the extra-life timer of the play runs, and counts it down.
class CExtraLifeSign
{
public:
	static const int FRAMES = 75;

	CExtraLifeSign();
	~CExtraLifeSign();
	CExtraLifeSign(const CExtraLifeSign&)            = delete;
	CExtraLifeSign& operator=(const CExtraLifeSign&) = delete;

	void Step();

	CSprite* sprite; // owned
	CBobber* bobber; // owned
	CSound* sound;   // owned
};

// Shows while the lost-ball timer of the play runs, with the balls left, and counts it down.
class CLostBallSign
{
public:
	static const int FRAMES = 210;
	static const int PLACES = 2; // of the number of balls

	CLostBallSign();
	~CLostBallSign();
	CLostBallSign(const CLostBallSign&)            = delete;
	CLostBallSign& operator=(const CLostBallSign&) = delete;

	void Step();

	CSprite* upperLine; // owned, as all below
	CSprite* lowerLine;
	CSprite* big[10];           // the number while it has one digit
	CSprite* small[PLACES][10]; // and while it has two
	CBobber* bobber;

private:
	void HideAll();
	void ShowRow(int y);
};
