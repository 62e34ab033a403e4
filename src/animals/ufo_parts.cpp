// The parts of the saucer: pictures, where they sit on the hull, its outline.
#include "animals/ufo.h"

#include "field/bobber.h"
#include "field/breakable.h"
#include "media/sprite.h"

#include <algorithm>
#include <cmath>
#include <string>

// Drawing depths, from the back: what comes out of the saucer lies behind the hull.
static const int ANTENNA_DEPTH   = CUFO::DEPTH + 2;
static const int HULL_DEPTH      = CUFO::DEPTH + 11;
static const int PILOT_DEPTH     = CUFO::DEPTH + 12;
static const int DOME_DEPTH      = CUFO::DEPTH + 14;
static const int RIM_DEPTH       = CUFO::DEPTH + 22;
static const int LIGHTS_DEPTH    = CUFO::DEPTH + 24;
static const int EXPLOSION_DEPTH = CUFO::DEPTH + 60;

// Where a part's lower edge lies, in pixels below the hull's upper edge; all are centred on it.
static const int DOME_FOOT = 23, PILOT_FOOT = 21, RIM_FOOT = 28;
// And in pixels below the hull's lower edge: the upper edge of antenna and shadow.
static const int ANTENNA_TOP = -13, SHADOW_TOP = 40;

static const int BODY_INSET     = 3;  // pixels that the outline lies within the hull's picture
static const float BODY_SPACING = 10; // pixels between its points

CSprite* CUFO::LoadPart(int depth, const char* stem, int first, int last, int ticks, bool loops)
{
	CSprite* sprite = OwnSprite(new CSprite(depth, ticks));
	sprite->AddSequence(stem, first, last, ".png");
	sprite->stopAtEnd = !loops;
	sprite->Hide();
	return sprite;
}

// The whole one is a single picture; each stage of damage begins with a run of them.
void CUFO::LoadStages()
{
	hullSprites[0] = LoadPart(HULL_DEPTH, "flyingsaucermain", 0, 0, 0, false);
	rimSprites[0]  = LoadPart(RIM_DEPTH, "flyingsaucerbubblerim", 0, 0, 0, false);
	for (int stage = 1; stage < STAGES; stage++) {
		std::string end    = std::to_string(stage) + "_";
		std::string hull   = "flyingsaucermain" + end;
		std::string rim    = "flyingsaucerbubblerim" + end;
		hullSprites[stage] = LoadPart(HULL_DEPTH, hull.c_str(), 0, 3, 3, false);
		rimSprites[stage]  = LoadPart(RIM_DEPTH, rim.c_str(), 0, 3, 3, false);
	}
}

void CUFO::LoadPilot()
{
	pilotSit = OwnSprite(new CSprite(PILOT_DEPTH, 2));
	pilotSit->AddRepeated("alienufosit.png", 40);
	pilotSit->AddFile("alienufositblink.png");
	pilotSit->Hide();
	pilotStunned      = LoadPart(PILOT_DEPTH, "alienufostunned", 0, 7, 3, false);
	pilotMoveLeft[0]  = LoadPart(PILOT_DEPTH, "alienufomoveleft", 0, 3, 2, false);
	pilotMoveLeft[1]  = LoadPart(PILOT_DEPTH, "alienufomoveleft", 3, 0, 2, false);
	pilotMoveRight[0] = LoadPart(PILOT_DEPTH, "alienufomoveright", 0, 3, 2, false);
	pilotMoveRight[1] = LoadPart(PILOT_DEPTH, "alienufomoveright", 3, 0, 2, false);
	pilotFire         = LoadPart(PILOT_DEPTH, "alienufofiregun", 0, 3, 2, false);
	pilotFireBack     = LoadPart(PILOT_DEPTH, "alienufofiregun", 3, 0, 2, false);
	pilotLaugh        = LoadPart(PILOT_DEPTH, "alienufolaugh", 0, 7, 3, false);
}

void CUFO::LoadParts()
{
	LoadStages();
	LoadPilot();
	lightsSprite    = LoadPart(LIGHTS_DEPTH, "flyingsaucerlights", 0, 7, 2, true);
	explosionSprite = LoadPart(EXPLOSION_DEPTH, "flyingsaucerexplode", 0, 11, 2, false);
	antennaIdle     = LoadPart(ANTENNA_DEPTH, "flyingsaucerantennacharge", 0, 0, 0, false);
	antennaCharge   = LoadPart(ANTENNA_DEPTH, "flyingsaucerantennacharge", 0, 7, 3, false);
	antennaVibrate  = LoadPart(ANTENNA_DEPTH, "flyingsaucerantennavibrate", 0, 3, 1, true);
	antennaFire     = LoadPart(ANTENNA_DEPTH, "flyingsaucerantennafire", 0, 5, 2, false);
	domeSprite      = OwnSprite(new CSprite(DOME_DEPTH));
	domeSprite->AddFile("flyingsaucerbubble.png");
	shadowSprite = OwnSprite(new CSprite(0));
	shadowSprite->AddFile("flyingsaucershadow.tga");

	currentSprite = collisionSprite = hullSprites[0];
	rimSprite                       = rimSprites[0];
	pilotSprite                     = pilotSit;
	antennaSprite                   = antennaIdle;
	for (CSprite* part : {currentSprite, rimSprite, pilotSprite, antennaSprite, lightsSprite})
		part->Show();
}

void CUFO::ShowStage()
{
	ShowInstead(currentSprite, hullSprites[damage]);
	ShowInstead(rimSprite, rimSprites[damage]);
	collisionSprite = currentSprite;
}

void CUFO::HideParts()
{
	for (CSprite* part : {currentSprite, rimSprite, lightsSprite, domeSprite, shadowSprite,
	                      antennaSprite, pilotSprite})
		part->Hide();
	explosionSprite->CenterX(currentSprite->X() + currentSprite->Width() / 2);
	explosionSprite->CenterY(currentSprite->Y() + currentSprite->Height() / 2);
	explosionSprite->Show();
	explosionSprite->Rewind();
	explosionSprite->Forward();
}

void CUFO::LayOut()
{
	int left = static_cast<int>(x), top = static_cast<int>(y);
	int middle = left + currentSprite->Width() / 2;
	int bottom = top + currentSprite->Height();
	auto stand = [middle](CSprite* part, int foot) {
		part->SetPos(middle - part->Width() / 2, foot - part->Height());
	};
	currentSprite->SetPos(left, top);
	stand(lightsSprite, bottom);
	stand(rimSprite, top + RIM_FOOT);
	stand(domeSprite, top + DOME_FOOT);
	stand(pilotSprite, top + PILOT_FOOT + bob->Value());
	stand(antennaSprite, bottom + ANTENNA_TOP + antennaSprite->Height());
	stand(shadowSprite, bottom + SHADOW_TOP + shadowSprite->Height());
	shadowSprite->SetDepth(bottom); // before what stands farther up the field
}

void CUFO::RebuildBody()
{
	ClearBody();
	float radiusX = static_cast<float>(collisionSprite->Width()) / 2 - BODY_INSET;
	float radiusY = static_cast<float>(collisionSprite->Height()) / 2 - BODY_INSET;
	float turn    = 2 * std::acos(-1.0f);
	int count     = static_cast<int>(turn * std::max(radiusX, radiusY) / BODY_SPACING) + 1;
	for (int i = 0; i < count; i++) {
		float angle = turn * static_cast<float>(i) / static_cast<float>(count);
		AddBodyPoint(BODY_INSET + radiusX * (1 + std::cos(angle)),
		             BODY_INSET + radiusY * (1 + std::sin(angle)));
	}
	bodyPlaced = true;
}
