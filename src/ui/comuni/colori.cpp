// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/colori.h"

#include <QCheckBox>
#include <QEvent>
#include <QRadioButton>
#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace cronovia {

namespace {

constexpr double kContrastoMinimo = 4.5;
constexpr double kContrastoDelBordo = 3;
constexpr int kPassoContrasto = 10;  // hundredths
constexpr int kSmorzato = 60;        // hundredths of the ground in a text that is dimmed

double Luminanza(const QColor& colore) {
    const auto lineare = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) + 0.0722 * lineare(colore.blueF());
}

// From one colour towards another, no further than to be seen on all grounds.
QColor Leggibile(const QColor& spento, const QColor& acceso, std::span<const QColor> sfondi) {
    const auto siLegge = [&](const QColor& colore) {
        return std::all_of(sfondi.begin(), sfondi.end(),
                           [&](const QColor& sfondo) { return Contrasto(colore, sfondo) >= kContrastoMinimo; });
    };
    int centesimi = 0;
    while (centesimi < 100 && !siLegge(Misto(spento, acceso, centesimi))) centesimi += kPassoContrasto;
    return Misto(spento, acceso, centesimi);
}

class SegueIntorno : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::ParentChange) {
            Colora(*qobject_cast<QLineEdit*>(oggetto));
        }
        return false;
    }

  private:
    static void Colora(QLineEdit& casella) {
        if (casella.parentWidget() == nullptr) return;
        const QPalette intorno = casella.parentWidget()->palette();
        QPalette colori = casella.palette();
        colori.setColor(QPalette::Text, intorno.color(QPalette::Active, QPalette::WindowText));
        QColor sfondo = intorno.color(QPalette::Active, QPalette::Window);
        sfondo.setAlpha(0);  // frames shade theirs
        colori.setColor(QPalette::Base, sfondo);
        if (colori != casella.palette()) casella.setPalette(colori);
    }
};

}  // namespace

QColor Misto(const QColor& da, const QColor& a, int centesimi) {
    const auto parte = [centesimi](int x, int y) { return x + (y - x) * centesimi / 100; };
    return {parte(da.red(), a.red()), parte(da.green(), a.green()), parte(da.blue(), a.blue())};
}

double Contrasto(const QColor& a, const QColor& b) {
    const auto [scuro, chiaro] = std::minmax({Luminanza(a), Luminanza(b)});  // by value: the two are temporaries
    return (chiaro + 0.05) / (scuro + 0.05);
}

// Controls are drawn on any of the three grounds: a text has to be seen on all of them. What is selected is drawn on a
// fourth one, in the colour of selected or of other text, whichever tells itself from it more.
QPalette ConDisabilitatiLeggibili(QPalette palette) {
    const auto disabilitato = [&](QPalette::ColorRole ruolo) { return palette.color(QPalette::Disabled, ruolo); };
    const auto attivo = [&](QPalette::ColorRole ruolo) { return palette.color(QPalette::Active, ruolo); };
    const std::array sfondi = {disabilitato(QPalette::Window), disabilitato(QPalette::Base),
                               disabilitato(QPalette::Button)};
    for (const QPalette::ColorRole testo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        // Themes that do not dim what is disabled leave one guessing what can be used.
        const bool smorzato = disabilitato(testo) != attivo(testo);
        const QColor spento = smorzato ? disabilitato(testo) : Misto(attivo(testo), sfondi[0], kSmorzato);
        palette.setColor(QPalette::Disabled, testo, Leggibile(spento, attivo(testo), sfondi));
    }
    for (const QPalette::ColorGroup gruppo : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const std::array foglio = {palette.color(gruppo, QPalette::Base)};
        palette.setColor(
            gruppo, QPalette::PlaceholderText,
            Leggibile(palette.color(gruppo, QPalette::PlaceholderText), palette.color(gruppo, QPalette::Text), foglio));
    }
    const std::array scelto = {disabilitato(QPalette::Highlight)};
    const QColor acceso =
        std::max(attivo(QPalette::HighlightedText), attivo(QPalette::Text),
                 [&](const QColor& a, const QColor& b) { return Contrasto(a, scelto[0]) < Contrasto(b, scelto[0]); });
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText,
                     Leggibile(disabilitato(QPalette::HighlightedText), acceso, scelto));
    for (const QPalette::ColorGroup gruppo : {QPalette::Active, QPalette::Inactive}) {
        const std::array base = {palette.color(gruppo, QPalette::Base)};
        const QColor testo = palette.color(gruppo, QPalette::Text);
        const std::array sceltoAttivo = {palette.color(gruppo, QPalette::HighlightedText)};
        const QColor fondo = palette.color(gruppo, QPalette::Highlight);
        const QColor lontano = Luminanza(sceltoAttivo[0]) > Luminanza(fondo) ? Qt::black : Qt::white;
        palette.setColor(gruppo, QPalette::Highlight, Leggibile(fondo, lontano, sceltoAttivo));
        palette.setColor(gruppo, QPalette::PlaceholderText, Leggibile(Misto(base[0], testo, 50), testo, base));
    }
    return palette;
}

void MostraLeSpunte(const QWidget& finestra) {
    // What the style makes of the ground around a box, and draws its outline with.
    const auto bordo = [](const QColor& sfondo) { return sfondo.darker(140).lighter(110); };
    const QColor intorno = finestra.palette().color(QPalette::Active, QPalette::Window);
    const QColor scritta = finestra.palette().color(QPalette::Active, QPalette::WindowText);
    int centesimi = 0;
    while (centesimi < 100 && Contrasto(bordo(Misto(intorno, scritta, centesimi)), intorno) < kContrastoDelBordo) {
        centesimi += kPassoContrasto;
    }
    QPalette colori;
    colori.setColor(QPalette::Window, Misto(intorno, scritta, centesimi));
    for (auto* pulsante : finestra.findChildren<QAbstractButton*>()) {
        const bool spunta = qobject_cast<QCheckBox*>(pulsante) || qobject_cast<QRadioButton*>(pulsante);
        if (spunta && colori.color(QPalette::Window) != pulsante->palette().color(QPalette::Window)) {
            pulsante->setPalette(colori);
        }
    }
}

QColor ColoreRitardo(const QPalette& palette, QPalette::ColorRole sfondo, QPalette::ColorRole testo) {
    const std::array sfondi = {palette.color(QPalette::Active, sfondo), palette.color(QPalette::Inactive, sfondo)};
    return Leggibile(QColor(0xC0, 0x10, 0x10), palette.color(QPalette::Active, testo), sfondi);
}

void ComeIntorno(QLineEdit& casella) { casella.installEventFilter(new SegueIntorno(&casella)); }

}  // namespace cronovia
