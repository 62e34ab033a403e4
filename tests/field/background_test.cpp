// The picture behind a level: its boundary, its weather, and the weather switched off.
#include "support/field_test.h"

#include "field/background.h"
#include "field/decor_stamps.h"
#include "field/paddle.h"
#include "field/weather.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <algorithm>
#include <cmath>

class BackgroundTest : public FieldTest
{
protected:
	CBackground* Make() { return new CBackground(look); }

	// True when a ball's width from the line there is a point of the boundary under it.
	static bool HasPointAt(float x, float y)
	{
		for (const ObstaclePoint* point : CElement::ObstaclePointList)
			if (std::fabs(point->x - x) < 0.01f && std::fabs(point->y - y) < 0.01f)
				return true;
		return false;
	}

	BackgroundLook look;
};

TEST_F(BackgroundTest, BoundaryGoesThroughTheCornersOfItsWall)
{
	const int xs[2][8]    = {{0, 77, 185, 285, 385, 485, 585, 693},
	                         {0, 100, 200, 300, 400, 500, 600, 693}};
	const int downs[2][8] = {{26, 24, 24, 29, 35, 37, 35, 29}, {29, 36, 38, 36, 29, 24, 24, 27}};
	for (int variant = 0; variant < 2; variant++) {
		SCOPED_TRACE(variant);
		look.fenceVariant       = variant;
		look.horizonOffset      = -10 + 8 * variant;
		CBackground* background = Make();
		float top               = 122 + look.horizonOffset;
		for (int i = 0; i < 8; i++)
			EXPECT_TRUE(HasPointAt(xs[variant][i], top + downs[variant][i])) << i;
		for (const ObstaclePoint* point : CElement::ObstaclePointList) {
			EXPECT_EQ(background, point->owner);
			EXPECT_TRUE(point->y >= top + 24 && point->y <= top + 38);
		}
		EXPECT_EQ(g_background, background);
		EXPECT_GT(background->BeamTop(), top);
		EXPECT_GT(background->FieldTop(), background->BeamTop());
		ClearField();
		EXPECT_EQ(nullptr, g_background);
	}
}

// A gap wider than the joining distance would let the ball out over the sea.
TEST_F(BackgroundTest, BoundaryHasNoGap)
{
	Make();
	const int farthest                 = CElement::JOIN_DISTANCE;
	std::vector<ObstaclePoint*> points = CElement::ObstaclePointList;
	for (size_t i = 1; i < points.size(); i++)
		EXPECT_LE(std::hypot(points[i]->x - points[i - 1]->x, points[i]->y - points[i - 1]->y),
		          farthest);
}

TEST_F(BackgroundTest, BackdropCoversTheFieldOnly)
{
	CBackground* background = Make();
	EXPECT_EQ(-100, background->backdrop->Depth());
	EXPECT_EQ(693, background->backdrop->Width());
	EXPECT_EQ(600, background->backdrop->Height());
}

TEST_F(BackgroundTest, EveryLookPaintsAndLetsItsPicturesGo)
{
	Make();
	ClearField();
	int before = g_display->DecodedImages();
	for (int sky = -1; sky <= 8; sky++) {
		look.ground = (sky + 1) % 4;
		look.sky    = sky;
		look.hills = look.rainbow = sky % 3 != 0;
		look.hillsHeight          = 20 + 15 * sky;
		look.hillsX               = 300;
		look.rain                 = sky == 3;
		look.snow                 = sky == 5;
		look.hail                 = sky == 6;
		Make()->ScatterDecor(sky);
		Tick(3);
		ClearField();
		EXPECT_EQ(before, g_display->DecodedImages()) << "sky " << sky;
	}
}

TEST_F(BackgroundTest, HillsRiseInFrontOfTheWaves)
{
	look.hills              = true;
	look.horizonOffset      = -10;
	look.hillsHeight        = 60; // upper edge at 122 - 10 + 23 - 60 = 75
	CBackground* background = Make();
	const CSprite* hill     = background->weather->hills[0];
	ASSERT_NE(nullptr, hill);
	EXPECT_EQ(75, hill->Y());
	EXPECT_EQ(25, hill->Height()) << "down to the foot of the front wave";
	EXPECT_EQ(0, hill->Depth());
	ClearField();
	look.hillsHeight = 30; // upper edge at 105
	EXPECT_EQ(nullptr, Make()->weather->hills[0]);
}

