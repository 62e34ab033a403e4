// The Fourier transform of windows of sound.
#include "art/sounds/spectrum.h"

#include <algorithm>
#include <cmath>
#include <complex>

using Value = std::complex<double>;

static const size_t CENTRE_SIZE = 2048;

// In place; the size is a power of two.
static void Transform(std::vector<Value>& data)
{
	size_t size = data.size();
	for (size_t i = 1, j = 0; i < size; i++) {
		size_t bit = size >> 1;
		for (; j & bit; bit >>= 1)
			j ^= bit;
		j ^= bit;
		if (i < j)
			std::swap(data[i], data[j]);
	}
	for (size_t length = 2; length <= size; length *= 2) {
		Value turn = std::polar(1.0, -TAU / length);
		for (size_t from = 0; from < size; from += length) {
			Value factor = 1;
			for (size_t k = from; k < from + length / 2; k++) {
				Value even = data[k], odd = data[k + length / 2] * factor;
				data[k]              = even + odd;
				data[k + length / 2] = even - odd;
				factor *= turn;
			}
		}
	}
}

std::vector<double> PowerSpectrum(const Wave& wave, long middle, size_t size)
{
	std::vector<Value> data(size);
	for (size_t i = 0; i < size; i++) {
		long at = middle - (long)size / 2 + (long)i;
		if (at >= 0 && at < (long)wave.size())
			data[i] = wave[at] * (.5 - .5 * std::cos(TAU * i / size));
	}
	Transform(data);
	std::vector<double> powers(size / 2);
	for (size_t i = 0; i < powers.size(); i++)
		powers[i] = std::norm(data[i]);
	return powers;
}

double SpectralCentre(const Sound& sound)
{
	double sum = 0, weighted = 0;
	for (const Wave* side : {&sound.left, &sound.right})
		for (size_t at = 0; at < side->size(); at += CENTRE_SIZE / 2) {
			std::vector<double> powers = PowerSpectrum(*side, (long)at, CENTRE_SIZE);
			for (size_t i = 0; i < powers.size(); i++) {
				sum += powers[i];
				weighted += powers[i] * i * SAMPLE_RATE / CENTRE_SIZE;
			}
		}
	return weighted / std::max(1e-12, sum);
}
