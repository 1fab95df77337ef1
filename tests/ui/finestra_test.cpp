// SPDX-License-Identifier: GPL-3.0-or-later
// What a written session cannot say: every control is named and reached, a long calculation is stopped, a process
// starts.
#include <QAbstractButton>
#include <QLabel>
#include <QLocalSocket>
#include <QProcess>
#include <set>

#include "cli/programma.h"
#include "ui/comuni/finestra_unica.h"
#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ControlliTest : public prova::FinestraTest {
  protected:
    // The parts of an editable list count as the list.
    static bool DiUnElenco(const QWidget& controllo) {
        return qobject_cast<const QComboBox*>(controllo.parentWidget()) != nullptr;
    }
    // What is asked for in several lists, such as a date, has a name that they share.
    static bool Raccoglie(const QWidget& controllo) {
        return controllo.metaObject() == &QFrame::staticMetaObject &&
               controllo.findChildren<QComboBox*>(Qt::FindDirectChildrenOnly).size() > 1;
    }
    static std::string Nome(const QWidget& controllo) {
        return controllo.metaObject()->className() + (u' ' + controllo.objectName()).toStdString();
    }
    void Importa(const QString& file) {
        const QStringList argomenti = {u"--cartella"_s, cartella_.Path(), u"importa"_s, file};
        ASSERT_EQ(prova::Programma::EseguiNudo(argomenti).codice, 0);
    }
};

TEST_F(ControlliTest, EveryControlIsNamedForThoseWhoDoNotSeeIt) {
    Apri();
    for (const QWidget* controllo : form_->findChildren<QWidget*>()) {
        const auto* pulsante = qobject_cast<const QAbstractButton*>(controllo);
        const bool muto = pulsante != nullptr ? pulsante->text().isEmpty()
                                              : controllo->focusPolicy() != Qt::NoFocus ||
                                                    controllo->inherits("QLineEdit") || Raccoglie(*controllo);
        if (!muto || controllo->objectName().startsWith(u"qt_"_s) || DiUnElenco(*controllo)) continue;
        if (controllo->inherits("QTableCornerButton")) continue;                                       // never shown
        if (controllo->inherits("QAbstractItemView") && controllo->window() != form_.get()) continue;  // of a combo box
        EXPECT_NE(controllo->accessibleName(), u""_s) << Nome(*controllo);
    }
}

TEST_F(ControlliTest, TabReachesEveryEnabledControl) {
    Importa(QStringLiteral(CRONOVIA_EXAMPLES "/sicilia.iei"));
    Apri();
    Premi(u"cmdItinerario"_s);
    std::set<const QWidget*> visitati;
    for (int i = 0; i < 200; ++i) {
        Tasto(Qt::Key_Tab);
        if (!visitati.insert(QApplication::focusWidget()).second && i > 100) break;
    }
    for (const QWidget* controllo : form_->findChildren<QWidget*>()) {
        const bool tab = (controllo->focusPolicy() & Qt::TabFocus) != 0 && controllo->focusProxy() == nullptr;
        if (!tab || !controllo->isVisible() || !controllo->isEnabled() || controllo->window() != form_.get()) continue;
        if (DiUnElenco(*controllo)) continue;
        const auto* elenco = qobject_cast<const QComboBox*>(controllo);
        EXPECT_TRUE(visitati.contains(controllo) || (elenco != nullptr && visitati.contains(elenco->lineEdit())))
            << Nome(*controllo);
    }
}

