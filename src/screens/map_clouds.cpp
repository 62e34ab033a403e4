// Clouds that drift over the map.
#include "screens/map_clouds.h"

#include "frame/random.h"
#include "media/sprite.h"

#include <string>

static const float LEFTMOST  = -40; // pixels, where they may stand at first
static const float RIGHTMOST = 800;
static const float HIGHEST   = 10;
static const float LOWEST    = 150;
static const float SLOWEST   = 0.01f; // pixels a frame
static const float FASTEST   = 0.1f;
static const float ENTRY_X   = 810;

static const struct {
	const char* word;
	int count;
} s_sizes[] = {{"big", 4}, {"medium", 3}, {"small", 5}};

CMapClouds::CMapClouds(int depth)
{
	Cloud* next = clouds;
	for (const auto& size : s_sizes)
		for (int i = 0; i < size.count; i++, next++) {
			next->x      = RandomRange(LEFTMOST, RIGHTMOST);
			const int y  = RandomWhole(HIGHEST, LOWEST);
			next->speed  = RandomRange(SLOWEST, FASTEST);
			next->sprite = new CSprite(static_cast<int>(next->x), y, depth);
			next->sprite->AddFile(std::string("background_cloud") + size.word + std::to_string(i) +
			                      ".png");
		}
}

CMapClouds::~CMapClouds()
{
	for (Cloud& cloud : clouds)
		delete cloud.sprite;
}

void CMapClouds::Step()
{
	for (Cloud& cloud : clouds) {
		cloud.x -= cloud.speed;
		int y = cloud.sprite->Y();
		if (cloud.x < static_cast<float>(-cloud.sprite->Width())) {
			cloud.x     = ENTRY_X;
			y           = RandomWhole(HIGHEST, LOWEST);
			cloud.speed = RandomRange(SLOWEST, FASTEST);
		}
		cloud.sprite->SetPos(static_cast<int>(cloud.x), y);
	}
}
