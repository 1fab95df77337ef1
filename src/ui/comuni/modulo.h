// SPDX-License-Identifier: GPL-3.0-or-later
// A dialog of text fields: what is typed is looked at when it is confirmed, and what cannot be is told at its field.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QWidget;

namespace cronovia {

/// A field and what stands before it; the first caption of a row is that of the row.
struct CampoModulo {
    int valore = 0;  ///< position of its text among the values
    QString nome;    ///< of its control
    QString scritta;
    int massimo = 0;    ///< characters that it takes
    int caratteri = 0;  ///< that are seen; 0: as many as there is room for
    QString istruzione;
    QString esempio = {};  ///< shown while it is empty
    int righe = 1;         ///< more: a long text on so many lines, of which `massimo` and `caratteri` are of no account
};

/// Fields in one frame, row by row.
struct GruppoModulo {
    QString titolo;
    std::vector<std::vector<CampoModulo>> righe;
};

/// What is asked for.
struct RichiestaModulo {
    QString titolo;
    QString testo = {};  ///< above all fields
    std::vector<GruppoModulo> gruppi;
    std::vector<QString> valori;  ///< what the fields hold at first
    /// The field that has to be another one, by its `valore`, and why.
    std::function<std::optional<std::pair<int, QString>>(const std::vector<QString>&)> difetto;
};

/// The values as they were typed, without blanks at their rim, once nothing is wrong with them; nothing when the person
/// does not want to change them.
std::optional<std::vector<QString>> ChiediModulo(QWidget& finestra, const RichiestaModulo& richiesta);

}  // namespace cronovia
