// SPDX-License-Identifier: GPL-3.0-or-later
// The days of the schedule, a row each, with the bars of their 24 hours.
#pragma once

#include <QAbstractListModel>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "schedule/strisce.h"

namespace cronovia {

class ModelloGiornate : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows the days of a schedule; none of null.
    void Mostra(const Cronovia* cronovia, const std::vector<Giornata>& giornate);

    /// The bars of a day, counted from 0.
    [[nodiscard]] const StrisciaDelGiorno& Striscia(int giornata) const {
        return strisce_[static_cast<std::size_t>(giornata)];
    }
    /// "Giorno 3 · lun 28/06 · 245 km".
    [[nodiscard]] const QString& Etichetta(int giornata) const {
        return testi_[static_cast<std::size_t>(giornata)].breve;
    }
    /// "8:00-9:02 guida, CUNEO", and below it the reasons why something of it is late.
    [[nodiscard]] QString TestoDel(const PezzoDelGiorno& pezzo) const;
    /// The hours at which visits are possible.
    [[nodiscard]] std::pair<Centesimi, Centesimi> Visite() const { return visite_; }

    /// The day that a row of the schedule ends on; nothing of no row.
    [[nodiscard]] std::optional<int> GiornataDi(int riga) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    struct Testi {
        QString breve;
        QString intero;
    };

    std::vector<StrisciaDelGiorno> strisce_;
    std::vector<Testi> testi_;
    std::vector<int> primaRiga_;     // of the schedule, by day
    std::map<int, QString> motivi_;  // by row of the schedule
    std::pair<Centesimi, Centesimi> visite_;
};

}  // namespace cronovia
