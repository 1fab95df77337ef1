// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/itinerari.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "calendar/testo.h"
#include "guide/guida_citta.h"
#include "interaction/failure.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimoKmPerRecord = 999;
constexpr int kMassimoRecord = 9999;
// No archive had it before; whoever does not know it reads 0.
constexpr QStringView kKmDaIndicare = u"?";

Condition DellaMeta(const QString& codiceMeta) { return {itinerari::CodiceMeta, NamePattern::Exactly(codiceMeta)}; }

int Larghezza(itinerari::Field campo) { return Width(Table::Itinerari, campo); }

// One less than the field holds, as every installation does.
int LarghezzaLocalita() { return Larghezza(itinerari::Localita) - 1; }

bool Vuota(const Tappa& tappa) { return tappa.localita.trimmed().isEmpty(); }

std::int64_t RecordNecessari(std::span<const Tappa> tappe) {
    std::int64_t record = 0;
    for (const Tappa& tappa : tappe) {
        if (!Vuota(tappa)) record += tappa.km > 0 ? (tappa.km - 1) / kMassimoKmPerRecord + 1 : 1;
    }
    return record;
}

// Empty values are stored as one blank, as every installation does.
QString ConBlank(const QString& testo, itinerari::Field campo) { return (testo + u' ').left(Larghezza(campo)); }

void MettiVisite(LettoreGuida& guida, std::span<Tappa> tappe, const OrarioCorretto& orario) {
    guida.Anticipa(LocalitaDelleTappe(tappe));
    guida.Ricomincia();
    for (Tappa& tappa : tappe) {
        tappa.guida = tappa.localita.isEmpty()
                          ? Durata()
                          : InDurata(guida.PrendiTempoVisite(tappa.localita), orario.VisitaGiorno());
    }
}

// At the last row of a stage: there it is reached.
void MemorizzaVincoli(Archive& archive, const std::vector<QString>& riga, const Vincoli& vincoli) {
    std::vector<QString> valori = ValoriDeiVincoli(vincoli);
    valori[vincoli::CodiceMeta] = riga[itinerari::CodiceMeta];
    valori[vincoli::Sequenza] = riga[itinerari::Sequenza];
    valori[vincoli::Localita] = riga[itinerari::Localita];
    archive.Insert(Table::Vincoli, valori);
}

void MemorizzaStima(Archive& archive, const std::vector<QString>& riga) {
    const std::array valori = {riga[itinerari::CodiceMeta], riga[itinerari::Sequenza], riga[itinerari::Localita],
                               riga[itinerari::Chilometri]};
    archive.Insert(Table::Stime, valori);
}

// The rows of one stage; `sequenza` counts on.
void MemorizzaTappa(Archive& archive, const QString& codiceMeta, const Tappa& tappa, const QString& soggiornoGuida,
                    int& sequenza) {
    std::vector<QString> valori(itinerari::kCampi);
    valori[itinerari::CodiceMeta] = codiceMeta;
    valori[itinerari::Localita] = tappa.localita.left(LarghezzaLocalita());
    valori[itinerari::NomeStrada] = ConBlank(tappa.numStrada, itinerari::NomeStrada);
    valori[itinerari::TipoStrada] = ConBlank(LetteraTipoStrada(tappa.tipo), itinerari::TipoStrada);
    valori[itinerari::TempoSosta] = ConBlank(Testo(tappa.sosta), itinerari::TempoSosta);
    valori[itinerari::SostaGuidaCitta] = soggiornoGuida;
    valori[itinerari::FineGiorno] = tappa.fineGiorno ? u"1"_s : u"0"_s;
    int resto = std::max(0, tappa.km);
    do {
        const int parte = std::min(resto, kMassimoKmPerRecord);
        valori[itinerari::Sequenza] = Zero(++sequenza, 4);
        valori[itinerari::Chilometri] = tappa.kmDaIndicare ? kKmDaIndicare.toString() : QString::number(parte);
        archive.Insert(Table::Itinerari, valori);
        if (tappa.kmStimati && parte > 0) MemorizzaStima(archive, valori);
        valori[itinerari::SostaGuidaCitta] = u" "_s;
        resto -= parte;
    } while (resto > 0);
    if (tappa.vincoli) MemorizzaVincoli(archive, valori, tappa.vincoli.Valore());
}

void RifiutaTroppeTappe(std::span<const Tappa> tappe) {
    if (RecordNecessari(tappe) <= kMassimoRecord) return;
    throw Failure(u"Impossibile: l'itinerario ha più di 9.999 tappe e non è stato memorizzato."_s);
}

