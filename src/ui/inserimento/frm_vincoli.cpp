// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/inserimento/frm_vincoli.h"

#include "itinerary/vincoli_digitati.h"
#include "ui/comuni/modulo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCifreOra = 6;
constexpr int kCifreData = 10;
constexpr int kCifrePrezzo = 10;

CampoModulo Ora(int campo, const QString& nome, const QString& scritta, const QString& istruzione) {
    return {campo, nome, scritta, 12, kCifreOra, istruzione, u"hh:mm"_s};
}

CampoModulo Data(int campo, const QString& nome, const QString& quale) {
    return {campo,          nome,
            u"il"_s,        10,
            kCifreData,     u"Giorno %1, se non è quello in cui ci si arriva (facoltativo)"_s.arg(quale),
            u"gg/mm/aaaa"_s};
}

CampoModulo Euro(int campo, const QString& nome, const QString& scritta, const QString& istruzione) {
    return {campo, nome, scritta, 12, kCifrePrezzo, istruzione, u"0,00"_s};
}

CampoModulo Testo(int campo, const QString& nome, const QString& scritta, const QString& istruzione) {
    return {campo, nome, scritta, Width(Table::Vincoli, campo), 0, istruzione};
}

std::vector<GruppoModulo> Gruppi() {
    using namespace vincoli;
    return {
        {u"Traghetto per arrivarci"_s,
         {{Ora(TraghettoOra, u"txtTraghettoOra"_s, u"Parte alle"_s, u"Ora in cui parte il traghetto"_s),
           Data(TraghettoData, u"txtTraghettoData"_s, u"in cui parte il traghetto"_s)},
          {Ora(Navigazione, u"txtNavigazione"_s, u"Naviga per"_s,
               u"Durata della navigazione, fino a 9 giorni: 8:30, o 1:08:30 con i giorni"_s),
           Ora(Imbarco, u"txtImbarco"_s, u"presentarsi prima di"_s,
               u"Quanto prima della partenza bisogna essere al porto"_s)}}},
        {u"Ora di arrivo"_s,
         {{Ora(NonPrimaOra, u"txtNonPrimaOra"_s, u"Non prima delle"_s, u"Ora prima della quale si aspetta"_s),
           Data(NonPrimaData, u"txtNonPrimaData"_s, u"prima del quale si aspetta"_s)},
          {Ora(NonDopoOra, u"txtNonDopoOra"_s, u"Non dopo le"_s, u"Ora entro cui bisogna arrivare"_s),
           Data(NonDopoData, u"txtNonDopoData"_s, u"entro cui bisogna arrivare"_s)}}},
        {u"Orario delle visite, se diverso da quello del viaggio"_s,
         {{Ora(VisiteDa, u"txtVisiteDa"_s, u"Dalle"_s, u"Ora di apertura"_s),
           Ora(VisiteA, u"txtVisiteA"_s, u"alle"_s, u"Ora di chiusura"_s)}}},
        {u"Prezzi in euro, per tutto l'equipaggio"_s,
         {{Euro(PrezzoTraghetto, u"txtPrezzoTraghetto"_s, u"Traghetto"_s, u"Prezzo del traghetto"_s),
           Euro(PrezzoNotte, u"txtPrezzoNotte"_s, u"una notte"_s,
                u"Prezzo di una notte qui, al posto di quello del viaggio"_s),
           Euro(PrezzoIngresso, u"txtPrezzoIngresso"_s, u"ingressi"_s, u"Prezzo degli ingressi"_s)}}},
        {u"Appunti"_s,
         {{Testo(Prenotazione, u"txtPrenotazione"_s, u"Prenotazione n."_s, u"Numero della prenotazione"_s)},
          {Testo(Telefono, u"txtTelefono"_s, u"Telefono"_s, u"Numero di telefono"_s)},
          {Testo(Link, u"txtLink"_s, u"Link"_s, u"Indirizzo della pagina internet"_s)},
          {{Nota, u"txtNota"_s, u"Nota"_s, 0, 0, u"Nota, fino a 500 caratteri"_s, {}, 4}}}},
    };
}

}  // namespace

std::optional<VincoliTappa> ChiediVincoli(QWidget& finestra, const Tappa& tappa) {
    const auto difetto = [](const std::vector<QString>& testi) -> std::optional<std::pair<int, QString>> {
        const VincoliDigitati digitati = LeggiDigitati(testi);
        if (!digitati.difetto) return std::nullopt;
        return std::pair(digitati.difetto->campo, digitati.difetto->messaggio);
    };
    const auto testi = ChiediModulo(
        finestra, {u"Orari e note di "_s + tappa.localita, {}, Gruppi(), TestiDaDigitare(tappa.vincoli), difetto});
    return testi ? std::optional(LeggiDigitati(*testi).vincoli) : std::nullopt;
}

}  // namespace cronovia
