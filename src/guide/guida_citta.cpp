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

void InserisciTipiPredefiniti(Archive& archive) {
    const std::array<QString, 9> nomi = {u"Ottimo"_s,    u"Da vedere"_s,   u"Interessante"_s,
                                         u"Vedibile"_s,  u"Punto Sosta"_s, u"PS e CS"_s,
                                         u"Campeggio"_s, u"Ristorante"_s,  u"Gpl"_s};
    Transaction transaction(archive);
    int numero = 0;
    for (const QString& nome : nomi) {
        ++numero;
        const QString obbligatorio = numero < kPrimoPuntoLogistico ? u"1"_s : u"0"_s;
        archive.Insert(Tabella::TipoGuida, std::array<QString, 3>{Zero(numero, 2), nome, obbligatorio});
    }
    transaction.Commit();
}

}  // namespace

Durata LeggiTempoVisita(QStringView testo) {
    return {0, ValoreNumerico(testo.left(2)), ValoreNumerico(testo.right(2))};
}

VoceGuida VoceDelRecord(const Record& record, const std::vector<TipoGuida>& tipi) {
    return {record.id,
            record[guida::Localita],
            record[guida::CodiceGuida],
            DescrizioneTipoGuida(tipi, record[guida::CodiceGuida]),
            record[guida::Descrizione].trimmed(),
            LeggiTempoVisita(record[guida::TempoSosta])};
}

QString TestoTempoVisita(const Durata& tempo) { return Zero(tempo.ore, 2) + u':' + Zero(tempo.minuti, 2); }

std::vector<TipoGuida> CaricaTipiGuida(Archive& archive) {
    if (archive.Count(Tabella::TipoGuida) == 0) InserisciTipiPredefiniti(archive);
    std::vector<TipoGuida> tipi;
    for (const Record& record : archive.Select({Tabella::TipoGuida, {}}, {tipoguida::CodiceGuida})) {
        tipi.push_back({record[tipoguida::CodiceGuida], record[tipoguida::Descrizione],
                        record[tipoguida::TempoObbligatorio] == "1"_L1});
    }
    return tipi;
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
    auto voci = std::make_shared<VociGuida>();
    const Ricerca ricerca{Tabella::GuidaCitta, {{guida::Localita, NamePattern::ForName(localita)}}};
    for (const Record& record : archive_.Select(ricerca, {guida::CodiceGuida, guida::Descrizione})) {
        voci->push_back(VoceDelRecord(record, tipi_));
    }
    letta = std::move(voci);
    return letta;
}

Centesimi LettoreGuida::PrendiTempoVisite(const QString& localita) {
    Centesimi somma;
    for (const VoceGuida& voce : *Voci(localita)) {
        if (contate_.insert(voce.id).second) somma += InCentesimi(voce.tempo, kGiornoOrologio);
    }
    return somma;
}

std::vector<VociGuida> VociDelleLocalita(Archive& archive, std::span<const QString> localita) {
    struct Trovata {
        QString chiave;  // of the description in the alphabet
        VoceGuida voce;
    };
    const std::vector<TipoGuida> tipi = CaricaTipiGuida(archive);
    std::vector<NamePattern> modelli;
    for (const QString& nome : localita) modelli.push_back(NamePattern::ForName(nome));
    std::vector<std::vector<Trovata>> trovate(localita.size());
    archive.ForEachMatch(Tabella::GuidaCitta, guida::Localita, modelli, [&](std::size_t quale, Record&& record) {
        trovate[quale].push_back({ChiaveAlfabetica(record[guida::Descrizione]), VoceDelRecord(record, tipi)});
    });
    std::vector<VociGuida> voci(localita.size());
    for (std::size_t i = 0; i < trovate.size(); ++i) {
        std::sort(trovate[i].begin(), trovate[i].end(), [](const Trovata& a, const Trovata& b) {
            return std::tie(a.voce.codice, a.chiave, a.voce.descrizione, a.voce.id) <
                   std::tie(b.voce.codice, b.chiave, b.voce.descrizione, b.voce.id);
        });
        voci[i].reserve(trovate[i].size());
        for (Trovata& trovata : trovate[i]) voci[i].push_back(std::move(trovata.voce));
    }
    return voci;
}

}  // namespace cronovia
