#include "drive/raquette.h"

#include "echec.h"
#include "essai_virtuel.h"
#include "piloting/frmraquette_champs.h"
#include "platform/plateforme.h"

using namespace cmd_moteur;
using base::cause;
using essais::attend_echec;

namespace {

// Writes down every access, in order: L888 a read, E888=5 a write.
class port_note final : public plateforme::port {
  public:
    explicit port_note(banc::port_simule& p) : port_(p) {}
    void ecrit(int adresse, std::uint8_t valeur) override {
        journal += "E" + std::to_string(adresse) + "=" + std::to_string(valeur) + " ";
        port_.ecrit(adresse, valeur);
    }
    std::uint8_t lit(int adresse) override {
        journal += "L" + std::to_string(adresse) + " ";
        return port_.lit(adresse);
    }
    std::string journal;

  private:
    banc::port_simule& port_;
};

class Raquette : public essais::Virtuel {
  protected:
    Raquette() {
        plateforme::courante.port = &note;
        vitessemanu = {833338, 166666, 33334, 833338, 166666, 33334};
        frmraquette::fiche.charge();
        slotazl = 11;
        slotazm = 12;
        slotazr = 13;
        slotaltl = 14;
        slotaltm = 15;
        slotaltr = 16;
        plateforme::Out32(plateforme::registre_controle, 11);
        note.journal.clear();
    }
    void presse(int code) { ASSERT_TRUE(port.presente(code)); }
    void lache_apres(std::int64_t ns) {
        boucle.programme(ns, "", [this] { ASSERT_TRUE(port.presente(11)); });
    }
    port_note note{port};
};

} // namespace

TEST_F(Raquette, EveryKeyHasItsAxisSpeedAndDirection) {
    const struct {
        int code, pas, tempo, coche, decoche;
    } cas[] = {
        {2, 1, 16, 2, 0},  {3, 1, 15, 2, 0},   {10, 1, 14, 2, 0},  {18, 1, 16, 0, 2},
        {19, 1, 15, 0, 2}, {26, 1, 14, 0, 2},  {9, 4, 12, 8, 0},   {13, 4, 13, 8, 0},
        {15, 4, 11, 8, 0}, {137, 4, 12, 0, 8}, {141, 4, 13, 0, 8}, {143, 4, 11, 0, 8},
    };
    altplus = 2;
    azplus = 8;
    for (const bool coche : {false, true})
        for (const auto& c : cas) {
            SCOPED_TRACE(c.code);
            const bool az = c.pas == 4;
            (az ? frmraquette::chkaz : frmraquette::chkalt).coche(coche);
            (az ? frmraquette::chkalt : frmraquette::chkaz).coche(!coche);
            compteaz = comptealt = 0;
            presse(c.code);
            lache_apres(1); // in the first step's first yield
            scruteraquette();
            const int sens = coche ? c.coche : c.decoche;
            EXPECT_EQ(codepaddle, c.code);
            EXPECT_EQ(bitsens, sens);
            EXPECT_EQ(bitpas, c.pas);
            EXPECT_EQ(tempopaddle, c.tempo);
            EXPECT_EQ(baselinepaddle, sens + c.pas);
            const int compte = sens == 0 ? -1 : 1; // the plus direction is the raised line
            EXPECT_EQ(static_cast<bool>(sensplus), compte > 0);
            EXPECT_EQ(compteaz, az ? compte : 0);
            EXPECT_EQ(comptealt, az ? 0 : compte);
        }
    EXPECT_EQ(pasencodeaz, 12);
    EXPECT_EQ(pasencodealt, 12);
}

TEST_F(Raquette, PortIsReadAnewBeforeAndAfterEachStepDataFirst) {
    presse(137);
    boucle.programme(2 * (12 + 1) * 30 + 1, "", [this] { presse(11); });
    scruteraquette();
    EXPECT_EQ(note.journal, "L888 L890 L888 L890 E888=8 E888=12 L888 L890 E888=8 E888=12 L888 L890 ");
    EXPECT_EQ(jeucourantaz, 2);
    note.journal.clear();
    scruteraquette();
    EXPECT_EQ(note.journal, "L888 L890 ") << "no key: nothing is written";
    EXPECT_EQ(jeucourantaz, 2) << "only a press clears it";
}

TEST_F(Raquette, OnlyAKeyAsksForItsBox) {
    frmraquette::fiche.decharge();
    for (const int code : {11, 255, 12}) {
        presse(code);
        scruteraquette();
        EXPECT_FALSE(frmraquette::fiche.est_charge()) << code;
    }
    presse(9);
    lache_apres(1);
    scruteraquette();
    EXPECT_TRUE(frmraquette::fiche.est_charge());
}

TEST_F(Raquette, AKeyGoneBetweenScanAndLoopMakesNoStep) {
    codepaddle = 13;
    jeucourantaz = 5;
    presse(11);
    paddleaz();
    EXPECT_EQ(note.journal, "L888 L890 ");
    EXPECT_EQ(jeucourantaz, 0) << "cleared when a loop starts";
    EXPECT_EQ(pasencodeaz, 0);
}

// A motion started during a press changes the bits: they act at the next use, and the baseline follows what
// is driven.
TEST_F(Raquette, BitsAreReadAtEachUse) {
    presse(2);
    boucle.programme(1, "", [] {
        bitsens = 8;
        bitpas = 4;
        tempopaddle = 0;
    });
    boucle.programme(17 * 30 + 30, "", [this] { presse(11); });
    scruteraquette();
    EXPECT_EQ(note.journal, "L888 L890 L888 L890 E888=0 E888=12 L888 L890 ");
    EXPECT_EQ(baselinepaddle, 12);
    EXPECT_EQ(boucle.temps(), 17 * 30 + 30);
}

TEST_F(Raquette, CountersThatOverflowAreFatal) {
    presse(9);
    pasencodeaz = entier32::maximum;
    attend_echec(cause::depassement, scruteraquette);
    comptealt = entier32::minimum;
    altplus = 2;
    presse(10);
    attend_echec(cause::depassement, scruteraquette);
}