// All these tables begin with the code.
void CancellaAggiunte(Archive& archive, const QString& codiceMeta) {
    Progress muto;
    for (const Table tabella : {Table::Vincoli, Table::Stime}) {
        archive.DeleteMatching(tabella, DellaMeta(codiceMeta), muto);
    }
}

// What is set for the stages of a trip, each at the row with its number and its locality. Where an earlier release
// moved the stages it goes to the first stage of the locality that has nothing yet.
class VincoliMemorizzati {
  public:
    VincoliMemorizzati(Archive& archive, const QString& codiceMeta)
        : record_(archive.Select({Table::Vincoli, {DellaMeta(codiceMeta)}}, {vincoli::Sequenza})) {}

    VincoliTappa Prendi(const QString& sequenza, const QString& localita) {
        return Prendi([&](const Record& r) {
            return r[vincoli::Sequenza] == sequenza && r[vincoli::Localita].trimmed() == localita;
        });
    }

    void DaiIResti(std::span<Tappa> tappe) {
        for (Tappa& tappa : tappe) {
            if (record_.empty()) return;
            if (tappa.vincoli) continue;
            tappa.vincoli = Prendi([&](const Record& r) { return r[vincoli::Localita].trimmed() == tappa.localita; });
        }
    }

  private:
    template <typename Suo>
    VincoliTappa Prendi(Suo&& suo) {
        const auto trovato = std::find_if(record_.begin(), record_.end(), suo);
        if (trovato == record_.end()) return {};
        VincoliTappa vincoli = LeggiVincoli(trovato->values).vincoli;
        record_.erase(trovato);
        return vincoli;
    }

    std::vector<Record> record_;
};

// Which kilometres of a trip are a guess; found in the same way, where the stage still has them.
class StimeMemorizzate {
  public:
    StimeMemorizzate(Archive& archive, const QString& codiceMeta)
        : record_(archive.Select({Table::Stime, {DellaMeta(codiceMeta)}}, {stime::Sequenza})) {}

    bool Prendi(const QString& sequenza, const Tappa& tappa) {
        return Prendi([&](const Record& r) { return r[stime::Sequenza] == sequenza && Sua(r, tappa); });
    }

    void DaiIResti(std::span<Tappa> tappe) {
        for (Tappa& tappa : tappe) {
            if (record_.empty()) return;
            if (!tappa.kmStimati) tappa.kmStimati = Prendi([&](const Record& r) { return Sua(r, tappa); });
        }
    }

  private:
    static bool Sua(const Record& record, const Tappa& tappa) {
        return tappa.km > 0 && ValoreNumerico(record[stime::KmStimati]) == tappa.km &&
               record[stime::Localita].trimmed() == tappa.localita;
    }

    template <typename Suo>
    bool Prendi(Suo&& suo) {
        const auto trovato = std::find_if(record_.begin(), record_.end(), suo);
        if (trovato == record_.end()) return false;
        record_.erase(trovato);
        return true;
    }

    std::vector<Record> record_;
};

// To a trip without rows, within a transaction of the caller.
EsitoMemorizzazione Aggiungi(Archive& archive, const QString& codiceMeta, std::span<const Tappa> tappe,
                             const OrarioCorretto& orario, Progress& progress) {
    LettoreGuida guida(archive);
    guida.Anticipa(LocalitaDelleTappe(tappe));
    progress.Title(u"Memorizza tappe itinerario"_s);
    EsitoMemorizzazione esito;
    double fatte = 0;
    for (const Tappa& tappa : tappe) {
        progress.Advance(++fatte, static_cast<double>(tappe.size()));
        if (Vuota(tappa)) continue;
        if (tappa.localita.size() > LarghezzaLocalita()) ++esito.nomiAccorciati;
        if (tappa.numStrada.size() > Larghezza(itinerari::NomeStrada)) ++esito.nomiAccorciati;
        const QString visite = Testo(guida.PrendiTempoVisite(tappa.localita), orario.VisitaGiorno());
        MemorizzaTappa(archive, codiceMeta, tappa, visite.isEmpty() ? u" "_s : visite, esito.record);
    }
    return esito;
}

}  // namespace

std::vector<Record> RecordDellItinerario(Archive& archive, const QString& codiceMeta) {
    return archive.Select({Table::Itinerari, {DellaMeta(codiceMeta)}}, {itinerari::Sequenza});
}

