// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/iei/importa_mete.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <array>

#include "calendar/date.h"
#include "calendar/durata.h"
#include "calendar/testo.h"
#include "exchange/iei/elenco_mete.h"
#include "exchange/iei/mappa_codici.h"
#include "exchange/nomi_presenti.h"
#include "interaction/failure.h"
#include "itinerary/modifiche.h"
#include "itinerary/vincoli.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMassimoLocalitaRicordate = 10'000;

// Zeros in front go; what is left is not cut.
bool SequenzaInQuattroCifre(QString& sequenza) {
    const int larghezza = Width(Table::Itinerari, itinerari::Sequenza);
    while (sequenza.size() > larghezza && sequenza.startsWith(u'0')) sequenza.remove(0, 1);
    return sequenza.size() <= larghezza;
}

QString Adattato(const QString& valore, const FieldDefinition& campo) { return valore.left(campo.width); }

class Importatore {
  public:
    Importatore(Archive& archive, const LettoreIei& lettore, MappaCodici& codici)
        : archive_(archive),
          lettore_(lettore),
          codici_(codici),
          mete_(archive, Table::MeteVandro, {mete::Localita}),
          tappe_(archive, Table::Itinerari, {itinerari::Localita}),
          guida_(archive, Table::GuidaCitta, {guida::Localita, guida::Descrizione}) {}

    void Importa(RigaIei& riga) {
        switch (riga.tabella) {
            case Table::MeteVandro:
                return ImportaMeta(riga);
            case Table::Itinerari:
                return ImportaTappa(riga);
            default:
                return ImportaVoce(riga);
        }
    }

    EsitoImport Esito() {
        if (!inserite_.empty()) esito_.ultimaMeta = inserite_.back();
        for (const auto& [codice, ritocchi] : ritocchi_) esito_.ritocchi += ritocchi;
        esito_.lettura = lettore_.Scarti();
        return std::move(esito_);
    }

  private:
    void ImportaMeta(RigaIei& riga);
    void ImportaTappa(RigaIei& riga);
    void ImportaVoce(RigaIei& riga);
    void ImportaAggiunti(const RigaIei& riga);
    void ImportaVincoli(const RigaIei& riga);
    void ImportaStima(const RigaIei& riga);
    void AggiustaData(QString& data, Ritocchi& ritocchi) const;
    static void AggiustaSosta(QString& sosta, Ritocchi& ritocchi);
    void Togli(MetaDaImportare& meta);
    bool HaTappe(const QString& localita);
    void Inserisci(RigaIei& riga, const QString& codiceMeta, NomiPresenti& presenti);

    Archive& archive_;
    const LettoreIei& lettore_;
    MappaCodici& codici_;
    NomiPresenti mete_;
    NomiPresenti tappe_;
    NomiPresenti guida_;
    QHash<QString, bool> conTappe_;         // localities looked up since the last stage was added
    std::vector<QString> inserite_;         // codes of the trips
    std::map<QString, Ritocchi> ritocchi_;  // by the code of their trip; those of the guide without
    EsitoImport esito_;
};

void Importatore::ImportaMeta(RigaIei& riga) {
    MetaDaImportare* meta = codici_.Trova(riga.valori[mete::CodiceMeta]);
    if (!MetaImportabile(riga) || meta == nullptr) {
        ++esito_.meteIncomplete;
        return;
    }
    if (meta->stato == StatoMeta::NonScelta) return;
    if (meta->stato != StatoMeta::InAttesa) {
        ++esito_.codiciRipetuti;
        return;
    }
    const FieldDefinition& campo = Definition(Table::MeteVandro).fields[mete::Localita];
    const QString localita = Adattato(riga.valori[mete::Localita], campo);
    if (mete_.Trova({}, localita)) {
        meta->stato = StatoMeta::Scartata;
        ++esito_.meteScartate;
        return;
    }
    meta->stato = StatoMeta::Inserita;
    ++esito_.meteInserite;
    AggiustaData(riga.valori[mete::DataInizio], ritocchi_[meta->codice]);
    inserite_.push_back(meta->codice);
    Inserisci(riga, meta->codice, mete_);
    ImportaAggiunti(riga);
}

void Importatore::AggiustaData(QString& data, Ritocchi& ritocchi) const {
    if (LeggiData(data) || !lettore_.HaCampo(Table::MeteVandro, mete::DataInizio)) return;
    const std::optional<NumeroGiorno> vicino = LeggiPartiData(data).Giorno();
    ++(vicino ? ritocchi.dateCorrette : ritocchi.dateIlleggibili);
    data = vicino ? DataMemorizzata(*vicino) : QString();
}

