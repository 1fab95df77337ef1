// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/inserimento/frm_divisione.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include "store/schema.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/maiuscole.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

std::optional<Divisione> ChiediDivisione(QWidget& finestra, const QString& da, const Tappa& tappa) {
    QDialog dialogo(&finestra);
    MostraTitolo(dialogo, u"Divide la tappa"_s);
    auto* layout = Spaziato(new QFormLayout(&dialogo), Spazi::Dialogo);
    QLabel* tratta = NuovaScritta(u"Da %1 a %2, %3 km."_s.arg(da, tappa.localita).arg(tappa.km));
    auto* localita = NuovaCasella(u"txtDivisione"_s, Width(Table::Itinerari, itinerari::Localita) - 1,
                                  u"La località lungo la strada"_s);
    ScriviMaiuscolo(*localita);
    auto* km = new QSpinBox;
    km->setObjectName(u"kmDivisione"_s);
    km->setRange(1, tappa.km - 1);
    km->setValue(tappa.km / 2);
    km->setAccelerated(true);
    QLabel* resto = NuovaScritta();
    const auto mostraResto = [&] {
        MostraScritta(*resto, u"Ne restano %1 fino a %2."_s.arg(tappa.km - km->value()).arg(tappa.localita));
    };
    mostraResto();
    auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* ok = pulsanti->button(QDialogButtonBox::Ok);
    ok->setEnabled(false);
    layout->addRow(tratta);
    layout->addRow(u"&Località intermedia"_s, localita);
    layout->addRow(u"&Km da %1"_s.arg(InScritta(da)), km);
    layout->addRow(resto);
    layout->addRow(pulsanti);
    QObject::connect(km, &QSpinBox::valueChanged, &dialogo, mostraResto);
    QObject::connect(localita, &QLineEdit::textChanged, ok,
                     [ok](const QString& testo) { ok->setEnabled(!testo.trimmed().isEmpty()); });
    QObject::connect(pulsanti, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(pulsanti, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    if (dialogo.exec() != QDialog::Accepted) return std::nullopt;
    return Divisione{localita->text().trimmed(), km->value()};
}

}  // namespace cronovia
