// Clouds that drift over the sea.
#include "field/clouds.h"

#include "field/paddle.h"
#include "frame/random.h"
#include "media/sprite.h"

static const int CLOUD_DEPTH    = -50; // plus y
static const int SPAWN_ODDS     = 1500;
static const int FEWEST_ACTIVE  = 2;
static const int MOST_ACTIVE    = 5;
static const int ENTRY_X        = 800; // pixels
static const float FAN_SPEED_UP = 7;

CClouds::~CClouds()
{
	for (Cloud& cloud : clouds)
		delete cloud.sprite;
}

void CClouds::Make()
{
	static const struct {
		const char* word;
		int count;
	} CLASSES[] = {{"big", BIG}, {"medium", MEDIUM}, {"small", SMALL}};
	made        = true;
	Cloud* next = clouds;
	for (const auto& size : CLASSES)
		for (int i = 0; i < size.count; i++, next++) {
			next->sprite = new CSprite(CLOUD_DEPTH);
			next->sprite->AddFile(std::string("background_cloud") + size.word + std::to_string(i) +
			                      ".png");
			next->sprite->Hide();
		}
	for (int i = 0; i < 3; i++)
		TrySpawn(-1, true);
}

CClouds::Cloud* CClouds::FirstFree(int first, int count)
{
	for (int i = first; i < first + count; i++)
		if (!clouds[i].active)
			return &clouds[i];
	return nullptr;
}

void CClouds::Start(Cloud& cloud, float x, float y, float speed)
{
	cloud.active = true;
	cloud.x      = x;
	cloud.y      = y;
	cloud.speed  = speed;
	activeCount++;
}

void CClouds::TrySpawn(int odds, bool anywhere)
{
	float roll = RandomRange(0, odds);
	if (roll <= odds - 1 && odds != -1 && activeCount >= FEWEST_ACTIVE)
		return;
	bool pair    = RandomRange(0, 6) > 5;
	int size     = pair ? 0 : Rand() % 3;
	Cloud* cloud = size == 0   ? FirstFree(0, BIG)
	               : size == 1 ? FirstFree(BIG, MEDIUM)
	                           : FirstFree(BIG + MEDIUM, SMALL);
	if (!cloud)
		return;
	float x     = anywhere ? RandomRange(-30, 730) : ENTRY_X;
	float y     = RandomRange(5, 35);
	float speed = RandomRange(0.01f, 0.1f);
	Start(*cloud, x, y, speed);

	Cloud* below = pair ? FirstFree(BIG + MEDIUM, SMALL) : nullptr;
	if (!below)
		return;
	float right = RandomRange(-5, 70);
	float down  = RandomRange(10, 15);
	Start(*below, x + right, y + down, speed);
}

void CClouds::Step()
{
	if (!made)
		return;
	if (activeCount < MOST_ACTIVE)
		TrySpawn(SPAWN_ODDS, false);
	float factor = g_paddle && g_paddle->fanOn ? FAN_SPEED_UP : 1;
	for (Cloud& cloud : clouds) {
		if (!cloud.active)
			continue;
		cloud.x -= cloud.speed * factor;
		if (cloud.x < -cloud.sprite->Width()) {
			cloud.sprite->Hide();
			cloud.active = false;
			activeCount--;
			continue;
		}
		int y = static_cast<int>(cloud.y);
		cloud.sprite->SetPos(static_cast<int>(cloud.x), y, y + CLOUD_DEPTH);
		cloud.sprite->Show();
	}
}

void CClouds::Hide()
{
	for (Cloud& cloud : clouds)
		if (cloud.sprite)
			cloud.sprite->Hide();
}
