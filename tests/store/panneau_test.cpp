#include "essai.h"
#include "store/controles.h"

namespace essai {

using namespace shell;

inline constinit panneau fiche{"essai", "Essai", 3000, 2000};
inline constinit champ_cadre cadre{fiche, "cadre", {}, {.legende = "Cadre"}};
inline constinit champ_texte texte{fiche, "texte", {1, 2, 3, 4}, {.legende = "12abc", .cadre = &cadre}};
inline constinit champ_bouton bouton{fiche, "bouton", {}, {.cadre = &cadre}};
inline constinit champ_bouton stop{fiche, "stop", {}, {.traits = arret | echap}};
inline constinit champ_liste liste_objets{fiche, "liste", {}};
inline constinit champ_deroulante annee{fiche, "annee", {}, {.traits = sans_vide}};
inline constinit minuteur horloge{fiche, "horloge", {.intervalle = 100}};
inline constinit tableau<champ_texte, 2> cases{fiche, "cases", {{}, {}}};

struct prive {
    int compte = 0;
};
inline prive p;

} // namespace essai

using namespace essai;
using base::cause;
using essais::attend_echec;

namespace {

class Panneau : public essais::Essai {
  protected:
    Panneau() {
        fiche.construit(shell::liste(cadre, texte, bouton, stop, liste_objets, annee, horloge, cases));
        fiche.au_chargement([this] { journal += "charge "; });
        fiche.au_dechargement([this] { journal += fiche.est_charge() ? "decharge " : "trop tard "; });
        fiche.remise_a_zero([] { p = {}; });
        bouton.au_clic([this] { journal += bouton.enfonce() ? "clic " : "sans appui "; });
        stop.au_clic([this] { journal += "stop "; });
        liste_objets.au_clic([this] { journal += "choix" + std::to_string(liste_objets.position()) + " "; });
        liste_objets.au_double_clic([this] { journal += "double "; });
        liste_objets.au_clic_droit([this] { journal += "droit "; });
    }
    std::string pris() { return std::exchange(journal, {}); }
    std::string journal;
};

} // namespace

TEST_F(Panneau, AnyAccessLoadsItAndShowsNothing) {
    EXPECT_FALSE(fiche.est_charge());
    EXPECT_EQ(texte.nombre(), 12);
    EXPECT_EQ(pris(), "charge ");
    EXPECT_FALSE(fiche.est_visible());
    texte.ecrit("5");
    EXPECT_EQ(pris(), "") << "loaded once";
    const std::function<void()> acces[] = {[] { fiche.largeur(10); }, [] { horloge.marche(true); },
                                           [] { bouton.clic(); }, [] { cases(1).actif(false); }};
    for (const auto& a : acces) {
        fiche.decharge();
        pris();
        a();
        EXPECT_EQ(pris().substr(0, 7), "charge ");
    }
    fiche.decharge();
    EXPECT_EQ(texte.regarde().texte, "12abc");
    EXPECT_FALSE(fiche.est_charge()) << "looking loads nothing";
}

