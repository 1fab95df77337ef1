// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/testo_mostrato.h"

#include <QTextDocument>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// More than any text of the program; what is longer would leave the screen.
constexpr qsizetype kMassimoBox = 4000;
constexpr qsizetype kMassimoIstruzione = 1000;
constexpr qsizetype kMassimoRiga = 300;

}  // namespace

QString TestoPiano(const QString& testo) {
    const QString visibile = Accorciato(VisibileARighe(testo), kMassimoIstruzione);
    return Qt::mightBeRichText(visibile) ? Qt::convertFromPlainText(visibile, Qt::WhiteSpaceNormal) : visibile;
}

void MostraIstruzione(QWidget& controllo, const QString& istruzione) { controllo.setToolTip(TestoPiano(istruzione)); }

QString InScritta(const QString& testo) { return Accorciato(Visibile(testo), kMassimoRiga).replace(u"&"_s, u"&&"_s); }

// A title has a place for the mark of what is not saved, which a name may happen to hold.
void MostraTitolo(QWidget& finestra, const QString& titolo) {
    finestra.setWindowTitle(Accorciato(Visibile(titolo), kMassimoRiga).replace(u"[*]"_s, u"[*][*]"_s));
}

QLabel* NuovaScritta(const QString& testo) {
    auto* scritta = new QLabel;
    scritta->setTextFormat(Qt::PlainText);
    MostraScritta(*scritta, testo);
    return scritta;
}

void MostraScritta(QLabel& scritta, const QString& testo) {
    QStringList righe = VisibileARighe(testo).split(u'\n');
    for (QString& riga : righe) riga = Accorciato(riga, kMassimoRiga);
    scritta.setText(righe.join(u'\n'));
}

Box::Box(Icon icona, const QString& titolo, const QString& testo, StandardButtons bottoni, QWidget* finestra)
    : QMessageBox(icona, {}, Accorciato(VisibileARighe(testo), kMassimoBox), bottoni, finestra) {
    setTextFormat(Qt::PlainText);
    MostraTitolo(*this, titolo);
}

}  // namespace cronovia
