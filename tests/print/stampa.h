// SPDX-License-Identifier: GPL-3.0-or-later
// Schedules to print: made-up rows, and the long example.
#pragma once

#include <QRectF>
#include <QStringList>

#include "app/sessione.h"
#include "exchange/iei/importa_mete.h"
#include "print/stampa_cronovia.h"
#include "support/prova.h"

namespace cronovia::prova {

using namespace Qt::StringLiterals;

inline const PieDiPagina kPiede{{2027, 1, 31}, u"Cronovia"_s};

inline RigaStampata Riga(const QString& localita, const QString& sosta = {}, const QString& note = {},
                         GenereRiga genere = GenereRiga::Marcia) {
    RigaStampata riga;
    riga.genere = genere;
    riga.riposo = note.contains(u"Riposo"_s);
    riga.notte = note.contains(u"Notte"_s);
    riga.testi[Colonna::Tappa] = localita;
    riga.testi[Colonna::Sosta] = sosta;
    riga.testi[Colonna::Note] = note;
    return riga;
}

/// A trip with so many rows, each with a number that is found nowhere else.
inline DatiStampa Viaggio(int righe) {
    DatiStampa dati;
    dati.meta.localita = u"ROMA"_s;
    dati.meta.nazione = u"ITALIA"_s;
    dati.meta.dataInizio = NumeroGiorno(730135);
    dati.meta.oraInizio = 850_cent;
    dati.fine = {u"05"_s, u"01"_s, u"2000"_s, u"17"_s, u"45"_s, u"Mer"_s, u"5"_s};
    for (int i = 1; i <= righe; ++i) {
        dati.righe.push_back(Riga(u"Tappa n%1x"_s.arg(i)));
        dati.righe.back().testi[Colonna::Numero] = QString::number(i);
    }
    return dati;
}

/// The schedule of trip 1 of an exchange file; with its map where its stages have positions.
inline DatiStampa DallArchivio(const QString& path, const std::vector<PosizioneTappa>& posizioni = {}) {
    const CartellaDiProva cartella;
    Sessione sessione(cartella.Path());
    Progress progress;
    ImportaMete({sessione.Archivio(), path, {}}, progress);
    const auto [aperta, esito, senza] = sessione.ApriECalcola(u"1"_s, {}, progress);
    const Cronovia& cronovia = *esito.cronovia;
    DatiStampa dati = PreparaStampa(aperta.meta, cronovia);
    if (posizioni.empty()) return dati;
    dati.mappa =
        PreparaMappa(dati, cronovia, aperta.tappe, posizioni, LeggiCoste(QStringLiteral(CRONOVIA_PLACES "/coste.dat")));
    return dati;
}

/// Two days to a ferry, a night at its end, and on to a place that is a guess.
inline DatiStampa ConMappa() {
    using enum FontePosizione;
    return DallArchivio(QStringLiteral(CRONOVIA_TEST_DATA "/journeys/traghetto_notturno.iei"),
                        {{Posizione{45.44, 10.99}, Repertorio, {}},
                         {Posizione{43.55, 10.31}, Repertorio, {}},
                         {Posizione{40.92, 9.50}, Confermata, {}},
                         {Posizione{40.32, 9.33}, Interpolata, {}}});
}

inline DatiStampa CapoNord() { return DallArchivio(QStringLiteral(CRONOVIA_EXAMPLES "/capo-nord.iei")); }

inline Stampato Stampa(const DatiStampa& dati) {
    Progress progress;
    return StampaCronovia(dati, kPiede, progress);
}

/// From the capitals' height to the baseline.
inline QRectF Corpo(const TestoCollocato& testo) {
    const double altezza = testo.carattere.dimensione * 0.65 * 25.4 / 72;
    return {testo.x, testo.base - altezza, testo.larghezza, altezza};
}

}  // namespace cronovia::prova
