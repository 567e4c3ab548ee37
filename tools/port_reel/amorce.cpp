// The first and only process of the emulated PC: starts the program as various users on various kernels, lets
// it report on the second serial line, and switches off.
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <grp.h>
#include <iterator>
#include <linux/capability.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <string>
#include <sys/io.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/reboot.h>
#include <sys/stat.h>
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

/// Between two braces on the serial line, which the emulator's log shows too, the port is the kernel's.
void entre_accolades(long resultat, const std::string& module) {
    exige(resultat == 0, module.c_str());
    std::printf("}\n");
    tcdrain(1);
}
void charge(const std::string& module, const char* reglages = "") {
    std::printf("{");
    tcdrain(1);
    const int d = open(("/modules/" + module + ".ko").c_str(), O_RDONLY);
    entre_accolades(syscall(SYS_finit_module, d, reglages, 0), module);
}
void retire(const char* module) {
    std::printf("{");
    tcdrain(1);
    entre_accolades(syscall(SYS_delete_module, module, 0), module);
}

/// The device belongs to the group lp, as Debian makes it.
void charge_ppdev() {
    charge("ppdev");
    exige(chown("/dev/parport0", 0, 7) == 0 && chmod("/dev/parport0", 0660) == 0, "/dev/parport0");
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

struct reglage {
    uid_t utilisateur = 1000;
    const char* option = nullptr;
    bool attend = false;
    bool sans_ioperm = false;
};

pid_t lance(const char* titre, reglage r = {}) {
    std::printf("-- %s\n", titre);
    const pid_t enfant = fork();
    exige(enfant >= 0, "fork");
    if (enfant == 0) {
        if (r.sans_ioperm)
            retire_ioperm();
        const gid_t lp = 7;
        exige(setgroups(1, &lp) == 0 && setgid(r.utilisateur) == 0 && setuid(r.utilisateur) == 0, "setuid");
        if (r.attend)
            setenv("VELMORIA_ATTEND", "1", 1);
        execl(programme, programme, r.option, nullptr);
        exige(false, programme);
    }
    return enfant;
}

/// Where the program stops to be pressed a key: the key 9, behind the kernel's back, if the kernel allows.
void conclut(pid_t enfant) {
    int etat = 0;
    while (waitpid(enfant, &etat, WUNTRACED) == enfant && WIFSTOPPED(etat)) {
        if (ioperm(0x37a, 1, 1) == 0)
            outb(9, 0x37a);
        ioperm(0x37a, 1, 0);
        kill(enfant, SIGCONT);
    }
    if (!WIFEXITED(etat) || WEXITSTATUS(etat) != 0)
        std::printf("statut %d, signal %d\n", WEXITSTATUS(etat), WTERMSIG(etat));
}

void noyau_ordinaire() {
    const pid_t premier = lance("avec le droit, le noyau n'indique aucun port", {.attend = true});
    int etat = 0;
    exige(waitpid(premier, &etat, WUNTRACED) == premier && WIFSTOPPED(etat), "premier programme");
    conclut(lance("un second, d'un autre, pendant que le premier tient le port", {.utilisateur = 1001}));
    kill(premier, SIGCONT);
    conclut(premier);
    exige(chown("/dev/port", 1000, 1000) == 0, "/dev/port");
    conclut(lance("par /dev/port", {.option = "--port=0x278", .sans_ioperm = true}));
    exige(unlink("/dev/port") == 0, "/dev/port");
    conclut(lance("ni ioperm ni /dev/port", {.sans_ioperm = true}));

    charge("parport");
    charge("parport_pc", "io=0xd010");
    conclut(lance("un seul port, à 0xd010"));
    conclut(lance("une adresse qui n'est pas celle d'un port", {.option = "--port=0x3f8"}));
    retire("parport_pc");
    charge("parport_pc", "io=0x278,0xd010");
    conclut(lance("deux ports"));
    conclut(lance("deux ports, le premier choisi", {.option = "--port=632"}));
    retire("parport_pc");

    setcap(false);
    charge("parport_pc", "io=0x378");
    charge("lp");
    charge_ppdev();
    conclut(lance("sans le droit, le pilote d'imprimante tient le port"));
    retire("lp");
    conclut(lance("sans le droit, par /dev/parport0, une touche tenue"));
}

void noyau_verrouille() {
    conclut(lance("integrity, avec le droit"));
    exige(static_cast<bool>(std::ofstream{fichier_verrou} << "confidentiality" << std::flush),
          fichier_verrou);
    conclut(lance("confidentiality, administrateur", {.utilisateur = 0}));
    charge("parport");
    charge("parport_pc");
    charge_ppdev();
    conclut(lance("confidentiality, par /dev/parport0"));
}

} // namespace

int main() {
    mount("dev", "/dev", "devtmpfs", 0, nullptr);
    const int ligne = open("/dev/ttyS1", O_RDWR);
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
