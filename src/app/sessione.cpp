// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sessione.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>
#include <utility>

#include "app/impostazioni.h"
#include "calendar/durata.h"
#include "calendar/testo.h"
#include "guide/guida_citta.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

Meta ConInizio(const QDateTime& inizio, const ParametriViaggio& parametri) {
    Meta meta;
    const QDate data = inizio.date();
    meta.dataInizio = NumeroDelGiorno({data.day(), data.month(), data.year()});
    meta.oraInizio = InCentesimi({0, inizio.time().hour(), inizio.time().minute()}, kGiornoOrologio);
    meta.parametri = parametri;
    return meta;
}

}  // namespace

Sessione::Sessione(const QString& cartella, Custode custode)
    : cartella_(cartella), custode_(std::move(custode)), archive_(Archive::Open(cartella)) {
    Prepara();
}

void Sessione::Riapri() {
    archive_ = Archive::Open(cartella_);
    Prepara();
}

void Sessione::Prepara() {
    TieniCopie(archive_, cartella_);
    if (!archive_.Damage().isEmpty()) return;
    CompletaTipiGuida(archive_);
    CompletaDefaultMeta(archive_);
}

void Sessione::TieniCopie(Archive& archivio, const QString& cartella) const {
    archivio.KeepDailyCopies(custode_.adesso, custode_.avvisa,
                             [cartella] { return LeggiImpostazioni(cartella).copie; });
}

void Sessione::RifiutaSeDanneggiato() const {
    if (!archive_.Damage().isEmpty()) throw Failure(archive_.Damage());
}

void Sessione::TrasferisciIn(const QString& cartella) {
    const QString path = Archive::FilePath(cartella);
    if (QFileInfo::exists(path)) {
        throw Failure(
            u"Nella cartella %1 c'è già un archivio: scegline un'altra."_s.arg(QDir::toNativeSeparators(cartella)));
    }
    auto incompleta = qScopeGuard([&] { QFile::remove(path); });
    archive_.CopyAsOpenTo(path);
    Archive copia = Archive::Open(cartella);
    incompleta.dismiss();
    TieniCopie(copia, cartella);
    for (const QString& codice : archive_.Retired()) copia.Retire(codice);
    archive_ = std::move(copia);
    cartella_ = cartella;
}

MetaAperta Sessione::ApriMeta(const QString& codice) {
    const ReadSnapshot momento(archive_);
    LettoreGuida guida(archive_);
    return ApriMeta(codice, guida);
}

MetaAperta Sessione::ApriMeta(const QString& codice, LettoreGuida& guida) {
    const QString completo = CodiceCompleto(codice);
    std::optional<Meta> meta = CaricaMeta(archive_, completo);
    if (!meta) throw MetaAssente(u"Non esiste nessuna mèta con il codice %1."_s.arg(completo));
    MetaAperta aperta;
    aperta.memorizzata = *meta;
    aperta.meta = std::move(*meta);
    aperta.orario = OrarioCorretto(aperta.meta.parametri);
    aperta.tappe = CaricaTappeItinerario(archive_, completo, aperta.orario, guida);
    aperta.riepilogo = CalcolaKmTempiItinerario(aperta.tappe, aperta.orario, aperta.meta.giorniAdeguamento);
    aperta.meta.giorniAdeguamento = aperta.riepilogo.giorniAdeguamento;
    return aperta;
}

MetaLetta Sessione::LeggiMeta(const QString& codice, LeggeAnche anche) {
    const ReadSnapshot momento(archive_);
    LettoreGuida guida(archive_);
    MetaAperta aperta = ApriMeta(codice, guida);
    PosizioniConfermate confermate;
    if (anche == LeggeAnche::Posizioni) confermate = PosizioniConfermate(archive_);
    return {std::move(aperta), std::move(guida), std::move(confermate)};
}

EsitoCalcolo Sessione::Calcola(MetaLetta& letta, const OpzioniCalcolo& opzioni, Progress& progress) {
    Meta meta = letta.aperta.meta;
    meta.giorniAdeguamento = opzioni.giorni.value_or(meta.giorniAdeguamento);
    meta.parametri.calcoloSoste = opzioni.soste.value_or(meta.parametri.calcoloSoste);
    const MetaAperta& aperta = letta.aperta;
    return CalcolaCronovia(meta, aperta.orario.Con(meta.parametri), aperta.tappe, letta.guida, progress);
}

MetaCalcolata Sessione::ApriECalcola(const QString& codice, const OpzioniCalcolo& opzioni, Progress& progress,
                                     LeggeAnche anche) {
    MetaLetta letta = LeggiMeta(codice, anche);
    EsitoCalcolo esito = Calcola(letta, opzioni, progress);
    return {std::move(letta.aperta), std::move(esito), std::move(letta.confermate)};
}

Meta Sessione::MetaProposta(const QDateTime& adesso) {
    return ConInizio(InizioProposto(adesso), CaricaDefaultMeta(archive_));
}

QString Sessione::NuovaMeta(const QString& localita, const QString& nazione, const QDateTime& inizio) {
    Meta meta = ConInizio(inizio, CaricaDefaultMeta(archive_));
    meta.localita = Maiuscolo(localita.normalized(QString::NormalizationForm_C));
    meta.nazione = Maiuscolo(nazione);
    return InserisciMeta(archive_, meta);
}

QString CodiceCompleto(const QString& codice) {
    const QString testo = codice.trimmed();
    const bool cifre = std::all_of(testo.begin(), testo.end(), [](QChar c) { return c.isDigit(); });
    return cifre && testo.size() < 6 ? RiempiPrima(testo, 6, u'0') : testo;
}

QDateTime InizioProposto(const QDateTime& adesso) {
    const QTime ora = adesso.time();
    return {adesso.date(), QTime(ora.hour(), ora.minute() / 15 * 15)};
}

}  // namespace cronovia
