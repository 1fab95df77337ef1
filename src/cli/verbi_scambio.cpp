// SPDX-License-Identifier: GPL-3.0-or-later
// importa, esporta, converte.
#include <QDateTime>
#include <QFileInfo>
#include <algorithm>

#include "app/cartella_dati.h"
#include "app/file_viaggio.h"
#include "cli/verbi.h"
#include "exchange/iei/esporta_mete.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/navigatori/esporta_percorso.h"
#include "exchange/vecchi/converti.h"
#include "schedule/giorni_itinerario.h"

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
    const bool giornate = richiesta.opzioni.contains(u"giornate"_s);
    Sessione sessione = apri();
    const auto [aperta, esito, confermate] =
        sessione.ApriECalcola(richiesta.argomenti.last(), {}, *richiesta.avanzamento, LeggeAnche::Posizioni);
    uscita << ScriviFileViaggio({sessione, aperta.meta, *esito.cronovia, aperta.tappe, confermate, giornate}, formato,
                                richiesta.argomenti.first(), richiesta.opzioni.contains(u"sovrascrivi"_s))
           << '\n';
}

// The text of a box as lines of a terminal.
QString Righe(QString testo) { return testo.replace(u"\r\n"_s, u"\n"_s).trimmed() + u'\n'; }

// The format of a navigator that was asked for.
std::optional<FormatoPercorso> FormatoRichiesto(const Richiesta& richiesta) {
    std::optional<FormatoPercorso> formato;
    for (const FormatoPercorso uno : {FormatoPercorso::Gpx, FormatoPercorso::Kml, FormatoPercorso::Itn}) {
        if (!richiesta.opzioni.contains(Estensione(uno))) continue;
        if (formato) throw WrongUsage(u"Di --gpx, --kml e --itn se ne può dare solo una."_s);
        formato = uno;
    }
    return formato;
}

// The stages of each day, with the place where it begins.
std::vector<std::pair<int, int>> TappeDeiGiorni(MetaLetta& letta) {
    Progress muto;
    const EsitoCalcolo esito = Sessione::Calcola(letta, {}, muto);
    const std::vector<Giornata> giornate = Giornate(*esito.cronovia, *letta.aperta.meta.dataInizio);
    const GiorniItinerario giorni(*esito.cronovia, giornate, letta.aperta.tappe);
    std::vector<std::pair<int, int>> tappe;
    for (std::size_t g = 0; g < giornate.size(); ++g) {
        const auto righe = giorni.Righe(static_cast<int>(g));
        tappe.push_back(righe ? std::pair{std::max(0, righe->first - 2), righe->second - 1} : std::pair{0, -1});
    }
    return tappe;
}

void EsportaPerNavigatore(const ApriSessione& apri, const Richiesta& richiesta, FormatoPercorso formato,
                          QTextStream& uscita) {
    if (richiesta.argomenti.size() != 2) {
        throw WrongUsage(u"Per un navigatore si esporta una mèta alla volta: FILE CODICE."_s);
    }
    Sessione sessione = apri();
    sessione.RifiutaSeDanneggiato();
    MetaLetta letta = sessione.LeggiMeta(richiesta.argomenti.at(1), LeggeAnche::Posizioni);
    const MetaAperta& aperta = letta.aperta;
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    const std::vector<PosizioneTappa> posizioni =
        PosizioniDelViaggio(letta.confermate, gazzettino, aperta.tappe, aperta.meta.nazione);
    RichiestaEsportaPercorso percorso{sessione.Archivio(),
                                      letta.guida,
                                      richiesta.argomenti.first(),
                                      formato,
                                      richiesta.opzioni.contains(u"sovrascrivi"_s),
                                      aperta.meta.localita,
                                      aperta.tappe,
                                      posizioni};
    if (richiesta.opzioni.contains(u"per-giorno"_s)) percorso.giorni = TappeDeiGiorni(letta);
    uscita << TestoEsito(EsportaPercorso(percorso)) << '\n';
}

// A name that ends as another kind of file does would deceive whoever opens it.
void RifiutaAltraEstensione(const QString& file, const QString& formato) {
    QStringList note = {u"gpx"_s, u"kml"_s, u"itn"_s};
    for (const FormatoViaggio& uno : FormatiViaggio()) note += uno.opzione.toString();
    const QString estensione = QFileInfo(file).suffix().toLower();
    if (estensione == formato || !note.contains(estensione)) return;
    throw WrongUsage(u"Il file «%1» finisce in .%2, ma sarebbe scritto %3: %4."_s.arg(
        file, estensione, formato.isEmpty() ? u"come file di scambio"_s : u"con --"_s + formato,
        formato.isEmpty() ? u"aggiungi --%1"_s.arg(estensione) : u"cambia il nome o l'opzione"_s));
}

void ControllaEsporta(const Richiesta& richiesta, const FormatoViaggio* viaggio,
                      std::optional<FormatoPercorso> percorso) {
    if (viaggio != nullptr && percorso) {
        throw WrongUsage(u"Le opzioni --%1 e --%2 non vanno insieme."_s.arg(viaggio->opzione, Estensione(*percorso)));
    }
    if (richiesta.opzioni.contains(u"giornate"_s) && (viaggio == nullptr || viaggio->opzione != u"ics")) {
        throw WrongUsage(u"L'opzione --giornate vale solo con --ics."_s);
    }
    const bool perGiorno = richiesta.opzioni.contains(u"per-giorno"_s);
    if (perGiorno && !percorso) throw WrongUsage(u"L'opzione --per-giorno vale solo con --gpx, --kml o --itn."_s);
    if (perGiorno) return;  // into a folder
    QString formato = percorso ? Estensione(*percorso) : QString();
    if (viaggio != nullptr) formato = viaggio->opzione.toString();
    RifiutaAltraEstensione(richiesta.argomenti.first(), formato);
}

}  // namespace

void EseguiImporta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    Progress& progress = *richiesta.avanzamento;
    const EsitoImport esito =
        ImportaMete({sessione.Archivio(), richiesta.argomenti.first(), CodiciRichiesti(richiesta)}, progress);
    uscita << Righe(TestoEsito(esito));
}

void EseguiEsporta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const FormatoViaggio* const viaggio = FormatoChiesto(richiesta);
    const std::optional<FormatoPercorso> percorso = FormatoRichiesto(richiesta);
    ControllaEsporta(richiesta, viaggio, percorso);
    if (viaggio != nullptr) return EsportaViaggio(apri, richiesta, *viaggio, uscita);
    if (percorso) return EsportaPerNavigatore(apri, richiesta, *percorso, uscita);
    Sessione sessione = apri();
    std::vector<QString> codici = CodiciRichiesti(richiesta);
    for (QString& codice : codici) codice = CodiceCompleto(codice);
    Progress& progress = *richiesta.avanzamento;
    const EsitoExport esito = EsportaMete(
        {sessione.Archivio(), richiesta.argomenti.first(), codici, richiesta.opzioni.contains(u"sovrascrivi"_s)},
        progress);
    uscita << Righe(TestoEsito(esito));
}

void EseguiConverte(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    Progress& progress = *richiesta.avanzamento;
    uscita << Righe(TestoEsito(
        ConvertiVecchiFile({sessione.Archivio(), sessione.Cartella(), QDateTime::currentDateTime()}, progress)));
}

}  // namespace cronovia
