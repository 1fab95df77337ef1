// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/scelta_luoghi.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// A place that fits less well than this is taken for a namesake of the one meant.
constexpr double kCostoEscluso = 6;
constexpr double kMassimoScarto = 40;
// How many places in a row can be namesakes.
constexpr std::size_t kMassimoEsclusi = 4;
// Grades of the binary logarithm of a big town's people.
constexpr double kPesoGrande = 20;

struct Candidato {
    Posizione posizione;
    QString nazione;
    double costo = 0;
    FontePosizione fonte = FontePosizione::Repertorio;
};

// A passage whose name somebody has, with the way to it from the departure.
struct Nodo {
    std::size_t passaggio = 0;
    std::vector<Candidato> candidati;
    double strada = 0;     // kilometres driven
    double attesa = 0;     // the straight way that they stand for
    int tratteIgnote = 0;  // legs whose kilometres are not known
};

double CostoDelNome(const Luogo& luogo, const QStringList& nazioni) {
    const double modo = luogo.modo == ModoNome::Proprio ? 0 : luogo.modo == ModoNome::Altro ? 0.8 : 1.6;
    const double piccolo = 1.5 * std::max(0.0, 1 - luogo.peso / kPesoGrande);
    return modo + piccolo + (nazioni.isEmpty() || nazioni.contains(luogo.nazione) ? 0 : 0.4);
}

std::vector<Candidato> CandidatiPer(const QString& localita, const PosizioniConfermate& confermate,
                                    Gazzettino& gazzettino, const QStringList& nazioni) {
    if (const auto confermata = confermate.Di(localita)) {
        return {{*confermata, {}, 0, FontePosizione::Confermata}};
    }
    std::vector<Candidato> candidati;
    for (const Luogo& luogo : gazzettino.Chiamati(localita)) {
        candidati.push_back({luogo.posizione, luogo.nazione, CostoDelNome(luogo, nazioni)});
    }
    return candidati;
}

// How badly a straight distance fits the way between two nodes. A road may wind a lot, but is never the shorter one.
double Scarto(double diretta, const Nodo& da, const Nodo& a) {
    constexpr double kVicinanza = 300;  // while nothing tells how far: a town is meant before a nearer namesake abroad
    if (a.tratteIgnote > da.tratteIgnote) return std::min(diretta / kVicinanza, kMassimoScarto);
    const double attesa = a.attesa - da.attesa;
    const double strada = a.strada - da.strada;
    const double larghezza = diretta < attesa ? 0.3 * attesa + 4 : 0.1 * attesa + 2.5;
    const double scarto = (diretta - attesa) / larghezza;
    const double impossibile = std::max(0.0, diretta - 1.03 * strada - 3) / 4;
    return std::min(scarto * scarto + impossibile, kMassimoScarto);
}

std::vector<Nodo> Nodi(std::span<const Passaggio> passaggi, const PosizioniConfermate& confermate,
                       Gazzettino& gazzettino, const QStringList& nazioni) {
    std::map<QString, std::vector<Candidato>> giaCercati;
    std::vector<Nodo> nodi;
    Nodo cammino;
    for (std::size_t i = 0; i < passaggi.size(); ++i) {
        const Passaggio& passaggio = passaggi[i];
        if (i > 0 && passaggio.km) {
            cammino.strada += *passaggio.km;
            cammino.attesa += *passaggio.km / passaggio.fattore;
        } else if (i > 0) {
            ++cammino.tratteIgnote;
        }
        auto [cercato, nuovo] = giaCercati.try_emplace(passaggio.localita);
        if (nuovo) cercato->second = CandidatiPer(passaggio.localita, confermate, gazzettino, nazioni);
        if (cercato->second.empty()) continue;
        cammino.passaggio = i;
        nodi.push_back(cammino);
        nodi.back().candidati = cercato->second;
    }
    return nodi;
}

// The best way to end at a candidate.
struct Stato {
    double costo = std::numeric_limits<double>::max();
    int nodo = -1;  // the one before; none: the first that counts
    int candidato = -1;
};

class SceltaMigliore {
  public:
    explicit SceltaMigliore(const std::vector<Nodo>& nodi) : nodi_(nodi), stati_(nodi.size()) {
        for (std::size_t n = 0; n < nodi_.size(); ++n) Avanza(n);
    }

    /// The candidate of each node; -1 where none fits.
    [[nodiscard]] std::vector<int> Scelti() const {
        std::vector<int> scelti(nodi_.size(), -1);
        auto [nodo, candidato] = Fine();
        while (nodo >= 0) {
            scelti[static_cast<std::size_t>(nodo)] = candidato;
            const Stato& stato = stati_[static_cast<std::size_t>(nodo)][static_cast<std::size_t>(candidato)];
            nodo = stato.nodo;
            candidato = stato.candidato;
        }
        return scelti;
    }

