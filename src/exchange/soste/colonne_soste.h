// SPDX-License-Identifier: GPL-3.0-or-later
// Which column of a table of places to stay tells what.
#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

namespace cronovia {

/// What a column tells; the table has others too, which are passed over.
enum ColonnaSosta { kNome, kLatitudine, kLongitudine, kTipo, kDescrizione, kNote };
inline constexpr std::size_t kColonneSosta = 6;  ///< how many they are

/// Where each one stands in a line, from 0; -1 for one that the table lacks.
using PostoColonne = std::array<int, kColonneSosta>;

/// "nome", "latitudine", … as the person names them.
QString NomeColonna(ColonnaSosta colonna);

/// The columns by the names that a first line gives them, in Italian or English; without a name the description is it.
PostoColonne ColonneDette(const QStringList& intestazione);

/// The columns by what stands in a line: the first two numbers side by side that may be degrees of Europe, in either
/// order, and the first text as the name.
PostoColonne ColonneIndovinate(const QStringList& celle);

/// Whether each place gets a name and a position.
bool Bastano(const PostoColonne& colonne);

/// The columns as "nome=Titolo,latitudine=3,longitudine=4" tells them: by a name of the first line, or by a number from
/// 1. A `Failure` when one is not there, or when they are not enough.
PostoColonne LeggiColonne(const QString& scritte, const QStringList& intestazione);

}  // namespace cronovia
