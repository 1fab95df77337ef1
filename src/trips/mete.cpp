#include "trips/mete.h"

#include <algorithm>

#include "calendar/testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

Ricerca PerCodice(QStringView codice) {
    return {Tabella::MeteVandro, {{mete::CodiceMeta, NamePattern::Exactly(codice)}}};
}

// Puts the only row that a table has.
void ScriviRigaUnica(Archive& archive, Tabella tabella, std::vector<QString> valori) {
    std::optional<Record> record = archive.SelectFirst({tabella, {}});
    if (record) {
        record->valori = std::move(valori);
        archive.Update(tabella, *record);
    } else {
        archive.Insert(tabella, valori);
    }
}

}  // namespace

std::optional<Meta> CaricaDatiAnagraficiMeta(Archive& archive, QStringView codice) {
    const std::optional<Record> record = archive.SelectFirst(PerCodice(codice));
    if (!record) return std::nullopt;
    return MetaDaRecord(*record);
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
    archive.ForEach(Tabella::MeteVandro, [&](const Record& record) { codici.push_back(record[mete::CodiceMeta]); });
    std::sort(codici.begin(), codici.end());
    return codici;
}

QString InserisciMeta(Archive& archive, const Meta& nuova) {
    Meta meta = nuova;
    meta.localita = meta.localita.trimmed();
    if (meta.localita.isEmpty()) throw Failure(u"Campo Località: obbligatorio!"_s);
    if (meta.nazione.trimmed().isEmpty()) throw Failure(u"Campo Nazione: obbligatorio!"_s);
    if (meta.localita.contains("AUTOSTRADA"_L1, Qt::CaseInsensitive)) meta.localita = meta.localita.toLower();

    Transaction transaction(archive);
    const Ricerca stessaLocalita{Tabella::MeteVandro, {{mete::Localita, NamePattern(LikeTesto(meta.localita))}}};
    if (const std::optional<Record> gia = archive.SelectFirst(stessaLocalita)) {
        throw Failure(u"Esiste già la mèta %1 con il codice %2."_s.arg((*gia)[mete::Localita].trimmed(),
                                                                       (*gia)[mete::CodiceMeta]));
    }
    meta.codice = NuovoCodiceMeta(CodiciDelleMete(archive));
    archive.Insert(Tabella::MeteVandro, ValoriDellaMeta(meta));
    SalvaIlCodiceMetaCorrente(archive, meta.codice);
    transaction.Commit();
    return meta.codice;
}

ParametriViaggio CaricaDefaultMeta(Archive& archive, bool ripristina) {
    const std::optional<Record> record = archive.SelectFirst({Tabella::Parametri, {}});
    if (record && !ripristina) return ParametriDaRecord(*record);
    const ParametriViaggio standard;
    MemorizzaVariabiliMeta(archive, standard);
    return standard;
}

void MemorizzaVariabiliMeta(Archive& archive, const ParametriViaggio& parametri) {
    ScriviRigaUnica(archive, Tabella::Parametri, ValoriDeiParametri(parametri));
}

QString RicercaMetaCorrente(Archive& archive) {
    if (const std::optional<Record> corrente = archive.SelectFirst({Tabella::MetaCorrente, {}})) {
        const QString& codice = (*corrente)[metacorrente::MetaCorrente];
        if (archive.Exists(PerCodice(codice))) return codice;
    }
    const std::vector<QString> codici = CodiciDelleMete(archive);
    return codici.empty() ? QString() : codici.back();
}

void SalvaIlCodiceMetaCorrente(Archive& archive, const QString& codice) {
    ScriviRigaUnica(archive, Tabella::MetaCorrente, {codice});
}

}  // namespace cronovia