  private:
    // What it costs to leave out the nodes between two of them. What is confirmed cannot be left out.
    [[nodiscard]] double CostoEsclusi(std::size_t dopo, std::size_t prima) const {
        double costo = 0;
        for (std::size_t n = dopo; n < prima; ++n) {
            const bool confermato = nodi_[n].candidati.front().fonte == FontePosizione::Confermata;
            costo += confermato ? 1000 : kCostoEscluso;
        }
        return costo;
    }

    void Avanza(std::size_t n) {
        const Nodo& nodo = nodi_[n];
        stati_[n].resize(nodo.candidati.size());
        for (std::size_t c = 0; c < nodo.candidati.size(); ++c) {
            if (n <= kMassimoEsclusi) stati_[n][c] = {CostoEsclusi(0, n), -1, -1};
            for (std::size_t m = n > kMassimoEsclusi ? n - 1 - kMassimoEsclusi : 0; m < n; ++m) Prova(m, n, c);
            stati_[n][c].costo += nodo.candidati[c].costo;
        }
    }

    void Prova(std::size_t m, std::size_t n, std::size_t c) {
        Stato& stato = stati_[n][c];
        const double esclusi = CostoEsclusi(m + 1, n);
        const Posizione& qui = nodi_[n].candidati[c].posizione;
        for (std::size_t d = 0; d < nodi_[m].candidati.size(); ++d) {
            const double finora = stati_[m][d].costo + esclusi;
            if (finora >= stato.costo) continue;
            const double costo = finora + Scarto(DistanzaKm(nodi_[m].candidati[d].posizione, qui), nodi_[m], nodi_[n]);
            if (costo < stato.costo) stato = {costo, static_cast<int>(m), static_cast<int>(d)};
        }
    }

    [[nodiscard]] std::pair<int, int> Fine() const {
        std::pair fine{-1, -1};
        double minimo = std::numeric_limits<double>::max();
        const std::size_t primo = nodi_.size() > kMassimoEsclusi ? nodi_.size() - 1 - kMassimoEsclusi : 0;
        for (std::size_t n = primo; n < nodi_.size(); ++n) {
            for (std::size_t c = 0; c < stati_[n].size(); ++c) {
                const double costo = stati_[n][c].costo + CostoEsclusi(n + 1, nodi_.size());
                if (costo >= minimo) continue;
                minimo = costo;
                fine = {static_cast<int>(n), static_cast<int>(c)};
            }
        }
        return fine;
    }

    const std::vector<Nodo>& nodi_;
    std::vector<std::vector<Stato>> stati_;
};

// Those between two known ones. Legs whose kilometres are not known share the part of the way that the others leave.
void Interpola(std::span<const Passaggio> passaggi, std::span<PosizioneTappa> tratto) {
    const Posizione& da = *tratto.front().posizione;
    const Posizione& a = *tratto.back().posizione;
    double nota = 0;
    int ignote = 0;
    for (const Passaggio& p : passaggi.subspan(1)) p.km ? nota += *p.km / p.fattore : ++ignote;
    const double ignota = ignote > 0 ? std::max(1.0, DistanzaKm(da, a) - nota) / ignote : 0;
    const double tutta = std::max(nota + ignota * ignote, 0.1);
    double finora = 0;
    for (std::size_t i = 1; i + 1 < tratto.size(); ++i) {
        finora += passaggi[i].km ? *passaggi[i].km / passaggi[i].fattore : ignota;
        tratto[i] = {Fra(da, a, finora / tutta), FontePosizione::Interpolata, {}};
    }
}

}  // namespace

QString Testo(FontePosizione fonte) {
    switch (fonte) {
        case FontePosizione::Confermata:
            return u"confermata"_s;
        case FontePosizione::Repertorio:
            return u"repertorio"_s;
        case FontePosizione::Interpolata:
            return u"interpolata"_s;
        case FontePosizione::Sconosciuta:
            break;
    }
    return u"sconosciuta"_s;
}

std::vector<PosizioneTappa> ScegliLuoghi(std::span<const Passaggio> passaggi, const PosizioniConfermate& confermate,
                                         Gazzettino& gazzettino, const QStringList& nazioni) {
    std::vector<PosizioneTappa> posizioni(passaggi.size());
    const std::vector<Nodo> nodi = Nodi(passaggi, confermate, gazzettino, nazioni);
    const std::vector<int> scelti = SceltaMigliore(nodi).Scelti();
    std::optional<std::size_t> precedente;
    for (std::size_t n = 0; n < nodi.size(); ++n) {
        if (scelti[n] < 0) continue;
        const Candidato& scelto = nodi[n].candidati[static_cast<std::size_t>(scelti[n])];
        const std::size_t qui = nodi[n].passaggio;
        posizioni[qui] = {scelto.posizione, scelto.fonte, scelto.nazione};
        if (precedente) {
            const std::size_t quanti = qui - *precedente + 1;
            Interpola(passaggi.subspan(*precedente, quanti), std::span(posizioni).subspan(*precedente, quanti));
        }
        precedente = qui;
    }
    return posizioni;
}

}  // namespace cronovia
