// importa, esporta.
#include "cli/verbi.h"
#include "exchange/esporta_mete.h"
#include "exchange/importa_mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

std::vector<QString> CodiciRichiesti(const Richiesta& richiesta) {
    std::vector<QString> codici;
    for (const QString& codice : richiesta.argomenti.sliced(1)) codici.push_back(CodiceCompleto(codice));
    return codici;
}

// The text of a box as lines of a terminal.
QString Righe(QString testo) { return testo.replace(u"\r\n"_s, u"\n"_s).trimmed() + u'\n'; }

}  // namespace

void EseguiImporta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    Progress progress;
    const EsitoImport esito =
        ImportaMete({sessione.Archivio(), richiesta.argomenti.first(), CodiciRichiesti(richiesta)}, progress);
    uscita << Righe(TestoEsito(esito));
}

void EseguiEsporta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    Progress progress;
    const EsitoExport esito = EsportaMete({sessione.Archivio(), richiesta.argomenti.first(), CodiciRichiesti(richiesta),
                                           richiesta.opzioni.contains(u"sovrascrivi"_s)},
                                          progress);
    uscita << Righe(TestoEsito(esito));
}

}  // namespace cronovia
