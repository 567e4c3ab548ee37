#include "essai.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "sky/temps_sideral.h"

namespace {

using base::cause;
using essais::attend_echec;
using essais::machine;

TEST(temps_sideral, ecoule_et_base) {
    EXPECT_NEAR(general::tempsecoule(12, 0, 0, 0), 43318.28, 0.005);
    EXPECT_NEAR(general::tempsecoule(0, 0, 1, 500) * 0.99726957, 1.5, 1e-12);
    EXPECT_EQ(general::tslbase(2, 20, 100), 660);
    EXPECT_EQ(general::tslbase(-2, 20, 0), -400) << "the sign of the degrees does not reach the minutes";
    EXPECT_EQ(general::tslbase(0.00625, 0, 0), 2) << "1.5 rounds to the even number";
    attend_echec(cause::depassement, [] { general::tslbase(1e8, 0, 0); });
}

TEST(temps_sideral, un_jour_ote_une_fois) {
    const machine m;
    for (auto* champ :
         {&frmcoord::txth, &frmcoord::txtmin, &frmcoord::txts, &frmconfig::txtdegre, &frmconfig::txtmin})
        champ->ecrit("");
    const struct {
        const char* t0;
        double tsl;
        int tslsec;
    } cas[] = {{"86399", 86399, 86399}, {"86400", 0, 0}, {"172801", 86401, 1}, {"-5", -5, -5}};
    for (const auto& c : cas) {
        frmcoord::txtessai.ecrit(c.t0);
        const double tsl = general::lit_tsl();
        EXPECT_EQ(tsl, c.tsl);
        general::fixe_tslsec(tsl);
        EXPECT_EQ(general::tslsec, c.tslsec);
    }
    general::fixe_tslsec(86399.5);
    EXPECT_EQ(general::tslsec, 0) << "the rounded value is folded, not the time";
    general::fixe_tslsec(2.5);
    EXPECT_EQ(general::tslsec, 2);
    frmcoord::txtms.ecrit("32768");
    attend_echec(cause::depassement, general::lit_tsl);
}

} // namespace
