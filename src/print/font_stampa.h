// The fonts of the printouts and the room that their texts take.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>
#include <array>

#include "print/pagina.h"

namespace cronovia {

/// Units of a point in which fonts are measured and painted: fine enough that a text is as wide on every device.
inline constexpr int kUnitaPunto = 100;
inline constexpr double kUnitaMillimetro = 72.0 * kUnitaPunto / 25.4;

/// Finds the fonts: the family itself where it is installed, else one of the same metrics, else one of its kind. Needs
/// a QGuiApplication, as all that measures or paints does.
class FontStampa {
  public:
    FontStampa();

    /// The font with its size in `kUnitaPunto`, as pixels.
    [[nodiscard]] QFont Font(const Carattere& carattere) const;

  private:
    std::array<QString, 3> nomi_;
};

/// Measures texts, in millimetres.
class Misure {
  public:
    /// How far the text takes the pen, blanks at its ends with it.
    double Larghezza(const QString& testo, const Carattere& carattere);
    /// From the baseline to the bottom of a line, which has the leading below it.
    double Discesa(const Carattere& carattere);

  private:
    const QFontMetricsF& Metrica(const Carattere& carattere);

    FontStampa font_;
    QHash<int, QFontMetricsF> metriche_;
};

}  // namespace cronovia
