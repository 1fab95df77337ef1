#include "files/file_intero.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool UnArchivio(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(16) == QByteArray("SQLite format 3\0", 16);
}

}  // namespace

FileIntero::FileIntero(const QString& path) : file_(path) {
    if (file_.open(QIODevice::WriteOnly)) return;
    throw Failure(u"Il file %1 non si può scrivere: controlla la cartella e i permessi."_s.arg(Nome()));
}

void FileIntero::Scrivi(const QByteArray& byte) {
    if (file_.write(byte) != byte.size()) NonScritto();
}

// Closing the file alone does not tell when the last bytes found no room.
void FileIntero::Completa() {
    if (file_.error() != QFileDevice::NoError || !file_.flush()) NonScritto();
}

void FileIntero::Chiudi() {
    Completa();
    if (!file_.commit()) NonScritto();
}

void FileIntero::NonScritto() const {
    throw Failure(u"Il file %1 non è stato scritto: il disco è pieno o non si può scrivere."_s.arg(Nome()));
}

QString FileIntero::Nome() const { return QDir::toNativeSeparators(file_.fileName()); }

void RifiutaFileEsistente(const QString& path, bool sovrascrivi) {
    const QFileInfo info(path);
    if (!info.exists()) return;
    const QString nome = QDir::toNativeSeparators(path);
    if (info.isDir()) throw Failure(u"%1 è una cartella, non un file."_s.arg(nome));
    if (!info.isFile()) throw Failure(u"%1 non è un file che si possa scrivere."_s.arg(nome));
    if (!sovrascrivi) throw Failure(u"Il file %1 esiste già: non è stato ricoperto."_s.arg(nome));
    if (UnArchivio(path)) throw Failure(u"Il file %1 è un archivio: non è stato ricoperto."_s.arg(nome));
}

}  // namespace cronovia
