#include "machine_essai.h"
#include "platform/image.h"
#include "shell/Frmnotes_champs.h"
#include "shell/aide.h"
#include "shell/frminterface_champs.h"

#include <gtest/gtest.h>

namespace {

using essais::machine_essai;

// What a file of other hands shows, and what a save makes of it.
TEST(notes, lines_of_any_make_are_read_and_saved_as_the_program_writes_them) {
    struct {
        const char* fichier;
        const char* texte;
        const char* enregistre;
    } const cas[] = {
        {"abc\r\n", "abc", "abc\r\n"},
        {"abc", "abc", "abc\r\n"},
        {"a\nb\n", "a\r\nb", "a\r\nb\r\n"},
        {"a\r\nb\n\nc", "a\r\nb\r\n\r\nc", "a\r\nb\r\n\r\nc\r\n"},
        {"a\rb\r\n", "a\rb", "a\rb\r\n"}, // a lone CR ends no line
        {"a\r\n\r\n\r\n", "a\r\n\r\n", "a\r\n\r\n\r\n"},
        {"\nb\r\n", "", "\r\n"},
        {" \tx , y\t \r\n", " \tx , y\t ", " \tx , y\t \r\n"},
    };
    for (const auto& c : cas) {
        machine_essai m;
        m.fichier("notes.txt", c.fichier);
        EXPECT_EQ(Frmnotes::txtnotes.lit(), c.texte);
        Frmnotes::Picturesave.clic();
        EXPECT_EQ(m.fichier("notes.txt"), c.enregistre);
    }
}

TEST(notes, every_byte_survives_a_load_and_a_save) {
    machine_essai m;
    std::string octets;
    for (int o = 255; o >= 0; --o)
        if (o != '\n')
            octets += static_cast<char>(o);
    octets += "\r\n";
    base::ecrit_fichier(m.donnees / "notes.txt", octets);
    Frmnotes::Picturesave.clic();
    EXPECT_EQ(base::lit_fichier(m.donnees / "notes.txt"), octets);
}

TEST(notes, the_save_button_shows_its_two_faces) {
    machine_essai m;
    programme::demarre();
    Frmnotes::fiche.montre();
    EXPECT_EQ(Frmnotes::Picturesave.regarde_image(), plateforme::imagesboutons[0]);
    Frmnotes::Picturesave.appuie();
    EXPECT_EQ(Frmnotes::Picturesave.regarde_image(), plateforme::imagesboutons[1]);
    Frmnotes::Picturesave.relache();
    EXPECT_EQ(Frmnotes::Picturesave.regarde_image(), plateforme::imagesboutons[0]);
    EXPECT_NE(plateforme::imagesboutons[0], plateforme::imagesboutons[1]);
}

// The general bar stays hidden; shown by code, its two buttons open what the menu opens.
TEST(notes, the_general_bar_opens_the_notes_and_the_about_window) {
    machine_essai m;
    programme::demarre();
    frminterface::bargeneral_boutons(5).clic();
    EXPECT_FALSE(Frmnotes::fiche.est_charge());
    frminterface::bargeneral.visible(true);
    frminterface::bargeneral_boutons(5).clic();
    EXPECT_TRUE(Frmnotes::fiche.est_visible());
    frminterface::bargeneral_boutons(7).clic();
    EXPECT_TRUE(programme::registre().trouve_panneau("frmcopyright")->est_visible());
    EXPECT_TRUE(m.vue.messages.empty());
}

TEST(aide, the_address_is_a_full_one_where_the_folder_is_known) {
    machine_essai m;
    const std::pair<const char*, const char*> cas[] = {
        {"aide", "aide/index.html"},
        {"/opt/velmoria/aide", "file:///opt/velmoria/aide/index.html"},
        {"/home/éloïse/Mes nuits/aide", "file:///home/éloïse/Mes nuits/aide/index.html"},
        {"/a/100% #1?/aide", "file:///a/100%25 %231%3F/aide/index.html"},
    };
    for (const auto& [dossier, attendue] : cas) {
        plateforme::courante.aide = dossier;
        EXPECT_EQ(aide::adresse(), attendue);
    }
}

} // namespace
