// Each landmark by its name.
#include "art/screens/map/landmarks.h"

#include "art/screens/map/houses.h"
#include "art/screens/map/monuments.h"
#include "art/screens/map/mountains.h"
#include "art/screens/map/sea_marks.h"

static Image Height(Mark mark, float scale, int seed)
{
	float w = (44 + seed * 7 % 17) * scale, h = w * (.76f + .04f * (seed % 4));
	switch (mark) {
	case Mark::SnowPeak:
		return DrawMountain(MountainKind::Snowy, w, h * 1.12f, seed);
	case Mark::VioletPeak:
		return DrawMountain(MountainKind::Violet, w, h * 1.2f, seed);
	case Mark::Mesa:
		return DrawMesa(w, w * .58f, seed);
	default:
		return DrawMountain(MountainKind::Grey, w, h, seed);
	}
}

static Image Building(Mark mark, float scale, int seed)
{
	switch (mark) {
	case Mark::Barn:
		return DrawBarn(scale);
	case Mark::Mill:
		return DrawMill(scale);
	case Mark::Field:
		return DrawAcre(scale, seed);
	case Mark::Lodge:
		return DrawLodge(scale);
	case Mark::Castle:
		return DrawCastle(scale);
	case Mark::Cabin:
		return DrawCabin(scale);
	case Mark::Igloo:
		return DrawIgloo(scale);
	case Mark::Huts:
		return DrawHuts(scale);
	case Mark::Temple:
		return DrawTemple(scale);
	case Mark::Pyramid:
		return DrawPyramid(scale);
	case Mark::Rainbow:
		return DrawRainbow(scale);
	case Mark::Pawn:
		return DrawPawn(scale, seed);
	default:
		return DrawMoonGate(scale);
	}
}

Image DrawMark(Mark mark, float scale, int seed)
{
	if (mark <= Mark::Mesa)
		return Height(mark, scale, seed);
	switch (mark) {
	case Mark::Ship:
		return DrawShip(scale);
	case Mark::Whale:
		return DrawWhale(scale);
	case Mark::Iceberg:
		return DrawIceberg(scale, seed);
	case Mark::Islet:
		return DrawRocklet(scale, false);
	case Mark::Lighthouse:
		return DrawRocklet(scale, true);
	case Mark::Compass:
		return DrawCompass(scale);
	default:
		return Building(mark, scale, seed);
	}
}

bool IsFlat(Mark mark)
{
	return mark == Mark::Field || mark == Mark::Compass;
}

bool IsAfloat(Mark mark)
{
	return mark >= Mark::Ship;
}
