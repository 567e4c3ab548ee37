// What the programs with windows have in common: a main file only picks a port, a clock and its waits.
#pragma once

#include "seam/plateforme.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QApplication;

namespace plateforme::qt {

class boucle_qt;
class guichet;
class vue_qt;

/// What the observer asks of the windows on the command line.
struct apparence {
    bool nuit = false;                ///< night colours from the start
    bool positions_initiales = false; ///< where windows were left is forgotten
};

/// Where planetariums are listened to: an address in figures, of either family, and a port.
struct adresse_du_guichet {
    std::string adresse = "127.0.0.1";
    int port = 0;
};

struct composition {
    plateforme::port& port;
    plateforme::horloge& horloge;
    /// Returns no earlier than that many nanoseconds after its call.
    std::function<void(std::int64_t)> attente;
    /// Runs at the end of each yield; empty for nothing.
    std::function<void()> apres_cession = {};
    /// Runs whenever the event loop has nothing left to do, so never within a motion; empty for nothing.
    std::function<void()> au_repos = {};
    const char* icone = "velmoria"; ///< the program's icon among the pictures built in
    std::string avis =
        {}; ///< told on standard error and in a box before the main frame loads; empty for none
    /// Runs once the main frame is on screen: the bench opens its own window there.
    std::function<void()> ensuite = {};
    std::filesystem::path donnees = {}; ///< the data folder; empty for the one beside the executable
    qt::apparence apparence = {};
    std::optional<adresse_du_guichet> planetarium = {}; ///< none: nothing listens
};

/// Builds the program on Qt and runs it; the process ends inside. Without a display it ends with status 1
/// and one sentence on standard error.
int lance(int argc, char** argv, composition c);

/// The same in steps, for tests and measurements: the program built and installed, not started. One at a
/// time.
class seance {
  public:
    seance(int argc, char** argv, composition c);
    ~seance();
    seance(const seance&) = delete;
    seance& operator=(const seance&) = delete;

    /// The start, to idle.
    void demarre();
    boucle_qt& boucle() { return *boucle_; }
    vue_qt& vue() { return *vue_; }

  private:
    int argc_; // the application object keeps a reference to it
    composition c_;
    std::unique_ptr<QApplication> application_;
    std::unique_ptr<boucle_qt> boucle_;
    std::unique_ptr<vue_qt> vue_;
    std::unique_ptr<guichet> guichet_;
};

/// Says on standard error and in a box why the program does not start; gives the exit status 1.
int refuse(int argc, char** argv, const std::string& raison);

} // namespace plateforme::qt
