#include "ui/griglia/vista_griglia.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <numeric>
#include <span>

#include "itinerary/elenco_guida.h"
#include "schedule/colonne.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRighePerPagina = 18;

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

}  // namespace

VistaGriglia::VistaGriglia(QWidget* parent) : QTableView(parent) {
    setObjectName(u"mfgTab"_s);
    setAccessibleName(u"Itinerario e cronovia"_s);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(24);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (!inAdattamento_) larghezzeProprie_ = true;
    });
}

void VistaGriglia::SelezionaRiga(int riga) {
    if (model() == nullptr || riga < 0 || riga >= model()->rowCount()) return;
    const QModelIndex index = model()->index(riga, 1);
    inSelezione_ = true;
    selectRow(riga);
    scrollTo(index);
    inSelezione_ = false;
}

void VistaGriglia::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!inSelezione_ && current.isValid()) Q_EMIT RigaCorrente(current.row());
}

void VistaGriglia::keyPressEvent(QKeyEvent* event) {
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
        default:
            break;
    }
    if (passo == 0 || !diTappe_) {
        QTableView::keyPressEvent(event);
        return;
    }
    Q_EMIT Spostamento(passo);
}

void VistaGriglia::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (!larghezzeProprie_) AdattaLarghezze();
}

// Shares out the width that there is, the widest column taking what is left; every one stays wide enough for what it
// usually holds.
void VistaGriglia::AdattaLarghezze() {
    if (model() == nullptr) return;
    inAdattamento_ = true;
    QFont grassetto = font();
    grassetto.setBold(true);
    const QFontMetrics misure(grassetto);
    const std::span<const Larghezza> colonne = diGuida_ ? std::span<const Larghezza>(kGuida) : kTappe;
    const int totale = std::accumulate(colonne.begin(), colonne.end(), 0,
                                       [](int somma, const Larghezza& l) { return somma + l.relativa; });
    const auto piuLarga = std::max_element(
        colonne.begin(), colonne.end(), [](const Larghezza& a, const Larghezza& b) { return a.relativa < b.relativa; });
    int resto = viewport()->width();
    const auto adatta = [&](std::span<const Larghezza>::iterator colonna, int parte) {
        const int minima = misure.horizontalAdvance(QString::fromUtf16(colonna->testo)) + 8;
        setColumnWidth(static_cast<int>(colonna - colonne.begin()), std::max(minima, parte));
        resto -= std::max(minima, parte);
    };
    for (auto colonna = colonne.begin(); colonna != colonne.end(); ++colonna) {
        if (colonna != piuLarga) adatta(colonna, colonna->relativa * viewport()->width() / totale);
    }
    adatta(piuLarga, resto);
    inAdattamento_ = false;
}

// A view leaves the selection of the model that it had before behind.
void VistaGriglia::Scambia(QAbstractItemModel& modello) {
    const QItemSelectionModel* selezione = selectionModel();
    inSelezione_ = true;
    clearSpans();
    setModel(&modello);
    inSelezione_ = false;
    delete selezione;
}

void VistaGriglia::MostraGuida(QAbstractItemModel& guida) {
    larghezzeTappe_ = Larghezze();
    diGuida_ = true;
    diTappe_ = false;
    Scambia(guida);
    larghezzeProprie_ = false;
    AdattaLarghezze();
}

void VistaGriglia::MostraTappe(QAbstractItemModel& tappe) {
    if (!diGuida_) return;
    diGuida_ = false;
    Scambia(tappe);
    RipristinaLarghezze(larghezzeTappe_);
    if (!larghezzeProprie_) AdattaLarghezze();
}

QByteArray VistaGriglia::Larghezze() const {
    if (diGuida_) return larghezzeTappe_;
    return larghezzeProprie_ ? horizontalHeader()->saveState() : QByteArray();
}

void VistaGriglia::RipristinaLarghezze(const QByteArray& larghezze) {
    inAdattamento_ = true;
    larghezzeProprie_ = !larghezze.isEmpty() && horizontalHeader()->restoreState(larghezze);
    inAdattamento_ = false;
}

}  // namespace cronovia
