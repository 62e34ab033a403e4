// The timing of what stirs in the main menu's picture.
#include "art/screens/menu_poses.h"

// Time of picture i: 0 at the first, and the picture after the last would be the first again.
static float Turn(size_t i, const Poses& list)
{
	return i / (float)list.size();
}

// Rises by the time `in`, stays, and is gone again from `out` on to 1.
static float Held(float t, float in, float out)
{
	return Smoothstep(0, in, t) * Smoothstep(1, out, t);
}

// A short beat about a moment.
static float Beat(float t, float when, float width)
{
	return Smoothstep(width, 0, std::fabs(t - when));
}

Poses DeerLooksRound()
{
	Poses list(10);
	for (size_t i = 0; i < list.size(); i++) {
		float t          = Turn(i, list);
		list[i].look     = 1.05f * Held(t, .35f, .65f);
		list[i].headTip  = .12f * Held(t, .4f, .6f);
		list[i].earSwing = .9f * (Beat(t, .42f, .12f) + Beat(t, .64f, .12f));
		list[i].lid      = i == 7 ? 1 : 0;
	}
	return list;
}

Poses DeerFlicks()
{
	const float RAISED[] = {0, .9f, 1.5f, .6f, 1.4f, .5f};
	Poses list(6);
	for (size_t i = 0; i < list.size(); i++) {
		list[i].tailRaise = RAISED[i];
		list[i].tailSwing = (i & 1 ? .5f : -.5f) * (i > 0);
	}
	return list;
}

Poses CowChews()
{
	Poses list(10);
	for (size_t i = 0; i < list.size(); i++) {
		float t         = Turn(i, list);
		list[i].look    = .55f * Held(t, .35f, .7f);
		list[i].headTip = .16f * Held(t, .35f, .7f);
		list[i].chew    = std::sin(t * 6 * PI);
		list[i].mouth   = .35f * std::pow(std::sin(t * 3 * PI), 2.f);
		list[i].lid     = i == 6 ? 1 : 0;
	}
	return list;
}

Poses CowSwishes()
{
	Poses list(8);
	for (size_t i = 0; i < list.size(); i++) {
		float t           = Turn(i, list);
		list[i].tailSwing = 1.6f * std::sin(t * 2 * PI);
		list[i].tailRaise = .5f * std::pow(std::sin(t * 2 * PI), 2.f);
	}
	return list;
}

Poses SheepGrazes()
{
	Poses list(12);
	for (size_t i = 0; i < list.size(); i++) {
		float t = Turn(i, list), down = Held(t, .3f, .72f);
		list[i].headDown  = down;
		list[i].chew      = down * std::sin(t * 10 * PI);
		list[i].lid       = down > .9f && i % 3 == 0 ? 1 : 0;
		list[i].earSwing  = .7f * Beat(t, .5f, .14f);
		list[i].squash    = .6f * down;
		list[i].tailSwing = std::sin(t * 4 * PI);
	}
	return list;
}

Poses MouseSitsUp()
{
	Poses list(8);
	for (size_t i = 0; i < list.size(); i++) {
		float t = Turn(i, list), up = Held(t, .35f, .7f);
		list[i].rear      = .6f * up;
		list[i].headTip   = .14f * up * std::sin(t * 8 * PI);
		list[i].look      = .5f * up;
		list[i].earSwing  = .5f * Beat(t, .5f, .16f);
		list[i].tailSwing = std::sin(t * 2 * PI);
		list[i].squash    = i == 1 || i == 7 ? .8f : 0;
	}
	return list;
}

// An arm goes up to the head, then a hop for joy.
Poses MonkeyScratches()
{
	const float PRESS[] = {0, .6f, 0, 0, 0, 0, 1.6f, -1.2f, -1, -1, 2.2f, .8f};
	const float RISE[]  = {0, 0, 0, 0, 0, 0, 0, 3.5f, 6, 3.5f, 0, 0};
	const float ARMS[]  = {0, .35f, .68f, .58f, .70f, .58f, .3f, .7f, 1, .7f, .3f, .1f};
	Poses list(12);
	for (size_t i = 0; i < list.size(); i++) {
		bool hops         = i >= 7 && i < 10;
		list[i].squash    = PRESS[i];
		list[i].rise      = RISE[i];
		list[i].armsUp    = ARMS[i];
		list[i].mouth     = hops ? .8f : 0;
		list[i].wideEyes  = hops ? .2f : 0;
		list[i].look      = i >= 2 && i <= 5 ? .35f : 0;
		list[i].headTip   = i >= 2 && i <= 5 ? (i & 1 ? .10f : -.06f) : 0;
		list[i].lid       = i == 4 || i == 10 ? 1 : 0;
		list[i].tailSwing = std::sin(Turn(i, list) * 2 * PI);
	}
	return list;
}

