#include "schedule/calcola_cronovia.h"

#include <cmath>
#include <vector>

#include "calendar/durata.h"
#include "interaction/failure.h"
#include "itinerary/riepilogo.h"
#include "schedule/rientro.h"
#include "schedule/simulazione.h"
#include "trips/orario.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

void RifiutaSeIncalcolabile(const Meta& meta, std::span<const Tappa> tappe) {
    if (!meta.dataInizio) throw Failure(u"Calcolo impossibile: la data d'inizio della mèta non è valida."_s);
    if (const auto tipo = TipoSenzaMedia(tappe, meta.parametri)) {
        throw Failure(
            u"Calcolo impossibile: la velocità media per le strade di tipo «%1» è 0."_s.arg(NomeTipoStrada(*tipo)));
    }
    const ParametriViaggio p = Aggiorna(meta.parametri).parametri;
    if (p.fineVisita <= p.inizioVisita) {
        throw Failure(u"Calcolo impossibile: l'orario di fine visite non è dopo quello d'inizio."_s);
    }
}

// First guess of the trip's days: driving and stops in visiting days, and a quarter more.
double StimaGiorni(const Totali& totali, Centesimi totaleSoste, const ParametriConvertiti& convertiti) {
    const Centesimi guida = ArrotondaAlMinuto(totali.tempo[kTuttiITipi], convertiti.guidaGiorno);
    const int giorni = InDurata(guida + totaleSoste, convertiti.visitaGiorno).giorni;
    return std::floor((giorni + 1) * 1.25 + 0.5);
}

// The factor for the next pass, truncated to three decimals. The tiny addend keeps a pass without days from dividing
// by zero; it also makes an even ratio fall just below itself, so 7 days of 7 give 0.999.
float CalcolaFattore(int giorniVoluti, double giorniRiferimento) {
    return static_cast<float>(std::floor(giorniVoluti / (giorniRiferimento + 1e-11) * 1000.0) / 1000.0);
}

QString TitoloTentativo(int tentativo, double riferimento, int giorni, float fattore) {
    QString testoFattore = QString::number(fattore, 'g', 4);
    testoFattore.replace(u'.', u',');
    return u"Calcolo della cronovia, text n. %1/%2 [%3/%4*I=%5]"_s.arg(
        QString::number(tentativo), QString::number(kMassimoTentativi), QString::number(riferimento),
        QString::number(giorni), testoFattore);
}

QString Messaggio(int giorniVoluti, double giorniRiferimento, int tentativi) {
    if (giorniVoluti == 0) return {};
    if (giorniRiferimento == giorniVoluti) return u"Elaborazione conclusa in %1 tentativi!"_s.arg(tentativi);
    return u"Elaborazione impossibile! (tentativi effettuati n. %1)"_s.arg(tentativi);
}

std::vector<Durata> SosteDellaTabella(const TabellaCalcolo& tabella) {
    std::vector<Durata> soste;
    soste.reserve(tabella.righe.size());
    for (const RigaCalcolo& riga : tabella.righe) soste.push_back(riga.sosta);
    return soste;
}

}  // namespace

EsitoCalcolo CalcolaCronovia(const Meta& meta, std::span<const Tappa> tappe, LettoreGuida& guida, Progress& progress) {
    RifiutaSeIncalcolabile(meta, tappe);
    ParametriConvertiti convertiti = ControllaVariabiliConvertite(meta.parametri);
    const RiepilogoItinerario riepilogo = CalcolaKmTempiItinerario(tappe, meta.parametri, meta.giorniAdeguamento);
    Cronovia cronovia;
    cronovia.tabella = PreparaTabellaPerCalcoloCronovia(tappe, convertiti, guida, progress);

    const bool daAdeguare = meta.giorniAdeguamento > 0 && riepilogo.totali.km[kTuttiITipi] > 0;
    double riferimento = StimaGiorni(riepilogo.totali, cronovia.tabella.totaleSoste, convertiti);
    std::vector<Durata> soste = SosteDellaTabella(cronovia.tabella);
    EsitoCalcolo esito;
    Passata passata;
    do {
        convertiti = Aggiorna(convertiti.parametri);
        const float fattore = daAdeguare ? CalcolaFattore(meta.giorniAdeguamento, riferimento) : 1.0F;
        ++esito.tentativi;
        progress.Title(TitoloTentativo(esito.tentativi, riferimento, meta.giorniAdeguamento, fattore));
        passata =
            SimulaPassata({cronovia.tabella, soste, *meta.dataInizio, meta.oraInizio, convertiti, fattore}, progress);
        if (passata.interrotta) return esito;
        soste = passata.soste;
        riferimento = passata.fine ? passata.fine->giorni : 0;
    } while (daAdeguare && riferimento != meta.giorniAdeguamento && esito.tentativi < kMassimoTentativi);

    SegnaRientro(passata.righe, passata.data, passata.ora, convertiti.parametri, progress);
    cronovia.righe = std::move(passata.righe);
    cronovia.fine = passata.fine;
    cronovia.totali = passata.totali;
    cronovia.guidaGiorno = convertiti.guidaGiorno;
    cronovia.riposoMinuti = convertiti.parametri.riposoMinuti;
    esito.cronovia = std::move(cronovia);
    esito.messaggio = Messaggio(meta.giorniAdeguamento, riferimento, esito.tentativi);
    progress.Advance(0, 0);
    return esito;
}

}  // namespace cronovia
