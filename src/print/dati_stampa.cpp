#include "print/dati_stampa.h"

#include "trips/orario.h"

namespace cronovia {

DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia) {
    DatiStampa dati{meta, ColonneCronovia(cronovia), TestiFine(cronovia), Testi(cronovia.totali, cronovia.guidaGiorno)};
    dati.meta.parametri = Aggiorna(meta.parametri).parametri;
    return dati;
}

}  // namespace cronovia
