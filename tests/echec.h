// For tests of failures: a fatal failure is thrown.
#pragma once

#include "base/fatale.h"

#include <gtest/gtest.h>
#include <string>

namespace essais {

struct echec {
    base::cause cause;
    std::string detail;
};

/// Runs `f` and expects it to fail for the cause given; gives the detail of the message.
template <class F> std::string attend_echec(base::cause attendue, F&& f) {
    const auto avant = base::installe_gestionnaire([](base::cause c, const std::string& d) {
        throw echec{c, d};
    });
    std::string detail;
    try {
        f();
        ADD_FAILURE() << "no failure, where this one was due: " << base::libelle(attendue);
    } catch (const echec& e) {
        EXPECT_EQ(base::libelle(e.cause), base::libelle(attendue));
        detail = e.detail;
    }
    base::installe_gestionnaire(avant);
    return detail;
}

} // namespace essais
