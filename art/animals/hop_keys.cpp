// Eight moments of each way of hopping.
#include "art/animals/hopper.h"

// While feet are on the ground they go back by what the game moves the figure on in the time of a
// picture, so that they stay where they are; the leap brings them forward again.

// clang-format off
const HopKey BOUNCE[HOP_KEYS] = {
	// hip        pitch  stretch  heel          toe          hand          ears   tail   headTip
	{ -6,   11.5f, 42,  .94f,    -9,   0,      5,   0,      4,   -3.5f,   .25f,  .10f, -.05f }, // crouch
	{ -2,   20,    46, 1.06f,   -13,   8.5f,  -3,   0,      5,   -2.5f,   .60f,  .20f,  .05f }, // push
	{  0,   27,    30, 1.10f,   -13,  16,    -21,   7,      5.5f,-2,      .95f,  .55f,  .02f },
	{  0,   31,    22, 1.06f,   -10,  20,    -20,  15,      4.5f,-3,     1.00f,  .85f,  .00f },
	{  0,   31,    26, 1.00f,    -1,  18,      4,   8,      3.5f,-4,      .60f, 1.20f, -.05f }, // apex
	{ -1,   25,    36, 1.00f,     6,   9,     18,  10,      4,   -4,      .25f, 1.45f, -.05f },
	{ -3,   12,    38,  .92f,     5,   0,     18.5f,0,      5,   -1.5f,  -.30f,  .95f, -.12f }, // landing
	{ -4,   14.5f, 52, 1.00f,    -1,   0,     12.5f,0,      4,   -4.5f,  -.10f,  .30f,  .00f }, // recovery
};

const HopKey BOUND[HOP_KEYS] = {
	{ -5.5f, 5.6f,  4,  .94f,   -8,    0,     -1,   0,      4,    0,      .40f,  0,    -.05f }, // crouch
	{ -4,    9.5f, 32, 1.08f,  -11,    4.5f,  -5.5f,0,      8,    7.5f,   .75f,  .5f,   .05f }, // push
	{ -3,   14.5f, 20, 1.16f,  -12.5f, 9,    -17.5f,4.5f,  12,   13,     1.00f, 1,      .02f },
	{ -3,   17,     2, 1.20f,  -13,   14.5f, -18.5f,12,    13,   14,     1.00f, 1,      .00f }, // apex
	{ -2,   15.5f,-14, 1.10f,   -9,   12.5f, -14,   9.5f,  11.5f, 7.5f,   .70f,  .8f,  -.05f },
	{ -1,   12.5f,-28, 1.00f,   -3,    7,      1.5f,3.5f,   8.5f, 0,      .25f,  .5f,   .05f }, // fore feet down
	{  -.5f, 5.6f,  2,  .90f,   -1,    0,      6,   0,      9,    0,     -.25f,  0,    -.12f }, // hind feet down
	{ -2.5f, 6.8f, 10, 1.00f,   -4,    0,      3,   0,      7.5f, 0,     -.05f,  0,     .00f }, // recovery
};

const HopKey SCURRY[HOP_KEYS] = {
	{ -5.5f, 6,     2,  .92f,   -8,    0,     -2,   0,      4,    0,      .35f, .5f,   -.05f }, // crouch
	{ -4,    8,    18, 1.06f,  -11,    4,     -6.5f,0,      9,    5,      .60f, .6f,    .04f }, // push
	{ -3,   10,    12, 1.18f,  -13,    7,    -17,   4,     13,    8,      .80f, .9f,    .02f },
	{ -3,   11,     0, 1.22f,  -13,   10,    -17.5f,8.5f,  13.5f, 8,      .80f, 1,      .00f }, // apex
	{ -2,   10,   -10, 1.12f,   -9,    9,    -13.5f,7,     12,    4,      .60f, .9f,   -.04f },
	{ -1,    9.5f,-22,  .98f,   -3,    5,      1,   2,      8.5f, 0,      .30f, .8f,    .04f }, // fore feet down
	{   .5f, 6.5f, -6,  .82f,    1,    0,      7,   0,      5.5f, 0,      .00f, .7f,   -.08f }, // hind feet down
	{ -2.5f, 6.5f,  4,  .94f,   -3.5f, 0,      2.5f,0,      7.5f, 0,      .15f, .6f,    .00f }, // recovery
};
// clang-format on
