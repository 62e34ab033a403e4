// The paddle's tools and troubles: fans, destructo ray, the stun of a shot.
#include "field/paddle_parts.h"

#include "animals/ufo.h"
#include "field/background.h"
#include "field/ball.h"
#include "field/breakable.h"
#include "field/powerup.h"
#include "field/sidebar.h"
#include "field/tree.h"
#include "media/display.h"
#include "media/input.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

static const float FAN_Y      = 544; // pixels; where the wind comes from
static const int FAN_FADE     = 15;  // frames
static const int SHOTS        = 2;   // of a loaded destructo
static const int RAY_FRAMES   = 2;
static const int BLAST_RADIUS = 5; // pixels

int CPaddle::BodyCentre() const
{
	return body->X() + body->Width() / 2;
}

void CPaddle::FanOn()
{
	fanOn = true;
	if (g_levelGameData)
		g_levelGameData->NoteFan();
}

void CPaddle::FanOff()
{
	fanOn = false;
}

void CPaddle::UpdateFan()
{
	float fanX = static_cast<float>(anchorX);
	if (!fanOn && g_ball)
		g_ball->EaseBack();
	if (fanOn) {
		if (g_ball)
			g_ball->BlowFrom(fanX, FAN_Y);
		if (g_background)
			g_background->BlowSnowFrom(fanX, FAN_Y);
		CPowerup::BlowAll(fanX, FAN_Y);
	}
	if (fanOn == parts->fanSounds)
		return;
	parts->fanSounds = fanOn;
	if (!fanOn) {
		parts->fanSound->FadeOut(FAN_FADE);
		return;
	}
	parts->fanSound->FadeIn(FAN_FADE);
	if (!parts->fanSound->IsPlaying())
		parts->fanSound->Play(true);
}

void CPaddle::SetBeamTop(int top)
{
	parts->beamTop = top;
}

void CPaddle::LoadDestructo()
{
	destructoLoaded = true;
	ammo            = SHOTS;
}

void CPaddle::UnloadDestructo()
{
	destructoLoaded = false;
	ammo            = 0;
}

bool CPaddle::FireDestructo()
{
	if (!destructoLoaded || (g_ball && g_ball->IsHeld()))
		return false;
	if (--ammo < 1)
		UnloadDestructo();

	parts->raySound->Play();
	beamFrames = RAY_FRAMES;
	parts->ray->SetHeight(TOP - parts->beamTop);
	g_display->StartShake();
	CElementBreakable::BlastAll(BodyCentre(), BLAST_RADIUS);
	CTree::BlastAll();
	CUFO::BlastAll(BodyCentre(), BLAST_RADIUS);
	if (ammo < 1 && g_sidebar)
		g_sidebar->ClearDestructoTimer();
	parts->rayPrompt.Restart();
	return true;
}

void CPaddle::UpdateRay()
{
	if (beamFrames < 0)
		return;
	CSprite* ray = parts->ray;
	ray->Show();
	ray->SetPos(BodyCentre() - ray->Width() / 2, parts->beamTop);
	if (--beamFrames < 0)
		ray->Hide();
}

static void StartSprite(CSprite* sprite)
{
	sprite->Show();
	sprite->Rewind();
	sprite->Forward();
}

void CPaddle::OnStun(int frames)
{
	if (g_levelGameData)
		g_levelGameData->NoteStun();
	stunFrames   = frames - 1;
	parts->stunX = g_input->x;
	parts->stunY = g_input->y;

	bool isShort = frames == SHORT_STUN;
	parts->sprites[isShort ? PART_LONG_GLOW : PART_SHORT_GLOW]->Hide();
	StartSprite(parts->sprites[isShort ? PART_SHORT_GLOW : PART_LONG_GLOW]);
	StartSprite(parts->sprites[PART_CRACKLE]);
}

void CPaddle::UpdateStun()
{
	CSprite* crackle = parts->sprites[PART_CRACKLE];
	if (!crackle->IsHidden())
		g_input->Warp(parts->stunX, parts->stunY);
	if (stunFrames > 0)
		stunFrames--;
	if (stunFrames > 0)
		return;
	parts->sprites[PART_SHORT_GLOW]->Hide();
	parts->sprites[PART_LONG_GLOW]->Hide();
	crackle->Hide();
}

void CPaddle::UpdateRayPrompt()
{
	PaddlePrompt& prompt = parts->rayPrompt;
	if (!destructoLoaded) {
		parts->sign->Hide();
		prompt.sprite->Hide();
		prompt.Restart();
		prompt.blink = PaddlePrompt::SHOWN;
		return;
	}
	parts->sign->Show();
	prompt.Run();
	if ((g_ball && g_ball->IsHeld()) || parts->launchPrompt.IsBlinking())
		prompt.sprite->Hide();
}
