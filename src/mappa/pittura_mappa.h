// SPDX-License-Identifier: GPL-3.0-or-later
// Draws a journey on a map: coasts and borders, the way by days, places with their names.
#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QPointF>
#include <QSizeF>
#include <array>
#include <functional>
#include <optional>
#include <tuple>
#include <vector>

#include "places/coste.h"
#include "schedule/mappa_viaggio.h"

namespace cronovia {

/// Which part of the plane is seen, in pixels.
struct Inquadratura {
    PuntoMappa centro;  ///< what is seen in the middle
    double scala = 1;   ///< pixels a kilometre
    QSizeF area;

    /// Where a point of the plane is seen, from the upper left corner of the area; the point that is seen there.
    [[nodiscard]] QPointF Pixel(const PuntoMappa& punto) const {
        return {area.width() / 2 + (punto.x - centro.x) * scala, area.height() / 2 + (punto.y - centro.y) * scala};
    }
    [[nodiscard]] PuntoMappa Punto(const QPointF& pixel) const {
        return {centro.x + (pixel.x() - area.width() / 2) / scala, centro.y + (pixel.y() - area.height() / 2) / scala};
    }
    /// The part of the plane that is seen.
    [[nodiscard]] RiquadroMappa Visto() const { return {Punto({0, 0}), Punto({area.width(), area.height()})}; }
};

/// How near one can go, in pixels a kilometre.
inline constexpr double kMassimaScala = 60;

/// The view that shows a part of the plane whole, with a rim of pixels, and no nearer than `kMassimaScala`.
Inquadratura Adattata(const RiquadroMappa& riquadro, const QSizeF& area, double orlo);

/// The colours of a map.
struct ColoriMappa {
    QColor mare;
    QColor terra;
    QColor confine;
    QColor testo;
    std::array<QColor, 2> vie;  ///< of days that follow each other
    QColor altre;               ///< of the days that are not looked at
    QColor notte;               ///< of the moon where a night is spent
    QColor corrente;            ///< of the current place
};

/// Those of a light or a dark window, and those of paper: little ink, told apart in grey too.
ColoriMappa ColoriDellaFinestra(const QPalette& palette);
ColoriMappa ColoriDellaCarta();

/// Coasts and borders on the plane, ready to be drawn.
class Sfondo {
  public:
    Sfondo() = default;
    /// Projects them all.
    explicit Sfondo(const Coste& coste);

    /// Fills the area of the view, which begins at the painter's origin.
    void Dipingi(QPainter& painter, const Inquadratura& vista, const ColoriMappa& colori) const;

  private:
    struct Forma {
        std::vector<PuntoMappa> punti;
        RiquadroMappa riquadro;
    };
    static std::vector<Forma> Forme(const std::vector<LineaCosta>& linee);
    static QPainterPath Tracciato(const std::vector<Forma>& forme, const Inquadratura& vista, bool chiuse);

    std::vector<Forma> terre_;
    std::vector<Forma> confini_;
};

/// The map without its names. Of one day, if it is given, the way in its colours and the places; the way of the others
/// stays in the ground.
void DipingiMappa(QPainter& painter, const MappaViaggio& mappa, const Sfondo& sfondo, const Inquadratura& vista,
                  const ColoriMappa& colori, int giornata = kSenzaGiornata);

/// How far names reach, in pixels.
struct MisuraNomi {
    std::function<double(const QString& nome)> larghezza;
    double altezza = 0;
};
/// In letters of that font.
MisuraNomi Misura(const QFont& font);

/// A name on the map, and the place that it belongs to.
struct NomeSullaMappa {
    QRectF posto;   ///< in pixels of the view
    QString testo;  ///< as it is drawn, of a long name its beginning
    int luogo = 0;  ///< its position among the places of the map
};

/// The names that fit into what is seen without covering each other or the nights: departure and end, nights, stops,
/// then the others; 300 at most. A night's name begins with the numbers of its days, which stand alone where it has no
/// room. A name stands within `davanti`, in pixels, or outside it: its edge cuts none.
std::vector<NomeSullaMappa> NomiChiEntrano(const MappaViaggio& mappa, const Inquadratura& vista,
                                           const MisuraNomi& misura, const QRectF& davanti = {});

/// In the painter's font, with a rim in the colour of the land, so that lines below do not disturb.
void DipingiNomi(QPainter& painter, const std::vector<NomeSullaMappa>& nomi, const ColoriMappa& colori);

/// Does the same on a screen, where each name is a picture that is made once: a rim costs more than the map under it.
class NomiTenuti {
  public:
    void Dipingi(QPainter& painter, const std::vector<NomeSullaMappa>& nomi, const ColoriMappa& colori);

  private:
    using Aspetto = std::tuple<QFont, QRgb, QRgb, double>;
    QPixmap Disegno(const NomeSullaMappa& nome, const ColoriMappa& colori) const;

    std::optional<Aspetto> aspetto_;  // that the pictures have
    QHash<QString, QPixmap> disegni_;
};

}  // namespace cronovia
