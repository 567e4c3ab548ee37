#include "machines/virtual/meneur.h"

#include "base/fichier.h"
#include "base/nombre.h"
#include "base/octets.h"
#include "bench/unites.h"
#include "frame/programme.h"
#include "machines/virtual/actes.h"
#include "machines/virtual/mots.h"
#include "machines/virtual/valeur_montree.h"

#include <algorithm>
#include <fstream>
#include <istream>
#include <optional>
#include <ostream>

namespace plateforme {

namespace fs = std::filesystem;

namespace {

std::int64_t duree(const std::string& s) {
    static constexpr std::pair<std::string_view, double> unites[] = {
        {"ms", 1e6}, {"min", 60e9}, {"s", 1e9}, {"h", 3600e9}};
    for (const auto& [unite, ns] : unites) {
        if (!s.ends_with(unite))
            continue;
        const auto chiffres = s.substr(0, s.size() - unite.size());
        const double x = base::est_nombre(chiffres) ? base::nombre(chiffres, "durée") * ns : -1;
        if (x >= 0 && x <= 9e18)
            return std::llround(x);
    }
    throw ligne_incomprise{"une durée était attendue (250ms, 10s, 2h) : \"" + s + "\""};
}

instant date_et_heure(const std::string& s) {
    if (const auto i = lit_date(s))
        return *i;
    throw ligne_incomprise{"une date et une heure étaient attendues (2001-08-15 22:00:00.000) : \"" + s +
                           "\""};
}

// Whether a data file's name stays inside the data folder: a scenario changes its private copy and nothing
// else.
bool dans_le_dossier(const fs::path& nom) {
    return !nom.empty() && nom.is_relative() && std::find(nom.begin(), nom.end(), "..") == nom.end();
}

} // namespace

meneur::meneur(const partie& p) : partie_(p), vue_(p.sortie, [this] { return choix_de_menu(); }) {
    boucle_.regle_horloge({.annee = 2001, .mois = 1, .jour = 1, .heure = 12});
    courante = {&port_, &boucle_, &boucle_, prive_.chemin / "data"};
    shell::vue_courante = &vue_;
    copie_donnees(p.donnees);
    programme::construit();
}

void meneur::copie_donnees(const fs::path& origine) {
    try {
        fs::remove_all(courante.donnees);
        fs::create_directory(courante.donnees);
        for (const auto& f :
             fs::recursive_directory_iterator{origine, fs::directory_options::follow_directory_symlink}) {
            const auto copie = courante.donnees / f.path().lexically_relative(origine);
            if (f.is_directory()) {
                fs::create_directory(copie);
                continue;
            }
            if (!f.is_regular_file())
                throw ligne_incomprise{"dossier de données : " + f.path().string() +
                                       " : ce n'est pas un fichier ordinaire"};
            fs::copy_file(f.path(), copie);
            fs::permissions(copie, fs::perms::owner_write, fs::perm_options::add);
        }
    } catch (const fs::filesystem_error& e) {
        throw ligne_incomprise{"dossier de données : " + e.path1().string() + " : " +
                               base::raison(e.code().value())};
    }
}

bool meneur::ligne_suivante(std::string& commande) {
    if (lue_d_avance_) {
        lue_d_avance_ = false;
        commande = en_attente_;
        return true;
    }
    while (std::getline(partie_.lignes, commande)) {
        ++numero_;
        if (commande.ends_with('\r'))
            commande.pop_back();
        commande.erase(0, std::min(commande.find_first_not_of(" \t"), commande.size()));
        if (!commande.empty() && commande.front() != '#')
            return true;
    }
    return false;
}

bool meneur::avance_d_une_ligne() {
    std::string commande;
    if (!ligne_suivante(commande))
        return false;
    boucle_.commence_acte();
    execute(commande);
    return true;
}

void meneur::suit_en_cendres() {
    std::string commande;
    while (ligne_suivante(commande)) {
        if (commande == "quitte")
            return;
        const auto [mot, quoi] = premier_mot(commande);
        const auto sujet = premier_mot(quoi).first;
        if (mot == "montre" && (sujet == "ecritures" || sujet == "impulsions" || sujet == "fichier"))
            montre(quoi);
    }
}

std::string meneur::choix_de_menu() {
    const auto echeance = boucle_.echeance();
    if (echeance >= 0) {
        const auto ordre = boucle_.retire(echeance, "menu ");
        return ordre.empty() ? "-" : ordre.substr(5);
    }
    std::string commande;
    if (!ligne_suivante(commande))
        return "-";
    if (commande.starts_with("menu "))
        return commande.substr(5);
    en_attente_ = commande;
    lue_d_avance_ = true;
    return "-";
}

void meneur::execute(const std::string& commande) {
    const auto [mot, reste] = premier_mot(commande);
    if (mot == "quitte")
        throw fin_du_scenario{};
    try {
        if (!prepare(mot, reste) && !agit(mot, reste))
            throw ligne_incomprise{"commande inconnue : \"" + mot + "\""};
        planetarium::commence();
    } catch (const entree_inconnue& e) {
        throw ligne_incomprise{"le menu n'a pas cette entrée : \"" + e.nom + "\""};
    }
}

// What sets the scene, and what asks.
bool meneur::prepare(std::string_view mot, const std::string& reste) {
    if (mot == "horloge")
        boucle_.regle_horloge(date_et_heure(reste));
    else if (mot == "donnees")
        copie_donnees(partie_.dossier / reste);
    else if (mot == "fichier")
        ecrit_fichier(reste);
    else if (mot == "demarre") {
        if (std::exchange(demarre_, true))
            throw ligne_incomprise{"le programme a déjà démarré"};
        programme::demarre();
    } else if (mot == "a")
        planifie(reste);
    else if (mot == "avance")
        boucle_.avance(duree(reste));
    else if (mot == "montre")
        montre(reste);
    else if (mot == "attend")
        attend(reste);
    else if (mot == "zero") {
        monture_.zero();
        simule_.oublie_ecritures();
    } else if (mot == "planetarium") {
        const auto reponse = liaison_.recoit(reste == "ACK" ? std::string{planetarium::ack} : reste);
        partie_.sortie << "planetarium = " << reponse << '\n';
    } else if (mot == "raquette") {
        if (!simule_.presente(entier(reste)))
            throw ligne_incomprise{"code de raquette hors de 0 à 255 : " + reste};
    } else
        return false;
    return true;
}

void meneur::planifie(const std::string& reste) {
    const auto [quand, commande] = premier_mot(reste);
    if (commande.empty())
        throw ligne_incomprise{"il manque la commande"};
    boucle_.programme(duree(quand), commande, [this, c = commande] { execute(c); });
}

void meneur::ecrit_fichier(const std::string& reste) {
    const auto [nom, contenu] = premier_mot(reste);
    if (!dans_le_dossier(nom))
        throw ligne_incomprise{"un fichier du dossier de données était attendu : \"" + nom + "\""};
    const auto chemin = courante.donnees / nom;
    std::error_code erreur;
    if (contenu == "-") {
        fs::remove_all(chemin, erreur);
        return;
    }
    std::string octets;
    if (!contenu.empty())
        for (std::size_t debut = 0; debut <= contenu.size();) {
            const auto fin = std::min(contenu.find('|', debut), contenu.size());
            octets += base::vers_1252(contenu.substr(debut, fin - debut)) + "\r\n";
            debut = fin + 1;
        }
    fs::create_directories(chemin.parent_path(), erreur);
    if (!(std::ofstream{chemin, std::ios::binary} << octets << std::flush))
        throw ligne_incomprise{"le fichier ne s'écrit pas : " + nom};
}

std::string meneur::montre_monture() {
    const auto unites = banc::unites_du_mode();
    const auto a = monture_.position(unites.az, unites.alt);
    return "az=" + base::texte(a.az) + " alt=" + base::texte(a.alt);
}

// What `montre` prints behind the name, with the sign between them.
std::string meneur::reponse(const std::string& quoi) {
    const auto [mot, reste] = premier_mot(quoi);
    if (mot == "impulsions") {
        const auto n = monture_.compte();
        return " az0=" + std::to_string(n.az0) + " az8=" + std::to_string(n.az8) +
               " alt0=" + std::to_string(n.alt0) + " alt2=" + std::to_string(n.alt2);
    }
    if (mot == "ecritures") {
        std::string s;
        for (const auto& e : simule_.dernieres(static_cast<std::size_t>(std::max(0, entier(reste)))))
            s += " " + std::to_string(e.adresse) + ":" + std::to_string(e.valeur);
        return s;
    }
    if (mot == "monture")
        return " " + montre_monture();
    if (mot == "fichier") {
        std::error_code erreur;
        if (!fs::is_regular_file(courante.donnees / reste, erreur))
            return " " + reste + " absent";
        return " " + reste + " = " +
               sur_une_ligne(base::de_1252(base::lit_fichier(courante.donnees / reste)));
    }
    const auto v = valeur_de(programme::registre(), quoi);
    if (!v)
        throw ligne_incomprise{"rien ne porte ce nom : \"" + quoi + "\""};
    return " = " + *v;
}

void meneur::montre(const std::string& quoi) {
    if (quoi == "dessin") {
        for (const auto& p : vue_.dessin())
            partie_.sortie << "dessin " << texte_de(p) << '\n';
        return;
    }
    const auto r = reponse(quoi); // before anything is printed: asking may load a panel
    partie_.sortie << premier_mot(quoi).first << r << '\n';
}

void meneur::attend(const std::string& reste) {
    auto [sujet, attendue] = premier_mot(reste);
    if (sujet == "fichier" || sujet == "ecritures") {
        const auto [suite, valeur] = premier_mot(attendue);
        sujet += " " + suite;
        attendue = valeur;
    }
    auto r = reponse(sujet);
    const auto egal = sujet.starts_with("fichier") ? " " + sujet.substr(8) + " = " : std::string{" = "};
    r = r.starts_with(egal) ? r.substr(egal.size()) : r.substr(r.starts_with(' ') ? 1 : 0);
    if (r != attendue)
        throw attente_decue{sujet + " : \"" + attendue + "\" était attendu, la réponse est \"" + r + "\""};
}

} // namespace plateforme
