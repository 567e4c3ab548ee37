// What a planetarium costs a motion, and what a flood of commands does to it. Needs a display.
#include "drive/cmd_moteur.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/guichet.h"
#include "mesure.h"
#include "sky/heure.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using mesure::mediane;
using horloge_mono = mesure::montre;

constexpr int port_tcp = 14032;
constexpr int repetitions = 7;

// A client on a thread of its own, as another process would be: so many commands at once, so often.
class client {
  public:
    client(int commandes, std::chrono::milliseconds toutes_les) {
        prise_ = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_port = htons(port_tcp);
        a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (connect(prise_, reinterpret_cast<sockaddr*>(&a), sizeof a) != 0)
            std::abort();
        fil_ = std::thread{[this, commandes, toutes_les] { demande(commandes, toutes_les); }};
    }
    ~client() {
        fini_ = true;
        fil_.join();
        close(prise_);
    }
    client(const client&) = delete;
    client& operator=(const client&) = delete;

    double plus_lente_ms() const { return plus_lente_; }
    double par_seconde() const { return static_cast<double>(recues_) / mesure::secondes_depuis(debut_); }

  private:
    void demande(int commandes, std::chrono::milliseconds toutes_les) {
        std::string paquet;
        for (int i = 0; i < commandes; ++i)
            paquet += i % 2 == 0 ? ":GR#" : ":GD#";
        debut_ = horloge_mono::now();
        for (auto prochain = debut_; !fini_; prochain += toutes_les) {
            std::this_thread::sleep_until(prochain);
            const auto envoi = horloge_mono::now();
            if (send(prise_, paquet.data(), paquet.size(), MSG_NOSIGNAL) < 0)
                return;
            for (int attendues = commandes; attendues > 0 && !fini_;) {
                char tampon[4096];
                timeval patience{0, 200'000};
                setsockopt(prise_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
                const auto lus = recv(prise_, tampon, sizeof tampon, 0);
                const auto n = lus > 0 ? std::count(tampon, tampon + lus, '#') : 0;
                attendues -= static_cast<int>(n);
                recues_ += n;
            }
            plus_lente_ = std::max(plus_lente_, mesure::secondes_depuis(envoi) * 1e3);
        }
    }

    int prise_ = -1;
    std::atomic<bool> fini_ = false;
    horloge_mono::time_point debut_;
    double plus_lente_ = 0;
    std::int64_t recues_ = 0;
    std::thread fil_;
};

// Pulses a second of a jog with this count.
double jog(banc::port_simule& port, int compte, int ms) {
    cmd_moteur::vitesseequa.fill(cmd_moteur::entier32{compte});
    QTimer::singleShot(ms, [] { frmequapilot::deplacement.cmddstop.appuie(); });
    const auto e = port.total_ecritures();
    const auto debut = horloge_mono::now();
    frmequapilot::deplacement.cmdad.clic();
    return static_cast<double>(port.total_ecritures() - e) / 2 / mesure::secondes_depuis(debut);
}

long pages() {
    long taille = 0;
    long residente = 0;
    std::ifstream{"/proc/self/statm"} >> taille >> residente;
    return residente;
}

// In turn, so that all meet the same machine: nothing listening, a client that asks ten times a second, a
// flood.
void compare(banc::port_simule& port, const char* quoi, int compte) {
    std::vector<double> calme;
    std::vector<double> deluge;
    double lente = 0;
    double debit = 0;
    long croissance = 0;
    for (int i = 0; i < repetitions; ++i) {
        const double seul = jog(port, compte, 1000);
        const plateforme::qt::guichet guichet{{.port = port_tcp}};
        if (!guichet.faute().empty())
            std::abort();
        {
            const client c{1, std::chrono::milliseconds{100}};
            calme.push_back(jog(port, compte, 1000) / seul);
            lente = std::max(lente, c.plus_lente_ms());
        }
        const auto avant = pages();
        const client c{100, std::chrono::milliseconds{10}};
        deluge.push_back(jog(port, compte, 1000) / seul);
        debit = c.par_seconde();
        croissance = std::max(croissance, pages() - avant);
    }
    std::printf(
        "%s : avec une question dix fois par seconde, %.4f de la cadence (médiane de %d), réponse en %.1f "
        "ms au plus ;\n  sous un déluge (%.0f réponses/s), %.4f de la cadence, mémoire +%ld ko\n",
        quoi, mediane(calme), repetitions, lente, debit, mediane(deluge),
        croissance * sysconf(_SC_PAGESIZE) / 1024);
}

} // namespace

int main(int argc, char** argv) {
    banc::horloge_banc horloge{plateforme::temps_systeme(),
                               [] { return int{general::decalageheure.valeur()}; }};
    plateforme::attente_precise attente;
    banc::etabli etabli{plateforme::horloge_monotone};
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.donnees = DONNEES;
    plateforme::qt::seance s{argc, argv, std::move(composition)};
    base::installe_gestionnaire(nullptr);
    s.demarre();
    banc::fenetre_banc fenetre{etabli, horloge, [] { return "non mesurée"; }};
    fenetre.show();
    frminterface::barchoix_boutons(1).clic();
    frminterface::barequa_boutons(3).clic();
    const auto debut = horloge_mono::now();
    while (mesure::secondes_depuis(debut) < 0.5) // everything painted
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    compare(etabli.port(), "jog, compte 0", 0);
    compare(etabli.port(), "jog, demi-pas de 1 ms", 33332);
    compare(etabli.port(), "jog, demi-pas de 48 ms", 1600000);
}
