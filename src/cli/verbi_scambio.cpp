// SPDX-License-Identifier: GPL-3.0-or-later
// importa, esporta, converte.
#include <QDateTime>

#include "cli/verbi.h"
#include "exchange/iei/esporta_mete.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/vecchi/converti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The codes behind the file's name.
std::vector<QString> CodiciRichiesti(const Richiesta& richiesta) {
    const QStringList codici = richiesta.argomenti.sliced(1);
    return {codici.begin(), codici.end()};
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
    std::vector<QString> codici = CodiciRichiesti(richiesta);
    for (QString& codice : codici) codice = CodiceCompleto(codice);
    Progress progress;
    const EsitoExport esito = EsportaMete(
        {sessione.Archivio(), richiesta.argomenti.first(), codici, richiesta.opzioni.contains(u"sovrascrivi"_s)},
        progress);
    uscita << Righe(TestoEsito(esito));
}

void EseguiConverte(const ApriSessione& apri, const Richiesta& /*richiesta*/, QTextStream& uscita) {
    Sessione sessione = apri();
    Progress progress;
    uscita << Righe(TestoEsito(
        ConvertiVecchiFile({sessione.Archivio(), sessione.Cartella(), QDateTime::currentDateTime()}, progress)));
}

}  // namespace cronovia
