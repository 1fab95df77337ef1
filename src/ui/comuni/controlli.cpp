// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/controlli.h"

#include <QClipboard>
#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLayout>
#include <QMimeData>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QTableView>
#include <algorithm>

#include "calendar/testo.h"
#include "ui/comuni/colori.h"
#include "ui/comuni/elenco_numeri.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kNonBlocca = "nonBlocca";
constexpr int kAria = 2;  // of a list, in pixels

void Presenta(QWidget& controllo, const QString& nome, const QString& istruzione) {
    controllo.setObjectName(nome);
    MostraIstruzione(controllo, istruzione);
    controllo.setAccessibleName(istruzione);
}

}  // namespace

QString NomeDiSerie(const QString& nome, int indice) { return nome + u'_' + QString::number(indice); }

QStringList Numeri(int da, int a, int cifre, int passo) {
    QStringList numeri;
    for (int n = da; n <= a; n += passo) numeri += cifre == 0 ? QString::number(n) : Zero(n, cifre);
    return numeri;
}

QStringList Quarti() { return Numeri(0, 45, 2, 15); }

namespace {

// The wheel scrolls; it changes a list only once that was gone into.
class SenzaRotella : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() != QEvent::Wheel || qobject_cast<QWidget*>(oggetto)->hasFocus()) return false;
        evento->ignore();
        return true;
    }
};

// What reads the screen out takes what is chosen in a list for its name, and what it is for from a label: one that is
// not seen where there is none.
class EtichettaLetta : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::Show) Completa(*qobject_cast<QWidget*>(oggetto));
        return false;
    }

  private:
    static void Completa(QWidget& controllo) {
        const auto vicine = controllo.parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
        const auto sua = [&](const QLabel* etichetta) { return etichetta->buddy() == &controllo; };
        if (std::any_of(vicine.begin(), vicine.end(), sua)) return;
        EtichettaNascosta(controllo.accessibleName(), controllo);
    }
};

// A letter with Alt is a command's; where that is not to be had now, the letter would be typed over what is selected.
class SenzaAlt : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress) return false;
        const auto& tasto = static_cast<const QKeyEvent&>(*evento);
        if (tasto.modifiers() != Qt::AltModifier || tasto.text().isEmpty()) return false;
        evento->ignore();
        return true;
    }
};

// Some desktops have boxes delete with keys that are commands here; whoever wants a command loses no text.
bool CancellaPerAbitudine(const QKeyEvent& tasto) {
    return tasto.matches(QKeySequence::DeleteCompleteLine) ||
           (tasto.matches(QKeySequence::Delete) && tasto.modifiers() == Qt::ControlModifier);
}

// A box would keep the keys of undo to itself, even with nothing of its own to undo.
class AnnullaDellaFinestra : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() != QEvent::ShortcutOverride && evento->type() != QEvent::KeyPress) return false;
        const auto& casella = *qobject_cast<QLineEdit*>(oggetto);
        const auto& tasto = static_cast<const QKeyEvent&>(*evento);
        if (CancellaPerAbitudine(tasto)) {
            evento->ignore();
            return true;
        }
        if (evento->type() == QEvent::KeyPress) return false;
        const bool annulla = tasto.matches(QKeySequence::Undo) && !casella.isUndoAvailable();
        const bool ripeti = tasto.matches(QKeySequence::Redo) && !casella.isRedoAvailable();
        if (annulla || ripeti) evento->ignore();
        return annulla || ripeti;
    }
};

// Rows on the clipboard are no text for one box: their command takes them.
class RigheAlComando : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
        if (evento->type() != QEvent::ShortcutOverride && evento->type() != QEvent::KeyPress) return false;
        if (!static_cast<const QKeyEvent&>(*evento).matches(QKeySequence::Paste) || !Righe()) return false;
        evento->ignore();
        return true;
    }

  private:
    static bool Righe() {
        const QString testo = QGuiApplication::clipboard()->text();
        return testo.contains(u'\t') || testo.trimmed().contains(u'\n');
    }
};

// A box deletes what is selected before it refuses a key; here the key is refused first.
class RifiutaTasti : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress) return false;
        const auto& casella = *qobject_cast<QLineEdit*>(oggetto);
        const auto& tasto = static_cast<const QKeyEvent&>(*evento);
        if (tasto.modifiers().testFlag(Qt::ControlModifier)) return false;  // selects, copies, types nothing
        const QString battuto = tasto.text();
        if (battuto.isEmpty() || !battuto.front().isPrint() || casella.validator() == nullptr) return false;
        QString testo = casella.text();
        int cursore = casella.hasSelectedText() ? casella.selectionStart() : casella.cursorPosition();
        testo.replace(cursore, casella.hasSelectedText() ? casella.selectionLength() : 0, battuto);
        return casella.validator()->validate(testo, cursore) == QValidator::Invalid;
    }
};

class CasellaLunga : public QPlainTextEdit {
  protected:
    void keyPressEvent(QKeyEvent* tasto) override {
        if (tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter) return tasto->ignore();
        QPlainTextEdit::keyPressEvent(tasto);
    }
    void insertFromMimeData(const QMimeData* dati) override { insertPlainText(dati->text().simplified()); }
};

}  // namespace

