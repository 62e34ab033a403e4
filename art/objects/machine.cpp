// The body of the machine and the parts that turn and glow on it.
#include "art/objects/machine.h"

#include "art/core/palette.h"
#include "art/objects/bumper.h"
#include "art/objects/professor.h"

const PartWindow BODY_WINDOW = {-10, 514, 96, 68};

static const float MIDDLE_X  = 38;  // of the body, from the anchor
static const float ZERO_Y    = 566; // field line of model y 0
static const int SPOKES      = 5;
static const int BLADES      = 3;
static const int TURN_STEPS  = 3; // pictures of a wheel or fan until it looks the same again
static const int LIGHT_STEPS = 7;

static const Mat3 FACING = TurnX(PI / 2); // a ring or cylinder that faces the viewer

Image RenderPart(Model& model, const PartWindow& window, float zoom)
{
	Camera camera = ViewFrom((int)(window.width * zoom), (int)(window.height * zoom),
	                         (MIDDLE_X - window.left) * zoom, (ZERO_Y - window.top) * zoom, 0, 0,
	                         zoom > 1.5f ? 3 : 4);
	camera.scale  = zoom;
	ShadeStyle style;
	style.outline = zoom > 1.5f ? 1.5f : 1;
	if (zoom > 1)
		style.innerDepth *= .7f;
	return RenderModel(model, camera, style);
}

