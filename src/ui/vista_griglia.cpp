#include "ui/vista_griglia.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <numeric>

#include "schedule/colonne.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRighePerPagina = 18;

// Relative widths; the wider the text, the more.
constexpr std::array<int, kColonne> kLarghezze = {560, 2650, 980, 500, 330, 620,  580,
                                                  860, 800,  400, 950, 650, 1300, 1150};

constexpr std::array<const char16_t*, kColonne> kTestiPiuLarghi = {u"9999 ic",
                                                                   u"NOME DI LOCALITÀ LUNGO",
                                                                   u"SS 113 A19",
                                                                   u"9.999",
                                                                   u"Ts",
                                                                   u"99.999",
                                                                   u"00:00",
                                                                   u"*00:00:00",
                                                                   u"00:00:00",
                                                                   u"Mmm",
                                                                   u"00/00/0000",
                                                                   u"* 00:00",
                                                                   u"Pranzo + Riposo",
                                                                   u">00/00-00:00"};

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

// Shares out the width that there is; every column stays wide enough for what it usually holds.
void VistaGriglia::AdattaLarghezze() {
    if (model() == nullptr) return;
    inAdattamento_ = true;
    QFont grassetto = font();
    grassetto.setBold(true);
    const QFontMetrics misure(grassetto);
    const int totale = std::accumulate(kLarghezze.begin(), kLarghezze.end(), 0);
    for (std::size_t i = 0; i < kColonne; ++i) {
        const int minima = misure.horizontalAdvance(QString::fromUtf16(kTestiPiuLarghi[i])) + 8;
        const int parte = kLarghezze[i] * viewport()->width() / totale;
        setColumnWidth(static_cast<int>(i), std::max(minima, parte));
    }
    inAdattamento_ = false;
}

QByteArray VistaGriglia::Larghezze() const {
    return larghezzeProprie_ ? horizontalHeader()->saveState() : QByteArray();
}

void VistaGriglia::RipristinaLarghezze(const QByteArray& larghezze) {
    inAdattamento_ = true;
    larghezzeProprie_ = !larghezze.isEmpty() && horizontalHeader()->restoreState(larghezze);
    inAdattamento_ = false;
}

}  // namespace cronovia
