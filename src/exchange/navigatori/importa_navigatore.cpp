// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/navigatori/importa_navigatore.h"

#include <QDir>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>
#include <span>

#include "calendar/testo.h"
#include "exchange/percorsi/importa_percorso.h"
#include "interaction/failure.h"
#include "itinerary/posizioni.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kNomeEntroKm = 25;
constexpr int kKmAutostrada =
    80;  // legs that long are mostly driven on motorways, those below the other on local roads
constexpr int kKmLocale = 15;

// A point of the way to be: what it is called, and how far it is from the one before.
struct PuntoDellaVia {
    PuntoLetto punto;
    double km = 0;
    bool misurati = false;  // along a track
};

double Lunghezza(std::span<const Posizione> punti) {
    double km = 0;
    for (std::size_t i = 1; i < punti.size(); ++i) km += DistanzaKm(punti[i - 1], punti[i]);
    return km;
}

// Unnamed points between the ends lengthen the way to the next named one.
std::vector<PuntoDellaVia> LungoLaRotta(const std::vector<PuntoLetto>& punti) {
    std::vector<PuntoDellaVia> via;
    double km = 0;
    for (std::size_t i = 0; i < punti.size(); ++i) {
        if (i > 0) km += DistanzaKm(punti[i - 1].posizione, punti[i].posizione);
        if (i > 0 && i + 1 < punti.size() && punti[i].nome.isEmpty()) continue;
        via.push_back({punti[i], km, false});
        km = 0;
    }
    return via;
}

// How far points are from each other, squared, on a plane: enough for what is near, and many times quicker.
class Vicinanza {
  public:
    explicit Vicinanza(const Posizione& posizione)
        : posizione_(posizione), coseno_(std::cos(posizione.latitudine * std::numbers::pi / 180)) {}

    double operator()(const Posizione& altra) const {
        const double nord = (altra.latitudine - posizione_.latitudine) * kKmPerGrado;
        const double est = (altra.longitudine - posizione_.longitudine) * kKmPerGrado * coseno_;
        return nord * nord + est * est;
    }

  private:
    static constexpr double kKmPerGrado = 111.2;
    Posizione posizione_;
    double coseno_;
};

// Where a track passes a point for the first time from `da` on; behind its last pass, where it comes nearest at all.
std::size_t Passaggio(const Posizione& posizione, std::span<const Posizione> traccia, std::size_t da) {
    constexpr double kTolleranza = 0.3;  // kilometres more than where it comes nearest
    const Vicinanza vicinanza(posizione);
    std::size_t vicino = 0;
    double minima = 1e12;
    for (std::size_t i = 0; i < traccia.size(); ++i) {
        const double distanza = vicinanza(traccia[i]);
        if (distanza < minima) {
            minima = distanza;
            vicino = i;
        }
    }
    const double entro = std::sqrt(minima) + kTolleranza;
    for (std::size_t i = da; i < traccia.size(); ++i) {
        if (vicinanza(traccia[i]) > entro * entro) continue;
        while (i + 1 < traccia.size() && vicinanza(traccia[i + 1]) < vicinanza(traccia[i])) ++i;
        return i;
    }
    return vicino;
}

// Of a track with very many points each so manieth one, so that a file never takes minutes.
std::vector<Posizione> Sfoltita(const std::vector<Posizione>& traccia, std::size_t luoghi) {
    constexpr std::size_t kMassimiConfronti = 100'000'000;
    const std::size_t ogni = traccia.size() * luoghi / kMassimiConfronti + 1;
    std::vector<Posizione> punti;
    for (std::size_t i = 0; i < traccia.size(); i += ogni) punti.push_back(traccia[i]);
    if (ogni > 1) punti.push_back(traccia.back());
    return punti;
}

using PuntoPassato = std::pair<std::size_t, PuntoLetto>;

