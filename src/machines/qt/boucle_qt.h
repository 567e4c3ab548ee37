// Waiting, yielding and timers on Qt's event loop.
#pragma once

#include "seam/plateforme.h"

#include <QObject>
#include <cstdint>
#include <functional>
#include <vector>

namespace plateforme::qt {

class boucle_qt final : public QObject, public boucle {
  public:
    /// `attente` returns no earlier than that many nanoseconds after its call; `apres_cession`
    /// runs at the end of each yield, `au_repos` when nothing is left to do.
    explicit boucle_qt(std::function<void(std::int64_t)> attente, std::function<void()> apres_cession = {},
                       const std::function<void()>& au_repos = {});

    void attend(std::int64_t ns) override;
    /// One pass of the event loop, always.
    void cede() override;
    void arme(rappel& r, int ms) override;
    void desarme(rappel& r) override;
    [[noreturn]] void termine(int statut) override;

    std::uint64_t passes() const { return passes_; }

  protected:
    void timerEvent(QTimerEvent* e) override;

  private:
    struct rendez_vous {
        plateforme::rappel* rappel;
        int numero; // Qt's
    };
    std::function<void(std::int64_t)> attente_;
    std::function<void()> apres_cession_;
    std::vector<rendez_vous> agenda_;
    std::uint64_t passes_ = 0;
};

} // namespace plateforme::qt
