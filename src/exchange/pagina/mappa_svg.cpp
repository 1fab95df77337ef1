// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/pagina/mappa_svg.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kLarghezza = 420;  // units of a drawing
constexpr double kMassimaAltezza = 500;
constexpr double kAltezzaDelGiorno = 240;
constexpr double kMinimaAltezza = 160;
constexpr double kOrlo = 26;  // between the places and the rim
constexpr double kPasso = 2;  // shorter strokes of coasts are left out
constexpr std::size_t kMassimiNomi = 12;
constexpr double kAltezzaNome = 13;
constexpr double kLarghezzaLettera = 6.4;  // of an ordinary letter, which nobody measures here

struct PuntoSvg {
    double x = 0;
    double y = 0;
};

// From the plane of the map to a drawing.
class Scala {
  public:
    Scala(const RiquadroMappa& riquadro, double massimaAltezza) : centro_(riquadro.Centro()) {
        const double dentro = kLarghezza - 2 * kOrlo;
        fattore_ = std::min(dentro / riquadro.Larghezza(), (massimaAltezza - 2 * kOrlo) / riquadro.Altezza());
        altezza_ = std::max(kMinimaAltezza, riquadro.Altezza() * fattore_ + 2 * kOrlo);
    }

    [[nodiscard]] double Altezza() const { return altezza_; }
    [[nodiscard]] PuntoSvg operator()(const PuntoMappa& punto) const {
        return {kLarghezza / 2 + (punto.x - centro_.x) * fattore_, altezza_ / 2 + (punto.y - centro_.y) * fattore_};
    }
    [[nodiscard]] RiquadroMappa Visto() const {
        const double x = kLarghezza / 2 / fattore_;
        const double y = altezza_ / 2 / fattore_;
        return {{centro_.x - x, centro_.y - y}, {centro_.x + x, centro_.y + y}};
    }

  private:
    PuntoMappa centro_;
    double fattore_ = 1;
    double altezza_ = 0;
};

QString Numero(double valore) { return QString::number(valore, 'f', 1); }

class Disegno {
  public:
    Disegno(const MappaViaggio& mappa, const Coste& coste, const Scala& scala, ScrittoreHtml& html)
        : mappa_(mappa), coste_(coste), scala_(scala), html_(html) {}

    void Apri(const QString& titolo) {
        html_.Apre(u"svg"_s, {{u"class", u"mappa"_s},
                              {u"viewBox", u"0 0 %1 %2"_s.arg(kLarghezza).arg(std::round(scala_.Altezza()))},
                              {u"role", u"img"_s},
                              {u"aria-label", titolo}});
        html_.Apre(u"rect"_s, {{u"class", u"mare"_s}, {u"width", u"100%"_s}, {u"height", u"100%"_s}});
        html_.Chiude();
        Tracciato(coste_.terre, u"terra"_s, true);
        Tracciato(coste_.confini, u"confine"_s, false);
    }
    void Chiudi() { html_.Chiude(); }

    void Tratte() {
        for (const bool traghetti : {false, true}) {
            for (const bool pari : {false, true}) {
                QString tracciato;
                for (const TrattaSullaMappa& tratta : mappa_.tratte) {
                    if (tratta.traghetto != traghetti || (tratta.giornata % 2 == 0) != pari) continue;
                    tracciato += u'M' + Punto(tratta.da) + u'L' + Punto(tratta.a);
                }
                if (tracciato.isEmpty()) continue;
                Forma(tracciato, (pari ? u"via pari"_s : u"via"_s) + (traghetti ? u" traghetto"_s : QString()));
            }
        }
    }

    void Punti() {
        for (const LuogoSullaMappa& luogo : mappa_.luoghi) {
            const PuntoSvg p = scala_(luogo.dove);
            html_.Apre(u"circle"_s, {{u"class", luogo.notte     ? u"notte"_s
                                                : luogo.Certo() ? u"luogo"_s
                                                                : u"incerto"_s},
                                     {u"cx", Numero(p.x)},
                                     {u"cy", Numero(p.y)},
                                     {u"r", luogo.notte ? u"5"_s : u"3"_s}});
            html_.Elemento(u"title"_s, luogo.nome);
            html_.Chiude();
        }
    }

    /// Where it has room.
    void Nome(const QString& nome, const PuntoMappa& dove) {
        const PuntoSvg p = scala_(dove);
        const double larghezza = static_cast<double>(nome.size()) * kLarghezzaLettera;
        const bool aSinistra = p.x + 8 + larghezza > kLarghezza;
        const double x = aSinistra ? p.x - 8 - larghezza : p.x + 8;
        const RiquadroMappa posto{{x, p.y - kAltezzaNome / 2}, {x + larghezza, p.y + kAltezzaNome / 2}};
        const bool occupato =
            std::any_of(posti_.begin(), posti_.end(), [&](const RiquadroMappa& altro) { return altro.Tocca(posto); });
        if (occupato || x < 0) return;
        posti_.push_back(posto);
        html_.Elemento(u"text"_s, nome,
                       {{u"x", Numero(aSinistra ? p.x - 8 : p.x + 8)},
                        {u"y", Numero(p.y + 4)},
                        {u"text-anchor", aSinistra ? u"end"_s : u"start"_s}});
    }