TEST_F(Panneau, UnloadBringsBackTheDesign) {
    fiche.decharge();
    fiche.ferme();
    EXPECT_EQ(pris(), "") << "not loaded: nothing to do";
    texte.ecrit("autre");
    liste_objets.ajoute(std::vector<std::string>{"a", "b"});
    bouton.visible(false);
    fiche.largeur(999);
    fiche.legende("x");
    fiche.montre();
    horloge.marche(true);
    p.compte = 7;
    pris();
    fiche.ferme();
    EXPECT_EQ(pris(), "decharge ");
    EXPECT_FALSE(fiche.est_charge() || fiche.est_visible());
    EXPECT_EQ(fiche.regarde_largeur(), 3000);
    EXPECT_EQ(fiche.regarde_legende() + texte.regarde().texte, "Essai12abc");
    EXPECT_TRUE(liste_objets.regarde().lignes.empty() && bouton.regarde().visible);
    EXPECT_EQ(p.compte, 0);
    boucle.avance(1'000'000'000);
    EXPECT_FALSE(horloge.regarde().marche);
    // From its own handlers it ends once.
    fiche.au_dechargement([this] {
        journal += "decharge ";
        fiche.decharge();
        texte.ecrit("pendant");
    });
    bouton.au_clic([] { fiche.decharge(); });
    bouton.clic();
    EXPECT_EQ(pris(), "charge decharge ");
    EXPECT_FALSE(fiche.est_charge());
}

TEST_F(Panneau, ActsDoNothingOnWhatAPersonCannotReach) {
    fiche.charge();
    pris();
    cadre.visible(false);
    bouton.clic();
    texte.saisit("x");
    EXPECT_EQ(pris() + texte.lit(), "12abc");
    cadre.visible(true);
    bouton.clic();
    EXPECT_EQ(pris(), "clic ") << "a panel that is loaded but not shown is no obstacle";
    EXPECT_FALSE(bouton.enfonce());
    int tics = 0;
    horloge.au_tic([&] { ++tics; });
    horloge.marche(true);
    shell::gele();
    bouton.clic();
    stop.clic();
    fiche.touche_echap();
    fiche.ferme();
    boucle.avance(1'000'000'000);
    EXPECT_EQ(pris(), "") << "frozen after a failure";
    EXPECT_EQ(tics, 0);
}

TEST_F(Panneau, ListsKeepTheirPositionInRange) {
    liste_objets.ajoute(std::vector<std::string>{"a", "b", "c"});
    pris();
    liste_objets.position(1);
    liste_objets.position(1);
    EXPECT_EQ(pris(), "choix1 ") << "by code: a change fires, the same value does not";
    liste_objets.choisit(1);
    EXPECT_EQ(pris(), "choix1 ") << "a person's click always does";
    liste_objets.choisit(3);
    liste_objets.choisit(-2);
    EXPECT_EQ(pris(), "");
    liste_objets.double_clic(2);
    EXPECT_EQ(pris(), "choix2 double ");
    liste_objets.droit(-1);
    EXPECT_EQ(pris(), "droit ");
    EXPECT_EQ(liste_objets.position(), -1);
    EXPECT_NE(attend_echec(cause::propriete, [] { liste_objets.position(3); }).find("essai.liste"),
              std::string::npos);
    attend_echec(cause::propriete, [] { liste_objets.position(-2); });
    attend_echec(cause::indice, [] { liste_objets.ligne(3); });
    liste_objets.vide();
    EXPECT_EQ(liste_objets.position(), -1);
    annee.ajoute(std::vector<std::string>{"0", "1"});
    annee.position(1);
    attend_echec(cause::propriete, [] { annee.position(-1); });
    EXPECT_EQ(annee.position(), 1);
}

// ---- timers

TEST_F(Panneau, ATickIsDueOneIntervalAfterTheStartOfTheLast) {
    std::vector<std::int64_t> instants; // ms
    horloge.au_tic([&] {
        instants.push_back(boucle.temps() / 1'000'000);
        if (instants.size() == 2)
            boucle.attend(250'000'000); // this tick outlasts two intervals, without yielding
    });
    horloge.marche(true);
    horloge.marche(true);
    boucle.avance(620'000'000);
    // 200 lasts to 450: the tick due at 300 comes late, the one of 400 is dropped.
    EXPECT_EQ(instants, (std::vector<std::int64_t>{100, 200, 450, 550}));
}

TEST_F(Panneau, ATickIsNeverReentered) {
    int profondeur = 0, plus_profond = 0, tics = 0;
    horloge.au_tic([&] {
        plus_profond = std::max(plus_profond, ++profondeur);
        if (++tics == 1)
            for (int i = 0; i < 30; ++i) { // 300 ms of motion, yielding
                boucle.attend(10'000'000);
                boucle.cede();
                if (i == 12) { // neither an unload nor a new interval lets it in
                    fiche.decharge();
                    horloge.intervalle(20);
                    horloge.marche(true);
                }
            }
        --profondeur;
    });
    horloge.marche(true);
    boucle.avance(430'000'000);
    EXPECT_EQ(plus_profond, 1);
    // 100 to 400 the first; the one held back at 400; then every 20 ms: 420.
    EXPECT_EQ(tics, 3);
}
