// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the window without a window: a data folder, a person with ready answers, short ways to do and to
// look.
#pragma once

#include <gtest/gtest.h>

#include <QDateTime>
#include <array>
#include <memory>

#include "app/comandi_copia.h"
#include "app/comandi_cronovia.h"
#include "app/comandi_guida.h"
#include "app/comandi_inserimento.h"
#include "app/comandi_scambio.h"
#include "app/comandi_viaggio.h"
#include "app/niente_perso.h"
#include "support/copione.h"

namespace cronovia::prova {

/// Localities of the rows, "-" for a free one, each with "+" and its stop.
inline QString Localita(const RigheItinerario& righe, bool conSoste = false) {
    QStringList nomi;
    for (const Tappa& tappa : righe) {
        const QString sosta = conSoste ? TestoSosta(tappa.sosta, tappa.fineGiorno) : QString();
        nomi += (tappa.localita.isEmpty() ? QStringLiteral("-") : tappa.localita) +
                (sosta.isEmpty() ? QString() : QStringLiteral("+") + sosta);
    }
    return nomi.join(QLatin1Char(' '));
}

struct AvanzamentoDiProva : Progress {
    bool StopRequested() override { return stop; }
    bool stop = false;
};

class PostazioneTest : public testing::Test {
  protected:
    PostazioneTest() {
        copione_.libera = [this] { return postazione_ == nullptr || postazione_->attivita == Attivita::Nessuna; };
    }
    /// Another window on the same folder, on Saturday 5 June 2027.
    std::unique_ptr<Postazione> NuovaPostazione() {
        return std::make_unique<Postazione>(cartella_.Path(),
                                            Volti{copione_, avanzamento_,
                                                  [] {
                                                      return QDateTime({2027, 6, 5}, {10, 52});
                                                  },
                                                  [] {}, [this](FileChiesto) { return file_; }, [this] { ++chiusure_; },
                                                  [this] { avanzamento_.stop = true; }});
    }
    [[nodiscard]] Documento& Viaggio() { return postazione_->documento; }
    /// Name of the screen in front; of the trip screen with its phase.
    [[nodiscard]] QString Schermo() const {
        constexpr std::array kFasi = {u"vuota", u"nuova", u"aperta"};
        constexpr std::array kNomi = {u"",       u"elenco", u"inserimento", u"cronovia",
                                      u"stampa", u"guida",  u"copia",       u"scambio"};
        const auto* viaggio = postazione_->Su<schermata::Viaggio>();
        return QString::fromUtf16(viaggio ? kFasi.at(static_cast<std::size_t>(viaggio->fase))
                                          : kNomi.at(postazione_->schermata.index()));
    }
    [[nodiscard]] QString Righe() { return prova::Localita(Viaggio().Righe()); }
    [[nodiscard]] QString RigheESoste() { return prova::Localita(Viaggio().Righe(), true); }

    void Destinazione(const QString& localita, const QString& nazione) {
        Meta meta = Viaggio().Campi();
        meta.localita = localita;
        meta.nazione = nazione;
        Viaggio().ImpostaCampi(meta);
    }
    /// A new trip, saved.
    void NuovaMeta(const QString& localita) {
        comandi::Nuovo(*postazione_);
        Destinazione(localita, QStringLiteral("ITALIA"));
        copione_.Domanda(QStringLiteral("Confermi inserimento meta?"), QStringLiteral("Inserimento meta"), Answer::Yes);
        comandi::Salva(*postazione_);
    }
    /// Puts fields into the entry screen and has them written; whether they were.
    bool Inserisce(const CampiTappa& campi) {
        auto* inserimento = postazione_->Su<schermata::Inserimento>();
        if (inserimento == nullptr) return false;
        const int riga = Viaggio().RigaCorrente();
        inserimento->campi = campi;
        comandi::Inserisce(*postazione_);
        return Viaggio().RigaCorrente() == riga + 1;
    }
    bool Inserisce(const QString& localita, int km, Durata sosta = {}) {
        return Inserisce({localita, {}, km, TipoStrada::Autostrada, sosta, false});
    }
    /// A trip with these stages on its entry screen, not saved.
    void MetaConTappe(const QString& localita, const QStringList& tappe) {
        NuovaMeta(localita);
        comandi::Itinerario(*postazione_);
        for (const QString& tappa : tappe) ASSERT_TRUE(Inserisce(tappa, 100));
    }
    void CancMeta(Answer risposta) {
        copione_.Domanda(QStringLiteral("Confermi annullamento meta?\n\n") + Viaggio().Nome(),
                         QStringLiteral("Annullamento meta"), risposta);
        comandi::CancMeta(*postazione_);
    }
    /// Leaves the entry, which asks when stages differ from those stored.
    void Esce(Answer risposta) {
        const QString nome = QStringLiteral("«%1» (codice %2)").arg(Viaggio().Caricati().localita, Viaggio().Codice());
        const bool diverse = Righe() != Memorizzate(Viaggio().Codice());
        if (diverse) DomandaModifiche(QStringLiteral("La mèta %1 ha modifiche non salvate.").arg(nome), risposta);
        comandi::Fine(*postazione_);
    }
    void DomandaModifiche(const QString& inizio, Answer risposta) {
        copione_.Domanda(inizio + QStringLiteral("\n\nVuoi salvare?"), QStringLiteral("Modifiche non salvate"),
                         risposta, true);
    }
    void DomandaModifiche(Answer risposta) {
        DomandaModifiche(QStringLiteral("La mèta «UNO» (codice 000001) ha modifiche non salvate."), risposta);
    }
    void Memorizza(Answer risposta) {
        copione_.Domanda(QStringLiteral("Vuoi salvare l'itinerario?"), QStringLiteral("Salvataggio itinerario"),
                         risposta, true);
        comandi::Memorizza(*postazione_);
    }
    /// The stages of a trip in the archive, as another window would find them.
    QString Memorizzate(const QString& codice = QStringLiteral("1")) {
        return prova::Localita(Sessione(cartella_.Path()).ApriMeta(codice).tappe);
    }

    CartellaDiProva cartella_;
    Copione copione_;
    AvanzamentoDiProva avanzamento_;
    QString file_;      ///< the file that the person names when asked
    int chiusure_ = 0;  ///< how often the window was to be closed
    std::unique_ptr<Postazione> postazione_ = NuovaPostazione();
};

}  // namespace cronovia::prova
