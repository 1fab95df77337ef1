// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/guida/frm_guida_stampa.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct Scelta {
    QString testo;
    QString istruzione;
};

QRadioButton* NuovaScelta(const QString& nome, int indice, const Scelta& scelta) {
    auto* opzione = new QRadioButton(scelta.testo);
    opzione->setObjectName(NomeDiSerie(nome, indice));
    MostraIstruzione(*opzione, scelta.istruzione);
    return opzione;
}

}  // namespace

FrmGuidaStampa::FrmGuidaStampa(Azioni& azioni) : RiquadroSovrapposto(u"frmGuidaStampa"_s, u"Guida da stampare:"_s) {
    const QString lista = u"optGuidaListaStampa"_s;
    optGuidaListaStampa_ = {
        NuovaScelta(lista, 0, {u"&Tutte"_s, u"Tutte le località della guida, in ordine alfabetico"_s}),
        NuovaScelta(lista, 1, {u"Inerenti la &Meta"_s, u"Le località dell'itinerario, in ordine di viaggio"_s})};
    const QString dettaglio = u"optGuidaDettaglioStampa"_s;
    optGuidaDettaglioStampa_ = {
        NuovaScelta(dettaglio, 0, {u"&Località"_s, u"Solo i nomi, cinque per riga"_s}),
        NuovaScelta(dettaglio, 1, {u"Località e &Guida"_s, u"Ogni località con le sue annotazioni"_s})};
    const auto gruppo = [](const QString& nome, const QString& scritta, QRadioButton* prima, QRadioButton* seconda) {
        auto* riquadro = new QGroupBox(scritta);
        riquadro->setObjectName(nome);
        auto* layout = Spaziato(new QVBoxLayout(riquadro), Spazi::Pagina);
        layout->addWidget(prima);
        layout->addWidget(seconda);
        return riquadro;
    };
    optGuidaListaStampa_[1]->setChecked(true);
    optGuidaDettaglioStampa_[1]->setChecked(true);
    QPushButton* stampa = azioni.NuovoPulsante(Comando::ScegliStampanteGuida);
    QPushButton* anteprima = azioni.NuovoPulsante(Comando::AnteprimaGuida);
    QPushButton* rinuncia = azioni.NuovoPulsante(Comando::RinunciaStampaGuida);
    Pulsanti(stampa, rinuncia);
    auto* gruppi = Spaziato(new QHBoxLayout, Spazi::Pagina);
    gruppi->setContentsMargins({});
    gruppi->addWidget(
        gruppo(u"frmGuidaStampaLista"_s, u"Località in stampa:"_s, optGuidaListaStampa_[1], optGuidaListaStampa_[0]));
    gruppi->addWidget(gruppo(u"frmStampaGuidaDettaglio"_s, u"Dettaglio:"_s, optGuidaDettaglioStampa_[0],
                             optGuidaDettaglioStampa_[1]));
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    for (QPushButton* pulsante : {stampa, anteprima, rinuncia}) riga->addWidget(pulsante);
    Contenuto().addLayout(gruppi);
    Contenuto().addLayout(riga);
}

OpzioniStampaGuida FrmGuidaStampa::Opzioni() const {
    return {optGuidaListaStampa_[0]->isChecked(), optGuidaDettaglioStampa_[1]->isChecked()};
}

}  // namespace cronovia
