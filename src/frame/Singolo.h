#pragma once

namespace sagomi {

/// A number stored in 32 bits that computes in 64: reading widens to double, assigning narrows.
/// The section members that a data file keeps as singles are of this type, so that every formula runs in
/// double precision on the stored values.
class Singolo {
public:
    constexpr Singolo() = default;
    constexpr Singolo(double valore)
        : valore_(static_cast<float>(valore)) {}          // NOLINT: conversion is the point
    constexpr operator double() const { return valore_; } // NOLINT: conversion is the point

    /// The stored 32 bits, for comparisons that the rules make in single precision.
    [[nodiscard]] constexpr float Stretto() const { return valore_; }

    constexpr Singolo& operator+=(double v) { return *this = valore_ + v; }
    constexpr Singolo& operator-=(double v) { return *this = valore_ - v; }
    constexpr Singolo& operator*=(double v) { return *this = valore_ * v; }
    constexpr Singolo& operator/=(double v) { return *this = valore_ / v; }

private:
    float valore_ = 0;
};

} // namespace sagomi
