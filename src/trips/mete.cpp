// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/mete.h"

#include <algorithm>
#include <array>

#include "calendar/testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

Search PerCodice(QStringView codice) { return {Table::MeteVandro, {{mete::CodiceMeta, NamePattern::Exactly(codice)}}}; }

Search ScadenzaDi(QStringView codice) {
    return {Table::Scadenze, {{scadenze::CodiceMeta, NamePattern::Exactly(codice)}}};
}

bool HaTappe(Archive& archive, const QString& codice) {
    return archive.Exists({Table::Itinerari, {{itinerari::CodiceMeta, NamePattern::Exactly(codice)}}});
}

// Puts the only row that a table has.
void ScriviRigaUnica(Archive& archive, Table tabella, std::vector<QString> valori) {
    std::optional<Record> record = archive.SelectFirst({tabella, {}});
    if (record) {
        record->values = std::move(valori);
        archive.Update(tabella, *record);
    } else {
        archive.Insert(tabella, valori);
    }
}

void Rifiuta(const std::optional<DifettoMeta>& difetto) {
    if (difetto) throw Failure(difetto->messaggio);
}

Search ConLaLocalitaDi(const Meta& meta) {
    return {Table::MeteVandro, {{mete::Localita, NamePattern::ForName(meta.localita.trimmed())}}};
}

// When another trip has that destination than the one with the code, of which a new trip has none. A stored trip may
// keep what it has, whatever an earlier release let in beside it.
void RifiutaLocalitaAltrui(Archive& archive, const Meta& meta, const QString& codice) {
    const std::vector<Record> uguali = archive.Select(ConLaLocalitaDi(meta));
    const auto sua = [&](const Record& record) { return record[mete::CodiceMeta] == codice; };
    const auto prima = std::find_if(uguali.begin(), uguali.end(), sua);
    if (prima != uguali.end() && (*prima)[mete::Localita].trimmed() == meta.localita.trimmed()) return;
    const auto altra = std::find_if_not(uguali.begin(), uguali.end(), sua);
    if (altra == uguali.end()) return;
    throw Failure(u"Esiste già la mèta %1 con il codice %2."_s.arg((*altra)[mete::Localita].trimmed(),
                                                                   (*altra)[mete::CodiceMeta]));
}

// Within a transaction of the caller. A code that another window took meanwhile is left to it.
QString Scrivi(Archive& archive, const Meta& nuova, const Salvataggio& salvataggio) {
    Meta meta = nuova;
    meta.localita = meta.localita.trimmed();
    if (meta.localita.contains("AUTOSTRADA"_L1, Qt::CaseInsensitive)) meta.localita = meta.localita.toLower();
    meta.codice = salvataggio.codice;
    std::optional<Record> record = archive.SelectFirst(PerCodice(meta.codice));
    if (record && salvataggio.nuova) meta.codice = CodiceLibero(archive);
    if (record && !salvataggio.nuova) {
        record->values = ValoriDellaMeta(meta);
        archive.Update(Table::MeteVandro, *record);
    } else {
        archive.Insert(Table::MeteVandro, ValoriDellaMeta(meta));
    }
    ScriviAggiunti(archive, meta);
    SalvaIlCodiceMetaCorrente(archive, meta.codice);
    return meta.codice;
}

}  // namespace

std::optional<Meta> CaricaMeta(Archive& archive, QStringView codice) {
    const ReadSnapshot momento(archive);
    const std::optional<Record> record = archive.SelectFirst(PerCodice(codice));
    if (!record) return std::nullopt;
    Meta meta = MetaDaRecord(*record);
    const std::optional<Record> aggiunti = archive.SelectFirst(ScadenzaDi(codice));
    if (aggiunti && (*aggiunti)[scadenze::Localita].trimmed() == meta.localita) LeggiAggiunti(aggiunti->values, meta);
    return meta;
}