// At rest only the ears stand out of the leaves.
Poses SquirrelPeeps()
{
	const float RISE[] = {-17, -9, -2, .6f, 0, 0, 0, -1, -7, -13};
	Poses list(10);
	for (size_t i = 0; i < list.size(); i++) {
		list[i].rise      = RISE[i];
		list[i].look      = i < 4 ? 0 : i < 7 ? 1 : .4f;
		list[i].wideEyes  = i == 3 || i == 4 ? .3f : 0;
		list[i].lid       = i == 6 ? 1 : 0;
		list[i].tailSwing = .4f * std::sin(i * 1.3f);
	}
	return list;
}

// A peck at the board, then the feathers are shaken out.
Poses BluebirdRuffles()
{
	const float DOWN[]   = {0, .35f, .72f, .4f, .72f, .3f, 0, 0, 0, 0};
	const float RUFFLE[] = {0, 0, 0, 0, 0, .2f, 1, .8f, 1, .4f};
	Poses list(10);
	for (size_t i = 0; i < list.size(); i++) {
		bool shakes       = i >= 6 && i < 9;
		list[i].headDown  = DOWN[i];
		list[i].ruffle    = RUFFLE[i];
		list[i].armsUp    = shakes ? .25f : 0;
		list[i].headRoll  = shakes ? (i & 1 ? .3f : -.3f) : 0;
		list[i].tailSwing = shakes ? (i & 1 ? .6f : -.6f) : 0;
		list[i].lid       = i == 7 ? 1 : 0;
		list[i].tailRaise = DOWN[i] * .4f;
	}
	return list;
}

static Poses Swimming(int count)
{
	Poses list(count);
	for (size_t i = 0; i < list.size(); i++) {
		list[i].tuck = 1;
		list[i].lift = .9f * std::sin(Turn(i, list) * 2 * PI);
	}
	return list;
}

Poses DuckDips()
{
	Poses list = Swimming(8);
	for (size_t i = 0; i < list.size(); i++) {
		float t = Turn(i, list), dip = Held(t, .4f, .7f);
		list[i].headDown  = .85f * dip;
		list[i].pitch     = -.16f * dip;
		list[i].tailSwing = std::sin(t * 4 * PI);
		list[i].mouth     = i == 6 ? .5f : 0;
	}
	return list;
}

Poses DucklingBobs()
{
	Poses list = Swimming(8);
	for (size_t i = 0; i < list.size(); i++) {
		float t         = Turn(i, list);
		list[i].pitch   = .05f * std::sin(t * 2 * PI);
		list[i].look    = .8f * Held(t, .4f, .6f);
		list[i].lid     = i == 5 ? 1 : 0;
		list[i].headTip = .1f * Held(t, .4f, .6f);
	}
	return list;
}

Poses DucklingWags()
{
	Poses list = Swimming(8);
	for (size_t i = 0; i < list.size(); i++) {
		float t = Turn(i, list), shakes = Held(t, .3f, .7f);
		list[i].tailSwing = shakes * (i & 1 ? 1 : -1);
		list[i].armsUp    = .6f * shakes;
		list[i].neckReach = .5f * shakes;
	}
	return list;
}

Poses DucklingPeeps()
{
	Poses list = Swimming(8);
	for (size_t i = 0; i < list.size(); i++) {
		float t = Turn(i, list), up = Held(t, .3f, .7f);
		list[i].mouth     = (i == 3 || i == 5) ? .9f : 0;
		list[i].headTip   = .22f * up;
		list[i].neckReach = .8f * up;
		list[i].armsUp    = .3f * up;
	}
	return list;
}
