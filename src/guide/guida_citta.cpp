// SPDX-License-Identifier: GPL-3.0-or-later
#include "guide/guida_citta.h"

#include <algorithm>
#include <array>
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
        QString testo;
        std::size_t indice;
    };
    std::vector<Chiave> chiavi;
    chiavi.reserve(voci.size());
    for (std::size_t i = 0; i < voci.size(); ++i) {
        chiavi.push_back({voci[i].codice + u'\0' + AlphabeticalKey(voci[i].descrizione), i});
    }
    std::sort(chiavi.begin(), chiavi.end(), [&](const Chiave& a, const Chiave& b) {
        if (const int prima = a.testo.compare(b.testo); prima != 0) return prima < 0;
        return std::tie(voci[a.indice].descrizione, voci[a.indice].id) <
               std::tie(voci[b.indice].descrizione, voci[b.indice].id);
    });
    VociGuida ordinate;
    ordinate.reserve(voci.size());
    for (const Chiave& chiave : chiavi) ordinate.push_back(std::move(voci[chiave.indice]));
    voci = std::move(ordinate);
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

int CodiceTipoGuida(const std::vector<TipoGuida>& tipi, QStringView descrizione) {
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

LettoreGuida::LettoreGuida(Archive& archive) : archive_(archive), tipi_(CaricaTipiGuida(archive)) {}

std::shared_ptr<const VociGuida> LettoreGuida::Voci(const QString& localita) {
    std::shared_ptr<const VociGuida>& letta = letture_[localita];
    if (letta) return letta;
    letta = Ordinate(archive_.Select({Table::GuidaCitta, {{guida::Localita, NamePattern::ForName(localita)}}}));
    return letta;
}

void LettoreGuida::Anticipa(std::span<const QString> localita) {
    std::vector<QString> nuove;
    std::vector<NamePattern> modelli;
    for (const QString& nome : localita) {
        if (letture_.contains(nome)) continue;
        letture_.insert(nome, nullptr);
        nuove.push_back(nome);
        modelli.push_back(NamePattern::ForName(nome));
    }
    if (nuove.empty()) return;
    std::vector<std::vector<Record>> trovati(nuove.size());
    archive_.ForEachMatch(Table::GuidaCitta, guida::Localita, modelli,
                          [&](std::size_t quale, Record&& record) { trovati[quale].push_back(std::move(record)); });
    for (std::size_t i = 0; i < nuove.size(); ++i) letture_[nuove[i]] = Ordinate(std::move(trovati[i]));
}

std::shared_ptr<const VociGuida> LettoreGuida::Ordinate(std::vector<Record> record) const {
    SortRecords(record, {guida::CodiceGuida, guida::Descrizione});
    auto voci = std::make_shared<VociGuida>();
    voci->reserve(record.size());
    for (const Record& riga : record) voci->push_back(VoceDelRecord(riga, tipi_));
    return voci;
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
    const std::vector<TipoGuida> tipi = CaricaTipiGuida(archive);
    std::vector<NamePattern> modelli;
    modelli.reserve(localita.size());
    for (const QString& nome : localita) modelli.push_back(NamePattern::ForName(nome));
    std::vector<VociGuida> voci(localita.size());
    archive.ForEachMatch(Table::GuidaCitta, guida::Localita, modelli, [&](std::size_t quale, Record&& record) {
        VociGuida& trovate = voci[quale];
        // Texts that are alike are held once.
        if (!trovate.empty() && trovate.back().localita == record[guida::Localita]) {
            record[guida::Localita] = trovate.back().localita;
        }
        trovate.push_back(VoceDelRecord(record, tipi));
    });
    for (VociGuida& trovate : voci) Ordina(trovate);
    return voci;
}

}  // namespace cronovia
