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

/// A signed integer of type T. A conversion whose result does not fit is fatal (`depassement`), and none that
/// could fail is made without saying where the value comes from. Sums and products are plain integers of 64
/// bits, and go back into a checked one in the same way.
template <std::signed_integral T> class entier {
  public:
    using type = T;
    static constexpr T minimum = std::numeric_limits<T>::min();
    static constexpr T maximum = std::numeric_limits<T>::max();

    constexpr entier() = default;

    /// From a type whose values all fit.
    template <std::integral U>
    requires(!std::same_as<U, bool> && std::in_range<T>(std::numeric_limits<U>::min()) &&
             std::in_range<T>(std::numeric_limits<U>::max())) constexpr entier(U v)
        : v_(static_cast<T>(v)) {}

    /// From a literal, which the compiler checks.
    template <std::integral U>
    requires(!std::same_as<U, bool> &&
             !(std::in_range<T>(std::numeric_limits<U>::min()) &&
               std::in_range<T>(std::numeric_limits<U>::max()))) consteval entier(U v)
        : v_(retient(v, "constante")) {}

    /// From any other integer; `ou` says where it was read, for the message.
    template <std::integral U>
    requires(!std::same_as<U, bool>) constexpr entier(U v, const lieu& ou) : v_(retient(v, ou)) {}

    /// From a real number, rounded with ties to the even number.
    entier(double x, const lieu& ou) : v_(retient_reel(x, ou)) {}

    template <std::signed_integral U>
    requires(sizeof(U) < sizeof(T)) constexpr entier(entier<U> autre) : v_(autre.valeur()) {}
    template <std::signed_integral U>
    constexpr entier(entier<U> autre, const lieu& ou) : v_(retient(autre.valeur(), ou)) {}

    constexpr T valeur() const { return v_; }
    constexpr double reel() const { return static_cast<double>(v_); }

  private:
    template <std::integral U> static constexpr T retient(U v, const lieu& ou) {
        if (!std::in_range<T>(v))
            deborde(static_cast<double>(v), ou, bits);
        return static_cast<T>(v);
    }
    static T retient_reel(double x, const lieu& ou) {
        const double r = arrondi(x);
        if (!(r >= static_cast<double>(minimum) && r <= static_cast<double>(maximum)))
            deborde(x, ou, bits);
        return static_cast<T>(r);
    }
    static constexpr int bits = 8 * sizeof(T);

    T v_ = 0;
};

using entier16 = entier<std::int16_t>;
using entier32 = entier<std::int32_t>;

template <std::integral T> constexpr std::int64_t large(T v) { return v; }
template <std::signed_integral T> constexpr std::int64_t large(entier<T> v) { return v.valeur(); }

/// Two numbers of which one at least is a checked integer.
template <class A, class B>
concept operandes = !(std::integral<A> && std::integral<B>)&&requires(A a, B b) {
    large(a);
    large(b);
};

template <class A, class B>
requires operandes<A, B>
constexpr std::int64_t operator+(A a, B b) { return large(a) + large(b); }
template <class A, class B>
requires operandes<A, B>
constexpr std::int64_t operator-(A a, B b) { return large(a) - large(b); }
template <class A, class B>
requires(operandes<A, B> && sizeof(A) <= 4 && sizeof(B) <= 4) constexpr std::int64_t operator*(A a, B b) {
    return large(a) * large(b);
}
template <class A, class B>
requires operandes<A, B>
constexpr bool operator==(A a, B b) { return large(a) == large(b); }
template <class A, class B>
requires operandes<A, B>
constexpr auto operator<=>(A a, B b) { return large(a) <=> large(b); }

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
