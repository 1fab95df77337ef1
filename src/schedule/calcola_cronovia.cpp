// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/calcola_cronovia.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <vector>

#include "calendar/durata.h"
#include "interaction/failure.h"
#include "itinerary/riepilogo.h"
#include "schedule/ore_fisse.h"
#include "schedule/rientro.h"
#include "schedule/simulazione.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimoTappeNominate = 5;

// The stages that cannot be reached in any known time.
void RifiutaSenzaKm(std::span<const Tappa> tappe) {
    QStringList nomi;
    for (const Tappa& tappa : tappe) {
        if (tappa.kmDaIndicare) nomi += tappa.localita;
    }
    if (nomi.isEmpty()) return;
    const auto altre = nomi.size() - kMassimoTappeNominate;
    nomi.resize(std::min<qsizetype>(nomi.size(), kMassimoTappeNominate));
    const QString resto = altre > 0 ? u" e altre %1"_s.arg(altre) : QString();
    throw Failure(u"Calcolo impossibile: mancano i chilometri per arrivare a %1%2."_s.arg(nomi.join(u", "_s), resto));
}

// A stop would wait for visiting hours for ever.
void RifiutaSenzaVisite(const OrarioCorretto& orario) {
    if (orario.Parametri().fineVisita > orario.Parametri().inizioVisita && orario.VisitaGiorno() > 0_cent) return;
    throw Failure(u"Calcolo impossibile: l'orario di fine visite non è dopo quello d'inizio."_s);
}

void RifiutaSeIncalcolabile(const Meta& meta, const OrarioCorretto& orario, std::span<const Tappa> tappe) {
    if (!meta.dataInizio) throw Failure(u"Calcolo impossibile: la data d'inizio della mèta non è valida."_s);
    RifiutaSenzaKm(tappe);
    if (const auto tipo = TipoSenzaMedia(tappe, orario)) {
        throw Failure(
            u"Calcolo impossibile: la velocità media per le strade di tipo «%1» è 0."_s.arg(NomeTipoStrada(*tipo)));
    }
    RifiutaSenzaVisite(orario);
}

// First guess of the trip's days: driving and stops in visiting days, and a quarter more. Meals that leave no day for
// driving make its time negative.
double StimaGiorni(const Totali& totali, Centesimi totaleSoste, const OrarioCorretto& orario) {
    const Centesimi guida = ArrotondaAlMinuto(totali.tempo[kTuttiITipi], orario.GuidaGiorno());
    const int giorni = std::max(0, InDurata(guida + totaleSoste, orario.VisitaGiorno()).giorni);
    return std::floor((giorni + 1) * 1.25 + 0.5);
}

// The factor for the next pass, truncated to three decimals. The tiny addend keeps a pass without days from dividing
// by zero; it also makes an even ratio fall just below itself, so 7 days of 7 give 0.999.
float CalcolaFattore(int giorniVoluti, double giorniRiferimento) {
    return static_cast<float>(std::floor(giorniVoluti / (giorniRiferimento + 1e-11) * 1000.0) / 1000.0);
}

QString TitoloTentativo(int tentativo, double riferimento, int giorni, float fattore) {
    QString testoFattore = QString::number(std::round(double{fattore} * 1000.0) / 1000.0);
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

// A share of the stops, in thousandths, and the pass with it.
struct Quota {
    int millesimi = 0;
    Passata passata;
};

// The largest share with which one is home in time; nothing when even without stops one is not. `simula` makes the pass
// of a share; one that was interrupted is returned as it is.
template <typename Simula>
std::optional<Quota> QuotaInTempo(Istante entro, Simula&& simula) {
    constexpr int kMassimaQuota = 999'000;
    Quota sicura{0, simula(0)};
    if (sicura.passata.interrotta) return sicura;
    if (!InTempo(sicura.passata.righe, entro)) return std::nullopt;
    int troppo = kMassimaQuota + 1;
    for (int passo = 1000; troppo - sicura.millesimi > 1; passo *= 2) {
        const int prova = std::min(sicura.millesimi + passo, (sicura.millesimi + troppo) / 2);
        Quota quota{prova, simula(prova)};
        if (quota.passata.interrotta) return quota;
        if (InTempo(quota.passata.righe, entro)) {
            sicura = std::move(quota);
        } else {
            troppo = prova;
        }
    }
    return sicura;
}

QString MessaggioQuota(const Scadenza& scadenza, const Quota& quota) {
    return u" Soste al %1% per essere a casa entro %2."_s.arg(quota.millesimi / 10).arg(Testo(scadenza.Ora()));
}

std::vector<Durata> SosteDellaTabella(const TabellaCalcolo& tabella) {
    std::vector<Durata> soste;
    soste.reserve(tabella.righe.size());
    for (const RigaCalcolo& riga : tabella.righe) soste.push_back(riga.sosta);
    return soste;
}

}  // namespace