int LeggiAggiunti(std::span<const QString> valori, Meta& meta) {
    const QString& data = valori[scadenze::RientroData];
    const QString& ora = valori[scadenze::RientroOra];
    meta.scadenza = Scadenza::Leggi(data, ora);
    const PrezziLetti letti = LeggiPrezzi(valori.subspan(scadenze::KmLitro, kPrezziViaggio));
    meta.prezzi = letti.prezzi;
    const bool senza = data.trimmed().isEmpty() && ora.trimmed().isEmpty();
    return letti.rifiutati + (senza || meta.scadenza ? 0 : 1);
}

std::vector<QString> ValoriAggiunti(const Meta& meta) {
    if (!meta.scadenza && meta.prezzi == PrezziViaggio()) return {};
    std::vector<QString> valori = {meta.codice, meta.localita, {}, {}};
    if (meta.scadenza) {
        const OraFissa& ora = meta.scadenza->Ora();
        valori[scadenze::RientroData] = DataMemorizzata(*ora.Data());
        valori[scadenze::RientroOra] = TestoMinutiMemorizzati(ora.Minuti());
    }
    for (const QString& testo : TestiDeiPrezzi(meta.prezzi)) valori.push_back(testo);
    return valori;
}

void ScriviAggiunti(Archive& archive, const Meta& meta) {
    Progress muto;
    archive.DeleteMatching(Table::Scadenze, ScadenzaDi(meta.codice).conditions.front(), muto);
    const std::vector<QString> valori = ValoriAggiunti(meta);
    if (!valori.empty()) archive.Insert(Table::Scadenze, valori);
}