  private:
    [[nodiscard]] QString Punto(const PuntoMappa& punto) const {
        const PuntoSvg p = scala_(punto);
        return Numero(p.x) + u' ' + Numero(p.y);
    }

    // Only what can be seen, and no more of it than can be told apart.
    void Tracciato(const std::vector<LineaCosta>& linee, const QString& classe, bool chiuse) {
        const RiquadroMappa visto = scala_.Visto();
        QString tracciato;
        for (const LineaCosta& linea : linee) {
            std::vector<PuntoMappa> punti;
            punti.reserve(linea.size());
            for (const Posizione& posizione : linea) punti.push_back(Proietta(posizione));
            if (RiquadroDi(punti).Tocca(visto)) tracciato += InUnita(Sfrondata(punti, visto, 0), visto, chiuse);
        }
        if (!tracciato.isEmpty()) Forma(tracciato, classe);
    }

    // What lies outside is moved near to the rim, short strokes are left out.
    [[nodiscard]] QString InUnita(const std::vector<PuntoMappa>& punti, const RiquadroMappa& visto, bool chiusa) const {
        const double margineX = visto.Larghezza() * 0.1;
        const double margineY = visto.Altezza() * 0.1;
        std::vector<PuntoSvg> tenuti;
        for (const PuntoMappa& punto : punti) {
            const PuntoSvg esatto = scala_({std::clamp(punto.x, visto.min.x - margineX, visto.max.x + margineX),
                                            std::clamp(punto.y, visto.min.y - margineY, visto.max.y + margineY)});
            const PuntoSvg p{std::round(esatto.x), std::round(esatto.y)};
            if (tenuti.empty() || std::hypot(p.x - tenuti.back().x, p.y - tenuti.back().y) >= kPasso) {
                tenuti.push_back(p);
            }
        }
        return tenuti.size() < 2 ? QString() : ComeTracciato(tenuti) + (chiusa ? u"Z"_s : QString());
    }

    static QString ComeTracciato(const std::vector<PuntoSvg>& punti) {
        QString tracciato;
        PuntoSvg prima;
        for (const PuntoSvg& p : punti) {
            const bool primo = tracciato.isEmpty();
            const QString y = QString::number(primo ? p.y : p.y - prima.y);
            tracciato += (primo ? u'M' : u'l') + QString::number(primo ? p.x : p.x - prima.x);
            tracciato += y.startsWith(u'-') ? y : u' ' + y;
            prima = p;
        }
        return tracciato;
    }

    void Forma(const QString& tracciato, const QString& classe) {
        html_.Apre(u"path"_s, {{u"class", classe}, {u"d", tracciato}});
        html_.Chiude();
    }

    const MappaViaggio& mappa_;
    const Coste& coste_;
    Scala scala_;
    ScrittoreHtml& html_;
    std::vector<RiquadroMappa> posti_;  // taken by names
};

}  // namespace

void ScriviMappa(const MappaViaggio& mappa, const Coste& coste, ScrittoreHtml& html) {
    const auto riquadro = mappa.Riquadro();
    if (!riquadro) return;
    Disegno disegno(mappa, coste, Scala(*riquadro, kMassimaAltezza), html);
    disegno.Apri(u"La mappa del viaggio"_s);
    disegno.Tratte();
    disegno.Punti();
    disegno.Nome(mappa.luoghi.front().nome, mappa.luoghi.front().dove);
    for (const LuogoSullaMappa& luogo : mappa.luoghi) {
        if (luogo.notte) disegno.Nome(QString::number(luogo.giornata + 1), luogo.dove);
    }
    disegno.Chiudi();
}

void ScriviMappa(const MappaViaggio& mappa, const Coste& coste, int giornata, ScrittoreHtml& html) {
    const MappaViaggio giorno = mappa.DelGiorno(giornata);
    if (giorno.tratte.empty()) return;
    Disegno disegno(giorno, coste, Scala(*giorno.Riquadro(), kAltezzaDelGiorno), html);
    disegno.Apri(u"La mappa del giorno %1"_s.arg(giornata + 1));
    disegno.Tratte();
    disegno.Punti();
    const std::size_t nomi = std::min(giorno.luoghi.size(), kMassimiNomi);
    for (std::size_t i = 0; i < nomi; ++i) disegno.Nome(giorno.luoghi[i].nome, giorno.luoghi[i].dove);
    disegno.Chiudi();
}

}  // namespace cronovia
