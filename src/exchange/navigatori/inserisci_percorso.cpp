// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/navigatori/inserisci_percorso.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "calendar/testo.h"
#include "interaction/failure.h"
#include "itinerary/posizioni.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString NomeLuogo(const Tappa& tappa) { return tappa.localita.trimmed(); }

bool StessaLocalita(const Tappa& tappa, const QString& luogo) {
    return NomeLuogo(tappa).compare(luogo.trimmed(), Qt::CaseInsensitive) == 0;
}

// The first stage from a position on.
std::size_t TappaDa(const RigheItinerario& righe, std::size_t posto) {
    while (posto < righe.size() && NomeLuogo(righe[posto]).isEmpty()) ++posto;
    return posto;
}

QString NomePrima(const RigheItinerario& righe, std::size_t posto) {
    while (posto > 0) {
        if (QString luogo = NomeLuogo(righe[--posto]); !luogo.isEmpty()) return luogo;
    }
    return {};
}

// A road without a name keeps the one that the stage had.
void PrendeLaTratta(Tappa& tappa, const Tappa& delPercorso) {
    if (!delPercorso.numStrada.trimmed().isEmpty()) tappa.numStrada = delPercorso.numStrada;
    tappa.km = delPercorso.km;
    tappa.kmDaIndicare = delPercorso.kmDaIndicare;
    tappa.kmStimati = delPercorso.kmStimati;
    tappa.tipo = delPercorso.tipo;
}

// Where the stages lie for certain; what the file says of its own counts before all else.
class DoveSono {
  public:
    DoveSono(const RichiestaInserisciPercorso& richiesta, const RigheItinerario& righe)
        : posizioni_(PosizioniDelViaggio(PosizioniConfermate(richiesta.archive), richiesta.gazzettino, righe,
                                         richiesta.nazione)) {
        for (const auto& [localita, posizione] : richiesta.percorso.posizioni) delFile_[localita] = posizione;
    }
    [[nodiscard]] std::optional<Posizione> Di(const RigheItinerario& righe, std::size_t posto) const {
        const auto suo = delFile_.find(NomeLuogo(righe[posto]));
        if (suo != delFile_.end()) return suo->second;
        return posizioni_[posto].Certa() ? posizioni_[posto].posizione : std::nullopt;
    }

  private:
    std::vector<PosizioneTappa> posizioni_;
    std::map<QString, Posizione> delFile_;
};

// Guesses the kilometres of the stage, which are to be told, when it is driven to.
Giunzione Stimata(RigheItinerario& righe, std::size_t posto, const DoveSono& dove) {
    Giunzione giunzione{NomePrima(righe, posto), NomeLuogo(righe[posto]), std::nullopt};
    std::size_t prima = posto;
    while (prima > 0 && NomeLuogo(righe[--prima]).isEmpty()) {
    }
    const auto da = dove.Di(righe, prima);
    const auto a = dove.Di(righe, posto);
    Tappa& tappa = righe[posto];
    if (!da || !a || tappa.Traghetto()) return giunzione;
    const double distanza = DistanzaKm(*da, *a);
    if (!tappa.tipo) tappa.tipo = TipoPerKm(KmStimati(distanza, std::nullopt));
    tappa.km = KmStimati(distanza, tappa.tipo);
    tappa.kmDaIndicare = false;
    tappa.kmStimati = true;
    giunzione.km = tappa.km;
    return giunzione;
}

}  // namespace

PercorsoInserito InserisciPercorso(const RichiestaInserisciPercorso& richiesta) {
    PercorsoInserito inserito;
    RigheItinerario nuove = richiesta.percorso.tappe;
    const std::size_t posto = std::min(static_cast<std::size_t>(richiesta.dove - 1), richiesta.righe.size());
    const QString prima = NomePrima(richiesta.righe, posto);
    const std::size_t dopo = TappaDa(richiesta.righe, posto);
    if (!prima.isEmpty()) inserito.dopo = prima;
    inserito.primaUnita = StessaLocalita(nuove.front(), prima);
    if (inserito.primaUnita) nuove.erase(nuove.begin());
    const bool conSeguente = dopo < richiesta.righe.size() && !richiesta.righe[dopo].Traghetto();
    inserito.ultimaUnita =
        conSeguente && !nuove.empty() && StessaLocalita(nuove.back(), NomeLuogo(richiesta.righe[dopo]));
    const Tappa ultima = nuove.empty() ? Tappa() : nuove.back();
    if (inserito.ultimaUnita) nuove.pop_back();
    if (std::ssize(richiesta.righe) + std::ssize(nuove) > kMassimoTappe) {
        throw Failure(u"Con questo percorso l'itinerario avrebbe più di %1 tappe: non può contenerle."_s.arg(
            Raggruppa(kMassimoTappe)));
    }
    inserito.esito = InserisciRighe(richiesta.righe, richiesta.dove, nuove, inserito.primaUnita ? prima : QString());
    RigheItinerario& righe = inserito.esito.righe;
    if (inserito.ultimaUnita) PrendeLaTratta(righe[dopo + nuove.size()], ultima);
    const DoveSono dove(richiesta, righe);
    for (const std::size_t giunta : {posto, dopo + nuove.size()}) {
        if (giunta < righe.size() && righe[giunta].kmDaIndicare && !NomeLuogo(righe[giunta]).isEmpty()) {
            inserito.giunzioni.push_back(Stimata(righe, giunta, dove));
        }
    }
    return inserito;
}

QString TestoInserimento(const PercorsoInserito& inserito) {
    QStringList testi = {inserito.dopo ? u"Il percorso va dopo %1."_s.arg(*inserito.dopo)
                                       : u"Il percorso va all'inizio dell'itinerario."_s};
    if (inserito.primaUnita) testi += u"%1 c'è già: la prima tappa del percorso non si ripete."_s.arg(*inserito.dopo);
    if (inserito.ultimaUnita) {
        testi += u"L'ultima tappa del percorso c'è già: resta una volta, con la sua sosta e i suoi orari."_s;
    }
    for (const Giunzione& giunzione : inserito.giunzioni) {
        const QString km = giunzione.km ? u"circa %1 km, stimati in linea d'aria"_s.arg(Raggruppa(*giunzione.km))
                                        : u"chilometri da indicare"_s;
        testi += u"Da %1 %2: %3."_s.arg(giunzione.da, ALuogo(giunzione.a), km);
    }
    return testi.join(u'\n');
}

}  // namespace cronovia
