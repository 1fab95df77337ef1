#include "schedule/riga_cronovia.h"

#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

std::array<QString, 7> TestiFine(const Cronovia& cronovia) {
    if (!cronovia.fine) return {};
    const FineViaggio& fine = *cronovia.fine;
    const Gma gma = GmaDelGiorno(fine.data);
    const QString ora = TestoOrologio(fine.ora);
    return {Zero(gma.giorno, 2), Zero(gma.mese, 2),          Zero(gma.anno, 4),           ora.left(2),
            ora.right(2),        GiornoSettimana(fine.data), QString::number(fine.giorni)};
}

}  // namespace cronovia
