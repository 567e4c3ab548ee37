#include "machines/virtual/boucle_virtuelle.h"
#include "machines/virtual/entete_image.h"
#include "machines/virtual/scenario.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace plateforme;
using namespace std::string_literals;

TEST(BoucleVirtuelle, RunsOrdersInOrderOfTimeAndLetsWhatComesDueMeanwhileWait) {
    boucle_virtuelle b;
    std::string journal;
    b.programme(20, "", [&] { journal += "b"; });
    b.programme(10, "", [&] {
        journal += "a";
        b.attend(100);
        b.programme(0, "", [&] { journal += "d"; });
    });
    b.programme(20, "", [&] { journal += "c"; });
    b.attend(15);
    b.cede();
    EXPECT_EQ(journal, "a") << "b and c came due after this yield began";
    b.cede();
    EXPECT_EQ(journal, "abcd");
    EXPECT_EQ(b.temps(), 115);
}

TEST(BoucleVirtuelle, TheCivilClockRunsOnThroughMidnight) {
    boucle_virtuelle b;
    b.regle_horloge({2000, 2, 28, 23, 59, 59, 900});
    b.avance(100'000'000);
    auto i = b.maintenant();
    EXPECT_EQ(i.jour, 29);
    EXPECT_EQ(i.heure + i.minute + i.seconde + i.milliseconde, 0);
    b.avance(24LL * 3600 * 1'000'000'000 - 1'000'000);
    i = b.maintenant();
    EXPECT_EQ(i.mois, 2);
    EXPECT_EQ(i.milliseconde, 999);
    b.avance(1'000'000);
    EXPECT_EQ(b.maintenant().mois, 3);
}

TEST(BoucleVirtuelle, AMotionThatNothingCanEndIsGivenUp) {
    boucle_virtuelle b;
    b.programme(30LL * 3600 * 1'000'000'000, "", [] {});
    for (int i = 0; i < 31; ++i) {
        b.attend(3600LL * 1'000'000'000);
        EXPECT_NO_THROW(b.cede()) << "an order was waiting until now";
    }
    EXPECT_THROW(
        for (int i = 0; i < 26; ++i) {
            b.attend(3600LL * 1'000'000'000);
            b.cede();
        },
        mouvement_sans_fin);
}

TEST(EnteteImage, TellsSizeAndDensity) {
    const auto gif = lit_entete("GIF89a\x50\x01\x66\x00...."s);
    ASSERT_TRUE(gif);
    EXPECT_EQ(gif->largeur, 336);
    EXPECT_EQ(gif->hauteur, 102);
    EXPECT_EQ(gif->ppp, 96);
    const auto jpeg = [](const std::string& densite, const std::string& suite) {
        return "\xFF\xD8\xFF\xE0\x00\x10JFIF\0\x01\x02"s + densite + "\0\0"s + suite;
    };
    const auto cadre = "\xFF\xFE\x00\x05"
                       "ab\0\xFF\xC2\x00\x0B\x08\x01\x2C\x02\x58\x01\x01\x11\x00"s;
    const auto pouce = lit_entete(jpeg("\x01\x00\x48\x00\x48"s, cadre));
    ASSERT_TRUE(pouce);
    EXPECT_EQ(pouce->largeur, 600);
    EXPECT_EQ(pouce->hauteur, 300);
    EXPECT_EQ(pouce->ppp, 72);
    EXPECT_NEAR(lit_entete(jpeg("\x02\x00\x64\x00\x64"s, cadre))->ppp, 254, 1e-9);
    EXPECT_EQ(lit_entete(jpeg("\x00\x00\x01\x00\x01"s, cadre))->ppp, 96);
}

TEST(EnteteImage, RefusesWhatIsNoPictureOrCutShort) {
    for (const auto& octets :
         {""s, "GIF89a\x01"s, "pas une image"s, "GIF89a\0\0\0\0"s, "\xFF\xD8"s, "\xFF\xD8\xFF\xE0\x00\x01"s,
          "\xFF\xD8\xFF\xC0\x00\x11\x08\x01"s, "\xFF\xD8\xFF\xC0\x00\x04\x08\x01"s})
        EXPECT_FALSE(lit_entete(octets));
}

// Lines, the status they end with, and the last that is printed or explained.
TEST(Scenario, TellsWhatItShowsAndWhatItDoesNotUnderstand) {
    const std::string popup =
        "fichier messier.cat M1,GL,3305,6305\ndemarre\nclic frminterface.mnupointaltaz\n"
        "choisit frmaltazpointage.lbCatalogue 2\n";
    const struct {
        std::string lignes;
        int statut;
        const char* dit;
    } cas[] = {
        {"saute haut", 1, "x:1: commande inconnue : \"saute\""},
        {"\r\n # rien\ndemarre\ndemarre", 1, "x:4: le programme a déjà démarré"},
        {"clic frmcoord.txth", 1, "la commande ne va pas à ce contrôle : \"frmcoord.txth\""},
        {"souris frmcoord gauche 1 1", 1, "aucun panneau de ce nom n'a de dessin : \"frmcoord\""},
        {"souris frmCercle milieu 1 1", 1, "gauche ou droit était attendu : \"milieu\""},
        {"souris frmCercle gauche 1 1e10", 1, "une place en twips était attendue : \"1e10\""},
        {"ferme frmrien", 1, "aucun panneau ne porte ce nom : \"frmrien\""},
        {"raquette 256", 1, "code de raquette hors de 0 à 255 : 256"},
        {"raquette 2.5", 1, "un nombre entier était attendu : \"2.5\""},
        {"a 1ms", 1, "il manque la commande"},
        {"fichier ../x y", 1, "un fichier du dossier de données était attendu : \"../x\""},
        {"donnees nulle/part", 1, "dossier de données : nulle/part : No such file or directory"},
        {popup + "droit frmaltazpointage.lbObjets 0\nmenu mnurien", 1,
         "le menu n'a pas cette entrée : \"mnurien\""},
        {popup + "droit frmaltazpointage.lbObjets 0\nmontre cmdsens", 0, "cmdsens = 0"},
        {popup + "a 1ms droit frmaltazpointage.lbObjets 0\na 1ms menu mnugalaxies\navance 2ms\n"
                 "montre frmaltazpointage.mnugalaxies.coche",
         0, "frmaltazpointage.mnugalaxies.coche = 1"},
        {"montre frmcoord.rien", 1, "rien ne porte ce nom : \"frmcoord.rien\""},
        {"montre frmaltazsuivi.updowntaux", 1, "rien ne porte ce nom : \"frmaltazsuivi.updowntaux\""},
        {"montre frmcoord.txth.rien", 1, "rien ne porte ce nom : \"frmcoord.txth.rien\""},
        {"montre frminterface.barchoix", 0, "frminterface.barchoix = 1"},
        {"montre frmaltazpointage.lbCatalogue.position", 0, "frmaltazpointage.lbCatalogue.position = 2"},
        {"montre frmDepl.ProgressBaraz.valeur", 0, "frmDepl.ProgressBaraz.valeur = 0"},
        {"coche frmcoord.opthivers 1\nmontre frmcoord.opthivers\nquitte\nsaute", 0, "frmcoord.opthivers = 1"},
        {"demarre\nclic frminterface.barchoix(2)\nfichier config_altaz.ini 1|2\nmontre monture", 0,
         "monture az=0 alt=0"},
        {"demarre\nclic frminterface.barchoix(1)\nfichier config_equa.ini -\nmontre monture", 0,
         "monture az=0 alt=0"},
        {"attend cmdsens 0\nattend cmdsens 1", 1, "cmdsens : \"1\" était attendu, la réponse est \"0\""},
    };
    for (const auto& c : cas) {
        std::istringstream lignes{c.lignes};
        std::ostringstream sortie;
        EXPECT_EQ(joue({lignes, "x", "", VELMORIA_DONNEES, sortie, sortie}), c.statut) << c.lignes;
        EXPECT_TRUE(sortie.str().ends_with(c.dit + "\n"s)) << sortie.str();
    }
}
