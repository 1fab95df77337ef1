// SPDX-License-Identifier: GPL-3.0-or-later
// Exchange files and archives of the tests, written short.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "exchange/iei/importa_mete.h"
#include "support/archivio.h"

namespace cronovia::prova {

/// A section from lines ended by "\n" whose values stand between "|".
inline QByteArray Sezione(char separatore, QByteArray testo) {
    return testo.replace("\n", "|\r\n").replace('|', separatore);
}
inline QByteArray Mete(const QByteArray& righe) { return Sezione('\xFF', "CodiceMeta|Localita|Nazione\n" + righe); }
inline QByteArray Tappe(const QByteArray& righe) { return Sezione('\xFE', "CodiceMeta|Sequenza|Localita\n" + righe); }
inline QByteArray Guida(const QByteArray& righe) {
    return Sezione('\xFD', "Localita|CodiceGuida|Descrizione\n" + righe);
}

/// Every field of the three tables that travel.
inline QStringList Tutto(Archive& archive) {
    return Righe(archive, Table::MeteVandro, mete::kCampi) + Righe(archive, Table::Itinerari, itinerari::kCampi) +
           Righe(archive, Table::GuidaCitta, guida::kCampi);
}

/// A person who wants everything to stop at once.
class Fermata : public Progress {
    bool StopRequested() override { return true; }
};

inline EsitoImport Importa(Archive& archive, QByteArray file, const std::vector<QString>& codici = {}) {
    QBuffer buffer(&file);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    Progress progress;
    return ImportaMete({archive, QStringLiteral("prova.iei"), codici}, buffer, progress);
}

}  // namespace cronovia::prova
