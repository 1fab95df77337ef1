// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/meta.h"

#include <algorithm>
#include <span>

#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Which field of `Parametri` holds which parameter; the averages stand in the order of the road types.
struct CampoOrario {
    parametri::Field campo;
    Centesimi ParametriViaggio::*valore;
};
constexpr std::array<CampoOrario, 9> kOrari = {{
    {parametri::OraColazione, &ParametriViaggio::oraColazione},
    {parametri::OraPranzo, &ParametriViaggio::oraPranzo},
    {parametri::DurataPranzo, &ParametriViaggio::durataPranzo},
    {parametri::OraCena, &ParametriViaggio::oraCena},
    {parametri::DurataCena, &ParametriViaggio::durataCena},
    {parametri::OraNotte, &ParametriViaggio::oraNotte},
    {parametri::InizioVisita, &ParametriViaggio::inizioVisita},
    {parametri::FineVisita, &ParametriViaggio::fineVisita},
    {parametri::OreTraghetti, &ParametriViaggio::oreTraghetti},
}};
struct CampoRiposo {
    parametri::Field campo;
    int ParametriViaggio::*valore;
};
constexpr std::array<CampoRiposo, 4> kRiposi = {{
    {parametri::RiposoMinuti, &ParametriViaggio::riposoMinuti},
    {parametri::RiposoOre, &ParametriViaggio::riposoOre},
    {parametri::RiposoGiorno, &ParametriViaggio::riposoGiorno},
    {parametri::RiposoDopoGiorni, &ParametriViaggio::riposoDopoGiorni},
}};

// Up to it the fields of both tables are the same.
constexpr std::size_t kCampiComuni = parametri::OreTraghetti + 1;

CalcoloSoste LeggiCalcoloSoste(QStringView testo) {
    const int numero = ValoreNumerico(testo);
    return numero >= 1 && numero <= 5 ? static_cast<CalcoloSoste>(numero) : CalcoloSoste::SostaMaggiore;
}

bool TroppoLungo(const QString& testo, mete::Field campo) {
    return testo.trimmed().size() > Width(Table::MeteVandro, campo);
}

QString MessaggioLungo(const QString& cosa, mete::Field campo) {
    return u"Il nome della %1 è troppo lungo: al massimo %2 caratteri."_s.arg(
        cosa, QString::number(Width(Table::MeteVandro, campo)));
}

int NonNegativo(QStringView testo) { return std::max(0, ValoreNumerico(testo)); }

ParametriViaggio LeggiParametri(std::span<const QString> campi, QStringView calcoloSoste) {
    ParametriViaggio p;
    for (std::size_t i = 0; i < p.mediaKm.size(); ++i)
        p.mediaKm[i] = NonNegativo(campi[parametri::MediaAutostrada + i]);
    for (const auto& [campo, valore] : kOrari) p.*valore = LeggiOrario(campi[campo]);
    for (const auto& [campo, valore] : kRiposi) p.*valore = NonNegativo(campi[campo]);
    p.calcoloSoste = LeggiCalcoloSoste(calcoloSoste);
    return p;
}

}  // namespace

QString NomeTipoStrada(TipoStrada tipo) {
    switch (tipo) {
        case TipoStrada::Autostrada:
            return u"Autostrada"_s;
        case TipoStrada::SuperStrada:
            return u"SuperStrada"_s;
        case TipoStrada::Principale:
            return u"Principale"_s;
        case TipoStrada::Locale:
            break;
    }
    return u"Locale"_s;
}

std::optional<Scadenza> Scadenza::Da(const std::optional<OraFissa>& ora) {
    if (!ora || !ora->Data()) return std::nullopt;
    return Scadenza(*ora);
}

std::optional<Scadenza> Scadenza::Leggi(QStringView data, QStringView ora) {
    return Da(OraFissa::Da(LeggiMinuti(ora).value_or(-1), LeggiDataScritta(data)));
}

Centesimi LeggiOrario(QStringView hhmm) {
    return InCentesimi({0, NonNegativo(hhmm.mid(0, 2)), NonNegativo(hhmm.mid(2, 2))}, kGiornoOrologio);
}

QString TestoOrario(Centesimi orario) {
    const Durata durata = InDurata(orario, kGiornoOrologio);
    return Zero(durata.giorni * 24 + durata.ore, 2) + Zero(durata.minuti, 2);
}

