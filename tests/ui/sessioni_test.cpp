// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions at the window, written down in tests/data/finestra: one file each, a line for each step. A line is a verb
// with its words; what holds blanks stands in quotes, with \n, \" and \\; {cartella} is the data folder, {esempi} that
// of the examples. What comes up by itself is announced before the step that brings it.
//
//   open [HH:MM] · close              the window, on 5 June 2027; opened again, it is a new one on the same folder
//   signal-end                        the system ends the program, and the window has to close
//   session-end yes|no|unasked        the desktop session ends: whether it may; without that the person can be asked
//   meanwhile-session-end yes|no      that happens while the box is open that was announced before
//   meanwhile VERB WORD...            the same of any step; what that brings is announced behind it
//   come-back                         the window gets the focus from another program's
//   run WORD... [=> TEXT...]          the program from a terminal, and what it must write among other things
//   write FILE TEXT                   a file, made beforehand
//   exchange FILE TRIPS STAGES        an exchange file, its values between "|"
//   move FILE FILE                    what another program does to files
//   sql TEXT                          what another program does to the archive
//   answer BUTTON TEXT [TITLE]        the next box is a question, and Enter would say yes: else as in "Sì/No", where
//                                     Enter would say no; message TEXT [TITLE]: is told, and read with Ok
//   choose [FILE]                     the next dialog asks for a file; without one it is called off
//   dismiss · confirm                 the next dialog of any other kind is closed, or accepted as it stands;
//                                     expect-seen TEXT: what it was
//   spoil FILE PLACE                  one byte of a file becomes 0
//   type NAME TEXT · keys TEXT        typed over what is there; typed where the focus is
//   key KEY... · focus NAME           as in "Ctrl+Z", where the focus is
//   press NAME · click NAME ROW       a button or box; a row of a table (from 1), an entry of a list
//   sign NAME ROW · bar NAME DAY HH:MM  the sign at a row's beginning; a bar of the days' panel
//   trigger NAME                      an entry of a menu
//   beside NAME                       a click there, whether that can be used or not
//   select NAME TEXT                  an entry of a drop-down list, reached with the arrow keys
//   printers NAME...                  that there are from now on, the last one the system's own choice; what is printed
//                                     on one is a PDF file of its name in the data folder
//   drop NAME FILE                    as the desktop does it, which would like to move the file
//   drop-rows NAME FIRST LAST ROW     rows of the itinerary, before another one
//   resize W H · drag TABLE COL W     the window; a column by its edge
//   expect NAME TEXT                  what a control says; boxes that can be ticked say "on" or "off"
//   expect-entries NAME "FIRST … LAST" of a drop-down list
//   expect-row TABLE ROW CELLS        joined by "|", empty ones at the end left away; a cell "…" may be any, at the
//                                     end any more
//   expect-column TABLE COL CELLS     the cells of a column that are not empty
//   expect-header TABLE COL TEXT · expect-selected TABLE ROWS · expect-width TABLE COL W · expect-size W H
//   expect-height NAME H              of a panel
//   expect-fits TABLE                 its columns share out its width
//   expect-tip NAME TEXT · expect-tip TABLE ROW COL TEXT      as the person reads it
//   expect-bar NAME DAY HH:MM TEXT    the same of a bar
//   expect-focus NAME
//   expect-enabled NAME BUTTONS       those within that can be pressed, by name without "cmd"
//   expect-menu NAME ENTRIES          those that can be chosen, with their keys, joined by "|"
//   expect-on · expect-off · expect-visible · expect-hidden NAME...
//   expect-file FILE TEXT             how the file begins; expect-no-file FILE
//   clipboard TEXT                    what another program puts there
//   expect-clipboard text|html TEXT   a part of what is on the clipboard; expect-clipboard-lines N
//
// Whatever comes up unannounced fails, and so does what was announced and did not come in that step. Every table model
// is watched meanwhile, that no letter is underlined twice among what can be used, and that every text is shown as it
// stands.
#include <SQLiteCpp/Database.h>

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QClipboard>
#include <QDirIterator>
#include <QDropEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QRadioButton>
#include <QSessionManager>
#include <QUrl>
#include <csignal>
#include <functional>
#include <map>

