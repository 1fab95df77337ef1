// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/file_intero.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "calendar/testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool UnArchivio(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(16) == QByteArray("SQLite format 3\0", 16);
}

// Where a file is, or would be, whatever leads there; a link to nothing leads to where that would be.
QString Posto(const QString& path) {
    QFileInfo info(path);
    for (int passi = 0; passi < 40 && info.isSymLink() && !info.exists(); ++passi) info.setFile(info.symLinkTarget());
    std::error_code errore;
    const auto posto = std::filesystem::weakly_canonical(info.absoluteFilePath().toStdU16String(), errore);
    return errore ? info.absoluteFilePath() : QString::fromStdU16String(posto.generic_u16string());
}

// Two names of one file that exists.
bool StessoFile(const QString& a, const QString& b) {
    std::error_code errore;
    return std::filesystem::equivalent(a.toStdU16String(), b.toStdU16String(), errore);
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

QString NomeDiFile(const QString& testo, QStringView altrimenti) {
    constexpr qsizetype kMassimoNome = 60;
    QString nome = testo.trimmed();
    for (QChar& c : nome) {
        if (Invisibile(c) || QStringView(u"/\\:*?\"<>|").contains(c)) c = u'-';
    }
    while (nome.startsWith(u'.')) nome.remove(0, 1);
    nome.truncate(kMassimoNome);
    return nome.isEmpty() ? altrimenti.toString() : nome;
}

// Some file systems take capitals and small letters for the same.
bool StessoPosto(const QString& a, const QString& b) {
    return Posto(a).compare(Posto(b), Qt::CaseInsensitive) == 0 || StessoFile(a, b);
}

void RifiutaFileArchivio(const QString& path, const QString& archivio) {
    const QString copie = QFileInfo(Posto(archivio)).path() + u"/Copie/"_s;
    bool proprio = Posto(path).startsWith(copie, Qt::CaseInsensitive);
    for (const char* coda : {"", "-journal", "-wal", "-shm"}) {
        proprio = proprio || StessoPosto(path, archivio + QLatin1StringView(coda));
    }
    if (!proprio) return;
    throw Failure(u"Il file %1 appartiene all'archivio: scegli un altro nome."_s.arg(QDir::toNativeSeparators(path)));
}

}  // namespace cronovia