static int Shown(const CSnow& snow)
{
	return static_cast<int>(std::count_if(std::begin(snow.flakes), std::end(snow.flakes),
	                                      [](const auto& f) { return !f.sprite->IsHidden(); }));
}

TEST_F(BackgroundTest, WeatherSwitchedOffStaysOffForTheLevel)
{
	look.rain = look.snow = look.hail = true;
	CBackground* background           = Make();
	CBackground::Weather& weather     = *background->weather;
	Tick(2);
	EXPECT_EQ(CSnow::FLAKES, Shown(weather.snow));
	g_gameData->SetEffectsOn(false);
	Tick();
	EXPECT_FALSE(background->weatherRunning);
	g_gameData->SetEffectsOn(true);
	float height = weather.snow.flakes[0].height;
	Tick(5);
	EXPECT_EQ(height, weather.snow.flakes[0].height);
	EXPECT_EQ(0, Shown(weather.snow));
	for (const CRain::Drop& drop : weather.rain.drops)
		EXPECT_TRUE(drop.streak->IsHidden() && drop.splash->IsHidden());
	for (const CHail::Stone& stone : weather.hail.stones)
		EXPECT_TRUE(stone.sprite->IsHidden());
	for (const CClouds::Cloud& cloud : weather.clouds.clouds)
		EXPECT_TRUE(cloud.sprite->IsHidden());
	EXPECT_TRUE(weather.overlay->IsHidden());
}

TEST_F(BackgroundTest, NoOverlayAndNoSoundWithTheEffectsOff)
{
	g_gameData->SetEffectsOn(false);
	look.rain                     = true;
	CBackground::Weather& weather = *Make()->weather;
	EXPECT_EQ(nullptr, weather.overlay);
	EXPECT_EQ(nullptr, weather.ambientSound);
	EXPECT_EQ(nullptr, weather.rain.thunderSounds[0]);
	Tick(3);
}

TEST_F(BackgroundTest, CloudsPassSevenTimesAsFastInTheFan)
{
	CBackground* background = Make();
	MakeBallAndPaddle();
	CClouds& clouds = background->weather->clouds;
	EXPECT_GE(clouds.activeCount, 3);
	CClouds::Cloud* cloud = nullptr;
	for (CClouds::Cloud& candidate : clouds.clouds)
		if (candidate.active)
			cloud = &candidate;
	ASSERT_NE(nullptr, cloud);
	float speed = cloud->speed;
	cloud->x    = 400;
	clouds.Step();
	EXPECT_NEAR(400 - speed, cloud->x, 1e-3);
	paddle->fanOn = true;
	cloud->x      = 400;
	clouds.Step();
	EXPECT_NEAR(400 - 7 * speed, cloud->x, 1e-3);

	int active = clouds.activeCount;
	cloud->x   = -cloud->sprite->Width() - 0.5f;
	clouds.Step();
	EXPECT_FALSE(cloud->active);
	EXPECT_LE(clouds.activeCount, active);
	EXPECT_TRUE(cloud->sprite->IsHidden());
}

TEST_F(BackgroundTest, BigCloudGoesAloneWhenNoSmallOneIsFree)
{
	CClouds& clouds = Make()->weather->clouds;
	for (CClouds::Cloud& cloud : clouds.clouds)
		cloud.active = false;
	for (int i = CClouds::BIG; i < CClouds::CLOUDS; i++)
		clouds.clouds[i].active = true; // only big ones are free
	clouds.activeCount = CClouds::MEDIUM + CClouds::SMALL;
	for (int i = 0; i < 500; i++)
		clouds.TrySpawn(-1, true);
	EXPECT_EQ(CClouds::CLOUDS, clouds.activeCount)
	    << "each counted once, and no more than there are";
}

