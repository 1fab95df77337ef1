// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/guida/modello_guida.h"

#include <QFont>
#include <algorithm>

#include "calendar/testo.h"
#include "ui/comuni/lettura.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/griglia/icone_righe.h"
#include "ui/griglia/modello_griglia.h"

namespace cronovia {

namespace {

Qt::Alignment AllineamentoColonna(ColonnaGuida colonna) {
    if (colonna == ColonnaGuida::Numero) return Qt::AlignRight | Qt::AlignVCenter;
    const bool centrata = colonna == ColonnaGuida::Sosta || colonna == ColonnaGuida::Tempo;
    return centrata ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

bool ModelloGuida::Mostra(const TavoloGuida::Righe& elenco, int righeMinime) {
    if (elenco == elenco_) return false;
    beginResetModel();
    elenco_ = elenco;
    righeMinime_ = righeMinime;
    endResetModel();
    return true;
}

int ModelloGuida::rowCount(const QModelIndex& parent) const {
    if (parent.isValid() || !elenco_) return 0;
    return std::max(static_cast<int>(elenco_->size()) + 1, righeMinime_);
}

int ModelloGuida::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kColonneGuida);
}

QVariant ModelloGuida::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !elenco_) return {};
    if (role == Qt::AccessibleTextRole && index.column() == 0) return RigaLetta(index, index.data().toString());
    if (static_cast<std::size_t>(index.row()) >= elenco_->size()) return {};
    const RigaGuida& riga = (*elenco_)[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
            return Visibile(ColonneGuida(index.row() + 1, riga)[static_cast<std::size_t>(index.column())]);
        case Qt::ToolTipRole:
            return TestoPiano(ColonneGuida(index.row() + 1, riga)[static_cast<std::size_t>(index.column())]);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(AllineamentoColonna(static_cast<ColonnaGuida>(index.column())));
        case Qt::FontRole: {
            QFont carattere;
            carattere.setBold(!riga.voce);
            return carattere;
        }
        case Qt::DecorationRole:
            if (index.column() != 0 || !riga.voce) return {};
            return IconaDellaRiga(Segno::Guida);
        default:
            return {};
    }
}

QVariant ModelloGuida::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return IntestazioniGuida()[static_cast<std::size_t>(section)];
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(AllineamentoColonna(static_cast<ColonnaGuida>(section)));
    return {};
}

}  // namespace cronovia
