// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cartella_dati.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "store/archive.h"

namespace cronovia {

QString CartellaDati(const LuoghiPossibili& luoghi) {
    if (!luoghi.richiesta.isEmpty()) return luoghi.richiesta;
    const bool portatile =
        QFileInfo::exists(Archive::FilePath(luoghi.programma)) || QFileInfo(luoghi.programma).isWritable();
    return portatile ? luoghi.programma : luoghi.utente;
}

LuoghiPossibili LuoghiDellaPiattaforma(const QString& richiesta) {
    return {richiesta, QCoreApplication::applicationDirPath(),
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
}

}  // namespace cronovia
