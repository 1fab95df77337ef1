#include "guide/guida_citta.h"

#include <array>

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
        const QString& tempo = record[guida::TempoSosta];
        voci->push_back({record.id,
                         record[guida::Localita],
                         record[guida::CodiceGuida],
                         DescrizioneTipoGuida(tipi_, record[guida::CodiceGuida]),
                         record[guida::Descrizione].trimmed(),
                         {0, ValoreNumerico(tempo.left(2)), ValoreNumerico(tempo.right(2))}});
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

}  // namespace cronovia
