// How wings beat, and how that looks flying away and flying near.
#include "art/animals/flight.h"

#include "art/animals/actions.h"
#include "art/animals/beast.h"

static const float DOWNSTROKE = .54f; // part of a beat that the wings press down
static const float TIP_LAG    = .13f; // of a beat, by which the outer wing follows
// Flying away it climbs, seen from behind and above; flying near it sinks with its face to us.
static const float AWAY_TURN = 18, AWAY_ABOVE = 24; // degrees
static const float NEAR_TURN = -14, NEAR_ABOVE = 14;
static const float AWAY_PITCH = .30f, NEAR_PITCH = -.20f; // radians

static const float AWAY_DOWN = .60f; // part of the downstroke; more would hide below the body

static bool IsAway(Heading heading)
{
	return heading == Heading::Up;
}

static Pose InTheAir(const FlightStyle& style, Heading heading)
{
	bool away = IsAway(heading);
	Pose p;
	p.flying    = true;
	p.shadow    = false;
	p.heading   = heading;
	p.rise      = style.lift;
	p.turnAway  = away ? AWAY_TURN : NEAR_TURN;
	p.seenAbove = away ? AWAY_ABOVE : NEAR_ABOVE;
	p.pitch     = away ? AWAY_PITCH : NEAR_PITCH;
	p.headTip   = away ? -.10f : .16f; // keeps its eyes on where it flies
	p.look      = away ? .35f : 0;     // and shows some of its face
	return p;
}

// Height of the wings in a beat: down slowly against the air, up again faster.
static float Stroke(float t)
{
	t -= std::floor(t);
	float a = t < DOWNSTROKE ? t / DOWNSTROKE * PI : PI + (t - DOWNSTROKE) / (1 - DOWNSTROKE) * PI;
	return std::cos(a);
}

Poses Flap(const FlightStyle& style, Heading heading)
{
	Poses list(style.beatFrames);
	float down   = style.down * (IsAway(heading) ? AWAY_DOWN : 1);
	float middle = (style.up + down) * .5f, half = (style.up - down) * .5f;
	for (int i = 0; i < style.beatFrames; i++) {
		float t = i / (float)style.beatFrames;
		Pose p  = InTheAir(style, heading);
		p.flap  = middle + half * Stroke(t);
		// The air bends the tips up on the way down, and they trail on the way up.
		p.flapTip = middle + half * 1.1f * Stroke(t - TIP_LAG);
		p.fold    = .75f * std::sin(Clamp01((t - DOWNSTROKE) / (1 - DOWNSTROKE)) * PI);
		float sag = std::cos(2 * PI * (t - .08f));
		p.rise -= style.bob * sag;
		p.pitch -= .05f * sag;
		p.tailRaise = -.12f * sag;
		list[i]     = p;
	}
	return list;
}

Poses Glide(const FlightStyle& style, Heading heading)
{
	Poses list(3);
	for (int i = 0; i < 3; i++) {
		float way = i - 1.f, flex = style.rock > 0 ? 0 : way; // it rocks or flexes its wings
		Pose p    = InTheAir(style, heading);
		p.flap    = style.glide + .05f * flex;
		p.flapTip = style.glideTip + .10f * flex;
		p.rise += .5f * way;
		p.sway  = style.rock * way;
		list[i] = p;
	}
	return list;
}

Poses Ruffle(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t = Part(i, count), swell = std::sin(t * PI), shake = std::sin(t * 4 * PI);
		Pose& p     = list[i];
		p.squash    = i == 0 ? 1.2f : 0;
		p.ruffle    = swell;
		p.look      = .45f * shake * swell;
		p.headRoll  = .25f * shake * swell;
		p.armsUp    = .75f * swell;
		p.tailSwing = shake * swell;
		p.mouth     = i == 1 || i == 2 ? .8f : 0;
		p.lid       = i == 3 ? 1 : 0;
	}
	return list;
}

Poses Peck(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t           = (i + 1) / (float)count;
		list[i].headDown  = Ease(t);
		list[i].tailRaise = .25f * t;
		list[i].mouth     = 0;
	}
	return list;
}

Poses LookBothWays()
{
	Poses list = Look(4);
	for (int i = 0; i < 2; i++) {
		Pose p;
		p.look     = -.40f - .35f * i;
		p.headTip  = .08f + .10f * i;
		p.headRoll = .12f + .14f * i;
		list.push_back(p);
	}
	return list;
}

Poses Startled(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t = Part(i, count), swell = std::sin(t * PI);
		Pose& p    = list[i];
		p.squash   = i == 0 ? 1.1f : 0;
		p.rise     = i == 0 ? 0 : 1.6f * swell;
		p.wideEyes = .40f * swell;
		p.ruffle   = .9f * swell;
		p.armsUp   = i == 0 || i == count - 1 ? 0 : .2f + .4f * swell;
		p.mouth    = i > 0 && i < count - 1 ? .9f * swell : 0;
		p.headRoll = .22f * std::sin(t * 3 * PI) * (1 - t);
	}
	return list;
}

Species BirdSpecies(const char* prefix, float width, float height, Bird (*shape)())
{
	const float SHADOW = .30f; // small, since the same picture sits on rails
	Species s;
	s.prefix   = prefix;
	s.width    = width;
	s.height   = height;
	s.sideTurn = 26;
	s.shadow   = SHADOW;
	s.build    = [shape](Model& model, const View& view, const Pose& pose) {
        AddBird(model, shape(), view, pose);
	};
	return s;
}

void AddFlier(Catalogue& catalogue, const char* source, Species (*species)(),
              const FlightStyle& style, const char* idleWord,
              const std::vector<Sequence>& sequences)
{
	std::vector<Sequence> all = {{idleWord, {Pose()}, "", false},
	                             {"flapup", Flap(style, Heading::Up)},
	                             {"flapdown", Flap(style, Heading::Down)},
	                             {"glideup", Glide(style, Heading::Up)},
	                             {"glidedown", Glide(style, Heading::Down)}};
	all.insert(all.end(), sequences.begin(), sequences.end());
	AddSequences(catalogue, source, species, all);
	AddInBubble(catalogue, source, species);
}
