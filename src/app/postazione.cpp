// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/postazione.h"

#include <QScopeGuard>
#include <utility>

#include "exchange/vecchi/vecchi_file.h"
#include "interaction/failure.h"
#include "schedule/costi.h"

namespace cronovia {

namespace {

// `Postazione`, constant or not.
template <typename Quale>
auto TappaInScritturaDi(Quale& p) -> decltype(p.template Su<schermata::Inserimento>()) {
    if (auto* inserimento = p.template Su<schermata::Inserimento>()) return inserimento;
    if (auto* copia = p.template Su<schermata::Copia>()) return &copia->da;
    auto* stampa = p.template Su<schermata::Stampa>();
    auto* cronovia = stampa != nullptr ? &stampa->da : p.template Su<schermata::Cronovia>();
    return cronovia != nullptr ? std::get_if<schermata::Inserimento>(&cronovia->da) : nullptr;
}

}  // namespace

Postazione::Postazione(const QString& cartella, Volti facce)
    : volti(std::move(facce)), sessione(cartella, {volti.adesso, [this](const QString& frase) { avvisi += frase; }}) {
    scrittiDaAltri = sessione.Archivio().PresentMark().others;
    VaiAlViaggio();
    Su<schermata::Viaggio>()->converteOfferto = CiSonoVecchiFile(cartella);
}

QString Postazione::DaAvvisare() const {
    if (!avviso.isEmpty()) return avviso;
    if (QString danno = sessione.Archivio().Damage(); !danno.isEmpty()) return danno;
    const auto costi = Su<schermata::Cronovia>() ? CostiDelViaggio(documento.Giornate()) : std::nullopt;
    return costi ? TestoCosti(*costi) : QString();
}

bool Postazione::ConverteOfferto() const {
    const auto* viaggio = Su<schermata::Viaggio>();
    return viaggio != nullptr && viaggio->converteOfferto;
}

bool Postazione::SenzaMete() const {
    const auto* viaggio = Su<schermata::Viaggio>();
    return viaggio != nullptr && viaggio->fase == schermata::Viaggio::Fase::Vuota;
}

schermata::Inserimento* Postazione::TappaInScrittura() { return TappaInScritturaDi(*this); }

const schermata::Inserimento* Postazione::TappaInScrittura() const { return TappaInScritturaDi(*this); }

schermata::PassoStampa* Postazione::PassoDiStampa() {
    if (auto* stampa = Su<schermata::Stampa>()) return &stampa->passo;
    auto* guida = Su<schermata::Guida>();
    return guida != nullptr && guida->stampa ? &*guida->stampa : nullptr;
}

bool Postazione::StampaAperta() const {
    const auto* guida = Su<schermata::Guida>();
    return Su<schermata::Stampa>() || (guida != nullptr && guida->stampa);
}

StatoComandi Postazione::Comandi() const {
    return StatoDeiComandi(
        {NumeroTappe(documento.Righe()), !documento.Codice().isEmpty(), attivita, DaAnnullare(), DaRipetere()},
        schermata);
}

bool Postazione::Prova(const std::function<void()>& azione, const QString& mancato) {
    try {
        azione();
        while (!avvisi.isEmpty()) Mostra(avvisi.takeFirst());
        return true;
    } catch (const Failure& failure) {
        const QString inizio = mancato.isEmpty() ? QString() : mancato + QStringLiteral("\n\n");
        Mostra(inizio + failure.Message());
        return false;
    }
}

bool Postazione::MentreScrive(const QString& mancato, const std::function<void()>& azione) {
    if (auto* viaggio = Su<schermata::Viaggio>()) viaggio->converteOfferto = false;
    attivita = Attivita::Scrittura;
    volti.mostra();
    const auto finita = [this] { attivita = Attivita::Nessuna; };
    return Prova(
        [&] {
            const auto alla = qScopeGuard(finita);
            azione();
        },
        mancato);
}

bool Postazione::MentreCorre(const std::function<void()>& azione) {
    if (auto* viaggio = Su<schermata::Viaggio>()) viaggio->converteOfferto = false;
    attivita = Attivita::Corsa;
    volti.mostra();
    const auto finita = [this] {
        attivita = Attivita::Nessuna;
        volti.avanzamento.Advance(0, 0);
    };
    return Prova([&] {
        const auto alla = qScopeGuard(finita);
        azione();
    });
}

void Postazione::VaiAlViaggio() {
    documento.Ricarica(volti.adesso());
    MettiSchermoDelViaggio();
}

void Postazione::MettiSchermoDelViaggio() {
    using Fase = schermata::Viaggio::Fase;
    const bool nessuna = documento.Codice().isEmpty() && !documento.Modificato();
    const bool nuova = documento.Campi().codice.isEmpty();
    schermata = schermata::Viaggio{nessuna ? Fase::Vuota : nuova ? Fase::Nuova : Fase::Aperta};
}

void Postazione::Mostra(const QString& testo, const QString& titolo, Icon icona) {
    volti.interazione.Show({testo, titolo, icona});
}

bool Postazione::Chiede(const QString& testo, const QString& titolo) {
    return volti.interazione.Ask({testo, titolo}) == Answer::Yes;
}

bool Postazione::ChiedeSePerdere(const QString& testo, const QString& titolo) {
    return volti.interazione.Ask({testo, titolo, false, Answer::No}) == Answer::Yes;
}

std::optional<Ambito> Postazione::AmbitoInVista() const {
    if (const auto* guida = Su<schermata::Guida>()) {
        return guida->stampa || guida->elencoLocalita ? std::nullopt : std::optional(Ambito::Guida);
    }
    if (const auto* inserimento = Su<schermata::Inserimento>()) {
        return inserimento->elencoTappe ? std::nullopt : std::optional(Ambito::Viaggio);
    }
    if (Su<schermata::Cronovia>()) return Ambito::Viaggio;
    const auto* viaggio = Su<schermata::Viaggio>();
    return viaggio != nullptr && viaggio->fase != schermata::Viaggio::Fase::Nuova ? std::optional(Ambito::Archivio)
                                                                                  : std::nullopt;
}

std::optional<QString> Postazione::DaAnnullare() const {
    const std::optional<Ambito> ambito = AmbitoInVista();
    const Passo* passo = ambito ? documento.Modifiche().DaAnnullare(*ambito) : nullptr;
    return passo == nullptr ? std::nullopt : std::optional(passo->nome);
}

std::optional<QString> Postazione::DaRipetere() const {
    const std::optional<Ambito> ambito = AmbitoInVista();
    const Passo* passo = ambito ? documento.Modifiche().DaRipetere(*ambito) : nullptr;
    return passo == nullptr ? std::nullopt : std::optional(passo->nome);
}

}  // namespace cronovia
