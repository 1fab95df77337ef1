// The trips that an exchange file holds.
#pragma once

#include <QIODevice>
#include <QString>
#include <functional>
#include <vector>

#include "exchange/iei/lettore_iei.h"
#include "interaction/progress.h"

namespace cronovia {

/// A trip of an exchange file, its code as the file has it.
struct MetaNelFile {
    QString codice;
    QString localita;
    QString nazione;

    friend bool operator==(const MetaNelFile&, const MetaNelFile&) = default;
};

/// The trips that can be imported, in the file's order. A `Failure` when the file is no exchange file.
std::vector<MetaNelFile> LeggiElencoMete(const QString& path, Progress& progress);

/// Whether a record of the trips section can be imported: it has a destination and a code of a bearable length.
bool MetaImportabile(const RigaIei& riga);

/// Visits those records, from the beginning of the device. `path` is its name in messages.
void ScorriMete(QIODevice& device, const QString& path, const Lettura& lettura, Progress& progress,
                const std::function<void(const RigaIei&)>& visita);

}  // namespace cronovia
