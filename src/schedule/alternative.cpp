// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/alternative.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "calendar/testo.h"
#include "itinerary/riepilogo.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kPolitiche = {CalcoloSoste::SosteItinerario, CalcoloSoste::SosteGuida, CalcoloSoste::SostaMaggiore,
                                   CalcoloSoste::SostaMinore, CalcoloSoste::NessunaSosta};

Centesimi TempoVisite(const Cronovia& cronovia) {
    Centesimi tempo;
    for (const Fascia& fascia : cronovia.fasce) {
        if (fascia.genere == GenereFascia::Visita) tempo += fascia.a - fascia.da;
    }
    return tempo;
}

Centesimi GuidaMassima(const Cronovia& cronovia) {
    Centesimi massima;
    Centesimi delGiorno;
    std::optional<NumeroGiorno> giorno;
    for (const Fascia& fascia : cronovia.fasce) {
        if (fascia.genere != GenereFascia::Marcia) continue;
        if (giorno != fascia.data) delGiorno = 0_cent;
        giorno = fascia.data;
        delGiorno += fascia.a - fascia.da;
        massima = std::max(massima, delGiorno);
    }
    return massima;
}

std::optional<Centesimi> Ritardo(const Cronovia& cronovia) {
    const auto& righe = cronovia.tabella.righe;
    const bool fissate = std::any_of(righe.begin(), righe.end(), [](const RigaCalcolo& riga) {
        return riga.tappa.vincoli && (riga.tappa.vincoli->traghetto || riga.tappa.vincoli->arrivo);
    });
    if (!fissate && !cronovia.scadenza) return std::nullopt;
    Centesimi ritardo = cronovia.scadenza ? std::max(0_cent - cronovia.scadenza->margine, 0_cent) : 0_cent;
    for (const EsitoOra& ora : cronovia.ore) ritardo = std::max(ritardo, ora.ritardo);
    return ritardo;
}

// What is told of many calculations: how many of them are done, not the passes of each.
class TraTante : public Progress {
  public:
    explicit TraTante(Progress& progress) : progress_(progress) {}

    void Comincia(const QString& titolo, int quante) {
        progress_.Title(titolo);
        fatte_ = 0;
        quante_ = quante;
    }
    void UnaFatta() { ++fatte_; }
    void Advance(double count, double total) override {
        if (total > 0) progress_.Advance(fatte_ + count / total, quante_);
    }
    bool StopRequested() override { return progress_.StopRequested(); }

  private:
    Progress& progress_;
    int fatte_ = 0;
    int quante_ = 0;
};

}  // namespace

std::optional<std::vector<Alternativa>> Alternative(const Meta& meta, const OrarioCorretto& orario,
                                                    std::span<const Tappa> tappe, LettoreGuida& guida,
                                                    Progress& progress) {
    std::vector<Alternativa> alternative;
    std::vector<Centesimi> visite;
    TraTante corsa(progress);
    const auto aggiungi = [&](CalcoloSoste soste, int voluti) {
        Meta questa = meta;
        questa.parametri.calcoloSoste = soste;
        questa.giorniAdeguamento = voluti;
        const EsitoCalcolo esito =
            CalcolaCronovia(questa, orario.Con(questa.parametri), tappe, guida, corsa, SeNonRiesce::Lascia);
        if (!esito.cronovia) return false;
        const Cronovia& cronovia = *esito.cronovia;
        Alternativa una;
        una.soste = soste;
        una.voluti = voluti;
        una.giorni = cronovia.fine ? cronovia.fine->giorni : 0;
        una.fine = UltimoMomento(cronovia.righe);
        una.guidaMassima = GuidaMassima(cronovia);
        una.ritardo = Ritardo(cronovia);
        una.attuale = soste == meta.parametri.calcoloSoste && voluti == meta.giorniAdeguamento;
        visite.push_back(TempoVisite(cronovia));
        alternative.push_back(una);
        corsa.UnaFatta();
        return true;
    };
    int naturali = 0;
    corsa.Comincia(u"Confronto delle soste"_s, static_cast<int>(kPolitiche.size()));
    for (const CalcoloSoste soste : kPolitiche) {
        if (!aggiungi(soste, 0)) return std::nullopt;
        if (soste == meta.parametri.calcoloSoste) naturali = alternative.back().giorni;
    }
    const Centesimi intere = visite[static_cast<std::size_t>(CalcoloSoste::SostaMaggiore) - 1];
    const int minimi = CalcolaKmTempiItinerario(tappe, orario, 0).giorniMinimi;
    const int massimi = std::min((std::max(minimi, naturali) * 3 + 1) / 2, kMassimoGiorniAdeguamento);
    corsa.Comincia(u"Confronto dei giorni"_s, massimi - minimi + 1);
    for (int giorni = minimi; minimi > 0 && giorni <= massimi; ++giorni) {
        if (!aggiungi(meta.parametri.calcoloSoste, giorni)) return std::nullopt;
    }
    for (std::size_t i = 0; i < alternative.size() && intere > 0_cent; ++i) {
        alternative[i].visite = static_cast<int>(std::lround(visite[i].Valore() / intere.Valore() * 100.0F));
    }
    progress.Advance(0, 0);
    return alternative;
}

QString NomeCalcoloSoste(CalcoloSoste soste) {
    switch (soste) {
        case CalcoloSoste::SosteItinerario:
            return u"Soste itinerario"_s;
        case CalcoloSoste::SosteGuida:
            return u"Soste guida"_s;
        case CalcoloSoste::SostaMaggiore:
            return u"Sosta maggiore"_s;
        case CalcoloSoste::SostaMinore:
            return u"Sosta minore"_s;
        case CalcoloSoste::NessunaSosta:
            break;
    }
    return u"Nessuna sosta"_s;
}

QStringList IntestazioniAlternative() {
    return {u"Soste"_s, u"Giorni voluti"_s, u"Giorni"_s, u"Fine"_s, u"Guida al giorno"_s, u"Visite %"_s, u"Ritardo"_s};
}

QStringList TestiAlternativa(const Alternativa& a) {
    const QString fine =
        a.fine ? GiornoSettimana(a.fine->data) + u' ' + TestoData(a.fine->data) + u' ' + TestoOrologio(a.fine->ora)
               : QString();
    const QString ritardo = !a.ritardo ? QString() : *a.ritardo > 0_cent ? TestoOreBrevi(*a.ritardo) : u"no"_s;
    return {NomeCalcoloSoste(a.soste),
            a.voluti == 0 ? u"quanti servono"_s : QString::number(a.voluti),
            QString::number(a.giorni) + (a.Riuscita() ? QString() : u" (non riesce)"_s),
            fine,
            TestoOreBrevi(a.guidaMassima),
            a.visite ? QString::number(*a.visite) : QString(),
            ritardo};
}

}  // namespace cronovia
