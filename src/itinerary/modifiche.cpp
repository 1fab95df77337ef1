// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/modifiche.h"

#include <algorithm>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimoKm = 999;
constexpr int kPrimaRigaConProgressivi = 3;
constexpr std::int64_t kProgressiviMinimi = 100;

std::size_t Indice(int riga) { return static_cast<std::size_t>(riga - 1); }

bool Esiste(std::span<const Tappa> righe, int riga) { return riga >= 1 && Indice(riga) < righe.size(); }

}  // namespace

int NumeroTappe(std::span<const Tappa> righe) {
    const auto ultima =
        std::find_if(righe.rbegin(), righe.rend(), [](const Tappa& t) { return !t.localita.trimmed().isEmpty(); });
    return static_cast<int>(righe.rend() - ultima);
}

std::optional<int> PrimaDaIndicare(std::span<const Tappa> righe) {
    const auto prima = std::find_if(righe.begin(), righe.end(), [](const Tappa& t) { return t.kmDaIndicare; });
    return prima == righe.end() ? std::nullopt : std::optional(static_cast<int>(prima - righe.begin()) + 1);
}

CampiTappa CampiDellaRiga(std::span<const Tappa> righe, int riga) {
    const Tappa tappa = Esiste(righe, riga) ? righe[Indice(riga)] : Tappa();
    CampiTappa campi{tappa.localita, tappa.numStrada.trimmed(), tappa.km, tappa.tipo, tappa.sosta, tappa.fineGiorno};
    const bool strada = Esiste(righe, riga - 1) && !righe[Indice(riga - 1)].Traghetto();
    if (campi.numStrada.isEmpty() && strada) campi.numStrada = righe[Indice(riga - 1)].numStrada;
    campi.kmDaIndicare = tappa.kmDaIndicare;
    campi.kmStimati = tappa.kmStimati;
    if (riga > 1 && !campi.tipo) campi.tipo = TipoStrada::Locale;
    return campi;
}

std::int64_t KmPrecedenti(std::span<const Tappa> righe, const RiepilogoItinerario& riepilogo, int riga) {
    if (!Esiste(righe, riga - 1) || Indice(riga - 1) >= riepilogo.tappe.size()) return 0;
    return righe[Indice(riga - 1)].km == 0 ? 0 : riepilogo.tappe[Indice(riga - 1)].kmProgressivi;
}

int KmDellaTappa(int km, std::int64_t precedenti, int riga) {
    if (riga < kPrimaRigaConProgressivi || precedenti <= kProgressiviMinimi || km <= precedenti) return km;
    return km - static_cast<int>(precedenti);
}

std::vector<Message> ControllaTappa(const CampiTappa& campi, int riga) {
    std::vector<Message> rifiuti;
    if (!campi.kmLeggibili) {
        rifiuti.push_back({u"Impossibile:\nI chilometri sono un numero intero: scrivi solo cifre"_s, {}});
    }
    if (campi.km > kMassimoKm) rifiuti.push_back({u"Impossibile:\nIndica un valore compreso tra 1 e 999"_s, {}});
    if (campi.localita.trimmed().isEmpty()) {
        rifiuti.push_back({u"Impossibile:\nIndica il nome della località!"_s, {}});
    }
    if (!rifiuti.empty()) return rifiuti;
    const QString titolo = u"Dato obbligatorio"_s;
    const bool qualcosa = campi.km != 0 || campi.kmDaIndicare || !campi.sosta.Nulla() || campi.fineGiorno;
    if (!qualcosa && riga > 1 && !campi.numStrada.contains("TRAGH"_L1)) {
        rifiuti.push_back({u"Chilometri (o sosta): dato obbligatorio!"_s, titolo});
    } else if (campi.km != 0 && !campi.tipo) {
        rifiuti.push_back({u"Tipo strada obbligatorio!"_s, titolo});
    }
    return rifiuti;
}

RigheItinerario InserisceTappa(RigheItinerario righe, int riga, const CampiTappa& campi) {
    if (!Esiste(righe, riga)) righe.resize(static_cast<std::size_t>(riga));
    Tappa& tappa = righe[Indice(riga)];
    tappa.localita = campi.localita;
    tappa.numStrada = campi.numStrada;
    tappa.km = campi.km;
    tappa.kmDaIndicare = campi.kmDaIndicare;
    tappa.kmStimati = campi.kmStimati && campi.km > 0;
    tappa.tipo = campi.km == 0 && !campi.kmDaIndicare ? std::nullopt : campi.tipo;
    tappa.sosta = campi.sosta;
    tappa.fineGiorno = campi.fineGiorno;
    return righe;
}

RigheItinerario ImpostaVincoli(RigheItinerario righe, int riga, const VincoliTappa& vincoli) {
    if (Esiste(righe, riga) && !righe[Indice(riga)].localita.trimmed().isEmpty()) righe[Indice(riga)].vincoli = vincoli;
    return righe;
}

RigheItinerario InserisciRigheItinerario(RigheItinerario righe, int riga, int numero) {
    const auto indice = std::min(Indice(riga), righe.size());
    righe.insert(righe.begin() + static_cast<std::ptrdiff_t>(indice), static_cast<std::size_t>(numero), Tappa());
    return righe;
}

RigheItinerario CancellaRiga(RigheItinerario righe, int riga) {
    if (Esiste(righe, riga)) righe.erase(righe.begin() + (riga - 1));
    return righe;
}

RigheItinerario AzzeraSoste(RigheItinerario righe) {
    for (Tappa& tappa : righe) {
        tappa.sosta = {};
        tappa.fineGiorno = false;
    }
    return righe;
}

}  // namespace cronovia
