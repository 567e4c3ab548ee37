#include "machines/linux/port_direct.h"

#include <cerrno>
#include <clocale>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

#if defined(__x86_64__) || defined(__i386__)
#include <sys/io.h>
#define VELMORIA_ENTREES_SORTIES 1
#endif

namespace plateforme {

namespace {

constexpr unsigned long nombre_registres = 3;

#ifdef VELMORIA_ENTREES_SORTIES

/// The processor's own input and output instructions.
class port_instructions final : public port {
  public:
    void ecrit(int adresse, std::uint8_t valeur) override {
        outb(valeur, static_cast<unsigned short>(adresse));
    }
    std::uint8_t lit(int adresse) override {
        return lignes(adresse, inb(static_cast<unsigned short>(adresse)));
    }
};

std::unique_ptr<port> port_accorde() { return std::make_unique<port_instructions>(); }
int demande_systeme(unsigned long premier, unsigned long nombre, int permis) {
    return ioperm(premier, nombre, permis);
}

#else

std::unique_ptr<port> port_accorde() { return nullptr; }
int demande_systeme(unsigned long, unsigned long, int) {
    errno = ENOSYS;
    return -1;
}

#endif

/// The kernel's file of all ports: the offset is the register's address.
class port_fichier final : public port {
  public:
    explicit port_fichier(int descripteur) : descripteur_(descripteur) {}
    ~port_fichier() override { close(descripteur_); }
    port_fichier(const port_fichier&) = delete;
    port_fichier& operator=(const port_fichier&) = delete;

    void ecrit(int adresse, std::uint8_t valeur) override {
        // A port reports nothing to its callers: a write that fails is a write nobody saw.
        [[maybe_unused]] const auto n = pwrite(descripteur_, &valeur, 1, adresse);
    }
    std::uint8_t lit(int adresse) override {
        std::uint8_t octet = 255;
        if (pread(descripteur_, &octet, 1, adresse) != 1)
            octet = 255;
        return lignes(adresse, octet);
    }

  private:
    int descripteur_;
};

/// No port: writes go nowhere, and every line reads high, as on a bus where nothing answers.
class port_absent final : public port {
  public:
    void ecrit(int, std::uint8_t) override {}
    std::uint8_t lit(int) override { return 255; }
};

bool droit_refuse(int erreur) { return erreur == EPERM || erreur == EACCES; }

bool port_inexistant(int erreur) {
    return erreur == ENXIO || erreur == ENODEV || erreur == ENOENT || erreur == ENOSYS;
}

bool noyau_verrouille(std::string_view verrouillage) {
    return verrouillage.find("[integrity]") != std::string_view::npos ||
           verrouillage.find("[confidentiality]") != std::string_view::npos;
}

/// The system's reason in the observer's language, whatever locale the program has chosen so far.
std::string raison(int erreur) {
    const locale_t langue = newlocale(LC_ALL_MASK, "", nullptr);
    if (!langue)
        return std::strerror(erreur);
    std::string texte = strerror_l(erreur, langue);
    freelocale(langue);
    return texte;
}

std::string cause_et_remede(int erreur_ioperm, int erreur_dev_port, std::string_view verrouillage,
                            std::string_view programme) {
    const std::string setcap = "sudo setcap cap_sys_rawio+ep " + std::string{programme};
    if (droit_refuse(erreur_ioperm) || droit_refuse(erreur_dev_port)) {
        // The kernel answers alike to a missing right and to a lockdown, and under a lockdown the right alone
        // would not help.
        if (noyau_verrouille(verrouillage))
            return "cause probable : le démarrage sécurisé (Secure Boot) verrouille le noyau ; remède : le "
                   "désactiver dans les réglages du micrologiciel (UEFI), puis, si le droit manque encore, "
                   "taper « " +
                   setcap + " » dans un terminal";
        std::string texte =
            "cause probable : il manque au programme le droit d'accès aux ports ; remède : taper « " +
            setcap + " » dans un terminal, puis relancer le programme";
        // Where only the file leads to the ports, its own permissions stand in the way as well.
        if (erreur_ioperm == ENOSYS && erreur_dev_port == EACCES)
            texte += ", après avoir donné à votre compte le droit d'écrire dans /dev/port";
        return texte;
    }
    if (port_inexistant(erreur_ioperm) && port_inexistant(erreur_dev_port))
        return "cause probable : cette machine n'a pas de tel port, ou son noyau n'y donne pas accès ; "
               "remède : un "
               "PC muni d'un port parallèle à l'adresse 888, avec un noyau qui permet ioperm ou /dev/port";
    return "cause inconnue ; à essayer : « " + setcap + " » dans un terminal, puis relancer le programme";
}

} // namespace

prise prend_port(appel_ioperm demande, const char* chemin_dev_port) {
    prise p;
    if (demande(registre_donnees, nombre_registres, 1) == 0) {
        p.acces = port_accorde();
        p.reel = true;
        return p;
    }
    p.erreur_ioperm = errno;
    const int descripteur = open(chemin_dev_port, O_RDWR | O_CLOEXEC);
    if (descripteur >= 0) {
        p.acces = std::make_unique<port_fichier>(descripteur);
        p.reel = true;
        return p;
    }
    p.erreur_dev_port = errno;
    p.acces = std::make_unique<port_absent>();
    return p;
}

prise prend_port() { return prend_port(demande_systeme, "/dev/port"); }

std::string explique(int erreur_ioperm, int erreur_dev_port, std::string_view verrouillage,
                     std::string_view programme) {
    return "Le port parallèle est hors d'atteinte et les moteurs ne recevront rien : ioperm a échoué (" +
           raison(erreur_ioperm) + "), l'ouverture de /dev/port aussi (" + raison(erreur_dev_port) + ") ; " +
           cause_et_remede(erreur_ioperm, erreur_dev_port, verrouillage, programme) + ".";
}

std::string explication(const prise& p) {
    if (p.reel)
        return {};
    std::ifstream fichier{"/sys/kernel/security/lockdown"};
    const std::string verrouillage{std::istreambuf_iterator<char>{fichier}, {}};
    std::error_code erreur;
    const auto programme = std::filesystem::read_symlink("/proc/self/exe", erreur);
    return explique(p.erreur_ioperm, p.erreur_dev_port, verrouillage,
                    erreur ? std::string{"velmoria"} : programme.string());
}

} // namespace plateforme
