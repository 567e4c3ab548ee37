// What of the panels no scenario can show: the hidden general bar, files of other hands, the help's address.
#include "drive/etat_moteur.h"
#include "essai.h"
#include "fields/Frmnotes_champs.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frmequaconfig_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "fields/frmraquette_champs.h"
#include "frame/aide.h"
#include "frame/frminterface.h"
#include "sky/heure.h"
#include "slewing/etat_pointage.h"

namespace {

using namespace frminterface;

class Programme : public essais::Essai {};

// The bar stays hidden; shown by code, its buttons do what the other bars' and the menu's do, and more.
TEST_F(Programme, barre_generale) {
    programme::demarre();
    const auto panneau = [](const char* nom) { return programme::registre().trouve_panneau(nom); };
    bargeneral_boutons(5).clic();
    EXPECT_FALSE(Frmnotes::fiche.est_charge()) << "hidden";
    bargeneral.visible(true);
    bargeneral_boutons(5).clic();
    EXPECT_TRUE(Frmnotes::fiche.est_visible());
    bargeneral_boutons(7).clic();
    EXPECT_TRUE(panneau("frmcopyright")->est_visible());

    barchoix_boutons(2).clic();
    shell::panneau* const fermes[] = {&frmaltazpilot::fiche, &frmaltazsuivi::fiche, &frmconfig::fiche,
                                      &frmequapilot::fiche, &frmequaconfig::fiche};
    for (auto* p : fermes)
        p->charge();
    cmd_moteur::baselinepaddle = 4;
    bargeneral_boutons(2).clic();
    EXPECT_EQ(port.dernieres(2), (std::vector<banc::ecriture>{{890, 11}, {888, 0}}));
    EXPECT_EQ(cmd_moteur::baselinepaddle, 0);
    for (auto* p : fermes)
        EXPECT_FALSE(p->est_charge()) << p->nom();
    EXPECT_TRUE(frmcoord::fiche.est_charge() && heuretimer.marche()) << "the clock goes on";
    EXPECT_TRUE(frmraquette::fiche.est_visible() && Timer.marche());
    EXPECT_FALSE(baraltaz.visible() || barequa.visible() || mnutelescope.actif());
    EXPECT_FALSE(bargeneral_boutons(3).actif() || bargeneral_boutons(4).actif() || fiche.est_maximise());
    EXPECT_EQ(fiche.largeur(), 11000);
    EXPECT_EQ(fiche.hauteur(), 8000);

    bargeneral_boutons(1).clic();
    EXPECT_FALSE(frmraquette::fiche.est_charge() || Timer.marche());
    EXPECT_TRUE(bargeneral_boutons(3).actif() && bargeneral_boutons(4).actif() && mnutelescope.actif());
    EXPECT_TRUE(fiche.est_maximise());
    frmequapilot::fiche.charge();
    frmcoord::fiche.decharge();
    bargeneral_boutons(4).clic();
    EXPECT_TRUE(baraltaz.visible() && frmcoord::fiche.est_visible() && pointing::panneaualtaz == true);
    EXPECT_FALSE(frmequapilot::fiche.est_charge() || barequa.visible());
}

// The clock's panel at its load, before any tick: the day before in hour 0 of either season, summer from May
// to October.
TEST_F(Programme, heure_au_chargement) {
    const struct {
        int mois, jour, heure;
        const char* heure_universelle;
        int cbjour, decalage;
    } cas[] = {{8, 15, 22, "20 30 15", 14, 2}, {8, 15, 0, "22 30 15", 13, 2}, {8, 15, 2, "0 30 15", 14, 2},
               {8, 1, 0, "22 30 15", -1, 2},   {2, 10, 0, "22 30 15", 9, 1},  {2, 10, 1, "23 30 15", 8, 1},
               {4, 30, 12, "10 30 15", 29, 1}, {5, 1, 12, "10 30 15", 0, 2},  {10, 31, 12, "10 30 15", 30, 2},
               {11, 1, 12, "10 30 15", 0, 1}};
    using namespace frmcoord;
    for (const auto& c : cas) {
        boucle.regle_horloge({2001, c.mois, c.jour, c.heure, 30, 15});
        frmcoord::fiche.decharge();
        frmcoord::fiche.charge();
        EXPECT_EQ(txth.lit() + " " + txtmin.lit() + " " + txts.lit(), c.heure_universelle) << c.mois;
        EXPECT_EQ(cbjour.position(), c.cbjour) << c.mois << " " << c.heure;
        EXPECT_EQ(cbmois.position(), c.mois - 1);
        EXPECT_EQ(general::decalageheure, c.decalage) << c.mois;
        EXPECT_TRUE(optété.coche() == (c.decalage == 2) && opthivers.coche() == (c.decalage == 1));
    }
}

// Whatever made them, lines are read, and saved as the program writes them; every byte survives.
TEST_F(Programme, notes) {
    std::string octets;
    for (int o = 255; o >= 0; --o)
        if (o != '\n')
            octets += static_cast<char>(o);
    const struct {
        std::string fichier, texte, enregistre;
    } cas[] = {
        {"abc", "abc", "abc\r\n"},
        {"a\nb\n", "a\r\nb", "a\r\nb\r\n"},
        {"a\r\nb\n\nc", "a\r\nb\r\n\r\nc", "a\r\nb\r\n\r\nc\r\n"},
        {"a\rb\r\n", "a\rb", "a\rb\r\n"}, // a lone CR ends no line
        {"a\r\n\r\n\r\n", "a\r\n\r\n", "a\r\n\r\n\r\n"},
        {"\nb\r\n", "", "\r\n"},
        {" \tx , y\t \r\n", " \tx , y\t ", " \tx , y\t \r\n"},
        {octets + "\r\n", base::de_1252(octets), octets + "\r\n"},
    };
    for (const auto& c : cas) {
        base::ecrit_fichier(donnees / "notes.txt", c.fichier);
        EXPECT_EQ(Frmnotes::txtnotes.lit(), c.texte);
        Frmnotes::Picturesave.clic();
        EXPECT_EQ(base::lit_fichier(donnees / "notes.txt"), c.enregistre);
        Frmnotes::fiche.decharge();
    }
}

TEST_F(Programme, adresse_de_l_aide) {
    const std::pair<const char*, const char*> cas[] = {
        {"aide", "aide/index.html"},
        {"/home/éloïse/Mes nuits/aide", "file:///home/éloïse/Mes nuits/aide/index.html"},
        {"/a/100% #1?/aide", "file:///a/100%25 %231%3F/aide/index.html"},
    };
    for (const auto& [dossier, attendue] : cas) {
        plateforme::courante.aide = dossier;
        EXPECT_EQ(aide::adresse(), attendue);
    }
}

} // namespace
