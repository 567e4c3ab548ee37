#include "base/fichier.h"

#include "base/fatale.h"
#include "base/provisoire.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace base {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t bloc = 16384;
constexpr int liens_au_plus = 40; // as the kernel itself
constexpr int noms_au_plus = 100;
constexpr mode_t mode_neuf = 0666; // less the account's mask
constexpr mode_t mode_cache = 0600;
constexpr mode_t bits_de_mode = 07777;

constexpr std::array<std::pair<int, const char*>, 17> raisons = {
    {{ENOSPC, "disque plein"},
     {EDQUOT, "quota du disque atteint"},
     {EFBIG, "fichier trop grand"},
     {EACCES, "accès refusé"},
     {EPERM, "accès refusé"},
     {EROFS, "disque en lecture seule"},
     {EIO, "erreur du disque"},
     {ENOENT, "fichier ou dossier absent"},
     {ENOTDIR, "ce qui devrait être un dossier n'en est pas un"},
     {EISDIR, "c'est un dossier"},
     {ELOOP, "liens en boucle"},
     {ENAMETOOLONG, "nom trop long"},
     {EMFILE, "trop de fichiers ouverts"},
     {ENFILE, "trop de fichiers ouverts"},
     {ENOMEM, "mémoire pleine"},
     {EBUSY, "fichier occupé"},
     {ESTALE, "disque du réseau perdu"}}};

[[noreturn]] void refuse(cause c, const fs::path& chemin, const std::string& pourquoi) {
    fatale(c, chemin.string() + " (" + pourquoi + ")");
}

// A system call of a save, unless a test has it fail.
template <class F> auto appel(std::string_view nom, F f) {
    if (const int erreur = avant_appel ? avant_appel(nom) : 0) {
        errno = erreur;
        return decltype(f()){-1};
    }
    return f();
}

std::string pourquoi_pas_ordinaire(mode_t mode) {
    return S_ISDIR(mode) ? raison(EISDIR) : "ce n'est pas un fichier ordinaire";
}

// Whether an error says that the folder takes no new file, or none in the old one's place.
bool dossier_ferme(int erreur) {
    return erreur == EACCES || erreur == EPERM || erreur == EROFS || erreur == EBUSY || erreur == EXDEV;
}

// One save: the file where the links lead, and what stands there.
class sauvegarde {
  public:
    sauvegarde(const fs::path& nom, std::string_view octets)
        : nom_(nom), octets_(octets), vise_(suit_les_liens()) {
        existe_ = appel("stat", [&] { return stat(vise_.c_str(), &ancien_); }) == 0;
        if (!existe_ && errno != ENOENT)
            echoue(errno);
        if (existe_ && !S_ISREG(ancien_.st_mode))
            refuse(cause::ecriture_impossible, nom_, pourquoi_pas_ordinaire(ancien_.st_mode));
        // A file that its owner closed to writing must not be replaced either.
        if (existe_ &&
            appel("access", [&] { return faccessat(AT_FDCWD, vise_.c_str(), W_OK, AT_EACCESS); }) != 0)
            echoue(errno);
    }

    void fait() {
        if (!ouvre_a_cote()) {
            if (!existe_ || !dossier_ferme(errno))
                echoue(errno);
            ecrit_sur_place();
            return;
        }
        const bool ecrit = prend_ses_droits() && ecrit_tout(a_cote_.descripteur());
        if (ecrit && appel("rename", [&] { return rename(provisoire_.c_str(), vise_.c_str()); }) == 0) {
            retient_le_dossier();
            return;
        }
        const int erreur = errno;
        appel("unlink", [&] { return unlink(provisoire_.c_str()); });
        if (!ecrit || !existe_ || !dossier_ferme(erreur))
            echoue(erreur);
        ecrit_sur_place();
    }

  private:
    [[noreturn]] void echoue(int erreur) const { refuse(cause::ecriture_impossible, nom_, raison(erreur)); }

    fs::path suit_les_liens() const {
        auto ici = nom_;
        for (int i = 0; i < liens_au_plus; ++i) {
            std::array<char, 4096> cible;
            const auto n =
                appel("readlink", [&] { return readlink(ici.c_str(), cible.data(), cible.size()); });
            if (n < 0 && errno != EINVAL && errno != ENOENT) // no link, or nothing yet
                echoue(errno);
            if (n < 0)
                return ici;
            ici = ici.parent_path() / std::string_view{cible.data(), static_cast<std::size_t>(n)};
        }
        echoue(ELOOP);
    }

