// SPDX-License-Identifier: GPL-3.0-or-later
// elimina.
#include "cli/verbi.h"
#include "interaction/failure.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

void RifiutaSenzaConferma(const Richiesta& richiesta, const MetaAperta& aperta) {
    if (richiesta.opzioni.contains(u"sì"_s) || richiesta.opzioni.contains(u"si"_s)) return;
    const std::optional<bool> risposta = richiesta.chiede(u"Cancello la mèta %1 (%2) con le sue tappe (%3)?"_s.arg(
        aperta.meta.localita, aperta.meta.codice, QString::number(aperta.tappe.size())));
    if (!risposta) throw Failure(u"Qui non si può chiedere conferma: per cancellare aggiungi --sì."_s);
    if (!*risposta) throw Failure(u"La mèta %1 è rimasta."_s.arg(aperta.meta.localita));
}

}  // namespace

void EseguiElimina(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    const MetaAperta aperta = sessione.ApriMeta(richiesta.argomenti.first());
    RifiutaSenzaConferma(richiesta, aperta);
    sessione.Archivio().KeepCopy(u"prima di cancellare"_s);
    Transaction transaction(sessione.Archivio());
    const MetaAperta adesso = sessione.ApriMeta(aperta.meta.codice);
    if (adesso.memorizzata != aperta.memorizzata || adesso.tappe != aperta.tappe) {
        throw Failure(
            u"Nel frattempo la mèta %1 è stata cambiata, e non è stata cancellata."_s.arg(aperta.meta.localita));
    }
    CancellaMeta(sessione.Archivio(), aperta.meta.codice, *richiesta.avanzamento);
    transaction.Commit();
    uscita << u"Cancellata la mèta %1 (%2); una copia dell'archivio di prima è in «copie».\n"_s.arg(
        aperta.meta.localita, aperta.meta.codice);
}

}  // namespace cronovia
