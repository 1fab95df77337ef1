#include "trips/meta.h"

#include <algorithm>
#include <span>

#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The parameters in the order of their fields, which both tables share up to `OreTraghetti`.
constexpr std::size_t kCampiComuni = parametri::OreTraghetti + 1;

CalcoloSoste LeggiCalcoloSoste(QStringView testo) {
    const int numero = ValoreNumerico(testo);
    return numero >= 1 && numero <= 5 ? static_cast<CalcoloSoste>(numero) : CalcoloSoste::SostaMaggiore;
}

int NonNegativo(QStringView testo) { return std::max(0, ValoreNumerico(testo)); }

ParametriViaggio LeggiParametri(std::span<const QString> campi, QStringView calcoloSoste) {
    ParametriViaggio p;
    for (std::size_t i = 0; i < p.mediaKm.size(); ++i) p.mediaKm[i] = NonNegativo(campi[i]);
    p.oraColazione = LeggiOrario(campi[parametri::OraColazione]);
    p.oraPranzo = LeggiOrario(campi[parametri::OraPranzo]);
    p.durataPranzo = LeggiOrario(campi[parametri::DurataPranzo]);
    p.oraCena = LeggiOrario(campi[parametri::OraCena]);
    p.durataCena = LeggiOrario(campi[parametri::DurataCena]);
    p.oraNotte = LeggiOrario(campi[parametri::OraNotte]);
    p.riposoMinuti = NonNegativo(campi[parametri::RiposoMinuti]);
    p.riposoOre = NonNegativo(campi[parametri::RiposoOre]);
    p.riposoGiorno = NonNegativo(campi[parametri::RiposoGiorno]);
    p.riposoDopoGiorni = NonNegativo(campi[parametri::RiposoDopoGiorni]);
    p.inizioVisita = LeggiOrario(campi[parametri::InizioVisita]);
    p.fineVisita = LeggiOrario(campi[parametri::FineVisita]);
    p.oreTraghetti = LeggiOrario(campi[parametri::OreTraghetti]);
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

Centesimi LeggiOrario(QStringView hhmm) {
    return InCentesimi({0, NonNegativo(hhmm.mid(0, 2)), NonNegativo(hhmm.mid(2, 2))}, kGiornoOrologio);
}

QString TestoOrario(Centesimi orario) {
    const Durata durata = InDurata(orario, kGiornoOrologio);
    return Zero(durata.giorni * 24 + durata.ore, 2) + Zero(durata.minuti, 2);
}

std::vector<QString> ValoriDeiParametri(const ParametriViaggio& p) {
    std::vector<QString> valori;
    valori.reserve(parametri::kCampi);
    for (const int media : p.mediaKm) valori.push_back(QString::number(media));
    for (const Centesimi orario : {p.oraColazione, p.oraPranzo, p.durataPranzo, p.oraCena, p.durataCena, p.oraNotte}) {
        valori.push_back(TestoOrario(orario));
    }
    for (const int riposo : {p.riposoMinuti, p.riposoOre, p.riposoGiorno, p.riposoDopoGiorni}) {
        valori.push_back(Zero(riposo, 2));
    }
    for (const Centesimi orario : {p.inizioVisita, p.fineVisita, p.oreTraghetti}) valori.push_back(TestoOrario(orario));
    valori.push_back(QString::number(static_cast<int>(p.calcoloSoste)));
    return valori;
}

ParametriViaggio ParametriDaRecord(const Record& record) {
    return LeggiParametri(record.valori, record[parametri::CalcoloSoste]);
}

Meta MetaDaRecord(const Record& record) {
    Meta meta;
    meta.codice = record[mete::CodiceMeta];
    meta.localita = record[mete::Localita].trimmed();
    meta.nazione = record[mete::Nazione].trimmed();
    meta.dataInizio = LeggiData(record[mete::DataInizio]);
    meta.oraInizio = LeggiOrario(record[mete::OraInizio]);
    meta.giorniAdeguamento = std::clamp(ValoreNumerico(record[mete::GiorniAdeguamento]), 0, kMassimoGiorniAdeguamento);
    const std::span<const QString> campi(record.valori);
    meta.parametri = LeggiParametri(campi.subspan(mete::MediaAutostrada, kCampiComuni), record[mete::CalcoloSoste]);
    return meta;
}

std::vector<QString> ValoriDellaMeta(const Meta& meta) {
    std::vector<QString> valori = {
        meta.codice, meta.localita,
        (meta.nazione.trimmed() + u' ').left(Definizione(Tabella::MeteVandro).campi[mete::Nazione].larghezza),
        meta.dataInizio ? DataMemorizzata(*meta.dataInizio) : QString(), TestoOrario(meta.oraInizio)};
    std::vector<QString> comuni = ValoriDeiParametri(meta.parametri);
    comuni.insert(comuni.end() - 1, Zero(meta.giorniAdeguamento, 3));
    valori.insert(valori.end(), comuni.begin(), comuni.end());
    return valori;
}

}  // namespace cronovia
