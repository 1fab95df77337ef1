// The columns of the main grid: the one place where stages and schedule rows become texts.
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "itinerary/riepilogo.h"
#include "itinerary/tappa.h"
#include "schedule/riga_cronovia.h"

namespace cronovia {

enum class Colonna {
    Numero,
    Tappa,
    NumeroStrada,
    Km,
    TipoStrada,
    KmProgressivi,
    Tempo,
    Sosta,
    Guida,
    GiornoSettimana,
    Data,
    Ora,
    Note,
    LimiteRitorno,
};
inline constexpr std::size_t kColonne = 14;

/// The texts of one row, by `Colonna`.
class RigaGriglia : public std::array<QString, kColonne> {
  public:
    using std::array<QString, kColonne>::operator[];
    QString& operator[](Colonna colonna) { return (*this)[static_cast<std::size_t>(colonna)]; }
    const QString& operator[](Colonna colonna) const { return (*this)[static_cast<std::size_t>(colonna)]; }
};

/// Column headers; the one of the stop differs between the itinerary and the schedule.
RigaGriglia IntestazioniItinerario();
RigaGriglia IntestazioniCronovia();

/// A stage of the itinerary, `numero` counted from 1.
RigaGriglia ColonneTappa(int numero, const Tappa& tappa, const TempiTappa& tempi);

/// A row of the schedule, by its position from 0.
RigaGriglia ColonneCronovia(const Cronovia& cronovia, std::size_t posizione);

/// All rows of the schedule.
std::vector<RigaGriglia> ColonneCronovia(const Cronovia& cronovia);

}  // namespace cronovia
