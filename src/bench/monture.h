// The mount on the bench: what the two motors make of the bytes on the data register.
#pragma once

#include "bench/cadence.h"
#include "seam/port.h"

#include <array>
#include <cstdint>

namespace banc {

enum class axe { azimut, altitude };

/// Rising edges by axis and by the value of the direction line at the edge.
struct impulsions {
    std::uint64_t az0 = 0, az8 = 0, alt0 = 0, alt2 = 0;
    bool operator==(const impulsions&) const = default;
};

/// Axis angles in arcseconds, not folded.
struct angles {
    double az = 0.0, alt = 0.0;
};

/// Arcseconds of one step: (360 / (rapport x pas)) x 3600 / 2, with the reduction ratio and the motor's steps
/// a turn, two half-steps each. 0 if that is no finite number.
double unite(double rapport, double pas);

/// A mount steps on each rising edge of a step line, in the direction that stands in the same byte, whatever
/// the program believes. All lines are low before the first byte.
class monture {
  public:
    /// The byte now on the data register. The hot path of every pulse.
    void recoit(std::uint8_t donnees) {
        const unsigned lignes = donnees;
        const unsigned montee = lignes & ~lignes_;
        lignes_ = lignes;
        if (montee & plateforme::ligne_pas_az)
            ++totaux_[(lignes & plateforme::ligne_sens_az) ? 1 : 0];
        if (montee & plateforme::ligne_pas_alt)
            ++totaux_[(lignes & plateforme::ligne_sens_alt) ? 3 : 2];
    }

    /// Edges since the start or the last `zero`.
    impulsions compte() const;
    /// Clears those counts; neither the lines nor the angles move by it.
    void zero() { au_zero_ = totaux_; }
    /// Edges since the start.
    impulsions total() const;

    /// Axis angles: those of the last `pose` (0 before) plus the net edges since, at direction 0 less at
    /// direction set, each of `unite_az`, `unite_alt` arcseconds.
    angles position(double unite_az, double unite_alt) const;
    /// Turns the mount by hand: it stands at these angles now, in arcseconds.
    void pose(double az, double alt);

    /// Pulses per second of an axis in both directions, for display; see `cadence::mesure`.
    double cadence(axe a, std::int64_t maintenant_ns);

  private:
    using comptes = std::array<std::uint64_t, 4>; // az0, az8, alt0, alt2

    unsigned lignes_ = 0;
    comptes totaux_{};
    comptes au_zero_{};
    comptes a_la_pose_{};
    angles pose_;
    banc::cadence cadence_az_, cadence_alt_;
};

} // namespace banc
