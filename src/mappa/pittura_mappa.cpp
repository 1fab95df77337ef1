// SPDX-License-Identifier: GPL-3.0-or-later
#include "mappa/pittura_mappa.h"

#include <QFontMetricsF>
#include <QSet>
#include <algorithm>
#include <numeric>

#include "calendar/testo.h"

namespace cronovia {

namespace {

constexpr double kTratto = 2.2;
constexpr double kPassoCoste = 0.6;  // shorter strokes of coasts are left out
constexpr double kRaggioLuogo = 3;
constexpr double kRaggioNotte = 5.5;
constexpr std::size_t kMassimiNomi = 300;
constexpr qsizetype kMassimiDisegni = 3'000;
constexpr int kOrloNomi = 3;  // half of it lies under the letters
constexpr int kMassimoNome = 30;

// The lower, the sooner it gets its name.
int Precedenza(const MappaViaggio& mappa, std::size_t luogo) {
    const LuogoSullaMappa& l = mappa.luoghi[luogo];
    if (luogo == 0 || luogo + 1 == mappa.luoghi.size()) return 0;
    return l.notte ? 1 : l.sosta ? 2 : 3;
}

// Cells of the screen with the names that touch them, so that each is compared with its neighbours alone.
class Posti {
  public:
    void Occupa(const QRectF& posto) {
        Visita(posto, [&](std::vector<QRectF>& cella) { cella.push_back(posto); });
    }
    [[nodiscard]] bool Libero(const QRectF& posto) {
        bool libero = true;
        Visita(posto, [&](std::vector<QRectF>& cella) {
            libero = libero && std::none_of(cella.begin(), cella.end(),
                                            [&](const QRectF& altro) { return altro.intersects(posto); });
        });
        return libero;
    }
    bool Prendi(const QRectF& posto) {
        const bool libero = Libero(posto);
        if (libero) Occupa(posto);
        return libero;
    }

  private:
    static constexpr double kLato = 96;

    template <typename Azione>
    void Visita(const QRectF& posto, const Azione& azione) {
        for (int x = static_cast<int>(posto.left() / kLato); x <= static_cast<int>(posto.right() / kLato); ++x) {
            for (int y = static_cast<int>(posto.top() / kLato); y <= static_cast<int>(posto.bottom() / kLato); ++y) {
                azione(celle_[{x, y}]);
            }
        }
    }

    QHash<std::pair<int, int>, std::vector<QRectF>> celle_;
};

template <typename Scelta>
void DipingiTratte(QPainter& painter, const MappaViaggio& mappa, const Inquadratura& vista, const QPen& penna,
                   const Scelta& scelta) {
    const RiquadroMappa visto = vista.Visto();
    painter.setPen(penna);
    for (const TrattaSullaMappa& tratta : mappa.tratte) {
        const RiquadroMappa suo{{std::min(tratta.da.x, tratta.a.x), std::min(tratta.da.y, tratta.a.y)},
                                {std::max(tratta.da.x, tratta.a.x), std::max(tratta.da.y, tratta.a.y)}};
        if (scelta(tratta) && suo.Tocca(visto)) painter.drawLine(vista.Pixel(tratta.da), vista.Pixel(tratta.a));
    }
}

void DipingiVia(QPainter& painter, const MappaViaggio& mappa, const Inquadratura& vista, const ColoriMappa& colori) {
    for (const bool traghetti : {false, true}) {
        for (const int tono : {0, 1}) {
            QPen penna(colori.vie[static_cast<std::size_t>(tono)], kTratto);
            if (traghetti) penna.setDashPattern({3, 2.5});
            penna.setCapStyle(Qt::FlatCap);
            DipingiTratte(painter, mappa, vista, penna, [&](const TrattaSullaMappa& tratta) {
                return tratta.traghetto == traghetti && std::abs(tratta.giornata % 2) == tono;
            });
        }
    }
}

void DipingiLuna(QPainter& painter, const QPointF& dove, const ColoriMappa& colori) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colori.terra);
    painter.drawEllipse(dove, kRaggioNotte + 1, kRaggioNotte + 1);
    QPainterPath disco;
    disco.addEllipse(dove, kRaggioNotte, kRaggioNotte);
    QPainterPath ombra;
    ombra.addEllipse(dove + QPointF(kRaggioNotte * 0.65, -kRaggioNotte * 0.35), kRaggioNotte, kRaggioNotte);
    painter.setPen(QPen(colori.testo, 1));
    painter.setBrush(colori.notte);
    painter.drawPath(disco.subtracted(ombra));
}

