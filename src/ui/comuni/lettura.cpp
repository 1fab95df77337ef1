// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/lettura.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
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

constexpr const char* kGenere = "genereLetto";

// One whole: what it is made of is nothing to be gone to.
class UnoSolo : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int /*indice*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*figlio*/) const override { return -1; }
};

QAccessibleInterface* DelGenere(const QString& /*classe*/, QObject* oggetto) {
    const QVariant genere = oggetto->property(kGenere);
    if (!genere.isValid()) return nullptr;
    return new UnoSolo(qobject_cast<QWidget*>(oggetto), static_cast<QAccessible::Role>(genere.toInt()));
}

}  // namespace

void LettoCome(QWidget& controllo, QAccessible::Role genere, const QString& nome) {
    QAccessible::installFactory(&DelGenere);
    controllo.setProperty(kGenere, static_cast<int>(genere));
    controllo.setAccessibleName(nome);
}

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
