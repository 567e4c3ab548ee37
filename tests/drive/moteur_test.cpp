#include "drive/cmd_moteur.h"

#include "base/octets.h"
#include "echec.h"
#include "essai_virtuel.h"
#include "platform/plateforme.h"
#include "sky/position.h"

using namespace cmd_moteur;
using base::cause;
using essais::attend_echec;

namespace {

class Moteur : public essais::Virtuel {
  protected:
    void inversion(const char* az, const char* alt) {
        base::ecrit_fichier(plateforme::courante.donnees / "inversion.ini",
                            std::string{az} + "\r\n" + alt + "\r\n");
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

TEST_F(Moteur, InversionFileThatIsShortOrGoneIsFatal) {
    cmdsens = 1;
    base::ecrit_fichier(plateforme::courante.donnees / "inversion.ini", "Vrai\r\n");
    EXPECT_NE(attend_echec(cause::fin_de_fichier, fixesens).find("inversion.ini"), std::string::npos);
    std::filesystem::remove(plateforme::courante.donnees / "inversion.ini");
    attend_echec(cause::fichier_introuvable, fixesens);
}

TEST_F(Moteur, SpeedComesFromTheClassOfTheCommandsAxis) {
    for (int i = 0; i < 10; ++i) {
        vitessealtaz[static_cast<std::size_t>(i)] = 100 + i;
        vitesseequa[static_cast<std::size_t>(i)] = 200 + i;
    }
    classevitaz = 4;
    classevitalt = 1;
    cmdsens = 2;
    tempoaltaz();
    EXPECT_EQ(tempopas, 104);
    cmdsens = 3;
    tempoequa();
    EXPECT_EQ(tempopas, 206);
    cmdsens = 0;
    tempoequa();
    EXPECT_EQ(tempopas, 206) << "no axis, no change";
    cmdsens = 1;
    for (int classe : {-1, 5}) {
        classevitaz = classe;
        attend_echec(cause::indice, tempoaltaz);
    }
    cmdsens = 4;
    classevitalt = 5;
    attend_echec(cause::indice, tempoequa);
}

TEST_F(Moteur, ACountIsNPlusOnePasses) {
    attente(0);
    EXPECT_EQ(boucle.temps(), 30);
    attente(999);
    EXPECT_EQ(boucle.temps(), 30 + 30'000);
    attente(-1);
    EXPECT_EQ(boucle.temps(), 30 + 30'000);
    attente(entier32::maximum);
    EXPECT_EQ(boucle.temps(), 30 + 30'000 + 30 * (std::int64_t{1} << 31));
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

TEST_F(Moteur, ABurstReadsItsDirectionAtEachWriteAndItsCountOnce) {
    azplus = 8;
    general::ecartaz = 1;
    nbpasaz = 3;
    tempoaz = 0;
    boucle.programme(3, "", [] {
        bitsens = 0;
        nbpasaz = 100;
    });
    rafaleaz();
    EXPECT_EQ(ecritures(9), "8 4 0 4 0 4 ");
}

TEST_F(Moteur, TheSiderealDriveSendsItsStepsWhateverTheCommandBecomes) {
    inversion("Faux", "Faux");
    vitesseequa[0] = 0;
    classevitaz = 0;
    cmdsens = 1;
    nbpassuivi = 3;
    boucle.programme(30, "", [] { cmdsens = 0; });
    pasequa();
    EXPECT_EQ(ecritures(9), "8 12 8 12 8 12 ") << "the bits stay, though the command is gone";
    port.oublie_ecritures();
    pasequa();
    EXPECT_EQ(ecritures(9), "0 0 0 0 0 0 ") << "started without a command it moves nothing";
    // Nothing to send: the inversion file is read all the same.
    port.oublie_ecritures();
    nbpassuivi = -1;
    inversion("Vrai", "Faux");
    pasequa();
    EXPECT_EQ(ecritures(9), "");
    EXPECT_TRUE(static_cast<bool>(invaz));
}

TEST_F(Moteur, StepsBeyondTheCounterAreFatal) {
    compteaz = entier32::maximum;
    sensplus = true;
    attend_echec(cause::depassement, comptepasaz);
    comptealt = entier32::minimum;
    sensplus = false;
    attend_echec(cause::depassement, comptepasalt);
}
