// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/giornate/vista_giornate.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>

#include "ui/comuni/testo_mostrato.h"
#include "ui/comuni/trascinamento.h"
#include "ui/giornate/striscia_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargine = 4;
constexpr int kOreFraNumeri = 3;
constexpr int kGiorniProposti = 4;

int AltezzaStriscia(const QWidget& vista) { return vista.fontMetrics().height() + 6; }

int LarghezzaEtichetta(const QWidget& vista) {
    QFont grassetto = vista.font();
    grassetto.setBold(true);
    return QFontMetrics(grassetto).horizontalAdvance(u"Giorno 999 · mer 28/06 · 999 km"_s) + 2 * kMargine;
}

// A narrow panel has the strip below the words.
bool Stretta(const QWidget& vista, int larghezza) { return larghezza < 3 * LarghezzaEtichetta(vista); }

class Delegato : public QStyledItemDelegate {
  public:
    Delegato(const ModelloGiornate& modello, VistaGiornate& vista)
        : QStyledItemDelegate(&vista), modello_(modello), vista_(vista) {}

    QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override {
        const int larga = vista_.viewport()->width();
        const int parole = Stretta(vista_, larga) ? vista_.fontMetrics().height() : 0;
        return {2 * kMargine, AltezzaStriscia(vista_) + parole + 2 * kMargine};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        painter->save();
        const bool scelta = option.state.testFlag(QStyle::State_Selected);
        const QPalette::ColorGroup gruppo = vista_.hasFocus() ? QPalette::Active : QPalette::Inactive;
        if (scelta) painter->fillRect(option.rect, option.palette.brush(gruppo, QPalette::Highlight));
        QFont grassetto = option.font;
        grassetto.setBold(true);
        painter->setFont(grassetto);
        painter->setPen(option.palette.color(gruppo, scelta ? QPalette::HighlightedText : QPalette::Text));
        const QRect striscia = vista_.Striscia(option.rect);
        const bool stretta = Stretta(vista_, option.rect.width());
        const QRect parole = stretta ? QRect(option.rect.adjusted(kMargine, kMargine, -kMargine, 0).topLeft(),
                                             QSize(striscia.width(), option.fontMetrics.height()))
                                     : QRect(option.rect.left() + kMargine, option.rect.top(),
                                             striscia.left() - option.rect.left() - 2 * kMargine, option.rect.height());
        const QString& testo = stretta ? index.data().toString() : modello_.Etichetta(index.row());
        painter->drawText(parole, Qt::AlignLeft | Qt::AlignVCenter,
                          QFontMetrics(grassetto).elidedText(testo, Qt::ElideRight, parole.width()));
        painter->setFont(option.font);
        DipingiStriscia(*painter, striscia, modello_.Striscia(index.row()),
                        {modello_.Visite(), vista_.RigaSegnata(), option.palette});
        painter->restore();
    }

  private:
    const ModelloGiornate& modello_;
    VistaGiornate& vista_;
};

// The numbers of the hours, above the strips.
class Scala : public QWidget {
  public:
    explicit Scala(VistaGiornate& vista) : QWidget(&vista), vista_(vista) {}

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QRect riga(0, 0, vista_.viewport()->width(), height());
        const QRect striscia = vista_.Striscia(riga);
        for (int ora = 0; ora <= 24; ora += kOreFraNumeri) {
            QRectF posto(0, 0, 30, height());
            posto.moveCenter({AscissaDellOra(striscia, Centesimi(ora * 100)), height() / 2.0});
            posto.moveLeft(std::min(posto.left(), riga.width() - posto.width()));
            const Qt::Alignment dove = ora == 24 ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter;
            painter.drawText(posto, dove, QString::number(ora));
        }
    }

  private:
    VistaGiornate& vista_;
};

}  // namespace