namespace
{
// The materials that the body's builders share.
struct Finish {
	int enamel, brass, steel, chrome, dark, black, red, leather, glass;
};

// Blue above, a cream band that sags toward the middle, deep blue below.
Colour EnamelColour(const SurfacePoint& at)
{
	float y = at.position.y - .0032f * at.position.x * at.position.x;
	if (y > 4.4f || y < .2f)
		return y > 2 ? PAINT_MACHINE : PAINT_MACHINE_DEEP;
	bool pinstripe = y > 3.6f || y < 1.f;
	return pinstripe ? PAINT_MACHINE_BRASS : PAINT_MACHINE_CREAM;
}

Finish AddFinish(Model& m)
{
	Finish f;
	f.enamel  = m.Painted(EnamelColour, .62f);
	f.brass   = m.Plain(PAINT_MACHINE_BRASS, .85f);
	f.steel   = m.Plain(PAINT_MACHINE_STEEL, .9f);
	f.chrome  = m.Plain(0xcfd8e4, 1.f);
	f.dark    = m.Plain(0x3c4656, .5f);
	f.black   = m.Plain(0x232a38, .25f);
	f.red     = m.Plain(PAINT_MACHINE_RED, .7f);
	f.leather = m.Plain(0xa63a34, .45f);
	f.glass   = m.Plain(0xfff3b0, 1.f);
	return f;
}

void AddShell(Model& m, const Finish& f)
{
	m.Box({0, 3.2f, -6}, {43.5f, 12.6f, 13}, Mat3(), 11, f.enamel, 0);
	for (int s = -1; s <= 1; s += 2) {
		m.Ellipsoid({s * 26.5f, 16.4f, -4}, {16.4f, 14.6f, 12}, Mat3(), f.enamel, 4);
		m.Ellipsoid({s * 37.f, 4, -2}, {8, 10, 10}, Mat3(), f.enamel, 5);
	}
	m.Box({0, -10.4f, 0}, {39, 2, 6}, Mat3(), 1.4f, f.dark, .3f);
}

void AddCockpit(Model& m, const Finish& f)
{
	m.Ellipsoid({0, 17, 4}, {13, 3.6f, 7}, Mat3(), f.black, 0);
	m.Box({0, 21.5f, -3}, {10.5f, 8.5f, 3}, Mat3(), 3, f.leather, 0);
	for (int s = -1; s <= 1; s++)
		m.RoundCone({s * 5.4f, 15, .2f}, {s * 5.2f, 27, .2f}, 2.2f, 1.8f, f.leather, .8f);
	m.Ring({0, 14.6f, 5}, 13, 1.5f, TurnX(.30f), f.brass, .3f);
}

// Brass-rimmed arches over the wheels, with rivets.
void AddFenders(Model& m, const Finish& f)
{
	for (int s = -1; s <= 1; s += 2) {
		Vec3 hub = {s < 0 ? -21.f : 22.f, -11, 4};
		m.Cylinder(hub, 13.4f, 5, FACING, .5f, f.black, 0).cutBelow                = -13;
		m.Ring(hub + Vec3{0, 0, 3.6f}, 14.6f, 2.5f, FACING, f.brass, .4f).cutBelow = -14;
		for (int i = 0; i < 7; i++) {
			float a = Radians(18 + 24.f * i);
			m.Ball(hub + Vec3{std::cos(a) * 14.6f, std::sin(a) * 14.6f, 5.9f}, .75f, f.red, 0);
		}
	}
}

// Dark tunnels in which the fans turn, the lamp sockets above and the nozzles at the sides.
void AddPods(Model& m, const Finish& f)
{
	for (int s = -1; s <= 1; s += 2) {
		Vec3 fan = {s * 26.f, 15, 3.8f};
		m.Cylinder(fan, 10, 4.6f, FACING, .4f, f.dark, 0);
		m.Cylinder(fan + Vec3{0, 0, .4f}, 8.6f, 4.5f, FACING, .3f, f.black, 0);
		m.Ring(fan + Vec3{0, 0, 4.2f}, 10.6f, 1.7f, FACING, f.brass, .3f);
		for (int i = 0; i < 8; i++) {
			float a = Radians(22.5f + 45.f * i);
			m.Ball(fan + Vec3{std::cos(a) * 10.7f, std::sin(a) * 10.7f, 5.8f}, .6f, f.chrome, 0);
		}
		m.RoundCone({s * 29.5f, 24.4f, 1}, {s * 29.5f, 27, 2}, 3.4f, 4.3f, f.brass, .4f);
		m.Cylinder({s * 42.3f, 20.5f, -1}, 4.5f, 3, TurnZ(PI / 2), .6f, f.steel, .4f);
		m.Ring({s * 40.8f, 20.5f, -1}, 4.5f, .9f, TurnZ(PI / 2), f.brass, .2f);
		m.Ring({s * 45.2f, 20.5f, -1}, 4.2f, 1.1f, TurnZ(PI / 2), f.chrome, .2f);
	}
}

// Radiator, head lamp and rivets along the cream band.
void AddFront(Model& m, const Finish& f)
{
	m.Box({0, 4.6f, 8.6f}, {8.6f, 6.2f, 1.8f}, Mat3(), 2.6f, f.chrome, .3f);
	m.Box({0, 4.4f, 9.4f}, {7, 4.7f, 1.6f}, Mat3(), 1.6f, f.black, 0);
	for (int i = -2; i <= 2; i++)
		m.Box({i * 2.8f, 4.4f, 10.6f}, {.7f, 4.2f, .7f}, Mat3(), .5f, f.chrome, 0);
	m.Ball({0, 11.2f, 9}, 1.9f, f.brass, .4f);
	m.Cylinder({0, -5.4f, 9}, 4.5f, 2, FACING, .8f, f.brass, .2f);
	m.Ellipsoid({0, -5.4f, 10.6f}, {3.3f, 3.3f, 1.8f}, Mat3(), f.glass, 0);
	for (int s = -1; s <= 1; s += 2)
		for (int i = 0; i < 3; i++) {
			float x = s * (11.6f + 12.4f * i), y = 5.9f + .0032f * x * x;
			if (i != 1) // the fan tunnels hide the middle ones
				m.Ball({x, y, i == 0 ? 7.f : 5.2f}, .8f, f.brass, 0);
		}
}
} // namespace

Image MachineBody(float zoom)
{
	Model model;
	Finish finish = AddFinish(model);
	AddShell(model, finish);
	AddCockpit(model, finish);
	AddPods(model, finish);
	AddFenders(model, finish);
	AddFront(model, finish);
	return RenderPart(model, BODY_WINDOW, zoom);
}

