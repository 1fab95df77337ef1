// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/aiuto/benvenuto.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QVBoxLayout>
#include <array>

#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct EsempioOfferto {
    const char16_t* nome;
    const char16_t* titolo;
};

constexpr std::array<EsempioOfferto, 3> kEsempiOfferti = {{{u"provenza", u"Provenza, una settimana"},
                                                           {u"sicilia", u"Sicilia, con il traghetto"},
                                                           {u"capo-nord", u"Capo Nord, il grande viaggio"}}};

QLabel* TitoloBenvenuto() {
    QLabel* titolo = NuovaScritta(u"Benvenuto in Cronovia"_s);
    QFont grande = titolo->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.6);
    grande.setBold(true);
    titolo->setFont(grande);
    return titolo;
}

QHBoxLayout* TestataBenvenuto() {
    QLabel* icona = NuovaScritta();
    icona->setPixmap(QIcon(u":/icone/cronovia.svg"_s).pixmap(72));
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    riga->addStretch();
    riga->addWidget(icona);
    riga->addSpacing(kStaccoGrande);
    riga->addWidget(TitoloBenvenuto());
    riga->addStretch();
    return riga;
}

}  // namespace

Benvenuto::Benvenuto() {
    setObjectName(u"frmBenvenuto"_s);
    QLabel* testo = NuovaScritta(
        u"Qui pianifichi un viaggio in camper: scrivi le tappe con i chilometri, e Cronovia calcola a che ora arrivi "
        "dove, con pasti, notti e visite. Da che cosa cominci?"_s);
    testo->setWordWrap(true);
    testo->setAlignment(Qt::AlignCenter);
    QPushButton* nuovo =
        NuovoPulsante(u"cmdBenvenutoNuovo"_s, u"Nuovo viaggio"_s, u"Comincia a scrivere un viaggio tuo"_s);
    QPushButton* importa =
        NuovoPulsante(u"cmdBenvenutoImporta"_s, u"Importa…"_s, u"Prende i viaggi da un file .iei che hai ricevuto"_s);
    QPushButton* esempio = NuovoPulsante(u"cmdBenvenutoEsempio"_s, u"Apri un esempio"_s,
                                         u"Mostra un viaggio già pronto, da provare e da cambiare"_s);
    auto* esempi = new QMenu(esempio);
    esempi->setObjectName(u"menuEsempi"_s);
    for (const EsempioOfferto& offerto : kEsempiOfferti) {
        const QString nome = QString::fromUtf16(offerto.nome);
        QAction* voce = esempi->addAction(QString::fromUtf16(offerto.titolo));
        voce->setObjectName(u"esempio-"_s + nome);
        connect(voce, &QAction::triggered, this, [this, nome] { Q_EMIT Esempio(u":/esempi/%1.iei"_s.arg(nome)); });
    }
    esempio->setMenu(esempi);
    connect(nuovo, &QPushButton::clicked, this, &Benvenuto::NuovoViaggio);
    connect(importa, &QPushButton::clicked, this, &Benvenuto::Importa);
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    riga->addStretch();
    for (QPushButton* pulsante : {nuovo, importa, esempio}) {
        pulsante->setMinimumSize(170, 40);
        riga->addWidget(pulsante);
    }
    riga->addStretch();
    auto* layout = Spaziato(new QVBoxLayout(this), Spazi::Dialogo);
    layout->addStretch(2);
    layout->addLayout(TestataBenvenuto());
    layout->addSpacing(kStacco);
    layout->addWidget(testo);
    layout->addSpacing(kStaccoGrande);
    layout->addLayout(riga);
    layout->addStretch(3);
    setAutoFillBackground(true);
}

}  // namespace cronovia
