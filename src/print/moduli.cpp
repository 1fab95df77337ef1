// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/moduli.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString ArgomentoModuli(const DatiStampa& dati) {
    const QString inizio = dati.meta.dataInizio ? TestoData(*dati.meta.dataInizio) : QString();
    const QStringList fine = {dati.fine.giorno, dati.fine.mese, dati.fine.anno};
    return dati.meta.localita + u',' + inizio + u',' + fine.join(u'/');
}

}  // namespace

void AvviaModuli(const DatiStampa& dati, const QStringList& cartelle) {
    QString programma = QStandardPaths::findExecutable(u"Fogliax.exe"_s, cartelle);
    if (programma.isEmpty()) programma = QStandardPaths::findExecutable(u"Fogliax"_s, cartelle);
    if (programma.isEmpty()) {
        throw Failure(
            u"I moduli per il diario di bordo non si possono stampare: nella cartella %1 manca il programma Fogliax.exe."_s
                .arg(QDir::toNativeSeparators(cartelle.value(0))));
    }
    if (!QProcess::startDetached(programma, {ArgomentoModuli(dati)})) {
        throw Failure(u"Il programma dei moduli per il diario di bordo non si avvia: %1."_s.arg(
            QDir::toNativeSeparators(programma)));
    }
}

}  // namespace cronovia