TEST_F(BackgroundTest, FanPartsTheSnowAndNothingElse)
{
	look.snow = look.hail   = true;
	CBackground* background = Make();
	Tick();
	CSnow::Flake& left  = background->weather->snow.flakes[0];
	CSnow::Flake& right = background->weather->snow.flakes[1];
	CSnow::Flake& on    = background->weather->snow.flakes[2];
	left.sprite->SetPos(260, 400);
	right.sprite->SetPos(340, 400);
	on.sprite->SetPos(300, 544);
	left.x = right.x = on.x = 300;
	left.height = right.height = on.height = 100;
	float stone                            = background->weather->hail.stones[0].x;
	background->BlowSnowFrom(300, 544);
	EXPECT_LT(left.x, 300);
	EXPECT_GT(right.x, 300);
	EXPECT_GT(left.height, 100) << "what is above the fan goes up";
	EXPECT_FLOAT_EQ(300, on.x);
	EXPECT_GT(on.height, 100);
	EXPECT_TRUE(std::isfinite(on.height));
	EXPECT_EQ(stone, background->weather->hail.stones[0].x);

	float distance = std::hypot(40.0f, 144.0f);
	float force    = 1600000 / std::pow(distance, 2.5f);
	EXPECT_NEAR(300 + 40 / distance * force, right.x, 1e-2);
	EXPECT_NEAR(100 + 144 / distance * force, right.height, 1e-2);
}

TEST_F(BackgroundTest, DropsStartOverWithASplash)
{
	look.rain        = true;
	CRain& rain      = Make()->weather->rain;
	CRain::Drop drop = rain.drops[0];
	for (int i = 0; i < 200; i++)
		Tick();
	for (const CRain::Drop& each : rain.drops) {
		EXPECT_GT(each.height, 0);
		EXPECT_LE(each.height, 780);
	}
	CRain::Drop& landing = rain.drops[0];
	landing.splash->Hide();
	landing.height = 1;
	landing.x      = 300;
	landing.y      = 400;
	Tick();
	EXPECT_FALSE(landing.splash->IsHidden());
	EXPECT_EQ(400, landing.splash->Depth());
	EXPECT_GE(landing.height, 680);
	EXPECT_EQ(drop.streak, landing.streak);
}

TEST_F(BackgroundTest, LightningLetsTheOverlayDropOutForOneFrame)
{
	look.rain                     = true;
	CBackground::Weather& weather = *Make()->weather;
	Tick();
	EXPECT_FALSE(weather.overlay->IsHidden());
	EXPECT_TRUE(weather.rain.lightningTimer >= 5 && weather.rain.lightningTimer <= 600);
	weather.rain.lightningTimer = 1;
	Tick();
	EXPECT_TRUE(weather.overlay->IsHidden());
	EXPECT_TRUE(weather.rain.thunderTimer >= 5 && weather.rain.thunderTimer <= 30);
	Tick();
	EXPECT_FALSE(weather.overlay->IsHidden());
	weather.rain.thunderTimer = 1;
	Tick();
	EXPECT_TRUE(g_display->IsShaking());
	g_display->EndShake(true);
}

TEST_F(BackgroundTest, HailBouncesOnce)
{
	look.hail           = true;
	CHail& hail         = Make()->weather->hail;
	CHail::Stone& stone = hail.stones[0];
	EXPECT_TRUE(std::fabs(hail.wind) >= 2 && std::fabs(hail.wind) <= 4);
	stone.speed  = 14;
	stone.height = 1;
	Tick();
	EXPECT_LT(stone.speed, 0);
	EXPECT_FLOAT_EQ(0.1f, stone.height);
	for (int i = 0; i < 60 && stone.height < 600; i++)
		Tick();
	EXPECT_GE(stone.height, 600) << "the second time it starts over";
	EXPECT_FLOAT_EQ(hail.wind, stone.dx);
}

