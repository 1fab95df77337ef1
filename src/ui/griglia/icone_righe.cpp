// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/griglia/icone_righe.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include "ui/comuni/icone.h"

namespace cronovia {

namespace {

// All signs are drawn on a square of 16 by 16.
void DisegnaLuna(QPainter& p) {
    QPainterPath luna;
    luna.addEllipse(QPointF(8, 8), 6, 6);
    QPainterPath ombra;
    ombra.addEllipse(QPointF(11, 6.5), 5, 5);
    p.fillPath(luna.subtracted(ombra), p.pen().brush());
}

void DisegnaPiatto(QPainter& p) {
    p.drawEllipse(QPointF(8, 8), 5.5, 5.5);
    p.drawEllipse(QPointF(8, 8), 2.5, 2.5);
}

void DisegnaTazza(QPainter& p) {
    QPainterPath tazza;
    tazza.moveTo(3, 6);
    tazza.lineTo(11, 6);
    tazza.lineTo(10, 13);
    tazza.lineTo(4, 13);
    tazza.closeSubpath();
    p.drawPath(tazza);
    p.drawArc(QRectF(9.5, 7, 4, 4), 90 * 16, -180 * 16);
}

// The days of rest begin with a night.
void DisegnaRiposo(QPainter& p) {
    DisegnaTazza(p);
    p.save();
    p.translate(8, -1);
    p.scale(0.5, 0.5);
    DisegnaLuna(p);
    p.restore();
}

void DisegnaBandiera(QPainter& p) {
    p.drawLine(QPointF(4, 2), QPointF(4, 14));
    QPainterPath telo;
    telo.moveTo(4, 3);
    telo.lineTo(13, 5.5);
    telo.lineTo(4, 8);
    telo.closeSubpath();
    p.drawPath(telo);
}

void DisegnaLibro(QPainter& p) {
    p.drawLine(QPointF(8, 4), QPointF(8, 13));
    p.drawPolyline(QPolygonF({{8, 4}, {2.5, 3}, {2.5, 12}, {8, 13}, {13.5, 12}, {13.5, 3}, {8, 4}}));
}

void DisegnaOrologio(QPainter& p) {
    p.drawEllipse(QPointF(8, 8), 5.5, 5.5);
    p.drawPolyline(QPolygonF({{8, 4.5}, {8, 8}, {10.5, 9.5}}));
}

// A triangle that points to the rows below, or to what it hides.
void DisegnaTriangolo(QPainter& p, bool aperta) {
    const QPolygonF triangolo = aperta ? QPolygonF({{3, 5}, {13, 5}, {8, 12}}) : QPolygonF({{5, 3}, {12, 8}, {5, 13}});
    QPainterPath forma;
    forma.addPolygon(triangolo);
    p.fillPath(forma, p.pen().brush());
}

void Disegna(Segno segno, QPainter& p) {
    switch (segno) {
        case Segno::FineGiorno:
            return DisegnaLuna(p);
        case Segno::Pasto:
            return DisegnaPiatto(p);
        case Segno::Riposo:
            return DisegnaRiposo(p);
        case Segno::Sosta:
            return DisegnaBandiera(p);
        case Segno::Guida:
            return DisegnaLibro(p);
        case Segno::Fissato:
            return DisegnaOrologio(p);
        case Segno::GiornataAperta:
            return DisegnaTriangolo(p, true);
        case Segno::GiornataChiusa:
            return DisegnaTriangolo(p, false);
        case Segno::Nessuno:
            break;
    }
}

// Draws at any size, so that the signs stay sharp on every screen, in the colour that text has now.
class MotoreSegni : public MotoreDipinto {
  public:
    explicit MotoreSegni(Segno segno) : segno_(segno) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        const QPalette& palette = QApplication::palette();
        painter->setPen(QPen(mode == QIcon::Selected ? palette.highlightedText() : palette.text(), 1.2));
        painter->setBrush(Qt::NoBrush);
        Disegna(segno_, *painter);
        painter->restore();
    }

    [[nodiscard]] QIconEngine* clone() const override { return new MotoreSegni(segno_); }

  private:
    Segno segno_;
};

}  // namespace

QIcon IconaDellaRiga(Segno segno) { return segno == Segno::Nessuno ? QIcon() : QIcon(new MotoreSegni(segno)); }

}  // namespace cronovia
