// SPDX-License-Identifier: GPL-3.0-or-later
// Texts as cells of the files and answers that spreadsheets read.
#pragma once

#include <QString>
#include <QStringList>

namespace cronovia {

/// Parts the lines of a table into cells, without the blanks at their rims. Cells between double quotes may hold what
/// parts cells, quotes that stand twice, and ends of lines, for which a blank stands then.
class SpezzaCelle {
  public:
    /// `virgolette`: whether quotes mean that.
    explicit SpezzaCelle(QChar separatore, bool virgolette = true) : separatore_(separatore), virgolette_(virgolette) {}

    /// Takes a line; false while quotes are open at its end, and the next line belongs to it.
    bool Aggiungi(QStringView riga);

    /// The cells of what was taken since the last time.
    [[nodiscard]] QStringList Prendi();

  private:
    void Chiudi();

    QChar separatore_;
    bool virgolette_;
    bool dentro_ = false;
    QString cella_;
    QStringList celle_;
};

/// The text on one line, `Visibile`, and for a spreadsheet never more than a text: one that begins like a formula, with
/// "=", "+", "-" or "@", behind blanks too, has "'" before it, unless it is a number or the note of a rest.
QString InCella(const QString& testo);

/// Lines of cells that tabs part as a table for those who read HTML.
QString TabellaHtml(const QString& testo);

}  // namespace cronovia
