// Looks a curve up.
#include "art/sounds/curve.h"

#include "art/sounds/wave.h"

#include <cmath>

// The first point that lies after t, 0 or the count when t lies outside.
size_t Curve::After(double t) const
{
	size_t next = 0;
	while (next < points.size() && points[next].at < t)
		next++;
	return next;
}

// How far t lies between the two points around it, eased at both.
double Curve::Between(size_t next, double t) const
{
	const Point &a = points[next - 1], &b = points[next];
	return .5 - .5 * std::cos(TAU / 2 * (t - a.at) / (b.at - a.at));
}

double Curve::At(double t) const
{
	size_t next = After(t);
	if (next == 0)
		return points.front().value;
	if (next == points.size())
		return points.back().value;
	double a = points[next - 1].value, b = points[next].value;
	return a + (b - a) * Between(next, t);
}

double Curve::RatioAt(double t) const
{
	size_t next = After(t);
	if (next == 0)
		return points.front().value;
	if (next == points.size())
		return points.back().value;
	double a = points[next - 1].value, b = points[next].value;
	return a * std::pow(b / a, Between(next, t));
}

Curve Curve::operator*(double factor) const
{
	Curve scaled = *this;
	for (Point& p : scaled.points)
		p.value *= factor;
	return scaled;
}

bool Curve::IsZero() const
{
	for (const Point& p : points)
		if (p.value != 0)
			return false;
	return true;
}
