// SPDX-License-Identifier: GPL-3.0-or-later
#include "guide/guida_citta.h"

#include <QSet>
#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Types with a lower number are visits: their time is mandatory.
constexpr int kPrimoPuntoLogistico = 5;

std::vector<TipoGuida> TipiPredefiniti() {
    const std::array<QString, 9> nomi = {u"Ottimo"_s,    u"Da vedere"_s,   u"Interessante"_s,
                                         u"Vedibile"_s,  u"Punto Sosta"_s, u"PS e CS"_s,
                                         u"Campeggio"_s, u"Ristorante"_s,  u"Gpl"_s};
    std::vector<TipoGuida> tipi;
    int numero = 0;
    for (const QString& nome : nomi) {
        ++numero;
        tipi.push_back({Zero(numero, 2), nome, numero < kPrimoPuntoLogistico});
    }
    return tipi;
}

void InserisciTipiPredefiniti(Archive& archive) {
    for (const TipoGuida& tipo : TipiPredefiniti()) {
        const QString obbligatorio = tipo.tempoObbligatorio ? u"1"_s : u"0"_s;
        archive.Insert(Table::TipoGuida, std::array<QString, 3>{tipo.codice, tipo.descrizione, obbligatorio});
    }
}

// By type code, then description; entries are moved once, into their places.
void Ordina(VociGuida& voci) {
    struct Chiave {
        QString descrizione;
        std::size_t indice;
    };
    std::vector<Chiave> chiavi;
    chiavi.reserve(voci.size());
    for (std::size_t i = 0; i < voci.size(); ++i) chiavi.push_back({AlphabeticalKey(voci[i].descrizione), i});
    std::sort(chiavi.begin(), chiavi.end(), [&](const Chiave& a, const Chiave& b) {
        const VoceGuida& prima = voci[a.indice];
        const VoceGuida& dopo = voci[b.indice];
        if (const int codice = prima.codice.compare(dopo.codice); codice != 0) return codice < 0;
        if (const int testo = a.descrizione.compare(b.descrizione); testo != 0) return testo < 0;
        return std::tie(prima.descrizione, prima.id) < std::tie(dopo.descrizione, dopo.id);
    });
    VociGuida ordinate;
    ordinate.reserve(voci.size());
    for (const Chiave& chiave : chiavi) ordinate.push_back(std::move(voci[chiave.indice]));
    voci = std::move(ordinate);
}

// The entries that each of the names, taken as a pattern, matches.
std::vector<VociGuida> LeggiVoci(Archive& archive, std::span<const QString> nomi, const std::vector<TipoGuida>& tipi) {
    std::vector<VociGuida> voci(nomi.size());
    PerOgniRecordDelle(archive, nomi,
                       [&](std::size_t quale, Record&& record) { voci[quale].push_back(VoceDelRecord(record, tipi)); });
    for (VociGuida& trovate : voci) Ordina(trovate);
    return voci;
}

}  // namespace

Durata LeggiTempoVisita(QStringView testo) {
    return {0, ValoreNumerico(testo.left(2)), ValoreNumerico(testo.right(2))};
}

VoceGuida VoceDelRecord(const Record& record, const std::vector<TipoGuida>& tipi) {
    const QString& codice = record[guida::CodiceGuida];
    const auto tipo = std::find_if(tipi.begin(), tipi.end(), [&](const TipoGuida& t) { return t.codice == codice; });
    const bool noto = tipo != tipi.end();
    return {record.id,
            record[guida::Localita],
            noto ? tipo->codice : codice,
            noto ? tipo->descrizione : QString(),
            record[guida::Descrizione].trimmed(),
            LeggiTempoVisita(record[guida::TempoSosta])};
}

QString TestoTempoVisita(const Durata& tempo) { return ConNumeri(u"00:00", {tempo.ore, tempo.minuti}); }