// A small part that turns about its own middle.
static Image RenderTurning(Model& model, int size, float zoom)
{
	int pixels    = (int)(size * zoom);
	Camera camera = ViewFrom(pixels, pixels, pixels * .5f, pixels * .5f, 0, 0);
	camera.scale  = zoom;
	ShadeStyle style;
	style.outline = zoom > 1.5f ? 1.5f : 1;
	return RenderModel(model, camera, style);
}

Image MachineWheel(int frame, float zoom)
{
	Model m;
	int tyre   = m.Plain(PAINT_TYRE, .4f);
	int tread  = m.Plain(0x44444f, .3f);
	int wall   = m.Plain(0xf2ece0, .4f);
	int brass  = m.Plain(0xe8b444, .85f);
	int red    = m.Plain(PAINT_MACHINE_RED, .7f);
	float turn = -frame * (2 * PI / SPOKES) / TURN_STEPS; // forward is to the right: clockwise
	m.Ring({0, 0, 0}, 8.7f, 2.7f, FACING, tyre, 0);
	m.Ring({0, 0, 1.5f}, 7.7f, 1.2f, FACING, wall, 0);
	m.Cylinder({0, 0, -1}, 7, 1, FACING, .3f, tyre, 0);
	m.Ring({0, 0, 1.6f}, 6.1f, .9f, FACING, brass, .2f);
	for (int i = 0; i < SPOKES; i++) {
		float a = turn + i * 2 * PI / SPOKES;
		m.RoundCone({0, 0, 1}, {std::cos(a) * 6, std::sin(a) * 6, 1}, 1.3f, 1.f, brass, .4f);
	}
	for (int i = 0; i < 2 * SPOKES; i++) {
		float a = turn + i * PI / SPOKES;
		m.Ball({std::cos(a) * 10.6f, std::sin(a) * 10.6f, .6f}, 1.0f, tread, .4f);
	}
	m.Ball({0, 0, 1.8f}, 2.5f, red, .1f);
	return RenderTurning(m, 26, zoom);
}

Image MachineFan(int frame, float zoom)
{
	Model m;
	int blade  = m.Plain(0xf6f2e8, .7f);
	int brass  = m.Plain(PAINT_MACHINE_BRASS, .9f);
	float turn = -frame * (2 * PI / BLADES) / TURN_STEPS;
	for (int i = 0; i < BLADES; i++) {
		float a = turn + i * 2 * PI / BLADES;
		m.Ellipsoid({std::cos(a) * 4.2f, std::sin(a) * 4.2f, 0}, {4.3f, 2.7f, 1.3f},
		            TurnZ(a) * TurnX(.5f), blade, .6f);
	}
	m.Ball({0, 0, 1.2f}, 2.3f, brass, .1f);
	return RenderTurning(m, 20, zoom);
}

Image MachineLight(int frame, float zoom)
{
	Model m;
	float power = frame / (float)LIGHT_STEPS;
	Material bulb;
	bulb.colour = Mix(HexColour(0xc8962c), HexColour(0xfff6b8), power);
	bulb.gloss  = .9f;
	bulb.glow   = power * .85f;
	m.Ball({0, 0, 0}, 2.4f, m.Add(bulb), 0);
	return RenderTurning(m, 7, zoom);
}

void DrawMachine(Image& target, float anchorX, float top, float zoom, bool driven)
{
	static const float TOP_LINE = 496;
	auto put                    = [&](const Image& part, float x, float y) {
        Compose(target, part, (int)std::lround(anchorX + x * zoom),
		                           (int)std::lround(top + (y - TOP_LINE) * zoom));
	};
	put(MachineBumper({}, zoom), BUMPER_WINDOW.left, BUMPER_WINDOW.top);
	put(MachineBody(zoom), BODY_WINDOW.left, BODY_WINDOW.top);
	for (int left : {5, 64})
		put(MachineLight(5, zoom), left, 535);
	for (int left : {2, 54})
		put(MachineFan(0, zoom), left, 541);
	for (int left : {4, 47})
		put(MachineWheel(0, zoom), left, 566);
	if (driven)
		put(Professor({}, PROFESSOR_WINDOW, zoom), PROFESSOR_WINDOW.left, PROFESSOR_WINDOW.top);
}
