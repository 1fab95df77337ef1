// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/elenco_numeri.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QStringList>
#include <QToolTip>
#include <algorithm>

#include "calendar/testo.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool UnNumero(const QString& testo) { return !testo.isEmpty() && std::all_of(testo.begin(), testo.end(), &Cifra); }

int IndiceDelNumero(const QComboBox& elenco, int numero) {
    for (int i = 0; i < elenco.count(); ++i) {
        if (elenco.itemText(i).toInt() == numero) return i;
    }
    return -1;
}

QString NumeriOfferti(const QComboBox& elenco) {
    constexpr int kPochi = 5;
    const int ultimo = elenco.count() - 1;
    if (ultimo >= kPochi) return u"da %1 a %2"_s.arg(elenco.itemText(0), elenco.itemText(ultimo));
    QStringList voci;
    for (int i = 0; i < ultimo; ++i) voci += elenco.itemText(i);
    return u"%1 o %2"_s.arg(voci.join(u", "_s), elenco.itemText(ultimo));
}

}  // namespace

void ElencoNumeri::showPopup() {
    battute_.clear();
    view()->removeEventFilter(this);
    view()->installEventFilter(this);
    QComboBox::showPopup();
}

bool ElencoNumeri::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress && Battuta(static_cast<const QKeyEvent&>(*evento), true)) return true;
    return QComboBox::eventFilter(oggetto, evento);
}

void ElencoNumeri::keyPressEvent(QKeyEvent* tasto) {
    if (isEditable() || !Battuta(*tasto, false)) QComboBox::keyPressEvent(tasto);
}

void ElencoNumeri::focusInEvent(QFocusEvent* evento) {
    if (evento->reason() != Qt::PopupFocusReason) battute_.clear();
    QComboBox::focusInEvent(evento);
}

// Left in the middle of a number that is none of the list, it says so: what stands there was not typed.
void ElencoNumeri::focusOutEvent(QFocusEvent* evento) {
    const bool lasciato = evento->reason() != Qt::PopupFocusReason && !battute_.isEmpty();
    if (lasciato && IndiceDelNumero(*this, battute_.toInt()) < 0) DiceCheManca();
    QComboBox::focusOutEvent(evento);
}

bool ElencoNumeri::Battuta(const QKeyEvent& tasto, bool aperto) {
    const Qt::KeyboardModifiers comandi = tasto.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool cifra = comandi == Qt::NoModifier && tasto.text().size() == 1 && UnNumero(tasto.text());
    if (!cifra || count() == 0 || !UnNumero(itemText(0))) {
        battute_.clear();
        return false;
    }
    if (battute_.isEmpty()) prima_ = aperto ? view()->currentIndex().row() : currentIndex();
    battute_ += tasto.text();
    const int indice = IndiceDelNumero(*this, battute_.toInt());
    const bool intero = battute_.size() >= itemText(count() - 1).size();
    if (indice >= 0 || intero) Scegli(indice >= 0 ? indice : prima_, aperto);
    if (indice < 0 && intero) DiceCheManca();
    if (intero) battute_.clear();
    return true;
}

void ElencoNumeri::Scegli(int indice, bool aperto) {
    if (aperto) return view()->setCurrentIndex(model()->index(indice, modelColumn(), rootModelIndex()));
    if (indice == currentIndex()) return;
    setCurrentIndex(indice);
    Q_EMIT activated(indice);
}

void ElencoNumeri::DiceCheManca() {
    const QString testo = u"%1 qui non c'è: si sceglie %2."_s.arg(battute_, NumeriOfferti(*this));
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), TestoPiano(testo), this);
    battute_.clear();
}

}  // namespace cronovia
