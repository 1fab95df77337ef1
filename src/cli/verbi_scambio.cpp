// SPDX-License-Identifier: GPL-3.0-or-later
// importa, esporta, converte.
#include <QDateTime>

#include "app/file_viaggio.h"
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

// The kind of file that a journey is wanted as; null for the exchange file.
const FormatoViaggio* FormatoChiesto(const Richiesta& richiesta) {
    const FormatoViaggio* chiesto = nullptr;
    for (const FormatoViaggio& formato : FormatiViaggio()) {
        if (!richiesta.opzioni.contains(formato.opzione.toString())) continue;
        if (chiesto != nullptr) {
            throw WrongUsage(u"Le opzioni --%1 e --%2 non vanno insieme."_s.arg(chiesto->opzione, formato.opzione));
        }
        chiesto = &formato;
    }
    return chiesto;
}

void EsportaViaggio(const ApriSessione& apri, const Richiesta& richiesta, const FormatoViaggio& formato,
                    QTextStream& uscita) {
    if (richiesta.argomenti.size() != 2) {
        throw WrongUsage(u"Con --%1 va indicato il codice di una mèta sola."_s.arg(formato.opzione));
    }
    Sessione sessione = apri();
    Progress progress;
    const auto [aperta, esito] = sessione.ApriECalcola(richiesta.argomenti.last(), {}, progress);
    uscita << ScriviFileViaggio({sessione, aperta.meta, *esito.cronovia}, formato, richiesta.argomenti.first(),
                                richiesta.opzioni.contains(u"sovrascrivi"_s))
           << '\n';
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
    if (const FormatoViaggio* formato = FormatoChiesto(richiesta)) {
        return EsportaViaggio(apri, richiesta, *formato, uscita);
    }
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
