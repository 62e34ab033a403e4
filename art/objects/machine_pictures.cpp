// Which pictures the machine and its driver need, and the motion of every sequence.
#include "art/families.h"

#include "art/objects/bumper.h"
#include "art/objects/machine_effects.h"
#include "art/objects/professor.h"

static const int FIRST_START_FLAME = 14, START_FLAMES = 12;
static const int FIRST_LOOP_FLAME = 42, LOOP_FLAMES = 10;
static const int RAY_HEIGHT       = 514; // the game cuts it to the distance to the horizon
static const int MOVE_FRAMES      = 12;
static const int PROFESSOR_BOTTOM = 560; // field line where his pictures end

static void AddBumper(Sink& sink, const std::string& name, const BumperState& state)
{
	sink.Add("paddle_bumper" + name + ".png", MachineBumper(state));
}

static BumperState Bumper(BumperShape to, float progress, float slime)
{
	BumperState state;
	state.to       = to;
	state.progress = progress;
	state.slime    = slime;
	return state;
}

// Slime runs over a shape in four steps; the last is the sticky picture itself.
static void DrawSliming(Sink& sink, BumperShape shape, const std::string& word)
{
	const float slimes[] = {.3f, .55f, .8f};
	for (int i = 0; i < 3; i++)
		AddBumper(sink, word + (char)('B' + i), Bumper(shape, 1, slimes[i]));
}

// Numbers 1, 3, 4, 5 and 6 of a change of shape: a first twitch, two steps, the end, one overshoot.
static void DrawChange(Sink& sink, BumperShape to, const std::string& word, float slime)
{
	const int numbers[]    = {1, 3, 4, 5, 6};
	const float progress[] = {.16f, .36f, .70f, 1, 1.03f};
	for (int i = 0; i < 5; i++)
		AddBumper(sink, word + std::to_string(numbers[i]), Bumper(to, progress[i], slime));
}

static void DrawBumpers(Sink& sink)
{
	AddBumper(sink, "base", {});
	AddBumper(sink, "stickybase", Bumper(BumperShape::Normal, 0, 1));
	DrawSliming(sink, BumperShape::Normal, "base");
	const struct {
		BumperShape shape;
		const char* word;
	} changes[] = {{BumperShape::Wide, "grow"}, {BumperShape::Flat, "flat"}};
	for (auto& change : changes) {
		DrawChange(sink, change.shape, change.word, 0);
		DrawChange(sink, change.shape, std::string("sticky") + change.word, 1);
		DrawSliming(sink, change.shape, change.word);
	}
}

static void DrawTurningParts(Sink& sink)
{
	sink.Add("paddle_main.png", MachineBody());
	for (int i = 0; i < 3; i++) {
		std::string end = std::to_string(i) + ".png";
		for (const char* side : {"left", "right"}) {
			sink.Add(std::string("paddle_wheel") + side + end, MachineWheel(i));
			sink.Add(std::string("paddle_fan") + side + end, MachineFan(i));
		}
	}
	for (int i = 0; i < 8; i++)
		sink.Add("paddle_light" + std::to_string(i) + ".tga", MachineLight(i));
}

static void DrawFlames(Sink& sink, bool fast)
{
	for (int side = 0; side < 2; side++) {
		std::string stem =
		    std::string("paddle_flames") + (fast ? "" : "slow") + (side ? "right" : "left");
		std::vector<Image> start, loop;
		for (int i = 0; i < START_FLAMES; i++) {
			float t     = i / (START_FLAMES - 1.f);
			float power = .22f + .78f * Smoothstep(0, .75f, t) + .08f * std::sin(t * 5) * (1 - t);
			start.push_back(Flame(fast, side, std::min(1.f, power), i / (float)LOOP_FLAMES));
		}
		for (int i = 0; i < LOOP_FLAMES; i++)
			loop.push_back(Flame(fast, side, 1, (i + 2) / (float)LOOP_FLAMES));
		sink.AddFrames(stem, start, FIRST_START_FLAME);
		sink.AddFrames(stem, loop, FIRST_LOOP_FLAME);
	}
}

static void DrawStun(Sink& sink)
{
	for (int i = 0; i < 15; i++)
		sink.Add("ufoshotglow" + std::to_string(i) + ".png", StunGlow(Smoothstep(-1, 14, i)));
}

static void DrawCrackle(Sink& sink, int first, int last)
{
	for (int i = first; i < last; i++)
		sink.Add("ufoshotelectric" + std::to_string(i) + ".png", StunCrackle(i));
}

static void DrawDestructo(Sink& sink)
{
	sink.Add("destructoray.png", DestructoRay(RAY_HEIGHT));
	for (int i = 0; i < 9; i++)
		sink.Add("destructo_loaded" + std::to_string(i) + ".png",
		         DestructoSign(Smoothstep(0, 8, i)));
}

void AddMachine(Catalogue& catalogue)
{
	catalogue.Add("machine body", __FILE__, DrawTurningParts);
	catalogue.Add("machine bumpers", __FILE__, DrawBumpers);
	catalogue.Add("machine fast flames", __FILE__, [](Sink& sink) { DrawFlames(sink, true); });
	catalogue.Add("machine slow flames", __FILE__, [](Sink& sink) { DrawFlames(sink, false); });
	catalogue.Add("machine stun glow", __FILE__, DrawStun);
	catalogue.Add("machine crackle 1", __FILE__, [](Sink& sink) { DrawCrackle(sink, 0, 30); });
	catalogue.Add("machine crackle 2", __FILE__, [](Sink& sink) { DrawCrackle(sink, 30, 60); });
	catalogue.Add("machine destructo", __FILE__, DrawDestructo);
}

