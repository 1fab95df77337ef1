// SPDX-License-Identifier: GPL-3.0-or-later
// What the person reads after an import.
#include <QStringList>

#include "calendar/testo.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/nomi_campi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Inseriti(const EsitoImport& esito) {
    return u"Sono stati inseriti:\r\n\r\n%1 mète/itinerari;\r\n%2 tratti stradali;\r\n"
           "%3 guide/informazioni località.\r\n"_s.arg(Raggruppa(esito.meteInserite), Raggruppa(esito.tappeInserite),
                                                       Raggruppa(esito.vociInserite));
}

QString Scartati(const EsitoImport& esito) {
    if (esito.meteScartate == 0 && esito.vociScartate == 0) return {};
    return u"Sono stati scartati:\r\n\r\n%1 mète/itinerari;\r\n%2 guide/informazioni località,\r\n"
           "perchè già presenti nel database con lo stesso nome."_s.arg(Raggruppa(esito.meteScartate),
                                                                        Raggruppa(esito.vociScartate));
}

QString Differenze(const EsitoImport& esito) {
    QStringList righe;
    const auto conta = [&](const QString& cosa, qint64 quanti) {
        if (quanti > 0) righe += cosa + u": "_s + Raggruppa(quanti);
    };
    for (const auto& [campo, quanti] : esito.ritocchi.accorciati)
        conta(CampoAccorciato(campo.first, campo.second), quanti);
    conta(
        u"mète non inserite perché il loro codice è ripetuto nel file (i loro tratti stanno con quelli della prima)"_s,
        esito.codiciRipetuti);
    conta(u"mète non inserite perché senza località o senza un codice valido"_s, esito.meteIncomplete);
    conta(u"mète non inserite perché hanno più di 9.999 tratti stradali o un loro numero non valido"_s,
          esito.meteTroppoLunghe);
    conta(u"date d'inizio fuori dal loro mese, corrette"_s, esito.ritocchi.dateCorrette);
    conta(u"date d'inizio mancanti o illeggibili, lasciate vuote"_s, esito.ritocchi.dateIlleggibili);
    conta(u"soste che non sono una durata, non inserite"_s, esito.ritocchi.sosteRifiutate);
    conta(u"orari fissati, prezzi o note non validi, non inseriti"_s, esito.ritocchi.orariRifiutati);
    conta(u"tratti stradali non inseriti perché la loro mèta non è nel file o non è stata inserita"_s,
          esito.tappeSenzaMeta);
    conta(u"righe non lette perché prima della prima sezione"_s, esito.lettura.righePrimaDelleSezioni);
    conta(u"righe non lette perché senza intestazione"_s, esito.lettura.righeNonCapite);
    conta(u"righe non lette perché troppo lunghe"_s, esito.lettura.righeTroppoLunghe);
    conta(u"righe con meno valori dell'intestazione"_s, esito.lettura.righeIncomplete);
    conta(u"valori in più, non letti"_s, esito.lettura.valoriInPiu);
    conta(u"virgolette e caratteri di controllo tolti"_s, esito.lettura.caratteriTolti);
    if (righe.isEmpty()) return {};
    return u"\r\nNon tutto è stato preso com'era nel file:\r\n\r\n"_s + righe.join(u";\r\n"_s) + u"."_s;
}

}  // namespace

QString TestoEsito(const EsitoImport& esito) {
    if (esito.interrotta) return u"Importazione interrotta: niente è stato inserito."_s;
    const QString scartati = Scartati(esito);
    const QString differenze = Differenze(esito);
    const bool aCapo = !scartati.isEmpty() && !differenze.isEmpty();
    return Inseriti(esito) + scartati + (aCapo ? u"\r\n"_s : QString()) + differenze;
}

}  // namespace cronovia
