// SPDX-License-Identifier: GPL-3.0-or-later
// The city guide: what is worth a visit and where a camper can stand, per locality.
#pragma once

#include <QHash>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <unordered_set>
#include <vector>

#include "calendar/durata.h"
#include "store/archive.h"

namespace cronovia {

/// A type of guide entry: 01-04 are the levels of interest of visits, 05-09 logistic points.
struct TipoGuida {
    QString codice;  ///< two digits
    QString descrizione;
    bool tempoObbligatorio = false;  ///< entries of this type need a visit time
};

/// The types in the order of their codes; the nine standard ones when none are stored.
std::vector<TipoGuida> CaricaTipiGuida(Archive& archive);

/// Stores the nine standard types in an archive that has none.
void CompletaTipiGuida(Archive& archive);

/// Puts the nine standard types in the place of the stored ones, within a transaction of the caller.
void RipristinaTipiGuida(Archive& archive, Progress& progress);

/// The description, as the list spells it, of the type that a person has written: capitals and blanks may differ when
/// no type is spelt that very way. What was written when it is no type's.
QString TipoComeInElenco(const std::vector<TipoGuida>& tipi, const QString& scritto);

/// Numeric code of the type that was written, the highest of several that are spelt alike; -1 when there is none.
int CodiceTipoGuida(const std::vector<TipoGuida>& tipi, const QString& scritto);

/// Description of a type by its code; empty when there is none.
QString DescrizioneTipoGuida(const std::vector<TipoGuida>& tipi, QStringView codice);

/// One entry of the guide.
struct VoceGuida {
    std::int64_t id = 0;
    QString localita;
    QString codice;  ///< of its type
    QString tipo;    ///< description of its type; empty when there is none of that code
    QString descrizione;
    Durata tempo;  ///< time of the visit
};

/// Entries in the order of their types' codes, then of their descriptions.
using VociGuida = std::vector<VoceGuida>;

/// The entry that a row of the guide holds.
VoceGuida VoceDelRecord(const Record& record, const std::vector<TipoGuida>& tipi);

/// Reads a visit time "hh:mm"; what is no number counts as 0.
Durata LeggiTempoVisita(QStringView testo);
/// "hh:mm", two digits each.
QString TestoTempoVisita(const Durata& tempo);

/// Visits the rows of the guide that each of the names, taken as a pattern, matches: which name, and the row, in no
/// order. No more queries for many names than for one.
void PerOgniRecordDelle(Archive& archive, std::span<const QString> localita,
                        const std::function<void(std::size_t quale, Record&& record)>& visita);

/// The entries of many localities, each as `LettoreGuida::Voci` finds them, with no more queries than for one.
std::vector<VociGuida> VociDelleLocalita(Archive& archive, std::span<const QString> localita);

/// Reads the guide on behalf of computations on one moment of it: each locality is looked up once, and each computation
/// gets the visit time of an entry once, at the first stage that asks for it.
class LettoreGuida {
  public:
    /// Reads the types now, the entries when they are asked for.
    explicit LettoreGuida(Archive& archive);

    /// Looks many localities up at once, where one by one would ask as many times.
    void Anticipa(std::span<const QString> localita);

    /// The entries of all localities that the name, taken as a pattern, matches; by type code, then description.
    std::shared_ptr<const VociGuida> Voci(const QString& localita);

    /// A computation begins: no visit time counts as handed out.
    void Ricomincia() { contate_.clear(); }

    /// Sum of the visit times of the locality's entries that were not handed out yet.
    Centesimi PrendiTempoVisite(const QString& localita);

  private:
    Archive& archive_;
    std::vector<TipoGuida> tipi_;
    QHash<QString, std::shared_ptr<const VociGuida>> letture_;
    std::unordered_set<std::int64_t> contate_;
};

}  // namespace cronovia
