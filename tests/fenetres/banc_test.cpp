// The bench's own window, beside the program that runs on it. Its time is counted in waits, so a recording is
// exact.
#include "fenetres.h"

#include "base/octets.h"
#include "bench/fenetre_banc.h"
#include "piloting/frmaltazpilot_champs.h"
#include "shell/frmcoord_champs.h"
#include "sky/heure.h"
#include "sky/position.h"

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
    banc::horloge_banc civile{[] { return 1'786'824'000'000; },
                              [] { return int{general::decalageheure.valeur()}; }};

    void attend(std::int64_t ns) {
        etabli.commence_attente(ns);
        maintenant += ns + retard;
        ++attentes;
    }
    void cession_finie() {
        etabli.cession_finie();
        if (attentes == arret)
            frmaltazpilot::cmddstop.clic();
    }
};

class banc_d_essai : protected machine_du_banc, public essais::fenetres {
  protected:
    banc_d_essai()
        : fenetres({.port = etabli.port(),
                    .horloge = civile,
                    .attente = [this](std::int64_t ns) { attend(ns); },
                    .apres_cession = [this] { cession_finie(); },
                    .donnees = DONNEES}) {}
    void SetUp() override {
        fenetres::SetUp();
        fenetre = std::make_unique<banc::fenetre_banc>(etabli, civile);
        fenetre->show();
        fenetre->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    }

    template <class W> W* le(const char* nom) { return fenetre->findChild<W*>(nom); }
    std::string lu(const char* nom) { return le<QLabel>(nom)->text().toStdString(); }
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

TEST_F(banc_d_essai, its_clock_is_set_by_typing) {
    const auto cette_nuit = lu("heure");
    EXPECT_EQ(cette_nuit.substr(0, 10), "2000-08-15") << "the almanac's year";
    ecrit("date", "2001-12-24 23:58:30");
    EXPECT_EQ(lu("heure"), cette_nuit);
    presse("regle");
    EXPECT_EQ(lu("heure"), "2001-12-24 23:58:30");
    clique("frminterface", "barchoix(2)");
    EXPECT_TRUE(QTest::qWaitFor([] { return frmcoord::txth.lit() == "22"; })) << "the program follows";
    EXPECT_EQ(frmcoord::cbmois.position(), 11);
    for (const auto* faux : {"2001-02-29 12:00:00", "demain"}) {
        ecrit("date", faux);
        QTest::keyClick(le<QLineEdit>("date"), Qt::Key_Return);
        EXPECT_EQ(lu("heure"), "2001-12-24 23:58:30") << faux;
        EXPECT_EQ(le<QLineEdit>("date")->selectedText().toStdString(), faux);
    }
    ecrit("date", "2000-02-29 01:02");
    QTest::keyClick(le<QLineEdit>("date"), Qt::Key_Return);
    EXPECT_EQ(lu("heure"), "2000-02-29 01:02:00");
    presse("cette_nuit");
    EXPECT_EQ(lu("heure").substr(0, 10), "2000-08-15");
}

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
    presse("enregistre");
    EXPECT_EQ(lu("etat_vcd"), "Enregistré dans " + fichier.string());
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

TEST_F(banc_d_essai, counts_mount_and_lateness_start_again) {
    clique("frminterface", "barchoix(2)");
    clique("frminterface", "baraltaz(6)"); // 200 steps and a ratio of 500
    clique("frminterface", "baraltaz(3)");
    avance(100);
    EXPECT_EQ(lu("sens8_az"), "100");
    EXPECT_EQ(lu("angle_az"), "−0° 10' 48,0''");
    EXPECT_EQ(lu("retard"), "1,5 µs");
    presse("oublie_retard");
    EXPECT_EQ(lu("retard"), "0,0 µs");
    general::posaz = 648000;
    general::posalt = 108000;
    presse("pose");
    EXPECT_EQ(lu("angle_az") + " " + lu("angle_alt"), "180° 00' 00,0'' 30° 00' 00,0''");
    EXPECT_EQ(lu("cru_az") + " " + lu("cru_alt"), "180° 00' 00,0'' 30° 00' 00,0''");
    EXPECT_EQ(lu("sens8_az"), "100") << "the counts stay";
    presse("zero");
    EXPECT_EQ(lu("sens8_az"), "0");
    avance(1);
    EXPECT_EQ(lu("sens8_az"), "1");
    EXPECT_EQ(lu("retard"), "1,5 µs");
}

} // namespace
