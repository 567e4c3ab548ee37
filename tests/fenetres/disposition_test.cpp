// Every panel at every scale: all controls inside what their frame leaves, no text cut.
#include "fenetres.h"

#include "fields/frmaltazpilot_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frmraquette_champs.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QToolBar>
#include <QToolButton>

namespace {

class disposition : public essais::fenetres, public testing::WithParamInterface<const char*> {
  protected:
    disposition() : fenetres(GetParam()) {}

    // What a frame leaves: all of it but its title and its edge.
    static QRect interieur(const QWidget* w) {
        const auto* cadre = qobject_cast<const QGroupBox*>(w);
        if (!cadre)
            return w->rect();
        QStyleOptionGroupBox o;
        o.initFrom(cadre);
        o.text = cadre->title();
        o.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        return cadre->style()->subControlRect(QStyle::CC_GroupBox, &o, QStyle::SC_GroupBoxFrame, cadre);
    }

    static QSize place_du_texte(const QWidget* w) {
        if (const auto* l = qobject_cast<const QLabel*>(w))
            return {l->fontMetrics()
                        .boundingRect(l->rect(), l->wordWrap() ? Qt::TextWordWrap : 0, l->text())
                        .size()};
        if (const auto* c = qobject_cast<const QComboBox*>(w)) {
            QStyleOptionComboBox o;
            o.initFrom(c);
            const auto champ =
                c->style()->subControlRect(QStyle::CC_ComboBox, &o, QStyle::SC_ComboBoxEditField, c);
            int largeur = 0;
            for (int i = 0; i < c->count(); ++i)
                largeur = std::max(largeur, c->fontMetrics().horizontalAdvance(c->itemText(i)));
            return {largeur + c->width() - champ.width(), 0};
        }
        if (const auto* b = qobject_cast<const QPushButton*>(w); b && !b->text().isEmpty())
            return b->fontMetrics().size(Qt::TextShowMnemonic, b->text()) + QSize{8, 4};
        if (const auto* b = qobject_cast<const QAbstractButton*>(w); b && !b->text().isEmpty())
            return b->sizeHint() - QSize{4, 4};
        return {};
    }

    void verifie(const char* nom) {
        for (const auto* c : fiche(nom).controles()) {
            auto* w = piece(nom)->findChild<QWidget*>(QString::fromStdString(c->nom()));
            if (!w)
                continue;
            const auto ou = std::string{nom} + "." + c->nom();
            EXPECT_TRUE(interieur(w->parentWidget()).contains(w->geometry())) << ou;
            EXPECT_EQ(w->accessibleName().toStdString(), c->nom());
            const auto texte = place_du_texte(w);
            EXPECT_LE(texte.width(), w->width()) << ou;
            EXPECT_LE(texte.height(), w->height()) << ou;
        }
    }
};

// Panels with a section that opens to the side, and their width then.
const std::pair<const shell::panneau*, int> sections_ouvertes[] = {
    {&frmaltazpilot::fiche, frmaltazpilot::largeur_ouverte},
    {&frmequapilot::fiche, frmequapilot::largeur_ouverte},
    {&frmraquette::fiche, frmraquette::largeur_ouverte},
};

TEST_P(disposition, child_windows) {
    ASSERT_EQ(principale()->devicePixelRatioF(), std::atof(GetParam()));
    for (auto* p : programme::registre().panneaux) {
        if (p->options().principal || p->options().sans_bord)
            continue;
        p->montre();
        for (const auto& [fiche, largeur] : sections_ouvertes)
            if (p == fiche)
                p->largeur(largeur);
        verifie(std::string{p->nom()}.c_str());
    }
}

INSTANTIATE_TEST_SUITE_P(echelles, disposition, testing::Values("1", "1.5", "2"), [](const auto& essai) {
    return std::string{"s"} + std::to_string(static_cast<int>(std::atof(essai.param) * 100));
});

} // namespace