void DipingiSegno(QPainter& painter, const QPointF& dove, const LuogoSullaMappa& luogo, const ColoriMappa& colori) {
    if (luogo.notte) return DipingiLuna(painter, dove, colori);
    painter.setPen(QPen(colori.testo, 1.2));
    painter.setBrush(luogo.Certo() ? colori.testo : colori.terra);
    painter.drawEllipse(dove, kRaggioLuogo, kRaggioLuogo);
}

/// The sign of each kind of place; on a screen a picture that is made once, since there are thousands of them.
class Segni {
  public:
    Segni(QPainter& painter, const ColoriMappa& colori)
        : painter_(painter), colori_(colori), aSchermo_(painter.device()->devType() == QInternal::Pixmap) {}

    void Dipingi(const QPointF& dove, const LuogoSullaMappa& luogo) {
        if (!aSchermo_) return DipingiSegno(painter_, dove, luogo, colori_);
        QPixmap& disegno = disegni_[luogo.notte ? 0 : luogo.Certo() ? 1 : 2];
        if (disegno.isNull()) disegno = Disegno(luogo);
        painter_.drawPixmap(dove - QPointF(kMezzo, kMezzo), disegno);
    }

  private:
    static constexpr int kMezzo = 8;

    [[nodiscard]] QPixmap Disegno(const LuogoSullaMappa& luogo) const {
        const double densita = painter_.device()->devicePixelRatioF();
        QPixmap disegno((QSizeF(2 * kMezzo, 2 * kMezzo) * densita).toSize());
        disegno.setDevicePixelRatio(densita);
        disegno.fill(Qt::transparent);
        QPainter painter(&disegno);
        painter.setRenderHint(QPainter::Antialiasing);
        DipingiSegno(painter, QPointF(kMezzo, kMezzo), luogo, colori_);
        return disegno;
    }

    QPainter& painter_;
    const ColoriMappa& colori_;
    bool aSchermo_;
    std::array<QPixmap, 3> disegni_;
};

void DipingiLuoghi(QPainter& painter, const MappaViaggio& mappa, const Inquadratura& vista, const ColoriMappa& colori) {
    const RiquadroMappa visto = vista.Visto();
    Segni segni(painter, colori);
    for (const LuogoSullaMappa& luogo : mappa.luoghi) {
        if (visto.Contiene(luogo.dove)) segni.Dipingi(vista.Pixel(luogo.dove), luogo);
    }
}

// The places of names around a place, the better ones first.
std::array<QPointF, 4> Angoli(const QPointF& dove, const QSizeF& grande) {
    const double scarto = kRaggioNotte + 3;
    const double y = dove.y() - grande.height() / 2;
    const double x = dove.x() - grande.width() / 2;
    return {{{dove.x() + scarto, y},
             {dove.x() - scarto - grande.width(), y},
             {x, dove.y() - scarto - grande.height()},
             {x, dove.y() + scarto}}};
}

// The days whose night is spent at a place, each place by where it lies, however often one comes by: "3, 9".
class Notti {
  public:
    explicit Notti(const MappaViaggio& mappa) {
        for (const LuogoSullaMappa& luogo : mappa.luoghi) {
            if (!luogo.notte || luogo.giornata == kSenzaGiornata) continue;
            QString& giorni = giorni_[Chiave(luogo)];
            if (!giorni.isEmpty()) giorni += u", ";
            giorni += QString::number(luogo.giornata + 1);
        }
    }
    [[nodiscard]] QString Di(const LuogoSullaMappa& luogo) const { return giorni_.value(Chiave(luogo)); }

  private:
    using PuntoEsatto = std::pair<double, double>;
    static PuntoEsatto Chiave(const LuogoSullaMappa& luogo) { return {luogo.dove.x, luogo.dove.y}; }

    QHash<PuntoEsatto, QString> giorni_;
};

// Puts names onto what is seen.
class Scritta {
  public:
    Scritta(const MappaViaggio& mappa, const Inquadratura& vista, const MisuraNomi& misura, const QRectF& davanti)
        : mappa_(mappa), vista_(vista), misura_(misura), davanti_(davanti), visto_(vista.Visto()), notti_(mappa) {
        for (const LuogoSullaMappa& luogo : mappa.luoghi) {
            if (!visto_.Contiene(luogo.dove)) continue;
            luogo.notte ? posti_.Occupa(Segno(luogo, kRaggioNotte)) : punti_.Occupa(Segno(luogo, kRaggioLuogo));
        }
    }

