#include "machines/linux/port_direct.h"

#include "machines/linux/port_noyau.h"

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
    explicit port_instructions(int base) : decalage_(base - registre_donnees) {}
    void ecrit(int adresse, std::uint8_t valeur) override { outb(valeur, a(adresse)); }
    std::uint8_t lit(int adresse) override { return lignes(adresse, inb(a(adresse))); }

  private:
    unsigned short a(int adresse) const { return static_cast<unsigned short>(adresse + decalage_); }
    int decalage_;
};

std::unique_ptr<port> port_accorde(int base) { return std::make_unique<port_instructions>(base); }
int demande_systeme(unsigned long premier, unsigned long nombre, int permis) {
    return ioperm(premier, nombre, permis);
}

#else

std::unique_ptr<port> port_accorde(int) { return nullptr; }
int demande_systeme(unsigned long, unsigned long, int) {
    errno = ENOSYS;
    return -1;
}

#endif

/// The kernel's file of all ports: the offset is the register's address.
class port_fichier final : public port {
  public:
    port_fichier(int descripteur, int base) : descripteur_(descripteur), decalage_(base - registre_donnees) {}
    ~port_fichier() override { close(descripteur_); }
    port_fichier(const port_fichier&) = delete;
    port_fichier& operator=(const port_fichier&) = delete;

    void ecrit(int adresse, std::uint8_t valeur) override {
        // A port reports nothing to its callers: a write that fails is a write nobody saw.
        [[maybe_unused]] const auto n = pwrite(descripteur_, &valeur, 1, adresse + decalage_);
    }
    std::uint8_t lit(int adresse) override {
        std::uint8_t octet = 255;
        if (pread(descripteur_, &octet, 1, adresse + decalage_) != 1)
            octet = 255;
        return lignes(adresse, octet);
    }

  private:
    int descripteur_;
    int decalage_;
};

/// No port: writes go nowhere, and every line reads high, as on a bus where nothing answers.
class port_absent final : public port {
  public:
    void ecrit(int, std::uint8_t) override {}
    std::uint8_t lit(int) override { return 255; }
    bool atteint() const override { return false; }
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

std::string fichier_noyau(const port_connu& p) { return "/dev/parport" + std::to_string(p.numero); }

/// What opens the kernel's own device to the observer's account.
std::string ouvrir_le_peripherique(const port_connu& p, const refus_des_routes& refus) {
    if (p.numero < 0)
        return "charger le pilote du port (« sudo modprobe -a parport_pc ppdev »), votre compte étant du "
               "groupe lp";
    if (refus.parport_ouvert && !refus.tenants.empty()) {
        const auto& tenant = refus.tenants.front();
        return "libérer " + fichier_noyau(p) + ", que tient " +
               (tenant == "lp" ? "le pilote d'imprimante (« sudo modprobe -r lp »)"
                               : "un autre programme, inscrit comme " + tenant);
    }
    if (droit_refuse(refus.parport))
        return "mettre votre compte dans le groupe lp (« sudo adduser $USER lp »), puis rouvrir la session";
    return "charger le pilote de " + fichier_noyau(p) + " (« sudo modprobe ppdev »)";
}

std::string cause_et_remede(const port_connu& p, const refus_des_routes& refus, std::string_view verrouillage,
                            std::string_view programme) {
    const std::string setcap = "« sudo setcap cap_sys_rawio+ep " + std::string{programme} + " »";
    if (droit_refuse(refus.ioperm) || droit_refuse(refus.dev_port)) {
        // The kernel answers alike to a missing right and to a lockdown, and under a lockdown the right alone
        // would not help.
        if (noyau_verrouille(verrouillage))
            return "cause probable : le démarrage sécurisé (Secure Boot) verrouille l'accès direct ; remède "
                   ": " +
                   ouvrir_le_peripherique(p, refus) +
                   ", ce qui conduit les moteurs sans la raquette ; ou désactiver le démarrage sécurisé dans "
                   "les "
                   "réglages du micrologiciel (UEFI) et taper " +
                   setcap;
        return "cause probable : il manque au programme le droit d'accès aux ports ; remède : taper " +
               setcap +
               " dans un terminal, puis relancer le programme ; ou, sans ce droit et sans la raquette, " +
               ouvrir_le_peripherique(p, refus);
    }
    if (port_inexistant(refus.ioperm) && port_inexistant(refus.dev_port))
        return "cause probable : cette machine n'a pas de tel port, ou son noyau n'y donne pas accès ; "
               "remède : un "
               "PC muni d'un port parallèle, dont l'option --port donne l'adresse si le noyau ne l'indique "
               "pas ; "
               "ou " +
               ouvrir_le_peripherique(p, refus);
    return "cause inconnue ; à essayer : taper " + setcap + " dans un terminal, puis relancer le programme";
}

/// The roads in their order; the port that is not there at their end.
void prend(prise& p, appel_ioperm demande, const racines& r) {
    const int base = p.choix.port.base;
    p.reel = true;
    if (demande(static_cast<unsigned long>(base), nombre_registres, 1) == 0) {
        p.acces = port_accorde(base);
        return;
    }
    p.refus.ioperm = errno;
    const int descripteur = open((r.dev / "port").c_str(), O_RDWR | O_CLOEXEC);
    if (descripteur >= 0) {
        p.acces = std::make_unique<port_fichier>(descripteur, base);
        return;
    }
    p.refus.dev_port = errno;
    if (p.choix.port.numero >= 0) {
        auto noyau = prend_port_du_noyau(p.choix.port.numero, r);
        if (noyau.acces) {
            p.acces = std::move(noyau.acces);
            return;
        }
        p.refus.parport = noyau.erreur;
        p.refus.parport_ouvert = noyau.ouvert;
        p.refus.tenants = tenants_du_port(p.choix.port.numero, r);
    }
    p.reel = false;
}

} // namespace