// --- the driver. `side` is -1 going left, 1 going right; `t` runs from 0, at rest, to 1.

static ProfessorPose SlowDrive(float t, int side)
{
	float k = Smoothstep(0, 1, t);
	ProfessorPose p;
	p.lean    = side * 2.4f * k;
	p.tilt    = side * .12f * k;
	p.turn    = side * .38f * k;
	p.steer   = -side * .40f * k;
	p.wind    = -side * .25f * k;
	p.flutter = t * 5;
	return p;
}

// The jolt throws him back, then he ducks forward into the wind.
static ProfessorPose FastDrive(float t, int side)
{
	float back = t < .55f ? std::sin(PI * t / .55f) : 0, ahead = Smoothstep(.35f, .95f, t);
	ProfessorPose p;
	p.lean    = side * (4 * ahead - 4.5f * back);
	p.tilt    = side * (.24f * ahead - .22f * back);
	p.turn    = side * .55f * Smoothstep(0, .4f, t);
	p.steer   = -side * .6f * Smoothstep(0, .6f, t);
	p.wind    = -side * Smoothstep(.05f, .7f, t);
	p.duck    = 1.4f * ahead;
	p.alarm   = .9f * back;
	p.flutter = t * 11;
	return p;
}

// From the drive (t 0) to rest (t 1): braking throws him on, the hair flops over, he comes back.
static ProfessorPose Recoil(float t, int side)
{
	float thrown       = std::sin(PI * std::min(1.f, t / .75f));
	ProfessorPose from = FastDrive(1, side), p;
	float left         = 1 - Smoothstep(.25f, 1, t);
	p.lean             = from.lean * left + side * 3 * thrown;
	p.tilt             = from.tilt * left + side * .2f * thrown;
	p.turn             = from.turn * left;
	p.steer            = from.steer * left;
	p.duck             = from.duck * left;
	p.wind =
	    from.wind * (1 - Smoothstep(0, .4f, t)) + side * .8f * std::sin(PI * Smoothstep(.2f, 1, t));
	p.alarm   = .7f * thrown;
	p.flutter = FastDrive(1, side).flutter + t * 7;
	return p;
}

static ProfessorPose Between(const ProfessorPose& a, const ProfessorPose& b, float t, float windT)
{
	ProfessorPose p;
	p.lean    = Mix(a.lean, b.lean, t);
	p.tilt    = Mix(a.tilt, b.tilt, t);
	p.turn    = Mix(a.turn, b.turn, t);
	p.steer   = Mix(a.steer, b.steer, t);
	p.duck    = Mix(a.duck, b.duck, t);
	p.wind    = Mix(a.wind, b.wind, windT);
	p.flutter = Mix(a.flutter, b.flutter + 6, t);
	return p;
}

// From driving to `side` (t 1) to driving the other way (t 0): his weight goes on at first, the
// hair follows last.
static ProfessorPose FastTurnabout(float t, int side)
{
	float u = 1 - t, thrown = std::sin(PI * std::min(1.f, u / .6f));
	ProfessorPose p = Between(FastDrive(1, side), FastDrive(1, -side), Smoothstep(.25f, 1, u),
	                          Smoothstep(.35f, 1, u));
	p.lean += side * 3 * thrown;
	p.tilt += side * .15f * thrown;
	p.duck *= std::fabs(2 * u - 1);
	p.alarm = thrown;
	return p;
}

static ProfessorPose SlowTurnabout(float t, int side)
{
	float k = Smoothstep(0, 1, 1 - t);
	return Between(SlowDrive(1, side), SlowDrive(1, -side), k, k);
}

// A move's pictures go from t 0 (frame 0) to t 1 (frame 11). The turnabouts are shown backward.
struct Move {
	const char* name;
	int left, top, width; // of the window, pixels; left from the paddle's anchor
	ProfessorPose (*pose)(float t, int side);
	int side;
};

// clang-format off
static const Move MOVES[] = {
	// name              left  top  width  pose           side
	{"goleftslow",         19, 503,    41, SlowDrive,     -1},
	{"gorightslow",        16, 503,    41, SlowDrive,      1},
	{"goleftfast",         20, 503,    46, FastDrive,     -1},
	{"gorightfast",        11, 503,    46, FastDrive,      1},
	{"goleftfastrecoil",   13, 503,    50, Recoil,        -1},
	{"gorightfastrecoil",  11, 503,    54, Recoil,         1},
	{"goleftrightslow",    16, 503,    44, SlowTurnabout,  1},
	{"goleftrightfast",     6, 502,    64, FastTurnabout,  1},
	{"gorightleftfast",     9, 501,    60, FastTurnabout, -1},
};
// clang-format on

static void DrawMove(Sink& sink, const Move& move)
{
	PartWindow window = {move.left, move.top, move.width, PROFESSOR_BOTTOM - move.top};
	std::vector<Image> frames;
	for (int i = 0; i < MOVE_FRAMES; i++)
		frames.push_back(Professor(move.pose(i / (MOVE_FRAMES - 1.f), move.side), window));
	sink.AddFrames(std::string("prof_") + move.name, frames);
}

void AddProfessor(Catalogue& catalogue)
{
	catalogue.Add("professor base", __FILE__,
	              [](Sink& sink) { sink.Add("prof_base.png", Professor({}, PROFESSOR_WINDOW)); });
	for (const Move& move : MOVES)
		catalogue.Add(std::string("professor ") + move.name, __FILE__,
		              [&move](Sink& sink) { DrawMove(sink, move); });
}