std::vector<TipoGuida> CaricaTipiGuida(Archive& archive) {
    std::vector<TipoGuida> tipi;
    for (const Record& record : archive.Select({Table::TipoGuida, {}}, {tipoguida::CodiceGuida})) {
        tipi.push_back({record[tipoguida::CodiceGuida], record[tipoguida::Descrizione],
                        record[tipoguida::TempoObbligatorio] == "1"_L1});
    }
    return tipi.empty() ? TipiPredefiniti() : tipi;
}

void CompletaTipiGuida(Archive& archive) {
    if (archive.Count(Table::TipoGuida) > 0) return;
    Transaction transaction(archive);
    if (archive.Count(Table::TipoGuida) == 0) InserisciTipiPredefiniti(archive);
    transaction.Commit();
}

void RipristinaTipiGuida(Archive& archive, Progress& progress) {
    archive.DeleteMatching(Table::TipoGuida, std::nullopt, progress);
    InserisciTipiPredefiniti(archive);
}

QString TipoComeInElenco(const std::vector<TipoGuida>& tipi, const QString& scritto) {
    const auto cerca = [&](const auto& vale) {
        const auto tipo =
            std::find_if(tipi.begin(), tipi.end(), [&](const TipoGuida& t) { return vale(t.descrizione); });
        return tipo == tipi.end() ? std::nullopt : std::optional(tipo->descrizione);
    };
    if (cerca([&](const QString& descrizione) { return descrizione == scritto; })) return scritto;
    return cerca([&, detto = scritto.simplified()](const QString& descrizione) {
               return descrizione.simplified().compare(detto, Qt::CaseInsensitive) == 0;
           })
        .value_or(scritto);
}

int CodiceTipoGuida(const std::vector<TipoGuida>& tipi, const QString& scritto) {
    const QString descrizione = TipoComeInElenco(tipi, scritto);
    for (auto tipo = tipi.rbegin(); tipo != tipi.rend(); ++tipo) {
        if (tipo->descrizione == descrizione) return ValoreNumerico(tipo->codice);
    }
    return -1;
}

QString DescrizioneTipoGuida(const std::vector<TipoGuida>& tipi, QStringView codice) {
    for (const TipoGuida& tipo : tipi) {
        if (tipo.codice == codice) return tipo.descrizione;
    }
    return {};
}

void PerOgniRecordDelle(Archive& archive, std::span<const QString> localita,
                        const std::function<void(std::size_t quale, Record&& record)>& visita) {
    std::vector<NamePattern> modelli;
    modelli.reserve(localita.size());
    for (const QString& nome : localita) modelli.push_back(NamePattern::ForName(nome));
    archive.ForEachMatch(Table::GuidaCitta, guida::Localita, modelli, visita);
}

LettoreGuida::LettoreGuida(Archive& archive) : archive_(archive), tipi_(CaricaTipiGuida(archive)) {}

std::shared_ptr<const VociGuida> LettoreGuida::Voci(const QString& localita) {
    Anticipa({&localita, 1});
    return letture_.value(localita);
}

void LettoreGuida::Anticipa(std::span<const QString> localita) {
    std::vector<QString> nuove;
    QSet<QString> viste;
    for (const QString& nome : localita) {
        if (letture_.contains(nome) || viste.contains(nome)) continue;
        viste.insert(nome);
        nuove.push_back(nome);
    }
    if (nuove.empty()) return;
    std::vector<VociGuida> voci = LeggiVoci(archive_, nuove, tipi_);
    for (std::size_t i = 0; i < nuove.size(); ++i) {
        letture_.insert(nuove[i], std::make_shared<const VociGuida>(std::move(voci[i])));
    }
}

Centesimi LettoreGuida::PrendiTempoVisite(const QString& localita) {
    Centesimi somma;
    for (const VoceGuida& voce : *Voci(localita)) {
        if (contate_.insert(voce.id).second) somma += InCentesimi(voce.tempo, kGiornoOrologio);
    }
    return somma;
}

std::vector<VociGuida> VociDelleLocalita(Archive& archive, std::span<const QString> localita) {
    const ReadSnapshot momento(archive);
    return LeggiVoci(archive, localita, CaricaTipiGuida(archive));
}

}  // namespace cronovia
