#include "machines/qt/pieces.h"

#include "fields/bulles.h"
#include "fields/fleches.h"
#include "machines/qt/mesures.h"
#include "machines/qt/nuit.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <utility>

namespace plateforme::qt {

// ---- button

void bouton::montre_enfonce(bool oui) {
    if (std::exchange(enfonce_, oui) != oui)
        update();
}

void bouton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (enfonce_) {
        option->state |= QStyle::State_Sunken;
        option->state &= ~QStyle::State_Raised;
    }
}

// ---- text field

void ligne_de_texte::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (e->reason() != Qt::ActiveWindowFocusReason && e->reason() != Qt::PopupFocusReason)
        setCursorPosition(0); // whoever only looks at another program goes on typing where he was
}

// ---- label

namespace {

// What is drawn, and has a command, is a button to the keyboard.
void devient_bouton(QWidget& w, const shell::cliquable& c) {
    if (c.a_une_commande() && !c.a(shell::traverse))
        w.setFocusPolicy(Qt::TabFocus);
}

bool presse(const QKeyEvent& e) {
    return !e.isAutoRepeat() &&
           (e.key() == Qt::Key_Space || e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter);
}

// As for the acts that come by signals: one that comes late does nothing.
bool a_l_ecran(const shell::controle& c) { return c.fiche().est_visible(); }

// A label breaks between words only; in a word too long for a line, such as a path, it may break anywhere.
QString secable(const QString& texte) {
    constexpr int mot_long = 24;
    constexpr QChar coupure{0x200B}; // takes no room
    auto mots = texte.split(' ');
    for (auto& mot : mots) {
        if (mot.size() < mot_long)
            continue;
        QString coupe;
        for (const auto c : mot) {
            coupe += c;
            if (!c.isHighSurrogate())
                coupe += coupure;
        }
        mot = coupe;
    }
    return mots.join(' ');
}

} // namespace

etiquette::etiquette(shell::champ_etiquette& c, QWidget* parent) : QLabel(parent), champ_(c) {
    setTextFormat(Qt::PlainText);
    setWordWrap(!c.a(shell::symbole));
    if (c.a(shell::symbole) || c.a(shell::aplat) || c.a(shell::copiable))
        setCursor(Qt::PointingHandCursor);
    devient_bouton(*this, c);
}

void etiquette::keyPressEvent(QKeyEvent* e) {
    if (presse(*e))
        champ_.clic();
    else
        QLabel::keyPressEvent(e);
}

void etiquette::ecrit(const std::string& texte) {
    if (!champ_.a(shell::symbole))
        setText(secable(affiche(texte)));
    else
        setText(texte == fleches::referme ? "◀◀" : texte == fleches::ouvre ? "▶▶" : affiche(texte));
}

void etiquette::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton)
        champ_.appuie();
}

void etiquette::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton || !rect().contains(e->position().toPoint()) || !a_l_ecran(champ_))
        return;
    champ_.relache();
    if (champ_.a(shell::copiable)) {
        QApplication::clipboard()->setText(affiche(champ_.regarde().texte));
        QToolTip::showText(e->globalPosition().toPoint(), "Adresse copiée", this);
    }
}

// A label that is clicked looks like what is clicked.
void etiquette::paintEvent(QPaintEvent* e) {
    if (champ_.a(shell::aplat)) {
        QPainter p{this};
        QStyleOptionButton o;
        o.initFrom(this);
        o.state |= QStyle::State_Raised;
        style()->drawControl(QStyle::CE_PushButtonBevel, &o, &p, this);
    }
    QLabel::paintEvent(e);
}

void etiquette::resizeEvent(QResizeEvent* e) {
    aligne();
    QLabel::resizeEvent(e);
}

// One line stands in the middle of its place, as in the field beside it; a text of several at the top.
void etiquette::aligne() {
    const bool une_ligne = height() < 2 * fontMetrics().height() || champ_.a(shell::symbole);
    setAlignment((champ_.a(shell::centre) ? Qt::AlignHCenter : Qt::AlignLeft) |
                 (une_ligne ? Qt::AlignVCenter : Qt::AlignTop));
}

// ---- text

void ligne_de_texte::paintEvent(QPaintEvent* e) {
    QLineEdit::paintEvent(e);
    constexpr int marge = 5; // Qt's, on either side of the caret
    if (nuit() && hasFocus())
        QPainter{this}.fillRect(cursorRect().x() + marge, cursorRect().y(), 1, cursorRect().height(),
                                palette().color(QPalette::Text));
}

