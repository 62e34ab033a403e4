// The paint of eyes, and where they sit in the head.
#include "art/animals/eyes.h"

static const Colour PUPIL      = HexColour(0x1a0f14);
static const Colour PUPIL_GLOW = HexColour(0x7a4a2c); // light that gathers low in a wet eye
static const Colour EYE_WHITE  = {1, 1, 1};
static const Colour LID_SHADE  = HexColour(0xc8cede); // on the white, below the upper lid
static const float SHUT        = .99f;
static const float WIDEST      = .88f; // cosine of the smallest pupil
static const float AT_VIEWER   = .32f; // part of the gaze that goes out of the picture
// The window's light on the pupil, wherever it looks: up and to the left of its middle.
static const float SPARK_UP = .40f, SPARK_LEFT = .36f;
static const float SPARK_FROM = .945f, SPARK_TO = .965f; // cosines

namespace
{
struct EyePaint {
	Vec3 centre, gaze, up, spark;
	Colour lidColour, iris;
	bool coloured;
	float lid, pupil;

	Colour Open(Vec3 d, float height) const;
	Colour operator()(const SurfacePoint& at) const;
};

Colour EyePaint::Open(Vec3 d, float height) const
{
	float facing = Dot(d, gaze);
	Colour white = Mix(EYE_WHITE, LID_SHADE, Smoothstep(.55f, .95f, height));
	Colour inner = coloured ? iris : Mix(PUPIL, PUPIL_GLOW, Smoothstep(.05f, -.55f, height) * .6f);
	Colour c     = Mix(white, inner, Smoothstep(pupil - .02f, pupil + .04f, facing));
	if (coloured) {
		float core = pupil + (1 - pupil) * .60f;
		c          = Mix(c, PUPIL, Smoothstep(core - .02f, core + .03f, facing));
	}
	return Mix(c, EYE_WHITE, Smoothstep(SPARK_FROM, SPARK_TO, Dot(d, spark)));
}

Colour EyePaint::operator()(const SurfacePoint& at) const
{
	Vec3 d       = Normalize(at.position - centre);
	float height = Dot(d, up);
	if (lid >= SHUT) // a dark line at the lower third
		return Mix(InkOf(lidColour), lidColour, Smoothstep(.20f, .36f, std::fabs(height + .22f)));
	Colour c = Open(d, height);
	if (lid <= 0)
		return c;
	Colour edge = height < 1.2f - 2 * lid ? InkOf(lidColour) : lidColour;
	return Mix(c, edge, Smoothstep(.97f - 2 * lid, 1.03f - 2 * lid, height));
}
} // namespace

void AddEyes(Model& model, const HeadFrame& frame, Vec3 headHalf, const Eye& eye, Colour lidColour,
             int socket, const View& view, const Pose& pose)
{
	for (int side : {-1, 1}) {
		Vec3 at = frame.Point(headHalf.x * eye.forward, headHalf.y * eye.up,
		                      side * headHalf.z * eye.aside);
		if (eye.bulge > 0)
			model.Ball(at - frame.Along(eye.radius * .55f, eye.radius * .25f, side * .2f),
			           headHalf.y * eye.bulge, socket, 1.0f);
		Vec3 own    = Normalize(frame.Along(1, .05f, side * eye.lookAside));
		Vec3 gaze   = Normalize(Mix(own, view.Gaze(), AT_VIEWER));
		Vec3 right  = Transpose(TurnY(view.yaw)) * Vec3{1, 0, 0};
		Vec3 spark  = Normalize(gaze + Vec3{0, SPARK_UP, 0} - right * SPARK_LEFT);
		float pupil = std::min(WIDEST, eye.pupil + pose.wideEyes * .4f);
		Material material;
		material.eye   = pose.lid < SHUT; // a shut eye is shaded as skin, without the spark
		material.paint = EyePaint{at,
		                          gaze,
		                          frame.Along(0, 1, 0),
		                          spark,
		                          lidColour,
		                          HexColour(eye.iris),
		                          eye.iris != 0,
		                          pose.lid,
		                          pupil};
		float wide     = pose.wideEyes;
		Vec3 half      = {eye.radius * .8f, eye.radius * (1.12f + wide),
		                  eye.radius * (.97f + wide * .5f)};
		model.Ellipsoid(at, half, frame.axes, model.Add(material), 0);
	}
}