    void Nomina(std::size_t i) {
        const LuogoSullaMappa& luogo = mappa_.luoghi[i];
        const std::pair<double, double> dove(luogo.dove.x, luogo.dove.y);
        if (!visto_.Contiene(luogo.dove) || scritti_.contains(dove)) return;
        const QString nome = Accorciato(Visibile(luogo.nome), kMassimoNome);
        const QString notti = notti_.Di(luogo);
        const bool scritto =
            notti.isEmpty() ? Metti(nome, i) : Metti(notti + QStringLiteral(" · ") + nome, i) || Metti(notti, i);
        if (scritto) scritti_ += dove;  // a place that is passed again has its name already
    }
    [[nodiscard]] bool Piena() const { return nomi_.size() >= kMassimiNomi; }
    [[nodiscard]] std::vector<NomeSullaMappa> Nomi() && { return std::move(nomi_); }

  private:
    [[nodiscard]] QRectF Segno(const LuogoSullaMappa& luogo, double raggio) const {
        const QPointF centro = vista_.Pixel(luogo.dove);
        return {centro.x() - raggio, centro.y() - raggio, 2 * raggio, 2 * raggio};
    }

    // Beside the signs of other places, else, for nights, on those of places without any.
    bool Metti(const QString& testo, std::size_t luogo) {
        return Metti(testo, luogo, false) || (mappa_.luoghi[luogo].notte && Metti(testo, luogo, true));
    }

    bool Metti(const QString& testo, std::size_t luogo, bool sopraAltri) {
        const QSizeF grande(misura_.larghezza(testo), misura_.altezza);
        for (const QPointF& angolo : Angoli(vista_.Pixel(mappa_.luoghi[luogo].dove), grande)) {
            const QRectF posto(angolo, grande);
            if (!QRectF(QPointF(), vista_.area).contains(posto)) continue;
            if (davanti_.intersects(posto) && !davanti_.contains(posto)) continue;
            if ((!sopraAltri && !punti_.Libero(posto)) || !posti_.Prendi(posto)) continue;
            nomi_.push_back({posto, testo, static_cast<int>(luogo)});
            return true;
        }
        return false;
    }

    const MappaViaggio& mappa_;
    const Inquadratura& vista_;
    const MisuraNomi& misura_;
    QRectF davanti_;
    RiquadroMappa visto_;
    Notti notti_;
    Posti posti_;  // taken by names and nights
    Posti punti_;  // by other places
    QSet<std::pair<double, double>> scritti_;
    std::vector<NomeSullaMappa> nomi_;
};

}  // namespace

Inquadratura Adattata(const RiquadroMappa& riquadro, const QSizeF& area, double orlo) {
    const double x = std::max(area.width() - 2 * orlo, 1.0) / riquadro.Larghezza();
    const double y = std::max(area.height() - 2 * orlo, 1.0) / riquadro.Altezza();
    return {riquadro.Centro(), std::min({x, y, kMassimaScala}), area};
}

ColoriMappa ColoriDellaFinestra(const QPalette& palette) {
    if (palette.color(QPalette::Base).lightness() < 128) {
        return {QColor(0x14222e),
                QColor(0x2a3036),
                QColor(0x5a6470),
                QColor(0xf0f3f6),
                {QColor(0x5fb0ee), QColor(0xf29a5c)},
                QColor(0x5a6470),
                QColor(0xf7d27a),
                QColor(0xff8fc7)};
    }
    return {
        QColor(0xd5e6f2), QColor(0xf7f4ec), QColor(0xb4b9bf), QColor(0x1b2430), {QColor(0x0b5a8f), QColor(0xc65a11)},
        QColor(0xb4b9bf), QColor(0xf7d27a), QColor(0xb0006a)};
}

// The two tones of the way are as dark as each other's half.
ColoriMappa ColoriDellaCarta() {
    return {
        QColor(0xecf1f4), QColor(Qt::white), QColor(0x8c8c8c), QColor(Qt::black), {QColor(0x0a3c66), QColor(0xd0701f)},
        QColor(0xb0b0b0), QColor(Qt::black), QColor(Qt::black)};
}

Sfondo::Sfondo(const Coste& coste) : terre_(Forme(coste.terre)), confini_(Forme(coste.confini)) {}

std::vector<Sfondo::Forma> Sfondo::Forme(const std::vector<LineaCosta>& linee) {
    std::vector<Forma> forme;
    forme.reserve(linee.size());
    for (const LineaCosta& linea : linee) {
        Forma& forma = forme.emplace_back();
        forma.punti.reserve(linea.size());
        for (const Posizione& posizione : linea) forma.punti.push_back(Proietta(posizione));
        forma.riquadro = RiquadroDi(forma.punti);
    }
    return forme;
}

