// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/lettura.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QStringList>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool FuocoSoloDetto(const QAccessibleEvent& evento) {
    const auto* vista = qobject_cast<QAbstractItemView*>(evento.object());
    return evento.type() == QAccessible::Focus && vista != nullptr && vista->window()->windowType() != Qt::Popup &&
           !vista->hasFocus();
}

// What is passed on would come here again.
void Inoltra(QAccessibleEvent* evento) {
    if (FuocoSoloDetto(*evento)) return;
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(evento);
    QAccessible::installUpdateHandler(&Inoltra);
}

}  // namespace

void DiceSoloIlFuocoVero() { QAccessible::installUpdateHandler(&Inoltra); }

QString RigaLetta(const QModelIndex& cella, const QString& inizio) {
    const QAbstractItemModel& modello = *cella.model();
    QStringList parti{inizio.trimmed()};
    for (int colonna = cella.column() + 1; colonna < modello.columnCount(); ++colonna) {
        const QModelIndex altra = cella.siblingAtColumn(colonna);
        const QVariant parlato = altra.data(Qt::AccessibleTextRole);
        const QString testo = (parlato.isValid() ? parlato : altra.data()).toString().trimmed();
        if (testo.isEmpty()) continue;
        parti += modello.headerData(colonna, Qt::Horizontal).toString().trimmed() + u' ' + testo;
    }
    if (parti.size() == 1) parti += u"riga vuota"_s;
    parti.removeAll(QString());
    return parti.join(u", "_s);
}

}  // namespace cronovia