void page_de_texte::paintEvent(QPaintEvent* e) {
    setCursorWidth(nuit() ? 0 : 1);
    QPlainTextEdit::paintEvent(e);
    if (nuit() && hasFocus())
        QPainter{viewport()}.fillRect(cursorRect().x(), cursorRect().y(), 1, cursorRect().height(),
                                      palette().color(QPalette::Text));
}

// ---- list

namespace {

// As many whole lines as find room, each a little higher than it needs to be.
class lignes_entieres final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& i) const override {
        const auto s = QStyledItemDelegate::sizeHint(option, i);
        const int place = static_cast<QListWidget*>(parent())->viewport()->height();
        const int lignes = std::max(1, place / std::max(1, s.height()));
        return {s.width(), std::max(s.height(), (place + lignes - 1) / lignes)};
    }
};

} // namespace

liste::liste(shell::champ_liste& c, QWidget* parent) : QListWidget(parent), champ_(c) {
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setItemDelegate(new lignes_entieres{this});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
}

void liste::resizeEvent(QResizeEvent* e) {
    QListWidget::resizeEvent(e);
    doItemsLayout(); // the height of a line follows the list's
}

void liste::mousePressEvent(QMouseEvent* e) {
    const int ligne = indexAt(e->position().toPoint()).row();
    if (e->button() == Qt::RightButton) {
        champ_.droit(ligne);
        return;
    }
    QListWidget::mousePressEvent(e);
    presse_ = e->button() == Qt::LeftButton && ligne >= 0;
}

void liste::mouseReleaseEvent(QMouseEvent* e) {
    QListWidget::mouseReleaseEvent(e);
    if (e->button() == Qt::LeftButton && std::exchange(presse_, false) && currentRow() >= 0 &&
        a_l_ecran(champ_))
        champ_.choisit(currentRow());
}

void liste::mouseDoubleClickEvent(QMouseEvent* e) {
    const int ligne = indexAt(e->position().toPoint()).row();
    presse_ = false;
    if (e->button() == Qt::LeftButton && ligne >= 0)
        champ_.double_clic(ligne);
}

void liste::clic_droit() { champ_.droit(currentRow()); }

void liste::keyPressEvent(QKeyEvent* e) {
    const int avant = currentRow();
    if (avant >= 0 && (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)) {
        if (!e->isAutoRepeat())
            champ_.double_clic(avant);
        return;
    }
    QListWidget::keyPressEvent(e);
    if (currentRow() != avant && currentRow() >= 0)
        champ_.choisit(currentRow());
}

// ---- picture

tableau_image::tableau_image(shell::champ_image& c, QWidget* parent) : QWidget(parent), champ_(c) {
    devient_bouton(*this, c);
}

void tableau_image::keyPressEvent(QKeyEvent* e) {
    if (presse(*e))
        champ_.clic();
    else
        QWidget::keyPressEvent(e);
}

void tableau_image::montre(const QPixmap& image) {
    image_ = image;
    reduite_ = {};
    update();
}

void tableau_image::paintEvent(QPaintEvent*) {
    if (image_.isNull())
        return;
    const QSize voulue = (QSizeF{size()} * devicePixelRatioF()).toSize();
    if (reduite_.size() != voulue)
        reduite_ = QPixmap::fromImage(
            eclaire(image_.toImage().scaled(voulue, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                    *champ_.comme_dessine().image ? nature::decor : nature::photographie));
    QPainter{this}.drawPixmap(rect(), reduite_);
}

void tableau_image::changeEvent(QEvent* e) {
    if (e->type() == QEvent::PaletteChange)
        reduite_ = {};
    QWidget::changeEvent(e);
}

void tableau_image::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton)
        champ_.appuie();
}

// The press took the mouse, so its release is told wherever it falls.
void tableau_image::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton && a_l_ecran(champ_))
        champ_.relache();
}

// ---- tooltip

montre_bulle::montre_bulle(const shell::controle& c, QWidget* w) : QObject(w), champ_(c) {
    w->installEventFilter(this);
}

// Worked out when it is asked for: a speed's tells its present value.
bool montre_bulle::eventFilter(QObject*, QEvent* e) {
    if (e->type() != QEvent::ToolTip)
        return false;
    const auto texte = bulles::bulle(champ_);
    if (!texte.empty())
        QToolTip::showText(static_cast<QHelpEvent*>(e)->globalPos(), affiche(texte));
    return true;
}

} // namespace plateforme::qt
