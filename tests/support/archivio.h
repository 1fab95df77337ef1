// SPDX-License-Identifier: GPL-3.0-or-later
// Archives that belong to one test, and what stands in them.
#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <array>

#include "interaction/progress.h"
#include "store/archive.h"
#include "support/prova.h"

namespace cronovia::prova {

/// Adds an entry to the guide; of `tipo` the code is meant.
inline void NellaGuida(Archive& archive, const QString& localita, const QString& tipo = QStringLiteral("01"),
                       const QString& descrizione = QStringLiteral("Duomo"),
                       const QString& tempo = QStringLiteral("01:00"), const QString& visto = QStringLiteral("0")) {
    archive.Insert(Table::GuidaCitta, std::array<QString, guida::kCampi>{localita, tipo, descrizione, tempo, visto});
}

/// The first `campi` fields of every row, joined by "|", in the order in which the rows were added.
inline QStringList Righe(Archive& archive, Table tabella, int campi = 3) {
    QStringList righe;
    archive.ForEach(tabella, [&](const Record& record) {
        righe += QStringList(record.values.begin(), record.values.begin() + campi).join(u'|');
    });
    return righe;
}

/// Adds a row whose remaining fields are one blank each.
inline void Inserisci(Archive& archive, Table tabella, std::vector<QString> valori) {
    valori.resize(Definition(tabella).fields.size(), QStringLiteral(" "));
    archive.Insert(tabella, valori);
}

/// A test with an empty archive of its own.
class ConArchivio : public ::testing::Test {
  protected:
    CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Path());
    Progress progress_;
};

}  // namespace cronovia::prova
