// SPDX-License-Identifier: GPL-3.0-or-later
#include "grafica/stampe.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <algorithm>
#include <memory>

#include "app/cartella_dati.h"
#include "app/impostazioni.h"
#include "cli/opzioni_calcolo.h"
#include "interaction/failure.h"
#include "itinerary/posizioni.h"
#include "print/file_pdf.h"
#include "print/stampa_guida.h"
#include "print/stampa_tutto.h"
#include "print/tabella_testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

PieDiPagina Piede(const Sessione& sessione) {
    return {QDate::currentDate(), QCoreApplication::applicationName(),
            LeggiImpostazioni(sessione.Cartella()).carta.misura};
}

bool ConMappa(const Richiesta& richiesta) { return richiesta.opzioni.contains(u"mappa"_s); }

MetaCalcolata Calcolata(Sessione& sessione, const OpzioniCalcolo& opzioni, const Richiesta& richiesta) {
    return sessione.ApriECalcola(richiesta.argomenti.first(), opzioni, *richiesta.avanzamento,
                                 ConMappa(richiesta) ? LeggeAnche::Posizioni : LeggeAnche::Nulla);
}

// With its map, when the line asks for it.
DatiStampa Prepara(const MetaCalcolata& calcolata, const Richiesta& richiesta) {
    const auto& [aperta, esito, confermate] = calcolata;
    DatiStampa dati = PreparaStampa(aperta.meta, *esito.cronovia);
    if (!ConMappa(richiesta)) return dati;
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    const std::vector<PosizioneTappa> posizioni =
        PosizioniDelViaggio(confermate, gazzettino, aperta.tappe, aperta.meta.nazione);
    dati.mappa =
        PreparaMappa(dati, *esito.cronovia, aperta.tappe, posizioni, LeggiCoste(FileDelProgramma(u"coste.dat"_s)));
    return dati;
}

// Both files are whole on the disk before either takes its place: when one fails, both are as they were.
void StampaViaggio(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const OpzioniCalcolo opzioni = LeggiOpzioniCalcolo(richiesta);
    const QString path = richiesta.opzioni.value(u"pdf"_s);
    Sessione sessione = apri();
    sessione.RifiutaSeDanneggiato();
    Progress& progress = *richiesta.avanzamento;
    const MetaCalcolata calcolata = Calcolata(sessione, opzioni, richiesta);
    RifiutaFileEsistente(path, richiesta.opzioni.contains(u"sovrascrivi"_s));
    RifiutaFileTabella(path, sessione.Cartella());
    const DatiStampa dati = Prepara(calcolata, richiesta);
    const Stampato documento = StampaLeScelte(dati, Piede(sessione), {true, false}, progress);
    FileIntero file(path);
    ScriviPdf(documento, file, progress);
    file.Completa();
    const std::unique_ptr<FileIntero> tabella = PreparaTabella(dati, sessione.Cartella());
    file.Chiudi();
    tabella->Chiudi();
    uscita << u"Stampa sul file %1: completata! Pagine: %2.\n"_s.arg(
                  QDir::toNativeSeparators(path), QString::number(std::max<std::size_t>(documento.pagine.size(), 1)))
           << RigaTabellaScritta(sessione.Cartella());
    if (!calcolata.esito.messaggio.isEmpty()) uscita << calcolata.esito.messaggio << '\n';
}

void ScriviFile(const Stampato& documento, const QString& path, const Richiesta& richiesta, Sessione& sessione,
                QTextStream& uscita) {
    sessione.RifiutaSeDanneggiato();
    RifiutaFileEsistente(path, richiesta.opzioni.contains(u"sovrascrivi"_s));
    RifiutaFileTabella(path, sessione.Cartella());
    Progress& progress = *richiesta.avanzamento;
    FileIntero file(path);
    ScriviPdf(documento, file, progress);
    file.Chiudi();
    uscita << u"Stampa sul file %1: completata! Pagine: %2.\n"_s.arg(QDir::toNativeSeparators(path),
                                                                     QString::number(documento.pagine.size()));
}

QString FileScelto(const Richiesta& richiesta) {
    QString path = richiesta.opzioni.value(u"pdf"_s);
    if (path.isEmpty()) throw WrongUsage(u"All'opzione --pdf manca il file."_s);
    return path;
}

void StampaLeGiornate(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const QString path = FileScelto(richiesta);
    const OpzioniCalcolo opzioni = LeggiOpzioniCalcolo(richiesta);
    Sessione sessione = apri();
    Progress& progress = *richiesta.avanzamento;
    const MetaCalcolata calcolata = Calcolata(sessione, opzioni, richiesta);
    const DatiStampa dati = Prepara(calcolata, richiesta);
    if (dati.giorni.empty()) throw Failure(u"Niente da stampare: l'itinerario non ha ancora tappe."_s);
    ScriviFile(StampaLeScelte(dati, Piede(sessione), {false, true}, progress), path, richiesta, sessione, uscita);
    if (!calcolata.esito.messaggio.isEmpty()) uscita << calcolata.esito.messaggio << '\n';
}

DatiStampaGuida DatiPerStampa(Sessione& sessione, const Richiesta& richiesta, const OpzioniStampaGuida& opzioni) {
    const ReadSnapshot momento(sessione.Archivio());
    const Meta meta = opzioni.tutte ? Meta() : sessione.ApriMeta(richiesta.opzioni.value(u"meta"_s)).meta;
    return PreparaStampaGuida(sessione.Archivio(), meta.codice, meta.localita, opzioni);
}

void StampaLaGuida(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const QString path = FileScelto(richiesta);
    const OpzioniStampaGuida opzioni{!richiesta.opzioni.contains(u"meta"_s),
                                     richiesta.opzioni.contains(u"dettaglio"_s)};
    Sessione sessione = apri();
    const DatiStampaGuida dati = DatiPerStampa(sessione, richiesta, opzioni);
    if (dati.localita.empty()) throw Failure(NienteDaStampare(opzioni));
    Progress& progress = *richiesta.avanzamento;
    ScriviFile(StampaGuida(dati, Piede(sessione), progress), path, richiesta, sessione, uscita);
}

}  // namespace

Stampe StampeInPdf() { return {&StampaViaggio, &StampaLaGuida, &StampaLeGiornate}; }

}  // namespace cronovia
