#include "piloting/pilotage.h"

#include "base/valeurs.h"
#include "seam/plateforme.h"

namespace piloting {

using namespace cmd_moteur;

namespace {

constexpr std::array<const char*, 5> jauges = {"I", "IIII", "IIIIIII", "IIIIIIIIII", "IIIIIIIIIIIII"};

void charge(const pilote& p) {
    p.fiche.largeur(p.largeur_fermee);
    p.classe_az.valeur(3);
    p.classe_alt.valeur(3);
    classevitaz = entier16{p.classe_az.valeur()};
    classevitalt = entier16{p.classe_alt.valeur()};
    p.numero_az.ecrit("4");
    p.numero_alt.ecrit("4");
    cmdsens = 0;
    for (std::size_t i = 0; i < p.table.size(); ++i)
        p.reglage.champ(i).ecrit(p.table[i].reel() / comptes_par_unite);
    for (std::size_t i = 0; i < p.table.size(); ++i)
        p.reglage.barre(i).place(p.reglage.champ(i).nombre32(), {p.fichier});
    plateforme::Out32(plateforme::registre_controle, plateforme::controle_ordinateur);
}

void relache_directions(const pilote& p, const shell::champ_bouton* sauf) {
    for (const auto& d : p.directions)
        if (d.bouton != sauf)
            d.bouton->enfonce(false);
}

// The button is pressed while its click is handled.
void deplace(const pilote& p, const direction& d) {
    cmdsens = d.commande;
    relache_directions(p, d.bouton);
    d.jog();
}

void arrete(const pilote& p) {
    cmdsens = 0;
    relache_directions(p, nullptr);
}

void change_classe(shell::champ_curseur& curseur, entier16& classe, shell::champ_texte& jauge,
                   shell::champ_texte& numero, const char* jauge_0) {
    classe = entier16{curseur.valeur()};
    const int c = classe.valeur();
    jauge.ecrit(c == 0 ? jauge_0 : jauges[static_cast<std::size_t>(c)]);
    numero.ecrit(entier16{c + 1});
    vitchange = true;
}

void bascule_section(const pilote& p) {
    const bool ferme = p.section.legende() != "8";
    p.section.legende(ferme ? "8" : "7");
    p.fiche.largeur(ferme ? p.largeur_fermee : p.largeur_ouverte);
}

// A field that reads as 0 keeps the count that stands in the table.
void enregistre(const pilote& p) {
    valeurs::ecrivain f;
    for (std::size_t i = 0; i < p.table.size(); ++i) {
        const double v = p.reglage.champ(i).nombre() * comptes_par_unite;
        if (v != 0) {
            p.table[i] = entier32{v, p.reglage.champ(i).lieu()};
            f.nombre(v);
        } else {
            f.nombre(p.table[i]);
        }
    }
    f.enregistre(plateforme::fichier_donnees(p.fichier));
}

} // namespace

void branche(const pilote& p) {
    p.fiche.au_chargement([&p] { charge(p); });
    p.fiche.au_dechargement([] { cmdsens = 0; });
    for (const auto& d : p.directions)
        d.bouton->au_clic([&p, &d] { deplace(p, d); });
    p.arret.au_clic([&p] { arrete(p); });
    p.classe_az.au_changement(
        [&p] { change_classe(p.classe_az, classevitaz, p.jauge_az, p.numero_az, p.jauge_az_0); });
    p.classe_alt.au_changement(
        [&p] { change_classe(p.classe_alt, classevitalt, p.jauge_alt, p.numero_alt, jauges[0]); });
    for (std::size_t i = 0; i < p.table.size(); ++i)
        p.reglage.barre(i).au_changement([&p, i] { p.reglage.champ(i).ecrit(p.reglage.barre(i).valeur()); });
    p.section.au_clic([&p] { bascule_section(p); });
    p.valide.au_clic([&p] { enregistre(p); });
    p.quitte.au_clic([&p] {
        cmdsens = 0;
        p.fiche.decharge();
    });
}

} // namespace piloting