#include "cli/programma.h"
#include "exchange/scambio.h"
#include "support/parole.h"
#include "ui/finestra.h"
#include "ui/giornate/striscia_giornata.h"
#include "ui/giornate/vista_giornate.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

const QString kSessioni = QStringLiteral(CRONOVIA_TEST_DATA "/finestra/");

bool Sensibile(const QAbstractButton& pulsante) { return pulsante.isEnabled() && pulsante.isVisible(); }

using prova::ComeSiLegge;

QString Celle(const QAbstractItemModel& modello, int riga) {
    QStringList celle;
    for (int i = 0; i < modello.columnCount(); ++i) celle += modello.index(riga - 1, i).data().toString();
    while (!celle.isEmpty() && celle.last().isEmpty()) celle.removeLast();
    return celle.join(u'|');
}

QString Colonna(const QAbstractItemModel& modello, int colonna) {
    QStringList celle;
    for (int i = 0; i < modello.rowCount(); ++i) celle += modello.index(i, colonna - 1).data().toString();
    celle.removeAll(QString());
    return celle.join(u'|');
}

// Whether the cells are those expected, "…" standing for any one, or at the end for all that follow.
bool Corrispondono(const QString& celle, const QString& attese) {
    const QStringList viste = celle.split(u'|');
    const QStringList modello = attese.split(u'|');
    for (qsizetype i = 0; i < modello.size(); ++i) {
        if (modello[i] != u"…"_s && modello[i] != viste.value(i)) return false;
    }
    return viste.size() <= modello.size() || modello.last() == u"…"_s;
}

class SessioniTest : public prova::FinestraTest, public testing::WithParamInterface<QString> {
  protected:
    void Recita(const QString& file) {
        const std::string nome = file.toStdString();
        int numero = 0;
        for (const QString& riga : QString::fromUtf8(prova::LeggiFile(file)).split(u'\n')) {
            ++numero;
            if (riga.isEmpty() || riga.startsWith(u'#')) continue;
            const testing::ScopedTrace dove(nome.c_str(), numero, riga.toStdString());
            try {
                Passo(riga);
            } catch (const std::exception& guasto) {
                ADD_FAILURE() << guasto.what();
            }
            if (HasFailure()) return;  // what follows stands on this step
        }
    }

  private:
    using Azione = std::function<void(const QStringList&)>;

    void Passo(QString riga) {
        QStringList p = prova::Parole(
            riga.replace(u"{cartella}"_s, cartella_.Path()).replace(u"{esempi}"_s, QStringLiteral(CRONOVIA_EXAMPLES)));
        const QString verbo = p.first();
        Fai(p);
        QCoreApplication::processEvents();
        if (form_ != nullptr) Attiva();
        if (!annunci_.contains(verbo)) TuttoVenuto();
        Sorveglia();
    }

    void Fai(QStringList p) {
        const auto voce = verbi_.find(p.takeFirst());
        if (voce == verbi_.end()) throw std::runtime_error("no such verb");
        if (p.size() < voce->second.first) throw std::runtime_error("too few words");
        p.resize(std::max<qsizetype>(p.size(), 4));
        voce->second.second(p);
    }

    void FaiIntanto(const QStringList& p) {
        try {
            Fai(p);
        } catch (const std::exception& guasto) {
            ADD_FAILURE() << p.join(u' ').toStdString() << ": " << guasto.what();
        }
    }

    void Sorveglia() {
        if (form_ == nullptr) return;
        SorvegliaLettere();
        prova::TestiMostrati::Sorveglia(*form_);
        prova::SorvegliaNomi(*form_);
        for (const auto* tabella : form_->findChildren<QAbstractItemView*>()) {
            QAbstractItemModel* modello = tabella->model();
            if (!tabella->inherits("QTableView") && !tabella->inherits("cronovia::VistaGiornate")) continue;
            if (modello == nullptr || modello->findChild<QAbstractItemModelTester*>() != nullptr) continue;
            new QAbstractItemModelTester(modello, QAbstractItemModelTester::FailureReportingMode::Warning, modello);
        }
    }

