// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mappa/frm_coordinate.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

std::optional<Posizione> ChiediCoordinate(QWidget& finestra, const QString& localita) {
    constexpr int kMassimoTesto = 80;
    QDialog dialogo(&finestra);
    MostraTitolo(dialogo, u"Coordinate"_s);
    auto* layout = Spaziato(new QFormLayout(&dialogo), Spazi::Dialogo);
    QLineEdit* testo = NuovaCasella(u"txtCoordinate"_s, kMassimoTesto, u"Latitudine e longitudine"_s);
    testo->setMinimumWidth(testo->fontMetrics().averageCharWidth() * 44);
    testo->setPlaceholderText(u"44,4056 8,9463   oppure   44°24'20\"N 8°56'47\"E"_s);
    QLabel* letta = NuovaScritta(u"Latitudine e longitudine, come le scrive il navigatore."_s);
    auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* ok = pulsanti->button(QDialogButtonBox::Ok);
    ok->setEnabled(false);
    layout->addRow(NuovaScritta(u"Dove si trova %1?"_s.arg(localita)));
    layout->addRow(u"&Coordinate"_s, testo);
    layout->addRow(letta);
    layout->addRow(pulsanti);
    QObject::connect(testo, &QLineEdit::textChanged, &dialogo, [letta, ok](const QString& scritto) {
        const std::optional<Posizione> posizione = LeggiPosizione(scritto);
        ok->setEnabled(posizione.has_value());
        MostraScritta(*letta, posizione ? Testo(*posizione)
                              : scritto.trimmed().isEmpty()
                                  ? u"Latitudine e longitudine, come le scrive il navigatore."_s
                                  : u"Non sono ancora due coordinate."_s);
    });
    QObject::connect(pulsanti, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(pulsanti, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    return dialogo.exec() == QDialog::Accepted ? LeggiPosizione(testo->text()) : std::nullopt;
}

}  // namespace cronovia