QComboBox* NuovoElenco(const QString& nome, const QStringList& voci, const QString& istruzione) {
    auto* elenco = new ElencoNumeri;
    Presenta(*elenco, nome, istruzione);
    elenco->addItems(voci);
    elenco->setFocusPolicy(Qt::StrongFocus);
    elenco->installEventFilter(new SenzaRotella(elenco));
    elenco->installEventFilter(new EtichettaLetta(elenco));
    elenco->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    elenco->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    // In a small window it gives up the air around its text.
    elenco->setMinimumWidth(elenco->sizeHint().width() - kAria);
    return elenco;
}

void LasciaScrivereCifre(QComboBox& elenco, int cifre) {
    elenco.setEditable(true);
    elenco.setCompleter(nullptr);
    elenco.setInsertPolicy(QComboBox::NoInsert);
    elenco.setValidator(new QRegularExpressionValidator(QRegularExpression(u"\\d{0,%1}"_s.arg(cifre)), &elenco));
    elenco.lineEdit()->installEventFilter(new RifiutaTasti(&elenco));
    elenco.lineEdit()->setAccessibleName(elenco.accessibleName());
}

void MostraVoce(QComboBox& elenco, const QString& testo) {
    constexpr int kOspite = Qt::UserRole + 1;
    const QSignalBlocker muto(elenco);
    for (int i = elenco.count() - 1; i >= 0; --i) {
        if (elenco.itemData(i, kOspite).toBool() && elenco.itemText(i) != testo) elenco.removeItem(i);
    }
    if (elenco.findText(testo) < 0) {
        int indice = 0;
        while (indice < elenco.count() && elenco.itemText(indice).toInt() < testo.toInt()) ++indice;
        elenco.insertItem(indice, testo);
        elenco.setItemData(indice, true, kOspite);
    }
    elenco.setCurrentIndex(elenco.findText(testo));
    if (elenco.isEditable()) elenco.setEditText(testo);
}

QLineEdit* NuovaCasella(const QString& nome, int larghezzaMassima, const QString& istruzione) {
    auto* casella = new QLineEdit;
    Presenta(*casella, nome, istruzione);
    casella->setMaxLength(larghezzaMassima);
    casella->installEventFilter(new SenzaAlt(casella));
    return casella;
}

QPlainTextEdit* NuovaCasellaLunga(const QString& nome, int righe, const QString& istruzione) {
    auto* casella = new CasellaLunga;
    Presenta(*casella, nome, istruzione);
    casella->setTabChangesFocus(true);
    casella->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int bordo = 2 * (casella->frameWidth() + static_cast<int>(casella->document()->documentMargin()));
    casella->setFixedHeight(righe * casella->fontMetrics().lineSpacing() + bordo);
    casella->installEventFilter(new SenzaAlt(casella));
    return casella;
}

void LasciaAnnullare(QLineEdit& casella) { casella.installEventFilter(new AnnullaDellaFinestra(&casella)); }

void LasciaIncollareRighe(QLineEdit& casella) { casella.installEventFilter(new RigheAlComando(&casella)); }

QLineEdit* NuovoRisultato(const QString& nome, int cifre, const QString& istruzione) {
    QLineEdit* casella = NuovaCasella(nome, 40, istruzione);
    casella->setReadOnly(true);
    casella->setFocusPolicy(Qt::NoFocus);
    casella->setFrame(false);
    casella->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ComeIntorno(*casella);
    LarghezzaPer(*casella, cifre, kSpazio);
    return casella;
}

QPushButton* NuovoPulsante(const DescrizioneComando& comando) {
    QPushButton* pulsante = NuovoPulsante(QString::fromUtf16(comando.nome), QString::fromUtf16(comando.scritta),
                                          QString::fromUtf16(comando.istruzione));
    LasciaAbilitato(*pulsante);
    return pulsante;
}

QPushButton* NuovoPulsante(const QString& nome, const QString& scritta, const QString& istruzione) {
    auto* pulsante = new QPushButton(scritta);
    Presenta(*pulsante, nome, istruzione);
    pulsante->setAccessibleName({});
    return pulsante;
}

void DisponiRighe(QTableView& tabella) {
    tabella.setSelectionBehavior(QTableView::SelectRows);
    tabella.setAlternatingRowColors(true);
    tabella.setShowGrid(false);
    tabella.setWordWrap(false);
    tabella.setTabKeyNavigation(false);
    tabella.verticalHeader()->hide();
    tabella.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabella.verticalHeader()->setDefaultSectionSize(tabella.fontMetrics().height() + 6);
    tabella.horizontalHeader()->setHighlightSections(false);
    const int segno = tabella.fontMetrics().height();  // signs grow with the texts
    tabella.setIconSize({segno, segno});
}

QLabel* NuovaEtichetta(const QString& testo, QWidget& controllo) {
    QLabel* etichetta = NuovaScritta(testo);
    etichetta->setBuddy(&controllo);
    return etichetta;
}

void EtichettaNascosta(const QString& testo, QWidget& controllo) {
    QLabel* etichetta = NuovaEtichetta(testo, controllo);
    etichetta->setParent(controllo.parentWidget());
    etichetta->hide();
}

void LasciaAbilitato(QWidget& controllo) { controllo.setProperty(kNonBlocca, true); }

void Blocca(const QWidget& riquadro, bool bloccato) {
    for (QWidget* controllo : riquadro.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!controllo->property(kNonBlocca).toBool()) controllo->setEnabled(!bloccato);
    }
}

void LarghezzaPer(QWidget& controllo, int caratteri, int bordo) {
    controllo.setFixedWidth(controllo.fontMetrics().horizontalAdvance(QString(caratteri, u'0')) + bordo);
}

}  // namespace cronovia
