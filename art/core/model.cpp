// The distance of each kind of shape, and the builders of models.
#include "art/core/model.h"

static const float NO_CUT = 1e8f; // beyond this a cutting plane is not set

static float SignOf(float x)
{
	return x > 0 ? 1.f : x < 0 ? -1.f : 0.f;
}

static float RoundConeDistance(const Shape& s, Vec3 p)
{
	Vec3 pa = p - s.a;
	float y = Dot(pa, s.axis), z = y - s.axisLength2;
	Vec3 t   = pa * s.axisLength2 - s.axis * y;
	float x2 = Dot(t, t), y2 = y * y * s.axisLength2, z2 = z * z * s.axisLength2;
	float k   = SignOf(s.radiusDrop) * s.radiusDrop * s.radiusDrop * x2;
	float inv = 1 / s.axisLength2;
	if (SignOf(z) * s.slope2 * z2 > k)
		return std::sqrt(x2 + z2) * inv - s.r2;
	if (SignOf(y) * s.slope2 * y2 < k)
		return std::sqrt(x2 + y2) * inv - s.r1;
	return (std::sqrt(x2 * s.slope2 * inv) + y * s.radiusDrop) * inv - s.r1;
}

static float EllipsoidDistance(const Shape& s, Vec3 p)
{
	Vec3 l   = s.toLocal * (p - s.a);
	Vec3 u   = {l.x / s.half.x, l.y / s.half.y, l.z / s.half.z};
	Vec3 v   = {u.x / s.half.x, u.y / s.half.y, u.z / s.half.z};
	float k0 = Length(u), k1 = Length(v);
	if (k1 < 1e-6f)
		return -std::min(s.half.x, std::min(s.half.y, s.half.z));
	return k0 * (k0 - 1) / k1;
}

static float BoxDistance(const Shape& s, Vec3 p)
{
	Vec3 l       = s.toLocal * (p - s.a);
	Vec3 d       = {std::fabs(l.x) - s.half.x + s.rounding, std::fabs(l.y) - s.half.y + s.rounding,
	                std::fabs(l.z) - s.half.z + s.rounding};
	Vec3 outside = {std::max(d.x, 0.f), std::max(d.y, 0.f), std::max(d.z, 0.f)};
	return Length(outside) + std::min(std::max(d.x, std::max(d.y, d.z)), 0.f) - s.rounding;
}

static float CylinderDistance(const Shape& s, Vec3 p)
{
	Vec3 l       = s.toLocal * (p - s.a);
	float along  = l.y / s.r2;
	float radius = s.r1 + s.bulge * (1 - along * along);
	float dx     = std::sqrt(l.x * l.x + l.z * l.z) - radius + s.rounding;
	float dy     = std::fabs(l.y) - s.r2 + s.rounding;
	float ox = std::max(dx, 0.f), oy = std::max(dy, 0.f);
	return std::min(std::max(dx, dy), 0.f) + std::sqrt(ox * ox + oy * oy) - s.rounding;
}

static float RingDistance(const Shape& s, Vec3 p)
{
	Vec3 l  = s.toLocal * (p - s.a);
	float q = std::sqrt(l.x * l.x + l.z * l.z) - s.r1;
	return std::sqrt(q * q + l.y * l.y) - s.r2;
}

static float BodyDistance(const Shape& s, Vec3 p)
{
	switch (s.kind) {
	case ShapeKind::RoundCone:
		return RoundConeDistance(s, p);
	case ShapeKind::Ellipsoid:
		return EllipsoidDistance(s, p);
	case ShapeKind::Box:
		return BoxDistance(s, p);
	case ShapeKind::Cylinder:
		return CylinderDistance(s, p);
	case ShapeKind::Ring:
		return RingDistance(s, p);
	}
	return 1e9f;
}

float DistanceTo(const Shape& s, Vec3 p)
{
	float d = BodyDistance(s, p);
	if (s.bumps > 0 && d < s.bumps * 2) // noise is dear: only near the surface
		d += s.bumps * (LayeredNoise(p * s.bumpScale, 3) - .5f) * 2;
	if (s.cutAbove < NO_CUT)
		d = std::max(d, p.y - s.cutAbove);
	if (s.cutBelow > -NO_CUT)
		d = std::max(d, s.cutBelow - p.y);
	return d;
}

int Model::Add(const Material& m)
{
	materials.push_back(m);
	return (int)materials.size() - 1;
}

int Model::Plain(Colour colour, float gloss)
{
	Material m;
	m.colour = colour;
	m.gloss  = gloss;
	return Add(m);
}

int Model::Plain(uint32_t hex, float gloss)
{
	return Plain(HexColour(hex), gloss);
}

int Model::Painted(Paint paint, float gloss)
{
	Material m;
	m.paint = std::move(paint);
	m.gloss = gloss;
	return Add(m);
}

int Model::Glowing(uint32_t hex, float glow)
{
	Material m;
	m.colour = HexColour(hex);
	m.glow   = glow;
	m.gloss  = .6f;
	return Add(m);
}