std::vector<Tappa> TappeMemorizzate(Archive& archive, const QString& codiceMeta) {
    const ReadSnapshot momento(archive);
    VincoliMemorizzati vincoli(archive, codiceMeta);
    StimeMemorizzate stime(archive, codiceMeta);
    std::vector<Tappa> tappe;
    for (const Record& record : RecordDellItinerario(archive, codiceMeta)) {
        Tappa tappa;
        tappa.localita = record[itinerari::Localita].trimmed();
        if (tappa.localita.isEmpty()) continue;
        tappa.numStrada = record[itinerari::NomeStrada].trimmed();
        tappa.km = std::max(0, ValoreNumerico(record[itinerari::Chilometri]));
        tappa.kmDaIndicare = record[itinerari::Chilometri].trimmed() == kKmDaIndicare;
        tappa.tipo = LeggiTipoStrada(record[itinerari::TipoStrada]);
        tappa.sosta = LeggiDurata(record[itinerari::TempoSosta].trimmed());
        tappa.fineGiorno = record[itinerari::FineGiorno] == "1"_L1;
        tappa.vincoli = vincoli.Prendi(record[itinerari::Sequenza], tappa.localita);
        tappa.kmStimati = stime.Prendi(record[itinerari::Sequenza], tappa);
        tappe.push_back(std::move(tappa));
    }
    vincoli.DaiIResti(tappe);
    stime.DaiIResti(tappe);
    return tappe;
}

std::vector<Tappa> CaricaTappeItinerario(Archive& archive, const QString& codiceMeta, const OrarioCorretto& orario,
                                         LettoreGuida& guida) {
    const ReadSnapshot momento(archive);
    std::vector<Tappa> tappe = TappeMemorizzate(archive, codiceMeta);
    MettiVisite(guida, tappe, orario);
    return tappe;
}

void RicalcolaVisite(Archive& archive, std::span<Tappa> tappe, const OrarioCorretto& orario) {
    const ReadSnapshot momento(archive);
    LettoreGuida guida(archive);
    MettiVisite(guida, tappe, orario);
}

void RicalcolaVisite(LettoreGuida& guida, std::span<Tappa> tappe, const OrarioCorretto& orario) {
    MettiVisite(guida, tappe, orario);
}

std::vector<Tappa> ConSosteDellaGuida(Archive& archive, std::vector<Tappa> tappe, const OrarioCorretto& orario,
                                      Progress& progress) {
    const ReadSnapshot momento(archive);
    LettoreGuida guida(archive);
    progress.Title(u"Copia soste Guida -> Itinerario"_s);
    double fatte = 0;
    for (Tappa& tappa : tappe) {
        progress.Advance(++fatte, static_cast<double>(tappe.size()));
        if (Vuota(tappa)) continue;
        const Centesimi visite = guida.PrendiTempoVisite(tappa.localita);
        if (visite == Centesimi()) continue;
        tappa.sosta = InDurata(InCentesimi(tappa.sosta, orario.VisitaGiorno()) + visite, orario.VisitaGiorno());
    }
    progress.Advance(0, 0);
    return tappe;
}

QString TestoNomiAccorciati(const EsitoMemorizzazione& esito) {
    return u"Nomi accorciati (località a %1 caratteri, strade a %2): %3."_s.arg(LarghezzaLocalita())
        .arg(Larghezza(itinerari::NomeStrada))
        .arg(esito.nomiAccorciati);
}

EsitoMemorizzazione MemorizzaTappeItinerario(Archive& archive, const QString& codiceMeta, std::span<const Tappa> tappe,
                                             const OrarioCorretto& orario, Progress& progress) {
    RifiutaTroppeTappe(tappe);
    Transaction transaction(archive);
    archive.DeleteMatching(Table::Itinerari, DellaMeta(codiceMeta), progress);
    CancellaAggiunte(archive, codiceMeta);
    const EsitoMemorizzazione esito = Aggiungi(archive, codiceMeta, tappe, orario, progress);
    transaction.Commit();
    progress.Advance(0, 0);
    return esito;
}

std::optional<EsitoMemorizzazione> MemorizzaPrimeTappe(Archive& archive, const QString& codiceMeta,
                                                       std::span<const Tappa> tappe, const OrarioCorretto& orario,
                                                       Progress& progress) {
    RifiutaTroppeTappe(tappe);
    Transaction transaction(archive);
    if (!CaricaMeta(archive, codiceMeta)) {
        throw Failure(u"La mèta con il codice %1 non c'è più."_s.arg(codiceMeta));
    }
    if (archive.Exists({Table::Itinerari, {DellaMeta(codiceMeta)}})) return std::nullopt;
    CancellaAggiunte(archive, codiceMeta);
    const EsitoMemorizzazione esito = Aggiungi(archive, codiceMeta, tappe, orario, progress);
    transaction.Commit();
    progress.Advance(0, 0);
    return esito;
}

}  // namespace cronovia
