// SPDX-License-Identifier: GPL-3.0-or-later
// percorso.
#include <QDir>

#include "app/cartella_dati.h"
#include "cli/verbi.h"
#include "exchange/navigatori/inserisci_percorso.h"
#include "exchange/percorsi/importa_percorso.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Of whichever program; a `Failure` when it is none that is known.
PercorsoNavigatore Letto(const QString& path, Gazzettino& gazzettino, Progress& progress) {
    if (auto percorso = LeggiOgniPercorso(path, gazzettino, progress)) return std::move(*percorso);
    throw Failure(u"Il file %1 non è un percorso che Cronovia riconosca: manca l'intestazione delle colonne."_s.arg(
        QDir::toNativeSeparators(path)));
}

// Into a trip that has no stages.
EsitoMemorizzazione Memorizza(Archive& archive, const MetaAperta& aperta, const PercorsoNavigatore& percorso,
                              Progress& progress) {
    const auto esito = MemorizzaPrimeTappe(archive, aperta.meta.codice, percorso.tappe, aperta.orario, progress);
    if (esito) return *esito;
    throw Failure(
        u"La mèta con il codice %1 ha già delle tappe: un percorso si importa solo con itinerario vuoto, o dopo una "
        "tappa con --dopo."_s.arg(aperta.meta.codice));
}

PercorsoInserito Inserito(Archive& archive, Gazzettino& gazzettino, const MetaAperta& aperta, int dopo,
                          const PercorsoNavigatore& percorso) {
    const auto numero = static_cast<int>(aperta.tappe.size());
    if (dopo > numero) throw Failure(u"La tappa %1 non c'è: l'itinerario ne ha %2."_s.arg(dopo).arg(numero));
    return InserisciPercorso({archive, gazzettino, aperta.tappe, dopo + 1, percorso, aperta.meta.nazione});
}

}  // namespace

void EseguiPercorso(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const std::optional<int> dopo = richiesta.Intero(u"dopo"_s, 0, 9999);
    Sessione sessione = apri();
    Archive& archive = sessione.Archivio();
    Progress& progress = *richiesta.avanzamento;
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    const PercorsoNavigatore percorso = Letto(richiesta.argomenti.at(1), gazzettino, progress);
    Transaction transaction(archive);  // the trip that was found is the one that gets them
    const MetaAperta aperta = sessione.ApriMeta(richiesta.argomenti.first());
    QStringList testi = {RiassuntoPercorso(percorso.tappe), TestoKmStimati(percorso.tappe)};
    EsitoMemorizzazione esito;
    if (dopo) {
        const PercorsoInserito inserito = Inserito(archive, gazzettino, aperta, *dopo, percorso);
        esito = MemorizzaTappeItinerario(archive, aperta.meta.codice, inserito.esito.righe, aperta.orario, progress);
        testi += TestoInserimento(inserito);
    } else {
        esito = Memorizza(archive, aperta, percorso, progress);
    }
    ConfermaPosizioni(archive, percorso);
    transaction.Commit();
    if (esito.nomiAccorciati > 0) testi += TestoNomiAccorciati(esito);
    testi.removeAll(QString());
    uscita << testi.join(u'\n') << '\n';
}

}  // namespace cronovia
