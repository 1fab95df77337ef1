// SPDX-License-Identifier: GPL-3.0-or-later
#include "guide/annotazioni.h"

#include <algorithm>

#include "calendar/testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool Mostra(const Record& record, const VoceGuida& voce) {
    return record[guida::Localita].compare(voce.localita, Qt::CaseInsensitive) == 0 &&
           record[guida::CodiceGuida] == voce.codice && record[guida::Descrizione].trimmed() == voce.descrizione &&
           LeggiTempoVisita(record[guida::TempoSosta]) == voce.tempo;
}

// A name looks for itself as a pattern, but the entry's own locality and description must be the very same: one that
// only resembles them belongs to an entry that nobody pointed at.
std::optional<Record> VoceMostrata(Archive& archive, const NamePattern& localita, const VoceGuida& voce) {
    const Search ricerca{Table::GuidaCitta, {{guida::Localita, localita}}};
    for (Record& record : archive.Select(ricerca)) {
        if (Mostra(record, voce)) return std::move(record);
    }
    return std::nullopt;
}

// An entry with these values: the very one when it is still there, else the first of those like it.
std::optional<Record> Uguale(Archive& archive, const Record& cercato) {
    const Search ricerca{Table::GuidaCitta, {{guida::Localita, NamePattern::Exactly(cercato[guida::Localita])}}};
    std::optional<Record> trovato;
    for (Record& record : archive.Select(ricerca)) {
        // The mark of what was counted is no part of what a person knows of an entry.
        record[guida::FlagVisto] = cercato[guida::FlagVisto];
        if (record.values == cercato.values && (!trovato || record.id == cercato.id)) trovato = std::move(record);
    }
    return trovato;
}

Record Inserita(Archive& archive, Record record) {
    record.id = archive.Insert(Table::GuidaCitta, record.values);
    return record;
}

}  // namespace

CampiVoce CampiDellaVoce(const VoceGuida& voce) {
    return {voce.descrizione, voce.tipo, voce.tempo.ore, voce.tempo.minuti};
}

std::optional<DifettoVoce> DifettoDellaVoce(const std::vector<TipoGuida>& tipi, const CampiVoce& campi) {
    const auto manca = [](guida::Field campo, const QString& nome) {
        return DifettoVoce{campo, u"Errore! Manca %1!!!"_s.arg(nome)};
    };
    if (campi.descrizione.trimmed().isEmpty()) return manca(guida::Descrizione, u"la descrizione"_s);
    const int larghezza = Width(Table::GuidaCitta, guida::Descrizione);
    if (campi.descrizione.trimmed().size() > larghezza) {
        return DifettoVoce{guida::Descrizione,
                           u"La descrizione è troppo lunga: al massimo %1 caratteri."_s.arg(larghezza)};
    }
    const int codice = CodiceTipoGuida(tipi, campi.tipo);
    if (codice < 0) return manca(guida::CodiceGuida, u"la tipologia"_s);
    const bool obbligatorio = std::any_of(tipi.begin(), tipi.end(), [&](const TipoGuida& tipo) {
        return ValoreNumerico(tipo.codice) == codice && tipo.tempoObbligatorio;
    });
    if (obbligatorio && campi.ore == 0 && campi.minuti == 0) return manca(guida::TempoSosta, u"il tempo stimato"_s);
    return std::nullopt;
}

ModificaGuida SalvaVoce(Archive& archive, const QString& localita, const std::optional<VoceGuida>& mostrata,
                        const std::vector<TipoGuida>& tipi, const CampiVoce& campi) {
    if (const auto difetto = DifettoDellaVoce(tipi, campi)) throw Failure(difetto->messaggio);
    const int larghezza = Width(Table::GuidaCitta, guida::Localita);
    if (localita.size() > larghezza) {
        throw Failure(u"Il nome della località è troppo lungo: al massimo %1 caratteri."_s.arg(larghezza));
    }
    Transaction transaction(archive);
    ModificaGuida modifica;
    if (mostrata) modifica.prima = VoceMostrata(archive, NamePattern::ForName(localita), *mostrata);
    Record record = modifica.prima.value_or(Record{0, std::vector<QString>(guida::kCampi)});
    record[guida::Localita] = localita;
    record[guida::CodiceGuida] = Zero(CodiceTipoGuida(tipi, campi.tipo), 2);
    record[guida::Descrizione] = campi.descrizione.trimmed();
    record[guida::TempoSosta] = TestoTempoVisita({0, campi.ore, campi.minuti});
    record[guida::FlagVisto] = u"0"_s;
    if (modifica.prima) {
        archive.Update(Table::GuidaCitta, record);
        modifica.dopo = std::move(record);
    } else {
        modifica.dopo = Inserita(archive, std::move(record));
    }
    transaction.Commit();
    return modifica;
}

std::optional<ModificaGuida> CancellaVoce(Archive& archive, const NamePattern& localita, const VoceGuida& mostrata) {
    Transaction transaction(archive);
    std::optional<Record> record = VoceMostrata(archive, localita, mostrata);
    if (!record) return std::nullopt;
    archive.Delete(Table::GuidaCitta, record->id);
    transaction.Commit();
    return ModificaGuida{std::move(record), std::nullopt};
}

std::optional<ModificaGuida> Annulla(Archive& archive, const ModificaGuida& modifica) {
    Transaction transaction(archive);
    ModificaGuida fatta{std::nullopt, modifica.prima};
    if (modifica.dopo) {
        fatta.prima = Uguale(archive, *modifica.dopo);
        if (!fatta.prima) return std::nullopt;
    }
    if (fatta.prima && fatta.dopo) {
        fatta.dopo->id = fatta.prima->id;
        archive.Update(Table::GuidaCitta, *fatta.dopo);
    } else if (fatta.prima) {
        archive.Delete(Table::GuidaCitta, fatta.prima->id);
    } else if (fatta.dopo) {
        fatta.dopo = Inserita(archive, std::move(*fatta.dopo));
    }
    transaction.Commit();
    return fatta;
}

}  // namespace cronovia
