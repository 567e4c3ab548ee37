#include "piloting/pilotage.h"

#include "base/valeurs.h"
#include "seam/plateforme.h"

namespace piloting {

using namespace cmd_moteur;

namespace {

constexpr std::array<const char*, 5> jauges = {"I", "IIII", "IIIIIII", "IIIIIIIIII", "IIIIIIIIIIIII"};

void charge(const pilote& p) {
    auto& reglage = p.pied.reglage;
    p.fiche.largeur(p.largeur_fermee);
    p.azimut.curseur.valeur(3);
    p.altitude.curseur.valeur(3);
    classevitaz = {p.azimut.curseur.valeur(), p.azimut.curseur.lieu()};
    classevitalt = {p.altitude.curseur.valeur(), p.altitude.curseur.lieu()};
    p.azimut.numero.ecrit("4");
    p.altitude.numero.ecrit("4");
    cmdsens = 0;
    for (std::size_t i = 0; i < p.table.size(); ++i)
        reglage.champ(i).ecrit(p.table[i].reel() / comptes_par_unite);
    for (std::size_t i = 0; i < p.table.size(); ++i)
        reglage.barre(i).place(reglage.champ(i).nombre32(), p.fichier);
    plateforme::Out32(plateforme::registre_controle, plateforme::controle_ordinateur);
}

// A direction button, its command and the loop it starts.
struct direction {
    shell::champ_bouton& bouton;
    entier16 commande;
    void (*jog)();
};
std::array<direction, 4> directions(const pilote& p) {
    auto& d = p.deplacement;
    return {
        {{d.cmdag, 2, p.jog_az}, {d.cmdad, 1, p.jog_az}, {d.cmdhb, 4, p.jog_alt}, {d.cmdhh, 3, p.jog_alt}}};
}

void relache_directions(const pilote& p, const shell::champ_bouton* sauf) {
    for (const auto& d : directions(p))
        if (&d.bouton != sauf)
            d.bouton.enfonce(false);
}

// The button is pressed while its click is handled.
void deplace(const pilote& p, const direction& d) {
    cmdsens = d.commande;
    relache_directions(p, &d.bouton);
    d.jog();
}

void arrete(const pilote& p) {
    cmdsens = 0;
    relache_directions(p, nullptr);
}

void change_classe(champs_classe& c, entier16& classe, const char* jauge_0) {
    classe = {c.curseur.valeur(), c.curseur.lieu()};
    const int n = classe.valeur();
    c.jauge.ecrit(n == 0 ? jauge_0 : jauges[static_cast<std::size_t>(n)]);
    c.numero.ecrit(entier32{n + 1});
    vitchange = true;
}

} // namespace

void bascule_section(shell::champ_etiquette& fleche, shell::panneau& fiche, int fermee, int ouverte) {
    const bool ferme = fleche.legende() != fleches::ouvre;
    fleche.legende(ferme ? fleches::ouvre : fleches::referme);
    fiche.largeur(ferme ? fermee : ouverte);
}

void enregistre_comptes(const char* fichier, std::span<entier32> table,
                        const std::function<shell::champ_texte&(std::size_t)>& champ, double facteur) {
    valeurs::ecrivain f;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double v = champ(i).nombre() * facteur;
        if (v != 0) {
            table[i] = {v, champ(i).lieu()};
            f.nombre(v);
        } else {
            f.nombre(table[i]);
        }
    }
    f.enregistre(plateforme::fichier_donnees(fichier));
}

void branche(const pilote& p) {
    auto& pied = p.pied;
    p.fiche.au_chargement([&p] { charge(p); });
    p.fiche.au_dechargement([] { cmdsens = 0; });
    for (const auto& d : directions(p))
        d.bouton.au_clic([&p, d] { deplace(p, d); });
    p.deplacement.cmddstop.au_clic([&p] { arrete(p); });
    p.azimut.curseur.au_changement([&p] { change_classe(p.azimut, classevitaz, p.jauge_az_0); });
    p.altitude.curseur.au_changement([&p] { change_classe(p.altitude, classevitalt, jauges[0]); });
    for (std::size_t i = 0; i < p.table.size(); ++i)
        pied.reglage.barre(i).au_changement(
            [&r = pied.reglage, i] { r.champ(i).ecrit(r.barre(i).valeur()); });
    pied.lblvit.au_clic(
        [&p] { bascule_section(p.pied.lblvit, p.fiche, p.largeur_fermee, p.largeur_ouverte); });
    pied.cmdvalid.au_clic([&p] {
        enregistre_comptes(
            p.fichier, p.table, [&p](std::size_t i) -> auto& { return p.pied.reglage.champ(i); },
            comptes_par_unite);
    });
    pied.Cmdquit.au_clic([&p] {
        cmdsens = 0;
        p.fiche.decharge();
    });
}

} // namespace piloting