TEST_F(ControlliTest, RowsOfTheScheduleDifferByMoreThanColour) {
    Importa(QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei"));
    Apri();
    Premi(u"cmdCalcola"_s);
    const QAbstractItemModel& modello = *Trova<QTableView>(u"mfgTab"_s).model();
    std::map<QString, int> righe;
    for (int i = 0; i < modello.rowCount(); ++i) {
        const QModelIndex cella = modello.index(i, 0);
        if (cella.data().toString().startsWith(u"Giorno "_s)) continue;
        const QString significato = cella.data(Qt::ToolTipRole).toString();
        EXPECT_TRUE(cella.data(Qt::AccessibleTextRole).toString().contains(significato));
        EXPECT_EQ(cella.data(Qt::DecorationRole).value<QIcon>().isNull(), significato.isEmpty());
        ++righe[significato];
    }
    EXPECT_EQ(righe.size(), 5U) << "ends of days, meals, stops, the guide, and driving without a mark";
}

TEST_F(ControlliTest, LongCalculationsAreStoppedHalfWay) {
    QByteArray viaggio =
        "CodiceMeta|Localita|Nazione|DataInizio|OraInizio|MediaAutostrada|OraColazione|OraPranzo|DurataPranzo|OraCena|"
        "DurataCena|OraNotte|InizioVisita|FineVisita|CalcoloSoste|\r\n"
        "000001|LUNGO|ITALIA|05062027|0800|75|0900|1230|0230|2000|0145|2230|0900|1800|3|\r\n";
    QByteArray tappe = "CodiceMeta|Sequenza|Localita|Chilometri|TipoStrada|TempoSosta|\r\n";
    for (int i = 1; i <= 9000; ++i) {
        tappe += "000001|" + QByteArray::number(i).rightJustified(4, '0') + "|X|10|A|00:00:15|\r\n";
    }
    const QString file = cartella_.Path() + u"/lungo.iei"_s;
    cartella_.Crea();
    prova::ScriviFile(file, viaggio.replace('|', '\xFF') + tappe.replace('|', '\xFE'));
    Importa(file);
    Apri();
    Scrivi(u"cmbGiorni"_s, u"997"_s);
    // The window lives while it computes: Exit reads Stop, nothing else can be pressed.
    QString cerca;
    QStringList visti;
    QTimer persona;
    QObject::connect(&persona, &QTimer::timeout, &persona, [&] {
        const QString titolo = Trova<QLabel>(u"lblElaborazione"_s).text();
        if (!titolo.startsWith(cerca) || visti.size() > 1) return;
        visti += Trova<QPushButton>(u"cmdEsce"_s).text();
        const bool primo = visti.size() == 1;
        Attendi({Attesa::Che::Box,
                 u"Vuoi interrompere l'elaborazione?"_s,
                 u"Fine Lavoro"_s,
                 primo ? QMessageBox::No : QMessageBox::Yes,
                 {},
                 QMessageBox::No});
        if (primo) {
            EXPECT_FALSE(form_->close());
        } else {
            Premi(u"cmdEsce"_s);
        }
    });
    persona.start(10);
    const QAbstractItemModel& modello = *Trova<QTableView>(u"mfgTab"_s).model();
    for (const auto& [titolo, azione] : {std::pair{u"Calcolo della cronovia"_s, u"calcola"_s},
                                         {u"Confronto delle soste"_s, u"confronta"_s},
                                         {u"Confronto dei giorni"_s, u"confronta"_s}}) {
        cerca = titolo;
        visti.clear();
        Trova<QAction>(azione).trigger();
        TuttoVenuto();
        ASSERT_EQ(visti, (QStringList{u"&Stop"_s, u"&Stop"_s})) << "it ended too early to be stopped";
        EXPECT_EQ(Trova<QPushButton>(u"cmdEsce"_s).text(), u"&Esce"_s);
        EXPECT_EQ(Trova<QPushButton>(u"cmdCalcola"_s).text(), u"&Calcola"_s);
        EXPECT_EQ(modello.headerData(7, Qt::Horizontal).toString(), u"Itinerario"_s);
        EXPECT_TRUE(Trova<QPushButton>(u"cmdNuovo"_s).isEnabled());
    }
}

TEST_F(ControlliTest, ASecondStartHandsOverToTheWindowThatIsOpen) {
    Importa(QStringLiteral(CRONOVIA_EXAMPLES "/sicilia.iei"));
    const auto avvia = [this](QProcess& processo, const QStringList& altro) {
        processo.start(QStringLiteral(CRONOVIA_PROGRAM),
                       QStringList{u"--cartella"_s, cartella_.Path() + u"/."_s} + altro);
    };
    // One that was killed leaves its name behind.
    QProcess uccisa;
    avvia(uccisa, {});
    ASSERT_TRUE(QTest::qWaitFor(
        [this] {
            QLocalSocket presa;
            presa.connectToServer(NomeDellaFinestra(cartella_.Path()));
            return presa.waitForConnected(100);
        },
        20'000));
    uccisa.kill();
    uccisa.waitForFinished();
    FinestraUnica unica;
    ASSERT_FALSE(unica.Consegna(cartella_.Path(), {}));
    Apri();
    QObject::connect(&unica, &FinestraUnica::Richiamata, form_.get(), &FormMete::Richiama);
    form_->showMinimized();
    QProcess seconda;
    avvia(seconda, {QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return seconda.state() == QProcess::NotRunning; }, 20'000));
    EXPECT_EQ(seconda.exitCode(), 0) << seconda.readAllStandardError().toStdString();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Trova(u"frmExport"_s).isVisible() && !form_->isMinimized(); }, 5000));
    // The archive was saved elsewhere: the window is found there, and where it was there is none.
    const prova::CartellaDiProva altrove;
    altrove.Crea();
    unica.Segui(altrove.Path());
    const auto risponde = [](const QString& cartella) {
        QLocalSocket presa;
        presa.connectToServer(NomeDellaFinestra(cartella));
        return presa.waitForConnected(1000);
    };
    EXPECT_TRUE(risponde(altrove.Path()));
    EXPECT_FALSE(risponde(cartella_.Path()));
}

TEST_F(ControlliTest, AProcessEndsWithAMessageWhenTheArchiveCannotBeOpened) {
    const auto avvia = [&] {
        QProcess processo;
        processo.start(QCoreApplication::applicationFilePath(), {u"--avvio"_s, cartella_.Path()});
        EXPECT_TRUE(processo.waitForFinished());
        EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit);
        return std::pair{processo.exitCode(), QString::fromUtf8(processo.readAllStandardOutput())};
    };
    EXPECT_EQ(avvia(), (std::pair{0, u"Annulla\n"_s}));
    const QByteArray robaccia(5000, 'x');
    prova::ScriviFile(cartella_.Archivio(), robaccia);
    const auto [codice, box] = avvia();
    EXPECT_EQ(codice, 1);
    EXPECT_TRUE(box.startsWith(u"Annulla\nErrore apertura database"_s)) << box.toStdString();
    EXPECT_EQ(prova::LeggiFile(cartella_.Archivio()), robaccia);
}

}  // namespace
}  // namespace cronovia
