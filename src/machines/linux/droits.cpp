#include "machines/linux/droits.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace plateforme {

namespace {

constexpr int refus_en_attente = 4096; // programs that asked who the holder is; the kernel has its own limit

using ensembles = std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3>;

// The calls themselves: each thread has its own sets.
bool lit_droits(ensembles& d) {
    __user_cap_header_struct entete{_LINUX_CAPABILITY_VERSION_3, 0};
    return syscall(SYS_capget, &entete, d.data()) == 0;
}
bool pose_droits(const ensembles& d) {
    __user_cap_header_struct entete{_LINUX_CAPABILITY_VERSION_3, 0};
    return syscall(SYS_capset, &entete, d.data()) == 0;
}

std::uint32_t bit(int capacite) { return std::uint32_t{1} << (capacite % 32); }
std::size_t mot(int capacite) { return static_cast<std::size_t>(capacite / 32); }

bool reduit(const ensembles& permis) {
    // The bounding set first, while the right to shrink it may still be there. Without that right it stays,
    // and is of no use to a process that has nothing left.
    for (unsigned long droit = 0; prctl(PR_CAPBSET_READ, droit, 0, 0, 0) >= 0; ++droit)
        prctl(PR_CAPBSET_DROP, droit, 0, 0, 0);
    prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_CLEAR_ALL, 0, 0, 0);
    ensembles restent{};
    return pose_droits(permis) && lit_droits(restent) &&
           std::equal(restent.begin(), restent.end(), permis.begin(), [](const auto& a, const auto& b) {
               return !a.effective && !a.inheritable && a.permitted == b.permitted;
           });
}

/// A user's name, or his number if the file does not have it.
std::string nom_d_utilisateur(uid_t utilisateur) {
    std::string numero = std::to_string(utilisateur);
    std::ifstream comptes{"/etc/passwd"}; // name:password:number:...
    for (std::string ligne; std::getline(comptes, ligne);) {
        const auto nom = std::min(ligne.find(':'), ligne.size());
        const auto passe = ligne.find(':', nom + 1);
        if (passe != std::string::npos && ligne.compare(passe + 1, numero.size() + 1, numero + ":") == 0)
            return ligne.substr(0, nom);
    }
    return numero;
}

} // namespace

verrou::~verrou() {
    if (prise_ >= 0)
        close(prise_);
}

verrou::verrou(verrou&& autre) noexcept
    : demande_(autre.demande_), prise_(std::exchange(autre.prise_, -1)), tenant_(autre.tenant_),
      utilisateur_(autre.utilisateur_) {}

verrou& verrou::operator=(verrou&& autre) noexcept {
    std::swap(prise_, autre.prise_);
    demande_ = autre.demande_;
    tenant_ = autre.tenant_;
    utilisateur_ = autre.utilisateur_;
    return *this;
}

verrou verrouille(std::string_view nom) {
    verrou v;
    v.demande_ = true;
    sockaddr_un nomme{};
    nomme.sun_family = AF_UNIX;
    // A first byte of 0 makes the name abstract: it lives in the kernel, not in a folder.
    if (nom.size() > sizeof nomme.sun_path - 1)
        return v;
    std::memcpy(nomme.sun_path + 1, nom.data(), nom.size());
    const auto* adresse = reinterpret_cast<const sockaddr*>(&nomme);
    const auto longueur = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + nom.size());

    const int prise = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (prise < 0)
        return v;
    // A socket that listens tells those who call it whose it is.
    if (bind(prise, adresse, longueur) == 0 && listen(prise, refus_en_attente) == 0) {
        v.prise_ = prise;
        return v;
    }
    ucred tenant{};
    socklen_t taille = sizeof tenant;
    if (connect(prise, adresse, longueur) == 0 &&
        getsockopt(prise, SOL_SOCKET, SO_PEERCRED, &tenant, &taille) == 0) {
        v.tenant_ = tenant.pid;
        v.utilisateur_ = tenant.uid;
    }
    close(prise);
    return v;
}

std::string message_port_occupe(const verrou& v) {
    std::string texte = "Le port parallèle est déjà tenu par un autre programme Velmoria";
    if (v.tenant() != 0)
        texte += " (processus " + std::to_string(v.tenant()) + ", utilisateur " +
                 nom_d_utilisateur(v.utilisateur()) + ")";
    return texte + " : quittez-le avant de lancer celui-ci.";
}

bool a_le_droit(int capacite) {
    ensembles d{};
    return lit_droits(d) && (d[mot(capacite)].permitted & bit(capacite));
}

bool abandonne_droits() { return reduit({}); }

bool garde_un_droit(int capacite) {
    ensembles permis{};
    permis[mot(capacite)].permitted = bit(capacite);
    return reduit(permis);
}

bool met_en_vigueur(int capacite) {
    ensembles d{};
    if (!lit_droits(d))
        return false;
    for (auto& m : d)
        m.effective = 0;
    if (capacite >= 0)
        d[mot(capacite)].effective = bit(capacite);
    return pose_droits(d);
}

} // namespace plateforme
