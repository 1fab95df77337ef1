// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of the archive: names, fields with their widths, indexes.
#pragma once

#include <QString>
#include <vector>

namespace cronovia {

/// The tables by their numbers.
enum class Table {
    MeteVandro = 1,  ///< one row per trip
    Itinerari,       ///< one row per stage of a trip, or several for a stage longer than 999 km
    GuidaCitta,      ///< one row per entry of the city guide
    TipoGuida,       ///< the types of guide entries
    MetaCorrente,    ///< at most one row: the code of the trip last chosen or saved
    Parametri,       ///< at most one row: the personal default travel parameters
    Vincoli,         ///< at most one row per stage: what others set for it, and notes
    Scadenze,        ///< at most one row per trip: when one has to be home, and its prices
    Posizioni,       ///< at most one row per locality: where it lies, as someone has said
    Stime,           ///< at most one row per row of `Itinerari`: its kilometres are a guess
};

// The fields of the tables with their widths, in the order of their columns. What else is told of fields (their
// positions, the definitions of the tables) is made from these lists. Width 0 marks a yes/no field, all others are
// texts.
#define CRONOVIA_SHARED_PARAMETER_FIELDS(FIELD) \
    FIELD(MediaAutostrada, 3)                   \
    FIELD(MediaSuperStrada, 3)                  \
    FIELD(MediaPrincipale, 3)                   \
    FIELD(MediaLocale, 3)                       \
    FIELD(OraColazione, 4)                      \
    FIELD(OraPranzo, 4)                         \
    FIELD(DurataPranzo, 4)                      \
    FIELD(OraCena, 4)                           \
    FIELD(DurataCena, 4)                        \
    FIELD(OraNotte, 4)                          \
    FIELD(RiposoMinuti, 2)                      \
    FIELD(RiposoOre, 2)                         \
    FIELD(RiposoGiorno, 2)                      \
    FIELD(RiposoDopoGiorni, 2)                  \
    FIELD(InizioVisita, 4)                      \
    FIELD(FineVisita, 4)                        \
    FIELD(OreTraghetti, 4)
#define CRONOVIA_METE_FIELDS(FIELD)         \
    FIELD(CodiceMeta, 6)                    \
    FIELD(Localita, 30)                     \
    FIELD(Nazione, 19)                      \
    FIELD(DataInizio, 8)                    \
    FIELD(OraInizio, 4)                     \
    CRONOVIA_SHARED_PARAMETER_FIELDS(FIELD) \
    FIELD(GiorniAdeguamento, 4)             \
    FIELD(CalcoloSoste, 1)
#define CRONOVIA_ITINERARI_FIELDS(FIELD) \
    FIELD(CodiceMeta, 6)                 \
    FIELD(Sequenza, 4)                   \
    FIELD(Localita, 30)                  \
    FIELD(Chilometri, 4)                 \
    FIELD(NomeStrada, 64)                \
    FIELD(TipoStrada, 1)                 \
    FIELD(TempoSosta, 8)                 \
    FIELD(SostaGuidaCitta, 8)            \
    FIELD(FineGiorno, 1)
#define CRONOVIA_GUIDA_FIELDS(FIELD) \
    FIELD(Localita, 30)              \
    FIELD(CodiceGuida, 2)            \
    FIELD(Descrizione, 96)           \
    FIELD(TempoSosta, 5)             \
    FIELD(FlagVisto, 1)
#define CRONOVIA_TIPOGUIDA_FIELDS(FIELD) \
    FIELD(CodiceGuida, 2)                \
    FIELD(Descrizione, 32)               \
    FIELD(TempoObbligatorio, 0)
#define CRONOVIA_METACORRENTE_FIELDS(FIELD) FIELD(MetaCorrente, 6)
#define CRONOVIA_PARAMETRI_FIELDS(FIELD)    \
    CRONOVIA_SHARED_PARAMETER_FIELDS(FIELD) \
    FIELD(CalcoloSoste, 1)
// The locality tells that the row is still about the stage, or the trip: an earlier release knows nothing of the row.
#define CRONOVIA_VINCOLI_FIELDS(FIELD) \
    FIELD(CodiceMeta, 6)               \
    FIELD(Sequenza, 4)                 \
    FIELD(Localita, 30)                \
    FIELD(TraghettoOra, 4)             \
    FIELD(TraghettoData, 8)            \
    FIELD(Navigazione, 8)              \
    FIELD(Imbarco, 4)                  \
    FIELD(NonPrimaOra, 4)              \
    FIELD(NonPrimaData, 8)             \
    FIELD(NonDopoOra, 4)               \
    FIELD(NonDopoData, 8)              \
    FIELD(VisiteDa, 4)                 \
    FIELD(VisiteA, 4)                  \
    FIELD(Nota, 500)                   \
    FIELD(Telefono, 30)                \
    FIELD(Link, 200)                   \
    FIELD(Prenotazione, 40)            \
    FIELD(PrezzoTraghetto, 8)          \
    FIELD(PrezzoNotte, 8)              \
    FIELD(PrezzoIngresso, 8)
#define CRONOVIA_SCADENZE_FIELDS(FIELD) \
    FIELD(CodiceMeta, 6)                \
    FIELD(Localita, 30)                 \
    FIELD(RientroData, 8)               \
    FIELD(RientroOra, 4)                \
    FIELD(KmLitro, 8)                   \
    FIELD(PrezzoCarburante, 8)          \
    FIELD(PedaggioKm, 8)                \
    FIELD(PrezzoNotti, 8)
// Degrees, with a point and five places.
#define CRONOVIA_POSIZIONI_FIELDS(FIELD) \
    FIELD(Localita, 30)                  \
    FIELD(Latitudine, 10)                \
    FIELD(Longitudine, 10)

// The kilometres that were guessed: a stage that has others by now has no guess any more.
#define CRONOVIA_STIME_FIELDS(FIELD) \
    FIELD(CodiceMeta, 6)             \
    FIELD(Sequenza, 4)               \
    FIELD(Localita, 30)              \
    FIELD(KmStimati, 4)

// Positions of the fields in their tables' records; `kCampi` is how many there are.
#define CRONOVIA_POSITION(name, width) name,
namespace mete {
enum Field { CRONOVIA_METE_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace mete
namespace itinerari {
enum Field { CRONOVIA_ITINERARI_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace itinerari
namespace guida {
enum Field { CRONOVIA_GUIDA_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace guida
namespace tipoguida {
enum Field { CRONOVIA_TIPOGUIDA_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace tipoguida
namespace metacorrente {
enum Field { CRONOVIA_METACORRENTE_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace metacorrente
namespace parametri {
enum Field { CRONOVIA_PARAMETRI_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace parametri
namespace vincoli {
enum Field { CRONOVIA_VINCOLI_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace vincoli
namespace scadenze {
enum Field { CRONOVIA_SCADENZE_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace scadenze
namespace posizioni {
enum Field { CRONOVIA_POSIZIONI_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace posizioni
namespace stime {
enum Field { CRONOVIA_STIME_FIELDS(CRONOVIA_POSITION) kCampi };
}  // namespace stime
#undef CRONOVIA_POSITION

/// A field: 0 for yes/no, else a text of at most so many characters.
struct FieldDefinition {
    QString name;
    int width = 0;
};

/// A table as it is declared in the file.
struct TableDefinition {
    QString name;
    std::vector<FieldDefinition> fields;  ///< in the order of the table's columns
    std::vector<QString> indexes;         ///< names of the fields that have an index, each a single-field one
    QString people;                       ///< what messages call its contents, with its article: "delle mète"
};

/// What marks a database file as an archive, and the number of its tables' form.
inline constexpr int kApplicationId = 0x56437276;  // "VCrv"
inline constexpr int kSchemaVersion = 1;

/// What a table is declared as.
const TableDefinition& Definition(Table table);

/// Characters that a text field holds, 0 for a yes/no field; `field` is its position in the table.
int Width(Table table, int field);

/// The tables that every archive has, in the order of their numbers.
const std::vector<Table>& AllTables();

/// Those behind them, which an archive has once something was written into them.
const std::vector<Table>& TablesOnDemand();

/// Those of them whose rows belong to a trip, by its code, which is their first field.
const std::vector<Table>& TripTablesOnDemand();

}  // namespace cronovia
