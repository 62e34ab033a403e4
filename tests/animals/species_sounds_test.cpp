// What is heard of an animal beyond the sounds of its action table, and when.
#include "animals/alien.h"
#include "animals/chipmunk.h"
#include "animals/turtle.h"
#include "animals/ufo.h"
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "sound/sound_output.h"
#include "sound/sound_state.h"

#include <map>
#include <set>

// The real effects, played into memory. Each frame the sounds that have begun in it are noted.
class SpeciesSoundTest : public AnimalTest
{
protected:
	static void SetUpTestSuite()
	{
		AnimalTest::SetUpTestSuite();
		ChooseSoundOutput(SOUND_OUTPUT_CAPTURE);
		SoundInit(true);
		LoadSoundResources(nullptr);
	}
	static void TearDownTestSuite()
	{
		SoundShutdown();
		ChooseSoundOutput(SOUND_OUTPUT_NONE);
		AnimalTest::TearDownTestSuite();
	}
	void SetUp() override
	{
		AnimalTest::SetUp();
		ASSERT_TRUE(soundEnabled);
		MakeBallAndPaddle();
		PutBall(20, 60, 0, 0);
		SetBallStage(0);
		Listen();
	}
	// Sounds that have begun since the last call, by name.
	std::set<std::string> Listen()
	{
		std::set<std::string> begun;
		for (CSound* sound : allSounds) {
			if (sound->IsPlaying() && channels[sound] != sound->channel)
				begun.insert(sound->name);
			channels[sound] = sound->channel;
		}
		return begun;
	}
	// Notes in which pictures of its action a sound of the animal begins.
	std::map<std::string, std::set<int>> Watch(CElementAnimal* animal, int kind, int frames)
	{
		std::map<std::string, std::set<int>> pictures;
		for (int i = 0; i < frames; i++) {
			FieldTick();
			for (const std::string& name : Listen())
				pictures[name].insert(
				    animal->currentAction->kind == kind ? animal->currentSprite->Frame() : -1);
			StepSprites();
			Hear();
		}
		return pictures;
	}
	static void Hear() { CaptureSound(CAPTURE_RATE / 30); }

	std::map<CSound*, FMOD_CHANNEL> channels;
};

typedef std::map<std::string, std::set<int>> SoundPictures;

TEST_F(SpeciesSoundTest, AHareIsHeardInTheSecondAndThirdPictureOfAHop)
{
	for (int species : {SPECIES_RABBIT, SPECIES_HARE, SPECIES_JACKRABBIT}) {
		CElementAnimal* hare = NewAnimal(species, 300, 250, true);
		SCOPED_TRACE(hare->table->prefix);
		SoundPictures heard = Watch(hare, ACTION_WALK, 1500);
		EXPECT_EQ((SoundPictures{{"animal_jump.ogg", {1}}, {"animal_jump_landing.ogg", {2}}}),
		          heard);
		hare->LeaveField();
	}
}

TEST_F(SpeciesSoundTest, AFrogIsHeardInTheFirstAndLastPictureOfAHop)
{
	CElementAnimal* frog = NewAnimal(SPECIES_FROG, 300, 250, true);
	EXPECT_EQ((SoundPictures{{"animal_jump.ogg", {0}}, {"animal_jump_landing.ogg", {7}}}),
	          Watch(frog, ACTION_WALK, 1500));
}

TEST_F(SpeciesSoundTest, AFrogCroaksWhenItIsRefusedUnlessItDoesAlready)
{
	CElementAnimal* frog = NewAnimal(SPECIES_FROG, 300, 250, true);
	frog->OnBallHit();
	EXPECT_EQ(1u, Listen().count("frog_ribbit.ogg"));
	frog->OnBallHit();
	EXPECT_EQ(0u, Listen().count("frog_ribbit.ogg"));
	Watch(frog, ACTION_WALK, 90);
	frog->OnBallHit();
	EXPECT_EQ(1u, Listen().count("frog_ribbit.ogg"));
}

