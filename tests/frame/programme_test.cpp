// What of the panels no scenario can show: files of other hands, the help's address.
#include "essai.h"
#include "fields/Frmnotes_champs.h"
#include "fields/bulles.h"
#include "fields/frmaltazpilot_champs.h"
#include "frame/aide.h"

namespace {

class Programme : public essais::Essai {};

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

// Who cannot read what a control does from a caption of its own reads it from its tooltip.
TEST_F(Programme, bulles) {
    for (const auto* p : programme::registre().panneaux)
        for (const auto* c : p->controles()) {
            using enum shell::genre;
            const auto g = c->espece();
            const bool sans_legende = g == texte || g == liste || g == deroulante || g == barre ||
                                      g == curseur || g == hautbas || g == outil || c->a(shell::symbole) ||
                                      (g == bouton && c->regarde().texte.empty());
            EXPECT_TRUE(!sans_legende || !bulles::bulle(*c).empty()) << p->nom() << '.' << c->nom();
            EXPECT_FALSE(p->est_charge());
        }
    // 1234 x 50 and one counts of 30 ns, twice a pulse: 1e9 / (2 x 61701 x 30) = 270.1
    frmaltazpilot::pied.reglage.champ(2).ecrit("1234");
    EXPECT_NE(bulles::bulle(frmaltazpilot::pied.reglage.champ(2)).find(" 270 impulsions"), std::string::npos);
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
