#include "machines/qt/guichet.h"

#include <QTimerEvent>
#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace plateforme::qt {

namespace {

constexpr int periode_ms = 10;      // with a client
constexpr int periode_seul_ms = 25; // without
constexpr std::size_t clients_maximum = 2;
constexpr std::size_t portion = 1024; // bytes read of a client at a tick: two hundred commands
constexpr std::size_t attente_maximum =
    4096; // bytes of answers that a client may leave unread, beside the kernel's

void regle(int prise, int niveau, int option, int valeur) {
    setsockopt(prise, niveau, option, &valeur, sizeof valeur);
}

std::string adresse_de(const sockaddr* a, socklen_t longueur) {
    std::array<char, NI_MAXHOST> nom{};
    return getnameinfo(a, longueur, nom.data(), nom.size(), nullptr, 0, NI_NUMERICHOST) == 0 ? nom.data()
                                                                                             : "?";
}

} // namespace

guichet::guichet(adresse_du_guichet ou) : ou_(std::move(ou)) {
    planetarium::date_du_ciel = [] {
        using namespace std::chrono;
        return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
    };
    ouvre();
    if (!faute_.empty())
        return;
    arme();
    guichet_ouvert = this;
}

guichet::~guichet() {
    guichet_ouvert = nullptr;
    for (const auto& c : clients_)
        close(c.prise);
    if (ecoute_ >= 0)
        close(ecoute_);
}

void guichet::ouvre() {
    addrinfo genre{};
    genre.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    genre.ai_socktype = SOCK_STREAM;
    addrinfo* trouvee = nullptr;
    const auto echoue = [this](const char* raison) {
        faute_ = "Le planétarium ne peut pas se connecter : " + ou_.adresse + ", port " +
                 std::to_string(ou_.port) + " : " + raison + ".";
    };
    if (getaddrinfo(ou_.adresse.c_str(), std::to_string(ou_.port).c_str(), &genre, &trouvee) != 0)
        return echoue("ce n'est pas une adresse en chiffres");
    ecoute_ = socket(trouvee->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    regle(ecoute_, SOL_SOCKET, SO_REUSEADDR, 1);
    const bool ouverte = ecoute_ >= 0 && bind(ecoute_, trouvee->ai_addr, trouvee->ai_addrlen) == 0 &&
                         listen(ecoute_, clients_maximum) == 0;
    if (!ouverte)
        echoue(std::strerror(errno));
    freeaddrinfo(trouvee);
}

void guichet::accueille() {
    sockaddr_storage a{};
    socklen_t longueur = sizeof a;
    auto* adresse = reinterpret_cast<sockaddr*>(&a);
    const int prise = accept4(ecoute_, adresse, &longueur, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (prise < 0)
        return;
    if (clients_.size() == clients_maximum) {
        close(prise);
        return;
    }
    regle(prise, IPPROTO_TCP, TCP_NODELAY, 1);
    // A tablet that has left the network is gone after 11 s.
    regle(prise, SOL_SOCKET, SO_KEEPALIVE, 1);
    regle(prise, IPPROTO_TCP, TCP_KEEPIDLE, 5);
    regle(prise, IPPROTO_TCP, TCP_KEEPINTVL, 2);
    regle(prise, IPPROTO_TCP, TCP_KEEPCNT, 3);
    clients_.push_back({prise, adresse_de(adresse, longueur), planetarium::liaison{suivant_++}, {}});
}

// Reads a portion, answers it; false if the client has gone.
bool guichet::sert(client& c) {
    std::array<char, portion> tampon;
    const auto lus = recv(c.prise, tampon.data(), tampon.size(), 0);
    if (lus == 0 || (lus < 0 && errno != EAGAIN && errno != EINTR))
        return false;
    if (lus > 0)
        c.a_dire += c.liaison.recoit({tampon.data(), static_cast<std::size_t>(lus)});
    if (c.a_dire.empty())
        return true;
    const auto dits = send(c.prise, c.a_dire.data(), c.a_dire.size(), MSG_NOSIGNAL);
    if (dits < 0 && errno != EAGAIN && errno != EINTR)
        return false;
    c.a_dire.erase(0, static_cast<std::size_t>(std::max<ssize_t>(dits, 0)));
    return c.a_dire.size() <= attente_maximum;
}

void guichet::arme() { startTimer(clients_.empty() ? periode_seul_ms : periode_ms, Qt::PreciseTimer); }

// A timer in its handler does not fire again: the next one is armed before an act begins, whose yields it
// serves.
void guichet::timerEvent(QTimerEvent* e) {
    killTimer(e->timerId());
    accueille();
    std::erase_if(clients_, [this](client& c) {
        if (sert(c))
            return false;
        close(c.prise);
        planetarium::abandonne(c.liaison.qui());
        return true;
    });
    arme();
    planetarium::commence();
}

std::string guichet::etat() const {
    std::string s = "Planétarium : écoute sur " + ou_.adresse + ", port " + std::to_string(ou_.port);
    if (clients_.empty())
        s += ", personne n'est connecté";
    for (std::size_t i = 0; i < clients_.size(); ++i)
        s += (i == 0 ? ", connecté à " : " et à ") + clients_[i].adresse;
    if (!planetarium::dernier_refus.empty())
        s += ". Refusé : " + planetarium::dernier_refus;
    return s;
}

} // namespace plateforme::qt
