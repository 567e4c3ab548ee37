// The widgets that Qt's own do not give. Each knows the control it shows and sends it the user's acts.
#pragma once

#include "store/controles.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

namespace plateforme::qt {

/// A button that looks pressed as long as its control is, whatever the mouse and the focus do.
class bouton final : public QPushButton {
  public:
    using QPushButton::QPushButton;
    void montre_enfonce(bool oui);

  protected:
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    bool enfonce_ = false;
};

/// A label that can be clicked, by Space and Return too, and then looks like a button where it has a ground
/// of its own. A text in the symbol font is drawn as the arrows it stands for.
class etiquette final : public QLabel {
  public:
    etiquette(shell::champ_etiquette& c, QWidget* parent);
    void ecrit(const std::string& texte);

  protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

  private:
    void aligne();
    shell::champ_etiquette& champ_;
};

/// A line of text. Without the focus it shows its beginning. By night its caret is drawn here: the toolkit's
/// own is the opposite of what it stands on.
class ligne_de_texte final : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

  protected:
    void focusOutEvent(QFocusEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
};

/// A text of several lines, the same.
class page_de_texte final : public QPlainTextEdit {
  public:
    using QPlainTextEdit::QPlainTextEdit;

  protected:
    void paintEvent(QPaintEvent* e) override;
};

/// A list: a click, a double click, a right click and the arrow keys are the user's acts; Return is a double
/// click.
class liste final : public QListWidget {
  public:
    liste(shell::champ_liste& c, QWidget* parent);
    /// On the line that is current.
    void clic_droit();

  protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

  private:
    shell::champ_liste& champ_;
    bool presse_ = false; // the left button went down on it and no double click came of it
};

/// A picture scaled to its place at the screen's own pixels; a drawn button too,
/// pressed by Space and Return as well.
class tableau_image final : public QWidget {
  public:
    tableau_image(shell::champ_image& c, QWidget* parent);
    void montre(const QPixmap& image);

  protected:
    void paintEvent(QPaintEvent* e) override;
    void changeEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

  private:
    shell::champ_image& champ_;
    QPixmap image_;
    QPixmap reduite_; // to the screen's pixels of the place it has
};

/// Shows a control's tooltip over its widget; made for the widget, and gone with it.
class montre_bulle final : public QObject {
  public:
    montre_bulle(const shell::controle& c, QWidget* w);
    bool eventFilter(QObject* objet, QEvent* e) override;

  private:
    const shell::controle& champ_;
};

} // namespace plateforme::qt