TEST_F(SpeciesSoundTest, AHorseWhinniesWhenItRearsAndItsHoovesAreHeardInTheFourthPicture)
{
	CElementAnimal* horse = NewAnimal(SPECIES_HORSE, 300, 250, true);
	horse->OnBallHit();
	EXPECT_EQ(1u, Listen().count("horse_whinny.ogg"));
	SoundPictures heard = Watch(horse, ACTION_BUMP, 30);
	EXPECT_EQ((std::set<int>{3}), heard["horse_feet.ogg"]);
}

TEST_F(SpeciesSoundTest, ACrowHasTwoCawsAndAnEagleOneScreech)
{
	CElementAnimal* crow = NewAnimal(SPECIES_CROW, 300, 250, true);
	std::set<std::string> caws;
	for (int i = 0; i < 40; i++) {
		FieldTick();
		caws.insert(crow->callSound->name);
	}
	EXPECT_EQ((std::set<std::string>{"crow_caw.ogg", "crow_caw2.ogg"}), caws);

	CElementAnimal* eagle = NewAnimal(SPECIES_EAGLE, 500, 250, true);
	Listen();
	eagle->OnBallHit();
	EXPECT_EQ((std::set<std::string>{"eagle_screech.ogg"}), Listen());
	Hear();
	eagle->OnBallHit();
	EXPECT_TRUE(Listen().empty()) << "it is frightened already";
}

TEST_F(SpeciesSoundTest, AChipmunkSqueaksOnceWhileItIsKnockedAbout)
{
	CElementAnimal* chipmunk = NewAnimal(SPECIES_CHIPMUNK, 300, 250, true);
	chipmunk->OnBallHit();
	EXPECT_EQ((std::set<std::string>{"mouse_squeak.ogg"}), Listen());
	for (int i = 0; i < 20; i++) {
		Run();
		chipmunk->OnBallHit();
		EXPECT_TRUE(Listen().empty()) << "frame " << i;
	}
	Run(60);
	chipmunk->OnBallHit();
	EXPECT_EQ((std::set<std::string>{"mouse_squeak.ogg"}), Listen());
}

TEST_F(SpeciesSoundTest, ATurtleIsHeardWhenItComesOutOfItsShell)
{
	CTurtle* turtle = new CTurtle(300, 250, true);
	Listen();
	turtle->OnBallHit();
	std::set<std::string> heard;
	for (int i = 0; i < 1000 && turtle->state == CTurtle::SHELL; i++) {
		EXPECT_TRUE(heard.empty());
		Run();
		heard = Listen();
	}
	EXPECT_EQ((std::set<std::string>{"turtle_appear.ogg"}), heard);
}

TEST_F(SpeciesSoundTest, TheSaucerHumsFiresCrumplesAndBlowsUpAndTheAlienIsHeardFalling)
{
	CUFO* saucer      = new CUFO(340, 220, false);
	saucer->fireTimer = 1;
	Run();
	EXPECT_EQ((std::set<std::string>{"ufo_antenna_charge.ogg"}), Listen());
	saucer->fireTimer = -90;
	Run();
	EXPECT_EQ((std::set<std::string>{"ufo_laser.ogg", "ufo_laser_flying.ogg"}), Listen());
	saucer->OnBlast(static_cast<int>(saucer->CentreX()), 5);
	EXPECT_EQ((std::set<std::string>{"ufo_metal_crumpling.ogg"}), Listen());
	Hear();
	saucer->OnBlast(static_cast<int>(saucer->CentreX()), 5);
	std::set<std::string> end = Listen();
	EXPECT_EQ(1u, end.count("ufo_explode.ogg"));
	EXPECT_EQ(1u, end.count("alien_fall_grunt.ogg"));
	std::set<std::string> landing;
	for (int i = 0; i < CAlien::LANDING_FRAMES; i++) {
		EXPECT_EQ(0u, landing.count("alien_fall_on_ground.ogg"));
		Run();
		landing = Listen();
	}
	EXPECT_EQ(1u, landing.count("alien_fall_on_ground.ogg"));
}