    // A letter that two have reaches neither.
    void SorvegliaLettere() {
        std::map<QString, QString> lettere;
        const auto prende = [&](const QString& scritta, const QWidget& chi) {
            const QString tasto = QKeySequence::mnemonic(scritta).toString();
            if (tasto.isEmpty() || !chi.isVisible() || !chi.isEnabled()) return;
            const auto [altro, nuova] = lettere.emplace(tasto, scritta);
            EXPECT_TRUE(nuova) << tasto.toStdString() << ": " << altro->second.toStdString() << ", "
                               << scritta.toStdString();
        };
        for (const auto* pulsante : form_->findChildren<QAbstractButton*>()) {
            prende(pulsante->text(), *pulsante);
            EXPECT_EQ(pulsante->shortcut(), QKeySequence::mnemonic(pulsante->text())) << pulsante->text().toStdString();
        }
        for (const QAction* menu : form_->menuBar()->actions()) prende(menu->text(), *form_->menuBar());
        for (const auto* scritta : form_->findChildren<QLabel*>()) {
            if (scritta->buddy() != nullptr) prende(scritta->text(), *scritta);
        }
    }

    static void Uguale(const QString& visto, const QString& atteso) { EXPECT_EQ(visto, atteso); }

    QString Dice(const QString& nome) {
        const auto& oggetto = Trova<QObject>(nome);
        if (const auto* casella = qobject_cast<const QLineEdit*>(&oggetto)) return casella->text();
        if (const auto* lunga = qobject_cast<const QPlainTextEdit*>(&oggetto)) return lunga->toPlainText();
        if (const auto* elenco = qobject_cast<const QComboBox*>(&oggetto)) return elenco->currentText();
        if (const auto* finestra = qobject_cast<const QMainWindow*>(&oggetto)) return finestra->windowTitle();
        if (const auto* azione = qobject_cast<const QAction*>(&oggetto)) return azione->text();
        if (const auto* scritta = qobject_cast<const QLabel*>(&oggetto)) return scritta->text();
        if (const auto* riquadro = qobject_cast<const QGroupBox*>(&oggetto)) return riquadro->title();
        if (const auto* lista = qobject_cast<const QListWidget*>(&oggetto)) return Colonna(*lista->model(), 1);
        if (const auto* pulsante = qobject_cast<const QAbstractButton*>(&oggetto)) {
            return !pulsante->isCheckable() ? pulsante->text() : pulsante->isChecked() ? u"on"_s : u"off"_s;
        }
        throw std::runtime_error("says nothing");
    }

    const QAbstractItemModel& Modello(const QString& tabella) { return *Trova<QAbstractItemView>(tabella).model(); }

    // The strip of a day in the panel, at an hour.
    void SullaStriscia(const QStringList& p, const std::function<void(VistaGiornate&, QPoint)>& azione) {
        auto& vista = Usabile<VistaGiornate>(p[0]);
        const QTime ora = QTime::fromString(p[2], u"H:mm"_s);
        const QModelIndex giornata = vista.model()->index(p[1].toInt() - 1, 0);
        vista.scrollTo(giornata);
        const QRect striscia = vista.Striscia(vista.visualRect(giornata));
        const Centesimi centesimi = InCentesimi({0, ora.hour(), ora.minute()}, kGiornoOrologio);
        azione(vista, {qRound(AscissaDellOra(striscia, centesimi)), striscia.center().y()});
    }

    void Clicca(const QString& nome, const QString& quale) {
        Preme(nome, quale, [](QWidget* su, const QPoint& dove) { QTest::mouseClick(su, Qt::LeftButton, {}, dove); });
    }

