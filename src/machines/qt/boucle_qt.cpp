#include "machines/qt/boucle_qt.h"

#include "machines/qt/fin.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimerEvent>
#include <algorithm>

namespace plateforme::qt {

boucle_qt::boucle_qt(std::function<void(std::int64_t)> attente, std::function<void()> apres_cession,
                     const std::function<void()>& au_repos)
    : attente_(std::move(attente)), apres_cession_(std::move(apres_cession)) {
    if (au_repos)
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                         au_repos);
}

void boucle_qt::attend(std::int64_t ns) {
    if (ns > 0)
        attente_(ns);
}

void boucle_qt::cede() {
    ++passes_;
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    if (apres_cession_)
        apres_cession_();
}

void boucle_qt::arme(rappel& r, int ms) {
    desarme(r);
    agenda_.push_back({&r, startTimer(std::max(0, ms), Qt::PreciseTimer)});
}

void boucle_qt::desarme(rappel& r) {
    const auto place =
        std::find_if(agenda_.begin(), agenda_.end(), [&r](const rendez_vous& v) { return v.rappel == &r; });
    if (place == agenda_.end())
        return;
    killTimer(place->numero);
    agenda_.erase(place);
}

void boucle_qt::timerEvent(QTimerEvent* e) {
    const auto place = std::find_if(agenda_.begin(), agenda_.end(),
                                    [e](const rendez_vous& r) { return r.numero == e->timerId(); });
    if (place == agenda_.end())
        return;
    auto& r = *place->rappel;
    killTimer(place->numero);
    agenda_.erase(place);
    r.tic();
}

void boucle_qt::termine(int statut) { fin(statut); }

} // namespace plateforme::qt
