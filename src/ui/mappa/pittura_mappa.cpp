// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mappa/pittura_mappa.h"

#include <QFontMetricsF>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <numeric>

#include "calendar/testo.h"

namespace cronovia {

namespace {

constexpr double kRaggioLuogo = 3;
constexpr double kRaggioNotte = 5.5;
constexpr std::size_t kMassimiNomi = 300;
constexpr int kMassimoNome = 30;

QPointF InPixel(const PuntoMappa& punto) { return {punto.x, punto.y}; }

// The lower, the sooner it gets its name.
int Precedenza(const MappaViaggio& mappa, std::size_t luogo) {
    const LuogoSullaMappa& l = mappa.luoghi[luogo];
    if (luogo == 0 || luogo + 1 == mappa.luoghi.size()) return 0;
    return l.notte ? 1 : l.sosta ? 2 : 3;
}

// Cells of the screen with the names that touch them, so that each is compared with its neighbours alone.
class Posti {
  public:
    bool Prendi(const QRectF& posto) {
        bool libero = true;
        Visita(posto, [&](std::vector<QRectF>& cella) {
            libero = libero && std::none_of(cella.begin(), cella.end(),
                                            [&](const QRectF& altro) { return altro.intersects(posto); });
        });
        if (libero) Visita(posto, [&](std::vector<QRectF>& cella) { cella.push_back(posto); });
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

void DipingiTratte(QPainter& painter, const MappaViaggio& mappa, const Inquadratura& vista, const ColoriMappa& colori) {
    const RiquadroMappa visto = vista.Visto();
    for (const bool traghetti : {false, true}) {
        for (const int tono : {0, 1}) {
            QPen penna(colori.vie[tono], 2.2);
            if (traghetti) penna.setDashPattern({3, 2.5});
            penna.setCapStyle(Qt::FlatCap);
            painter.setPen(penna);
            for (const TrattaSullaMappa& tratta : mappa.tratte) {
                if (tratta.traghetto != traghetti || std::abs(tratta.giornata % 2) != tono) continue;
                const RiquadroMappa suo{{std::min(tratta.da.x, tratta.a.x), std::min(tratta.da.y, tratta.a.y)},
                                        {std::max(tratta.da.x, tratta.a.x), std::max(tratta.da.y, tratta.a.y)}};
                if (suo.Tocca(visto)) painter.drawLine(vista.Pixel(tratta.da), vista.Pixel(tratta.a));
            }
        }
    }
}

void DipingiLuna(QPainter& painter, const QPointF& dove, const ColoriMappa& colori) {
    QPainterPath disco;
    disco.addEllipse(dove, kRaggioNotte, kRaggioNotte);
    QPainterPath ombra;
    ombra.addEllipse(dove + QPointF(kRaggioNotte * 0.65, -kRaggioNotte * 0.35), kRaggioNotte, kRaggioNotte);
    painter.setPen(QPen(colori.testo, 1));
    painter.setBrush(colori.notte);
    painter.drawPath(disco.subtracted(ombra));
}

void DipingiLuoghi(QPainter& painter, const MappaViaggio& mappa, const Inquadratura& vista, const ColoriMappa& colori) {
    const RiquadroMappa visto = vista.Visto();
    for (const LuogoSullaMappa& luogo : mappa.luoghi) {
        if (!visto.Contiene(luogo.dove)) continue;
        const QPointF dove = vista.Pixel(luogo.dove);
        if (luogo.notte) {
            DipingiLuna(painter, dove, colori);
            continue;
        }
        painter.setPen(QPen(colori.testo, 1.2));
        painter.setBrush(luogo.Certo() ? colori.testo : colori.terra);
        painter.drawEllipse(dove, kRaggioLuogo, kRaggioLuogo);
    }
}

// With a rim in the colour of the land, so that lines below do not disturb.
void DipingiNomi(QPainter& painter, const MappaViaggio& mappa, const Inquadratura& vista, const ColoriMappa& colori) {
    const QFontMetricsF misure(painter.font());
    for (const NomeSullaMappa& nome : NomiChiEntrano(mappa, vista, painter.font())) {
        QPainterPath lettere;
        lettere.addText(nome.posto.left(), nome.posto.top() + misure.ascent(), painter.font(), nome.testo);
        painter.strokePath(lettere, QPen(colori.terra, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.fillPath(lettere, colori.testo);
    }
}

}  // namespace

Inquadratura Adattata(const RiquadroMappa& riquadro, const QSizeF& area, double orlo) {
    const double x = std::max(area.width() - 2 * orlo, 1.0) / riquadro.Larghezza();
    const double y = std::max(area.height() - 2 * orlo, 1.0) / riquadro.Altezza();
    return {riquadro.Centro(), std::min({x, y, kMassimaScala}), area};
}

ColoriMappa::ColoriMappa(const QPalette& palette) {
    const bool scuro = palette.color(QPalette::Base).lightness() < 128;
    mare = scuro ? QColor(0x14222e) : QColor(0xd5e6f2);
    terra = scuro ? QColor(0x2a3036) : QColor(0xf7f4ec);
    confine = scuro ? QColor(0x5a6470) : QColor(0xb4b9bf);
    testo = scuro ? QColor(0xf0f3f6) : QColor(0x1b2430);
    vie[0] = scuro ? QColor(0x5fb0ee) : QColor(0x0b5a8f);
    vie[1] = scuro ? QColor(0xf29a5c) : QColor(0xc65a11);
    notte = QColor(0xf7d27a);
    corrente = scuro ? QColor(0xff8fc7) : QColor(0xb0006a);
}

Sfondo::Sfondo(const Coste& coste) : terre_(Forme(coste.terre, true)), confini_(Forme(coste.confini, false)) {}

std::vector<Sfondo::Forma> Sfondo::Forme(const std::vector<LineaCosta>& linee, bool chiuse) {
    std::vector<Forma> forme;
    forme.reserve(linee.size());
    for (const LineaCosta& linea : linee) {
        QPainterPath tracciato(InPixel(Proietta(linea.front())));
        for (const Posizione& posizione : linea) tracciato.lineTo(InPixel(Proietta(posizione)));
        if (chiuse) tracciato.closeSubpath();
        const QRectF cornice = tracciato.controlPointRect();
        forme.push_back({tracciato, {{cornice.left(), cornice.top()}, {cornice.right(), cornice.bottom()}}});
    }
    return forme;
}

void Sfondo::Dipingi(QPainter& painter, const Inquadratura& vista, const ColoriMappa& colori) const {
    painter.fillRect(QRectF(QPointF(), vista.area), colori.mare);
    const RiquadroMappa visto = vista.Visto();
    painter.save();
    painter.translate(vista.area.width() / 2, vista.area.height() / 2);
    painter.scale(vista.scala, vista.scala);
    painter.translate(-vista.centro.x, -vista.centro.y);
    QPainterPath terra;
    terra.setFillRule(Qt::OddEvenFill);
    for (const Forma& forma : terre_) {
        if (forma.riquadro.Tocca(visto)) terra.addPath(forma.tracciato);
    }
    QPen penna(colori.confine, 1);
    penna.setCosmetic(true);
    painter.setPen(penna);
    painter.setBrush(colori.terra);
    painter.drawPath(terra);
    penna.setStyle(Qt::DotLine);
    painter.setPen(penna);
    painter.setBrush(Qt::NoBrush);
    for (const Forma& forma : confini_) {
        if (forma.riquadro.Tocca(visto)) painter.drawPath(forma.tracciato);
    }
    painter.restore();
}

std::vector<NomeSullaMappa> NomiChiEntrano(const MappaViaggio& mappa, const Inquadratura& vista, const QFont& font) {
    std::vector<std::size_t> ordine(mappa.luoghi.size());
    std::iota(ordine.begin(), ordine.end(), 0U);
    std::stable_sort(ordine.begin(), ordine.end(),
                     [&](std::size_t a, std::size_t b) { return Precedenza(mappa, a) < Precedenza(mappa, b); });
    const QFontMetricsF misure(font);
    const RiquadroMappa visto = vista.Visto();
    Posti posti;
    QSet<QString> scritti;  // a place that is passed again has its name already
    std::vector<NomeSullaMappa> nomi;
    for (const std::size_t i : ordine) {
        const LuogoSullaMappa& luogo = mappa.luoghi[i];
        if (nomi.size() >= kMassimiNomi) break;
        if (!visto.Contiene(luogo.dove) || scritti.contains(luogo.nome)) continue;
        QString testo = Accorciato(Visibile(luogo.nome), kMassimoNome);
        if (luogo.notte && luogo.giornata != kSenzaGiornata) {
            testo = QString::number(luogo.giornata + 1) + QStringLiteral(" · ") + testo;
        }
        const QPointF dove = vista.Pixel(luogo.dove);
        const QSizeF grande(misure.horizontalAdvance(testo), misure.height());
        const double scarto = kRaggioNotte + 3;
        for (const double x : {dove.x() + scarto, dove.x() - scarto - grande.width()}) {
            const QRectF posto(QPointF(x, dove.y() - grande.height() / 2), grande);
            if (!posti.Prendi(posto)) continue;
            nomi.push_back({posto, testo, static_cast<int>(i)});
            scritti += luogo.nome;
            break;
        }
    }
    return nomi;
}

void DipingiMappa(QPainter& painter, const MappaViaggio& mappa, const Sfondo& sfondo, const Inquadratura& vista,
                  const ColoriMappa& colori) {
    painter.setRenderHint(QPainter::Antialiasing);
    sfondo.Dipingi(painter, vista, colori);
    DipingiTratte(painter, mappa, vista, colori);
    DipingiLuoghi(painter, mappa, vista, colori);
    DipingiNomi(painter, mappa, vista, colori);
}

}  // namespace cronovia
