// The child windows, and the part of the main frame where they live.
#pragma once

#include "store/panneau.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <functional>

namespace plateforme::qt {

class sous_fenetre final : public QMdiSubWindow {
  public:
    explicit sous_fenetre(shell::panneau& p);

    QWidget* arret = nullptr;                  ///< the widget of its stop button, if it has one
    std::function<void()> a_la_taille = [] {}; ///< its size has changed
    bool deplacee = false;                     ///< by the observer: its place is kept

  protected:
    void closeEvent(QCloseEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    bool focusNextPrevChild(bool suivant) override;

  private:
    shell::panneau& fiche_;
    QPoint prise_; // where it was when the mouse went down on its title bar or its edge
};

/// The first (or, going back, the last) control inside that the tab key stops at; null if there is none.
QWidget* premier_arret_de_tab(QWidget& dans, bool suivant);

class zone final : public QMdiArea {
  public:
    explicit zone(QWidget* parent);

    /// Finds a place, whole in the visible part where the window fits, that hides as little as can be of the
    /// others and of their stops least; one that the observer moved keeps its own.
    void place(sous_fenetre& w);
    /// Brings it back into the visible part: whole where it fits, else its upper left corner.
    void ramene(sous_fenetre& w);
    /// Hides a window. If it was the active one the next becomes it, one with a stop first.
    void cache(sous_fenetre& w);

  protected:
    void resizeEvent(QResizeEvent* e) override;

  private:
    QSize partie_visible() const;
    std::vector<sous_fenetre*> visibles(QMdiArea::WindowOrder ordre = CreationOrder) const;
    QSize taille_;
};

} // namespace plateforme::qt
