// SPDX-License-Identifier: GPL-3.0-or-later
// A stage as cells with names: what spreadsheets, tables of other programs and the command line say of it.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

#include "itinerary/tappa.h"

namespace cronovia {

/// The cells of a stage. Its kilometres are a guess where `KmStimati` holds the same number; from `Vincoli` on they are
/// the fields of `cronovia::Vincoli`, in their order.
namespace cella {
enum Cella { Localita, Strada, Km, Tipo, Sosta, FineGiorno, KmStimati, Vincoli };
}  // namespace cella
/// How many cells there are.
inline constexpr int kCelle = int{cella::Vincoli} + int{vincoli::kCampi} - kPrimoDato;

/// The names of a cell: the heading of its column first, then what else it is called.
const QStringList& NomiDellaCella(int cella);
/// The cell that is called so, in small letters or capital ones.
std::optional<int> CellaDiNome(QStringView nome);

/// The texts of a stage's cells; what is not told is not in it.
using CelleTappa = QMap<int, QString>;

/// How "not known" is written in the place of kilometres.
inline constexpr QStringView kDaIndicare = u"da indicare";

/// A cell that cannot be read, and why, as the end of a sentence.
struct CellaRifiutata {
    int cella = cella::Localita;
    QString perche;
};

/// Who wrote the cells. What a person or another program wrote becomes what the entry of stages would make of it: names
/// in capital letters, kilometres that are needed and not told are to be told. Cronovia's own cells are taken as they
/// stand.
enum class Scritte { DaAltri, DaCronovia };

/// The stage that cells tell of, `partenza`: the first of its itinerary. Throws `CellaRifiutata`.
Tappa LeggiTappa(const CelleTappa& celle, Scritte scritte, bool partenza);

/// Throws `CellaRifiutata` when the entry of stages would miss something that leads there: kilometres, a stop, a ferry.
void RifiutaSenzaTratta(const Tappa& tappa, bool partenza);

/// All that is to be told of a stage, as `LeggiTappa` reads it: hours as "hh:mm", dates as "dd/mm/yyyy".
CelleTappa CelleDellaTappa(const Tappa& tappa);

/// A cell without the "'" that keeps a spreadsheet from taking it for a formula.
QString SenzaProtezione(const QString& testo);

}  // namespace cronovia
