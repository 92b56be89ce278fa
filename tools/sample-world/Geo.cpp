#include "Geo.h"

#include <cmath>
#include <cstdlib>

#include "Output.h"

// Fused multiplications would change the last bit from one processor to the next.
#ifdef __clang__
#pragma STDC FP_CONTRACT OFF
#endif

namespace orlo::world {

namespace {

// Sine and arc sine are computed here, from the basic operations alone: those of the C library differ in the
// last bit from platform to platform, and one rounded mile would change the plan's bytes.
constexpr double Pi = 3.14159265358979323846;

// For angles up to a right angle.
double SeriesSine(double angle) {
    const double square = angle * angle;
    double term = angle, sum = angle;
    for (int n = 2; n <= 26; n += 2) {
        term = -term * square / (n * (n + 1));
        sum += term;
    }
    return sum;
}

// For angles up to half a turn either way.
double Sine(double angle) {
    if (angle > Pi / 2) return SeriesSine(Pi - angle);
    if (angle < -Pi / 2) return SeriesSine(-Pi - angle);
    return SeriesSine(angle);
}

double Cosine(double angle) {
    return Sine(Pi / 2 - std::fabs(angle));
}

// For values from 0 to 1.
double ArcSine(double value) {
    if (value >= 1) return Pi / 2;
    if (value > 0.7072) return Pi / 2 - ArcSine(std::sqrt(1 - value * value));
    double angle = value + value * value * value / 6;
    for (int i = 0; i < 4; ++i) angle -= (SeriesSine(angle) - value) / Cosine(angle);
    return angle;
}

double WholeMinutesToRadians(int angle) {
    return angle / 100 * Pi / (180 * 60);
}

}  // namespace

UnitVector ToUnitVector(int latitude, int longitude) {
    const double north = WholeMinutesToRadians(latitude), east = WholeMinutesToRadians(longitude);
    return {Cosine(north) * Cosine(east), Cosine(north) * Sine(east), Sine(north)};
}

double SquaredChord(const UnitVector& from, const UnitVector& to) {
    const double x = from.X - to.X, y = from.Y - to.Y, z = from.Z - to.Z;
    return x * x + y * y + z * z;
}

double SquaredChordOf(int distance) {
    const double half = Sine(distance * Pi / (180 * 60) / 2);
    return 4 * half * half;
}

int DistanceOf(double squaredChord) {
    return static_cast<int>(std::lrint(2 * ArcSine(std::sqrt(squaredChord) / 2) * 180 * 60 / Pi));
}

std::string CoordinateText(int angle, const char* letters) {
    const int size = std::abs(angle);
    return std::string(1, letters[angle < 0 ? 1 : 0]) + std::to_string(size / 6000) + "* " +
           PadNumber(size / 100 % 60, 2) + "." + PadNumber(size % 100, 2) + "'";
}

}  // namespace orlo::world
