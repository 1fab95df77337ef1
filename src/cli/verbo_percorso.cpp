// SPDX-License-Identifier: GPL-3.0-or-later
// percorso.
#include <QDir>

#include "cli/verbi.h"
#include "exchange/percorsi/importa_percorso.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void EseguiPercorso(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    Progress progress;
    const QString& path = richiesta.argomenti.at(1);
    const auto tappe = LeggiPercorso(path, progress);
    if (!tappe) {
        throw Failure(u"Il file %1 non è un percorso che Cronovia riconosca: manca l'intestazione delle colonne."_s.arg(
            QDir::toNativeSeparators(path)));
    }
    Transaction transaction(sessione.Archivio());  // the trip that was found is the one that gets them
    const MetaAperta aperta = sessione.ApriMeta(richiesta.argomenti.first());
    const std::optional<EsitoMemorizzazione> esito =
        MemorizzaPrimeTappe(sessione.Archivio(), aperta.meta.codice, *tappe, aperta.orario, progress);
    if (!esito) {
        throw Failure(
            u"La mèta con il codice %1 ha già delle tappe: un percorso si importa solo con itinerario "
            "vuoto."_s.arg(aperta.meta.codice));
    }
    transaction.Commit();
    uscita << RiassuntoPercorso(*tappe) << '\n';
    if (esito->nomiAccorciati > 0) uscita << TestoNomiAccorciati(*esito) << '\n';
}

}  // namespace cronovia