VistaGiornate::VistaGiornate(ModelloGiornate& modello, QWidget* parent)
    : QListView(parent), modello_(modello), scala_(new Scala(*this)) {
    setObjectName(u"giornate"_s);
    setAccessibleName(u"Giornate del viaggio"_s);
    setUniformItemSizes(true);
    setResizeMode(Adjust);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setMouseTracking(true);
    setItemDelegate(new Delegato(modello_, *this));
    setModel(&modello_);
    auto* trascina = new Trascinamento(*this, [this](const QPoint& punto) {
        const QModelIndex index = indexAt(punto);
        return index.isValid() ? std::optional(Trascinata{index.row(), {}}) : std::nullopt;
    });
    connect(trascina, &Trascinamento::Lasciata, this, [this](const Trascinata& trascinata, int prima) {
        if (trascinata.giornata) Q_EMIT GiornataLasciata(*trascinata.giornata, prima);
    });
}

void VistaGiornate::contextMenuEvent(QContextMenuEvent* event) {
    if (!currentIndex().isValid()) return;
    Q_EMIT MenuChiesto();
    QMenu::exec(actions(), event->globalPos(), nullptr, this);
}

// A few days, so that a small window keeps room for its rows.
QSize VistaGiornate::sizeHint() const {
    const int giorno = AltezzaStriscia(*this) + 2 * kMargine;
    return {QListView::sizeHint().width(), fontMetrics().height() + 6 + kGiorniProposti * giorno};
}

QRect VistaGiornate::Striscia(const QRect& riga) const {
    const int alta = AltezzaStriscia(*this);
    const int da = Stretta(*this, riga.width()) ? kMargine : LarghezzaEtichetta(*this);
    return {riga.left() + da, riga.bottom() - kMargine - alta + 1, std::max(24, riga.width() - da - 2 * kMargine),
            alta};
}

void VistaGiornate::Segna(int riga) {
    if (riga == segnata_) return;
    segnata_ = riga;
    viewport()->update();
}

void VistaGiornate::VaiAllaGiornata(int giornata) {
    if (currentIndex().row() == giornata) return;
    inSelezione_ = true;
    setCurrentIndex(modello_.index(giornata));
    inSelezione_ = false;
}

// The keys of pages go by days, as the arrows do.
QModelIndex VistaGiornate::moveCursor(CursorAction azione, Qt::KeyboardModifiers modifiers) {
    if (azione == MovePageUp) azione = MoveUp;
    if (azione == MovePageDown) azione = MoveDown;
    return QListView::moveCursor(azione, modifiers);
}

void VistaGiornate::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!inSelezione_ && current.isValid()) Q_EMIT GiornataScelta(current.row());
}

void VistaGiornate::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    const PezzoDelGiorno* pezzo = event->button() == Qt::LeftButton ? PezzoIn(event->pos()) : nullptr;
    if (pezzo != nullptr && pezzo->riga != PezzoDelGiorno::kSenzaRiga) Q_EMIT RigaScelta(pezzo->riga);
}

const PezzoDelGiorno* VistaGiornate::PezzoIn(const QPoint& punto) const {
    const QModelIndex index = indexAt(punto);
    if (!index.isValid()) return nullptr;
    return cronovia::PezzoIn(Striscia(visualRect(index)), modello_.Striscia(index.row()), punto);
}

QString VistaGiornate::Istruzione(const QPoint& punto) const {
    const PezzoDelGiorno* pezzo = PezzoIn(punto);
    return pezzo == nullptr ? QString() : modello_.TestoDel(*pezzo);
}

bool VistaGiornate::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
    const auto& aiuto = *static_cast<QHelpEvent*>(event);
    const QString testo = Istruzione(aiuto.pos());
    if (testo.isEmpty()) return QListView::viewportEvent(event);
    QToolTip::showText(aiuto.globalPos(), TestoPiano(testo), viewport());
    return true;
}

void VistaGiornate::updateGeometries() {
    const int alta = fontMetrics().height() + 2;
    if (viewportMargins().top() != alta) setViewportMargins(0, alta, 0, 0);
    QListView::updateGeometries();
    scala_->setGeometry(viewport()->x(), viewport()->y() - alta, viewport()->width(), alta);
}

void VistaGiornate::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) scheduleDelayedItemsLayout();
}

}  // namespace cronovia