std::vector<QString> ValoriDeiParametri(const ParametriViaggio& p) {
    std::vector<QString> valori(parametri::kCampi);
    for (std::size_t i = 0; i < p.mediaKm.size(); ++i) {
        valori[parametri::MediaAutostrada + i] = QString::number(p.mediaKm[i]);
    }
    for (const auto& [campo, valore] : kOrari) valori[campo] = TestoOrario(p.*valore);
    for (const auto& [campo, valore] : kRiposi) valori[campo] = Zero(p.*valore, 2);
    valori[parametri::CalcoloSoste] = QString::number(static_cast<int>(p.calcoloSoste));
    return valori;
}

ParametriViaggio ParametriDaRecord(const Record& record) {
    return LeggiParametri(record.values, record[parametri::CalcoloSoste]);
}

Meta MetaDaRecord(const Record& record) {
    Meta meta;
    meta.codice = record[mete::CodiceMeta];
    meta.localita = record[mete::Localita].trimmed();
    meta.nazione = record[mete::Nazione].trimmed();
    meta.dataInizio = LeggiData(record[mete::DataInizio]);
    if (!meta.dataInizio) meta.partiInizio = LeggiPartiData(record[mete::DataInizio]);
    meta.oraInizio = LeggiOrario(record[mete::OraInizio]);
    meta.giorniAdeguamento = std::clamp(ValoreNumerico(record[mete::GiorniAdeguamento]), 0, kMassimoGiorniAdeguamento);
    const std::span<const QString> campi(record.values);
    meta.parametri = LeggiParametri(campi.subspan(mete::MediaAutostrada, kCampiComuni), record[mete::CalcoloSoste]);
    return meta;
}

QString MessaggioData() {
    return u"La data d'inizio dev'essere un giorno dal %1 al %2."_s.arg(TestoData(NumeroDelGiorno(kPrimoGiorno)),
                                                                        TestoData(NumeroDelGiorno(kUltimoGiorno)));
}

std::optional<DifettoMeta> DifettoDeiParametri(const ParametriViaggio& parametri) {
    for (std::size_t i = 0; i < parametri.mediaKm.size(); ++i) {
        if (parametri.mediaKm[i] >= kMinimaMedia && parametri.mediaKm[i] <= kMassimaMedia) continue;
        return DifettoMeta{static_cast<mete::Field>(mete::MediaAutostrada + i),
                           u"La velocità media su %1 dev'essere da %2 a %3 km/h."_s.arg(
                               NomeTipoStrada(static_cast<TipoStrada>(i)), QString::number(kMinimaMedia),
                               QString::number(kMassimaMedia))};
    }
    return std::nullopt;
}

std::optional<DifettoMeta> DifettoDellaMeta(const Meta& meta) {
    if (meta.localita.trimmed().isEmpty()) return DifettoMeta{mete::Localita, u"Campo Località: obbligatorio!"_s};
    if (TroppoLungo(meta.localita, mete::Localita)) {
        return DifettoMeta{mete::Localita, MessaggioLungo(u"località"_s, mete::Localita)};
    }
    if (meta.nazione.trimmed().isEmpty()) return DifettoMeta{mete::Nazione, u"Campo Nazione: obbligatorio!"_s};
    if (TroppoLungo(meta.nazione, mete::Nazione)) {
        return DifettoMeta{mete::Nazione, MessaggioLungo(u"nazione"_s, mete::Nazione)};
    }
    const bool data = meta.dataInizio && *meta.dataInizio >= NumeroDelGiorno(kPrimoGiorno) &&
                      *meta.dataInizio <= NumeroDelGiorno(kUltimoGiorno);
    if (!data) return DifettoMeta{mete::DataInizio, MessaggioData()};
    return DifettoDeiParametri(meta.parametri);
}

std::vector<QString> ValoriDellaMeta(const Meta& meta) {
    std::vector<QString> valori = {
        meta.codice, meta.localita, (meta.nazione.trimmed() + u' ').left(Width(Table::MeteVandro, mete::Nazione)),
        meta.dataInizio ? DataMemorizzata(*meta.dataInizio) : QString(), TestoOrario(meta.oraInizio)};
    std::vector<QString> comuni = ValoriDeiParametri(meta.parametri);
    comuni.insert(comuni.end() - 1, Zero(meta.giorniAdeguamento, 3));
    valori.insert(valori.end(), comuni.begin(), comuni.end());
    return valori;
}

}  // namespace cronovia
