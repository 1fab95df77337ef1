// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/copia/modello_copia.h"

#include <utility>

#include "calendar/testo.h"
#include "ui/comuni/lettura.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr Qt::Alignment kSinistra = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment kDestra = Qt::AlignRight | Qt::AlignVCenter;

}  // namespace

void ModelloCopia::Mostra(const std::vector<MetaInElenco>& mete) {
    std::vector<QStringList> righe;
    righe.reserve(mete.size());
    for (const MetaInElenco& meta : mete) {
        righe.push_back({QString::number(righe.size() + 1), meta.localita, meta.nazione});
    }
    Mostra({u"Num."_s, u"Denominazione della mèta"_s, u"Nazione"_s}, std::move(righe), {kDestra, kSinistra, kSinistra});
}

void ModelloCopia::Mostra(const RigheItinerario& tappe) {
    std::vector<QStringList> righe;
    righe.reserve(tappe.size());
    for (const Tappa& tappa : tappe) {
        righe.push_back({QString::number(righe.size() + 1), tappa.localita, tappa.numStrada, RaggruppaNonZero(tappa.km),
                         LetteraStrada(tappa), TestoSosta(tappa.sosta, tappa.fineGiorno)});
    }
    Mostra({u"Num."_s, u"Località"_s, u"Strada"_s, u"kM."_s, u"Tipo"_s, u"Sosta"_s}, std::move(righe),
           {kDestra, kSinistra, kSinistra, kDestra, Qt::AlignCenter, Qt::AlignCenter});
}

void ModelloCopia::Mostra(const QStringList& intestazioni, std::vector<QStringList> righe,
                          const std::vector<Qt::Alignment>& dove) {
    if (intestazioni == intestazioni_ && righe == righe_) return;
    beginResetModel();
    intestazioni_ = intestazioni;
    righe_ = std::move(righe);
    allineamenti_ = dove;
    endResetModel();
}

int ModelloCopia::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(righe_.size());
}

int ModelloCopia::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(intestazioni_.size());
}

QVariant ModelloCopia::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto colonna = static_cast<std::size_t>(index.column());
    if (role == Qt::DisplayRole) return Visibile(righe_[static_cast<std::size_t>(index.row())].at(index.column()));
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(allineamenti_[colonna]);
    if (role == Qt::AccessibleTextRole && colonna == 0) return RigaLetta(index, index.data().toString());
    return {};
}

QVariant ModelloCopia::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return intestazioni_.at(section);
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(allineamenti_[static_cast<std::size_t>(section)]);
    return {};
}

}  // namespace cronovia
