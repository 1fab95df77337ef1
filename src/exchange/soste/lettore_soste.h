// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of places where a camper can stand, as their collectors hand them out.
#pragma once

#include <QString>
#include <optional>
#include <variant>
#include <vector>

#include "exchange/soste/colonne_soste.h"
#include "places/posizione.h"

class QIODevice;

namespace cronovia {

/// A place as a file tells of it, each text on one line; those that the file lacks are empty.
struct SostaLetta {
    QString nome;
    QString tipo;  ///< what kind of place it is, in the file's words
    QString note;
    Posizione posizione;
};

/// The most places that a file may have.
inline constexpr std::size_t kMassimeSoste = 50'000;

/// A table whose first line does not tell its columns.
struct TabellaDaSpiegare {
    QStringList intestazione;  ///< the cells of the first line
    QStringList esempio;       ///< and of the one behind it
    PostoColonne proposte{};   ///< what can be guessed
};

/// The cells of a table's first line. A `Failure` when the file cannot be read, or is empty.
QStringList PrimaRigaSoste(const QString& path);

/// The places of a file, in their order; of a table with these columns, when they are given. A `Failure`, which names
/// the line where there is one, when the file cannot be read, is of no known kind, has a position that is none, or more
/// places than these.
std::vector<SostaLetta> LeggiSoste(const QString& path, const std::optional<PostoColonne>& colonne = {});

/// The same, or what the person has to tell before the file can be read.
std::variant<std::vector<SostaLetta>, TabellaDaSpiegare> LeggiOChiediSoste(const QString& path);

/// The same of a table with ";", "," or tabs between its fields, which may stand in quotes, also over several lines.
/// Its first line names the columns, in Italian or English; one without names has longitude, latitude, name, notes.
/// `path` is its name in messages.
std::vector<SostaLetta> LeggiTabellaSoste(QIODevice& device, const QString& path,
                                          const std::optional<PostoColonne>& colonne = {});

}  // namespace cronovia