void Importatore::AggiustaSosta(QString& sosta, Ritocchi& ritocchi) {
    if (DurataLeggibile(sosta)) return;
    ++ritocchi.sosteRifiutate;
    sosta.clear();
}

void Importatore::ImportaTappa(RigaIei& riga) {
    MetaDaImportare* meta = codici_.Trova(riga.valori[itinerari::CodiceMeta]);
    if (meta == nullptr || meta->stato == StatoMeta::InAttesa) {
        ++esito_.tappeSenzaMeta;
    } else if (meta->stato == StatoMeta::Inserita) {
        conTappe_.clear();
        if (meta->tappe == kMassimoTappe || !SequenzaInQuattroCifre(riga.valori[itinerari::Sequenza])) {
            Togli(*meta);
            return;
        }
        ++meta->tappe;
        ++esito_.tappeInserite;
        AggiustaSosta(riga.valori[itinerari::TempoSosta], ritocchi_[meta->codice]);
        Inserisci(riga, meta->codice, tappe_);
        ImportaVincoli(riga);
        ImportaStima(riga);
    }
}

// Of a record that was added.
void Importatore::ImportaAggiunti(const RigaIei& riga) {
    const auto aggiunti = riga.aggiunti.find(Table::Scadenze);
    if (aggiunti == riga.aggiunti.end()) return;
    Meta meta;
    meta.codice = riga.valori[mete::CodiceMeta];
    meta.localita = riga.valori[mete::Localita];
    ritocchi_[meta.codice].orariRifiutati += LeggiAggiunti(aggiunti->second, meta);
    ScriviAggiunti(archive_, meta);
}

void Importatore::ImportaVincoli(const RigaIei& riga) {
    const auto aggiunti = riga.aggiunti.find(Table::Vincoli);
    if (aggiunti == riga.aggiunti.end()) return;
    const VincoliLetti letti = LeggiVincoli(aggiunti->second);
    ritocchi_[riga.valori[itinerari::CodiceMeta]].orariRifiutati += letti.rifiutati;
    if (!letti.vincoli) return;
    std::vector<QString> valori = ValoriDeiVincoli(letti.vincoli.Valore());
    valori[vincoli::CodiceMeta] = riga.valori[itinerari::CodiceMeta];
    valori[vincoli::Sequenza] = riga.valori[itinerari::Sequenza];
    valori[vincoli::Localita] = riga.valori[itinerari::Localita];
    archive_.Insert(Table::Vincoli, valori);
}

void Importatore::ImportaStima(const RigaIei& riga) {
    const auto aggiunti = riga.aggiunti.find(Table::Stime);
    if (aggiunti == riga.aggiunti.end()) return;
    const int km = ValoreNumerico(riga.valori[itinerari::Chilometri]);
    if (km <= 0 || ValoreNumerico(aggiunti->second[stime::KmStimati]) != km) return;
    const std::array valori = {riga.valori[itinerari::CodiceMeta], riga.valori[itinerari::Sequenza],
                               riga.valori[itinerari::Localita], QString::number(km)};
    archive_.Insert(Table::Stime, valori);
}

// What was added of a trip goes again: no part of it is worth having.
void Importatore::Togli(MetaDaImportare& meta) {
    Progress muto;
    const NamePattern questa = NamePattern::Exactly(meta.codice);
    std::vector<Table> tabelle = TripTablesOnDemand();
    tabelle.insert(tabelle.end(), {Table::Itinerari, Table::MeteVandro});
    for (const Table tabella : tabelle) {
        archive_.DeleteMatching(tabella, Condition{mete::CodiceMeta, questa}, muto);
    }
    mete_.Dimentica();
    tappe_.Dimentica();
    meta.stato = StatoMeta::TroppoLunga;
    std::erase(inserite_, meta.codice);
    ritocchi_.erase(meta.codice);
    --esito_.meteInserite;
    esito_.tappeInserite -= meta.tappe;
    ++esito_.meteTroppoLunghe;
}

