// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/griglia/delegato_griglia.h"

#include <QPainter>

#include "ui/comuni/colori.h"
#include "ui/griglia/modello_griglia.h"

namespace cronovia {

namespace {

constexpr int kMargineGiorno = 6;

// "Giorno 3" where there is room for it beside the whole name, else "3".
QString SegnoDelGiorno(const QString& giorno, const QString& nome, const QFontMetrics& misure, int larghezza) {
    const int resto = larghezza - misure.horizontalAdvance(nome) - 3 * kMargineGiorno;
    return misure.horizontalAdvance(giorno) < resto ? giorno : giorno.section(u' ', 1);
}

}  // namespace

// A long name gives way to the mark of the day.
void DelegatoGriglia::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QString giorno = index.data(kRuoloCambio).toString();
    if (giorno.isEmpty() || index.column() != static_cast<int>(Colonna::Tappa)) return;
    const QString segno = SegnoDelGiorno(giorno, option->text, option->fontMetrics, option->rect.width());
    const int posto = option->rect.width() - option->fontMetrics.horizontalAdvance(segno) - 3 * kMargineGiorno;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, posto);
}

void DelegatoGriglia::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    const QString giorno = index.data(kRuoloCambio).toString();
    if (giorno.isEmpty()) return;
    painter->save();
    const bool scelta = option.state.testFlag(QStyle::State_Selected);
    const QColor testo = option.palette.color(scelta ? QPalette::HighlightedText : QPalette::Text);
    const bool dentro = index.data(kRuoloCambioDentro).toBool();
    painter->setPen(QPen(testo, 1.4, dentro ? Qt::DashLine : Qt::SolidLine));
    painter->drawLine(option.rect.topLeft(), option.rect.topRight());
    if (index.column() == static_cast<int>(Colonna::Tappa)) {
        const QColor sfondo = option.palette.color(scelta ? QPalette::Highlight : QPalette::Base);
        const QFont carattere = index.data(Qt::FontRole).value<QFont>().resolve(option.font);
        painter->setFont(carattere);
        painter->setPen(Misto(testo, sfondo, scelta ? 0 : 25));
        painter->drawText(
            option.rect.adjusted(0, 0, -kMargineGiorno, 0), Qt::AlignRight | Qt::AlignVCenter,
            SegnoDelGiorno(giorno, index.data().toString(), QFontMetrics(carattere), option.rect.width()));
    }
    painter->restore();
}

}  // namespace cronovia
