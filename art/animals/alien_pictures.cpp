// All pictures of the alien, on the ground and in its saucer.
#include "art/animals/actions.h"
#include "art/animals/alien.h"
#include "art/animals/crawlers.h"
#include "art/families.h"

static const float FACING        = 80; // degrees: it looks out of the picture
static const float SEATED_HEIGHT = 34;
static const int RUN_FRAMES = 9, LAUGH_FRAMES = 21, CROUCH_FRAMES = 12;
static const int STUNNED_FRAMES = 11, SEATED_FRAMES = 5; // 6 to 10: the stars go on by one place
// Seen above the rim of the saucer: cut at its belt.
static const Window PILOT_ROOM = {-26, -45, 52, 39};

static void BuildAlien(Model& model, const View& view, const Pose& pose)
{
	AddAlien(model, view, pose);
}

static void BuildPilot(Model& model, const View& view, const Pose& pose)
{
	AddAlien(model, view, pose, true);
}

Species Alien()
{
	Species s;
	s.prefix   = "alien";
	s.build    = BuildAlien;
	s.height   = 37;
	s.sideTurn = FACING;
	s.shadow   = .42f;
	return s;
}

static Species Pilot()
{
	Species s = Alien();
	s.prefix  = "alienufo";
	s.build   = BuildPilot;
	s.height  = SEATED_HEIGHT;
	s.shadow  = 0;
	s.canvas  = PILOT_ROOM;
	return s;
}

// Ducks behind cover with its hands over its head, then peeks to both sides and trembles.
static Poses Crouching()
{
	Poses list(CROUCH_FRAMES);
	for (int i = 0; i < CROUCH_FRAMES; i++) {
		float t    = Ease(std::min(1.f, (i + 1) / 3.f));
		float wait = i < 3 ? 0 : (i - 3) / 9.f * 2 * PI;
		Pose& p    = list[i];
		p.squash   = 6.4f * t - (i > 3 ? .7f * std::fabs(std::sin(wait)) : 0);
		p.headDown = .9f * t - (i > 3 ? .25f * std::fabs(std::sin(wait)) : 0);
		p.armsUp   = .62f * t;
		p.earSwing = .7f * t;
		p.wideEyes = .16f * t;
		p.look     = .75f * std::sin(wait);
		p.sway     = i > 2 ? (i % 2 ? .025f : -.025f) : 0;
		p.frown    = 1;
	}
	return list;
}

// Raises the gun, 4 and 5 shoot in turn, then it blows the smoke away and puts the gun down.
static Poses Firing()
{
	const float RAISED[] = {.35f, .75f, 1, 1, 1, 1, 1, 1, 1, .8f, .45f, .15f};
	const float FLASH[]  = {0, 0, 0, .25f, 1, .45f, .1f, 0, 0, 0, 0, 0};
	Poses list(12);
	for (int i = 0; i < 12; i++) {
		Pose& p    = list[i];
		p.raisePaw = RAISED[i];
		p.kick     = FLASH[i];
		p.squash   = .6f + 1.2f * FLASH[i];
		p.headTip  = .18f * FLASH[i];
		p.lid      = i < 7 ? .3f * RAISED[i] : 0; // aims
		p.mouth    = i == 4 || i == 5 ? .35f : 0;
		p.earSwing = .5f * FLASH[i];
		p.look     = .12f * RAISED[i];
	}
	return list;
}

// Points and bursts out; three peals, each with a hop; wipes its eye.
static Poses Laughing()
{
	Poses list(LAUGH_FRAMES);
	for (int i = 0; i < LAUGH_FRAMES; i++) {
		float t     = Part(i, LAUGH_FRAMES);
		float swell = Smoothstep(0, .16f, t) * Smoothstep(1, .84f, t);
		float peal  = std::fabs(std::sin(t * 4 * PI));
		Pose& p     = list[i];
		p.mouth     = swell * (.55f + .45f * peal);
		p.lid       = swell > .6f ? 1 : 0;
		p.headTip   = swell * (.16f + .16f * peal);
		p.headRoll  = swell * .14f * std::sin(t * 8 * PI);
		p.breath    = swell * (.55f + .45f * peal);
		p.rise      = swell * 2.6f * peal;
		p.squash    = swell * 2.2f * (1 - peal);
		p.earSwing  = swell * (.4f - .7f * peal);
	}
	return list;
}

// Hit: flung back with arms and legs, down on its seat, then it sits with stars round its head.
static Poses Stunned()
{
	const float SEAT[] = {.1f, .55f, .9f, 1, 1}, RISE[] = {0, 3.4f, 2.2f, 0, .8f};
	Poses list(STUNNED_FRAMES);
	for (int i = 0; i < STUNNED_FRAMES; i++) {
		Pose& p = list[i];
		if (i < SEATED_FRAMES) {
			p.lie      = SEAT[i];
			p.rise     = RISE[i];
			p.squash   = i == 0 ? 4 : i == 3 ? 2.6f : 0;
			p.limbsUp  = i == 0 ? .2f : i < 3 ? 1 : .55f;
			p.wideEyes = .22f;
			p.mouth    = .8f;
			p.headTip  = i == 3 ? -.25f : .2f;
			p.earSwing = i == 3 ? 1 : -.3f;
			continue;
		}
		float turn = (i - SEATED_FRAMES) / (float)(STUNNED_FRAMES - SEATED_FRAMES);
		p.lie      = 1;
		p.fit      = .02f + turn / 3; // the next star stands where this one did
		p.lid      = .55f;
		p.mouth    = .25f;
		p.headRoll = .16f * std::sin(turn * 2 * PI);
		p.earSwing = .8f;
		p.limbsUp  = .12f;
	}
	return list;
}

