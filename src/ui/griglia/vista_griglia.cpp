// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/griglia/vista_griglia.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>
#include <utility>

#include "itinerary/elenco_guida.h"
#include "schedule/colonne.h"
#include "ui/comuni/controlli.h"
#include "ui/griglia/delegato_griglia.h"
#include "ui/griglia/modello_griglia.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRighePerPagina = 18;
constexpr int kAriaDelSegno = 8;  // around it, in pixels
constexpr int kTutteLeRighe = 1'000'000;

// A column's relative width, and the widest text that it usually holds.
struct Larghezza {
    int relativa;
    const char16_t* testo;
};

constexpr std::array<Larghezza, kColonne> kTappe = {{{560, u"9999 ic"},
                                                     {2650, u"NOME DI LOCALITÀ LUNGO"},
                                                     {980, u"SS 113 A19"},
                                                     {500, u"9.999"},
                                                     {330, u"Ts"},
                                                     {620, u"99.999"},
                                                     {580, u"00:00"},
                                                     {860, u"*00:00:00"},
                                                     {800, u"00:00:00"},
                                                     {400, u"Mmm"},
                                                     {950, u"00/00/0000"},
                                                     {650, u"* 00:00"},
                                                     {1300, u"Pranzo + Riposo"},
                                                     {1150, u">00/00-00:00"}}};

constexpr std::array<Larghezza, kColonneGuida> kGuida = {{{560, u"99999 ic"},
                                                          {2300, u"NOME DI LOCALITÀ LUNGO"},
                                                          {850, u"00:00:00"},
                                                          {5400, u"Descrizione segnalazione"},
                                                          {950, u"Tempo"},
                                                          {2100, u"Interessante"}}};

int Relativa(std::span<const Larghezza> colonne, int i) { return colonne[static_cast<std::size_t>(i)].relativa; }

}  // namespace

VistaGriglia::VistaGriglia(QWidget* parent) : QTableView(parent) {
    setObjectName(u"mfgTab"_s);
    setAccessibleName(u"Itinerario e cronovia"_s);
    DisponiRighe(*this);
    setSelectionMode(SingleSelection);
    setItemDelegate(new DelegatoGriglia(this));
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setMinimumSectionSize(24);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int colonna, int /*prima*/, int larghezza) {
        if (!inAdattamento_) Proprie()[colonna] = larghezza;
    });
    auto* azzera = new QAction(u"Larghezze iniziali delle colonne"_s, this);
    azzera->setObjectName(u"azzeraColonne"_s);
    connect(azzera, &QAction::triggered, this, &VistaGriglia::AzzeraLarghezze);
    addAction(azzera);
    horizontalHeader()->addAction(azzera);
    horizontalHeader()->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void VistaGriglia::SelezionaRiga(int riga) {
    if (model() == nullptr || riga < 0 || riga >= model()->rowCount()) return;
    const QModelIndex index = model()->index(riga, 1);
    inSelezione_ = true;
    selectRow(riga);
    scrollTo(index);
    inSelezione_ = false;
}

void VistaGriglia::SelezionaRighe(int prima, int ultima, int corrente) {
    if (prima == ultima || model() == nullptr || ultima >= model()->rowCount()) return SelezionaRiga(corrente);
    inSelezione_ = true;
    const QModelIndex index = model()->index(corrente, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    selectionModel()->select({model()->index(prima, 0), model()->index(ultima, model()->columnCount() - 1)},
                             QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
    inSelezione_ = false;
}

// The line of a day is wider than the view: nothing is gained by going aside for it.
void VistaGriglia::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const int prima = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    if (index.data(kRuoloLinea).toBool()) horizontalScrollBar()->setValue(prima);
}

void VistaGriglia::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!inSelezione_ && current.isValid()) Q_EMIT RigaCorrente(current.row());
}

// As the branches of a tree: closed with Left or "-", opened with Right or "+", one or the other with Enter.
bool VistaGriglia::PiegaConTasto(const QKeyEvent& event) {
    if (!ConGiornate() || !currentIndex().isValid() || (event.modifiers() & ~Qt::KeypadModifier) != 0) return false;
    const bool linea = currentIndex().data(kRuoloLinea).toBool();
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Minus:
            Q_EMIT Piega(currentIndex().row(), true);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Plus:
            if (linea) Q_EMIT Piega(currentIndex().row(), false);
            return linea;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (linea) Q_EMIT Piega(currentIndex().row(), std::nullopt);
            return linea;
        default:
            return false;
    }
}

// A day goes by its line alone, not by one of its rows: there the key is no command's.
bool VistaGriglia::event(QEvent* event) {
    const bool canc =
        event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    if (!canc || !ConGiornate() || currentIndex().data(kRuoloLinea).toBool()) return QTableView::event(event);
    event->accept();
    return true;
}

// The sign stands at the beginning of the line.
void VistaGriglia::mousePressEvent(QMouseEvent* event) {
    attesa_ = nullptr;
    const QModelIndex index = indexAt(event->pos());
    if (righe_ == Righe::Tappe && index.isValid() && event->button() == Qt::LeftButton &&
        event->modifiers() == Qt::ShiftModifier) {
        Q_EMIT SceltaFino(index.row());
        return;
    }
    mouseTiene_ = true;
    QTableView::mousePressEvent(event);
    if (!index.data(kRuoloLinea).toBool() || event->button() != Qt::LeftButton) return;
    if (event->pos().x() < visualRect(index).left() + iconSize().width() + kAriaDelSegno)
        Q_EMIT Piega(index.row(), std::nullopt);
}

void VistaGriglia::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    mouseTiene_ = false;
    if (attesa_) QTimer::singleShot(0, this, &VistaGriglia::FaLAttesa);
}