    void Preme(const QString& nome, const QString& quale, const std::function<void(QWidget*, QPoint)>& mouse) {
        auto& vista = Usabile<QAbstractItemView>(nome);
        const int riga = quale.toInt() - 1;
        QModelIndex dove = vista.model()->index(riga, std::min(1, vista.model()->columnCount() - 1));
        if (quale.toInt() == 0)
            dove = vista.model()->match(vista.model()->index(0, 0), Qt::DisplayRole, quale).value(0);
        if (quale.toInt() == 0 && !dove.isValid()) throw std::runtime_error("there is no such entry");
        vista.scrollTo(dove);
        mouse(vista.viewport(), vista.visualRect(dove).center());
    }

    void Scegli(const QString& nome, const QString& voce) {
        auto& elenco = Usabile<QComboBox>(nome);
        const int meta = elenco.findText(voce);
        if (meta < 0) throw std::runtime_error("there is no such entry");
        elenco.setFocus();
        for (int i = 0; i < elenco.count() && elenco.currentIndex() != meta; ++i) {
            QTest::keyClick(&elenco, elenco.currentIndex() < meta ? Qt::Key_Down : Qt::Key_Up);
        }
        Uguale(elenco.currentText(), voce);
    }

    void Lascia(const QString& nome, const QString& file, const QString& atteso) {
        QWidget& su = Usabile(nome);
        EXPECT_TRUE(form_->acceptDrops());
        QMimeData dati;
        dati.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent entra({5, 5}, Qt::CopyAction | Qt::MoveAction, &dati, Qt::LeftButton, Qt::NoModifier);
        entra.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&su, &entra);
        QDropEvent lascia({5, 5}, Qt::CopyAction | Qt::MoveAction, &dati, Qt::LeftButton, Qt::NoModifier);
        lascia.setDropAction(Qt::MoveAction);
        lascia.setAccepted(false);
        QApplication::sendEvent(&su, &lascia);
        const QString esito = !lascia.isAccepted()                    ? u"refused"_s
                              : lascia.dropAction() == Qt::CopyAction ? u"copied"_s
                                                                      : u"moved"_s;
        Uguale(esito, atteso);
        QTest::qWait(10);
    }

    // Rows of the itinerary, dragged to the upper half of another one; beyond the last, below all.
    void LasciaRighe(const QStringList& p) {
        auto& vista = Usabile<QTableView>(p[0]);
        const QModelIndex meta = vista.model()->index(p[3].toInt() - 1, 1);
        vista.scrollTo(meta);
        const QPoint dove = meta.isValid() ? vista.visualRect(meta).topLeft() + QPoint(5, 2) : QPoint(5, 100'000);
        const std::unique_ptr<QMimeData> dati(Trascinamento::NuoviDati({std::nullopt, {p[1].toInt(), p[2].toInt()}}));
        QDragEnterEvent entra(dove, Qt::MoveAction, dati.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(vista.viewport(), &entra);
        QDropEvent lascia(dove, Qt::MoveAction, dati.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(vista.viewport(), &lascia);
        QCoreApplication::processEvents();
    }

    // Takes hold of the right edge of a column's heading.
    void Trascina(const QString& tabella, int colonna, int larghezza) {
        QHeaderView& testata = *Usabile<QTableView>(tabella).horizontalHeader();
        QWidget& area = *testata.viewport();
        const int prima = testata.sectionSize(colonna - 1);
        const QPoint da(testata.sectionViewportPosition(colonna - 1) + prima - 2, area.height() / 2);
        const QPoint a = da + QPoint(larghezza - prima, 0);
        const auto mouse = [&](QEvent::Type tipo, const QPoint& dove, Qt::MouseButtons giu) {
            const auto bottone = tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent evento(tipo, dove, area.mapToGlobal(dove), bottone, giu, {});
            QApplication::sendEvent(&area, &evento);
        };
        mouse(QEvent::MouseMove, da, {});
        mouse(QEvent::MouseButtonPress, da, Qt::LeftButton);
        mouse(QEvent::MouseMove, a, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, a, {});
    }

    void Esegui(const QStringList& parole) {
        QStringList argomenti = parole;
        argomenti.removeAll(QString());
        QStringList attese;
        if (const auto freccia = argomenti.indexOf(u"=>"_s); freccia >= 0) {
            attese = argomenti.mid(freccia + 1);
            argomenti.resize(freccia);
        }
        const prova::Risposta risposta =
            prova::Programma::EseguiNudo(QStringList{u"--cartella"_s, cartella_.Path()} + argomenti);
        EXPECT_EQ(risposta.codice, 0) << risposta.errori.toStdString();
        for (const QString& attesa : attese) {
            EXPECT_TRUE(risposta.uscita.contains(attesa)) << risposta.uscita.toStdString();
        }
    }

    void FinisceLaSessione(const QString& puo) {
        if (puo == u"unasked"_s) return Q_EMIT qGuiApp->commitDataRequest(*qGuiApp->findChild<QSessionManager*>());
        QStringList detto;
        form_->FineSessione({true, [&] { detto += u"others"_s; }, [&] { detto += u"stay"_s; }});
        Uguale(detto.join(u' '), puo == u"yes"_s ? u"others"_s : u"others stay"_s);
    }

    void AltroProgramma(const QString& istruzione) {
        SQLite::Database(Archive::FilePath(cartella_.Path()).toStdString(), SQLite::OPEN_READWRITE)
            .exec(istruzione.toStdString());
    }

    void Annuncia(const QString& bottone, const QString& testo, const QString& titolo) {
        static const std::map<QString, QMessageBox::StandardButton> bottoni = {{u"Sì"_s, QMessageBox::Yes},
                                                                               {u"No"_s, QMessageBox::No},
                                                                               {u"Annulla"_s, QMessageBox::Cancel},
                                                                               {u"Altro"_s, QMessageBox::Discard},
                                                                               {u"Salva"_s, QMessageBox::Save},
                                                                               {u"Non salvare"_s, QMessageBox::Discard},
                                                                               {u"Sovrascrivi"_s, QMessageBox::Yes},
                                                                               {u"Ricarica"_s, QMessageBox::No},
                                                                               {u"Recupera"_s, QMessageBox::Yes},
                                                                               {u"Elimina"_s, QMessageBox::No},
                                                                               {u"Ok"_s, QMessageBox::Ok}};
        const QString preset = bottone.section(u'/', 1);
        Attendi({Attesa::Che::Box,
                 testo,
                 titolo.isEmpty() ? u"Cronovia"_s : titolo,
                 bottoni.at(bottone.section(u'/', 0, 0)),
                 {},
                 preset.isEmpty() ? QMessageBox::NoButton : bottoni.at(preset)});
    }

    // What can be chosen from a menu, with its keys.
    QString Voci(const QString& nome) {
        QStringList voci;
        for (const QAction* azione : Trova<QMenu>(nome).actions()) {
            if (!azione->isEnabled() || azione->isSeparator()) continue;
            const QString tasti = azione->shortcut().toString();
            voci += azione->text() + (tasti.isEmpty() ? tasti : u' ' + tasti);
        }
        return voci.join(u'|').remove(u'&');
    }

    QString Premibili(const QString& nome) {
        QStringList nomi;
        for (const QAbstractButton* pulsante : Trova(nome).findChildren<QAbstractButton*>()) {
            if (Sensibile(*pulsante) && pulsante->objectName().startsWith(u"cmd"_s))
                nomi += pulsante->objectName().mid(3);
        }
        nomi.sort();
        return nomi.join(u' ');
    }

    void AttesoFuoco(const QString& nome) {
        const QWidget* fuoco = QApplication::focusWidget();
        if (fuoco != nullptr && fuoco->objectName().startsWith(u"qt_"_s)) fuoco = fuoco->parentWidget();
        if (fuoco != nullptr && fuoco->objectName().isEmpty()) fuoco = fuoco->parentWidget();
        Uguale(fuoco == nullptr ? u"nothing"_s : fuoco->objectName(), nome);
    }

    void AttesoSuggerimento(const QStringList& p) {
        if (p[2].isEmpty()) return Uguale(ComeSiLegge(Trova(p[0]).toolTip()), p[1]);
        const QModelIndex cella = Modello(p[0]).index(p[1].toInt() - 1, p[2].toInt() - 1);
        Uguale(ComeSiLegge(cella.data(Qt::ToolTipRole).toString()), p[3]);
    }

    void AttesaRiga(const QStringList& p) {
        const QString celle = Celle(Modello(p[0]), p[1].toInt());
        EXPECT_TRUE(Corrispondono(celle, p[2])) << celle.toStdString();
    }

    void AttesaScelta(const QStringList& p) {
        QStringList righe;
        for (const QModelIndex& riga : Trova<QAbstractItemView>(p[0]).selectionModel()->selectedRows()) {
            righe += QString::number(riga.row() + 1);
        }
        righe.sort();
        Uguale(righe.join(u' '), p[1]);
    }

    template <typename Fatto>
    Azione Tutti(Fatto fatto, bool atteso) {
        return [this, fatto, atteso](const QStringList& nomi) {
            for (const QString& nome : nomi) {
                if (nome.isEmpty()) continue;
                EXPECT_EQ(fatto(Trova<QObject>(nome)), atteso) << nome.toStdString();
            }
        };
    }
    static bool Acceso(const QObject& oggetto) { return oggetto.property("enabled").toBool(); }
    static bool Visibile(const QObject& oggetto) { return oggetto.property("visible").toBool(); }

    // Verbs, the least number of their words, and what they do.
    const std::map<QString, std::pair<int, Azione>> verbi_ = {
        {u"open"_s, {0, [this](auto& p) { p[0].isEmpty() ? Apri() : Apri(QTime::fromString(p[0], u"HH:mm"_s)); }}},
        {u"close"_s, {0, [this](auto&) { form_->close(); }}},
        {u"signal-end"_s,
         {0,
          [this](auto&) {
              std::raise(SIGTERM);
              EXPECT_TRUE(QTest::qWaitFor([this] { return !form_->isVisible(); }, 5000));
          }}},
        {u"session-end"_s, {1, [this](auto& p) { FinisceLaSessione(p[0]); }}},
        {u"meanwhile-session-end"_s, {1, [this](auto& p) { Intanto([this, puo = p[0]] { FinisceLaSessione(puo); }); }}},
        {u"meanwhile"_s, {1, [this](auto& p) { Intanto([this, p] { FaiIntanto(p); }); }}},
        {u"exchange"_s,
         {3,
          [this](auto& p) {
              cartella_.Crea();
              prova::ScriviFile(p[0], prova::Sezione('\xFF', p[1].toLatin1() + '\n') +
                                          prova::Sezione('\xFE', p[2].toLatin1() + '\n'));
          }}},
        {u"come-back"_s,
         {0,
          [this](auto&) {
              QEvent torna(QEvent::WindowActivate);
              QApplication::sendEvent(form_.get(), &torna);
          }}},
        {u"run"_s, {1, [this](auto& p) { Esegui(p); }}},
        {u"write"_s,
         {2,
          [](auto& p) {
              QDir().mkpath(QFileInfo(p[0]).path());
              prova::ScriviFile(p[0], p[1].toUtf8());
          }}},
        {u"move"_s, {2, [](auto& p) { EXPECT_TRUE(QFile::rename(p[0], p[1])); }}},
        {u"sql"_s, {1, [this](auto& p) { AltroProgramma(p[0]); }}},
        {u"answer"_s, {2, [this](auto& p) { Annuncia(p[0], p[1], p[2]); }}},
        {u"message"_s, {1, [this](auto& p) { Annuncia(u"Ok"_s, p[0], p[1]); }}},
        {u"choose"_s,
         {0,
          [this](auto& p) {
              Attendi({Attesa::Che::File, u"a file dialog"_s, {}, {}, p[0]});
          }}},
        {u"dismiss"_s,
         {0,
          [this](auto&) {
              Attendi({Attesa::Che::Altro, u"a dialog"_s, {}, {}, {}});
          }}},
        {u"confirm"_s,
         {0,
          [this](auto&) {
              Attendi({Attesa::Che::Altro, u"a dialog"_s, {}, {}, u"ok"_s});
          }}},
        {u"spoil"_s, {2, [](auto& p) { prova::Guasta(p[0], p[1].toInt()); }}},
        {u"expect-seen"_s, {1, [this](auto& p) { Uguale(visto_, p[0]); }}},
        {u"type"_s, {2, [this](auto& p) { Scrivi(p[0], p[1]); }}},
        {u"keys"_s, {1, [this](auto& p) { Batti(p[0]); }}},
        {u"key"_s,
         {1,
          [this](auto& p) {
              for (const QString& tasto : p) {
                  if (!tasto.isEmpty()) Tasto(QKeySequence::fromString(tasto)[0]);
              }
          }}},
        {u"focus"_s, {1, [this](auto& p) { Usabile(p[0]).setFocus(); }}},
        {u"press"_s, {1, [this](auto& p) { Premi(p[0]); }}},
        {u"click"_s, {2, [this](auto& p) { Clicca(p[0], p[1]); }}},
        {u"hold"_s,
         {2,
          [this](auto& p) {
              Preme(p[0], p[1], [](QWidget* su, QPoint dove) { QTest::mousePress(su, Qt::LeftButton, {}, dove); });
          }}},
        {u"let-go"_s,
         {2,
          [this](auto& p) {
              Preme(p[0], p[1], [](QWidget* su, QPoint dove) { QTest::mouseRelease(su, Qt::LeftButton, {}, dove); });
          }}},
        {u"sign"_s,
         {2,
          [this](auto& p) {
              auto& vista = Usabile<QTableView>(p[0]);
              const QPoint inizio = vista.visualRect(vista.model()->index(p[1].toInt() - 1, 0)).topLeft();
              QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, inizio + QPoint(8, 8));
          }}},
        {u"bar"_s,
         {3,
          [this](auto& p) {
              SullaStriscia(
                  p, [](auto& vista, QPoint dove) { QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, dove); });
          }}},
        {u"expect-bar"_s,
         {4,
          [this](auto& p) {
              SullaStriscia(p, [&](auto& vista, QPoint dove) { Uguale(vista.Istruzione(dove), p[3]); });
          }}},
        {u"trigger"_s, {1, [this](auto& p) { Trova<QAction>(p[0]).trigger(); }}},
        {u"beside"_s, {1, [this](auto& p) { QTest::mouseClick(&Trova(p[0]), Qt::LeftButton); }}},
        {u"select"_s, {2, [this](auto& p) { Scegli(p[0], p[1]); }}},
        {u"drop-rows"_s, {4, [this](auto& p) { LasciaRighe(p); }}},
        {u"drop"_s, {3, [this](auto& p) { Lascia(p[0], p[1], p[2]); }}},
        {u"printers"_s, {0, [this](auto& p) { (stampanti_ = p).removeAll(QString()); }}},
        {u"resize"_s, {2, [this](auto& p) { form_->resize(p[0].toInt(), p[1].toInt()); }}},
        {u"drag"_s, {3, [this](auto& p) { Trascina(p[0], p[1].toInt(), p[2].toInt()); }}},
        {u"expect"_s, {2, [this](auto& p) { Uguale(Dice(p[0]), p[1]); }}},
        {u"expect-entries"_s,
         {2,
          [this](auto& p) {
              const auto& elenco = Trova<QComboBox>(p[0]);
              Uguale(elenco.itemText(0) + u" … "_s + elenco.itemText(elenco.count() - 1), p[1]);
          }}},
        {u"expect-row"_s, {3, [this](auto& p) { AttesaRiga(p); }}},
        {u"expect-column"_s, {3, [this](auto& p) { Uguale(Colonna(Modello(p[0]), p[1].toInt()), p[2]); }}},
        {u"expect-header"_s,
         {3, [this](auto& p) { Uguale(Modello(p[0]).headerData(p[1].toInt() - 1, Qt::Horizontal).toString(), p[2]); }}},
        {u"expect-header-tip"_s,
         {3,
          [this](auto& p) {
              const auto tip = Modello(p[0]).headerData(p[1].toInt() - 1, Qt::Horizontal, Qt::ToolTipRole);
              Uguale(ComeSiLegge(tip.toString()), p[2]);
          }}},
        {u"expect-selected"_s, {2, [this](auto& p) { AttesaScelta(p); }}},
        {u"expect-width"_s,
         {3, [this](auto& p) { EXPECT_EQ(Trova<QTableView>(p[0]).columnWidth(p[1].toInt() - 1), p[2].toInt()); }}},
        {u"expect-height"_s, {2, [this](auto& p) { EXPECT_EQ(Trova(p[0]).height(), p[1].toInt()); }}},
        {u"expect-fits"_s,
         {1,
          [this](auto& p) {
              const auto& tabella = Trova<QTableView>(p[0]);
              EXPECT_EQ(tabella.horizontalHeader()->length(), tabella.viewport()->width());
          }}},
        {u"expect-size"_s, {2, [this](auto& p) { EXPECT_EQ(form_->size(), QSize(p[0].toInt(), p[1].toInt())); }}},
        {u"expect-tip"_s, {2, [this](auto& p) { AttesoSuggerimento(p); }}},
        {u"expect-focus"_s, {1, [this](auto& p) { AttesoFuoco(p[0]); }}},
        {u"expect-enabled"_s, {2, [this](auto& p) { Uguale(Premibili(p[0]), p[1]); }}},
        {u"expect-menu"_s, {1, [this](auto& p) { Uguale(Voci(p[0]), p[1]); }}},
        {u"expect-on"_s, {1, Tutti(&Acceso, true)}},
        {u"expect-off"_s, {1, Tutti(&Acceso, false)}},
        {u"expect-visible"_s, {1, Tutti(&Visibile, true)}},
        {u"expect-hidden"_s, {1, Tutti(&Visibile, false)}},
        {u"expect-file"_s,
         {2, [](auto& p) { Uguale(QString::fromUtf8(prova::LeggiFile(p[0])).left(p[1].size()), p[1]); }}},
        {u"clipboard"_s, {1, [](auto& p) { QGuiApplication::clipboard()->setText(p[0]); }}},
        {u"expect-clipboard"_s,
         {2,
          [](auto& p) {
              const QMimeData* appunti = QGuiApplication::clipboard()->mimeData();
              EXPECT_TRUE((p[0] == u"html"_s ? appunti->html() : appunti->text()).contains(p[1]))
                  << appunti->text().left(400).toStdString();
          }}},
        {u"expect-clipboard-lines"_s,
         {1, [](auto& p) { EXPECT_EQ(QGuiApplication::clipboard()->text().count(u'\n'), p[0].toInt()); }}},
        {u"expect-no-file"_s, {1, [](auto& p) { EXPECT_FALSE(QFile::exists(p[0])); }}},
    };
    const QStringList annunci_ = {
        u"answer"_s, u"message"_s, u"choose"_s, u"dismiss"_s, u"confirm"_s, u"meanwhile"_s, u"meanwhile-session-end"_s};
};

std::vector<QString> File() {
    const QStringList nomi = QDir(kSessioni).entryList({u"*.txt"_s}, QDir::Files, QDir::Name);
    return {nomi.begin(), nomi.end()};
}

TEST_P(SessioniTest, GoesAsWritten) { Recita(kSessioni + GetParam()); }

INSTANTIATE_TEST_SUITE_P(Finestra, SessioniTest, testing::ValuesIn(File()), [](const auto& caso) {
    return QString(caso.param).remove(u".txt"_s).replace(u'-', u'_').toStdString();
});

}  // namespace
}  // namespace cronovia
