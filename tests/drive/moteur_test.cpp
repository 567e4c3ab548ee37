#include "drive/cmd_moteur.h"

#include "drive/position.h"
#include "drive/raquette.h"
#include "essai.h"
#include "fields/frmraquette_champs.h"
#include "seam/plateforme.h"

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

class Moteur : public essais::Essai {
  protected:
    void inversion(const char* az, const char* alt) {
        fichier("inversion.ini", std::string{az} + "\r\n" + alt + "\r\n");
    }
    std::string ecritures(std::size_t n) {
        std::string s;
        for (const auto& e : port.dernieres(n))
            s += std::to_string(e.valeur) + " ";
        return s;
    }
};

} // namespace

TEST_F(Moteur, EachRoutineKeepsItsOwnTableOfSenses) {
    azplus = 0;
    altplus = 2;
    const struct {
        int commande;
        int sens, sens_inverse, sens_direct, pas;
        bool plus, plus_inverse;
    } cas[] = {
        {1, 8, 0, 0, 4, false, true}, {2, 0, 8, 8, 4, true, false},  {3, 2, 0, 0, 1, true, false},
        {4, 0, 2, 2, 1, false, true}, {0, 0, 0, 0, 0, false, false},
    };
    for (const auto& c : cas) {
        cmdsens = c.commande;
        inversion("Faux", "Faux");
        fixesens();
        EXPECT_EQ(bitsens, c.sens) << c.commande;
        EXPECT_EQ(bitpas, c.pas) << c.commande;
        EXPECT_EQ(static_cast<bool>(sensplus), c.plus) << c.commande;
        inversion("Vrai", "Vrai");
        fixesens();
        EXPECT_EQ(bitsens, c.sens_inverse) << c.commande;
        EXPECT_EQ(static_cast<bool>(sensplus), c.plus_inverse) << c.commande;
        fixesensdirect();
        EXPECT_EQ(bitsens, c.sens_direct) << c.commande;
        EXPECT_EQ(bitpas, c.pas) << c.commande;
    }
    // An inversion of one axis leaves the other.
    inversion("Faux", "Vrai");
    cmdsens = 1;
    fixesens();
    EXPECT_EQ(bitsens, 8);
    // A command of no axis changes neither.
    cmdsens = 7;
    fixesens();
    fixesensdirect();
    EXPECT_EQ(bitsens, 8);
    EXPECT_EQ(bitpas, 4);
    EXPECT_FALSE(static_cast<bool>(sensplus));
}

TEST_F(Moteur, ACountIsNPlusOnePasses) {
    std::int64_t attendu = 0;
    for (const auto& [n, passes] :
         {std::pair{0, std::int64_t{1}}, {999, 1000}, {-1, 0}, {2147483647, 1LL << 31}}) {
        attente(n);
        EXPECT_EQ(boucle.temps(), attendu += 30 * passes);
    }
}

TEST_F(Moteur, ABurstGoesTheWayOfItsDifference) {
    azplus = 8;
    azmoins = 0;
    altplus = 0;
    altmoins = 2;
    tempoaz = 999; // 3 us a half-step
    nbpasaz = 2;
    general::ecartaz = 0.5;
    rafaleaz();
    EXPECT_EQ(ecritures(9), "8 12 8 12 ");
    EXPECT_EQ(boucle.temps(), 4 * 3000);
    general::ecartaz = -1;
    rafaleaz();
    EXPECT_EQ(ecritures(4), "0 4 0 4 ");
    // A difference of 0 goes the minus way; the step value is the axis's own, whatever the last command was.
    bitpas = 0;
    general::ecartalt = 0;
    nbpasalt = 1;
    tempoalt = -5;
    const auto avant = boucle.temps();
    rafalealt();
    EXPECT_EQ(ecritures(2), "2 3 ");
    EXPECT_EQ(boucle.temps(), avant) << "a negative count makes no pass";
    EXPECT_EQ(compteaz, 0);
    // No step: no write, but the direction is set.
    port.oublie_ecritures();
    general::ecartaz = 3;
    for (int n : {0, -4}) {
        bitsens = 1;
        nbpasaz = n;
        rafaleaz();
        EXPECT_EQ(bitsens, 8);
    }
    EXPECT_EQ(ecritures(9), "");
    nbpasalt = 2.5; // ties to the even number
    rafalealt();
    EXPECT_EQ(ecritures(9), "2 3 2 3 ");
    nbpasalt = 40000;
    attend_echec(cause::depassement, rafalealt);
}

TEST_F(Moteur, StepsBeyondTheCounterAreFatal) {
    compteaz = entier32::maximum;
    sensplus = true;
    attend_echec(cause::depassement, comptepasaz);
    comptealt = entier32::minimum;
    sensplus = false;
    attend_echec(cause::depassement, comptepasalt);
}

// ---- the paddle

// The port is read anew before and after each step, the data register first. A motion started during a press
// changes the bits: they act at the next use, and the baseline follows what is driven.
TEST_F(Moteur, APressReadsThePortAndTheBitsAtEachUse) {
    port_note note{port};
    plateforme::courante.port = &note;
    vitessemanu = {833338, 166666, 33334, 833338, 166666, 33334};
    frmraquette::fiche.charge();
    slotaltr = 16;
    azplus = 8;
    plateforme::Out32(plateforme::registre_controle, 11);
    const auto appuie = [&](int code, int lache_apres) {
        ASSERT_TRUE(port.presente(code));
        boucle.programme(lache_apres, "", [this] { ASSERT_TRUE(port.presente(11)); });
        note.journal.clear();
        scruteraquette();
    };
    boucle.programme(1, "", [] {
        bitsens = 8;
        bitpas = 4;
        tempopaddle = 0;
    });
    const auto avant = boucle.temps();
    appuie(2, 17 * 30 + 30);
    EXPECT_EQ(note.journal, "L888 L890 L888 L890 E888=0 E888=12 L888 L890 ");
    EXPECT_EQ(baselinepaddle, 12);
    EXPECT_EQ(boucle.temps() - avant, 17 * 30 + 30);
    EXPECT_EQ(jeucourantalt, 1);
    note.journal.clear();
    scruteraquette();
    EXPECT_EQ(note.journal, "L888 L890 ") << "no key: nothing is written";
    EXPECT_EQ(jeucourantalt, 1) << "only a press clears it";
    // A key gone between the scan and the loop makes no step.
    codepaddle = 13;
    jeucourantaz = 5;
    note.journal.clear();
    paddleaz();
    EXPECT_EQ(note.journal, "L888 L890 ");
    EXPECT_EQ(jeucourantaz, 0) << "cleared when a loop starts";
    const auto deborde = [&](int code) { attend_echec(cause::depassement, [&] { appuie(code, 1); }); };
    pasencodeaz = entier32::maximum;
    deborde(9);
    comptealt = entier32::minimum;
    altplus = 2;
    deborde(10);
}
