// SPDX-License-Identifier: GPL-3.0-or-later
// The sheet that a printout is written on, line by line and page by page.
#pragma once

#include <QDate>
#include <QRectF>
#include <QString>
#include <vector>

#include "print/font_stampa.h"
#include "print/pagina.h"

namespace cronovia {

/// Line height, and the last baseline at which a line still belongs to the page; millimetres.
inline constexpr double kAltezzaRiga = 5;
inline constexpr double kUltimaRiga = 280;

/// The least size to which a text is shrunk, in points, and the steps in which that is done.
inline constexpr double kDimensioneMinima = 6.5;
inline constexpr double kPassoDimensione = 0.5;

/// How far before its border a text at the right ends; this and the next two in millimetres.
inline constexpr double kRientroDestra = 3;
/// How far left of the middle a centred text stands.
inline constexpr double kRientroCentro = 1;
/// How far a text may reach over its column.
inline constexpr double kEccedenza = 2;

/// What all pages have: what stands under each, and the sheet.
struct PieDiPagina {
    QDate oggi;
    QString destra;                    ///< text at the right margin: the window's title
    QSizeF carta = kFoglioDelModello;  ///< as `Stampato::carta`
};

/// Writes a document from top to bottom. Lengths are millimetres of the page model. Texts and rules need an open page.
class Foglio {
  public:
    /// `titolo` of the document; `lavoro`: what painting it is called, the title when empty.
    Foglio(const QString& titolo, PieDiPagina piede, const QString& lavoro = {});

    /// Bottom line of the texts being written; beyond any page when none is open.
    [[nodiscard]] double RigaStampa() const { return rigaStampa_; }
    /// Goes to a line, or on by so much.
    void RigaStampa(double riga) { rigaStampa_ = riga; }
    void Avanza(double millimetri) { rigaStampa_ += millimetri; }
    [[nodiscard]] bool PaginaAperta() const { return rigaStampa_ < kNessunaPagina; }
    /// Whether the next line, and as much behind it, is still of this page.
    [[nodiscard]] bool Entra(double altezza) const { return rigaStampa_ + altezza <= kUltimaRiga; }
    /// The next line needs a new page.
    [[nodiscard]] bool PaginaPiena() const { return !Entra(0); }
    /// Of the page being written, from 1; 0 before the first.
    [[nodiscard]] int NumeroPagina() const { return static_cast<int>(documento_.pagine.size()); }

    /// Opens a page whose first line has its bottom there.
    void ApriPagina(double rigaStampa);

    /// Puts a text without the blanks around it, nothing when that is empty. What is not narrower than the column plus
    /// 2 mm is cut. At the left it begins on the border; centred it stands 1 mm left of the middle, at the right it
    /// ends 3 mm before the border.
    void StampaTesto(const TestoColonna& testo);

    /// Puts a text so that it stays within its column: smaller when it is too wide, on two lines in the least size when
    /// that is not enough, and cut when nothing else helps. A single line keeps its baseline whatever its size; the
    /// second of two ends at the bottom line.
    void StampaAdattato(const TestoColonna& testo);

    /// Puts "Pagina 2 di 10" on the open page as soon as it is known how many there are.
    void StampaNumeroPagina(TestoColonna colonna);

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
    /// The text where it is narrower than that; else its longest beginning that is with "…" behind it.
    QString Tagliato(const QString& testo, const Carattere& carattere, double larghezza);

    /// A rule, a box, a bar or a map of the open page.
    void Traccia(const Linea& linea) { PaginaCorrente().linee.push_back(linea); }
    void Traccia(const Riquadro& riquadro) { PaginaCorrente().riquadri.push_back(riquadro); }
    void Traccia(const Barra& barra) { PaginaCorrente().barre.push_back(barra); }
    void Traccia(const Carta& carta) { PaginaCorrente().carte.push_back(carta); }
    /// A text that has its place.
    void Traccia(const TestoCollocato& testo) { PaginaCorrente().testi.push_back(testo); }
    /// The program's picture, within that area of the open page.
    void StampaLogo(const QRectF& area);
    /// What stands at `y` of the open page, by name.
    void Segna(const QString& titolo, double y);

    /// Ends the page, if one is open: the closing rule under its last line between two borders; at its foot the date,
    /// and the text of the window at the right margin.
    void StampaFinePagina(double sinistra, double destra);

    /// What was written; the page being open is ended first by who wrote it. Nothing can be written any more.
    Stampato Concluso();

  private:
    static constexpr double kNessunaPagina = 800;
    Pagina& PaginaCorrente() { return documento_.pagine.back(); }

    Stampato documento_;
    PieDiPagina piede_;
    Misure misure_;
    double rigaStampa_ = kNessunaPagina;
};

/// Writes their numbers on the pages, counted through the whole document: "Pagina 2 di 10".
void NumeraPagine(Stampato& documento);

}  // namespace cronovia
