#include "base/fichier.h"
#include "essai.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using base::cause;
using base::ecrit_fichier;
using base::lit_fichier;

const std::string ancien(50'000, 'a'); // some blocks each
const std::string nouveau(40'000, 'n');
constexpr uid_t personne = 65534;

constexpr int echec_dit = 1; // the status of a fatal failure
constexpr int enregistre = 2;
constexpr int sans_avoir_compte_jusque_la = 3;

// The call of a save, counted from here, that fails or is the process's last.
int restent = -1;
int echoue(std::string_view) { return restent-- == 0 ? ENOSPC : 0; }
int meurt(std::string_view) {
    if (restent-- == 0)
        _exit(0);
    return 0;
}

// The end of a process that saves the new text: its status, or the signal, negative.
template <class F> int ailleurs(const fs::path& chemin, F prepare) {
    const pid_t enfant = fork();
    if (enfant == 0) {
        base::installe_gestionnaire([](cause, const std::string&) { _exit(echec_dit); });
        prepare();
        ecrit_fichier(chemin, nouveau);
        _exit(restent >= 0 ? sans_avoir_compte_jusque_la : enregistre);
    }
    int etat = 0;
    waitpid(enfant, &etat, 0);
    return WIFSIGNALED(etat) ? -WTERMSIG(etat) : WEXITSTATUS(etat);
}

std::ptrdiff_t fichiers_de(const fs::path& dossier) {
    return std::distance(fs::directory_iterator{dossier}, fs::directory_iterator{});
}

struct Fichier : testing::Test {
    essais::dossier_prive dossier;
    fs::path chemin = dossier.chemin / "notes.txt";

    Fichier() {
        restent = -1;
        ecrit_fichier(chemin, ancien);
    }
};

TEST_F(Fichier, IsTheOldOneOrTheNewOneWhateverCallFailsOrIsTheLast) {
    for (const auto avant : {echoue, meurt}) {
        int appels = -1;
        for (int statut = 0; statut != sans_avoir_compte_jusque_la;) {
            ecrit_fichier(chemin, ancien);
            restent = ++appels;
            statut = ailleurs(chemin, [&] { base::avant_appel = avant; });
            const auto lu = lit_fichier(chemin);
            ASSERT_TRUE(lu == nouveau || (lu == ancien && statut < enregistre)) << appels << ' ' << lu.size();
            EXPECT_TRUE(statut != echec_dit || (lu == ancien && fichiers_de(dossier.chemin) == 1)) << appels;
        }
        EXPECT_GE(appels, 11);
        EXPECT_EQ(fichiers_de(dossier.chemin), 1) << "those of killed saves are swept by the next";
    }
}

TEST_F(Fichier, OutlivesALimitAndASignal) {
    const auto limite = [](auto reaction) {
        return [reaction] {
            const rlimit l{30'000, 30'000};
            setrlimit(RLIMIT_FSIZE, &l);
            std::signal(SIGXFSZ, reaction);
        };
    };
    EXPECT_EQ(ailleurs(chemin, limite(SIG_IGN)), echec_dit);
    EXPECT_EQ(ailleurs(chemin, limite(SIG_DFL)), -SIGXFSZ);
    EXPECT_EQ(lit_fichier(chemin), ancien);
}

TEST_F(Fichier, KeepsLinksModeAndOwner) {
    const auto ailleurs_encore = dossier.chemin / "la";
    fs::create_directory(ailleurs_encore);
    const auto vrai = ailleurs_encore / "vrai.txt";
    fs::rename(chemin, vrai);
    fs::create_symlink("la/lien", chemin);
    fs::create_symlink(vrai, ailleurs_encore / "lien");
    chmod(vrai.c_str(), 0640);
    const bool administrateur = geteuid() == 0;
    ASSERT_EQ(administrateur ? chown(vrai.c_str(), personne, personne) : 0, 0);
    struct stat avant;
    struct stat apres;
    stat(vrai.c_str(), &avant);
    ecrit_fichier(chemin, nouveau);
    ASSERT_EQ(stat(vrai.c_str(), &apres), 0);
    EXPECT_TRUE(fs::is_symlink(chemin) && fs::is_symlink(ailleurs_encore / "lien"));
    EXPECT_EQ(lit_fichier(vrai), nouveau);
    EXPECT_NE(apres.st_ino, avant.st_ino);
    EXPECT_EQ(apres.st_mode, avant.st_mode);
    EXPECT_TRUE(apres.st_uid == avant.st_uid && apres.st_gid == avant.st_gid);

    // Where the folder takes no new file: the same file, in place. A failure then says so.
    ecrit_fichier(vrai, ancien);
    stat(vrai.c_str(), &avant);
    chmod(dossier.chemin.c_str(), 0755);
    chmod(ailleurs_encore.c_str(), 0555);
    const auto sans_privilege = [&] { return administrateur ? setuid(personne) : 0; };
    EXPECT_EQ(ailleurs(chemin, sans_privilege), enregistre);
    EXPECT_EQ(lit_fichier(vrai), nouveau);
    stat(vrai.c_str(), &apres);
    EXPECT_EQ(apres.st_ino, avant.st_ino);
    chmod(vrai.c_str(), 0440);
    EXPECT_EQ(ailleurs(chemin, sans_privilege), echec_dit) << "closed to writing by its owner";
    chmod(ailleurs_encore.c_str(), 0755);
}

TEST_F(Fichier, IsNamedWithTheReasonWhenItCannotBeReadOrWritten) {
    const auto tuyau = dossier.chemin / "tuyau";
    ASSERT_EQ(mkfifo(tuyau.c_str(), 0600), 0);
    fs::create_symlink("boucle", dossier.chemin / "boucle");
    const struct {
        fs::path chemin;
        const char* raison;
    } cas[] = {{dossier.chemin / "sans/dossier.ini", "fichier ou dossier absent"},
               {dossier.chemin, "c'est un dossier"},
               {tuyau, "ce n'est pas un fichier ordinaire"},
               {dossier.chemin / "boucle", "liens en boucle"}};
    for (const auto& c : cas) {
        const auto attendu = c.chemin.string() + " (" + c.raison + ")";
        EXPECT_EQ(essais::attend_echec(cause::fichier_introuvable, [&] { lit_fichier(c.chemin); }), attendu);
        EXPECT_EQ(essais::attend_echec(cause::ecriture_impossible, [&] { ecrit_fichier(c.chemin, nouveau); }),
                  attendu);
    }
    // The folder takes no file, and the disk is full when the old one is written over.
    base::avant_appel = [](std::string_view appel) {
        return appel == "rename" ? EBUSY : appel == "ftruncate" ? ENOSPC : 0;
    };
    const auto detail =
        essais::attend_echec(cause::ecriture_impossible, [&] { ecrit_fichier(chemin, nouveau); });
    base::avant_appel = nullptr;
    EXPECT_NE(detail.find("(disque plein ; "), std::string::npos) << detail;
    EXPECT_NE(detail.find("peut-être incomplet)"), std::string::npos) << detail;
}

} // namespace
