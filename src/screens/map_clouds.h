// Clouds that drift over the map.
#pragma once

class CSprite;

// Twelve clouds, each with a speed of its own; one that has left on the left comes in again on the
// right. A map screen owns them.
class CMapClouds
{
public:
	explicit CMapClouds(int depth);
	~CMapClouds();
	CMapClouds(const CMapClouds&)            = delete;
	CMapClouds& operator=(const CMapClouds&) = delete;

	void Step(); // once a frame

	static constexpr int CLOUDS = 12;
	struct Cloud {
		float x = 0, speed = 0;    // pixels, pixels a frame
		CSprite* sprite = nullptr; // owned
	};
	Cloud clouds[CLOUDS];
};
