// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cartella_dati.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace cronovia {

QString FilePortatile(const QString& programma) { return QDir(programma).filePath(QStringLiteral("portatile")); }

bool PuoEsserePortatile(const QString& programma) {
    const bool intero = QFileInfo::exists(QDir(programma).filePath(QStringLiteral("luoghi.dat")));
    return (intero || QFileInfo::exists(FilePortatile(programma))) && QFileInfo(programma).isWritable();
}

QString CartellaDati(const LuoghiPossibili& luoghi) {
    if (!luoghi.richiesta.isEmpty()) return luoghi.richiesta;
    return QFileInfo::exists(FilePortatile(luoghi.programma)) ? luoghi.programma : luoghi.utente;
}

LuoghiPossibili LuoghiDellaPiattaforma(const QString& richiesta) {
    return {richiesta, QCoreApplication::applicationDirPath(),
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
}

QString FileDelProgramma(const QString& nome) {
    const QDir programma(QCoreApplication::applicationDirPath());
    QString accanto = programma.filePath(nome);
    if (QFileInfo::exists(accanto)) return accanto;
    return QDir::cleanPath(programma.filePath(QStringLiteral(CRONOVIA_DATA_FOLDER "/") + nome));
}

}  // namespace cronovia
