// Paints the picture behind a level, lays the boundary, and steps the weather.
#include "field/background.h"

#include "field/decor_stamps.h"
#include "field/weather.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>

static const int BACKDROP_DEPTH  = -100;
static const int OVERLAY_DEPTH   = 9000;
static const int WALL_BASE       = 122; // the wall's top with a horizon offset of 0
static const int HILL_FOOT       = 23;  // pixels from the wall's top down to the hills' lower edge
static const int RAILROAD_Y      = 541;
static const int AMBIENT_FADE_IN = 30; // frames
static const int BOUNDARY_POINTS = 8;

namespace
{
struct SkyLook {
	const char* picture;
	bool strip; // one column, stamped over the whole width
	const char* sun;
	const char* overlay; // null for none
};
struct GroundLook {
	const char* word;
	const char* hillWord;
	const char* wallWord;
};
struct BoundaryPoint {
	int x, down; // pixels; down from the wall's top
};
} // namespace

static const char* const PLAIN_SUN     = "background_sun.png";
static const char* const SUNSET_SUN    = "background_sun_sunset.png";
static const char* const NIGHT_OVERLAY = "background_overlay_night.png";

// clang-format off
static const SkyLook SKIES[] = {
	{"background_sky_blue.png",       true,  PLAIN_SUN,  nullptr},
	{"background_sky_light_blue.png", true,  PLAIN_SUN,  nullptr},
	{"background_sky_deep_blue.png",  true,  PLAIN_SUN,  nullptr},
	{"background_sky_sunset.jpg",     false, SUNSET_SUN, "background_overlay_sunset.png"},
	{"background_sky_magenta.png",    true,  PLAIN_SUN,  nullptr},
	{"background_sky_purple.png",     true,  PLAIN_SUN,  nullptr},
	{"background_sky_dusk.jpg",       false, PLAIN_SUN,  NIGHT_OVERLAY},
	{"background_sky_night.jpg",      false, PLAIN_SUN,  NIGHT_OVERLAY},
};

static const GroundLook GROUNDS[] = {
	{"grass",      "grass", "stone"},
	{"sand",       "sand",  "sand"},
	{"snow",       "snow",  "ice"},
	{"snowygrass", "snow",  "stone"},
};

static const BoundaryPoint BOUNDARIES[2][BOUNDARY_POINTS] = {
	{{0, 26}, {77, 24}, {185, 24}, {285, 29}, {385, 35}, {485, 37}, {585, 35}, {FIELD_RIGHT, 29}},
	{{0, 29}, {100, 36}, {200, 38}, {300, 36}, {400, 29}, {500, 24}, {600, 24}, {FIELD_RIGHT, 27}},
};
// clang-format on

CBackground* g_background = nullptr;

static const SkyLook& SkyOf(const BackgroundLook& look)
{
	return SKIES[look.sky >= SKY_BLUE && look.sky <= SKY_NIGHT ? look.sky : SKY_BLUE];
}

static const GroundLook& GroundOf(const BackgroundLook& look)
{
	bool known = look.ground >= GROUND_GRASS && look.ground <= GROUND_SNOW;
	return GROUNDS[known ? look.ground : GROUND_SNOWY_GRASS];
}

static bool IsNight(const BackgroundLook& look)
{
	return look.sky == SKY_DUSK || look.sky == SKY_NIGHT;
}

CBackground::Weather::~Weather()
{
	delete overlay;
	delete ambientSound;
	for (CSprite* hill : hills)
		delete hill;
}

void CBackground::Weather::HideAll()
{
	clouds.Hide();
	rain.Hide();
	snow.Hide();
	hail.Hide();
	fireflies.Hide();
	if (overlay)
		overlay->Hide();
	if (ambientSound)
		ambientSound->Stop();
}

CBackground::CBackground(const BackgroundLook& newLook) : look(newLook), weather(new Weather)
{
	g_background = this;
	if (look.fenceVariant != 0 && look.fenceVariant != 1)
		look.fenceVariant = Rand() % 2;
	StartSounds();
	weather->hasFireflies =
	    look.sky == SKY_NIGHT && !look.rain && !look.snow && !look.hail && Rand() % 4 == 0;
	if (look.clouds)
		weather->clouds.Make();
	backdropImage = g_display->NewScreenImage();
	PaintSky();
	MakeOverlay();
	weather->waves.Make(backdropImage);
	PaintGround();
	if (look.hills)
		PaintHills();
	PaintWall();
	LayBoundary();
	if (look.railroad)
		g_display->DrawFile("background_railroad.png", backdropImage, 0, RAILROAD_Y, false);
	if (look.rainbow)
		weather->rainbow.Make();
	backdrop = new CSprite(0, 0, BACKDROP_DEPTH);
	backdrop->AddImage(backdropImage);
	backdrop->SetWidth(FIELD_RIGHT);
	MakeParticles();
}

CBackground::~CBackground()
{
	delete weather;
	delete backdrop;
	if (g_background == this)
		g_background = nullptr;
}

void CBackground::StartSounds()
{
	if (!LevelGameData()->EffectsOn())
		return;
	const char* name = look.rain       ? "background_rain.ogg"
	                   : look.hail     ? "background_hail.ogg"
	                   : IsNight(look) ? "background_crikets.ogg"
	                                   : nullptr;
	if (!name)
		return;
	weather->ambientSound = new CSound(name);
	weather->ambientSound->Play(true);
	weather->ambientSound->FadeIn(AMBIENT_FADE_IN);
	if (look.rain)
		weather->rain.LoadThunder();
}

