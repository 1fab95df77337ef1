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
    p.riposoMinuti = 0;
    p.riposoOre = 0;
    p.riposoGiorno = 0;
    p.riposoDopoGiorni = 0;
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
        riga.tappa.localita = QString::fromUtf8(localita);
        riga.tappa.km = km;
        riga.tappa.tipo = TipoStrada::Autostrada;
        riga.tappa.numStrada = QString::fromUtf8(strada);
        riga.tappa.sosta = sosta;
        riga.tappa.fineGiorno = fineGiorno;
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
        const ParametriConvertiti convertiti = Aggiorna(parametri);
        return SimulaPassata({tabella, soste, dataInizio, oraInizio, convertiti, fattore}, progress);
    }
};

/// "Sab 01 12:00 verso: Roma 400 Pranzo": weekday, day, hour, name, kilometres, stop and notes of each row.
inline QStringList RigheBrevi(const TabellaCalcolo& tabella, const std::vector<RigaCronovia>& righe, int riposo) {
    Cronovia cronovia;
    cronovia.tabella = tabella;
    cronovia.righe = righe;
    cronovia.riposoMinuti = riposo;
    QStringList brevi;
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const RigaGriglia testi = ColonneCronovia(cronovia, i);
        QStringList parti;
        for (const QString& parte :
             {testi[Colonna::GiornoSettimana], testi[Colonna::Data].left(2), testi[Colonna::Ora], testi[Colonna::Tappa],
              testi[Colonna::Km], testi[Colonna::Sosta], testi[Colonna::Note]}) {
            if (!parte.isEmpty()) parti += parte;
        }
        brevi += parti.join(QLatin1Char(' '));
    }
    return brevi;
}

inline QStringList RigheBrevi(const Viaggio& viaggio, float fattore = 1) {
    return RigheBrevi(viaggio.tabella, viaggio.Simula(fattore).righe, viaggio.parametri.riposoMinuti);
}

}  // namespace cronovia::prova
