#include "bench/monture.h"

#include <cmath>

namespace banc {

double unite(double rapport, double pas) {
    const double secondes = 360.0 / (rapport * pas) * 3600.0 / 2.0;
    return std::isfinite(secondes) ? secondes : 0.0;
}

impulsions monture::compte() const {
    return {totaux_[0] - au_zero_[0], totaux_[1] - au_zero_[1], totaux_[2] - au_zero_[2],
            totaux_[3] - au_zero_[3]};
}

impulsions monture::total() const { return {totaux_[0], totaux_[1], totaux_[2], totaux_[3]}; }

// The net count is a whole number until the one multiplication, so a night of steps adds up no rounding.
angles monture::position(double unite_az, double unite_alt) const {
    const auto net = [this](std::size_t clair, std::size_t leve) {
        const std::uint64_t avance = totaux_[clair] - a_la_pose_[clair];
        const std::uint64_t recul = totaux_[leve] - a_la_pose_[leve];
        return static_cast<double>(static_cast<std::int64_t>(avance - recul));
    };
    return {pose_.az + net(0, 1) * unite_az, pose_.alt + net(2, 3) * unite_alt};
}

void monture::pose(double az, double alt) {
    pose_ = {az, alt};
    a_la_pose_ = totaux_;
}

double monture::cadence(axe a, std::int64_t maintenant_ns) {
    return a == axe::azimut ? cadence_az_.mesure(totaux_[0] + totaux_[1], maintenant_ns)
                            : cadence_alt_.mesure(totaux_[2] + totaux_[3], maintenant_ns);
}

} // namespace banc
