// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_cronovia.h"

#include "app/comandi_inserimento.h"
#include "app/comandi_viaggio.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

// Back to where the schedule was computed, with what was being typed there.
void TornaDa(Postazione& p, schermata::Cronovia cronovia) {
    p.documento.Ricomponi();
    if (const auto* viaggio = std::get_if<schermata::Viaggio>(&cronovia.da)) {
        p.schermata = schermata::Viaggio{viaggio->fase};
    } else {
        p.schermata = std::get<schermata::Inserimento>(std::move(cronovia.da));
        SegueLaRiga(p);
    }
}

// The screen that a schedule is computed from; nothing when one is there or cannot be.
std::optional<schermata::Cronovia> Partenza(const Postazione& p) {
    if (const auto* viaggio = p.Su<schermata::Viaggio>()) return schermata::Cronovia{*viaggio};
    if (const auto* inserimento = p.Su<schermata::Inserimento>()) return schermata::Cronovia{*inserimento};
    return std::nullopt;
}

// While it is computed, the schedule's screen is in front already. The reason why it is as it is, or empty.
QString Esegui(Postazione& p) {
    const std::optional<schermata::Cronovia> da = Partenza(p);
    if (!da) return {};
    p.schermata = *da;
    QString messaggio;
    p.MentreCorre([&] { messaggio = p.documento.Calcola(p.volti.avanzamento); });
    if (p.documento.Calcolata()) return messaggio;
    TornaDa(p, *da);
    return {};
}

QString ScrittaProposta(const PropostaGiorni& proposta) {
    const QString soste = proposta.percento == 0 ? u"Senza soste"_s : u"Soste al %1%"_s.arg(proposta.percento);
    return soste + (proposta.giorni == 1 ? u" (1 giorno)"_s : u" (%1 giorni)"_s.arg(proposta.giorni));
}

// Tells what came of the calculation. Where other days come near, the person may have the stops that give them.
std::optional<PropostaGiorni> Proposta(Postazione& p, const QString& messaggio) {
    const QString titolo = u"Calcolo cronovia"_s;
    const RicercaGiorni ricerca = p.documento.Ricerca().value_or(RicercaGiorni());
    const bool conSotto = ricerca.sopra || ricerca.finoAllaScadenza;
    const auto& prima = ricerca.esatta ? ricerca.esatta : conSotto ? ricerca.sotto : std::nullopt;
    const auto& seconda = ricerca.sopra;
    if (!prima && !seconda) {
        p.Mostra(messaggio, titolo, Icon::Information);
        return std::nullopt;
    }
    Question domanda{messaggio + u"\n\nVuoi scrivere queste soste nell'itinerario?"_s, titolo};
    domanda.si = ScrittaProposta(prima ? *prima : *seconda);
    domanda.cancellable = prima && seconda;
    domanda.preset = domanda.cancellable ? Answer::Cancel : Answer::No;
    domanda.no = domanda.cancellable ? ScrittaProposta(*seconda) : u"Lascia così"_s;
    const Answer risposta = p.volti.interazione.Ask(domanda);
    if (risposta == Answer::Yes) return prima ? prima : seconda;
    return risposta == Answer::No && domanda.cancellable ? seconda : std::nullopt;
}

void EseguiERacconta(Postazione& p) {
    const QString messaggio = Esegui(p);
    if (messaggio.isEmpty()) return;
    p.volti.mostra();
    if (const std::optional<PropostaGiorni> scelta = Proposta(p, messaggio)) {
        p.documento.Adotta(*scelta);
        RicalcolaSulPosto(p);
    }
}

}  // namespace

void Calcola(Postazione& p) {
    if (auto* stampa = p.Su<schermata::Stampa>()) return TornaDa(p, stampa->da);
    if (auto* cronovia = p.Su<schermata::Cronovia>()) return TornaDa(p, *cronovia);
    if (SenzaMeta(p)) return;
    EseguiERacconta(p);
}

void Ricalcola(Postazione& p) { EseguiERacconta(p); }

void RicalcolaSulPosto(Postazione& p) {
    if (!p.Su<schermata::Cronovia>()) return;
    const int giornata = p.Su<schermata::Cronovia>()->giornata;
    p.Prova([&] {  // nothing is shown in between
        p.documento.Ricomponi();
        p.documento.Calcola(p.volti.avanzamento);
    });
    const auto* prima = p.TappaInScrittura();
    const schermata::Inserimento inserimento = prima != nullptr ? *prima : NuovoInserimento(p.documento);
    if (p.documento.Calcolata()) {
        p.schermata = schermata::Cronovia{inserimento, giornata};
    } else {
        p.documento.SelezionaRiga(PrimaDaIndicare(p.documento.Righe()).value_or(inserimento.riga));
        p.schermata = NuovoInserimento(p.documento);
    }
}

void Confronta(Postazione& p) {
    if (SenzaMeta(p)) return;
    std::optional<std::vector<Alternativa>> alternative;
    if (!p.MentreCorre([&] { alternative = p.documento.Confronta(p.volti.avanzamento); }) || !alternative) return;
    const std::optional<std::size_t> scelta = p.volti.scegliAlternativa(*alternative);
    if (!scelta) return;
    Meta meta = p.documento.Campi();
    meta.giorniAdeguamento = alternative->at(*scelta).voluti;
    meta.parametri.calcoloSoste = alternative->at(*scelta).soste;
    p.documento.ImpostaCampi(meta);
    if (p.Su<schermata::Cronovia>()) return RicalcolaSulPosto(p);
    Esegui(p);
}

void ACasaEntro(Postazione& p) {
    const std::optional<Meta> meta = p.volti.chiediScadenza(p.documento.Campi());
    if (!meta || *meta == p.documento.Campi()) return;
    p.documento.ImpostaCampi(*meta);
    RicalcolaSulPosto(p);
}

void Stampa(Postazione& p) {
    if (auto* stampa = p.Su<schermata::Stampa>()) {
        stampa->passo = schermata::PassoStampa::Scelte;
        return;
    }
    if (SenzaMeta(p)) return;
    Esegui(p);
    if (auto* cronovia = p.Su<schermata::Cronovia>()) p.schermata = schermata::Stampa{*cronovia};
}

void ScegliStampante(Postazione& p) {
    if (auto* passo = p.PassoDiStampa()) *passo = schermata::PassoStampa::Stampante;
}

void RinunciaStampa(Postazione& p) {
    auto* passo = p.PassoDiStampa();
    if (passo == nullptr || *passo != schermata::PassoStampa::Stampante) return FineStampa(p);
    *passo = schermata::PassoStampa::Scelte;
}

void Anteprima(Postazione& p) { p.volti.anteprima(); }

void AvviaStampa(Postazione& p) { p.volti.stampa(); }

void StampaInCorso(Postazione& p) {
    if (auto* passo = p.PassoDiStampa()) *passo = schermata::PassoStampa::InCorso;
    p.volti.mostra();
}

void FineStampa(Postazione& p) {
    if (auto* stampa = p.Su<schermata::Stampa>()) p.schermata = schermata::Cronovia{stampa->da};
    if (auto* guida = p.Su<schermata::Guida>()) guida->stampa.reset();
}

}  // namespace cronovia::comandi
