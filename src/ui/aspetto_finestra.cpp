// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/aspetto_finestra.h"

#include <QMainWindow>
#include <QScreen>
#include <utility>

#include "app/impostazioni.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Of the places of panels and bars: another number, and those remembered before are passed over.
constexpr int kVersioneAspetto = 1;

// As wide as the frames of the desktops are at most.
constexpr QMargins kCornice(8, 40, 8, 8);

// The frame that the desktop puts around it has its place within the screen too.
void PrimaMisura(QWidget& finestra) {
    const QRect schermo = finestra.screen()->availableGeometry().marginsRemoved(kCornice);
    finestra.resize(AspettoFinestra::kMisura.boundedTo(schermo.size()));
    finestra.move(schermo.topLeft() - QPoint(kCornice.left(), kCornice.top()));
}

}  // namespace

AspettoFinestra::AspettoFinestra(const QString& cartella)
    : impostazioni_(FileImpostazioni(cartella), QSettings::IniFormat) {}

void AspettoFinestra::Segue(QMainWindow& finestra) {
    Segue(
        u"finestra"_s, [&finestra] { return finestra.saveGeometry(); },
        [&finestra](const QVariant& misura) {
            PrimaMisura(finestra);
            finestra.restoreGeometry(misura.toByteArray());
        });
    Segue(
        u"pannelli"_s, [&finestra] { return finestra.saveState(kVersioneAspetto); },
        [&finestra](const QVariant& stato) { finestra.restoreState(stato.toByteArray(), kVersioneAspetto); });
}

void AspettoFinestra::Segue(const QString& nome, std::function<QVariant()> comE,
                            std::function<void(const QVariant&)> rimetti) {
    ricordi_.push_back({nome, std::move(comE), std::move(rimetti)});
}

void AspettoFinestra::Ripristina() {
    for (const Ricordo& ricordo : ricordi_) ricordo.rimetti(impostazioni_.value(ricordo.nome));
}

void AspettoFinestra::Ricorda() {
    for (const Ricordo& ricordo : ricordi_) {
        const QVariant valore = ricordo.comE();
        if (impostazioni_.value(ricordo.nome) != valore) impostazioni_.setValue(ricordo.nome, valore);
    }
}

}  // namespace cronovia
