// What whole steps cannot carry: the fractions are added up and paid out one step at a time.
#pragma once

#include <cmath>

namespace tracking {

/// The step to add to this tick's count for a sum of fractions that has reached a whole step either way: 1,
/// -1 or 0. It is taken off the sum. Never more than one a tick.
inline int paie(double& somme) {
    if (std::abs(somme) < 1)
        return 0;
    const int pas = somme > 0 ? 1 : -1;
    somme -= pas;
    return pas;
}

} // namespace tracking
