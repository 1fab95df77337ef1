// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/stato_comandi.h"

#include "calendar/testo.h"

#include "app/comandi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

/// What a screen contributes while nothing goes on.
struct MomentiDelloSchermo {
    const Fatti& fatti;

    Momenti operator()(const schermata::Viaggio& viaggio) const {
        using Fase = schermata::Viaggio::Fase;
        const Momenti vecchi = viaggio.converteOfferto ? momento::kVecchiDati : 0;
        switch (viaggio.fase) {
            case Fase::Vuota:
                return vecchi | momento::kVuota;
            case Fase::Nuova:
                return vecchi | momento::kNuova | (fatti.metaAperta ? momento::kNuovaDopoAltra : 0);
            case Fase::Aperta:
                break;
        }
        return vecchi | momento::kAperta;
    }
    Momenti operator()(const schermata::ElencoMete& /*elenco*/) const { return momento::kElencoMete; }
    Momenti operator()(const schermata::Inserimento& inserimento) const {
        if (inserimento.elencoTappe) return momento::kElencoTappe;
        return momento::kInserimento | (fatti.tappe >= 2 ? momento::kDueTappe : 0) |
               (fatti.tappe < (inserimento.appenaInserita ? 1 : 2) ? momento::kSenzaTappe : 0);
    }
    Momenti operator()(const schermata::Cronovia& /*cronovia*/) const { return momento::kCronovia; }
    Momenti operator()(const schermata::Stampa& stampa) const {
        if (stampa.passo == schermata::PassoStampa::Stampante) return momento::kStampa | momento::kStampante;
        return momento::kStampa | momento::kSceltaStampa | (stampa.pagine ? momento::kPagine : 0);
    }
    Momenti operator()(const schermata::Guida& guida) const {
        if (guida.stampa == schermata::PassoStampa::Scelte) return momento::kSceltaStampaGuida;
        if (guida.stampa == schermata::PassoStampa::Stampante) return momento::kStampante;
        if (guida.elencoLocalita) return momento::kElencoGuida;
        return momento::kGuida | (guida.tavolo->Corrente().voce ? momento::kVoce : 0);
    }
    Momenti operator()(const schermata::Copia& copia) const {
        return momento::kCopia | (copia.tavolo.Tappe() ? momento::kTratto : 0) |
               (copia.tavolo.Scelto() ? momento::kTrattoScelto : 0);
    }
    Momenti operator()(const schermata::Scambio& scambio) const {
        return momento::kScambio | (scambio.tavolo.Mete(0).empty() ? 0 : momento::kPrimaPiena) |
               (scambio.tavolo.Mete(1).empty() ? 0 : momento::kSecondaPiena) |
               (scambio.tavolo.Scelte().empty() ? 0 : momento::kMeteScelte);
    }
};

bool SiStampa(const Schermata& schermata) {
    const auto* stampa = std::get_if<schermata::Stampa>(&schermata);
    const auto* guida = std::get_if<schermata::Guida>(&schermata);
    return (stampa != nullptr && stampa->passo == schermata::PassoStampa::InCorso) ||
           (guida != nullptr && guida->stampa == schermata::PassoStampa::InCorso);
}

Momenti MomentiDi(const Fatti& fatti, const Schermata& schermata) {
    if (fatti.attivita == Attivita::Corsa) return momento::kCorsa;
    if (fatti.attivita == Attivita::Scrittura || SiStampa(schermata)) return 0;
    return momento::kLibera | std::visit(MomentiDelloSchermo{fatti}, schermata) |
           (fatti.annulla ? momento::kAnnullabile : 0) | (fatti.ripeti ? momento::kRipetibile : 0);
}

// What follows the verb may be anybody's name: no letter of it is a mnemonic, and it ends.
QString DelPasso(const QString& verbo, const QString& nome) {
    constexpr qsizetype kMassimo = 300;
    return verbo + u' ' + Accorciato(Visibile(nome), kMassimo).replace(u"&"_s, u"&&"_s);
}

}  // namespace

StatoComandi StatoDeiComandi(const Fatti& fatti, const Schermata& schermata) {
    StatoComandi stato;
    const Momenti adesso = MomentiDi(fatti, schermata);
    for (const DescrizioneComando& d : TabellaComandi()) {
        if ((d.quando & adesso) != 0) stato.abilitati.set(static_cast<std::size_t>(d.comando));
    }
    const bool stampa = std::holds_alternative<schermata::Stampa>(schermata);
    if (fatti.attivita == Attivita::Corsa) {
        stato.scritte[Comando::Esce] = u"&Stop"_s;
    } else if (stampa || std::holds_alternative<schermata::Cronovia>(schermata)) {
        stato.scritte[Comando::Calcola] = u"S&blocca"_s;
        stato.scritte[Comando::DuplicaRighe] = u"&Duplica il giorno"_s;
        stato.scritte[Comando::TogliRighe] = u"To&glie il giorno"_s;
        stato.scritte[Comando::SpostaSu] = u"Sposta s&u il giorno"_s;
        stato.scritte[Comando::SpostaGiu] = u"Sposta giù il giorno"_s;
    }
    if (stampa) stato.scritte[Comando::Stampa] = u"Stampa"_s;  // its letter is that of the print frames
    if (const auto* scambio = std::get_if<schermata::Scambio>(&schermata)) {
        stato.scritte[Comando::ScambiaTutteDaPrima] = scambio->tavolo.ScrittaTutto(0);
        stato.scritte[Comando::ScambiaTutteDaSeconda] = scambio->tavolo.ScrittaTutto(1);
        stato.scritte[Comando::ImExp] = scambio->tavolo.ScrittaImExp();
    }
    if (fatti.annulla) stato.scritte[Comando::Annulla] = DelPasso(u"Annulla"_s, *fatti.annulla);
    if (fatti.ripeti) stato.scritte[Comando::Ripeti] = DelPasso(u"Ripeti"_s, *fatti.ripeti);
    return stato;
}

}  // namespace cronovia
