// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/giornate/striscia_giornata.h"

#include <QFontMetrics>
#include <algorithm>

#include "ui/comuni/colori.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kOreFraTacche = 3;
constexpr int kMargineNome = 3;

Qt::BrushStyle Tratteggio(Trama trama) {
    switch (trama) {
        case Trama::Diagonali:
            return Qt::BDiagPattern;
        case Trama::Controdiagonali:
            return Qt::FDiagPattern;
        case Trama::Incroci:
            return Qt::DiagCrossPattern;
        case Trama::Punti:
            return Qt::Dense6Pattern;
        case Trama::Orizzontali:
            return Qt::HorPattern;
        case Trama::Verticali:
            return Qt::VerPattern;
        case Trama::Piena:
            break;
    }
    return Qt::NoBrush;
}

bool Scuro(const QPalette& colori) { return colori.color(QPalette::Base).lightness() < 128; }

// Light bars would glare on a dark ground.
QColor Fondo(GenerePezzo genere, const QPalette& colori) {
    const QColor fondo = QColor::fromRgb(Aspetto(genere).fondo);
    return Scuro(colori) && fondo.lightness() > 150 ? Misto(fondo, colori.color(QPalette::Base), 65) : fondo;
}

QColor Leggibile(const QColor& fondo) {
    return Contrasto(fondo, Qt::black) > Contrasto(fondo, Qt::white) ? Qt::black : Qt::white;
}

QRectF AreaDelPezzo(const QRect& area, const PezzoDelGiorno& pezzo) {
    const double da = AscissaDellOra(area, pezzo.da);
    return {da, area.top() + 0.5, std::max(AscissaDellOra(area, pezzo.a) - da, 1.0), area.height() - 1.0};
}

// On a ground of its own, so that no pattern runs through it.
void ScriviNome(QPainter& painter, const QRectF& barra, const PezzoDelGiorno& pezzo, const QColor& fondo) {
    const QFontMetrics misure = painter.fontMetrics();
    const double larga = misure.horizontalAdvance(pezzo.luogo) + 2 * kMargineNome;
    if (pezzo.luogo.isEmpty() || larga + 2 > barra.width() || misure.height() > barra.height()) return;
    QRectF posto(0, 0, larga, misure.height());
    posto.moveCenter(barra.center());
    painter.fillRect(posto, fondo);
    painter.setPen(Leggibile(fondo));
    painter.drawText(posto, Qt::AlignCenter, pezzo.luogo);
}

void DipingiOre(QPainter& painter, const QRect& area, const AspettoStriscia& aspetto) {
    const QColor sfondo = aspetto.colori.color(QPalette::Base);
    const QColor testo = aspetto.colori.color(QPalette::Text);
    painter.fillRect(area, sfondo);
    const double inizio = AscissaDellOra(area, aspetto.visite.first);
    const double fine = AscissaDellOra(area, aspetto.visite.second);
    painter.fillRect(QRectF(inizio, area.top(), fine - inizio, area.height()), Misto(sfondo, testo, 10));
    painter.setPen(Misto(sfondo, testo, 30));
    for (int ora = 0; ora <= 24; ora += kOreFraTacche) {
        const double x = AscissaDellOra(area, Centesimi(ora * 100));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
    }
}

}  // namespace

double AscissaDellOra(const QRect& area, Centesimi ora) {
    return area.left() + double{ora.Valore()} / double{kGiornoOrologio.Valore()} * (area.width() - 1);
}

const PezzoDelGiorno* PezzoIn(const QRect& area, const StrisciaDelGiorno& striscia, const QPoint& punto) {
    if (!area.contains(punto)) return nullptr;
    // The last of those that share a point is the one on top.
    const auto pezzo = std::find_if(striscia.rbegin(), striscia.rend(), [&](const PezzoDelGiorno& p) {
        const QRectF barra = AreaDelPezzo(area, p);
        return barra.left() <= punto.x() && punto.x() <= barra.right();
    });
    return pezzo == striscia.rend() ? nullptr : &*pezzo;
}

void DipingiBarra(QPainter& painter, const QRectF& area, GenerePezzo genere, const QPalette& colori) {
    const AspettoPezzo& aspetto = Aspetto(genere);
    const QColor segno = QColor::fromRgb(aspetto.segno);
    painter.setPen(segno);
    painter.setBrush(Fondo(genere, colori));
    painter.drawRect(area);
    painter.setBrush(QBrush(segno, Tratteggio(aspetto.trama)));
    if (painter.brush().style() != Qt::NoBrush) painter.drawRect(area);
}

void DipingiStriscia(QPainter& painter, const QRect& area, const StrisciaDelGiorno& striscia,
                     const AspettoStriscia& aspetto) {
    painter.save();
    DipingiOre(painter, area, aspetto);
    for (const PezzoDelGiorno& pezzo : striscia) {
        const QRectF barra = AreaDelPezzo(area, pezzo);
        DipingiBarra(painter, barra, pezzo.genere, aspetto.colori);
        ScriviNome(painter, barra, pezzo, Fondo(pezzo.genere, aspetto.colori));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(aspetto.colori.color(QPalette::Text), 2.5));
    for (const PezzoDelGiorno& pezzo : striscia) {
        const bool segnata = pezzo.riga != PezzoDelGiorno::kSenzaRiga && pezzo.riga == aspetto.rigaSegnata;
        if (segnata) painter.drawRect(AreaDelPezzo(area, pezzo).adjusted(0, 0.5, 0, -0.5));
    }
    painter.restore();
}

}  // namespace cronovia