TEST_F(BackgroundTest, FirefliesStayInTheirAir)
{
	CFireflies flies;
	flies.Make();
	int lit = 0;
	for (const CFireflies::Fly& fly : flies.flies)
		lit += !fly.sprite->IsHidden();
	EXPECT_EQ(5, lit);
	flies.flies[0].x = 671;
	for (int i = 0; i < 600; i++)
		flies.Step();
	for (const CFireflies::Fly& fly : flies.flies) {
		EXPECT_TRUE(fly.x >= 0 && fly.x <= 670);
		EXPECT_TRUE(fly.y >= 149 && fly.y <= 501);
		EXPECT_TRUE(std::fabs(fly.vx) <= 1 && std::fabs(fly.vy) <= 1);
	}
}

TEST_F(BackgroundTest, FirefliesComeOnClearNightsOnly)
{
	int nights = 0;
	for (int i = 0; i < 30; i++) {
		look.sky  = SKY_NIGHT;
		look.snow = i >= 24;
		nights += Make()->weather->hasFireflies;
		EXPECT_FALSE(look.snow && g_background->weather->hasFireflies);
		ClearField();
	}
	EXPECT_TRUE(nights > 1 && nights < 13) << nights << " of 24, one in four expected";
}

TEST_F(BackgroundTest, RainbowComesAndGoes)
{
	CRainbow rainbow;
	rainbow.Make();
	EXPECT_TRUE(rainbow.timer >= 600 && rainbow.timer <= 18000);
	EXPECT_TRUE(rainbow.sprite->IsHidden());
	rainbow.timer = 1;
	for (int i = 0; i < 60; i++, rainbow.sprite->Step())
		rainbow.Step();
	EXPECT_FALSE(rainbow.sprite->IsHidden());
	EXPECT_EQ(9, rainbow.sprite->Frame());
	rainbow.timer = 1;
	for (int i = 0; i < 60; i++, rainbow.sprite->Step())
		rainbow.Step();
	EXPECT_TRUE(rainbow.sprite->IsHidden());
}

TEST_F(BackgroundTest, WavesSwingAboutTheirPlace)
{
	CWaves& waves      = Make()->weather->waves;
	const int places[] = {-40, -50, -70}, swings[] = {6, 8, 10};
	for (int i = 0; i < 300; i++) {
		Tick();
		for (int band = 0; band < CWaves::BANDS; band++) {
			const CSprite* sprite = waves.sprites[band];
			EXPECT_LE(std::abs(sprite->X() - places[band]), swings[band]);
			EXPECT_EQ(70 + 15 * band, sprite->Y() + sprite->Height());
		}
	}
}

TEST(DecorStamps, PresetsHaveTheirCounts)
{
	const size_t counts[6][2] = {{17, 10}, {31, 18}, {24, 11}, {21, 13}, {29, 20}, {29, 15}};
	for (int preset = 0; preset < 6; preset++) {
		EXPECT_EQ(counts[preset][0], FlowerStamps(preset).size()) << preset;
		EXPECT_EQ(counts[preset][1], TuftStamps(preset).size()) << preset;
	}
	for (int preset = 6; preset <= 10; preset++) {
		EXPECT_TRUE(FlowerStamps(preset).empty());
		EXPECT_EQ(&TuftStamps(preset - 5), &TuftStamps(preset));
	}
	for (int preset : {-1, 11})
		EXPECT_TRUE(FlowerStamps(preset).empty() && TuftStamps(preset).empty());
	EXPECT_EQ(654, TuftStamps(5).back().x);
}

TEST(DecorStamps, StampsLieOnTheMeadow)
{
	for (int preset = 0; preset < 6; preset++) {
		for (const DecorStamp& flower : FlowerStamps(preset))
			EXPECT_TRUE(flower.number >= 0 && flower.number < 8 && flower.x >= 0 &&
			            flower.x < 680 && flower.y >= 160 && flower.y <= 500);
		for (const DecorStamp& tuft : TuftStamps(preset))
			EXPECT_TRUE(tuft.number >= 0 && tuft.number < 3 && tuft.x >= 0 && tuft.x < 680 &&
			            tuft.y >= 155 && tuft.y <= 500);
	}
}
