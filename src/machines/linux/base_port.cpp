#include "machines/linux/base_port.h"

#include "seam/port.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fstream>

namespace plateforme {

namespace fs = std::filesystem;

namespace {

constexpr int bases_classiques[] = {0x278, 0x378, 0x3BC};
constexpr std::uint64_t classe_parallele = 0x0701;       // the class file shows one byte more
constexpr std::uint64_t plage_d_entrees_sorties = 0x100; // among the flags of a resource
constexpr int dernier_registre = 0xFFFF;

/// The names in a folder, in order; none if it cannot be read.
std::vector<fs::path> contenu(const fs::path& dossier) {
    std::vector<fs::path> noms;
    std::error_code erreur;
    for (fs::directory_iterator i{dossier, erreur}, fin; !erreur && i != fin; i.increment(erreur))
        noms.push_back(i->path());
    std::sort(noms.begin(), noms.end());
    return noms;
}

// N of a folder named parportN, -1 for another name.
int numero_de(const fs::path& dossier) {
    constexpr std::string_view debut = "parport";
    const std::string nom = dossier.filename();
    int n = -1;
    if (nom.starts_with(debut))
        std::from_chars(nom.data() + debut.size(), nom.data() + nom.size(), n);
    return n;
}

void ajoute(std::vector<port_connu>& connus, port_connu p) {
    if (p.base > 0 && p.base + 2 <= dernier_registre &&
        std::none_of(connus.begin(), connus.end(), [&](const port_connu& c) { return c.base == p.base; }))
        connus.push_back(p);
}

std::string liste(const std::vector<port_connu>& connus) {
    std::string texte;
    for (const auto& c : connus)
        texte += (texte.empty() ? "" : ", ") + adresse(c.base);
    return texte;
}

} // namespace

std::vector<port_connu> ports_connus(const racines& r) {
    std::vector<port_connu> connus;
    for (const auto& dossier : contenu(r.proc / "sys/dev/parport"))
        if (const int numero = numero_de(dossier); numero >= 0) {
            int base = 0;
            std::ifstream{dossier / "base-addr"} >> base;
            ajoute(connus, {base, numero});
        }
    for (const auto& dossier : contenu(r.sys / "bus/pci/devices")) {
        std::uint64_t classe = 0;
        std::ifstream{dossier / "class"} >> std::hex >> classe;
        if (classe >> 8 != classe_parallele)
            continue;
        std::ifstream plages{dossier / "resource"};
        std::uint64_t debut = 0;
        std::uint64_t fin = 0;
        std::uint64_t genre = 0;
        while (plages >> std::hex >> debut >> fin >> genre)
            if ((genre & plage_d_entrees_sorties) && fin >= debut + 2 && fin <= dernier_registre) {
                ajoute(connus, {static_cast<int>(debut), -1});
                break;
            }
    }
    return connus;
}

choix_de_port choisit_port(const std::vector<port_connu>& connus, std::optional<int> voulue) {
    const auto avec = [&connus](int base) {
        const auto c = std::find_if(connus.begin(), connus.end(),
                                    [base](const port_connu& p) { return p.base == base; });
        return c == connus.end() ? port_connu{base, -1} : *c;
    };
    const auto connue = [&connus](int base) {
        return std::any_of(connus.begin(), connus.end(),
                           [base](const port_connu& p) { return p.base == base; });
    };
    if (voulue) {
        if (connue(*voulue) || std::count(std::begin(bases_classiques), std::end(bases_classiques), *voulue))
            return {avec(*voulue), {}, {}};
        return {
            {},
            {},
            "L'adresse " + adresse(*voulue) +
                " n'est pas celle d'un port parallèle : --port accepte 0x278, 0x378, 0x3bc, et celles que le "
                "noyau indique (" +
                (connus.empty() ? "aucune ici" : liste(connus)) + ")."};
    }
    if (connus.size() > 1)
        return {avec(registre_donnees),
                "Le noyau indique plusieurs ports parallèles (" + liste(connus) + ") : le programme prend " +
                    adresse(registre_donnees) + " ; l'option --port ADRESSE en choisit un autre.",
                {}};
    if (connus.size() == 1 && !connue(registre_donnees))
        return {connus.front(),
                "Port parallèle à l'adresse " + adresse(connus.front().base) +
                    ", la seule que le noyau indique.",
                {}};
    return {avec(registre_donnees), {}, {}};
}

std::optional<int> lit_adresse(const std::string& texte) {
    const bool hexa = texte.starts_with("0x") || texte.starts_with("0X");
    const char* debut = texte.data() + (hexa ? 2 : 0);
    const char* fin = texte.data() + texte.size();
    int valeur = 0;
    const auto lu = std::from_chars(debut, fin, valeur, hexa ? 16 : 10);
    if (lu.ec != std::errc{} || lu.ptr != fin || valeur < 0 || valeur > dernier_registre)
        return std::nullopt;
    return valeur;
}

std::string adresse(int base) {
    char texte[16];
    std::snprintf(texte, sizeof texte, "0x%x", static_cast<unsigned>(base));
    return texte;
}

} // namespace plateforme
