// SPDX-License-Identifier: GPL-3.0-or-later
// The manual as the program shows it; preferences as they are kept.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QTextBlock>
#include <QTextBrowser>

#include "app/comandi_aiuto.h"
#include "exchange/iei/importa_mete.h"
#include "print/pagina.h"
#include "store/copies.h"
#include "support/prova.h"
#include "ui/aiuto/finestra_manuale.h"
#include "ui/aiuto/preferenze.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// A chapter that was renamed, or a picture that was not taken along, would be missed by whoever needs it first.
TEST(Manuale, HasAChapterForEachScreenAndAllItsPictures) {
    QWidget finestra;
    FinestraManuale manuale(finestra);
    auto& testo = *manuale.findChild<QTextBrowser*>();
    const auto siApre = [&](const QString& argomento) {
        manuale.VaiA(argomento);
        EXPECT_EQ(testo.textCursor().block().text(), argomento);
        EXPECT_EQ(manuale.findChild<QListWidget*>()->currentItem()->text(), argomento);
    };
    const QTemporaryDir cartella;
    Sessione sessione(cartella.path());
    Progress muto;
    ImportaMete({sessione.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei"), {}}, muto);
    siApre(ArgomentoDelManuale(schermata::Viaggio()));
    siApre(ArgomentoDelManuale(schermata::Viaggio{schermata::Viaggio::Fase::Aperta}));
    siApre(ArgomentoDelManuale(schermata::ElencoMete()));
    siApre(ArgomentoDelManuale(schermata::Inserimento()));
    siApre(ArgomentoDelManuale(schermata::Cronovia()));
    siApre(ArgomentoDelManuale(schermata::Stampa()));
    siApre(ArgomentoDelManuale(schermata::Guida()));
    siApre(ArgomentoDelManuale(schermata::Guida{nullptr, schermata::PassoStampa()}));
    siApre(ArgomentoDelManuale(schermata::Copia{TavoloCopia(sessione), {}}));
    siApre(ArgomentoDelManuale(schermata::Scambio{TavoloScambio(ModoScambio::Export, {}, {})}));
    siApre(ArgomentoDeiTasti());
    for (const QString& tasto : {u"Calcola la cronovia del viaggio"_s, u"Alt+Up"_s, u"F8"_s, u"Ctrl+M"_s}) {
        EXPECT_TRUE(testo.toPlainText().contains(tasto)) << tasto.toStdString();
    }
    int immagini = 0;
    for (QTextBlock blocco = testo.document()->begin(); blocco.isValid(); blocco = blocco.next()) {
        for (auto pezzo = blocco.begin(); !pezzo.atEnd(); ++pezzo) {
            const QTextImageFormat formato = pezzo.fragment().charFormat().toImageFormat();
            if (!formato.isValid()) continue;
            ++immagini;
            const QUrl nome(formato.name());
            EXPECT_FALSE(testo.document()->resource(QTextDocument::ImageResource, nome).isNull())
                << formato.name().toStdString();
        }
    }
    EXPECT_GT(immagini, 2);
}

// A text of 9,999 per cent would leave no way back to the dialog.
TEST(Preferenze, AreKeptAndReadWithinLimits) {
    const QTemporaryDir cartella;
    QSettings aspetto(cartella.filePath(u"Cronovia.ini"_s), QSettings::IniFormat);
    RicordaPreferenze({true, 150, Colori::Scuri, {25, CarteOfferte().at(1)}}, aspetto);
    Preferenze lette = LeggiPreferenze(aspetto);
    EXPECT_TRUE(lette.dalVivo && lette.testo == 150 && lette.colori == Colori::Scuri && lette.comuni.copie == 25);
    EXPECT_EQ(lette.comuni.carta.misura, QSizeF(215.9, 279.4));
    aspetto.setValue(u"testo"_s, 9999);
    aspetto.setValue(u"colori"_s, -3);
    aspetto.setValue(u"copie"_s, 0);
    aspetto.setValue(u"carta"_s, u"A0"_s);
    lette = LeggiPreferenze(aspetto);
    EXPECT_EQ(lette.testo, 200);
    EXPECT_EQ(lette.colori, Colori::ComeIlSistema);
    EXPECT_EQ(lette.comuni.copie, kMinimoCopie);
    EXPECT_EQ(lette.comuni.carta.misura, kFoglioDelModello);
    EXPECT_EQ(LeggiImpostazioni(cartella.filePath(u"altrove"_s)).copie, kNewestCopies);
}

}  // namespace
}  // namespace cronovia
