// SPDX-License-Identifier: GPL-3.0-or-later
// The page model: what stands where on paper, before anything is painted.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include "mappa/pittura_mappa.h"
#include "schedule/strisce.h"

namespace cronovia {

/// The type of the printouts, "Times New Roman" or a font of the same metrics, in one of its sizes and weights.
struct Carattere {
    double dimensione = 8;  ///< points
    bool grassetto = false;
    bool corsivo = false;

    friend bool operator==(const Carattere&, const Carattere&) = default;
};

/// A text in its place. All lengths of the model are millimetres, x to the right and y down.
struct TestoCollocato {
    QString testo;
    Carattere carattere;
    double x = 0;          ///< left edge
    double base = 0;       ///< baseline
    double larghezza = 0;  ///< as measured
    bool alone = false;    ///< with a white rim, over what is drawn below
};

/// How thick a rule is; thin ones are grey.
enum class Filetto : std::uint8_t { Sottile, Medio, Spesso };

/// A straight rule between two points.
struct Linea {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    Filetto filetto = Filetto::Sottile;
};

/// An outlined rectangle, or a light filled one without outline.
struct Riquadro {
    QRectF area;
    Filetto filetto = Filetto::Sottile;
    bool sfondo = false;  ///< filled; `filetto` does not count then
};

/// A bar in the look of a kind of time.
struct Barra {
    QRectF area;
    GenerePezzo genere = GenerePezzo::Marcia;
    bool liscia = false;  ///< its ground alone: where a text stands on it
};

struct MappaStampata;

/// What a map measures its signs in, and how large that is on paper.
inline constexpr double kPixelCarta = 0.22;

/// A map without its names, which are texts of the page.
struct Carta {
    QPointF angolo;                              ///< its upper left corner
    Inquadratura vista;                          ///< in pixels of `kPixelCarta`
    int giornata = kSenzaGiornata;               ///< the day that it is about
    std::shared_ptr<const MappaStampata> mappa;  ///< never null
};

/// A picture in its place.
struct Immagine {
    QRectF area;
    QString sorgente;  ///< a file in SVG; drawn within the area, its proportions kept
};

/// One sheet; painted in the order of the lists.
struct Pagina {
    std::vector<Carta> carte;
    std::vector<Riquadro> riquadri;
    std::vector<Linea> linee;
    std::vector<Barra> barre;
    std::vector<Immagine> immagini;
    std::vector<TestoCollocato> testi;  ///< in the order in which they are to be read
};

/// A place in the document that its reader can jump to by name.
struct Segnalibro {
    QString titolo;
    std::size_t pagina = 0;  ///< position of the page
    double y = 0;            ///< the upper edge of what it names
};

/// Where a text stands in its column.
enum class Allineamento { Sinistra, Centro, Destra };

/// A text for a column: its bottom line and the two borders of the column.
struct TestoColonna {
    QString testo;
    double y = 0;  ///< millimetres, as the borders
    double x1 = 0;
    double x2 = 0;
    Carattere carattere;
    Allineamento allineamento = Allineamento::Sinistra;
};

/// Where a page says which one it is.
struct NumeroPagina {
    std::size_t pagina = 0;
    std::size_t testo = 0;  ///< position among its texts
    TestoColonna colonna;   ///< without its text
};

/// The sheet that the pages are laid out for, upright, in millimetres: A4.
inline constexpr QSizeF kFoglioDelModello{210, 297};

/// A printout on upright sheets. Without pages it is one blank sheet.
struct Stampato {
    QString titolo;
    std::vector<Pagina> pagine;
    QString lavoro = {};                      ///< what painting it is called while it goes on; the title when empty
    std::vector<Segnalibro> segnalibri = {};  ///< in the order of the pages
    std::vector<NumeroPagina> numeri = {};    ///< of the pages that say it
    QSizeF carta = kFoglioDelModello;         ///< the sheet that it is printed on, in millimetres
};

/// How much smaller the pages are on a sheet that is smaller than the one they are laid out for; 1 on all others.
inline double Riduzione(const QSizeF& carta) {
    return std::min({1.0, carta.width() / kFoglioDelModello.width(), carta.height() / kFoglioDelModello.height()});
}

/// Distance of the model's origin from the left and the upper edge of the sheet: the margin that printers leave.
inline constexpr double kMargineFoglio = 4;

}  // namespace cronovia
