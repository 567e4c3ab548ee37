// For tests of failures: within the life of an `echecs_leves`, a fatal failure is thrown as an `echec`.
#pragma once

#include "base/fatale.h"

#include <gtest/gtest.h>
#include <string>

namespace essais {

struct echec {
    base::cause cause;
    std::string detail;
};

class echecs_leves {
  public:
    echecs_leves()
        : avant_(base::installe_gestionnaire([](base::cause c, const std::string& d) {
              throw echec{c, d};
          })) {}
    ~echecs_leves() { base::installe_gestionnaire(avant_); }
    echecs_leves(const echecs_leves&) = delete;
    echecs_leves& operator=(const echecs_leves&) = delete;

  private:
    base::gestionnaire_fatal avant_;
};

/// Runs `f` and expects it to fail for the cause given; gives the detail of the message.
template <class F> std::string attend_echec(base::cause attendue, F&& f) {
    const echecs_leves garde;
    try {
        f();
    } catch (const echec& e) {
        EXPECT_EQ(base::libelle(e.cause), base::libelle(attendue));
        return e.detail;
    }
    ADD_FAILURE() << "no failure, where this one was due: " << base::libelle(attendue);
    return {};
}

} // namespace essais