void Importatore::ImportaVoce(RigaIei& riga) {
    const std::vector<FieldDefinition>& campi = Definition(Table::GuidaCitta).fields;
    const QString localita = Adattato(riga.valori[guida::Localita], campi[guida::Localita]);
    if (!HaTappe(localita)) return;
    const QString memorizzata = localita.isEmpty() ? u" "_s : localita;
    const std::array stessaLocalita = {NamePattern::Exactly(memorizzata)};
    const QString descrizione = Adattato(riga.valori[guida::Descrizione], campi[guida::Descrizione]);
    if (guida_.Trova(stessaLocalita, descrizione)) {
        ++esito_.vociScartate;
        return;
    }
    ++esito_.vociInserite;
    Inserisci(riga, {}, guida_);
}

bool Importatore::HaTappe(const QString& localita) {
    if (const auto nota = conTappe_.constFind(localita); nota != conTappe_.constEnd()) return *nota;
    if (conTappe_.size() >= kMassimoLocalitaRicordate) conTappe_.clear();
    const bool esiste = tappe_.Trova({}, localita).has_value();
    conTappe_.insert(localita, esiste);
    return esiste;
}

// The code, which only trips and stages have, is the first field of their tables.
void Importatore::Inserisci(RigaIei& riga, const QString& codiceMeta, NomiPresenti& presenti) {
    const std::vector<FieldDefinition>& campi = Definition(riga.tabella).fields;
    if (!codiceMeta.isEmpty()) riga.valori.front() = codiceMeta;
    for (std::size_t i = 0; i < campi.size(); ++i) {
        QString& valore = riga.valori[i];
        if (valore.isEmpty()) valore = u" "_s;
        if (valore.size() <= campi[i].width) continue;
        valore.truncate(campi[i].width);
        ++ritocchi_[codiceMeta].accorciati[{riga.tabella, static_cast<int>(i)}];
    }
    presenti.Scritta(archive_.Insert(riga.tabella, riga.valori), riga.valori);
}

Lettura LetturaPerImport(std::optional<Table> solo) { return {solo, u"Importazione "_s, {}}; }

EsitoImport ImportaRighe(Archive& archive, MappaCodici& codici, QIODevice& device, Progress& progress) {
    device.seek(0);
    LettoreIei lettore(device, LetturaPerImport(std::nullopt), progress);
    Importatore importatore(archive, lettore, codici);
    RigaIei riga;
    while (lettore.Leggi(riga)) {
        importatore.Importa(riga);
    }
    return importatore.Esito();
}

// `Stopped` on a stop.
EsitoImport Importate(const RichiestaImport& richiesta, QIODevice& device, Progress& progress) {
    MappaCodici codici;
    progress.Title(u"Importazione mète"_s);
    ScorriMete(device, richiesta.path, LetturaPerImport(Table::MeteVandro), progress,
               [&](const RigaIei& riga) { codici.Aggiungi(riga.valori[mete::CodiceMeta]); });
    richiesta.archive.KeepCopy(u"prima di importare"_s);
    Transaction transaction(richiesta.archive);
    codici.Scegli(richiesta.codici, richiesta.archive);
    OsservaAggiunte aggiunte(richiesta.archive);
    EsitoImport esito = ImportaRighe(richiesta.archive, codici, device, progress);
    if (richiesta.stato && StatoDelFile(richiesta.path) != *richiesta.stato) {
        throw Failure(u"Il file %1 è cambiato da quando è stato letto: niente è stato inserito."_s.arg(
            QDir::toNativeSeparators(richiesta.path)));
    }
    esito.traccia = aggiunte.Fine();
    transaction.Commit();
    progress.Advance(0, 0);
    return esito;
}

}  // namespace

Ritocchi& Ritocchi::operator+=(const Ritocchi& altri) {
    for (const auto& [campo, quanti] : altri.accorciati) accorciati[campo] += quanti;
    dateCorrette += altri.dateCorrette;
    dateIlleggibili += altri.dateIlleggibili;
    sosteRifiutate += altri.sosteRifiutate;
    orariRifiutati += altri.orariRifiutati;
    return *this;
}

EsitoImport ImportaMete(const RichiestaImport& richiesta, Progress& progress) {
    RichiestaImport fissata = richiesta;
    if (!fissata.stato) fissata.stato = StatoDelFile(richiesta.path);
    const std::unique_ptr<QFile> file = ApriInLettura(richiesta.path);
    return ImportaMete(fissata, *file, progress);
}

EsitoImport ImportaMete(const RichiestaImport& richiesta, QIODevice& device, Progress& progress) {
    try {
        return Importate(richiesta, device, progress);
    } catch (const Stopped&) {
        EsitoImport esito;
        esito.interrotta = true;
        return esito;
    }
}

}  // namespace cronovia
