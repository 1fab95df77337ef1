// SPDX-License-Identifier: GPL-3.0-or-later
// How the command line puts its results: aligned for people, TSV and JSON for programs.
#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>
#include <vector>

namespace cronovia {

/// For people; for programs.
enum class Formato { Testo, Tsv, Json };

/// Rows of texts under headers.
struct TabellaTesti {
    QStringList intestazioni;
    std::vector<QStringList> righe;  ///< as many texts as headers each
    QList<int> aDestra;              ///< columns whose texts stand at the right
};

/// A text that stands out, and one that tells of an error, where colours can be shown.
QString Rilievo(const QString& testo);
QString Errore(const QString& testo);
/// The text with its colours, or without.
QString ConRilievi(QString testo, bool colori);

/// Width of each column: that of its longest text, headers included; 0 when no row has a text in it.
std::vector<int> LarghezzeColonne(const TabellaTesti& tabella);

/// One row, its texts in columns two blanks apart; columns of width 0 are left out, no blank stands at the end.
QString RigaAllineata(const QStringList& testi, const std::vector<int>& larghezze, const QList<int>& aDestra);

/// Lines as `RigaAllineata` makes them, the headers first.
void ScriviAllineata(const TabellaTesti& tabella, QTextStream& uscita);

/// Tab-separated lines, the headers first, each text as `InCella` makes it.
void ScriviTsv(const TabellaTesti& tabella, QTextStream& uscita);

}  // namespace cronovia
