// Numbers drawn from a start value: the same one gives the same run on every machine.
#pragma once

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <random>

namespace singe {

class hasard {
  public:
    explicit hasard(std::uint64_t graine) : tirage_(graine) {}

    /// A whole number from `bas` to `haut`, both included.
    int entre(int bas, int haut) {
        const auto etendue = static_cast<std::uint64_t>(std::int64_t{haut} - bas + 1);
        return static_cast<int>(bas + static_cast<std::int64_t>(tirage_() % etendue));
    }
    /// True once in `n` draws.
    bool une_fois_sur(int n) { return entre(1, n) == 1; }
    template <class Table> const auto& parmi(const Table& t) {
        return *(std::begin(t) + entre(0, static_cast<int>(std::size(t)) - 1));
    }
    /// A number between two positive ones, each order of magnitude as likely.
    double ordre(double bas, double haut) { return bas * std::pow(haut / bas, entre(0, 1000) / 1000.0); }

  private:
    std::mt19937_64 tirage_;
};

} // namespace singe