prise prend_port(appel_ioperm demande, const racines& r, std::optional<int> voulue) {
    prise p;
    p.choix = choisit_port(ports_connus(r), voulue);
    if (p.choix.refus.empty()) {
        p.garde = verrouille(r.verrou + std::to_string(p.choix.port.base));
        if (p.garde.pris())
            prend(p, demande, r);
    }
    if (!p.reel)
        p.acces = std::make_unique<port_absent>();
    if (!p.reel && p.garde.pris())
        p.garde = {}; // a port that is out of reach stays free for another program
    return p;
}

prise prend_port(std::optional<int> voulue) { return prend_port(demande_systeme, {}, voulue); }

std::string explique(const port_connu& p, const refus_des_routes& refus, std::string_view verrouillage,
                     std::string_view programme) {
    std::string texte = "Le port parallèle " + adresse(p.base) +
                        " est hors d'atteinte et les moteurs ne recevront rien : ioperm a échoué (" +
                        raison(refus.ioperm) + "), l'ouverture de /dev/port aussi (" +
                        raison(refus.dev_port) + ")";
    if (refus.parport)
        texte += (refus.parport_ouvert ? ", la réservation de " : ", celle de ") + fichier_noyau(p) +
                 " aussi (" + raison(refus.parport) + ")";
    return texte + " ; " + cause_et_remede(p, refus, verrouillage, programme) + ".";
}

std::string explication(const prise& p) {
    if (p.reel)
        return {};
    if (!p.choix.refus.empty())
        return p.choix.refus;
    if (!p.permise())
        return message_port_occupe(p.garde);
    std::ifstream fichier{"/sys/kernel/security/lockdown"};
    const std::string verrouillage{std::istreambuf_iterator<char>{fichier}, {}};
    std::error_code erreur;
    const auto programme = std::filesystem::read_symlink("/proc/self/exe", erreur);
    return explique(p.choix.port, p.refus, verrouillage,
                    erreur ? std::string{"velmoria"} : programme.string());
}

} // namespace plateforme
