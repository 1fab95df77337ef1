// SPDX-License-Identifier: GPL-3.0-or-later
// The font of the printouts and the room that its texts take.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <array>
#include <memory>
#include <vector>

#include "print/pagina.h"

namespace cronovia {

/// Units of a point in which fonts are measured and painted: fine enough that a text is as wide on every device.
inline constexpr int kUnitaPunto = 100;
inline constexpr double kUnitaMillimetro = 72.0 * kUnitaPunto / 25.4;

/// Finds the font: the family itself where it is installed, else one of the same metrics, else one of its kind. Needs
/// a QGuiApplication, as all that measures or paints does.
class FontStampa {
  public:
    /// Looks for it among those that are installed.
    FontStampa();

    /// The font with its size in `kUnitaPunto`, as pixels.
    [[nodiscard]] QFont Font(const Carattere& carattere) const;

  private:
    QString nome_;
};

/// A text as glyphs: which, and where each begins on the baseline, in `kUnitaPunto`.
struct TestoComposto {
    QList<quint32> glifi;
    QList<QPointF> origini;
};

/// One weight and slant of the font. Letters and pairs of them are measured once and put together from then on: to
/// shape every text, as every size, takes many times as long.
class StileStampa {
  public:
    /// Of a font whose size is set in pixels.
    explicit StileStampa(const QFont& font);

    /// Whether a text can be put together; else it needs shaping: signs above letters, other scripts, pictures.
    bool Componibile(QStringView testo);
    /// How far a text takes the pen, in parts of the font's size; blanks at its ends with it.
    double Larghezza(const QString& testo);
    /// The glyphs of a text that can be put together, in a size in points.
    TestoComposto Componi(QStringView testo, double dimensione);
    /// From the baseline to the bottom of a line, which has the leading below it, in parts of the size.
    [[nodiscard]] double Discesa() const { return discesa_; }

  private:
    struct Glifo {
        quint32 indice = 0;  // 0: not looked up yet, or the font has none
        double avanzamento = 0;
    };
    const Glifo& GlifoDi(char16_t lettera);
    double Crenatura(char16_t prima, char16_t dopo);

    QFontMetricsF metrica_;
    QRawFont font_;
    double discesa_;
    std::vector<Glifo> glifi_;
    QHash<quint32, double> crenature_;
};

/// Measures texts, in millimetres, and puts them together.
class Misure {
  public:
    /// How far the text takes the pen, blanks at its ends with it. It grows with the size as a straight line.
    double Larghezza(const QString& testo, const Carattere& carattere);
    /// From the baseline to the bottom of a line, which has the leading below it.
    double Discesa(const Carattere& carattere);
    /// The weight and slant of a font.
    StileStampa& Stile(const Carattere& carattere);

  private:
    FontStampa font_;
    std::array<std::unique_ptr<StileStampa>, 4> stili_;
};

}  // namespace cronovia
