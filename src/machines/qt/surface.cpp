#include "machines/qt/surface.h"

#include "store/touches.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace plateforme::qt {

namespace {

constexpr int touche_sans_code = 255;

// The code of a key. Only letters, digits and the blank have their character's: a sign such as the
// apostrophe must not be taken for the arrow whose code its character is.
int code_touche(const QKeyEvent& e) {
    const int cle = e.key();
    if (e.modifiers().testFlag(Qt::KeypadModifier) && cle >= Qt::Key_0 && cle <= Qt::Key_9)
        return 96 + cle - Qt::Key_0;
    if ((cle >= Qt::Key_A && cle <= Qt::Key_Z) || (cle >= Qt::Key_0 && cle <= Qt::Key_9) ||
        cle == Qt::Key_Space)
        return cle;
    if (cle >= Qt::Key_F1 && cle <= Qt::Key_F24)
        return 112 + cle - Qt::Key_F1;
    static constexpr std::pair<int, int> codes[] = {
        {Qt::Key_Backspace, 8},
        {Qt::Key_Tab, 9},
        {Qt::Key_Backtab, 9},
        {Qt::Key_Return, 13},
        {Qt::Key_Enter, 13},
        {Qt::Key_Shift, 16},
        {Qt::Key_Control, 17},
        {Qt::Key_Alt, 18},
        {Qt::Key_Pause, 19},
        {Qt::Key_CapsLock, 20},
        {Qt::Key_Escape, touches::echappement},
        {Qt::Key_PageUp, touches::page_haut},
        {Qt::Key_PageDown, touches::page_bas},
        {Qt::Key_End, touches::fin},
        {Qt::Key_Home, touches::debut},
        {Qt::Key_Left, touches::gauche},
        {Qt::Key_Up, touches::haut},
        {Qt::Key_Right, touches::droite},
        {Qt::Key_Down, touches::bas},
        {Qt::Key_Insert, 45},
        {Qt::Key_Delete, touches::supprime},
    };
    for (const auto& [touche, code] : codes)
        if (touche == cle)
            return code;
    return touche_sans_code;
}

} // namespace

surface::surface(shell::champ_surface& c, QWidget* parent) : QWidget(parent), champ_(c) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

QSize surface::taille_voulue() const {
    const double d = devicePixelRatioF();
    return {static_cast<int>(std::ceil(width() * d)), static_cast<int>(std::ceil(height() * d))};
}

void surface::peint() {
    if (image_.size() != taille_voulue())
        image_ = QImage{taille_voulue(), QImage::Format_RGB32};
    peintre_.peint(image_, champ_.regarde().toile, devicePixelRatioF());
}

void surface::montre() {
    if (!isVisible()) {
        image_ = {}; // painted when it comes on screen
        return;
    }
    peint();
    repaint();
}

// In the screen's own pixels: nothing is left to scale, and a window that stands between two is rounded to
// one.
void surface::paintEvent(QPaintEvent*) {
    if (image_.size() != taille_voulue())
        peint();
    QPainter p{this};
    const double d = devicePixelRatioF();
    p.scale(1 / d, 1 / d);
    p.drawImage(0, 0, image_);
}

// Other colours: painted anew when it is next shown.
void surface::changeEvent(QEvent* e) {
    if (e->type() == QEvent::PaletteChange)
        image_ = {};
    QWidget::changeEvent(e);
}

void surface::presse(Qt::MouseButton bouton, QPointF ou) {
    champ_.presse({static_cast<int>(bouton), static_cast<float>(ou.x() * shell::twips_par_pixel),
                   static_cast<float>(ou.y() * shell::twips_par_pixel)});
}

void surface::mousePressEvent(QMouseEvent* e) { presse(e->button(), e->position()); }

void surface::clic_droit() {
    const auto ou = mapFromGlobal(QCursor::pos());
    presse(Qt::RightButton, rect().contains(ou) ? ou : rect().center());
}

void surface::keyPressEvent(QKeyEvent* e) {
    champ_.frappe({code_touche(*e), e->modifiers().testFlag(Qt::ShiftModifier),
                   e->modifiers().testFlag(Qt::ControlModifier)});
}

} // namespace plateforme::qt
