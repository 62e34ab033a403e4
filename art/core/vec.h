// Vectors, rotations, smooth steps and seeded noise: pure arithmetic, the same on every run.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

constexpr float PI = 3.14159265f;

constexpr float Radians(float degrees)
{
	return degrees * PI / 180;
}

struct Vec3 {
	float x = 0, y = 0, z = 0;
};

constexpr Vec3 operator+(Vec3 a, Vec3 b)
{
	return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vec3 operator-(Vec3 a, Vec3 b)
{
	return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vec3 operator-(Vec3 a)
{
	return {-a.x, -a.y, -a.z};
}
constexpr Vec3 operator*(Vec3 a, float s)
{
	return {a.x * s, a.y * s, a.z * s};
}
constexpr Vec3 operator*(Vec3 a, Vec3 b)
{
	return {a.x * b.x, a.y * b.y, a.z * b.z};
}

constexpr float Dot(Vec3 a, Vec3 b)
{
	return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr Vec3 Cross(Vec3 a, Vec3 b)
{
	return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline float Length(Vec3 a)
{
	return std::sqrt(Dot(a, a));
}
// A vector shorter than 1e-9 comes back as it is.
inline Vec3 Normalize(Vec3 a)
{
	float length = Length(a);
	return length > 1e-9f ? a * (1 / length) : a;
}

constexpr float Clamp(float v, float low, float high)
{
	return v < low ? low : v > high ? high : v;
}
constexpr float Clamp01(float v)
{
	return v < 0 ? 0 : v > 1 ? 1 : v;
}
constexpr float Mix(float a, float b, float t)
{
	return a * (1 - t) + b * t;
}
constexpr Vec3 Mix(Vec3 a, Vec3 b, float t)
{
	return a * (1 - t) + b * t;
}
// 0 at `from`, 1 at `to`; works with from > to as well.
constexpr float Smoothstep(float from, float to, float x)
{
	float t = Clamp01((x - from) / (to - from));
	return t * t * (3 - 2 * t);
}

// A 3x3 matrix by rows. Rotations are used as axes: axes * local = model.
struct Mat3 {
	Vec3 row0{1, 0, 0}, row1{0, 1, 0}, row2{0, 0, 1};
	Vec3 operator*(Vec3 p) const { return {Dot(row0, p), Dot(row1, p), Dot(row2, p)}; }
};

inline Mat3 Transpose(const Mat3& m)
{
	return {{m.row0.x, m.row1.x, m.row2.x},
	        {m.row0.y, m.row1.y, m.row2.y},
	        {m.row0.z, m.row1.z, m.row2.z}};
}
inline Mat3 operator*(const Mat3& a, const Mat3& b)
{
	Mat3 t = Transpose(b);
	return {{Dot(a.row0, t.row0), Dot(a.row0, t.row1), Dot(a.row0, t.row2)},
	        {Dot(a.row1, t.row0), Dot(a.row1, t.row1), Dot(a.row1, t.row2)},
	        {Dot(a.row2, t.row0), Dot(a.row2, t.row1), Dot(a.row2, t.row2)}};
}
inline Mat3 TurnX(float angle)
{
	float c = std::cos(angle), s = std::sin(angle);
	return {{1, 0, 0}, {0, c, -s}, {0, s, c}};
}
inline Mat3 TurnY(float angle)
{
	float c = std::cos(angle), s = std::sin(angle);
	return {{c, 0, s}, {0, 1, 0}, {-s, 0, c}};
}
inline Mat3 TurnZ(float angle)
{
	float c = std::cos(angle), s = std::sin(angle);
	return {{c, -s, 0}, {s, c, 0}, {0, 0, 1}};
}
// The rotation whose columns are three given perpendicular directions.
inline Mat3 AxesFrom(Vec3 x, Vec3 y, Vec3 z)
{
	return Transpose({x, y, z});
}
// Turns a point in the x-y plane about a centre (bodies rear up and tip this way).
inline Vec3 Swing(Vec3 p, Vec3 centre, float angle)
{
	return centre + TurnZ(angle) * (p - centre);
}

using Colour = Vec3; // red, green, blue, 0..1

constexpr Colour HexColour(uint32_t hex)
{
	return {((hex >> 16) & 255) / 255.f, ((hex >> 8) & 255) / 255.f, (hex & 255) / 255.f};
}
constexpr Colour ClampColour(Colour c)
{
	return {Clamp01(c.x), Clamp01(c.y), Clamp01(c.z)};
}

// Shadow and highlight shift hue (cooler, warmer): a ramp that only darkens looks dead.
constexpr float Luma(Colour c)
{
	return .3f * c.x + .59f * c.y + .11f * c.z;
}
constexpr Colour Saturated(Colour c, float amount)
{
	float l = Luma(c);
	return Mix(Colour{l, l, l}, c, amount);
}
constexpr Colour ShadowOf(Colour c)
{
	return ClampColour(Saturated(c, 1.18f) * Colour{.56f, .50f, .66f});
}
constexpr Colour HighlightOf(Colour c)
{
	return Mix(c, Colour{1, .97f, .86f}, .34f);
}
// The dark tint of a colour that outlines are drawn in; never black.
constexpr Colour InkOf(Colour c)
{
	return ClampColour(Saturated(c, 1.25f) * Colour{.34f, .28f, .36f} + Colour{.02f, .01f, .05f});
}
constexpr Colour Lighter(Colour c, float k)
{
	return Mix(c, Colour{1, .97f, .88f}, k);
}
constexpr Colour Darker(Colour c, float k)
{
	return Mix(c, ShadowOf(c), k);
}

constexpr uint32_t Scramble(uint32_t x)
{
	x ^= x >> 16;
	x *= 0x7feb352d;
	x ^= x >> 15;
	x *= 0x846ca68b;
	x ^= x >> 16;
	return x;
}
// 0..1, the same for the same three numbers.
constexpr float Hash01(int x, int y, int z)
{
	uint32_t mixed = (uint32_t)x * 73856093u ^ (uint32_t)y * 19349663u ^ (uint32_t)z * 83492791u;
	return (Scramble(mixed) & 0xffffff) / 16777216.f;
}
// Value noise of period 1 per unit, 0..1.
float Noise(Vec3 p);
// `layers` octaves of Noise, each at half the weight and twice the frequency, 0..1.
float LayeredNoise(Vec3 p, int layers);
inline float LayeredNoise(float x, float y, int layers, float slice = 0)
{
	return LayeredNoise(Vec3{x, y, slice}, layers);
}

// Seeded generator of one drawing: the same sequence for the same seed.
class Random
{
public:
	explicit Random(uint32_t seed) : state(seed * 2654435761u + 1) {}
	float Next01(); // 0 <= result < 1
	float Range(float low, float high) { return low + (high - low) * Next01(); }
	int Below(int count) { return (int)(Next01() * count) % count; }

private:
	uint32_t state;
};
