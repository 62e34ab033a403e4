// A flash, dust that swells and thins out, and boards that fly in arcs and tumble.
#include "art/objects/explosion.h"

#include "art/core/canvas.h"

static const int WIDTH = 96, HEIGHT = 100;
static const float MIDDLE_X      = 48;
static const float WOOD_MIDDLE_Y = 62, WHITE_MIDDLE_Y = 50;
static const int PUFFS = 16, BOARDS = 13, CHIPS = 14, FLASH_FRAMES = 3;
static const float FALL = 38; // pixels that a piece falls over the whole sequence

namespace
{
struct Burst {
	Canvas canvas{WIDTH, HEIGHT, 3};
	float t;    // 0..1
	float gone; // way done: pieces leave fast and are braked by the air
	bool white;
	float middleY;

	void AddFlash(int frame);
	void AddDust();
	void AddPieces();
	void AddPiece(int index, bool board);
};

void Burst::AddFlash(int frame)
{
	if (frame >= FLASH_FRAMES)
		return;
	float x = MIDDLE_X, y = middleY - 4, size = 36 - frame * 4.f, spin = frame * .3f;
	canvas.Fill(Star(x, y, size, size * .45f, 9, spin), HexColour(0xffb43a), .55f - frame * .15f,
	            1.5f);
	canvas.Fill(Star(x, y, size - 4, size * .42f, 9, spin), HexColour(0xffe27a),
	            .85f - frame * .22f);
	canvas.Fill(Star(x, y, size * .62f, size * .28f, 9, spin + .35f), {1, 1, .93f},
	            .95f - frame * .25f);
}

// Dust in one cloud: all rims first, then the balls from the lowest to the highest.
void Burst::AddDust()
{
	float alpha = Clamp01(1.15f - 1.3f * t);
	if (alpha < .03f)
		return;
	Colour c = HexColour(white ? 0xf4eee2 : 0xdcc29a);
	Random random(white ? 40 : 12);
	std::vector<PathFn> balls, gleams;
	Canvas dust(WIDTH, HEIGHT, 3);
	for (int i = 0; i < PUFFS; i++) {
		float a = random.Range(0, 2 * PI), far = random.Range(6, 29), size = random.Range(9, 14);
		float x = MIDDLE_X + std::cos(a) * far * (.5f + .9f * gone);
		float y = middleY + std::sin(a) * far * .55f * (.5f + gone) - 16 * t;
		float r = size * (.65f + .55f * gone) * (1 - .6f * t);
		balls.push_back(Disc(x, y, r));
		gleams.push_back(Disc(x - r * .2f, y - r * .25f, r * .66f));
	}
	PathFn cloud = Joined(balls);
	dust.Fill(cloud, Darker(c, .8f), .7f, .9f);
	dust.Relief(cloud, Downward(Lighter(c, .5f), Darker(c, .35f), middleY - 26, middleY + 16), 3.6f,
	            1.6f, 0);
	for (const PathFn& gleam : gleams)
		dust.Fill(gleam, Lighter(c, .6f), .34f);
	Compose(canvas.pixels, dust.pixels, 0, 0, alpha);
}

// Boards are cut planks with a lit edge, chips are splinters.
void Burst::AddPiece(int index, bool board)
{
	Random random((board ? 100 : 300) + index * 7 + (white ? 1000 : 0));
	float a      = -PI * (index + random.Range(.1f, .9f)) / (board ? BOARDS : CHIPS);
	float speed  = board ? random.Range(26, 50) : random.Range(36, 60);
	float length = board ? random.Range(11, 18) : random.Range(5, 9);
	float thick  = board ? random.Range(3.6f, 5.2f) : random.Range(1.8f, 2.8f);
	float angle  = random.Range(0, PI) + random.Range(-9, 9) * t;
	// a piece starts where it sat in the thing that breaks
	float x = MIDDLE_X + std::cos(a) * (12 + speed * gone * .68f) + random.Range(-5, 5);
	float y = middleY + random.Range(-12, 10) + std::sin(a) * speed * gone * (board ? .85f : 1) +
	          FALL * t * t;
	float fade = Clamp01((1.02f - t) * 4), k = 1 - .3f * t;
	x = Clamp(x, 10, WIDTH - 10.f);
	y = std::min(y, HEIGHT - 9.f);
	Colour wood =
	    HexColour(white ? (index & 1 ? 0xf8f2e6 : 0xe4dccc) : (index & 1 ? 0xd09850 : 0xa06a30));
	float l = length * .5f * k, w = thick * .5f * k;
	PathFn shape = Turned(Polygon({{x - l, y - w},
	                               {x + l * .6f, y - w},
	                               {x + l, y - w * .1f},
	                               {x + l * .55f, y + w * .3f},
	                               {x + l * .8f, y + w},
	                               {x - l * .85f, y + w},
	                               {x - l * .65f, y}}),
	                      x, y, angle);
	canvas.Fill(shape, InkOf(wood), fade, .9f);
	canvas.Fill(shape, wood, fade);
	PathFn edge =
	    Turned(Line({{x - l * .7f, y - w * .35f}, {x + l * .5f, y - w * .35f}}), x, y, angle);
	canvas.Stroke(edge, std::cos(angle) > 0 ? Lighter(wood, .45f) : Darker(wood, .4f),
	              thick * .22f * k, fade);
}

void Burst::AddPieces()
{
	for (int i = 0; i < CHIPS; i++)
		AddPiece(i, false);
	for (int i = 0; i < BOARDS; i++)
		AddPiece(i, true);
}
} // namespace

Image Explosion(int frame, bool white)
{
	Burst burst;
	burst.t       = frame / (EXPLOSION_FRAMES - 1.f);
	burst.gone    = 1 - (1 - burst.t) * (1 - burst.t) * (1 - burst.t);
	burst.white   = white;
	burst.middleY = white ? WHITE_MIDDLE_Y : WOOD_MIDDLE_Y;
	burst.AddFlash(frame);
	burst.AddDust();
	if (frame > 0)
		burst.AddPieces();
	return burst.canvas.Finish();
}
