// The paddle: a wheeled machine that the professor drives along the bottom of the field.
#pragma once

#include "field/element.h"

class CSound;

enum PaddleShape {
	SHAPE_NORMAL,
	SHAPE_NORMAL_STICKY,
	SHAPE_WIDE,
	SHAPE_WIDE_STICKY,
	SHAPE_FLAT,
	SHAPE_FLAT_STICKY,
};

enum FlameState { FLAME_OFF, FLAME_STARTING, FLAME_LOOPING, FLAME_GOING_OUT };

// Its solid part is the bumper, a curved outline of points whose shape aims the ball. It carries
// the player's tools and holds the ball before each launch. One a level, made by the level runner.
class CPaddle : public CElementMove
{
public:
	static constexpr int TOP              = 514;   // y of the body's upper edge
	static constexpr int BALL_REST_Y      = 504;   // y of a held ball's centre after ResetBall
	static constexpr int BODY_LEFT        = 10;    // the body's left edge is this far left of x
	static constexpr int SHORT_STUN       = 30;    // frames
	static constexpr float MEASURE_OFFSET = -1000; // asks the next update to measure ballOffset

	CPaddle();
	~CPaddle() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	void OnStun(int frames) override;
	const char* ClassName() const override { return "CPaddle"; }

	void SetMouseX(int mouseX); // 0 to 800 over the whole window; the only way it moves
	int GetX() const { return anchorX; }
	int GetTarget() const { return target; } // last mouse x asked for
	void SetBeamTop(int y);
	void BecomeWide();
	void EndWide();
	void BecomeFlat();
	void EndFlat();
	void BecomeSticky();
	void EndSticky();
	bool IsWide() const { return shape == SHAPE_WIDE || shape == SHAPE_WIDE_STICKY; }
	bool IsFlat() const { return shape == SHAPE_FLAT || shape == SHAPE_FLAT_STICKY; }
	bool IsSticky() const { return shape & 1; }
	bool IsStunned() const { return stunFrames > 0; }
	void LoadDestructo();
	void UnloadDestructo();
	bool FireDestructo(); // true when a ray was fired
	void FanOn();
	void FanOff();
	void ResetBall();       // the launch preparation
	void ClearSlowFlames(); // the paddle leaves with the fast flames

	int anchorX          = 0;  // everything hangs on this x, pixels
	int previousX        = -1; // at the last update; -1 until the first
	int target           = 0;
	PaddleShape shape    = SHAPE_NORMAL;
	int ammo             = 0; // destructo shots left
	bool destructoLoaded = false;
	float ballOffset     = 0; // of a held ball: ball x = anchorX - 10 - ballOffset
	int grabGuard        = 1; // 1: the sticky bumper may not grab
	bool fanOn           = false;
	int stunFrames       = 0;
	bool slowFlames      = true;
	FlameState leftFlame = FLAME_OFF, rightFlame = FLAME_OFF;
	int beamFrames  = -1; // frames of the ray still to show
	int bumperLift  = 0;  // pixels; moves the bumper's picture, never its outline
	int bumpStep    = 0;  // 0 at rest
	int stillFrames = 0;
	CSprite* body   = nullptr; // one of the parts

	struct Parts; // sprites, outline records and sounds; in paddle_parts.h
	Parts* parts; // owned

private:
	enum ShapeOperation { BECOME_WIDE, END_WIDE, BECOME_FLAT, END_FLAT, BECOME_STICKY, END_STICKY };
	struct ShapeChange;
	static const ShapeChange s_shapeChanges[];

	// paddle_outline.cpp
	void ChangeShape(ShapeOperation operation);
	void BuildOutline();
	void MoveOutline();
	void RemoveOutline();
	// paddle.cpp
	void PlaceParts();
	void PlaceBumper();
	void HoldBall();
	void AdvanceBump();
	void UpdateLaunchPrompt();
	// paddle_tools.cpp
	void UpdateFan();
	void UpdateRay();
	void UpdateStun();
	void UpdateRayPrompt();
	int BodyCentre() const;
	// paddle_flames.cpp
	bool ShowsFastFlame() const;
	void UpdateDrive();
	void ChooseFlames();
	void PushFlame(int side);
	void BurnFlame(int side);
	void MatchFlames();
	void HideFlame(int side);
	FlameState& StateOf(int side);
	CSprite* ShownFlame(int side, int phase) const;
	// professor.cpp
	void UpdateProfessor();
	bool ShowTurn(int flameSet);
	void ShowDrive(int side);
	void ShowMove(int move, int frame);
};

extern CPaddle* g_paddle; // null outside a level
