// The sheet that a printout is written on, line by line and page by page.
#pragma once

#include <QDate>
#include <QRectF>
#include <QString>
#include <span>

#include "print/font_stampa.h"
#include "print/pagina.h"

namespace cronovia {

/// Line height, and the last baseline at which a line still belongs to the page; millimetres.
inline constexpr int kAltezzaRiga = 5;
inline constexpr int kUltimaRiga = 280;

/// The least size to which a text is shrunk, in points.
inline constexpr int kDimensioneMinima = 5;

/// How far before its border a text at the right ends.
inline constexpr double kRientroDestra = 3;
/// How far left of the middle a centred text stands.
inline constexpr double kRientroCentro = 1;
/// How far a text may reach over its column.
inline constexpr double kEccedenza = 2;

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

/// What stands under each page.
struct PieDiPagina {
    QDate oggi;
    QString destra;  ///< text at the right margin: the window's title
};

/// Writes a document from top to bottom. Lengths are millimetres of the page model. Texts and rules need an open page.
class Foglio {
  public:
    /// `titolo` of the document; `lavoro`: what painting it is called, the title when empty.
    Foglio(const QString& titolo, PieDiPagina piede, const QString& lavoro = {});

    /// Bottom line of the texts being written; beyond any page when none is open.
    [[nodiscard]] int RigaStampa() const { return rigaStampa_; }
    /// Goes to a line, or on by so much.
    void RigaStampa(int riga) { rigaStampa_ = riga; }
    void Avanza(int millimetri) { rigaStampa_ += millimetri; }
    [[nodiscard]] bool PaginaAperta() const { return rigaStampa_ < kNessunaPagina; }
    /// The next line needs a new page.
    [[nodiscard]] bool PaginaPiena() const { return rigaStampa_ > kUltimaRiga; }
    /// Of the page being written, from 1; 0 before the first.
    [[nodiscard]] int NumeroPagina() const { return static_cast<int>(documento_.pagine.size()); }

    /// Opens a page whose first line has its bottom there.
    void ApriPagina(int rigaStampa);

    /// Puts a text without the blanks around it, nothing when that is empty. What is not narrower than the column plus
    /// 2 mm loses its last characters. At the left it begins on the border; centred it stands 1 mm left of the middle,
    /// at the right it ends 3 mm before the border.
    void StampaTesto(const TestoColonna& testo);

    /// Whether a text is narrower than that.
    bool Entra(const QString& testo, const Carattere& carattere, double larghezza) {
        return Larghezza(testo, carattere) < larghezza;
    }
    /// In millimetres.
    double Larghezza(const QString& testo, const Carattere& carattere) { return misure_.Larghezza(testo, carattere); }
    /// The bottom line of a text whose baseline is to be there: texts of several sizes can share one.
    double RigaDaBase(double base, const Carattere& carattere) { return base + misure_.Discesa(carattere); }
    /// The baseline of a text with that bottom line.
    double BaseDaRiga(double riga, const Carattere& carattere) { return riga - misure_.Discesa(carattere); }
    /// The font with the greatest size, up to its own and not under the floor, at which the text is narrower than that.
    Carattere Ristretto(const QString& testo, Carattere carattere, double larghezza);
    /// The longest beginning of the text that is narrower than that.
    QString Tagliato(const QString& testo, const Carattere& carattere, double larghezza);

    /// A rule or a box of the open page.
    void Traccia(const Linea& linea) { PaginaCorrente().linee.push_back(linea); }
    void Traccia(const Riquadro& riquadro) { PaginaCorrente().riquadri.push_back(riquadro); }
    /// The program's picture, within that area of the open page.
    void StampaLogo(const QRectF& area);

    /// Ends the page, if one is open: the date under its last line and the text of the window at the right margin, then
    /// the closing rule from the first to the last border. There are at least four borders.
    void StampaFinePagina(std::span<const int> bordi);

    /// What was written; the page being open is ended first by who wrote it.
    [[nodiscard]] const Stampato& Scritto() const { return documento_; }

  private:
    static constexpr int kNessunaPagina = 800;
    Pagina& PaginaCorrente() { return documento_.pagine.back(); }

    Stampato documento_;
    PieDiPagina piede_;
    Misure misure_;
    int rigaStampa_ = kNessunaPagina;
};

}  // namespace cronovia
