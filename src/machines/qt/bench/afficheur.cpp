#include "machines/qt/bench/afficheur.h"

#include <QEvent>
#include <QPainter>

namespace banc {

piece_rapide::piece_rapide() { setAttribute(Qt::WA_OpaquePaintEvent); }

const QPixmap& piece_rapide::fond() {
    const qreal echelle = devicePixelRatioF();
    if (fond_.isNull() || fond_.devicePixelRatio() != echelle) {
        fond_ = QPixmap{size() * echelle};
        fond_.setDevicePixelRatio(echelle);
        fond_.fill(palette().color(QPalette::Window));
        if (auto* cadre = parentWidget())
            cadre->render(&fond_, {}, geometry(), QWidget::DrawWindowBackground);
        QPainter p{&fond_};
        p.setFont(font());
        peint_le_fond(p);
    }
    return fond_;
}

bool piece_rapide::event(QEvent* e) {
    if (e->type() == QEvent::Resize || e->type() == QEvent::Move || e->type() == QEvent::PaletteChange)
        fond_ = {};
    return QWidget::event(e);
}

afficheur::afficheur(const char* nom, const QString& gabarit, Qt::Alignment cote) : cote_(cote) {
    setObjectName(nom);
    setAccessibleName(nom);
    setFixedSize(fontMetrics().horizontalAdvance(gabarit) + 2, fontMetrics().height());
}

void afficheur::montre(const QString& texte) {
    if (texte == texte_)
        return;
    texte_ = texte;
    setAccessibleDescription(texte);
    update();
}

void afficheur::paintEvent(QPaintEvent*) {
    QPainter p{this};
    p.drawPixmap(0, 0, fond());
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(rect(), static_cast<int>(cote_ | Qt::AlignVCenter), texte_);
}

} // namespace banc
