#include "machines/linux/droits.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

namespace plateforme {

bool verrouille(std::string_view nom) {
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    // A first byte of 0 makes the name abstract: it lives in the kernel, not in a folder.
    if (nom.size() > sizeof adresse.sun_path - 1)
        return false;
    std::memcpy(adresse.sun_path + 1, nom.data(), nom.size());
    const auto longueur = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + nom.size());

    const int prise_locale = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (prise_locale < 0)
        return false;
    if (bind(prise_locale, reinterpret_cast<const sockaddr*>(&adresse), longueur) != 0) {
        close(prise_locale);
        return false;
    }
    return true; // the socket stays open until the process ends: it is the lock
}

bool verrouille_port() { return verrouille("velmoria-port-888"); }

bool abandonne_droits() {
    // The bounding set first, while the right to shrink it may still be there. Without that right it stays,
    // and is of no use to a process that has nothing left.
    for (unsigned long droit = 0; prctl(PR_CAPBSET_READ, droit, 0, 0, 0) >= 0; ++droit)
        prctl(PR_CAPBSET_DROP, droit, 0, 0, 0);
    prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_CLEAR_ALL, 0, 0, 0);

    __user_cap_header_struct entete{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> droits{};
    if (syscall(SYS_capset, &entete, droits.data()) != 0)
        return false;
    if (syscall(SYS_capget, &entete, droits.data()) != 0)
        return false;
    for (const auto& d : droits)
        if (d.effective || d.permitted || d.inheritable)
            return false;
    return true;
}

} // namespace plateforme
