#include "essai.h"
#include "sky/math.h"

#include <cmath>

namespace {

using base::cause;
using essais::attend_echec;

TEST(math, angles) {
    EXPECT_EQ(math::radians(180), 3.14159265358979);
    EXPECT_NE(math::radians(180), M_PI);
    EXPECT_NEAR(math::sinusdeg(30), 0.5, 1e-14);
    EXPECT_NEAR(math::cosinusdeg(120), -0.5, 1e-14);
    EXPECT_EQ(math::adsecondes(5, 30.5), 19830);
    EXPECT_NEAR(math::anglehoraire(3600, 0), 15 * M_PI / 180, 1e-14);
    EXPECT_NEAR(math::anglehoraire(0, 3600), -15 * M_PI / 180, 1e-14);
    EXPECT_NEAR(math::anglehoraire(172800, 0), 4 * M_PI, 1e-12) << "not reduced to a turn";
}

TEST(math, inverses) {
    EXPECT_DOUBLE_EQ(math::arcsin(0.5), 0.5235987755982989);
    EXPECT_DOUBLE_EQ(math::arcsin(-0.5), -0.5235987755982989);
    EXPECT_NEAR(math::arccos(0.5), 1.0471975512, 1e-10);
    EXPECT_NEAR(math::arccos(-0.5), -1.0471975512, 1e-10) << "the arccosine less pi";
    EXPECT_EQ(math::arccos(1), 0);
    attend_echec(cause::division_par_zero, [] { math::arcsin(1); });
    attend_echec(cause::division_par_zero, [] { math::arcsin(-1); });
    attend_echec(cause::racine_negative, [] { math::arcsin(1.0000000001); });
    attend_echec(cause::division_par_zero, [] { math::arccos(0); });
    attend_echec(cause::racine_negative, [] { math::arccos(-1.0000000001); });
}

} // namespace
