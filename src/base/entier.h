// Checked integers of 16 and 32 bits, and the 16-bit Boolean. Whatever does not fit is fatal, never wrapped.
#pragma once

#include "base/fatale.h"

#include <cmath>
#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

namespace base {

/// Rounds to a whole number, ties to the even one: 2.5 gives 2, 3.5 gives 4. Not finite stays so.
inline double arrondi(double x) { return std::nearbyint(x); }

/// Ends the run (`depassement`): x has no place in so many bits.
[[noreturn]] void deborde(double x, const lieu& ou, int bits);

/// A signed integer of type T. Conversions and arithmetic whose result does not fit are fatal
/// (`depassement`); a zero divisor is fatal too. Mixing widths gives the wider one; narrowing must be spelled
/// out.
template <std::signed_integral T> class entier {
  public:
    using type = T;
    static constexpr T minimum = std::numeric_limits<T>::min();
    static constexpr T maximum = std::numeric_limits<T>::max();

    constexpr entier() = default;

    template <std::integral U>
    requires(!std::same_as<U, bool>) constexpr entier(U v) : v_(retient(v)) {}

    /// From a real number, rounded with ties to the even number. `ou` says where it was read, for
    /// the message.
    explicit entier(double x, const lieu& ou = {}) : v_(retient_reel(x, ou)) {}

    template <std::signed_integral U>
    constexpr explicit(sizeof(U) > sizeof(T)) entier(entier<U> autre) : v_(retient(autre.valeur())) {}

    constexpr T valeur() const { return v_; }
    constexpr double reel() const { return static_cast<double>(v_); }

    friend constexpr entier operator+(entier a, entier b) { return entier{std::int64_t{a.v_} + b.v_}; }
    friend constexpr entier operator-(entier a, entier b) { return entier{std::int64_t{a.v_} - b.v_}; }
    friend constexpr entier operator*(entier a, entier b) { return entier{std::int64_t{a.v_} * b.v_}; }
    friend constexpr entier operator/(entier a, entier b) {
        b.refuse_zero();
        return entier{std::int64_t{a.v_} / b.v_};
    }
    /// Remainder with the sign of the dividend.
    friend constexpr entier operator%(entier a, entier b) {
        b.refuse_zero();
        return entier{std::int64_t{a.v_} % b.v_};
    }
    constexpr entier operator-() const { return entier{-std::int64_t{v_}}; }
    constexpr entier& operator+=(entier b) { return *this = *this + b; }
    constexpr entier& operator-=(entier b) { return *this = *this - b; }
    constexpr entier& operator++() { return *this += entier{1}; }

    friend constexpr bool operator==(entier a, entier b) { return a.v_ == b.v_; }
    friend constexpr auto operator<=>(entier a, entier b) { return a.v_ <=> b.v_; }

  private:
    template <std::integral U> static constexpr T retient(U v) {
        if (!std::in_range<T>(v))
            deborde(static_cast<double>(v), {}, bits);
        return static_cast<T>(v);
    }
    static T retient_reel(double x, const lieu& ou) {
        const double r = arrondi(x);
        if (!(r >= static_cast<double>(minimum) && r <= static_cast<double>(maximum)))
            deborde(x, ou, bits);
        return static_cast<T>(r);
    }
    static constexpr int bits = 8 * sizeof(T);
    constexpr void refuse_zero() const {
        if (v_ == 0)
            fatale(cause::division_par_zero, "division d'entiers");
    }

    T v_ = 0;
};

using entier16 = entier<std::int16_t>;
using entier32 = entier<std::int32_t>;

/// A Boolean kept in 16 bits: -1 true, 0 false.
class booleen16 {
  public:
    constexpr booleen16() = default;
    constexpr booleen16(bool v) : v_(v) {}
    constexpr explicit operator bool() const { return v_; }
    constexpr int valeur() const { return v_ ? -1 : 0; }
    friend constexpr bool operator==(booleen16 a, booleen16 b) { return a.v_ == b.v_; }

  private:
    bool v_ = false;
};

} // namespace base