Shape& Model::RoundCone(Vec3 a, Vec3 b, float ra, float rb, int material, float blend)
{
	// When one end ball swallows the other the formula breaks down: pull the small end out.
	float drop = std::fabs(ra - rb);
	if (Length(b - a) < drop + 1e-3f) {
		Vec3 direction = Normalize(b - a + Vec3{1e-4f, 0, 0}) * (drop + .01f);
		if (ra >= rb)
			b = a + direction;
		else
			a = b - direction;
	}
	Shape s;
	s.kind = ShapeKind::RoundCone;
	s.a    = a;
	s.b    = b;
	s.r1   = ra;
	s.r2   = rb;
	return Push(s, material, blend);
}

Shape& Model::Ball(Vec3 centre, float r, int material, float blend)
{
	return Ellipsoid(centre, {r, r, r}, Mat3(), material, blend);
}

Shape& Model::Ellipsoid(Vec3 centre, Vec3 half, const Mat3& axes, int material, float blend)
{
	Shape s;
	s.kind    = ShapeKind::Ellipsoid;
	s.a       = centre;
	s.half    = half;
	s.toLocal = Transpose(axes);
	return Push(s, material, blend);
}

Shape& Model::Box(Vec3 centre, Vec3 half, const Mat3& axes, float rounding, int material,
                  float blend)
{
	Shape s;
	s.kind     = ShapeKind::Box;
	s.a        = centre;
	s.half     = half;
	s.toLocal  = Transpose(axes);
	s.rounding = rounding;
	return Push(s, material, blend);
}

Shape& Model::Cylinder(Vec3 centre, float r, float halfHeight, const Mat3& axes, float rounding,
                       int material, float blend)
{
	Shape s;
	s.kind     = ShapeKind::Cylinder;
	s.a        = centre;
	s.r1       = r;
	s.r2       = halfHeight;
	s.toLocal  = Transpose(axes);
	s.rounding = rounding;
	return Push(s, material, blend);
}

Shape& Model::Ring(Vec3 centre, float r, float tube, const Mat3& axes, int material, float blend)
{
	Shape s;
	s.kind    = ShapeKind::Ring;
	s.a       = centre;
	s.r1      = r;
	s.r2      = tube;
	s.toLocal = Transpose(axes);
	return Push(s, material, blend);
}

static Vec3 BezierPoint(Vec3 p0, Vec3 p1, Vec3 p2, Vec3 p3, float t)
{
	float u = 1 - t;
	return p0 * (u * u * u) + p1 * (3 * u * u * t) + p2 * (3 * u * t * t) + p3 * (t * t * t);
}

void Model::Tube(Vec3 p0, Vec3 p1, Vec3 p2, Vec3 p3, float r0, float r1, int pieces, int material,
                 float firstBlend, float blend)
{
	for (int i = 0; i < pieces; i++) {
		float t0 = i / (float)pieces, t1 = (i + 1) / (float)pieces;
		RoundCone(BezierPoint(p0, p1, p2, p3, t0), BezierPoint(p0, p1, p2, p3, t1), Mix(r0, r1, t0),
		          Mix(r0, r1, t1), material, i ? blend : firstBlend);
	}
}

void Model::Scale(float factor)
{
	for (Shape& s : shapes) {
		s.a    = s.a * factor;
		s.b    = s.b * factor;
		s.half = s.half * factor;
		s.r1 *= factor;
		s.r2 *= factor;
		s.blend *= factor;
		s.rounding *= factor;
		s.bulge *= factor;
		s.bumps *= factor;
		s.bumpScale /= factor;
		if (s.cutAbove < NO_CUT)
			s.cutAbove *= factor;
		if (s.cutBelow > -NO_CUT)
			s.cutBelow *= factor;
	}
}

void Model::Prepare()
{
	for (Shape& s : shapes) {
		s.boundCentre = s.a;
		switch (s.kind) {
		case ShapeKind::RoundCone:
			s.axis        = s.b - s.a;
			s.axisLength2 = Dot(s.axis, s.axis);
			s.radiusDrop  = s.r1 - s.r2;
			s.slope2      = s.axisLength2 - s.radiusDrop * s.radiusDrop;
			s.boundCentre = (s.a + s.b) * .5f;
			s.boundRadius = std::sqrt(s.axisLength2) * .5f + std::max(s.r1, s.r2);
			break;
		case ShapeKind::Ellipsoid:
			s.boundRadius = std::max(s.half.x, std::max(s.half.y, s.half.z));
			break;
		case ShapeKind::Box:
			s.boundRadius = Length(s.half);
			break;
		case ShapeKind::Cylinder:
			s.boundRadius = std::hypot(s.r1 + s.bulge, s.r2);
			break;
		case ShapeKind::Ring:
			s.boundRadius = s.r1 + s.r2;
			break;
		}
		s.boundRadius += s.bumps;
	}
}

Shape& Model::Push(Shape& s, int material, float blend)
{
	s.material = material;
	s.blend    = blend;
	shapes.push_back(s);
	return shapes.back();
}