// In the order of the track; of several at one place the first one of the file.
std::vector<PuntoPassato> PassatiDalla(std::span<const Posizione> traccia, const std::vector<PuntoLetto>& luoghi) {
    constexpr double kStessoPosto = 0.05;
    std::vector<PuntoPassato> passati;
    std::size_t da = 0;
    for (const PuntoLetto& luogo : luoghi) {
        if (luogo.nome.isEmpty()) continue;
        const std::size_t dove = Passaggio(luogo.posizione, traccia, da);
        da = std::max(da, dove);
        passati.emplace_back(dove, luogo);
    }
    std::stable_sort(passati.begin(), passati.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    const auto insieme = [](const PuntoPassato& a, const PuntoPassato& b) {
        return a.first == b.first && DistanzaKm(a.second.posizione, b.second.posizione) < kStessoPosto;
    };
    passati.erase(std::unique(passati.begin(), passati.end(), insieme), passati.end());
    return passati;
}

// The named points where the track passes them, between its ends.
std::vector<PuntoDellaVia> LungoLaTraccia(const std::vector<PuntoLetto>& luoghi, const std::vector<Posizione>& intera) {
    const std::vector<Posizione> punti = Sfoltita(intera, luoghi.size());
    const std::span<const Posizione> traccia(punti);
    std::vector<PuntoPassato> passati = PassatiDalla(traccia, luoghi);
    constexpr double kAlCapo = 2;  // a point that near to an end is that end
    const auto alCapo = [&](std::size_t capo, const PuntoPassato& passato) {
        return DistanzaKm(traccia[capo], traccia[passato.first]) < kAlCapo;
    };
    if (passati.empty() || !alCapo(0, passati.front())) passati.insert(passati.begin(), {0, {{}, traccia.front()}});
    if (!alCapo(traccia.size() - 1, passati.back()) || passati.size() == 1) {
        passati.emplace_back(traccia.size() - 1, PuntoLetto{{}, traccia.back()});
    }
    std::vector<PuntoDellaVia> via;
    constexpr double kTrattoDritto = 2;  // a longer one without a point between its ends is drawn, and was not driven
    std::size_t prima = passati.front().first;
    for (const auto& [dove, punto] : passati) {
        const double km = Lunghezza(traccia.subspan(prima, dove - prima + 1));
        via.push_back({punto, km, dove - prima > 1 || km < kTrattoDritto});
        prima = dove;
    }
    return via;
}

std::vector<PuntoDellaVia> Via(const FileNavigatore& file) {
    if (file.rotta.size() > 1) return LungoLaRotta(file.rotta);
    if (file.traccia.size() > 1) return LungoLaTraccia(file.luoghi, file.traccia);
    return LungoLaRotta(file.luoghi);
}

}  // namespace

TipoStrada TipoPerKm(int km) {
    return km >= kKmAutostrada ? TipoStrada::Autostrada : km >= kKmLocale ? TipoStrada::Principale : TipoStrada::Locale;
}

PercorsoNavigatore TappeDelNavigatore(const FileNavigatore& file, Gazzettino& gazzettino) {
    PercorsoNavigatore percorso;
    const std::vector<PuntoDellaVia> via = Via(file);
    if (via.size() < 2) return percorso;
    for (const PuntoDellaVia& p : via) {
        QString nome = Maiuscolo(p.punto.nome);
        if (nome.isEmpty()) {
            const auto luogo = gazzettino.PiuVicino(p.punto.posizione, kNomeEntroKm);
            nome = luogo ? Maiuscolo(luogo->nome) : Testo(p.punto.posizione);
        }
        Tappa tappa;
        tappa.localita = nome;
        if (!percorso.tappe.empty()) {
            const int intero = std::max(1, static_cast<int>(std::lround(p.km)));
            const TipoStrada tipo = TipoPerKm(p.misurati ? intero : KmStimati(p.km, std::nullopt));
            tappa.km = p.misurati ? intero : KmStimati(p.km, tipo);
            tappa.tipo = tipo;
            tappa.kmStimati = !p.misurati;
        }
        percorso.posizioni.emplace_back(nome, p.punto.posizione);
        percorso.tappe.push_back(tappa);
    }
    return percorso;
}

std::optional<PercorsoNavigatore> LeggiPercorsoNavigatore(const QString& path, Gazzettino& gazzettino) {
    const std::optional<FileNavigatore> file = LeggiNavigatore(path);
    if (!file) return std::nullopt;
    PercorsoNavigatore percorso = TappeDelNavigatore(*file, gazzettino);
    const QString nome = QDir::toNativeSeparators(path);
    if (percorso.tappe.empty()) throw Failure(u"Nel percorso del file %1 non c'è nessuna tappa."_s.arg(nome));
    if (std::ssize(percorso.tappe) > kMassimoTappe) {
        throw Failure(u"Il percorso del file %1 ha più di %2 tappe: un itinerario non può contenerle."_s.arg(
            nome, Raggruppa(kMassimoTappe)));
    }
    return percorso;
}

std::optional<PercorsoNavigatore> LeggiOgniPercorso(const QString& path, Gazzettino& gazzettino, Progress& progress) {
    if (auto percorso = LeggiPercorsoNavigatore(path, gazzettino)) return percorso;
    auto tappe = LeggiPercorso(path, progress);
    if (!tappe) return std::nullopt;
    return PercorsoNavigatore{std::move(*tappe), {}};
}

CambiPosizioni ConfermaPosizioni(Archive& archive, const PercorsoNavigatore& percorso) {
    CambiPosizioni cambi;
    Transaction transaction(archive);
    for (const auto& [localita, posizione] : percorso.posizioni) {
        CambioPosizione cambio = ConfermaPosizione(archive, localita, posizione);
        if (cambio.prima != cambio.dopo) cambi.push_back(std::move(cambio));
    }
    transaction.Commit();
    return cambi;
}

QString TestoKmStimati(std::span<const Tappa> tappe) {
    const auto stimati = std::count_if(tappe.begin(), tappe.end(), [](const Tappa& t) { return t.kmStimati; });
    if (stimati == 0) return {};
    const QString quante = stimati == 1 ? u"una tappa"_s : Raggruppa(stimati) + u" tappe"_s;
    return u"I chilometri di "_s + quante + u" sono stimati in linea d'aria: controllali."_s;
}

}  // namespace cronovia
