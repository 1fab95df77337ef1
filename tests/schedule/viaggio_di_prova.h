// Small journeys for the schedule's tests: every road at 100 km/h, so that a kilometre is a hundredth of an hour.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "calendar/date.h"
#include "schedule/colonne.h"
#include "schedule/simulazione.h"

namespace cronovia::prova {

/// Breakfast 8, lunch 12 to 13, dinner 19 to 20, night 22, visits 9 to 18, ferries 2 hours, no rests of any kind.
inline ParametriViaggio ParametriSemplici() {
    ParametriViaggio p;
    p.mediaKm = {100, 100, 100, 100};
    p.oraColazione = 800_cent;
    p.oraPranzo = 1200_cent;
    p.durataPranzo = 100_cent;
    p.oraCena = 1900_cent;
    p.durataCena = 100_cent;
    p.oraNotte = 2200_cent;
    p.inizioVisita = 900_cent;
    p.fineVisita = 1800_cent;
    p.oreTraghetti = 200_cent;
    p.riposoMinuti = p.riposoOre = p.riposoGiorno = p.riposoDopoGiorni = 0;
    return p;
}

/// A journey that starts on Saturday 1 January 2000.
struct Viaggio {
    ParametriViaggio parametri = ParametriSemplici();
    NumeroGiorno dataInizio{730135};
    Centesimi oraInizio = 800_cent;
    TabellaCalcolo tabella;

    Viaggio& Tappa(const char* localita, int km, Durata sosta = {}, bool fineGiorno = false, const char* strada = "A1",
                   VociGuida voci = {}) {
        RigaCalcolo riga;
        riga.tappa = {
            QString::fromUtf8(localita), QString::fromUtf8(strada), km, TipoStrada::Autostrada, sosta, fineGiorno, {}};
        riga.sosta = sosta;
        riga.fineGiorno = fineGiorno;
        riga.voci = std::make_shared<VociGuida>(std::move(voci));
        tabella.righe.push_back(std::move(riga));
        return *this;
    }

    [[nodiscard]] Passata Simula(float fattore = 1) const {
        std::vector<Durata> soste;
        for (const RigaCalcolo& riga : tabella.righe) soste.push_back(riga.sosta);
        Progress progress;
        return SimulaPassata({tabella, soste, dataInizio, oraInizio, OrarioCorretto(parametri), fattore}, progress);
    }
};

/// The grid's texts of some rows of the journey.
inline std::vector<RigaGriglia> Testi(const Viaggio& viaggio, const std::vector<RigaCronovia>& righe) {
    Cronovia cronovia;
    cronovia.tabella = viaggio.tabella;
    cronovia.righe = righe;
    cronovia.orario = OrarioCorretto(viaggio.parametri);
    std::vector<RigaGriglia> testi;
    for (std::size_t i = 0; i < righe.size(); ++i) testi.push_back(TestiDellaRiga(cronovia, i));
    return testi;
}

/// "Sab 01 12:00 verso: Roma 400 Pranzo": weekday, day, hour, name, kilometres, stop and notes of each row.
inline QStringList RigheBrevi(const Viaggio& viaggio, float fattore = 1) {
    using enum Colonna;
    QStringList brevi;
    for (const RigaGriglia& t : Testi(viaggio, viaggio.Simula(fattore).righe)) {
        const QStringList parti = {t[GiornoSettimana], t[Data].left(2), t[Ora], t[Tappa], t[Km], t[Sosta], t[Note]};
        brevi += parti.join(QLatin1Char(' ')).simplified();
    }
    return brevi;
}

}  // namespace cronovia::prova
