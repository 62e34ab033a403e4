// A value that moves in time: pitch, loudness or a formant over the course of a sound.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

// Points of {position, value} with positions rising, usually 0..1 of the sound. Smooth between
// points, flat outside of them.
class Curve
{
public:
	struct Point {
		double at, value;
	};

	Curve(double value = 0) : points{{0, value}} {}
	Curve(std::initializer_list<Point> points) : points(points) {}

	double At(double t) const;
	// The same in steps of equal ratio: for frequencies. All values above 0.
	double RatioAt(double t) const;
	Curve operator*(double factor) const;
	bool IsZero() const;

	std::vector<Point> points;

private:
	size_t After(double t) const;
	double Between(size_t next, double t) const;
};