EsitoCalcolo CalcolaCronovia(const Meta& meta, const OrarioCorretto& orario, std::span<const Tappa> tappe,
                             LettoreGuida& guida, Progress& progress, SeNonRiesce altrimenti) {
    RifiutaSeIncalcolabile(meta, orario, tappe);
    const RiepilogoItinerario riepilogo = CalcolaKmTempiItinerario(tappe, orario, meta.giorniAdeguamento);
    Cronovia cronovia;
    cronovia.tabella = PreparaTabellaPerCalcoloCronovia(tappe, orario, guida, progress);
    cronovia.orario = orario;

    const bool daAdeguare = meta.giorniAdeguamento > 0 && riepilogo.totali.km[kTuttiITipi] > 0;
    double riferimento = StimaGiorni(riepilogo.totali, cronovia.tabella.totaleSoste, orario);
    std::vector<Durata> soste = SosteDellaTabella(cronovia.tabella);
    const auto simula = [&](std::span<const Durata> iniziali, float fattore) {
        return SimulaPassata({cronovia.tabella, iniziali, *meta.dataInizio, meta.oraInizio, cronovia.orario, fattore},
                             progress);
    };
    EsitoCalcolo esito;
    Passata passata;
    do {
        // Hours beyond their limits settle from pass to pass.
        if (esito.tentativi > 0) cronovia.orario = cronovia.orario.PassataDopo();
        RifiutaSenzaVisite(cronovia.orario);
        const float fattore = daAdeguare ? CalcolaFattore(meta.giorniAdeguamento, riferimento) : 1.0F;
        ++esito.tentativi;
        progress.Title(TitoloTentativo(esito.tentativi, riferimento, meta.giorniAdeguamento, fattore));
        passata = simula(soste, fattore);
        if (passata.interrotta) return esito;
        soste = passata.soste;
        riferimento = passata.fine ? passata.fine->giorni : 0;
    } while (daAdeguare && riferimento != meta.giorniAdeguamento && esito.tentativi < kMassimoTentativi);

    const auto entro = meta.scadenza ? std::optional(meta.scadenza->Momento()) : std::nullopt;
    std::optional<Quota> quota;
    const bool tardi = daAdeguare && !InTempo(passata.righe, entro);
    if (tardi) {
        const std::vector<Durata> intere = SosteDellaTabella(cronovia.tabella);
        quota =
            QuotaInTempo(*entro, [&](int millesimi) { return simula(intere, static_cast<float>(millesimi / 1000.0)); });
        if (quota) passata = std::move(quota->passata);
        if (passata.interrotta) return esito;
        riferimento = passata.fine ? passata.fine->giorni : 0;
    }

    SegnaRientro(passata.righe, cronovia.tabella, entro.value_or(Istante{passata.data, passata.ora}), cronovia.orario,
                 progress);
    cronovia.righe = std::move(passata.righe);
    cronovia.fasce = std::move(passata.fasce);
    cronovia.rinvii = std::move(passata.rinvii);
    cronovia.ore = std::move(passata.ore);
    cronovia.fine = passata.fine;
    cronovia.totali = passata.totali;
    cronovia.prezzi = meta.prezzi;
    const bool nonRiesce = daAdeguare && (riferimento != meta.giorniAdeguamento || (tardi && !quota));
    if (nonRiesce && altrimenti == SeNonRiesce::Cerca) {
        esito.ricerca = CercaGiorni(meta, cronovia.tabella, orario, progress);
    }
    ConfrontaScadenza(entro, cronovia);
    SegnaRitardi(cronovia);
    esito.cronovia = std::move(cronovia);
    esito.messaggio = Messaggio(meta.giorniAdeguamento, riferimento, esito.tentativi);
    // A search that ends where the stops would make one late tells of the same stops.
    if (quota && !(esito.ricerca && esito.ricerca->finoAllaScadenza)) {
        esito.messaggio += MessaggioQuota(*meta.scadenza, *quota);
    }
    if (esito.ricerca) esito.messaggio += u' ' + esito.ricerca->testo;
    progress.Advance(0, 0);
    return esito;
}

}  // namespace cronovia
