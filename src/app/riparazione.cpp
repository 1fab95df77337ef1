// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/riparazione.h"

#include <QDir>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString DataDella(const ArchiveCopy& copia) { return copia.when.toString(u"dd/MM/yyyy 'ore' HH:mm"_s); }

QString ComeSiRipara(const Repair& riparazione) {
    switch (riparazione.way) {
        case Repair::Way::Indexes:
            return u"Le righe ci sono tutte: erano in disordine soltanto gli indici.\n"_s;
        case Repair::Way::Rows:
            return u"Le righe che si leggono sono salvate una per una.\n"_s;
        case Repair::Way::Copy:
            break;
    }
    return u"Il file non si legge più: resta l'ultima copia in ordine, del %1. Quello che è stato scritto dopo è "
           "perso.\n"_s.arg(DataDella(*riparazione.lastGood));
}

}  // namespace

QString TestoInOrdine(const std::vector<Finding>& segnalazioni) {
    QString testo = u"L'archivio è in ordine: non c'è niente da riparare.\n"_s;
    for (const Finding& segnalazione : segnalazioni) testo += segnalazione.text + u'\n';
    return testo.trimmed();
}

QString TestoTabellaRiparata(const RepairedTable& tabella) {
    QString testo = u"%1: salvate %2"_s.arg(Definition(tabella.table).people, Raggruppa(tabella.kept));
    if (tabella.fromCopy > 0) testo += u", di cui %1 con l'aiuto delle copie"_s.arg(Raggruppa(tabella.fromCopy));
    if (tabella.lost > 0) testo += u", perse %1"_s.arg(Raggruppa(tabella.lost));
    return testo;
}

QString TestoRiparazione(const Repair& riparazione) {
    QString testo = ComeSiRipara(riparazione);
    for (const RepairedTable& tabella : riparazione.tables) {
        if (tabella.kept > 0 || tabella.lost > 0) testo += u"Righe %1.\n"_s.arg(TestoTabellaRiparata(tabella));
    }
    if (!riparazione.rebuilt.isEmpty()) {
        testo += u"Di queste mète restano le tappe; data d'inizio e parametri sono da rivedere: %1.\n"_s.arg(
            riparazione.rebuilt.join(u", "_s));
    }
    if (!riparazione.doubts.isEmpty()) {
        testo += u"Da controllare, perché nel file si leggono due cose diverse: %1.\n"_s.arg(
            riparazione.doubts.join(u", "_s));
    }
    if (riparazione.way == Repair::Way::Rows && riparazione.lastGood) {
        testo += u"L'ultima copia in ordine, che si può anche ripristinare, è del %1.\n"_s.arg(
            DataDella(*riparazione.lastGood));
    }
    return testo;
}

QString TestoRiparata(const QString& daParte) {
    return u"L'archivio è riparato. Quello danneggiato è nel file %1."_s.arg(QDir::toNativeSeparators(daParte));
}

}  // namespace cronovia
