// SPDX-License-Identifier: GPL-3.0-or-later
// What the exchange screen works on: the trips to choose from and those that are chosen.
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "exchange/iei/elenco_mete.h"

namespace cronovia {

/// Which way the trips go.
enum class ModoScambio { Export, Import };

/// Two lists between which trips move. An export takes its trips from list 0 to list 1, an import those of its file
/// from list 1 to list 0.
class TavoloScambio {
  public:
    /// Trips in the order in which they are shown.
    using Lista = std::vector<MetaInElenco>;

    /// For an import `file` is the one that the trips are in, `stato` its state before they were read.
    TavoloScambio(ModoScambio modo, QString file, Lista mete, StatoFile stato = {});

    // What it was made of; of an export there is no file yet.
    [[nodiscard]] ModoScambio Modo() const { return modo_; }
    [[nodiscard]] const QString& File() const { return file_; }
    [[nodiscard]] const StatoFile& StatoDelFileLetto() const { return stato_; }
    /// One of the two lists, 0 or 1.
    [[nodiscard]] const Lista& Mete(int lista) const { return liste_[static_cast<std::size_t>(lista)]; }
    /// The list whose trips the run takes, and their codes.
    [[nodiscard]] const Lista& Scelte() const { return Mete(modo_ == ModoScambio::Export ? 1 : 0); }
    [[nodiscard]] std::vector<QString> CodiciScelti() const;

    /// Moves the trip of a row, counted from 0, behind the last one of the other list; a free row moves nothing.
    void TrasferisceMeta(int lista, int riga);
    /// The same with all trips of a list.
    void TrasferisceTutte(int lista);

    /// Headings of the two lists, captions of the buttons that empty them, caption of the run; lists count from 0.
    [[nodiscard]] QString Etichetta(int lista) const;
    [[nodiscard]] QString ScrittaTutto(int lista) const;
    [[nodiscard]] QString ScrittaImExp() const;

  private:
    ModoScambio modo_;
    QString file_;
    StatoFile stato_;
    std::array<Lista, 2> liste_;
};

}  // namespace cronovia
