// The rules that keep a trip's daily timetable consistent.
#pragma once

#include "trips/meta.h"

namespace cronovia {

/// Parameters ready for computing.
struct ParametriConvertiti {
    ParametriViaggio parametri;  ///< corrected
    Centesimi guidaGiorno;       ///< driving time of one day: the day length of driving totals
    Centesimi visitaGiorno;      ///< visiting time of one day: the day length of stops
    Centesimi riposo;            ///< the short rest, to the nearest whole hundredth
};

/// Resets the hours of a timetable whose order cannot be kept (breakfast less than an hour before lunch to 0, lunch
/// that ends less than an hour before dinner to 11, dinner that ends after the night's start to 18; minutes stay),
/// again and again until a round changes nothing; keeps visits between breakfast and night; computes the day lengths.
ParametriConvertiti ControllaVariabiliConvertite(const ParametriViaggio& parametri);

/// `ControllaVariabiliConvertite`, then the limits of the single hours. The day lengths stay those of the timetable
/// before the limits were applied.
ParametriConvertiti Aggiorna(const ParametriViaggio& parametri);

}  // namespace cronovia
