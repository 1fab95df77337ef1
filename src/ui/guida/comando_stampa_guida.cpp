// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/guida/comando_stampa_guida.h"

#include <QCoreApplication>
#include <QGridLayout>

#include "app/comandi_cronovia.h"
#include "app/comandi_guida.h"
#include "interaction/failure.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

ComandoStampaGuida::ComandoStampaGuida(const Ambiente& ambiente, Azioni& azioni, FrmSelStampa& stampante,
                                       QGridLayout& area)
    : QObject(&ambiente.finestra),
      ambiente_(ambiente),
      azioni_(azioni),
      stampante_(stampante),
      opzioni_(new FrmGuidaStampa(azioni)) {
    area.addWidget(opzioni_, 0, 0, Qt::AlignCenter);
}

void ComandoStampaGuida::Mostra() {
    using schermata::PassoStampa;
    const auto* guida = ambiente_.postazione.Su<schermata::Guida>();
    const std::optional<PassoStampa> passo = guida != nullptr ? guida->stampa : std::nullopt;
    opzioni_->Mostra(passo && passo != PassoStampa::InCorso, passo == PassoStampa::Scelte);
}

// Escape goes back one step.
bool ComandoStampaGuida::Tasto(const QKeyEvent& tasto) {
    const auto* guida = ambiente_.postazione.Su<schermata::Guida>();
    if (tasto.key() != Qt::Key_Escape || guida == nullptr || !guida->stampa) return false;
    const bool scelte = *guida->stampa == schermata::PassoStampa::Scelte;
    azioni_.Di(scelte ? Comando::RinunciaStampaGuida : Comando::RinunciaStampante).trigger();
    return true;
}

void ComandoStampaGuida::MostraAnteprima() {
    if (const auto documento = Prepara()) {
        cronovia::MostraAnteprima(*documento, ambiente_.finestra, ambiente_.interazione);
    }
}

// Nothing, and the person hears why, when there is nothing to print.
std::optional<Stampato> ComandoStampaGuida::Prepara() {
    std::optional<Stampato> documento;
    comandi::SullaGuida(ambiente_.postazione, [&](const TavoloGuida& tavolo) {
        const DatiStampaGuida dati =
            PreparaStampaGuida(tavolo.Archivio(), tavolo.CodiceMeta(), ambiente_.postazione.documento.Campi().localita,
                               opzioni_->Opzioni());
        if (dati.localita.empty()) throw Failure(NienteDaStampare(dati.opzioni));
        documento = StampaGuida(dati, PiedeDiOggi(ambiente_.postazione), ambiente_.avanzamento);
    });
    return documento;
}

// Without a file, printing to a file has not begun.
void ComandoStampaGuida::Stampa() {
    const std::optional<Stampato> documento = Prepara();
    if (!documento) return;
    const QString& meta = ambiente_.postazione.documento.Campi().localita;
    const QString nome = u"Guida Città "_s + (opzioni_->Opzioni().tutte ? QString() : meta);
    const auto uscita = ChiediUscita(ambiente_, stampante_.Scelta(), stampante_.SceltoFilePdf(), nome);
    if (!uscita) return;
    comandi::StampaInCorso(ambiente_.postazione);
    const bool stampata = ambiente_.postazione.Prova([&] { uscita(*documento); });
    comandi::FineStampa(ambiente_.postazione);
    if (stampata) ambiente_.interazione.Show({u"Stampa della guida completata..."_s, {}, Icon::None});
}

}  // namespace cronovia
