// SPDX-License-Identifier: GPL-3.0-or-later
// percorso.
#include <QDir>

#include "app/cartella_dati.h"
#include "cli/verbi.h"
#include "exchange/navigatori/importa_navigatore.h"
#include "exchange/percorsi/importa_percorso.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Of whichever program; a `Failure` when it is none that is known.
PercorsoNavigatore Letto(const QString& path) {
    Progress progress;
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    if (auto percorso = LeggiOgniPercorso(path, gazzettino, progress)) return std::move(*percorso);
    throw Failure(u"Il file %1 non è un percorso che Cronovia riconosca: manca l'intestazione delle colonne."_s.arg(
        QDir::toNativeSeparators(path)));
}

}  // namespace

void EseguiPercorso(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    Progress& progress = *richiesta.avanzamento;
    const PercorsoNavigatore percorso = Letto(richiesta.argomenti.at(1));
    Transaction transaction(sessione.Archivio());  // the trip that was found is the one that gets them
    const MetaAperta aperta = sessione.ApriMeta(richiesta.argomenti.first());
    const std::optional<EsitoMemorizzazione> esito =
        MemorizzaPrimeTappe(sessione.Archivio(), aperta.meta.codice, percorso.tappe, aperta.orario, progress);
    if (!esito) {
        throw Failure(
            u"La mèta con il codice %1 ha già delle tappe: un percorso si importa solo con itinerario "
            "vuoto."_s.arg(aperta.meta.codice));
    }
    ConfermaPosizioni(sessione.Archivio(), percorso);
    transaction.Commit();
    uscita << RiassuntoPercorso(percorso.tappe) << '\n';
    const QString stimati = TestoKmStimati(percorso.tappe);
    if (!stimati.isEmpty()) uscita << stimati << '\n';
    if (esito->nomiAccorciati > 0) uscita << TestoNomiAccorciati(*esito) << '\n';
}

}  // namespace cronovia
