// The tables of the archive: names, fields with their widths, indexes.
#pragma once

#include <QString>
#include <vector>

namespace cronovia {

/// The tables by their numbers.
enum class Tabella {
    MeteVandro = 1,  ///< one row per trip
    Itinerari,       ///< one row per stage of a trip, or several for a stage longer than 999 km
    GuidaCitta,      ///< one row per entry of the city guide
    TipoGuida,       ///< the types of guide entries
    MetaCorrente,    ///< at most one row: the code of the trip last chosen or saved
    Parametri,       ///< at most one row: the personal default travel parameters
};

/// Width 0 marks a yes/no field; all other fields are text of at most so many characters.
struct Campo {
    QString nome;
    int larghezza = 0;
};

struct DefinizioneTabella {
    QString nome;
    std::vector<Campo> campi;     ///< in the order of the table's columns
    std::vector<QString> indici;  ///< the fields that have an index, each a single-field one
};

const DefinizioneTabella& Definizione(Tabella tabella);

/// All tables, in the order of their numbers.
const std::vector<Tabella>& TutteLeTabelle();

/// Positions of the fields in their tables' records.
namespace mete {
enum Posto {
    CodiceMeta,
    Localita,
    Nazione,
    DataInizio,
    OraInizio,
    MediaAutostrada,
    MediaSuperStrada,
    MediaPrincipale,
    MediaLocale,
    OraColazione,
    OraPranzo,
    DurataPranzo,
    OraCena,
    DurataCena,
    OraNotte,
    RiposoMinuti,
    RiposoOre,
    RiposoGiorno,
    RiposoDopoGiorni,
    InizioVisita,
    FineVisita,
    OreTraghetti,
    GiorniAdeguamento,
    CalcoloSoste,
    kCampi
};
}  // namespace mete

namespace itinerari {
enum Posto {
    CodiceMeta,
    Sequenza,
    Localita,
    Chilometri,
    NomeStrada,
    TipoStrada,
    TempoSosta,
    SostaGuidaCitta,
    FineGiorno,
    kCampi
};
}  // namespace itinerari

namespace guida {
enum Posto { Localita, CodiceGuida, Descrizione, TempoSosta, FlagVisto, kCampi };
}  // namespace guida

namespace tipoguida {
enum Posto { CodiceGuida, Descrizione, TempoObbligatorio, kCampi };
}  // namespace tipoguida

namespace metacorrente {
enum Posto { MetaCorrente, kCampi };
}  // namespace metacorrente

/// The travel parameters stand in the order in which `MeteVandro` has them, without `GiorniAdeguamento`.
namespace parametri {
enum Posto {
    MediaAutostrada,
    MediaSuperStrada,
    MediaPrincipale,
    MediaLocale,
    OraColazione,
    OraPranzo,
    DurataPranzo,
    OraCena,
    DurataCena,
    OraNotte,
    RiposoMinuti,
    RiposoOre,
    RiposoGiorno,
    RiposoDopoGiorni,
    InizioVisita,
    FineVisita,
    OreTraghetti,
    CalcoloSoste,
    kCampi
};
}  // namespace parametri

}  // namespace cronovia