QString NuovoCodiceMeta(std::span<const QString> codici) {
    std::vector<int> numeri;
    numeri.reserve(codici.size());
    for (const QString& codice : codici) numeri.push_back(ValoreNumerico(codice));
    std::sort(numeri.begin(), numeri.end());
    int libero = 1;
    for (const int numero : numeri) {
        if (numero > libero) break;
        if (numero == libero) ++libero;
    }
    if (libero > 999'999) throw Failure(u"Impossibile: non ci sono più codici liberi per una nuova mèta."_s);
    return Zero(libero, 6);
}

std::vector<QString> CodiciDelleMete(Archive& archive) {
    std::vector<QString> codici;
    archive.ForEach(Table::MeteVandro, [&](const Record& record) { codici.push_back(record[mete::CodiceMeta]); });
    std::sort(codici.begin(), codici.end());
    return codici;
}

QString CodiceLibero(Archive& archive) {
    std::vector<QString> codici = CodiciDelleMete(archive);
    codici.insert(codici.end(), archive.Retired().begin(), archive.Retired().end());
    return NuovoCodiceMeta(codici);
}

Salvataggio DecidiSalvataggio(Archive& archive, const Meta& meta) {
    Rifiuta(DifettoDellaMeta(meta));
    if (ValoreNumerico(meta.codice) != 0) {
        RifiutaLocalitaAltrui(archive, meta, meta.codice);
        return {false, meta.codice};
    }
    if (const auto gia = archive.SelectFirst(ConLaLocalitaDi(meta))) return {false, (*gia)[mete::CodiceMeta]};
    return {true, CodiceLibero(archive)};
}

QString SalvaMeta(Archive& archive, const Meta& meta, const Salvataggio& salvataggio) {
    Rifiuta(DifettoDellaMeta(meta));
    Transaction transaction(archive);
    RifiutaLocalitaAltrui(archive, meta, salvataggio.nuova ? QString() : salvataggio.codice);
    QString codice = Scrivi(archive, meta, salvataggio);
    transaction.Commit();
    return codice;
}

QString InserisciMeta(Archive& archive, const Meta& nuova) {
    Rifiuta(DifettoDellaMeta(nuova));
    Transaction transaction(archive);
    RifiutaLocalitaAltrui(archive, nuova, {});
    QString codice = CodiceLibero(archive);
    Scrivi(archive, nuova, {true, codice});
    transaction.Commit();
    return codice;
}

std::vector<MetaInElenco> ElencoMete(Archive& archive, QualiMete quali) {
    const ReadSnapshot momento(archive);
    std::vector<MetaInElenco> elenco;
    for (const Record& record : archive.Select({Table::MeteVandro, {}}, {mete::Localita})) {
        const Meta meta = MetaDaRecord(record);
        if (quali == QualiMete::Tutte || (!meta.localita.isEmpty() && HaTappe(archive, meta.codice))) {
            elenco.push_back({meta.codice, meta.localita, meta.nazione, meta.dataInizio, false, meta.oraInizio,
                              meta.giorniAdeguamento});
        }
    }
    return elenco;
}

std::vector<MetaInElenco> AutostradeInFondo(std::vector<MetaInElenco> elenco) {
    std::stable_partition(elenco.begin(), elenco.end(),
                          [](const MetaInElenco& meta) { return !meta.localita.contains("autostrada"_L1); });
    return elenco;
}

MetaCancellata CancellaMeta(Archive& archive, const QString& codice, Progress& progress) {
    Transaction transaction(archive);
    // The code is the first field of all their tables.
    const Condition tappa{itinerari::CodiceMeta, NamePattern::Exactly(codice)};
    const Condition meta{mete::CodiceMeta, NamePattern::Exactly(codice)};
    MetaCancellata cancellata{archive.Select({Table::MeteVandro, {meta}}), archive.Select({Table::Itinerari, {tappa}})};
    for (const Table tabella : TripTablesOnDemand()) {
        cancellata.aggiunte[tabella] = archive.Select({tabella, {tappa}});
        archive.DeleteMatching(tabella, tappa, progress);
    }
    archive.DeleteMatching(Table::Itinerari, tappa, progress);
    archive.DeleteMatching(Table::MeteVandro, meta, progress);
    transaction.Commit();
    archive.Retire(codice);
    progress.Advance(0, 0);
    return cancellata;
}

QString RimettiMeta(Archive& archive, const MetaCancellata& cancellata) {
    Transaction transaction(archive);
    QString codice;
    for (Record meta : cancellata.meta) {
        RifiutaLocalitaAltrui(archive, MetaDaRecord(meta), {});
        if (codice.isEmpty()) codice = meta[mete::CodiceMeta];
        if (archive.Exists(PerCodice(codice))) codice = CodiceLibero(archive);
        meta[mete::CodiceMeta] = codice;
        archive.Insert(Table::MeteVandro, meta.values);
    }
    const auto rimetti = [&](Table tabella, const std::vector<Record>& righe) {
        for (Record riga : righe) {
            riga.values.front() = codice;
            archive.Insert(tabella, riga.values);
        }
    };
    rimetti(Table::Itinerari, cancellata.tappe);
    for (const auto& [tabella, righe] : cancellata.aggiunte) rimetti(tabella, righe);
    SalvaIlCodiceMetaCorrente(archive, codice);
    transaction.Commit();
    return codice;
}

ParametriViaggio CaricaDefaultMeta(Archive& archive) {
    const std::optional<Record> record = archive.SelectFirst({Table::Parametri, {}});
    return record ? ParametriDaRecord(*record) : ParametriViaggio();
}

ParametriViaggio RipristinaDefaultMeta(Archive& archive) {
    const ParametriViaggio standard;
    MemorizzaDefaultMeta(archive, standard);
    return standard;
}

void CompletaDefaultMeta(Archive& archive) {
    if (archive.Count(Table::Parametri) == 0) MemorizzaDefaultMeta(archive, ParametriViaggio());
}

void MemorizzaDefaultMeta(Archive& archive, const ParametriViaggio& parametri) {
    Rifiuta(DifettoDeiParametri(parametri));
    Transaction transaction(archive);
    ScriviRigaUnica(archive, Table::Parametri, ValoriDeiParametri(parametri));
    transaction.Commit();
}

QString RicercaMetaCorrente(Archive& archive) {
    if (const std::optional<Record> corrente = archive.SelectFirst({Table::MetaCorrente, {}})) {
        const QString& codice = (*corrente)[metacorrente::MetaCorrente];
        if (archive.Exists(PerCodice(codice))) return codice;
    }
    const std::vector<QString> codici = CodiciDelleMete(archive);
    return codici.empty() ? QString() : codici.back();
}

void SalvaIlCodiceMetaCorrente(Archive& archive, const QString& codice) {
    ScriviRigaUnica(archive, Table::MetaCorrente, {codice});
}

}  // namespace cronovia
