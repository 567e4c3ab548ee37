#include "base/provisoire.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace base {

namespace fs = std::filesystem;

namespace {
const char* const prefixe_des_dossiers = "velmoria-provisoire-";
}

tenue::tenue(int descripteur) : descripteur_(descripteur) {
    if (descripteur_ >= 0)
        flock(descripteur_, LOCK_EX);
}

tenue::~tenue() {
    if (descripteur_ >= 0)
        close(descripteur_);
}

tenue::tenue(tenue&& autre) noexcept : descripteur_(std::exchange(autre.descripteur_, -1)) {}

tenue& tenue::operator=(tenue&& autre) noexcept {
    std::swap(descripteur_, autre.descripteur_);
    return *this;
}

void balaie(const fs::path& dossier, const std::string& prefixe) {
    std::error_code ignoree;
    for (fs::directory_iterator i{dossier.empty() ? "." : dossier, ignoree}, fin; i != fin;
         i.increment(ignoree)) {
        if (!i->path().filename().string().starts_with(prefixe))
            continue;
        const int d = open(i->path().c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (d < 0)
            continue;
        if (flock(d, LOCK_EX | LOCK_NB) == 0)
            fs::remove_all(i->path(), ignoree);
        close(d);
    }
}

dossier_provisoire::dossier_provisoire() {
    const auto parent = fs::temp_directory_path();
    balaie(parent, prefixe_des_dossiers);
    do {
        std::string modele = (parent / (std::string{prefixe_des_dossiers} + "XXXXXX")).string();
        if (!mkdtemp(modele.data()))
            throw fs::filesystem_error{"mkdtemp", parent, std::error_code{errno, std::generic_category()}};
        chemin = modele;
        tenue_ = tenue{open(chemin.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    } while (!fs::exists(chemin)); // swept by another process before it was held
}

dossier_provisoire::~dossier_provisoire() {
    std::error_code ignoree;
    fs::remove_all(chemin, ignoree);
}

} // namespace base
