// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/scambio/modello_mete.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QVariant AllineamentoColonna(int colonna) {
    const bool testo = colonna == ModelloMete::Meta || colonna == ModelloMete::Nazione;
    return QVariant(Qt::AlignVCenter | (testo ? Qt::AlignLeft : Qt::AlignRight));
}

}  // namespace

void ModelloMete::Mostra(const std::vector<MetaInElenco>& mete) {
    const auto [prima, dopo] = std::mismatch(mete_.begin(), mete_.end(), mete.begin(), mete.end());
    const auto riga = static_cast<int>(prima - mete_.begin());
    if (prima == mete_.end() && dopo == mete.end()) return;
    if (mete.size() + 1 == mete_.size() && std::equal(prima + 1, mete_.end(), dopo, mete.end())) {
        beginRemoveRows({}, riga, riga);
        mete_.erase(prima);
        numeri_.erase(numeri_.begin() + riga);
        endRemoveRows();
        Rinumera();
        const auto righe = static_cast<int>(mete_.size());
        if (riga < righe) Q_EMIT dataChanged(index(riga, Num), index(righe - 1, Num));
    } else if (mete.size() == mete_.size() + 1 && prima == mete_.end()) {
        beginInsertRows({}, riga, riga);
        mete_.push_back(*dopo);
        Rinumera();
        endInsertRows();
    } else {
        beginResetModel();
        mete_ = mete;
        Rinumera();
        endResetModel();
    }
}

void ModelloMete::Rinumera() {
    numeri_.resize(mete_.size());
    std::iota(numeri_.begin(), numeri_.end(), 1);
}

int ModelloMete::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mete_.size());
}

int ModelloMete::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonneMete; }

QVariant ModelloMete::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const MetaInElenco& meta = mete_[static_cast<std::size_t>(index.row())];
    if (role == Qt::TextAlignmentRole) return AllineamentoColonna(index.column());
    if (role != Qt::DisplayRole) return {};
    switch (index.column()) {
        case Num:
            return numeri_[static_cast<std::size_t>(index.row())];
        case Meta:
            return Visibile(meta.presente ? meta.localita + u" (già presente)"_s : meta.localita);
        case Nazione:
            return Visibile(meta.nazione);
        default:
            return Visibile(meta.codice);
    }
}

QVariant ModelloMete::headerData(int section, Qt::Orientation orientation, int role) const {
    static const std::array<QString, kColonneMete> intestazioni = {u"Num"_s, u"Mèta"_s, u"Nazione"_s, u"Record"_s};
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return AllineamentoColonna(section);
    if (role != Qt::DisplayRole) return {};
    return intestazioni.at(static_cast<std::size_t>(section));
}

}  // namespace cronovia
