// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of a line of a route planner's export, and what is read out of them.
#pragma once

#include <QString>
#include <QStringView>
#include <array>
#include <optional>

namespace cronovia {

/// The fields of one line, numbered from 1 to 20. Missing ones are empty, those beyond are left out.
class CampiPercorso {
  public:
    static constexpr int kMassimo = 20;  ///< the number of the last one

    /// The field of a number from 1 to 20.
    [[nodiscard]] const QString& operator[](int numero) const { return campi_[static_cast<std::size_t>(numero)]; }
    [[nodiscard]] QString& operator[](int numero) { return campi_[static_cast<std::size_t>(numero)]; }

  private:
    std::array<QString, kMassimo + 1> campi_;
};

/// Splits a line at its Tabs. Blanks around a field, and all but one between its words, are left out, and so are the
/// quotes that spreadsheets put around a field with a comma.
CampiPercorso SeparaCampi(QStringView riga);

/// Where a keyword of the layouts stands in a text, in whichever case; -1 when it does not. Whether it does.
qsizetype Trova(QStringView testo, QStringView parola);
bool Contiene(QStringView testo, QStringView parola);

/// The words of a text up to its first blank, and those behind it.
QStringView PrimaParola(QStringView testo);
QStringView DopoLaPrimaParola(QStringView testo);

/// What stands before the first of these characters, the whole text when there is none.
QStringView Fino(QStringView testo, QChar segno);

/// The whole kilometres with which a field begins ("1.234,5 km" is 1234, "12.5" is 12); nothing without a digit.
std::optional<int> LeggiKm(QStringView campo);

/// The same of a field that names the unit; 0 for any other.
int KmConUnita(QStringView campo);

/// Whether a text can be a road's name: its letters, if any, are capitals.
bool TuttoMaiuscolo(QStringView testo);

}  // namespace cronovia
