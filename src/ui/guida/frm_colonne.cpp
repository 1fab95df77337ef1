// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/guida/frm_colonne.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "calendar/testo.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMassimoTesto = 30;

// "Nord (45,0703)": the name of the column, and what the first place has there.
QString VoceColonna(const TabellaDaSpiegare& tabella, int colonna) {
    const QString nome = Accorciato(Visibile(tabella.intestazione.at(colonna)), kMassimoTesto);
    const QString esempio = Accorciato(Visibile(tabella.esempio.value(colonna)), kMassimoTesto);
    const QString detta = nome.isEmpty() ? u"Colonna %1"_s.arg(colonna + 1) : nome;
    return esempio.isEmpty() ? detta : u"%1 (%2)"_s.arg(detta, esempio);
}

// The first choice is no column.
QComboBox* SceltaColonna(const TabellaDaSpiegare& tabella, ColonnaSosta colonna) {
    auto* scelta = new QComboBox;
    scelta->setObjectName(u"colonna_"_s + NomeColonna(colonna));
    scelta->addItem(u"nessuna"_s);
    for (int i = 0; i < tabella.intestazione.size(); ++i) scelta->addItem(VoceColonna(tabella, i));
    scelta->setCurrentIndex(tabella.proposte[colonna] + 1);
    return scelta;
}

// "La&titudine": each with a key of its own.
QString ScrittaColonna(ColonnaSosta colonna) {
    constexpr std::array kScritte = {u"&Nome", u"&Latitudine", u"L&ongitudine", u"&Tipo", u"&Descrizione", u"Not&e"};
    return QString::fromUtf16(kScritte.at(colonna));
}

}  // namespace

std::optional<PostoColonne> ChiediColonne(QWidget& finestra, const TabellaDaSpiegare& tabella) {
    QDialog dialogo(&finestra);
    MostraTitolo(dialogo, u"Colonne della tabella"_s);
    auto* layout = Spaziato(new QFormLayout(&dialogo), Spazi::Dialogo);
    layout->addRow(NuovaScritta(
        u"I nomi delle colonne non dicono tutto: indica dove stanno il nome e la posizione delle soste."_s));
    auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    std::array<QComboBox*, kColonneSosta> scelte{};
    const auto scelto = [&] {
        PostoColonne posto{};
        std::transform(scelte.begin(), scelte.end(), posto.begin(),
                       [](const QComboBox* scelta) { return scelta->currentIndex() - 1; });
        return posto;
    };
    const auto abilita = [&] { pulsanti->button(QDialogButtonBox::Ok)->setEnabled(Bastano(scelto())); };
    for (const ColonnaSosta colonna : {kNome, kLatitudine, kLongitudine, kTipo, kDescrizione, kNote}) {
        scelte.at(colonna) = SceltaColonna(tabella, colonna);
        layout->addRow(ScrittaColonna(colonna), scelte.at(colonna));
    }
    for (QComboBox* scelta : scelte) QObject::connect(scelta, &QComboBox::currentIndexChanged, &dialogo, abilita);
    abilita();
    layout->addRow(pulsanti);
    QObject::connect(pulsanti, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(pulsanti, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    if (dialogo.exec() != QDialog::Accepted) return std::nullopt;
    return scelto();
}

}  // namespace cronovia
