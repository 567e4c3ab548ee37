// The first and only process of the emulated PC: starts the program as various users on various kernels, lets
// it report on the second serial line, and switches off.
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <linux/capability.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <string>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/reboot.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr const char* programme = "/opt/velmoria";
constexpr const char* fichier_verrou = "/sys/kernel/security/lockdown";

void exige(bool reussi, const char* quoi) {
    if (!reussi) {
        std::printf("amorce : %s : %s\n", quoi, std::strerror(errno));
        tcdrain(1);
        reboot(RB_AUTOBOOT);
    }
}

/// What the user is told to do: setcap cap_sys_rawio+ep on the program; or -r.
void setcap(bool accorde) {
    vfs_cap_data droit{};
    droit.magic_etc = VFS_CAP_REVISION_2 | VFS_CAP_FLAGS_EFFECTIVE;
    droit.data[0].permitted = 1U << CAP_SYS_RAWIO;
    exige(accorde ? setxattr(programme, "security.capability", &droit, XATTR_CAPS_SZ_2, 0) == 0
                  : removexattr(programme, "security.capability") == 0,
          "setcap");
}

/// From here on `ioperm` answers as in a kernel built without it.
void retire_ioperm() {
    sock_filter filtre[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_ioperm, 0, 1),
                            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
                            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog regle{static_cast<unsigned short>(std::size(filtre)), filtre};
    exige(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &regle) == 0, "seccomp");
}

pid_t lance(const char* titre, uid_t utilisateur, bool attend = false, bool sans_ioperm = false) {
    std::printf("-- %s\n", titre);
    const pid_t enfant = fork();
    exige(enfant >= 0, "fork");
    if (enfant == 0) {
        if (sans_ioperm)
            retire_ioperm();
        exige(setgid(utilisateur) == 0 && setuid(utilisateur) == 0, "setuid");
        if (attend)
            setenv("VELMORIA_ATTEND", "1", 1);
        execl(programme, programme, nullptr);
        exige(false, programme);
    }
    return enfant;
}

void conclut(pid_t enfant) {
    int etat = 0;
    exige(waitpid(enfant, &etat, 0) == enfant, "waitpid");
    if (WIFEXITED(etat))
        std::printf("statut %d\n", WEXITSTATUS(etat));
    else
        std::printf("signal %d\n", WTERMSIG(etat));
}

void noyau_ordinaire() {
    const pid_t premier = lance("avec le droit", 1000, true);
    int etat = 0;
    exige(waitpid(premier, &etat, WUNTRACED) == premier && WIFSTOPPED(etat), "premier programme");
    conclut(lance("un second, d'un autre utilisateur, pendant que le premier tient le port", 1001));
    std::printf("-- le premier reprend\n");
    kill(premier, SIGCONT);
    conclut(premier);

    setcap(false);
    conclut(lance("sans le droit", 1000));
    setcap(true);
    exige(chown("/dev/port", 1000, 1000) == 0, "/dev/port");
    conclut(lance("noyau sans ioperm, /dev/port permis", 1000, false, true));
    exige(unlink("/dev/port") == 0, "/dev/port");
    conclut(lance("ni ioperm ni /dev/port", 1000, false, true));
}

void noyau_verrouille() {
    conclut(lance("integrity, avec le droit", 1000));
    conclut(lance("integrity, administrateur", 0));
    exige(static_cast<bool>(std::ofstream{fichier_verrou} << "confidentiality" << std::flush),
          fichier_verrou);
    conclut(lance("confidentiality, administrateur", 0));
}

} // namespace

int main() {
    mount("dev", "/dev", "devtmpfs", 0, nullptr);
    const int ligne = open("/dev/ttyS1", O_RDWR);
    termios reglage{};
    tcgetattr(ligne, &reglage);
    cfmakeraw(&reglage);
    tcsetattr(ligne, TCSANOW, &reglage);
    for (const int d : {0, 1, 2})
        dup2(ligne, d);
    setvbuf(stdout, nullptr, _IONBF, 0); // children must not inherit half a line
    exige(mount("proc", "/proc", "proc", 0, nullptr) == 0, "/proc");
    exige(mount("sys", "/sys", "sysfs", 0, nullptr) == 0, "/sys");
    exige(mount("securityfs", "/sys/kernel/security", "securityfs", 0, nullptr) == 0, "/sys/kernel/security");
    setcap(true);
    std::string verrou;
    std::getline(std::ifstream{fichier_verrou}, verrou);
    std::printf("== lockdown %s\n", verrou.c_str());
    if (verrou.starts_with("[none]"))
        noyau_ordinaire();
    else
        noyau_verrouille();
    tcdrain(1);
    reboot(RB_AUTOBOOT); // the emulator ends there
}
