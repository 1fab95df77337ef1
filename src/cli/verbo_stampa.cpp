// stampa.
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <algorithm>

#include "cli/opzioni_calcolo.h"
#include "cli/verbi.h"
#include "print/file_pdf.h"
#include "print/stampa_cronovia.h"
#include "print/tabella_testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

QString RigaTabellaScritta(const QString& cartella) {
    return u"Stampa sul file %1: completata!\n"_s.arg(QDir::toNativeSeparators(FileTabella(cartella)));
}

// The PDF file is complete before the table is touched: when either fails, both are as they were.
void EseguiStampa(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const OpzioniCalcolo opzioni = LeggiOpzioniCalcolo(richiesta);
    const QString path = richiesta.opzioni.value(u"pdf"_s);
    Sessione sessione = apri();
    Progress progress;
    const auto [aperta, esito] = sessione.ApriECalcola(richiesta.argomenti.first(), opzioni, progress);
    RifiutaFileEsistente(path, richiesta.opzioni.contains(u"sovrascrivi"_s));
    RifiutaFileTabella(path, sessione.Cartella());
    const DatiStampa dati = PreparaStampa(aperta.meta, *esito.cronovia);
    const Stampato documento =
        StampaCronovia(dati, {QDate::currentDate(), QCoreApplication::applicationName()}, progress);
    FileIntero file(path);
    ScriviPdf(documento, file, progress);
    ScriviTabella(dati, sessione.Cartella());
    file.Chiudi();
    uscita << u"Stampa sul file %1: completata! Pagine: %2.\n"_s.arg(
                  QDir::toNativeSeparators(path), QString::number(std::max<std::size_t>(documento.pagine.size(), 1)))
           << RigaTabellaScritta(sessione.Cartella());
    if (!esito.messaggio.isEmpty()) uscita << esito.messaggio << '\n';
}

}  // namespace cronovia
