// The bench's own window, beside the program that runs on it. Its time is counted in waits, so a recording is
// exact.
#include "fenetres.h"

#include "base/fichier.h"
#include "fields/frmaltazpilot_champs.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "sky/heure.h"

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <sstream>

namespace {

constexpr std::int64_t retard = 1500; // of every wait, ns

struct machine_du_banc {
    std::int64_t maintenant = 0; // ns
    int attentes = 0;
    int arret = -1; // the stop is pressed at the end of the yield after this one
    banc::etabli etabli{[this] { return maintenant; }};
    // 2026 August 15, 20 h
    banc::horloge_banc civile{{[] { return 1'786'824'000'000; }, [] { return 0; }},
                              [] { return int{general::decalageheure.valeur()}; }};

    void attend(std::int64_t ns) {
        maintenant += ns + retard;
        ++attentes;
    }
    plateforme::qt::composition composition() {
        auto c = banc::sur_le_banc(etabli, civile, *this);
        c.apres_cession = [this, fin = c.apres_cession] {
            fin();
            if (attentes == arret)
                frmaltazpilot::deplacement.cmddstop.clic();
        };
        c.donnees = DONNEES;
        return c;
    }
};

class banc_d_essai : protected machine_du_banc, public essais::fenetres {
  protected:
    banc_d_essai() : fenetres(composition()) {}
    void SetUp() override {
        fenetres::SetUp();
        fenetre = std::make_unique<banc::fenetre_banc>(etabli, civile, [] { return "non"; });
        fenetre->show();
        fenetre->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    }

    template <class W> W* le(const char* nom) { return fenetre->findChild<W*>(nom); }
    std::string lu(const char* nom) {
        const auto* etiquette = le<QLabel>(nom);
        return (etiquette ? etiquette->text() : le<QWidget>(nom)->accessibleDescription()).toStdString();
    }
    void presse(const char* nom) { QTest::mouseClick(le<QPushButton>(nom), Qt::LeftButton); }
    void ecrit(const char* nom, const char* texte) {
        le<QLineEdit>(nom)->selectAll();
        QTest::keyClicks(le<QLineEdit>(nom), texte);
    }
    // So many steps of azimuth to the right.
    void avance(int pas) {
        arret = attentes + 2 * pas;
        clique("frmaltazpilot", "cmdad");
        arret = -1;
        fenetre->rafraichit();
    }

    std::unique_ptr<banc::fenetre_banc> fenetre;
};

// Rising edges of a line and their times, from a value change dump.
std::vector<std::int64_t> fronts(const std::string& vcd, const std::string& ligne) {
    std::istringstream f{vcd};
    std::string mot, avant, marque;
    std::vector<std::int64_t> tous;
    std::int64_t t = 0;
    char niveau = '1'; // the first value given is no edge
    for (; f >> mot; avant = mot) {
        if (mot == ligne)
            marque = avant;
        else if (mot[0] == '#' && mot.size() > 1)
            t = std::stoll(mot.substr(1));
        else if (!marque.empty() && mot.size() == 2 && mot.substr(1) == marque) {
            if (niveau == '0' && mot[0] == '1')
                tous.push_back(t);
            niveau = mot[0];
        }
    }
    return tous;
}

TEST_F(banc_d_essai, a_jog_is_counted_and_recorded) {
    clique("frminterface", "barchoix(2)");
    clique("frminterface", "baraltaz(3)");
    cmd_moteur::vitessealtaz.fill(cmd_moteur::entier32{33332}); // half-steps of 1 ms nearly
    avance(5);
    EXPECT_EQ(lu("sens8_az"), "5");
    const QTemporaryDir dossier;
    const std::filesystem::path fichier = dossier.filePath("lignes.vcd").toStdString();
    ecrit("chemin_vcd", fichier.c_str());
    presse("enregistre");
    EXPECT_FALSE(le<QLineEdit>("chemin_vcd")->isEnabled());
    avance(40);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fronts(base::lit_fichier(fichier), "pas_az").size() == 40; }))
        << "within a second or so";
    fenetre->close(); // ends it, as the button would
    EXPECT_EQ(lu("etat_vcd"), "Enregistré dans " + fichier.string());
    fenetre->show();
    EXPECT_TRUE(le<QLineEdit>("chemin_vcd")->isEnabled());
    avance(3);
    EXPECT_EQ(lu("sens8_az"), "48");
    EXPECT_EQ(lu("sens0_az") + lu("sens0_alt") + lu("sens2_alt"), "000");
    const auto montees = fronts(base::lit_fichier(fichier), "pas_az");
    ASSERT_EQ(montees.size(), 40u) << "neither those before nor those after";
    for (std::size_t i = 0; i < montees.size(); ++i)
        EXPECT_EQ(montees[i], (1 + 2 * static_cast<std::int64_t>(i)) * (33333 * 30 + retard));
    EXPECT_TRUE(fronts(base::lit_fichier(fichier), "pas_alt").empty());
    EXPECT_EQ(fronts(base::lit_fichier(fichier), "sens_az").size(), 0u) << "raised since the first jog";

    ecrit("chemin_vcd", "/nulle-part/lignes.vcd");
    presse("enregistre");
    EXPECT_EQ(lu("etat_vcd"), "Impossible d'écrire /nulle-part/lignes.vcd");
    EXPECT_TRUE(le<QLineEdit>("chemin_vcd")->isEnabled());
}

} // namespace
