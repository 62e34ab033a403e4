// The seal and the walrus.
#include "art/animals/actions.h"
#include "art/animals/crawlers.h"
#include "art/animals/flipper.h"
#include "art/families.h"

static const int LOOK_FRAMES = 5, MOVE_FRAMES = 12, BARK_FRAMES = 6, SMILE_FRAMES = 4;

static Flipper SealShape()
{
	Flipper f;
	f.coat = 0x7f93b4, f.belly = 0xe9eef4, f.fin = 0x5b6c8a, f.pad = 0xf4f6f8;
	f.headRadius = 7.0f, f.spots = true;
	f.eye = {2.5f, .74f, .30f, .52f, .50f, 0, 0, .32f};
	return f;
}

static Flipper WalrusShape()
{
	Flipper f;
	f.size = 1.35f, f.bulk = 1.16f, f.tusks = 1.15f, f.pads = .50f, f.headRadius = 6.5f;
	f.coat = 0xa8694c, f.belly = 0xd9a582, f.fin = 0x7c4936, f.pad = 0xf0cfa8, f.creased = true;
	f.eye = {2.5f, .78f, .40f, .48f, .56f, 0, 0, .30f};
	return f;
}

static void BuildSeal(Model& model, const View& view, const Pose& pose)
{
	AddFlipper(model, SealShape(), view, pose);
}

static void BuildWalrus(Model& model, const View& view, const Pose& pose)
{
	AddFlipper(model, WalrusShape(), view, pose);
}

Species Seal()
{
	Species s;
	s.prefix = "seal";
	s.build  = BuildSeal;
	s.width  = 48;
	return s;
}

Species Walrus()
{
	Species s;
	s.prefix = "walrus";
	s.build  = BuildWalrus;
	s.width  = 66;
	return s;
}

// Ducks, then throws the head up and calls; the flippers clap.
static Poses CallOut(float clap)
{
	const float MOUTH[] = {0, .6f, 1, 1, .7f, .2f}, UP[] = {-.3f, .5f, 1, .9f, .6f, .2f};
	const float CLAP[] = {0, .4f, 1, .35f, 1, .3f};
	Poses list(BARK_FRAMES);
	for (int i = 0; i < BARK_FRAMES; i++) {
		Pose& p     = list[i];
		p.squash    = i == 0 ? 3 : 0;
		p.mouth     = MOUTH[i];
		p.headTip   = .42f * UP[i];
		p.rear      = .8f * std::max(0.f, UP[i]);
		p.armsUp    = CLAP[i] * clap;
		p.tailRaise = 1.5f * std::max(0.f, UP[i]);
		p.look      = .25f;
	}
	return list;
}

static Poses Smiling()
{
	Poses list(SMILE_FRAMES);
	for (int i = 0; i < SMILE_FRAMES; i++) {
		float t          = Ease((i + 1.f) / SMILE_FRAMES);
		list[i].earSwing = t;
		list[i].mouth    = .55f * t;
		list[i].look     = .3f * t;
		list[i].headTip  = .08f * t;
	}
	return list;
}

static Pose With(Pose pose, float smile, float lid)
{
	pose.earSwing = smile;
	pose.mouth    = .55f * smile;
	pose.lid      = lid;
	return pose;
}

static void AddSeal(Catalogue& catalogue, Species (*species)(), float clap)
{
	Pose looking = Look(LOOK_FRAMES).back(), smiling = Smiling().back();
	Pose bubble     = Captured();
	bubble.earSwing = .9f, bubble.mouth = .5f, bubble.armsUp = .35f, bubble.tailRaise = 1;
	AddSequences(catalogue, __FILE__, species,
	             {{"stand", {Pose()}, "", false},
	              {"stand", {Blinking()}, "blink", false},
	              {"look", Look(LOOK_FRAMES)},
	              {"look", {With(looking, 0, 1)}, "blink", false},
	              {"look", {With(looking, 1, 0)}, "smile", false},
	              {"smile", Smiling()},
	              {"smile", {With(smiling, 1, 1)}, "blink", false},
	              {"bark", CallOut(clap)},
	              {"move", Walk(MOVE_FRAMES)}});
	AddBubbleViews(catalogue, __FILE__, species, bubble);
}

void AddSeals(Catalogue& catalogue)
{
	AddSeal(catalogue, Seal, 1);
	AddSeal(catalogue, Walrus, .45f);
}