void CBackground::PaintSky()
{
	const SkyLook& sky = SkyOf(look);
	int picture        = g_display->LoadImage(sky.picture);
	for (int x = 0; x < (sky.strip ? SCREEN_WIDTH : 1); x++)
		g_display->BlitWhole(picture, backdropImage, x, 0);
	g_display->ReleaseImage(picture);
	g_display->DrawFile(sky.sun, backdropImage, look.sunX, look.sunY, false);
}

void CBackground::MakeOverlay()
{
	const char* name = SkyOf(look).overlay;
	if (!name && (look.rain || look.hail))
		name = NIGHT_OVERLAY;
	if (!name || !LevelGameData()->EffectsOn())
		return;
	weather->overlay = new CSprite(0, 0, OVERLAY_DEPTH);
	weather->overlay->AddFile(name);
	weather->overlay->SetWidth(FIELD_RIGHT);
}

void CBackground::PaintGround()
{
	std::string stem = std::string("background_") + GroundOf(look).word;
	int lower        = g_display->LoadImage(stem + "_bottom.jpg");
	int upper        = g_display->LoadImage(stem + "_top.png");
	int y            = SCREEN_HEIGHT - g_display->ImageHeight(lower) + look.groundMargin;
	g_display->BlitWhole(lower, backdropImage, -look.groundX, y);
	g_display->BlitWhole(upper, backdropImage, -look.groundX, y - g_display->ImageHeight(upper));
	g_display->ReleaseImage(lower);
	g_display->ReleaseImage(upper);
}

void CBackground::PaintHills()
{
	std::string stem  = std::string("background_") + GroundOf(look).hillWord + "_hill_";
	int horizon       = WALL_BASE + look.horizonOffset + HILL_FOOT - look.hillsHeight;
	weather->hills[0] = PaintHill(stem + "bottom.jpg", horizon, look.hillsHeight);
	int top           = g_display->LoadImage(stem + "top.png");
	int topHeight     = g_display->ImageHeight(top);
	g_display->ReleaseImage(top);
	weather->hills[1] = PaintHill(stem + "top.png", horizon - topHeight, topHeight);
}

// Rows above the foot of the front wave would be hidden by the waves if they were painted: they
// become a sprite, which is the result.
CSprite* CBackground::PaintHill(const std::string& name, int y, int rows)
{
	int above = std::clamp(CWaves::FRONT_BOTTOM - y, 0, std::max(rows, 0));
	g_display->DrawFilePart(name, backdropImage, 0, y + above, look.hillsX, above, FIELD_RIGHT,
	                        rows - above);
	if (above == 0)
		return nullptr;
	CSprite* sprite = new CSprite(-look.hillsX, y, 0);
	sprite->AddFile(name);
	sprite->SetHeight(above);
	return sprite;
}

void CBackground::PaintWall()
{
	int top          = WALL_BASE + look.horizonOffset;
	std::string name = std::string("background_fence") + GroundOf(look).wallWord +
	                   (look.fenceVariant == 0 ? "A" : "B") + ".png";
	int picture = g_display->LoadImage(name);
	int height  = g_display->ImageHeight(picture);
	g_display->BlitWhole(picture, backdropImage, 0, top);
	g_display->ReleaseImage(picture);
	beamTop  = top + height / 2;
	fieldTop = top + height;
}

void CBackground::LayBoundary()
{
	float top                  = WALL_BASE + look.horizonOffset;
	const BoundaryPoint* chain = BOUNDARIES[look.fenceVariant];
	AddObstaclePoint(this, chain[0].x, top + chain[0].down);
	for (int i = 1; i < BOUNDARY_POINTS; i++)
		AddObstacleLine(this, chain[i - 1].x, top + chain[i - 1].down, chain[i].x,
		                top + chain[i].down);
}

void CBackground::MakeParticles()
{
	if (look.rain)
		weather->rain.Make();
	if (weather->hasFireflies)
		weather->fireflies.Make();
	if (look.snow)
		weather->snow.Make();
	if (look.hail)
		weather->hail.Make();
}

void CBackground::Update()
{
	if (!weatherRunning)
		return;
	if (!LevelGameData()->EffectsOn()) {
		weatherRunning = false;
		weather->HideAll();
		return;
	}
	weather->fireflies.Step();
	weather->clouds.Step();
	weather->waves.Step();
	weather->rainbow.Step();
	weather->rain.Step(weather->overlay);
	weather->snow.Step();
	weather->hail.Step();
}

static void StampAll(int image, const char* stem, const std::vector<DecorStamp>& stamps)
{
	for (const DecorStamp& stamp : stamps)
		g_display->DrawFile(stem + std::to_string(stamp.number + 1) + ".png", image, stamp.x,
		                    stamp.y, false);
}

CBackground* CBackground::ScatterDecor(int preset)
{
	StampAll(backdropImage, "background_grasstuft", TuftStamps(preset));
	StampAll(backdropImage, "background_flower", FlowerStamps(preset));
	return this;
}

void CBackground::BlowSnowFrom(float fromX, float fromY)
{
	if (weatherRunning)
		weather->snow.BlowFrom(fromX, fromY);
}
