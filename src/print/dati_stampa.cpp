#include "print/dati_stampa.h"

namespace cronovia {

DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia) {
    return {meta, cronovia.orario, ColonneCronovia(cronovia), TestiFine(cronovia),
            Testi(cronovia.totali, cronovia.orario.GuidaGiorno())};
}

}  // namespace cronovia
