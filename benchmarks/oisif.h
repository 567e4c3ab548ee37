// When a program is idle: its main frame is on screen and nothing is left to do.
#pragma once

#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <unistd.h>

namespace mesure {

/// Writes one byte to standard output once `w` has been painted and the event queue is empty.
inline void annonce_oisif(QWidget& w) {
    auto* minuteur = new QTimer{&w};
    minuteur->setInterval(0); // fires when nothing else is pending
    QObject::connect(minuteur, &QTimer::timeout, &w, [&w, minuteur, passages = 0]() mutable {
        if (!w.windowHandle()->isExposed() || ++passages < 2)
            return;
        minuteur->stop();
        if (::write(STDOUT_FILENO, "!", 1) != 1)
            _exit(1);
    });
    minuteur->start();
}

} // namespace mesure