    // A file of our own in the same folder, not readable by more accounts than the old one.
    bool ouvre_a_cote() {
        const auto souche = "." + vise_.filename().string() + ".provisoire-";
        balaie(vise_.parent_path(), souche);
        for (int i = 0; i < noms_au_plus; ++i) {
            provisoire_ = vise_.parent_path() / (souche + std::to_string(getpid() + i));
            const int d = appel("open", [&] {
                return open(provisoire_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                            existe_ ? mode_cache : mode_neuf);
            });
            if (d < 0 && errno != EEXIST)
                return false;
            if (d < 0)
                continue;
            a_cote_ = tenue{d};
            if (fs::exists(provisoire_)) // not swept before it was held
                return true;
        }
        errno = EBUSY;
        return false;
    }

    // Those of the old file. An account may give a file away to its groups only, never to another account:
    // then the new one belongs to who saved it.
    bool prend_ses_droits() {
        struct stat neuf;
        const int d = a_cote_.descripteur();
        if (!existe_)
            return true;
        if (appel("fstat", [&] { return fstat(d, &neuf); }) != 0)
            return false;
        if ((neuf.st_uid != ancien_.st_uid || neuf.st_gid != ancien_.st_gid) &&
            appel("fchown", [&] { return fchown(d, ancien_.st_uid, ancien_.st_gid); }) != 0)
            appel("fchown", [&] { return fchown(d, static_cast<uid_t>(-1), ancien_.st_gid); });
        const auto mode = ancien_.st_mode & bits_de_mode;
        return (neuf.st_mode & bits_de_mode) == mode || appel("fchmod", [&] { return fchmod(d, mode); }) == 0;
    }

    bool ecrit_tout(int d) const {
        for (auto reste = octets_; !reste.empty();) {
            const auto n =
                appel("write", [&] { return write(d, reste.data(), std::min(reste.size(), bloc)); });
            if (n < 0 && errno != EINTR)
                return false;
            if (n > 0)
                reste.remove_prefix(static_cast<std::size_t>(n));
        }
        return appel("fsync", [&] { return fsync(d); }) == 0 || errno == EINVAL; // no disk behind it
    }

    // So that the renaming itself outlasts a power cut. The save is done whatever comes of it.
    void retient_le_dossier() const {
        const auto dossier = vise_.parent_path().empty() ? fs::path{"."} : vise_.parent_path();
        const int d =
            appel("open", [&] { return open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
        if (d < 0)
            return;
        appel("fsync", [&] { return fsync(d); });
        close(d);
    }

    // Over the old text before what is left of it is cut off: a full disk is met as late as can be.
    void ecrit_sur_place() {
        tenue t{appel("open", [&] { return open(vise_.c_str(), O_WRONLY | O_CLOEXEC); })};
        if (t.descripteur() < 0)
            echoue(errno);
        const auto longueur = static_cast<off_t>(octets_.size());
        if (!ecrit_tout(t.descripteur()) ||
            appel("ftruncate", [&] { return ftruncate(t.descripteur(), longueur); }) != 0)
            refuse(cause::ecriture_impossible, nom_,
                   raison(errno) + " ; le dossier n'accepte pas de nouveau fichier, celui-ci a été écrit sur "
                                   "place et il est peut-être incomplet");
    }

    const fs::path& nom_;
    std::string_view octets_;
    fs::path vise_;
    struct stat ancien_ {};
    bool existe_ = false;
    fs::path provisoire_;
    tenue a_cote_;
};

} // namespace

std::string raison(int erreur) {
    for (const auto& [numero, texte] : raisons)
        if (numero == erreur)
            return texte;
    return "erreur " + std::to_string(erreur) + " du système";
}

std::string lit_fichier(const fs::path& chemin) {
    const auto rate = cause::fichier_introuvable;
    const int d = open(chemin.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // a pipe would wait for a writer
    if (d < 0)
        refuse(rate, chemin, raison(errno));
    const struct fermeture {
        int d;
        ~fermeture() { close(d); }
    } a_la_fin{d};
    struct stat s;
    if (fstat(d, &s) != 0)
        refuse(rate, chemin, raison(errno));
    if (!S_ISREG(s.st_mode))
        refuse(rate, chemin, pourquoi_pas_ordinaire(s.st_mode));
    std::string octets;
    octets.reserve(static_cast<std::size_t>(s.st_size));
    std::array<char, 65536> lus;
    for (;;) {
        const auto n = read(d, lus.data(), lus.size());
        if (n == 0)
            return octets;
        if (n < 0 && errno != EINTR)
            refuse(rate, chemin, raison(errno));
        if (n > 0)
            octets.append(lus.data(), static_cast<std::size_t>(n));
    }
}

void ecrit_fichier(const fs::path& chemin, std::string_view octets) { sauvegarde{chemin, octets}.fait(); }

} // namespace base