// Pictures without a side.
static void DrawFacing(Sink& sink, const Species& species, const std::string& word,
                       const Poses& poses, bool numbered = true)
{
	Figure figure(species);
	Window window = species.canvas.width > 0 ? species.canvas : figure.WindowOf({word, poses});
	for (size_t i = 0; i < poses.size(); i++)
		sink.Add(species.prefix + word + (numbered ? std::to_string(i) : "") + ".png",
		         figure.Draw(poses[i], window));
}

static void AddFacing(Catalogue& catalogue, Species (*species)(), const std::string& word,
                      const Poses& poses, bool numbered = true)
{
	catalogue.Add("animals " + species().prefix + " " + word, __FILE__,
	              [=](Sink& sink) { DrawFacing(sink, species(), word, poses, numbered); });
}

static void DrawInBubble(Sink& sink)
{
	Pose pose     = Captured();
	pose.look     = .2f;
	pose.limbsUp  = .8f;
	pose.mouth    = .5f;
	pose.frown    = 1;
	pose.wideEyes = .15f;
	sink.Add("alienbubble.png", Figure(Alien()).DrawAlone(pose));
}

void AddAlien(Catalogue& catalogue)
{
	AddFacing(catalogue, Alien, "stand", {Pose()}, false);
	AddFacing(catalogue, Alien, "standblink", {Blinking()}, false);
	AddFacing(catalogue, Alien, "crouch", Crouching());
	AddFacing(catalogue, Alien, "firegun", Firing());
	AddFacing(catalogue, Alien, "laugh", Laughing());
	AddFacing(catalogue, Alien, "stunned", Stunned());
	AddSequences(
	    catalogue, __FILE__, Alien,
	    {{"runup", Walk(RUN_FRAMES, Heading::Up)}, {"rundown", Walk(RUN_FRAMES, Heading::Down)}});
	catalogue.Add("animals alien bubble", __FILE__, DrawInBubble);
}

// Leans into the turn; the head follows late.
static Poses Leaning(float way)
{
	Poses list(4);
	for (int i = 0; i < 4; i++) {
		float t          = Ease((i + 1) / 4.f);
		list[i].sway     = .22f * way * t;
		list[i].look     = -.75f * way * t;
		list[i].headRoll = .10f * way * t;
		list[i].earSwing = .35f * t;
	}
	return list;
}

static Poses PilotLaughing()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float peal = std::fabs(std::sin(i * 2 * PI / 8)), ends = i == 0 || i == 7 ? .5f : 1;
		Pose& p    = list[i];
		p.mouth    = ends * (.5f + .5f * peal);
		p.lid      = i > 0 && i < 7 ? 1 : 0;
		p.headTip  = ends * (.12f + .16f * peal);
		p.breath   = ends * (.5f + .5f * peal);
		p.rise     = 1.6f * peal * ends;
		p.earSwing = .4f - .7f * peal;
		p.headRoll = .12f * std::sin(i * 4 * PI / 8);
	}
	return list;
}

// Thrown about by the blow, then dazed under its stars.
static Poses PilotStunned()
{
	const float SWAY[] = {.28f, -.24f, .18f, -.12f, .08f, -.04f, .02f, 0};
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		Pose& p    = list[i];
		p.sway     = SWAY[i];
		p.squash   = i == 0 ? 3 : i == 1 ? -1 : .8f;
		p.limbsUp  = i < 3 ? 1 : i < 6 ? .5f : .2f;
		p.mouth    = i < 5 ? .8f : .3f;
		p.wideEyes = i < 5 ? .22f : 0;
		p.lid      = i < 5 ? 0 : .5f;
		p.earSwing = i % 2 ? .8f : -.3f;
		p.fit      = .02f + i / 8.f;
	}
	return list;
}

static Poses PilotRaisingGun()
{
	const float RAISED[] = {.35f, .75f, 1, 1}, FLASH[] = {0, 0, .2f, 1};
	Poses list(4);
	for (int i = 0; i < 4; i++) {
		list[i].raisePaw = RAISED[i];
		list[i].kick     = FLASH[i];
		list[i].lid      = .3f * RAISED[i];
		list[i].mouth    = i == 3 ? .5f : 0;
	}
	return list;
}

void AddAlienPilot(Catalogue& catalogue)
{
	AddFacing(catalogue, Pilot, "sit", {Pose()}, false);
	AddFacing(catalogue, Pilot, "sitblink", {Blinking()}, false);
	AddFacing(catalogue, Pilot, "stunned", PilotStunned());
	AddFacing(catalogue, Pilot, "moveleft", Leaning(1));
	AddFacing(catalogue, Pilot, "moveright", Leaning(-1));
	AddFacing(catalogue, Pilot, "firegun", PilotRaisingGun());
	AddFacing(catalogue, Pilot, "laugh", PilotLaughing());
}
