// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/griglia/delegato_griglia.h"

#include <QPainter>

#include "ui/comuni/colori.h"
#include "ui/griglia/modello_griglia.h"

namespace cronovia {

namespace {

constexpr int kMargineGiorno = 6;

}  // namespace

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
        const QFontMetrics& misure = option.fontMetrics;
        const int resto = option.rect.width() - misure.horizontalAdvance(index.data().toString()) - 3 * kMargineGiorno;
        const QString numero = giorno.section(u' ', 1);
        const QString& nome = misure.horizontalAdvance(giorno) < resto ? giorno : numero;
        const QColor sfondo = option.palette.color(scelta ? QPalette::Highlight : QPalette::Base);
        painter->setPen(Misto(testo, sfondo, scelta ? 0 : 25));
        if (misure.horizontalAdvance(nome) < resto) {
            painter->drawText(option.rect.adjusted(0, 0, -kMargineGiorno, 0), Qt::AlignRight | Qt::AlignVCenter, nome);
        }
    }
    painter->restore();
}

}  // namespace cronovia
