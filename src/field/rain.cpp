// Rain, and the lightning that goes with it.
#include "field/rain.h"

#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"
#include "sound/sound.h"

static const int STREAK_DEPTH  = 9500;
static const float GRAVITY     = 1.0f / 3; // pixels a frame, a frame
static const float START_SPEED = 10;
static const int SPLASH_FRAMES = 4;

CRain::~CRain()
{
	for (Drop& drop : drops) {
		delete drop.streak;
		delete drop.splash;
	}
	for (CSound* sound : thunderSounds)
		delete sound;
}

void CRain::LoadThunder()
{
	thunderSounds[0] = new CSound("background_thunder.ogg");
	thunderSounds[1] = new CSound("background_thunder2.ogg");
}

void CRain::Make()
{
	made = true;
	for (Drop& drop : drops) {
		std::string letter(1, static_cast<char>('A' + Rand() % 4));
		drop.streak = new CSprite(STREAK_DEPTH);
		drop.streak->AddFile("rain_streak" + letter + ".tga");
		drop.splash = new CSprite(0, 2);
		drop.splash->AddSequence("rain_splash", 0, SPLASH_FRAMES - 1, ".tga");
		drop.splash->SetStopAtEnd();
		drop.splash->Hide();
		drop.x      = RandomRange(-200, 700);
		drop.y      = RandomRange(150, 600);
		drop.height = RandomRange(0, 600);
		drop.speed  = START_SPEED;
	}
}

void CRain::Step(CSprite* overlay)
{
	if (!made)
		return;
	for (Drop& drop : drops)
		StepDrop(drop);
	StepLightning(overlay);
}

void CRain::StepDrop(Drop& drop)
{
	drop.x += drop.dx;
	drop.y += drop.dy;
	drop.speed += GRAVITY;
	drop.height -= drop.speed;
	drop.streak->SetPos(static_cast<int>(drop.x), static_cast<int>(drop.y - drop.height));
	if (drop.splash->IsAtLastFrameEnd())
		drop.splash->Hide();
	if (drop.height <= 0)
		Land(drop);
}

// The splash shows under the streak, and the drop starts over.
void CRain::Land(Drop& drop)
{
	CSprite* streak = drop.streak;
	CSprite* splash = drop.splash;
	int x           = static_cast<int>(drop.x) + streak->Width() / 2 - splash->Width() / 2;
	int y           = static_cast<int>(drop.y) + splash->Height() / 2 + streak->Height() / 2;
	splash->SetPos(x, y, static_cast<int>(drop.y));
	splash->Rewind();
	splash->Forward();
	splash->Show();
	drop.x      = RandomRange(-200, 680);
	drop.y      = RandomRange(150, 680);
	drop.height = RandomRange(680, 780);
	drop.speed  = RandomRange(2, 5);
}

void CRain::StepLightning(CSprite* overlay)
{
	lightningTimer--;
	thunderTimer--;
	if (lightningTimer == 0) {
		if (overlay)
			overlay->Hide();
		thunderTimer = RandomWhole(5, 30);
	} else if (lightningTimer < 0) {
		if (overlay)
			overlay->Show();
		lightningTimer = RandomWhole(5, 600);
	}
	if (thunderTimer == 0) {
		g_display->StartShake();
		CSound* sound = thunderSounds[Rand() % 2];
		if (sound)
			sound->Play();
	}
}

void CRain::Hide()
{
	if (!made)
		return;
	for (Drop& drop : drops) {
		drop.streak->Hide();
		drop.splash->Hide();
	}
}