// In pixels, and no more of it than is needed.
QPainterPath Sfondo::Tracciato(const std::vector<Forma>& forme, const Inquadratura& vista, bool chiuse) {
    const RiquadroMappa visto = vista.Visto();
    QPainterPath tracciato;
    tracciato.setFillRule(Qt::OddEvenFill);
    for (const Forma& forma : forme) {
        if (!forma.riquadro.Tocca(visto)) continue;
        QPolygonF linea;
        for (const PuntoMappa& punto : Sfrondata(forma.punti, visto, kPassoCoste / vista.scala))
            linea += vista.Pixel(punto);
        tracciato.addPolygon(linea);
        if (chiuse) tracciato.closeSubpath();
    }
    return tracciato;
}

void Sfondo::Dipingi(QPainter& painter, const Inquadratura& vista, const ColoriMappa& colori) const {
    painter.fillRect(QRectF(QPointF(), vista.area), colori.mare);
    painter.setPen(QPen(colori.confine, 1));
    painter.setBrush(colori.terra);
    painter.drawPath(Tracciato(terre_, vista, true));
    painter.setPen(QPen(colori.confine, 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(Tracciato(confini_, vista, false));
}

MisuraNomi Misura(const QFont& font) {
    const QFontMetricsF misure(font);
    return {[misure](const QString& nome) { return misure.horizontalAdvance(nome); }, misure.height()};
}

std::vector<NomeSullaMappa> NomiChiEntrano(const MappaViaggio& mappa, const Inquadratura& vista,
                                           const MisuraNomi& misura, const QRectF& davanti) {
    std::vector<std::size_t> ordine(mappa.luoghi.size());
    std::iota(ordine.begin(), ordine.end(), 0U);
    std::stable_sort(ordine.begin(), ordine.end(),
                     [&](std::size_t a, std::size_t b) { return Precedenza(mappa, a) < Precedenza(mappa, b); });
    Scritta scritta(mappa, vista, misura, davanti);
    for (const std::size_t i : ordine) {
        if (scritta.Piena()) break;
        scritta.Nomina(i);
    }
    return std::move(scritta).Nomi();
}

void DipingiNomi(QPainter& painter, const std::vector<NomeSullaMappa>& nomi, const ColoriMappa& colori) {
    const double ascesa = QFontMetricsF(painter.font()).ascent();
    for (const NomeSullaMappa& nome : nomi) {
        QPainterPath lettere;
        lettere.addText(nome.posto.left(), nome.posto.top() + ascesa, painter.font(), nome.testo);
        painter.strokePath(lettere, QPen(colori.terra, kOrloNomi, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.fillPath(lettere, colori.testo);
    }
}

void NomiTenuti::Dipingi(QPainter& painter, const std::vector<NomeSullaMappa>& nomi, const ColoriMappa& colori) {
    const Aspetto aspetto(painter.font(), colori.testo.rgb(), colori.terra.rgb(),
                          painter.device()->devicePixelRatioF());
    if (aspetto_ != aspetto || disegni_.size() > kMassimiDisegni) disegni_.clear();
    aspetto_ = aspetto;
    for (const NomeSullaMappa& nome : nomi) {
        QPixmap& disegno = disegni_[nome.testo];
        if (disegno.isNull()) disegno = Disegno(nome, colori);
        painter.drawPixmap(nome.posto.topLeft().toPoint() - QPoint(kOrloNomi, kOrloNomi), disegno);
    }
}

// With its rim.
QPixmap NomiTenuti::Disegno(const NomeSullaMappa& nome, const ColoriMappa& colori) const {
    const auto& [font, testo, terra, densita] = *aspetto_;
    const QSizeF grande = nome.posto.size() + QSizeF(2 * kOrloNomi, 2 * kOrloNomi);
    QPixmap disegno((grande * densita).toSize() + QSize(1, 1));
    disegno.setDevicePixelRatio(densita);
    disegno.fill(Qt::transparent);
    QPainter painter(&disegno);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    DipingiNomi(painter, {{QRectF(QPointF(kOrloNomi, kOrloNomi), nome.posto.size()), nome.testo, nome.luogo}}, colori);
    return disegno;
}

void DipingiMappa(QPainter& painter, const MappaViaggio& mappa, const Sfondo& sfondo, const Inquadratura& vista,
                  const ColoriMappa& colori, int giornata) {
    painter.setRenderHint(QPainter::Antialiasing);
    sfondo.Dipingi(painter, vista, colori);
    if (giornata == kSenzaGiornata) {
        DipingiVia(painter, mappa, vista, colori);
        DipingiLuoghi(painter, mappa, vista, colori);
        return;
    }
    const MappaViaggio giorno = mappa.DelGiorno(giornata);
    DipingiTratte(painter, mappa, vista, QPen(colori.altre, kTratto / 2), [](const TrattaSullaMappa&) { return true; });
    DipingiVia(painter, giorno, vista, colori);
    DipingiLuoghi(painter, giorno, vista, colori);
}

}  // namespace cronovia