void VistaGriglia::DopoIlMouse(std::function<void()> azione) {
    attesa_ = std::move(azione);
    if (!mouseTiene_) QTimer::singleShot(0, this, &VistaGriglia::FaLAttesa);
}

void VistaGriglia::FaLAttesa() {
    if (const auto azione = std::exchange(attesa_, nullptr)) azione();
}

void VistaGriglia::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (!index.data(kRuoloLinea).toBool()) return;
    Q_EMIT Piega(index.row(), std::nullopt);
}

void VistaGriglia::keyPressEvent(QKeyEvent* event) {
    if (PiegaConTasto(*event)) return event->accept();
    if (event->modifiers() == Qt::AltModifier) return event->ignore();  // of commands
    int passo = 0;
    switch (event->key()) {
        case Qt::Key_Up:
            passo = -1;
            break;
        case Qt::Key_Down:
            passo = 1;
            break;
        case Qt::Key_PageUp:
            passo = -kRighePerPagina;
            break;
        case Qt::Key_PageDown:
            passo = kRighePerPagina;
            break;
        case Qt::Key_Home:
            passo = -kTutteLeRighe;
            break;
        case Qt::Key_End:
            passo = kTutteLeRighe;
            break;
        default:
            break;
    }
    if (std::abs(passo) == kTutteLeRighe && righe_ != Righe::Tappe) {
        setCurrentIndex(model()->index(passo < 0 ? 0 : model()->rowCount() - 1, 0));
        return;
    }
    if (passo == 0 || righe_ != Righe::Tappe) {
        QTableView::keyPressEvent(event);
        return;
    }
    if (event->modifiers() == Qt::ShiftModifier) {
        Q_EMIT Estensione(passo);
    } else {
        Q_EMIT Spostamento(passo);
    }
}

void VistaGriglia::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    AdattaLarghezze();
}

// Shares out the width that there is, the widest column taking what is left; every one stays wide enough for what it
// usually holds, or as wide as the person made it. The widest one gives a third of that where all fit then.
void VistaGriglia::AdattaLarghezze() {
    if (model() == nullptr) return;
    inAdattamento_ = true;
    QFont grassetto = font();
    grassetto.setBold(true);
    const QFontMetrics misure(grassetto);
    const std::span<const Larghezza> colonne = righe_ == Righe::Guida ? std::span<const Larghezza>(kGuida) : kTappe;
    int totale = 0;
    int resto = viewport()->width();
    int piuLarga = -1;
    for (int i = 0; i < static_cast<int>(colonne.size()); ++i) {
        if (isColumnHidden(i)) continue;
        if (const auto propria = Proprie().find(i); propria != Proprie().end()) {
            setColumnWidth(i, propria->second);
            resto -= propria->second;
            continue;
        }
        totale += Relativa(colonne, i);
        if (piuLarga < 0 || Relativa(colonne, i) > Relativa(colonne, piuLarga)) piuLarga = i;
    }
    const int comune = resto;
    const auto usuale = [&](int i) {
        return misure.horizontalAdvance(QString::fromUtf16(colonne[static_cast<std::size_t>(i)].testo)) + 8;
    };
    for (int i = 0; i < static_cast<int>(colonne.size()); ++i) {
        if (i == piuLarga || isColumnHidden(i) || Proprie().contains(i)) continue;
        const int larga = std::max(usuale(i), Relativa(colonne, i) * comune / totale);
        setColumnWidth(i, larga);
        resto -= larga;
    }
    if (piuLarga >= 0) setColumnWidth(piuLarga, resto >= usuale(piuLarga) * 2 / 3 ? resto : usuale(piuLarga));
    inAdattamento_ = false;
}

void VistaGriglia::AzzeraLarghezze() {
    Proprie().clear();
    AdattaLarghezze();
}

void VistaGriglia::NascondiColonna(int colonna, bool nascosta) {
    if (isColumnHidden(colonna) == nascosta) return;
    inAdattamento_ = true;
    setColumnHidden(colonna, nascosta);
    AdattaLarghezze();
}

// A view leaves the selection of the model that it had before behind.
void VistaGriglia::Scambia(QAbstractItemModel& modello) {
    const QItemSelectionModel* selezione = selectionModel();
    inSelezione_ = true;
    inAdattamento_ = true;
    clearSpans();
    setModel(&modello);
    for (int i = 0; i < modello.columnCount(); ++i) setColumnHidden(i, false);
    inAdattamento_ = false;
    inSelezione_ = false;
    delete selezione;
}

void VistaGriglia::Mostra(Righe righe, QAbstractItemModel& modello) {
    righe_ = righe;
    if (model() == &modello) return;
    if (righe == Righe::Guida) proprie_[1].clear();
    Scambia(modello);
    AdattaLarghezze();
}

// "column:width" each, blanks between.
QByteArray VistaGriglia::Larghezze() const {
    QByteArrayList testi;
    for (const auto& [colonna, larghezza] : proprie_[0]) {
        testi += QByteArray::number(colonna) + ':' + QByteArray::number(larghezza);
    }
    return testi.join(' ');
}

void VistaGriglia::RipristinaLarghezze(const QByteArray& larghezze) {
    proprie_[0].clear();
    for (const QByteArray& testo : larghezze.split(' ')) {
        const QByteArrayList parti = testo.split(':');
        const int colonna = parti.value(0).toInt();
        const int larghezza = parti.value(1).toInt();
        if (colonna >= 0 && colonna < static_cast<int>(kColonne) && larghezza > 0) proprie_[0][colonna] = larghezza;
    }
    AdattaLarghezze();
}

}  // namespace cronovia
